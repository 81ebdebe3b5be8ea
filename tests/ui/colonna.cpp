// The settings column: what each control writes, and what it shows of the receiver met last.
#include <QMenu>
#include <QSignalSpy>

#include "Banco.h"
#include "data/TabelleLimFac.h"

using namespace orvane;
using namespace orvane::prova;

class Colonna : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void OgniControlloScriveESalva();
    void SegueIlModello_data();
    void SegueIlModello();
    void PrimaDiOgniRicevitoreNullaCambia();
    void GeneratoreSoloDoveServe();
    void NumeriDelGeneratore();
    void TabelleCheVengonoEVanno();
    void LaReteVaNelRecord();
    void BloccataInCorsa();
};

namespace {

void Scegli(Banco& banco, const char* nome, const QString& testo) {
    auto* lista = banco.Trova<QComboBox>(nome);
    const int riga = lista->findText(testo);
    QVERIFY2(riga >= 0, qPrintable(testo));
    lista->setCurrentIndex(riga);
    Q_EMIT lista->activated(riga);
    Q_EMIT lista->textActivated(testo);
}

/// The panel as the disk has it.
SetupRecord SuDisco(Banco& banco) {
    SetupRecord setup;
    const auto dati =
        banco.posto->scrivania.albero.Leggi(kPannelloEAM).value_or(std::vector<uint8_t>());
    LeggiRecord(dati, setup);
    return setup;
}

void SalvaTabella(Banco& banco, const std::string& percorso, int slot) {
    QVERIFY(SalvaLimFac(banco.posto->scrivania, {}, percorso, slot));
}

} // namespace

void Colonna::OgniControlloScriveESalva() {
    Banco banco;
    banco.Scheda(Modalita::Sweep);
    const struct {
        const char* casella;
        int16_t SetupRecord::*campo;
    } caselle[] = {
        {"OptPresel", &SetupRecord::PreSel},     {"OptPreamp", &SetupRecord::PreAmp},
        {"OptPulseLim", &SetupRecord::PulseLim}, {"OptRFOut", &SetupRecord::RFOut},
        {"OptTracking", &SetupRecord::TGOn},     {"ChkSommaFact", &SetupRecord::SommaFact}};
    for (const auto& caso : caselle) {
        banco.Trova<QCheckBox>(caso.casella)->click();
        QCOMPARE(SuDisco(banco).*caso.campo, int16_t{1});
    }
    Scegli(banco, "CBXRefLevel", QStringLiteral("90 dBµV"));
    Scegli(banco, "CBXBWIF", QStringLiteral("9 kHz CISPR"));
    Scegli(banco, "CBXAttenuator", QStringLiteral("AUTO"));
    Scegli(banco, "CBXMinAtt", QStringLiteral("10 dB"));
    Scegli(banco, "CBXDinamica", QStringLiteral("140 dB"));
    const SetupRecord setup = SuDisco(banco);
    QCOMPARE(setup.BWIFText, std::string("9 kHz CISPR"));
    QCOMPARE(setup.Attenuator, int16_t{-1});
    QCOMPARE(setup.RefLevel, int16_t{10});
    QCOMPARE(setup.MinAtt, int16_t{1});
    QCOMPARE(setup.DinamicaId, int16_t{3});
}

void Colonna::SegueIlModello_data() {
    QTest::addColumn<QString>("modello");
    QTest::addColumn<QString>("ultimoFiltro");
    QTest::addColumn<QString>("ultimaAtt");
    QTest::addColumn<bool>("preselettore");
    QTest::addColumn<bool>("frontEnd");
    QTest::newRow("5520") << "5520"
                          << "100 Hz Mil"
                          << "35 dB" << true << false;
    QTest::newRow("3360") << "3360"
                          << "9 kHz CISPR"
                          << "35 dB" << true << false;
    QTest::newRow("5590") << "5520+5590"
                          << "9 kHz CISPR"
                          << "50 dB" << false << false;
    QTest::newRow("GX2207") << "GX2207"
                            << "10 Hz Mil"
                            << "10 dB" << false << true;
}

void Colonna::SegueIlModello() {
    QFETCH(QString, modello);
    QFETCH(QString, ultimoFiltro);
    QFETCH(QString, ultimaAtt);
    OpzioniSimulatore opzioni;
    opzioni.modello = modello.toStdString();
    Banco banco(opzioni);
    banco.Scheda(Modalita::Manual);
    banco.Scheda(Modalita::Sweep);
    auto* filtri = banco.Trova<QComboBox>("CBXBWIF");
    QCOMPARE(filtri->itemText(0), QStringLiteral("AUTO CISPR"));
    QCOMPARE(filtri->itemText(filtri->count() - 1), ultimoFiltro);
    auto* attenuatori = banco.Trova<QComboBox>("CBXAttenuator");
    QCOMPARE(attenuatori->itemText(attenuatori->count() - 1), ultimaAtt);
    auto* preselettore = banco.Trova<QCheckBox>("OptPresel");
    QTEST(preselettore->isEnabled(), "preselettore");
    QVERIFY(!preselettore->toolTip().isEmpty());
    QTEST(banco.Trova<QCheckBox>("CHKAntennaGX2207")->isVisible(), "frontEnd");
    QVERIFY(banco.difetti.empty());
}

void Colonna::PrimaDiOgniRicevitoreNullaCambia() {
    Banco banco;
    banco.Scheda(Modalita::Sweep); // the archive would give the user's record back
    banco.posto->scrivania.setup.Attenuator = 50;
    banco.posto->scrivania.setup.BWIFText = "1 MHz";
    banco.posto->finestra.Carica();
    QCOMPARE(banco.Trova<QComboBox>("CBXAttenuator")->currentText(), QStringLiteral("50 dB"));
    QCOMPARE(banco.posto->scrivania.setup.BWIFText, std::string("1 MHz"));
    banco.Scheda(Modalita::Analyzer); // a plain 5520
    banco.Scheda(Modalita::Sweep);
    QCOMPARE(banco.posto->scrivania.setup.Attenuator, int16_t{35});
}

void Colonna::GeneratoreSoloDoveServe() {
    Banco banco;
    auto* uscita = banco.Trova<QCheckBox>("OptRFOut");
    QVERIFY(!uscita->isEnabled());
    QVERIFY(uscita->toolTip().startsWith(QStringLiteral("Only in the Sweep")));
    banco.Scheda(Modalita::Sweep);
    QVERIFY(uscita->isEnabled());
    QCOMPARE(uscita->toolTip(), QStringLiteral("Output of the generator"));
}

void Colonna::NumeriDelGeneratore() {
    Banco banco;
    banco.Scheda(Modalita::Sweep);
    const struct {
        const char* campo;
        const char* testo;
        const char* mostrato;
    } casi[] = {{"TBLevel", "80,5", "80.5 dBµV"},
                {"TBLevel", "91 dBuV", "90 dBµV"},
                {"TBLevel", "loud", "90 dBµV"},
                {"TBTGFreq", "10.7 MHz", "10.7 MHz"},
                {"TBTGFreq", "500", "30.1 MHz"}};
    for (const auto& caso : casi) {
        auto* campo = banco.Trova<QLineEdit>(caso.campo);
        campo->selectAll();
        QTest::keyClicks(campo, QString::fromUtf8(caso.testo));
        QTest::keyClick(campo, Qt::Key_Return);
        QCOMPARE(campo->text(), QString::fromUtf8(caso.mostrato));
    }
    QCOMPARE(SuDisco(banco).TGFreq, 30.1);
}

void Colonna::TabelleCheVengonoEVanno() {
    Banco banco;
    banco.Scheda(Modalita::Sweep);
    auto* limiti = banco.Trova<QComboBox>("CBXLimits1");
    QCOMPARE(limiti->count(), 1);
    SalvaTabella(banco, "EN55011.5SL", 1);
    QTRY_COMPARE(limiti->count(), 2);
    Scegli(banco, "CBXLimits1", QStringLiteral("EN55011"));
    QCOMPARE(SuDisco(banco).LimitName[0], std::string("EN55011"));
    QCOMPARE(SuDisco(banco).LimitOn[0], int16_t{1});
    QVERIFY(banco.Trova<QCheckBox>("ChkLimit1")->isChecked());
    QVERIFY(!banco.Trova<QCheckBox>("ChkLimit2")->isEnabled());
    banco.posto->scrivania.albero.Cancella("Limits\\EN55011.5SL");
    QTRY_VERIFY(limiti->toolTip().contains(QStringLiteral("not on disk")));
    QCOMPARE(limiti->currentText(), QStringLiteral("EN55011"));

    SalvaTabella(banco, "LISN.5SC", 3);
    QTRY_COMPARE(banco.Trova<QComboBox>("ComboFact2")->count(), 2);
    QVERIFY(!banco.Trova<QComboBox>("ComboFact3")->isVisible());
    Scegli(banco, "ComboFact2", QStringLiteral("LISN"));
    QVERIFY(banco.Trova<QComboBox>("ComboFact3")->isVisible());
    Scegli(banco, "ComboFact2", QStringLiteral("NONE"));
    QCOMPARE(SuDisco(banco).FactorOn[1], int16_t{0});
}

void Colonna::LaReteVaNelRecord() {
    Banco banco;
    banco.Scheda(Modalita::Sweep);
    auto* colonna = banco.Finestra().findChild<ColonnaComuni*>();
    QSignalSpy spia(colonna, &ColonnaComuni::AncillaryCambiato);
    Scegli(banco, "CBXLisn", QStringLiteral("Mast-Table"));
    QCOMPARE(SuDisco(banco).AncillaryKind, int16_t{5});
    QCOMPARE(spia.count(), 1);
    // The lines follow; what they have chosen stays.
    ScanTable& righe = banco.posto->scan.Righe;
    righe[0].Start = righe[1].Start = 1;
    righe[1].LineSwitch = {0, 0, 1, 0};
    const std::array<int16_t, 4> nessuna{};
    const std::array<int16_t, 4> due = {0, 1, 1, 0};
    const std::array<int16_t, 4> una = {0, 0, 1, 0};
    Scegli(banco, "CBXLisn", QStringLiteral("L2 KRV"));
    QVERIFY(righe[0].LineSwitch == due && righe[1].LineSwitch == una);
    Scegli(banco, "CBXLisn", QStringLiteral("Nothing"));
    QVERIFY(righe[0].LineSwitch == nessuna && righe[1].LineSwitch == nessuna);
    banco.posto->scrivania.setup.AncillaryKind = 99;
    colonna->Carica();
    QCOMPARE(banco.Trova<QComboBox>("CBXLisn")->currentIndex(), 6);
}

void Colonna::BloccataInCorsa() {
    Banco banco;
    banco.Scheda(Modalita::Sweep);
    auto* colonna = banco.Finestra().findChild<ColonnaComuni*>();
    colonna->Abilita(false, false);
    for (const char* nome : {"CBXBWIF", "OptPreamp", "CBXLisn", "TBLevel"}) {
        auto* controllo = banco.Trova<QWidget>(nome);
        QVERIFY2(!controllo->isEnabled(), nome);
        QVERIFY(controllo->toolTip().contains(QStringLiteral("while a sweep runs")));
    }
    QVERIFY(banco.Trova<QComboBox>("CBXDinamica")->isEnabled());
    colonna->Abilita(true, true);
    QVERIFY(banco.Trova<QComboBox>("CBXBWIF")->isEnabled());
}

QTEST_MAIN(Colonna)
#include "colonna.moc"
