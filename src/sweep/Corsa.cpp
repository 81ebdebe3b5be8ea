#include "sweep/Corsa.h"

#include <optional>

#include "base/Interruttori.h"
#include "base/Numeri.h"
#include "base/Testo.h"
#include "base/Versione.h"
#include "data/Panels.h"
#include "link/Comandi.h"
#include "link/Interrogazioni.h"
#include "setup/ComandoSweep.h"
#include "setup/FrontEndSweep.h"
#include "setup/LimitiSweep.h"
#include "sweep/Passata.h"
#include "sweep/Progresso.h"

namespace orvane {
namespace {

constexpr double kAttesaComandoS = 0.2;

/// One run, from the click to its end: what it keeps while it lasts, and its steps.
class Svolgimento {
public:
    Svolgimento(Corsa& corsa, std::string misura)
        : c_(corsa), r_(corsa.ricevitore), s_(corsa.scrivania), misura_(std::move(misura)) {
        c_.stato = {};
        c_.stato.SweepInCorso = true;
        r_.stato.AbbandonaComandi = false;
    }

    // A. Checks, before any file of the measure is touched.
    bool Controlli();
    // B. Settings of the whole run, directory, header.
    bool PreparaMisura();
    // C. to E. Lines, passes, data.
    bool PercorriRighe();
    bool RiscriviHeader();
    void MostraDurata();
    // F. The one way out that is no normal end.
    void Fallimento();
    // G.
    void RipristinaCondizioniExitSweep();

    EsitoCorsa Esito() const { return esito_; }

private:
    bool InviaImpostazioniCorsa();
    void CompilaIntestazione();
    bool EseguiRiga(size_t indice);
    bool EseguiPassata(size_t indice);
    ComandoSweep PreparaPassata(const ScanLine& riga);
    bool PreparaIngresso(const ScanLine& riga);
    void SettaRadCondK3XSweep(const ScanLine& riga);
    bool ControllaInterruzioni();
    void RileggiHoldTimeSW(ScanLine& riga);
    void VisualizzaBatteria();
    void FermaRicevitore();
    bool Interrotta() const { return c_.stato.StopRichiesto || r_.stato.AbbandonaComandi; }
    bool Fallisci(EsitoCorsa esito, std::string motivo);
    void Fase(FaseCorsa fase);

    Corsa& c_;
    Ricevitore& r_;
    Scrivania& s_;
    std::string misura_;
    /// The table as the checks left it, and then as the receiver ran it: what the header tells. The
    /// user's own stays as it is.
    ScanRecord scan_;
    bool preparata_ = false; ///< what an older measure of this name held is gone
    EsitoCorsa esito_ = EsitoCorsa::Compiuta;
    std::optional<Progresso> progresso_;
    LimiteRicevitore limite_;
    bool linkVivo_ = true;
};

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
    if (bene && !Interrotta())
        return true;
    if (r_.stato.AbbandonaComandi)
        return Fallisci(EsitoCorsa::Abbandonata, "the receiver was given up");
    if (c_.stato.StopRichiesto)
        return Fallisci(EsitoCorsa::Fermata, "stopped");
    if (!r_.porta.Aperta())
        return Fallisci(EsitoCorsa::GuastoLink, volo.motivo);
    return Fallisci(EsitoCorsa::Rifiutata, volo.motivo);
}

bool Svolgimento::PreparaMisura() {
    Fase(FaseCorsa::Preparazione);
    c_.stato.misura = misura_;
    s_.env.SweepPath = PercorsoKSH(misura_);
    SalvaPanelEPN(s_, kPannelloEPN);
    if (!InviaImpostazioniCorsa() || Interrotta())
        return ControllaInterruzioni();
    CompilaIntestazione();
    PreparaCartellaMisura(s_, misura_);
    preparata_ = true;
    CopiaFileLimSweep(s_, misura_, scan_.Righe);
    CopiaFileFacSweep(s_, misura_);
    if (!SalvaHeaderSweep(s_, PercorsoKSH(misura_), scan_, s_.setup))
        return Fallisci(EsitoCorsa::GuastoFile, "cannot write " + PercorsoKSH(misura_));
    progresso_.emplace(r_.ambiente, scan_.Righe);
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
    s_.setup.FwRelease = r_.modello.FwTesto;
    s_.setup.SwRelease = Sostituisci(RelSoftware(), "Rel. ", "");
    s_.setup.SerialA = r_.modello.SerialNumber.substr(0, 10);
    s_.setup.SerialB =
        r_.modello.SerialNumber.size() > 10 ? r_.modello.SerialNumber.substr(10) : "";
    s_.setup.ModelText = NomeModello(r_.modello, false);
}

bool Svolgimento::PercorriRighe() {
    const size_t righe = RigheInUso(scan_.Righe);
    for (size_t i = 0; i < righe; ++i) {
        if (!EseguiRiga(i))
            return false;
    }
    return true;
}

bool Svolgimento::EseguiRiga(size_t indice) {
    Fase(FaseCorsa::Riga);
    progresso_->IniziaRiga(static_cast<int>(indice));
    if (!EseguiPassata(indice))
        return false;
    progresso_->FineRiga();
    RileggiHoldTimeSW(scan_.Righe[indice]);
    return !Interrotta() || ControllaInterruzioni();
}

bool Svolgimento::EseguiPassata(size_t indice) {
    ScanLine& riga = scan_.Righe[indice];
    Passata passata(c_, *progresso_, riga);
    const std::string percorso = PercorsoRS(misura_, misura_, static_cast<int>(indice));
    if (!passata.ApriFile(percorso))
        return Fallisci(EsitoCorsa::GuastoFile, "cannot write " + percorso);
    const ComandoSweep comando = PreparaPassata(riga);
    if (Interrotta())
        return ControllaInterruzioni();
    if (!comando.Inviabile())
        return Fallisci(EsitoCorsa::GuastoFile,
                        "limit or frequency table of line " +
                            TestoIntero(static_cast<long long>(indice) + 1));
    VisualizzaBatteria();
    if (Interrotta() || !PreparaIngresso(riga))
        return ControllaInterruzioni();
    Fase(FaseCorsa::Misura);
    const Passata::Fine fine = passata.Esegui(comando);
    if (fine.esito == EsitoCorsa::Fermata)
        return ControllaInterruzioni();
    return fine.esito == EsitoCorsa::Compiuta || Fallisci(fine.esito, fine.motivo);
}

/// Limit and margin, then the command, with its frequency list. Not to be sent where a box has said
/// why, or the user wants out.
ComandoSweep Svolgimento::PreparaPassata(const ScanLine& riga) {
    if (!ImpostaLimitiSweep(r_, s_.albero, riga, limite_) ||
        !ImpostaMargineSweep(r_, riga, limite_))
        return {.testo = std::string(kTabellaNonInviabile)};
    return DeterminaComandoSweep(r_, s_, riga);
}

/// What a line asks of the receiver right ahead of its command; false where the user wants out.
bool Svolgimento::PreparaIngresso(const ScanLine& riga) {
    if (HaGeneratore(r_.modello) && s_.setup.TGOn != 0)
        ImpostaTracking(r_, true);
    Attendi(r_.ambiente, kAttesaComandoS);
    if (!Interrotta())
        SettaRadCondK3XSweep(riga);
    return !Interrotta();
}

/// Gives the input that the line needs, on the models that have a conducted and a radiated one.
void Svolgimento::SettaRadCondK3XSweep(const ScanLine& riga) {
    if (!HaCondottoERadiato(r_.modello))
        return;
    InviaGrezzo(r_, "#SSTP*");
    Attendi(r_.ambiente, 0.1);
    r_.porta.SvuotaRicezione();
    if (VaAlRadiato(riga))
        ImpostaRadiato(r_);
    else
        ImpostaCondotto(r_);
}

/// The hold time that the receiver really used goes into the header.
void Svolgimento::RileggiHoldTimeSW(ScanLine& riga) {
    const auto ms = LeggiNumero(LeggiHoldTime(r_));
    if (ms && *ms > 0 && *ms <= 30000)
        riga.HoldTime = static_cast<float>(*ms);
}

void Svolgimento::VisualizzaBatteria() {
    if (r_.modello.FwVersione < firmware::kPausaBatteria || !HaBatteria(r_.modello))
        return;
    if (const auto batteria = LeggiBatteria(r_))
        c_.vista.MostraBatteria(batteria->livello);
}

/// Whichever way the user wants out: the receiver is stopped, and the run ends as told.
bool Svolgimento::ControllaInterruzioni() {
    Fase(FaseCorsa::Arresto);
    FermaRicevitore();
    return r_.stato.AbbandonaComandi
               ? Fallisci(EsitoCorsa::Abbandonata, "the receiver was given up")
               : Fallisci(EsitoCorsa::Fermata, "stopped");
}

void Svolgimento::FermaRicevitore() {
    AbortSweep(r_);
    Attendi(r_.ambiente, kAttesaComandoS);
}

bool Svolgimento::RiscriviHeader() {
    if (!SalvaHeaderSweep(s_, PercorsoKSH(misura_), scan_, s_.setup))
        return Fallisci(EsitoCorsa::GuastoFile, "cannot write " + PercorsoKSH(misura_));
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

void Svolgimento::Fallimento() {
    Fase(FaseCorsa::Guasto);
    if (linkVivo_ && !r_.stato.AbbandonaComandi)
        VisualizzaBatteria();
    // An older measure that still stands keeps its own header.
    if (preparata_ && s_.albero.EsisteCartella(CartellaMisura(misura_)))
        SalvaHeaderSweep(s_, PercorsoKSH(misura_), scan_, s_.setup);
}

void Svolgimento::RipristinaCondizioniExitSweep() {
    r_.porta.ChiudiPorta();
    c_.stato.SweepFinito = esito_ == EsitoCorsa::Compiuta;
    c_.stato.SweepInCorso = false;
    c_.stato.StopRichiesto = false;
    c_.stato.PausaRichiesta = 0;
    Fase(FaseCorsa::Ferma);
}

} // namespace

EsitoCorsa ClickExecuteSweep(Corsa& corsa, const std::string& misura) {
    if (corsa.stato.SweepInCorso) {
        ChiediStop(corsa.stato);
        return EsitoCorsa::Fermata;
    }
    Svolgimento svolgimento(corsa, misura);
    if (svolgimento.Controlli()) {
        const bool bene = svolgimento.PreparaMisura() && svolgimento.PercorriRighe() &&
                          svolgimento.RiscriviHeader();
        if (bene)
            svolgimento.MostraDurata();
        else
            svolgimento.Fallimento();
    }
    svolgimento.RipristinaCondizioniExitSweep();
    return svolgimento.Esito();
}

void ChiediStop(StatoCorsa& stato) {
    stato.StopRichiesto = true;
}

void ChiediPausa(StatoCorsa& stato) {
    if (stato.fase == FaseCorsa::Misura)
        stato.PausaRichiesta = 1;
    else if (stato.fase == FaseCorsa::Pausa)
        stato.PausaRichiesta = 2;
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
