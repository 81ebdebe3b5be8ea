// Aspect, colours, panels and texts: what is tried acts at once, what is cancelled leaves no trace.
#include <fstream>

#include <QListWidget>
#include <QPlainTextEdit>
#include <QSlider>
#include <QSplitter>
#include <QTableWidget>

#include "Banco.h"
#include "data/FileTesto.h"
#include "records/ColoriGrafico.h"
#include "ui/FrmColors.h"

using namespace orvane;
using namespace orvane::prova;

class AspettoUi : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void AspettoAgisceESiSalva();
    void AnnullaRimetteTutto_data();
    void AnnullaRimetteTutto();
    void StileCambiaAFinestreAperte();
    void BordoSpostatoSiSalva();
    void ColoreDaCodiceETasti();
    void ColoriDefaultEAnnulla();
    void ColoriCaricatiPortanoTutto();
    void ColoriRottiNonFermano();
    void PannelloSalvatoERiletto();
    void PannelloSpentoConMisura();
    void IntestazioneNasceDalModello();
    void CommentoNellaRadice();

private:
    template <class T> static T* Apri(Banco& banco, const char* voce, const char* nome) {
        banco.Voce(voce)->trigger();
        return banco.Trova<T>(nome);
    }
    static void Premi(QWidget* finestra, const char* pulsante) {
        finestra->findChild<QPushButton*>(QLatin1String(pulsante))->click();
    }
    /// What the disk holds as the environment.
    static EnvRecord SuDisco(Banco& banco, std::string_view percorso = kPannelloEPN) {
        Scrivania altra{.ambiente = banco.ambiente,
                        .albero = AlberoDati(banco.cartella.Percorso())};
        CaricaPanelEPN(altra, percorso);
        return altra.env;
    }
    /// Answers the load and save window once it is up.
    static void Scegli(Banco& banco, const QString& nome) {
        banco.Fra(50, [nome] {
            auto* finestra = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            QVERIFY(finestra && finestra->objectName() == QLatin1String("FrmLoadSave"));
            if (auto* testo = finestra->findChild<QLineEdit*>(QStringLiteral("TBSave")))
                testo->setText(nome);
            else
                for (auto* voce :
                     finestra->findChild<QListWidget*>()->findItems(nome, Qt::MatchFixedString))
                    finestra->findChild<QListWidget*>()->setCurrentItem(voce);
            finestra->accept();
        });
    }
};

void AspettoUi::AspettoAgisceESiSalva() {
    Banco banco;
    banco.Scheda(Modalita::Sweep);
    auto* griglia = banco.Trova<QTableView>("GridScanTab");
    const double prima = griglia->font().pointSizeF();
    auto* finestra = Apri<QDialog>(banco, "MNUAspect", "FrmAspect");
    finestra->findChild<QSlider*>(QStringLiteral("SLDTextTables"))->setValue(150);
    finestra->findChild<QComboBox*>(QStringLiteral("CBXGridLines"))->setCurrentIndex(2);
    QCOMPARE(griglia->font().pointSizeF(), prima * 1.5);
    QCOMPARE(LeggiAspetto(SuDisco(banco)), Aspetto{});
    Premi(finestra, "CMBOK");
    QCOMPARE(LeggiAspetto(SuDisco(banco)).testoTabelle, 150);
    banco.posto.reset();
    banco.Apri();
    QCOMPARE(banco.Trova<QTableView>("GridScanTab")->font().pointSizeF(), prima * 1.5);
    QCOMPARE(LeggiAspetto(banco.posto->scrivania.env).Linee(), LineeVisibili::Nessuna);
}

void AspettoUi::AnnullaRimetteTutto_data() {
    QTest::addColumn<bool>("tasto");
    QTest::newRow("button") << false;
    QTest::newRow("Escape") << true;
}

void AspettoUi::AnnullaRimetteTutto() {
    QFETCH(bool, tasto);
    Banco banco;
    auto& byte = banco.posto->scrivania.env.LookValues;
    byte[0] = 77; // of another release
    const auto prima = byte;
    const double testo = banco.Trova<QTableView>("GridScanTab")->font().pointSizeF();
    auto* finestra = Apri<QDialog>(banco, "MNUAspect", "FrmAspect");
    finestra->findChild<QSlider*>(QStringLiteral("SLDTextTables"))->setValue(200);
    finestra->findChild<QSlider*>(QStringLiteral("SLDTraceWidth"))->setValue(40);
    QVERIFY(byte != prima);
    QCOMPARE(byte[0], uint8_t{77});
    tasto ? QTest::keyClick(finestra, Qt::Key_Escape) : Premi(finestra, "CMBCancel");
    QVERIFY(byte == prima);
    QCOMPARE(banco.Trova<QTableView>("GridScanTab")->font().pointSizeF(), testo);
}

void AspettoUi::StileCambiaAFinestreAperte() {
    Banco banco;
    const auto titoletto = [&] {
        return banco.Trova<QWidget>("SSTabComuni")
            ->findChild<QLabel*>()
            ->palette()
            .color(QPalette::WindowText);
    };
    auto* finestra = Apri<QDialog>(banco, "MNUAspect", "FrmAspect");
    auto* stile = finestra->findChild<QComboBox*>(QStringLiteral("CBXStyle"));
    for (const int scelta : {2, 1, 2}) {
        stile->setCurrentIndex(scelta);
        QCOMPARE(TavolozzaScura(QApplication::palette()), scelta == 2);
        QTRY_COMPARE(TavolozzaScura(banco.Finestra().palette()), scelta == 2);
        QCOMPARE(titoletto(), Tinta(scelta == 2, Ruolo::Tenue));
    }
    Premi(finestra, "CMBCancel");
    QTRY_VERIFY(!TavolozzaScura(banco.Finestra().palette()));
}

void AspettoUi::BordoSpostatoSiSalva() {
    Banco banco;
    auto* divisore = banco.Trova<QSplitter>("SplitCentro");
    const int m = banco.Finestra().fontMetrics().averageCharWidth();
    divisore->setSizes({50 * m, 100 * m, 40 * m});
    Q_EMIT divisore->splitterMoved(0, 1);
    const int larga = divisore->sizes().constFirst() / m;
    QVERIFY(larga > 40);
    QTRY_COMPARE(LeggiAspetto(SuDisco(banco)).larghezzaArchivio, larga);
    banco.posto.reset();
    banco.Apri();
    QTRY_COMPARE(banco.Trova<QSplitter>("SplitCentro")->sizes().constFirst() / m, larga);
}

void AspettoUi::ColoreDaCodiceETasti() {
    Banco banco;
    auto* finestra = Apri<QDialog>(banco, "MNUColors", "FrmColors");
    auto* tabella = finestra->findChild<QTableWidget*>();
    auto* codice = finestra->findChild<QLineEdit*>(QStringLiteral("TBColor"));
    auto& colori = banco.posto->scrivania.env.GraphColors;
    tabella->setCurrentCell(1, 2); // dotted line, print
    codice->selectAll();
    QTest::keyClicks(codice, QStringLiteral("#12ab"));
    QCOMPARE(colori[colore::kPunteggiataStampa], kColoriDefault[colore::kPunteggiataStampa]);
    QTest::keyClicks(codice, QStringLiteral("cd"));
    QCOMPARE(colori[colore::kPunteggiataStampa], Rgb(0x12, 0xab, 0xcd));
    QTest::keyClick(codice, Qt::Key_Return);
    QVERIFY(finestra->isVisible());
    finestra->findChild<QSlider*>(QStringLiteral("SLDRed"))->setValue(255);
    Premi(finestra, "CMBOK");
    QCOMPARE(SuDisco(banco).GraphColors[colore::kPunteggiataStampa], Rgb(255, 0xab, 0xcd));
    QCOMPARE(SuDisco(banco).GraphColors[colore::kPunteggiata], kColoriDefault[0]);
}

void AspettoUi::ColoriDefaultEAnnulla() {
    Banco banco;
    auto& colori = banco.posto->scrivania.env.GraphColors;
    colori[colore::kTracce] = Rgb(1, 2, 3);
    auto* finestra = Apri<QDialog>(banco, "MNUColors", "FrmColors");
    Premi(finestra, "CMBDefaultColors");
    QVERIFY(colori == kColoriDefault);
    Premi(finestra, "CMBCancel");
    QCOMPARE(colori[colore::kTracce], Rgb(1, 2, 3));
}

/// A set holds the whole environment. What it names is opened, and what it names in vain is not
/// taken: edits must not go to a file that was never read.
void AspettoUi::ColoriCaricatiPortanoTutto() {
    Banco banco;
    Scrivania& s = banco.posto->scrivania;
    const EnvRecord prima = s.env;
    ScanRecord altra;
    altra.ScanComment = "of the set";
    SalvaPanelEST(s, PercorsoPannello("Set", "EST"), altra);
    s.env.GraphColors[colore::kTracce] = Rgb(9, 8, 7);
    s.env.ScanPanelPath = PercorsoPannello("Set", "EST");
    s.env.SetupPanelPath = PercorsoPannello("Gone", "EAM");
    s.env.LinkKind = 0;
    s.env.LinkPort = 7;
    QVERIFY(SalvaPanelEPN(s, kColoriCOL));
    s.env = prima;
    for (const char* fine : {"CMBCancel", "CMBOK"}) {
        auto* finestra = Apri<QDialog>(banco, "MNUColors", "FrmColors");
        Scegli(banco, QStringLiteral("Color"));
        Premi(finestra, "CMBLoadColors");
        QCOMPARE(s.env.GraphColors[colore::kTracce], Rgb(9, 8, 7));
        Premi(finestra, fine);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (QLatin1String(fine) == QLatin1String("CMBCancel")) {
            QCOMPARE(s.env.ScanPanelPath, prima.ScanPanelPath);
            QCOMPARE(banco.posto->porta.link.TipoLink, prima.LinkKind);
        }
    }
    QCOMPARE(banco.posto->scan.ScanComment, std::string("of the set"));
    QCOMPARE(s.env.SetupPanelPath, prima.SetupPanelPath);
    QCOMPARE(banco.posto->porta.link.NumeroCom, int16_t{7});
    QCOMPARE(SuDisco(banco).SetupPanelPath, prima.SetupPanelPath);
    QCOMPARE(SuDisco(banco).GraphColors[colore::kTracce], Rgb(9, 8, 7));
}

void AspettoUi::ColoriRottiNonFermano() {
    Banco banco;
    std::ofstream(banco.cartella.Percorso() / "Color.COL") << "torn";
    auto* finestra = Apri<QDialog>(banco, "MNUColors", "FrmColors");
    const EnvRecord prima = banco.posto->scrivania.env;
    Scegli(banco, QStringLiteral("Color"));
    Premi(finestra, "CMBLoadColors");
    QCOMPARE(banco.riquadri.size(), 1);
    QVERIFY(banco.riquadri[0].contains(QStringLiteral("Failed loading")));
    Premi(finestra, "CMBCancel");
    QVERIFY(ScriviRecord(banco.posto->scrivania.env) == ScriviRecord(prima));
}

void AspettoUi::PannelloSalvatoERiletto() {
    Banco banco;
    Scrivania& s = banco.posto->scrivania;
    banco.Scheda(Modalita::Sweep);
    s.setup.DinamicaId = 3;
    Scegli(banco, QStringLiteral("Conducted"));
    banco.Voce("MNUSaveAs")->trigger();
    QCOMPARE(s.env.SetupPanelPath, PercorsoPannello("Conducted", "EAM"));
    QCOMPARE(SuDisco(banco).SetupPanelPath, s.env.SetupPanelPath);
    s.setup.DinamicaId = 1;
    s.setup.OverwriteWarning = 0;
    SalvaPanelEAM(s, kPannelloEAM);
    Scegli(banco, QStringLiteral("Conducted"));
    banco.Voce("MNUOpenPanel")->trigger();
    QCOMPARE(s.setup.DinamicaId, int16_t{3});
    QCOMPARE(banco.Trova<QComboBox>("CBXDinamica")->currentIndex(), 3);
    QVERIFY(banco.Voce("MNUOverwriteWarning")->isChecked());
    QVERIFY(s.albero.Leggi(kPannelloEAM) == s.albero.Leggi(s.env.SetupPanelPath));
    s.setup.DinamicaId = 2; // a panel with a name is saved without asking
    banco.Voce("MNUSavePanel")->trigger();
    QVERIFY(s.albero.Leggi(kPannelloEAM) == s.albero.Leggi(s.env.SetupPanelPath));
    banco.Scheda(Modalita::Analyzer);
    QVERIFY(banco.Finestra().windowTitle().contains(QStringLiteral("Panel: Conducted")));
    QVERIFY(!banco.Voce("MNUOpenPanel")->isEnabled());
}

void AspettoUi::PannelloSpentoConMisura() {
    Banco banco;
    Scrivania& s = banco.posto->scrivania;
    SalvaPannelloCome(s, PercorsoPannello("Mine", "EAM"));
    const auto prima = s.albero.Leggi(s.env.SetupPanelPath);
    s.NoSaveSetup = true;
    s.setup.DinamicaId = 4;
    banco.Voce("MNUSavePanel")->trigger();
    banco.Voce("MNUOpenPanel")->trigger();
    QVERIFY(s.albero.Leggi(s.env.SetupPanelPath) == prima);
    QCOMPARE(s.setup.DinamicaId, int16_t{4});
}

void AspettoUi::IntestazioneNasceDalModello() {
    Banco banco;
    Scrivania& s = banco.posto->scrivania;
    auto* finestra = Apri<QDialog>(banco, "mnuHeaderTitle", "FrmTesto");
    auto* testo = finestra->findChild<QPlainTextEdit*>();
    QVERIFY(testo->toPlainText().startsWith(
        QStringLiteral("\n   ************  Header Text ***************\n")));
    QVERIFY(testo->toPlainText().contains(QStringLiteral("--- °C\n")));
    QVERIFY(s.albero.Esiste(kFileHeader));
    testo->setPlainText(QStringLiteral("Lab\u00a0中"));
    QVERIFY(!finestra->findChild<QLabel*>(QStringLiteral("LBNota"))->text().isEmpty());
    Premi(finestra, "CMBOK");
    QCOMPARE(CaricaTesto(s, kFileHeader), std::string("Lab\xC2\xA0?"));
}

void AspettoUi::CommentoNellaRadice() {
    Banco banco;
    Scrivania& s = banco.posto->scrivania;
    banco.Scheda(Modalita::Sweep);
    auto* finestra = Apri<QDialog>(banco, "mnuTestComment", "FrmTesto");
    QTest::keyClicks(finestra->findChild<QPlainTextEdit*>(), QStringLiteral("no load"));
    // Enter is the focused button's, not the default one's; the careful answer: not discarded.
    QTest::keyClick(finestra->findChild<QPushButton*>(QStringLiteral("CMBCancel")), Qt::Key_Return);
    QVERIFY(finestra->isVisible());
    QCOMPARE(banco.riquadri, QStringList{QStringLiteral("Discard the changes?")});
    Premi(finestra, "CMBOK");
    QCOMPARE(CaricaTesto(s, PercorsoCommento({})), std::string("no load"));
}

QTEST_MAIN(AspettoUi)
#include "aspetto.moc"
