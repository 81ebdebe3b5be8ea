// Runs, retries and the way out, with the real event loop and a receiver in memory.
#include <QCheckBox>
#include <QMenu>
#include <QProgressBar>

#include "Banco.h"
#include "data/Incompiute.h"
#include "data/Misure.h"
#include "ui/FasiCorsa.h"
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
    void PausaERipresa();
    void FiltroEAttenuatoreInPausa();
    void StopInPausa();
    void UscitaInPausa();
    void ConPiuPassate();
    void TimerFermatoNonLasciaNulla();
    void TriggerAspettaLaPorta();
    void TimerETriggerSiEscludono();
    void ControlliDiOgniFase();
    void MisuraIncompiutaSiAccetta();
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
    auto* lista = banco.Trova<QListView>("CBXSweepsArchive");
    QCOMPARE(lista->model()->rowCount(), 1);
    QCOMPARE(lista->currentIndex().row(), 0);
    QVERIFY(!banco.Trova<MainPict>("MainPict")->Quadro().misura.traccia->empty());
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

static bool Mandato(const Banco& banco, const char* comando) {
    return std::ranges::find(banco.simulato.Comandi(), comando) != banco.simulato.Comandi().end();
}

/// A sweep slow enough to be paused, and calls `cosa` once the pause has taken.
static void PausaPoi(Banco& banco, std::function<void()> cosa) {
    banco.Scheda(Modalita::Sweep);
    banco.RigaCorta();
    banco.posto->scan.Righe[0].HoldTime = 20;
    banco.Quando([&banco] { return banco.posto->statoCorsa.fase == FaseCorsa::Misura; },
                 [&banco] { banco.Trova<QPushButton>("CMBPauseSweep")->click(); });
    banco.Quando([&banco] { return banco.posto->statoCorsa.fase == FaseCorsa::Pausa; },
                 std::move(cosa));
    QTest::mouseClick(banco.Trova<QPushButton>("CMBExecuteSweep"), Qt::LeftButton);
}

void CorsaUi::PausaERipresa() {
    Banco banco;
    auto* pausa = banco.Trova<QPushButton>("CMBPauseSweep");
    QString durante;
    PausaPoi(banco, [&] {
        durante = pausa->text();
        QVERIFY(pausa->isVisible() && pausa->isEnabled());
        pausa->click();
    });
    QCOMPARE(durante, QStringLiteral("Resume"));
    QVERIFY(!pausa->isVisible());
    QVERIFY(Mandato(banco, "#ASPA*") && Mandato(banco, "#ASRE*"));
    QCOMPARE(LeggiTraccia(banco.posto->scrivania, PercorsoRS("Untitled", "Untitled", 0)).size(),
             size_t{101});
    QVERIFY(banco.difetti.empty());
}

void CorsaUi::FiltroEAttenuatoreInPausa() {
    Banco banco;
    auto* att = banco.Trova<QComboBox>("CBXAttenuator");
    auto* minAtt = banco.Trova<QComboBox>("CBXMinAtt");
    bool vivi = false;
    PausaPoi(banco, [&] {
        vivi = att->isEnabled() && banco.Trova<QComboBox>("CBXBWIF")->isEnabled() &&
               !minAtt->isEnabled();
        att->setCurrentIndex(att->findText(QStringLiteral("20 dB")));
        Q_EMIT att->activated(att->currentIndex());
        banco.Quando([&] { return Mandato(banco, "#SAAT20*"); },
                     [&] { banco.Trova<QPushButton>("CMBPauseSweep")->click(); });
    });
    QVERIFY(vivi && minAtt->isEnabled());
    QCOMPARE(banco.posto->scrivania.setup.Attenuator, int16_t{20});
    QCOMPARE(LeggiTraccia(banco.posto->scrivania, PercorsoRS("Untitled", "Untitled", 0)).size(),
             size_t{101});
    QVERIFY(banco.difetti.empty());
}

void CorsaUi::StopInPausa() {
    Banco banco;
    PausaPoi(banco, [&] { banco.Trova<QPushButton>("CMBExecuteSweep")->click(); });
    QVERIFY(Mandato(banco, "#ASPA*") && Mandato(banco, "#ASBK*") && !Mandato(banco, "#ASRE*"));
    QVERIFY(banco.Trova<QLabel>("LBStato")->text().startsWith(QStringLiteral("Stopped")));
    QVERIFY(banco.difetti.empty());
}

void CorsaUi::UscitaInPausa() {
    Banco banco;
    banco.risposte = {QMessageBox::Ok};
    PausaPoi(banco, [&] { banco.Finestra().close(); });
    QVERIFY(Finita(banco));
    QVERIFY(!banco.posto->statoCorsa.SweepInCorso && !banco.posto->porta.Aperta());
    QVERIFY(MisureIncompiute(banco.posto->scrivania.albero).empty());
    QVERIFY(banco.difetti.empty());
}

void CorsaUi::ConPiuPassate() {
    Banco banco;
    banco.Scheda(Modalita::Sweep);
    banco.posto->scrivania.setup.AncillaryKind = 1;
    banco.RigaCorta();
    banco.posto->scan.Righe[0].LineSwitch = {0, 1, 1, 0};
    QTest::mouseClick(banco.Trova<QPushButton>("CMBExecuteSweep"), Qt::LeftButton);
    // The last pass stands in front; the one before is still there.
    const TraccePassate& tracce = banco.Trova<MainPict>("MainPict")->Tracce();
    QCOMPARE(tracce.Visibili().size(), size_t{2});
    QCOMPARE(tracce.DaDisegnare().back()->nome, QStringLiteral("L2"));
    const QColor rosso(255, 0, 0);
    QCOMPARE(tracce.Sfumata(*tracce.Visibili()[1], rosso, Qt::black), rosso);
    QVERIFY(tracce.Sfumata(*tracce.Visibili()[0], rosso, Qt::black).red() < 200);
    QVERIFY(banco.Trova<QLabel>("LBPassata")->text().contains(QStringLiteral("pass 2 of 2")));
}

void CorsaUi::TimerFermatoNonLasciaNulla() {
    Banco banco;
    banco.Scheda(Modalita::Sweep);
    banco.RigaCorta();
    banco.Trova<QCheckBox>("ChkTimerSweep")->click();
    banco.Trova<QLineEdit>("TBTimerSweep")->setText(QStringLiteral("40"));
    auto* attesa = banco.Trova<QWidget>("FrmPBTimerSweep");
    QString testo;
    int massimo = 0;
    banco.Quando([&] { return attesa->isVisible(); },
                 [&] {
                     testo = banco.Trova<QLabel>("LBTimerSweep")->text();
                     massimo = banco.Trova<QProgressBar>("PBTimerSweep")->maximum();
                     banco.Trova<QPushButton>("CMBStopTimerSweep")->click();
                 });
    QTest::mouseClick(banco.Trova<QPushButton>("CMBExecuteSweep"), Qt::LeftButton);
    QCOMPARE(testo, QStringLiteral("40 s to start Sweep"));
    QCOMPARE(massimo, 40);
    QVERIFY(!attesa->isVisible());
    QVERIFY(banco.Trova<QLabel>("LBStato")->text().startsWith(QStringLiteral("Stopped before")));
    QVERIFY(!std::filesystem::exists(banco.cartella.Percorso() / "Sweep" / "Untitled"));
    QCOMPARE(banco.Trova<QPushButton>("CMBExecuteSweep")->text(), QStringLiteral("Execute"));
}

void CorsaUi::TriggerAspettaLaPorta() {
    Banco banco;
    banco.Scheda(Modalita::Sweep);
    banco.RigaCorta();
    banco.Trova<QCheckBox>("ChkTriggerSweep")->click();
    // The port of the simulated receiver reads 0 at rest.
    banco.Trova<QComboBox>("CBXTriggerSweep")->setCurrentIndex(1);
    auto* attesa = banco.Trova<QWidget>("FrmPBTriggerSweep");
    QString testo;
    banco.Quando([&] { return attesa->isVisible(); },
                 [&] {
                     testo = banco.Trova<QLabel>("LBTriggerSweep")->text();
                     banco.Trova<QPushButton>("CMBStopTriggerSweep")->click();
                 });
    auto* esegui = banco.Trova<QPushButton>("CMBExecuteSweep");
    QTest::mouseClick(esegui, Qt::LeftButton);
    QCOMPARE(testo, QStringLiteral("User port reads 0; the sweep starts when it is not 0"));
    QVERIFY(!attesa->isVisible());
    banco.Trova<QComboBox>("CBXTriggerSweep")->setCurrentIndex(0);
    QTest::mouseClick(esegui, Qt::LeftButton);
    QVERIFY(banco.Trova<QLabel>("LBStato")->text().startsWith(QStringLiteral("Done")));
}

void CorsaUi::TimerETriggerSiEscludono() {
    Banco banco;
    auto* timer = banco.Trova<QCheckBox>("ChkTimerSweep");
    auto* trigger = banco.Trova<QCheckBox>("ChkTriggerSweep");
    timer->setChecked(true);
    QVERIFY(banco.Trova<QLineEdit>("TBTimerSweep")->isEnabledTo(banco.Trova<QWidget>("FRMAvvio")));
    trigger->setChecked(true);
    QVERIFY(!timer->isChecked());
    timer->setChecked(true);
    QVERIFY(!trigger->isChecked());
    timer->setChecked(false);
    QVERIFY(!trigger->isChecked());
}

void CorsaUi::ControlliDiOgniFase() {
    for (int f = 0; f <= static_cast<int>(FaseCorsa::Guasto); ++f) {
        const auto fase = static_cast<FaseCorsa>(f);
        const ControlliFase c = ControlliDiFase(fase, true);
        QCOMPARE(c.fase, fase);
        QCOMPARE(c.fermi, fase == FaseCorsa::Ferma);
        QCOMPARE(c.pausaViva,
                 fase == FaseCorsa::Riga || fase == FaseCorsa::Misura || fase == FaseCorsa::Pausa);
        QCOMPARE(c.filtroEAtt, c.fermi || fase == FaseCorsa::Pausa);
        QCOMPARE(c.eseguiVivo, fase != FaseCorsa::Arresto && fase != FaseCorsa::Guasto);
        QVERIFY(!ControlliDiFase(fase, false).eseguiVivo &&
                !ControlliDiFase(fase, false).pausaViva);
    }
}

void CorsaUi::MisuraIncompiutaSiAccetta() {
    Banco banco;
    banco.Scheda(Modalita::Sweep);
    banco.RigaCorta();
    QTest::mouseClick(banco.Trova<QPushButton>("CMBExecuteSweep"), Qt::LeftButton);
    auto* avviso = banco.Trova<QWidget>("FRMIncompiute");
    banco.Scheda(Modalita::SweepsArchive);
    QVERIFY(!avviso->isVisible());
    QVERIFY(SegnaCorsa(banco.posto->scrivania.albero, "Untitled"));
    banco.posto.reset();
    banco.Apri();
    avviso = banco.Trova<QWidget>("FRMIncompiute");
    QVERIFY(avviso->isVisible());
    QVERIFY(banco.Trova<QLabel>("LBIncompiute")->text().contains(QStringLiteral("Untitled")));
    auto* lista = banco.Trova<QListView>("CBXSweepsArchive");
    const auto aiuto = [lista] {
        return lista->model()->index(0, 0).data(Qt::ToolTipRole).toString();
    };
    QVERIFY(aiuto().startsWith(QStringLiteral("Incomplete")));
    banco.Trova<QPushButton>("CMBShowIncomplete")->click();
    QTRY_VERIFY(banco.Trova<QLabel>("LBDettagli")->text().contains(QStringLiteral("101 samples")));
    auto* accetta = banco.Trova<QPushButton>("CMBAcceptMeasure");
    QVERIFY(accetta->isVisible());
    accetta->click();
    QVERIFY(!avviso->isVisible() && !accetta->isVisible());
    QVERIFY(!aiuto().startsWith(QStringLiteral("Incomplete")));
    QVERIFY(MisureIncompiute(banco.posto->scrivania.albero).empty());
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
