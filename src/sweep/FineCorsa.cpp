// A run's ways out: the regular end, the failure, and what both put back.
#include "base/Interruttori.h"
#include "base/Numeri.h"
#include "data/Incompiute.h"
#include "data/Panels.h"
#include "link/Protocollo.h"
#include "sweep/PausaSweep.h"
#include "sweep/Svolgimento.h"

namespace orvane {
namespace {

constexpr double kAttesaComandoS = 0.2;

} // namespace

bool Svolgimento::RiscriviHeader() {
    if (!SalvaHeaderSweep(s_, PercorsoKSH(misura_), scan_, s_.setup))
        return Fallisci(EsitoCorsa::GuastoFile, "cannot write " + PercorsoKSH(misura_));
    TogliSegnoCorsa(s_.albero, misura_);
    c_.vista.MostraAvanzamento(progresso_->Adesso());
    SalvaPanelEAM(s_, kPannelloEAM);
    return true;
}

/// With `/VISTIMESWEEP`: how long the run has taken.
void Svolgimento::MostraDurata() {
    if (Acceso(r_.ambiente.RigaComando(), interruttore::kVisTimeSweep))
        r_.ambiente.Mostra(
            {.testo = "Elapsed time " + TestoFisso(progresso_->Adesso().trascorsiS, 1) + " s",
             .icona = Icona::Informazione});
}

/// One try, and no longer than the receiver is given anyway: the user wants out, and the start of
/// every run says the same again.
void Svolgimento::AbortSweepCorsa() {
    if (!r_.porta.Aperta())
        return;
    const Scadenza fine(r_.ambiente, kAttesaComandoS);
    linkVivo_ = InviaComando(r_, kAttesaComandoS, "#ASBK*", true) != kErrore && linkVivo_;
    MostraErrore(r_, "Abort Sweep", false);
    Attendi(r_.ambiente, fine.Rimane());
}

/// The order is fixed. The files of the pass have been closed by their owner.
void Svolgimento::Fallimento() {
    Fase(FaseCorsa::Guasto);
    if (linkVivo_ && r_.porta.Aperta() && !r_.stato.AbbandonaComandi)
        VisualizzaBatteriaUnaVolta(c_);
    RipristinaCondizioniExitSweep();
    // An older measure that still stands keeps its own header.
    if (!preparata_ || !s_.albero.EsisteCartella(CartellaMisura(misura_)))
        return;
    SalvaHeaderSweep(s_, PercorsoKSH(misura_), scan_, s_.setup);
    TogliSegnoCorsa(s_.albero, misura_);
}

void Svolgimento::RipristinaCondizioniExitSweep() {
    r_.porta.ChiudiPorta();
    if (c_.stato.ComandoFermato)
        r_.stato.AbbandonaComandi = false;
    c_.stato.SweepFinito = esito_ == EsitoCorsa::Compiuta;
    c_.stato.SweepInCorso = false;
    c_.stato.StopRichiesto = false;
    c_.stato.PausaRichiesta = 0;
    c_.stato.ComandoFermato = false;
    c_.stato.protocollo = nullptr;
    c_.vista.MostraCMBPausa(false);
    Fase(FaseCorsa::Ferma);
}

} // namespace orvane
