// A run's preparation: what the receiver is told ahead of the first line, and the measure's files.
#include "base/Testo.h"
#include "base/Versione.h"
#include "data/Avvisi.h"
#include "data/Incompiute.h"
#include "data/Panels.h"
#include "setup/FrontEndSweep.h"
#include "sweep/Svolgimento.h"

namespace orvane {

bool Svolgimento::PreparaMisura() {
    Fase(FaseCorsa::Preparazione);
    c_.stato.misura = misura_;
    s_.env.SweepPath = PercorsoKSH(misura_);
    SalvaPanelEPN(s_, kPannelloEPN);
    if (!InviaImpostazioniCorsa() || Interrotta())
        return ControllaInterruzioni();
    CompilaIntestazione();
    if (!PreparaFile())
        return false;
    InizializzaHTOriginale();
    progresso_.emplace(r_.ambiente, scan_.Righe, AncillaryDi(s_.setup));
    c_.vista.IniziaTraccia(scan_.Righe, misura_);
    return true;
}

bool Svolgimento::InviaImpostazioniCorsa() {
    if (!InviaInOrdine(r_, ComponiImpostazioniCorsa(r_.modello, s_.setup)))
        return false;
    ControllaFiltroAntennaGX2207(r_.modello, s_);
    return InviaInOrdine(r_, ComponiFiltroAntennaGX2207(r_.modello, s_.setup));
}

/// What the header tells of receiver and program.
void Svolgimento::CompilaIntestazione() {
    const std::string& serie = r_.modello.SerialNumber;
    s_.setup.FwRelease = r_.modello.FwTesto;
    s_.setup.SwRelease = Sostituisci(RelSoftware(), "Rel. ", "");
    s_.setup.SerialA = serie.substr(0, 10);
    s_.setup.SerialB = serie.size() > 10 ? serie.substr(10) : "";
    s_.setup.ModelText = NomeModello(r_.modello, false);
}

bool Svolgimento::PreparaFile() {
    if (MisuraInCorso(s_.albero, misura_)) {
        const std::string testo = "Sweep " + misura_ + " is being measured by another console";
        r_.ambiente.Mostra({.testo = testo, .icona = Icona::Esclamazione});
        return Fallisci(EsitoCorsa::GuastoFile, testo);
    }
    // The mark comes first: whatever a power cut leaves is known to be no whole measure.
    s_.albero.AssicuraCartella(CartellaMisura(misura_));
    const auto segno = SegnaCorsa(s_.albero, misura_);
    bool fatto = segno || AvvisaScrittura(s_, PercorsoKSH(misura_));
    if (fatto) {
        segno_ = *segno;
        PreparaCartellaMisura(s_, misura_);
        preparata_ = true;
        CopiaFileLimSweep(s_, misura_, scan_.Righe);
        CopiaFileFacSweep(s_, misura_);
        fatto = SalvaHeaderSweep(s_, PercorsoKSH(misura_), scan_, s_.setup);
    }
    return fatto || Fallisci(EsitoCorsa::GuastoFile, "cannot write " + PercorsoKSH(misura_));
}

/// Each pass is asked for with the hold times of the user, whatever the receiver made of them in
/// the pass before.
void Svolgimento::InizializzaHTOriginale() {
    originale_ = scan_.Righe;
}

} // namespace orvane
