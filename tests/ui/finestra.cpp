// The main window as it stands: names, tabs, menus, marks, settings, archive.
#include <fstream>

#include <QMenu>
#include <QStandardPaths>

#include "Banco.h"

using namespace orvane;
using namespace orvane::prova;

class Finestra : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void NomiDocumentati_data();
    void NomiDocumentati();
    void IniziaSullArchivio();
    void LeSchedeCambianoModo();
    void VociDelModoSpente();
    void SegnoSiSalvaSubito();
    void UnitaDiCampoRifiutata();
    void UnitaTieneIlPostoDellaTraccia();
    void DinamicaSiSalvaSubito();
    void ArchivioMostraLaMisuraGuasta();
    void ArchivioCercaPerNome();
    void TemiHannoTuttiIContrasti();
};

void Finestra::NomiDocumentati_data() {
    QTest::addColumn<QString>("nome");
    for (const char* nome : {"SSTabMode",
                             "SSTabComuni",
                             "MainPict",
                             "GridScanTab",
                             "CMBExecuteSweep",
                             "CMBPauseSweep",
                             "CBXScanTab",
                             "TBMisura",
                             "CMBAddBanda",
                             "CBXSweepsArchive",
                             "CBXDetectorMeasSweep",
                             "FRMErrore",
                             "LBErrore",
                             "CMBAbort",
                             "LBFreqTrc",
                             "CBXBWIF",
                             "CBXAttenuator",
                             "CBXMinAtt",
                             "OptPresel",
                             "CBXDinamica",
                             "CBXUnitaDiMisura",
                             "OptRFOut",
                             "OptTracking",
                             "TBLevel",
                             "CBXLisn",
                             "MNUTools",
                             "MNUMakeLimits",
                             "MNUMakeFactors",
                             "MNUMakeTabFreq",
                             "MNUMakeTabSubRange",
                             "mnuHeaderTitle",
                             "mnuTestComment",
                             "MNUReport",
                             "MNUAutoSaveReport",
                             "MNURetrieve",
                             "MNUCorrel",
                             "MNUSaveImage",
                             "MNUSsaveClipboard",
                             "MNUSavePanel",
                             "MNUOpenPanel",
                             "MNUSaveAs",
                             "MNUWaterfall",
                             "MNUSymbolOnPeaks",
                             "MNUOverwriteWarning",
                             "MNUorderForDate",
                             "MNUCheckSweepArchiveSize",
                             "MNUGX2207FFTSwept",
                             "MNUZoomModeA",
                             "MNUZoomModeB",
                             "MNURemoteLink",
                             "CMBExit"})
        QTest::newRow(nome) << QString::fromLatin1(nome);
}

void Finestra::NomiDocumentati() {
    Banco banco;
    QFETCH(QString, nome);
    QVERIFY(banco.Finestra().findChild<QObject*>(nome));
    if (auto* controllo = banco.Finestra().findChild<QWidget*>(nome);
        controllo && controllo->focusPolicy() != Qt::NoFocus && !qobject_cast<QMenu*>(controllo))
        QVERIFY2(!controllo->accessibleName().isEmpty(), qPrintable(nome));
}

void Finestra::IniziaSullArchivio() {
    Banco banco;
    QCOMPARE(banco.Trova<QTabBar>("SSTabMode")->currentIndex(), 0);
    QVERIFY(banco.Trova<QWidget>("FRMArchivio")->isVisible());
    QVERIFY(!banco.posto->porta.Aperta());
    QVERIFY(banco.simulato.Comandi().empty());
    QCOMPARE(banco.Finestra().windowTitle(),
             QStringLiteral("Orvane Console          Rel. 1.0.00 (January 2019)"));
}

void Finestra::LeSchedeCambianoModo() {
    Banco banco;
    banco.Finestra().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&banco.Finestra()));
    QTest::keyClick(&banco.Finestra(), Qt::Key_2, Qt::ControlModifier);
    QCOMPARE(banco.posto->statoConsole.modalita, Modalita::Sweep);
    QVERIFY(banco.Trova<QWidget>("GridScanTab")->isVisible());
    banco.Scheda(Modalita::Analyzer);
    QCOMPARE(banco.posto->statoConsole.modalita, Modalita::Analyzer);
    auto* pagina = banco.Trova<QWidget>("FRMRicevitore");
    QVERIFY(pagina->isVisible());
    QStringList righe;
    for (const QLabel* testo : pagina->findChildren<QLabel*>())
        righe << testo->text();
    QVERIFY(righe.contains(QString::fromStdString(banco.posto->ricevitore.modello.FwTesto)));
    QVERIFY(banco.posto->porta.Aperta());
    banco.Scheda(Modalita::SweepsArchive);
    QVERIFY(!banco.posto->porta.Aperta());
    QVERIFY(banco.Trova<QWidget>("MainPict")->isVisible());
    QVERIFY(banco.difetti.empty());
}

void Finestra::VociDelModoSpente() {
    Banco banco;
    for (const char* nome : {"MNUMakeTabSubRange", "MNUSaveImage", "MNUReport0", "MNUWaterfall"})
        QVERIFY2(!banco.Voce(nome)->isEnabled(), nome);
    for (const char* nome : {"MNUOverwriteWarning", "MNURemoteLink", "CMBExit"})
        QVERIFY2(banco.Voce(nome)->isEnabled(), nome);
}

void Finestra::SegnoSiSalvaSubito() {
    Banco banco;
    banco.Scheda(Modalita::Sweep);
    QVERIFY(banco.Voce("MNUOverwriteWarning")->isChecked());
    banco.Voce("MNUOverwriteWarning")->trigger();
    QCOMPARE(banco.posto->scrivania.setup.OverwriteWarning, int16_t{0});
    banco.posto.reset();
    banco.Apri();
    QVERIFY(!banco.Voce("MNUOverwriteWarning")->isChecked());
}

void Finestra::UnitaDiCampoRifiutata() {
    Banco banco;
    banco.Scheda(Modalita::Sweep);
    auto* unita = banco.Trova<QComboBox>("CBXUnitaDiMisura");
    unita->setCurrentIndex(4);
    Q_EMIT unita->activated(4);
    QCOMPARE(unita->currentIndex(), 1);
    QCOMPARE(banco.posto->scrivania.setup.UnitId, int16_t{1});
    QCOMPARE(banco.riquadri.size(), 1);
    QVERIFY(banco.riquadri[0].contains(QStringLiteral("Should have an active Conversion Factor")));
    QCOMPARE(unita->itemText(0), QStringLiteral("dBm   "));
}

void Finestra::UnitaTieneIlPostoDellaTraccia() {
    Banco banco;
    SetupRecord& setup = banco.posto->scrivania.setup;
    const auto sopra = [&](int16_t livello) {
        const ScalaGrafico s = SetScaleGraph(setup, 0.15, 30, true, 1000, 0);
        return s.alto - livello - s.UnitOffset * 100;
    };
    const double prima = sopra(5000);
    auto* unita = banco.Trova<QComboBox>("CBXUnitaDiMisura");
    for (const int id : {0, 2, 3, 1}) {
        Q_EMIT unita->activated(id);
        QVERIFY(std::abs(sopra(5000) - prima) < 100);
    }
    QCOMPARE(setup.RefLevel, int16_t{0});
}

void Finestra::DinamicaSiSalvaSubito() {
    Banco banco;
    banco.Scheda(Modalita::Sweep);
    auto* dinamica = banco.Trova<QComboBox>("CBXDinamica");
    dinamica->setCurrentIndex(2);
    Q_EMIT dinamica->activated(2);
    banco.posto.reset();
    banco.Apri();
    QCOMPARE(banco.Trova<QComboBox>("CBXDinamica")->currentText(), QStringLiteral("120 dB"));
}

void Finestra::ArchivioMostraLaMisuraGuasta() {
    Banco banco;
    const auto cartella = banco.cartella.Percorso() / "Sweep" / "Torn";
    std::filesystem::create_directories(cartella);
    std::ofstream(cartella / "Torn.KSH") << "torn";
    banco.Scheda(Modalita::Sweep);
    banco.Scheda(Modalita::SweepsArchive);
    auto* lista = banco.Trova<QListView>("CBXSweepsArchive");
    const QModelIndex riga = lista->model()->index(0, 0);
    QCOMPARE(lista->model()->rowCount(), 1);
    QVERIFY(riga.data(Qt::AccessibleTextRole).toString().contains(QStringLiteral("damaged")));
    lista->setCurrentIndex(riga);
    QTRY_VERIFY(banco.Trova<QLabel>("LBDettagli")->text().contains(QStringLiteral("cannot")));
    QVERIFY(banco.riquadri.join(QString()).contains(QStringLiteral("Failed loading")));
}

void Finestra::ArchivioCercaPerNome() {
    Banco banco;
    for (const char* nome : {"PSU rev B", "Lamp"})
        std::filesystem::create_directories(banco.cartella.Percorso() / "Sweep" / nome);
    banco.Scheda(Modalita::Sweep);
    banco.Scheda(Modalita::SweepsArchive);
    auto* lista = banco.Trova<QListView>("CBXSweepsArchive");
    QTest::keyClicks(banco.Trova<QLineEdit>("TBCerca"), QStringLiteral("psu"));
    QStringList visibili;
    for (int i = 0; i < lista->model()->rowCount(); ++i)
        visibili << lista->model()->index(i, 0).data().toString();
    QCOMPARE(visibili, QStringList{QStringLiteral("PSU rev B")});
}

void Finestra::TemiHannoTuttiIContrasti() {
    const auto chiarezza = [](const QColor& c) {
        return 0.2126 * c.redF() + 0.7152 * c.greenF() + 0.0722 * c.blueF();
    };
    for (const bool scura : {false, true})
        for (const Ruolo ruolo : {Ruolo::Testo, Ruolo::Tenue, Ruolo::Errore})
            QVERIFY(std::abs(chiarezza(Tinta(scura, ruolo)) -
                             chiarezza(Tinta(scura, Ruolo::Finestra))) > 0.3);
}

QTEST_MAIN(Finestra)
#include "finestra.moc"
