// The report windows: rows, margin, detector, files, cancel; and the report behind a sweep.
#include <fstream>
#include <sstream>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QRadioButton>
#include <QTableView>

#include "Banco.h"
#include "data/FileTabelle.h"
#include "ui/AnteprimaReport.h"
#include "ui/FrmReport.h"
#include "ui/Testi.h"

using namespace orvane;
using namespace orvane::prova;

class ReportUi : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void FinestraDaMenu();
    void FileComeIlCore();
    void PagineDellAnteprima();
    void AnnullaLasciaRigheRosse();
    void AutoReportDopoLaCorsa();
};

namespace {

/// A measure with one detector and a limit that all of it exceeds, on show after its run.
void Misura(Banco& banco) {
    Scrivania& s = banco.posto->scrivania;
    ContenutoTabella limite{.kind = TableKind::Limite};
    InserisciPunto(limite, {.freqMhz = 0.1, .livelloCent = -6000});
    InserisciPunto(limite, {.freqMhz = 100, .livelloCent = -6000});
    QVERIFY(SalvaTabella(s, limite, "Limits\\Low.5SL"));
    banco.Scheda(Modalita::Sweep);
    s.setup.LimitName[0] = "Low";
    s.setup.LimitOn[0] = 1;
    banco.RigaCorta();
    banco.Trova<QLineEdit>("TBMisura")->setText(QStringLiteral("Lamp"));
    QTest::mouseClick(banco.Trova<QPushButton>("CMBExecuteSweep"), Qt::LeftButton);
}

template <class T> T* Figlio(const QWidget* finestra, const char* nome) {
    return finestra->findChild<T*>(QLatin1String(nome));
}

FinestraReport* Apri(Banco& banco, const char* voce) {
    banco.Voce(voce)->trigger();
    return banco.posto->finestra.findChild<FinestraReport*>();
}

int Righe(const QWidget* finestra) {
    auto* griglia = Figlio<GrigliaReportQt>(finestra, "GridReport");
    return griglia->model()->index(0, 0).data().isValid() ? griglia->model()->rowCount() : 0;
}

/// The saving dialog that comes next answers with this name.
void Scegli(const QString& file) {
    QTimer::singleShot(0, qApp, [file] {
        auto* dialogo = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialogo);
        dialogo->selectFile(file);
        dialogo->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
    });
}

std::string Contenuto(const std::filesystem::path& file) {
    std::ostringstream testo;
    testo << std::ifstream(file, std::ios::binary).rdbuf();
    return testo.str();
}

} // namespace

void ReportUi::FinestraDaMenu() {
    Banco banco;
    QVERIFY(!banco.Voce("MNUReport0")->isEnabled());
    Misura(banco);
    FinestraReport* finestra = Apri(banco, "MNUReport0");
    QVERIFY(finestra->objectName() == QLatin1String("FrmReport"));
    QVERIFY(!banco.Trova<QMenu>("MNUTools")->menuAction()->isEnabled());
    QTRY_VERIFY(Righe(finestra) > 1);
    const int tutte = Righe(finestra);
    QVERIFY(finestra->windowTitle().startsWith(QLatin1String("Lamp dB")));
    QVERIFY(Figlio<QFrame>(finestra, "LBColorLim0")->isVisible());
    QVERIFY(!Figlio<QFrame>(finestra, "LBColorLim1")->isVisible());
    // A detector that was not measured cannot be chosen.
    QVERIFY(Figlio<QRadioButton>(finestra, "OPTDetector0")->isChecked());
    QVERIFY(!Figlio<QRadioButton>(finestra, "OPTDetector3")->isEnabled());
    auto* margine = Figlio<QLineEdit>(finestra, "TBMargin");
    struct Caso {
        const char* scritto;
        const char* mostrato;
        bool vuoto; ///< nothing lies so far above the limit
    };
    for (const Caso& caso : {Caso{"1000", "999", false}, Caso{"-999", "-999", true},
                             Caso{"-1,5", "-1.5", false}, Caso{"x", "0", false}}) {
        margine->selectAll();
        QTest::keyClicks(margine, QLatin1String(caso.scritto));
        QVERIFY(!Figlio<QLabel>(finestra, "LBChangePending")->isHidden());
        QTest::keyClick(margine, Qt::Key_Return);
        QCOMPARE(margine->text(), QLatin1String(caso.mostrato));
        QCOMPARE(margine->selectedText(), margine->text());
        QCOMPARE(Righe(finestra), caso.vuoto ? 0 : tutte);
        QVERIFY(Figlio<QPushButton>(finestra, "CMBSaveAsText")->isEnabled());
    }
    QCOMPARE(banco.posto->scrivania.env.ReportValue, 0.0f);
    QTest::mouseClick(Figlio<QPushButton>(finestra, "CMBExit"), Qt::LeftButton);
    QVERIFY(banco.Trova<QMenu>("MNUTools")->menuAction()->isEnabled());
    QTRY_VERIFY(!banco.posto->finestra.findChild<FinestraReport*>());
    finestra = Apri(banco, "MNUReport2");
    QVERIFY(finestra->objectName() == QLatin1String("FrmReportDSD"));
    QTRY_COMPARE(Righe(finestra), tutte);
    QVERIFY(Figlio<QRadioButton>(finestra, "OptDetector2L0")->isChecked());
}

void ReportUi::FileComeIlCore() {
    Banco banco;
    Misura(banco);
    FinestraReport* finestra = Apri(banco, "MNUReport0");
    QTRY_VERIFY(Righe(finestra) > 1);
    const auto cartella = banco.cartella.Percorso();
    struct Caso {
        const char* pulsante;
        const char* nome;
        const char* scritto; ///< the extension is added where the name lacks it
        std::string inizio;
    };
    for (const Caso& caso : {Caso{"CMBSaveAsText", "R.TXT", "R.TXT", "Lamp "},
                             Caso{"CMBSaveAsPDF", "R", "R.PDF", "%PDF-1.3"},
                             Caso{"CMBSaveAsRTF", "R.rtf", "R.rtf", "{\\rtf1"},
                             Caso{"CMBSaveAsCSV", "R.CSV", "R.CSV", "Frequency"},
                             Caso{"CMBSaveAsHTML", "R.html", "R.html", "<!DOCTYPE html>"}}) {
        Scegli(Q((cartella / caso.nome).string()));
        QTest::mouseClick(Figlio<QPushButton>(finestra, caso.pulsante), Qt::LeftButton);
        const std::string testo = Contenuto(cartella / caso.scritto);
        QCOMPARE(testo.substr(0, caso.inizio.size()), caso.inizio);
    }
    QVERIFY(!std::filesystem::exists(cartella / "R.TPI"));
    // A table by the common window of loading and saving.
    banco.Quando([] { return QApplication::activeModalWidget()->objectName() == "FrmLoadSave"; },
                 [] {
                     auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                     QCOMPARE(dialogo->windowTitle(), QStringLiteral("Save Frequency Table As"));
                     dialogo->accept();
                 });
    QTest::mouseClick(Figlio<QPushButton>(finestra, "CMBSaveAsFreqTab"), Qt::LeftButton);
    QVERIFY(banco.posto->scrivania.albero.Esiste("Table\\Lamp.5SF"));
}

void ReportUi::PagineDellAnteprima() {
    Banco banco;
    Misura(banco);
    FinestraReport* finestra = Apri(banco, "MNUReport0");
    QTRY_VERIFY(Righe(finestra) > 60); // the table has two pages
    const auto file = banco.cartella.Percorso() / "R.PDF";
    Scegli(Q(file.string()));
    QTest::mouseClick(Figlio<QPushButton>(finestra, "CMBSaveAsPDF"), Qt::LeftButton);
    const std::string pdf = Contenuto(file);
    size_t pagine = 0;
    for (size_t i = 0; (i = pdf.find("/Type /Page\r", i)) != std::string::npos; ++i)
        ++pagine;
    QTimer::singleShot(0, qApp, [pagine] {
        auto* anteprima = qobject_cast<AnteprimaReport*>(QApplication::activeModalWidget());
        QVERIFY(anteprima);
        auto* parole = Figlio<QLabel>(anteprima, "LBPage");
        QCOMPARE(parole->text(), QStringLiteral("Page 1 of %1").arg(pagine));
        QTest::keyClick(anteprima, Qt::Key_End);
        QCOMPARE(parole->text(), QStringLiteral("Page %1 of %1").arg(pagine));
        QVERIFY(!Figlio<QPushButton>(anteprima, "CMBNextPage")->isEnabled());
        anteprima->reject();
    });
    QTest::mouseClick(Figlio<QPushButton>(finestra, "CMBPreview"), Qt::LeftButton);
}

void ReportUi::AnnullaLasciaRigheRosse() {
    Banco banco;
    // So many rows that the filling serves events.
    MisuraAperta misura{.nome = "Big", .leggibile = true};
    misura.detector[0] = true;
    SweepTrace traccia;
    for (int i = 0; i < 1000000; ++i)
        traccia.push_back({.freqMhz = 1 + i * 1e-4, .livello = {}});
    misura.traccia = std::make_shared<SweepTrace>(std::move(traccia));
    Scrivania& s = banco.posto->scrivania;
    s.setup.LimitOn[0] = 1;
    misura.tabelle.slot[kPrimoLimite].Freq = {0.5e6f, 300e6f};
    auto* finestra = new FrmReport(s, misura, {}, &banco.posto->finestra);
    finestra->setAttribute(Qt::WA_DeleteOnClose);
    auto* esci = Figlio<QPushButton>(finestra, "CMBExit");
    const auto compila = [esci] { return esci->text() == QLatin1String("Cancel"); };
    bool visto = false;
    banco.Quando(compila, [&] {
        visto = finestra->windowTitle() == QLatin1String("Compilation report... please wait") &&
                !Figlio<QLineEdit>(finestra, "TBMargin")->isEnabled();
        esci->click();
    });
    finestra->show();
    QTRY_VERIFY(visto && !compila());
    QVERIFY(Righe(finestra) > 0 && Righe(finestra) < 1000000);
    auto* griglia = Figlio<GrigliaReportQt>(finestra, "GridReport");
    QCOMPARE(griglia->model()->index(0, 1).data(Qt::ForegroundRole).value<QColor>(),
             QColor(255, 0, 0));
    QVERIFY(!Figlio<QPushButton>(finestra, "CMBSaveAsPDF")->isEnabled());
    // The close box during the filling: the window goes when that has ended.
    QPointer<FinestraReport> viva = finestra;
    banco.Quando(compila, [&viva] {
        viva->close();
        QVERIFY(viva && viva->isVisible());
    });
    Figlio<QRadioButton>(finestra, "OPTDetector0")->click();
    QTRY_VERIFY(!viva);
}

void ReportUi::AutoReportDopoLaCorsa() {
    Banco banco;
    const auto file = banco.cartella.Percorso() / "Report" / "Report_Lamp2.PDF";
    Misura(banco);
    QVERIFY(!std::filesystem::exists(file.parent_path()));
    banco.Voce("MNUAutoSaveRep2")->trigger();
    QVERIFY(!banco.Voce("MNUAutoSaveRep0")->isChecked());
    QCOMPARE(banco.posto->scrivania.setup.AutoReportMode, int16_t{2});
    banco.Trova<QLineEdit>("TBMisura")->setText(QStringLiteral("Lamp2"));
    QTest::mouseClick(banco.Trova<QPushButton>("CMBExecuteSweep"), Qt::LeftButton);
    QVERIFY(std::filesystem::exists(file));
    // What cannot be written is told, over the wait that is still up.
    std::filesystem::create_directories(file.parent_path() / "Report_Lamp3.PDF");
    banco.Trova<QLineEdit>("TBMisura")->setText(QStringLiteral("Lamp3"));
    QTest::mouseClick(banco.Trova<QPushButton>("CMBExecuteSweep"), Qt::LeftButton);
    QVERIFY(banco.riquadri.last().endsWith(QLatin1String("Report_Lamp3.PDF Is already open")));
    QVERIFY(!QApplication::overrideCursor());
}

QTEST_MAIN(ReportUi)
#include "report.moc"
