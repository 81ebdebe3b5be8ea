// The run from its first step to its last, and the requests that reach it.
#include "sweep/Corsa.h"

#include "link/Interrogazioni.h"
#include "sweep/AttesaInizio.h"
#include "sweep/PausaSweep.h"
#include "sweep/Svolgimento.h"

namespace orvane {

Svolgimento::Svolgimento(Corsa& corsa, std::string misura)
    : c_(corsa), r_(corsa.ricevitore), s_(corsa.scrivania), misura_(std::move(misura)) {
    c_.stato = {.SweepInCorso = true,
                .TimerSweepSec = c_.stato.TimerSweepSec,
                .TriggerSweepMode = c_.stato.TriggerSweepMode,
                .protocollo = &r_.stato};
    r_.stato.AbbandonaComandi = false;
}

EsitoCorsa Svolgimento::Svolgi() {
    // A Mast-Table run keeps the detectors of its first line before the checks, and puts them back
    // at each way out.
    if (!Controlli() || !AttendiInizio()) {
        RipristinaCondizioniExitSweep();
        return esito_;
    }
    // Between settings and lines: Insertion Loss compares its references, Mast-Table reads the
    // positioners. Behind the lines: the difference or the next position, which repeat them.
    if (PreparaMisura() && PercorriRighe() && RiscriviHeader()) {
        MostraDurata();
        RipristinaCondizioniExitSweep();
    } else {
        Fallimento();
    }
    return esito_;
}

bool Svolgimento::Controlli() {
    Fase(FaseCorsa::Controlli);
    PreVolo volo{.scrivania = s_,
                 .ricevitore = r_,
                 .scan = c_.scan,
                 .vista = c_.vista,
                 .misura = misura_,
                 .motivo = {}};
    const bool bene = ControlliSweep(volo);
    misura_ = volo.misura;
    scan_ = c_.scan;
    if (Interrotta())
        return ControllaInterruzioni();
    if (bene)
        return true;
    return Fallisci(r_.porta.Aperta() ? EsitoCorsa::Rifiutata : EsitoCorsa::GuastoLink,
                    volo.motivo);
}

bool Svolgimento::AttendiInizio() {
    ControllaVisCMBPausa(c_);
    Fase(FaseCorsa::Attesa);
    return ControllaTTSweep(c_) || ControllaInterruzioni();
}

void Svolgimento::Fase(FaseCorsa fase) {
    c_.stato.fase = fase;
    c_.vista.MostraFase(fase);
}

bool Svolgimento::Fallisci(EsitoCorsa esito, std::string motivo) {
    esito_ = esito;
    c_.stato.motivo = std::move(motivo);
    linkVivo_ = linkVivo_ && esito != EsitoCorsa::GuastoLink;
    return false;
}

/// Whichever way the user wants out: the receiver is stopped, and the run ends as told.
bool Svolgimento::ControllaInterruzioni() {
    Fase(FaseCorsa::Arresto);
    AbortSweepCorsa();
    return EsciInterrotta();
}

bool Svolgimento::EsciInterrotta() {
    if (r_.stato.AbbandonaComandi && !c_.stato.ComandoFermato)
        return Fallisci(EsitoCorsa::Abbandonata, "the receiver was given up");
    return Fallisci(EsitoCorsa::Fermata, c_.stato.motivo.empty() ? "stopped" : c_.stato.motivo);
}

void Svolgimento::VisualizzaBatteria() {
    if (r_.modello.FwVersione < firmware::kPausaBatteria || !HaBatteria(r_.modello))
        return;
    if (const auto batteria = LeggiBatteria(r_))
        c_.vista.MostraBatteria(batteria->livello);
}

EsitoCorsa ClickExecuteSweep(Corsa& corsa, const std::string& misura) {
    if (corsa.stato.SweepInCorso) {
        ChiediStop(corsa.stato);
        return EsitoCorsa::Fermata;
    }
    return Svolgimento(corsa, misura).Svolgi();
}

void ChiediStop(StatoCorsa& stato) {
    stato.StopRichiesto = true;
    // While it measures the run looks at the flag itself, and no command is out.
    if (!stato.protocollo || stato.fase == FaseCorsa::Misura)
        return;
    stato.ComandoFermato = stato.ComandoFermato || !stato.protocollo->AbbandonaComandi;
    stato.protocollo->AbbandonaComandi = true;
}

bool VuoleUscire(const Corsa& corsa) {
    return corsa.stato.StopRichiesto || corsa.ricevitore.stato.AbbandonaComandi;
}

void AttendiNellaCorsa(const Corsa& corsa, double secondi) {
    const Scadenza fine(corsa.ricevitore.ambiente, secondi);
    while (!fine.Passata() && !VuoleUscire(corsa))
        corsa.ricevitore.ambiente.ElaboraEventi(fine.Rimane(), Veglia::Eventi);
}

void ChiediPausa(StatoCorsa& stato) {
    if (stato.fase == FaseCorsa::Misura || stato.fase == FaseCorsa::Riga)
        stato.PausaRichiesta = 1;
    else if (stato.fase == FaseCorsa::Pausa)
        stato.PausaRichiesta = 2;
}

bool ChiediCambio(StatoCorsa& stato, const CambioInPausa& cambio) {
    const bool suo = cambio.quale == ParComune::BWIF || cambio.quale == ParComune::Attenuatore;
    if (!suo || stato.fase != FaseCorsa::Pausa)
        return false;
    // What waits already goes out with the value that the record has by then.
    std::erase_if(stato.inSospeso, [&](const auto& c) { return c.quale == cambio.quale; });
    stato.inSospeso.push_back(cambio);
    return true;
}

void ScegliTimer(StatoCorsa& stato, int secondi) {
    stato.TimerSweepSec = secondi;
    if (secondi > 0)
        stato.TriggerSweepMode = 0;
}

void ScegliTrigger(StatoCorsa& stato, int16_t modo) {
    stato.TriggerSweepMode = modo;
    if (modo != 0)
        stato.TimerSweepSec = 0;
}

} // namespace orvane
