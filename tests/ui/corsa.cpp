// Runs, retries and the way out, with the real event loop and a receiver in memory.
#include <QMenu>

#include "Banco.h"
#include "data/Misure.h"
#include "ui/FrmRemoteLink.h"

using namespace orvane;
using namespace orvane::prova;

class CorsaUi : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void EseguiFinoAllArchivio();
    void StopAMeta();
    void TabellaVuotaNonParte();
    void NomeOccupatoChiede();
    void UscitaAnnullataLasciaCorrere();
    void UscitaDuranteLaCorsa();
    void UscitaDuranteUnaImpostazione();
    void RicevitoreMutoEAbort();
    void SchedaDuranteUnaImpostazione();
    void RemoteLinkAnnulla();
    void RemoteLinkConferma();
    void RemoteLinkPortaCheNonCe();
    void AttesaSilenziosaCostaPoco();

private:
    static bool Finita(Banco& banco) {
        return QTest::qWaitFor([&] { return banco.spento; }, 20000);
    }
};

/// Fills the waiting time with a receiver whose stream falls silent, so that a run stays on.
static void CorsaCheResta(Banco& banco) {
    banco.Scheda(Modalita::Sweep);
    banco.RigaCorta(0.15, 30);
    std::string errore;
    banco.simulato.Aggiungi(*LeggiCapriccio("silent:2000", errore));
}

void CorsaUi::EseguiFinoAllArchivio() {
    Banco banco;
    banco.Scheda(Modalita::Sweep);
    banco.RigaCorta();
    banco.Trova<QLineEdit>("TBMisura")->setText(QStringLiteral("Lamp 40 W"));
    auto* esegui = banco.Trova<QPushButton>("CMBExecuteSweep");
    QString durante;
    bool schedeSpente = false;
    banco.Fra(150, [&] {
        durante = esegui->text();
        schedeSpente = !banco.Trova<QTabBar>("SSTabMode")->isEnabled();
    });
    QTest::mouseClick(esegui, Qt::LeftButton);
    QCOMPARE(durante, QStringLiteral("Stop"));
    QVERIFY(schedeSpente);
    QCOMPARE(esegui->text(), QStringLiteral("Execute"));
    QCOMPARE(LeggiTraccia(banco.posto->scrivania, PercorsoRS("Lamp 40 W", "Lamp 40 W", 0)).size(),
             size_t{101});
    QVERIFY(banco.Trova<QLabel>("LBModello")->text().contains(QStringLiteral("FW")));
    banco.Scheda(Modalita::SweepsArchive);
    auto* lista = banco.Trova<QListWidget>("CBXSweepsArchive");
    QCOMPARE(lista->count(), 1);
    QCOMPARE(lista->currentRow(), 0);
    QVERIFY(!banco.Trova<MainPict>("MainPict")->Deposito().Vuoto());
    QVERIFY(banco.Trova<QLabel>("LBDettagli")->text().contains(QStringLiteral("101 samples")));
    QVERIFY(banco.riquadri.isEmpty());
    QVERIFY(banco.difetti.empty());
}

void CorsaUi::StopAMeta() {
    Banco banco;
    CorsaCheResta(banco);
    auto* esegui = banco.Trova<QPushButton>("CMBExecuteSweep");
    banco.Fra(1500, [&] { QTest::mouseClick(esegui, Qt::LeftButton); });
    QTest::mouseClick(esegui, Qt::LeftButton);
    QVERIFY(!banco.posto->statoCorsa.SweepInCorso);
    QCOMPARE(esegui->text(), QStringLiteral("Execute"));
    QVERIFY(banco.Trova<QLabel>("LBStato")->text().startsWith(QStringLiteral("Stopped")));
    const auto& comandi = banco.simulato.Comandi();
    const auto avvio = std::find_if(comandi.begin(), comandi.end(),
                                    [](const std::string& c) { return c.starts_with("#SSFD"); });
    QVERIFY(std::find(avvio, comandi.end(), "#ASBK*") != comandi.end());
    const auto passi =
        LeggiTraccia(banco.posto->scrivania, PercorsoRS("Untitled", "Untitled", 0)).size();
    QVERIFY(passi > 0 && passi < 5971);
    QVERIFY(banco.difetti.empty());
}

void CorsaUi::TabellaVuotaNonParte() {
    Banco banco;
    banco.Scheda(Modalita::Sweep);
    QTest::mouseClick(banco.Trova<QPushButton>("CMBExecuteSweep"), Qt::LeftButton);
    QVERIFY(!std::filesystem::exists(banco.cartella.Percorso() / "Sweep" / "Untitled"));
    QCOMPARE(banco.Trova<QPushButton>("CMBExecuteSweep")->text(), QStringLiteral("Execute"));
}

void CorsaUi::NomeOccupatoChiede() {
    Banco banco;
    banco.Scheda(Modalita::Sweep);
    banco.RigaCorta();
    auto* esegui = banco.Trova<QPushButton>("CMBExecuteSweep");
    QTest::mouseClick(esegui, Qt::LeftButton);
    banco.risposte = {QMessageBox::Yes};
    QTest::mouseClick(esegui, Qt::LeftButton);
    QCOMPARE(banco.riquadri.size(), 1);
    QCOMPARE(banco.riquadri[0],
             QStringLiteral("Sweep Untitled already exists.\nRename in Untitled_000?"));
    QVERIFY(std::filesystem::exists(banco.cartella.Percorso() / "Sweep" / "Untitled_000"));
}

void CorsaUi::UscitaAnnullataLasciaCorrere() {
    Banco banco;
    CorsaCheResta(banco);
    bool correva = false;
    banco.risposte = {QMessageBox::Cancel};
    banco.Fra(1200, [&] {
        banco.Finestra().close();
        correva = banco.posto->statoCorsa.SweepInCorso && !banco.posto->statoCorsa.StopRichiesto;
        QTest::mouseClick(banco.Trova<QPushButton>("CMBExecuteSweep"), Qt::LeftButton);
    });
    QTest::mouseClick(banco.Trova<QPushButton>("CMBExecuteSweep"), Qt::LeftButton);
    QVERIFY(correva);
    QCOMPARE(banco.riquadri, QStringList{QStringLiteral("Are You Sure You Want To Exit?")});
    QVERIFY(banco.Finestra().isVisible());
    QVERIFY(!banco.spento);
}

void CorsaUi::UscitaDuranteLaCorsa() {
    Banco banco;
    CorsaCheResta(banco);
    banco.risposte = {QMessageBox::Ok};
    banco.Fra(1200, [&] { banco.Finestra().close(); });
    QTest::mouseClick(banco.Trova<QPushButton>("CMBExecuteSweep"), Qt::LeftButton);
    QVERIFY(!banco.posto->statoCorsa.SweepInCorso);
    QVERIFY(Finita(banco));
    QVERIFY(!banco.posto->porta.Aperta());
    QVERIFY(banco.difetti.empty());
}

void CorsaUi::UscitaDuranteUnaImpostazione() {
    Banco banco;
    std::string errore;
    banco.simulato.Aggiungi(*LeggiCapriccio("mute:ASBK", errore));
    banco.risposte = {QMessageBox::Ok};
    banco.Fra(400, [&] { banco.Finestra().close(); });
    banco.Scheda(Modalita::Analyzer);
    QVERIFY(Finita(banco));
    QVERIFY(!banco.posto->porta.Aperta());
    QVERIFY(banco.difetti.empty());
}

void CorsaUi::RicevitoreMutoEAbort() {
    Banco banco;
    std::string errore;
    banco.simulato.Aggiungi(*LeggiCapriccio("mute:", errore));
    auto* striscia = banco.Trova<QWidget>("FRMErrore");
    QString testo;
    bool schedeVive = false;
    auto* guarda = new QTimer(&banco);
    connect(guarda, &QTimer::timeout, &banco, [&] {
        if (!striscia->isVisible())
            return;
        guarda->stop();
        testo = banco.Trova<QLabel>("LBErrore")->text();
        schedeVive = banco.Trova<QTabBar>("SSTabMode")->isEnabled();
        QTest::mouseClick(banco.Trova<QPushButton>("CMBAbort"), Qt::LeftButton);
    });
    guarda->start(50);
    banco.Scheda(Modalita::Analyzer);
    QTRY_COMPARE(banco.posto->statoConsole.modalita, Modalita::SweepsArchive);
    QVERIFY(testo.startsWith(QStringLiteral("Error ")));
    QVERIFY(schedeVive);
    QTRY_VERIFY(!striscia->isVisible());
    QVERIFY(!banco.posto->porta.Aperta());
    QCOMPARE(banco.Trova<QTabBar>("SSTabMode")->currentIndex(), 0);
    QVERIFY(banco.difetti.empty());
}

void CorsaUi::SchedaDuranteUnaImpostazione() {
    Banco banco;
    std::string errore;
    banco.simulato.Aggiungi(*LeggiCapriccio("mute:", errore));
    banco.Fra(300, [&] { banco.Scheda(Modalita::Sweep); });
    banco.Scheda(Modalita::Manual);
    QTRY_COMPARE(banco.posto->statoConsole.modalita, Modalita::Sweep);
    QCOMPARE(banco.Trova<QTabBar>("SSTabMode")->currentIndex(), 1);
    QVERIFY(banco.Trova<QWidget>("GridScanTab")->isVisible());
    QVERIFY(banco.difetti.empty());
}

void CorsaUi::RemoteLinkAnnulla() {
    Banco banco;
    LinkPort& link = banco.posto->porta.link;
    FrmRemoteLink finestra(banco.posto->scrivania, link, banco.catalogo, {}, &banco.Finestra());
    finestra.show();
    finestra.findChild<QRadioButton*>(QStringLiteral("OptLink0"))->click();
    auto* porte = finestra.findChild<QComboBox*>(QStringLiteral("ComboPortDevice"));
    Q_EMIT porte->textActivated(porte->itemText(1));
    QCOMPARE(link.TipoLink, int16_t{0});
    QCOMPARE(link.NumeroCom, int16_t{7});
    QCOMPARE(porte->currentIndex(), 1);
    finestra.close();
    QCOMPARE(link.TipoLink, int16_t{1});
    QCOMPARE(link.NumeroCom, int16_t{1});
    QCOMPARE(banco.posto->scrivania.env.LinkPort, int16_t{1});
    QVERIFY(!std::filesystem::exists(banco.cartella.Percorso() / "Panels" / "TMP.TMP"));
}

void CorsaUi::RemoteLinkConferma() {
    Banco banco;
    {
        FrmRemoteLink finestra(banco.posto->scrivania, banco.posto->porta.link, banco.catalogo, {},
                               &banco.Finestra());
        finestra.findChild<QRadioButton*>(QStringLiteral("OptLink0"))->click();
        auto* porte = finestra.findChild<QComboBox*>(QStringLiteral("ComboPortDevice"));
        Q_EMIT porte->textActivated(porte->itemText(0));
        finestra.findChild<QPushButton*>(QStringLiteral("CMBOK"))->click();
    }
    banco.posto.reset();
    banco.Apri();
    QCOMPARE(banco.posto->porta.link.TipoLink, int16_t{0});
    QCOMPARE(banco.posto->porta.link.NumeroCom, int16_t{3});
    QVERIFY(!std::filesystem::exists(banco.cartella.Percorso() / "Panels" / "TMP.TMP"));
}

void CorsaUi::RemoteLinkPortaCheNonCe() {
    Banco banco;
    banco.posto->porta.link = {.TipoLink = 0, .NumeroCom = 12};
    FrmRemoteLink finestra(banco.posto->scrivania, banco.posto->porta.link, banco.catalogo, {},
                           &banco.Finestra());
    auto* porte = finestra.findChild<QComboBox*>(QStringLiteral("ComboPortDevice"));
    QCOMPARE(porte->currentIndex(), -1);
    QCOMPARE(porte->placeholderText(), QStringLiteral("12"));
    finestra.findChild<QPushButton*>(QStringLiteral("CMBDefaultRemoteLinck"))->click();
    QCOMPARE(banco.posto->porta.link.TipoLink, int16_t{1});
    QCOMPARE(banco.posto->porta.link.NumeroCom, int16_t{1});
}

void CorsaUi::AttesaSilenziosaCostaPoco() {
    SorvegliaLink sorveglia;
    AmbienteQt ambiente(sorveglia, {});
    int giri = 0;
    const Scadenza fine(ambiente, 1.0);
    while (!fine.Passata()) {
        ambiente.ElaboraEventi(fine.Rimane(), Veglia::EventiELink);
        ++giri;
    }
    // Asleep but for what other timers of the application bring.
    QVERIFY2(giri < 60, qPrintable(QString::number(giri)));
}

QTEST_MAIN(CorsaUi)
#include "corsa.moc"
