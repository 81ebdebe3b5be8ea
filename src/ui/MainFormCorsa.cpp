// What a run and the protocol say to the main window.
#include <QGridLayout>
#include <QMenuBar>

#include "base/Numeri.h"
#include "data/Interpolazione.h"
#include "graph/Scala.h"
#include "ui/MainForm.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

/// How a run ended, for the status line.
struct ParoleEsito {
    EsitoCorsa esito;
    const char* testo;
};
constexpr ParoleEsito kEsiti[] = {
    {EsitoCorsa::Compiuta, "Done"},
    {EsitoCorsa::Rifiutata, "Not started"},
    {EsitoCorsa::Fermata, "Stopped: the measure holds what was swept"},
    {EsitoCorsa::Abbandonata, "Aborted"},
    {EsitoCorsa::GuastoLink, "Receiver or link failed"},
    {EsitoCorsa::GuastoFile, "File could not be written"},
};

/// What the status line says in each phase, the measure's name in place of %1; empty: as before.
constexpr const char* kParoleFase[] = {
    "", "", "Waiting for the start", "Starting", "", "Sweeping %1", "Paused", "Stopping", ""};

} // namespace

void MainForm::Esegui() {
    if (console_->corsa.stato.SweepInCorso) {
        ClickExecuteSweep(console_->corsa, {});
        return;
    }
    stato_->CancellaBarre();
    stato_->NascondiFreqLivello();
    stato_->MostraMessaggio(tr("Checking"));
    sweep_->Avvio().Scrivi(console_->corsa.stato);
    MostraEsito(ClickExecuteSweep(console_->corsa, sweep_->Misura()));
}

void MainForm::Pausa() {
    StatoCorsa& corsa = console_->corsa.stato;
    ChiediPausa(corsa);
    if (corsa.fase == FaseCorsa::Riga && corsa.PausaRichiesta == 1)
        stato_->MostraMessaggio(tr("Pauses as soon as the next pass measures"));
}

void MainForm::MostraEsito(EsitoCorsa esito) {
    const StatoCorsa& s = console_->corsa.stato;
    QString testo = tr(kEsiti[static_cast<size_t>(esito)].testo);
    if (esito == EsitoCorsa::Fermata && s.misura.empty())
        testo = tr("Stopped before the start: nothing was stored");
    else if (esito == EsitoCorsa::Compiuta)
        testo += QStringLiteral(": ") + Q(s.misura);
    else if (esito != EsitoCorsa::Fermata && !s.motivo.empty())
        testo += QStringLiteral(": ") + Q(s.motivo);
    stato_->MostraMessaggio(testo);
    sweep_->AggiornaGriglia();
    if (esito != EsitoCorsa::Rifiutata && !s.misura.empty())
        MostraCorsaFinita(s.misura);
    AggiornaEtichette();
    if (esito != EsitoCorsa::Compiuta)
        return;
    if (const QString report = AutoReport(s.misura); !report.isEmpty())
        stato_->MostraMessaggio(testo + report);
}

/// The windows over the picture that a run shows for a while: waits for its start, brief messages.
void MainForm::CreaAvvisiQuadro() {
    auto* pila = new QGridLayout(quadro_);
    attesaTimer_ =
        new FrmAttesaInizio(QStringLiteral("FrmPBTimerSweep"), QStringLiteral("PBTimerSweep"),
                            tr("Delayed start"), quadro_);
    attesaTrigger_ =
        new FrmAttesaInizio(QStringLiteral("FrmPBTriggerSweep"), QStringLiteral("PBTriggerSweep"),
                            tr("Waiting for the trigger"), quadro_);
    for (FrmAttesaInizio* attesa : {attesaTimer_, attesaTrigger_}) {
        pila->addWidget(attesa, 0, 0, Qt::AlignCenter);
        connect(attesa, &FrmAttesaInizio::Ferma, this,
                [this] { ChiediStop(console_->corsa.stato); });
    }
    messaggioBreve_ =
        Nomina(new QLabel(quadro_), QStringLiteral("LBMessaggioBreve"), tr("Message"));
    messaggioBreve_->setFrameShape(QFrame::StyledPanel);
    messaggioBreve_->setAutoFillBackground(true);
    messaggioBreve_->setMargin(18);
    messaggioBreve_->hide();
    pila->addWidget(messaggioBreve_, 0, 0, Qt::AlignCenter);
    scadenzaMessaggio_.setSingleShot(true);
    connect(&scadenzaMessaggio_, &QTimer::timeout, messaggioBreve_, &QWidget::hide);
}

void MainForm::MostraFase(FaseCorsa fase) {
    if (fase == FaseCorsa::Ferma) {
        sweep_->MostraCMBPausa(false);
        riceveTasti_ = true;
    }
    AbilitaDisabilitaControlli();
    if (const char* parole = kParoleFase[static_cast<size_t>(fase)]; *parole != 0)
        stato_->MostraMessaggio(tr(parole).replace(QStringLiteral("%1"), Q(nomeCorsa_)));
    AggiornaEtichette();
}

void MainForm::AbilitaDisabilitaControlli() {
    const auto controlli = ControlliDiFase(console_->corsa.stato.fase, riceveTasti_);
    sweep_->AbilitaDisabilitaControlli(controlli);
    comuni_->Abilita(controlli.fermi, controlli.filtroEAtt);
    schede_->setEnabled(controlli.fermi);
    if (auto* voce = menuBar()->findChild<QAction*>(QStringLiteral("MNURemoteLink")))
        voce->setEnabled(controlli.fermi);
    AbilitaVociFerme(controlli.fermi);
}

void MainForm::MostraCMBPausa(bool visibile) {
    sweep_->MostraCMBPausa(visibile);
}

void MainForm::AbilitaTastiCorsa(bool abilitati) {
    riceveTasti_ = abilitati;
    AbilitaDisabilitaControlli();
}

void MainForm::MostraAttesaTimer(int restanoS, int totaleS) {
    attesaTimer_->Mostra(tr("%1 s to start Sweep").arg(restanoS), totaleS - restanoS, totaleS);
}

void MainForm::MostraAttesaTrigger(int16_t modo, int userPort) {
    attesaTrigger_->Mostra(
        modo == 1 ? tr("User port reads %1; the sweep starts at 0").arg(userPort)
                  : tr("User port reads %1; the sweep starts when it is not 0").arg(userPort));
}

void MainForm::NascondiAttesaInizio() {
    attesaTimer_->hide();
    attesaTrigger_->hide();
}

void MainForm::MostraMessaggioBreve(const std::string& testo, int ms) {
    messaggioBreve_->setText(Q(testo));
    messaggioBreve_->show();
    messaggioBreve_->raise();
    stato_->MostraMessaggio(Q(testo));
    scadenzaMessaggio_.start(ms);
}

void MainForm::IniziaTraccia(const ScanTable& tabella, const std::string& misura) {
    double start = 0;
    double stop = 0;
    CampoDellaTabella(tabella, start, stop);
    LasciaMisura();
    quadro_->ImpostaInvito({});
    quadro_->IniziaTraccia(start, stop);
    PreparaCurveCorsa(tabella);
    nomeCorsa_ = misura;
    passate_.clear();
    stopRigaMhz_ = 0;
    sweep_->ImpostaMisura(misura);
    stato_->MostraMessaggio(tr("Sweeping %1").arg(Q(misura)));
}

/// A pass goes on in its own shade in each line: lines and passes come one inside the other.
void MainForm::IniziaPassata(const PassataInCorso& passata) {
    const QString nome = Q(passata.nome);
    if (!passate_.contains(nome))
        passate_ << nome;
    quadro_->ScegliPassata(static_cast<int>(passate_.indexOf(nome)), nome);
    stato_->MostraPassata(Q(passata.etichetta));
}

void MainForm::AggiungiPassi(const ScanLine& riga, double freqMhz, double passoMhz,
                             std::span<const SampleRecord> passi) {
    // A line that begins elsewhere than where the last one ended does not continue it.
    if (freqMhz < stopRigaMhz_ || freqMhz - stopRigaMhz_ > 2 * passoMhz)
        quadro_->InterrompiTraccia();
    for (size_t i = 0; i < passi.size(); ++i) {
        const double qui = freqMhz + static_cast<double>(i) * passoMhz;
        SampleRecord campione = passi[i];
        AggiungiFattori(campione.Livello,
                        SommaFattori(tabelleCorsa_, setupCorsa_, static_cast<float>(qui * 1e6)));
        quadro_->Aggiungi(qui, campione);
    }
    stopRigaMhz_ = freqMhz + static_cast<double>(passi.size() - 1) * passoMhz;
    stopRigaMhz_ = std::min(stopRigaMhz_, riga.Stop);
}

void MainForm::MostraFreqLivello(double freqMhz, int16_t livelloCent) {
    const int fattori = SommaFattori(tabelleCorsa_, setupCorsa_, static_cast<float>(freqMhz * 1e6));
    const double livello = (livelloCent + fattori) / 100.0 +
                           static_cast<double>(ImpostaUnita(scrivania_.setup.UnitId));
    stato_->MostraFreqLivello(freqMhz, livello, Unita());
}

void MainForm::MostraAvanzamento(const Avanzamento& avanzamento) {
    stato_->MostraAvanzamento(avanzamento);
}

void MainForm::MostraBatteria(const std::string& livello) {
    // The receiver tells a bare percentage; anything else is shown as it is.
    batteria_ = LeggiNumero(livello) ? livello + " %" : livello;
    AggiornaEtichette();
}

void MainForm::AggiornaGriglia() {
    sweep_->AggiornaGriglia();
}

void MainForm::EvidenziaCella(int riga, ColonnaScan colonna, bool errata) {
    sweep_->EvidenziaCella(riga, colonna, errata);
}

void MainForm::MostraModello() {
    AggiornaEtichette();
    sweep_->RinnovaEsame();
}

/// The axis of the table that is being edited; a trace stays as long as it fits the axis.
void MainForm::MostraAsseTabella() {
    if (console_->corsa.stato.SweepInCorso)
        return;
    double start = 0;
    double stop = 0;
    CampoDellaTabella(scan_.Righe, start, stop);
    const CampoMhz mostrato =
        quadro_->HaMisura() ? quadro_->Quadro().intero : quadro_->CampoMostrato();
    if (StessaFrequenza(start, mostrato.start) && StessaFrequenza(stop, mostrato.stop))
        return;
    LasciaMisura();
    quadro_->IniziaTraccia(start, stop);
    PreparaCurveCorsa(scan_.Righe);
    quadro_->ImpostaInvito(tr("The sweep is drawn here while it runs"));
}

void MainForm::MostraStriscia(const std::string& testo) {
    setEnabled(true);
    striscia_->Mostra(Q(testo));
    stato_->CancellaBarre();
}

void MainForm::NascondiStriscia() {
    striscia_->Nascondi();
}

void MainForm::ColoraStriscia(bool scambiata) {
    striscia_->Colora(scambiata);
}

void MainForm::AbilitaSSTabMode() {
    schede_->setEnabled(true);
}

} // namespace orvane
