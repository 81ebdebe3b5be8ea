#include "sweep/Corsa.h"

#include <algorithm>
#include <array>
#include <functional>
#include <optional>

#include "base/Interruttori.h"
#include "base/Numeri.h"
#include "base/Testo.h"
#include "base/Versione.h"
#include "data/Panels.h"
#include "link/Comandi.h"
#include "link/Interrogazioni.h"
#include "setup/ComandoSweep.h"
#include "sweep/FlussoSweep.h"
#include "sweep/Progresso.h"

namespace orvane {
namespace {

// What the receiver may need before the first byte of a pass, besides eight times its hold times.
constexpr double kInizioConcessoS = 5.0;
constexpr double kAttesaComandoS = 0.2;
constexpr double kSilenzioFinaleS = 0.05;
constexpr double kResiduoMassimoS = 5.0;
constexpr double kIntestazioneS = 1.0;
constexpr int kTentativiIntestazione = 3;
constexpr double kPeriodoTestoS = 0.1;
// Beyond twice its steps and this many more a stream is no sweep: it would fill the disk.
constexpr long long kPassiDiTroppo = 1000;
constexpr size_t kBloccoLettura = 256 * 1024;

/// Where the radiated input begins on the models that have both, MHz.
constexpr double kInizioRadiatoMhz = 30.0;

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
    using Passi = std::span<const SampleRecord>;

    void InviaImpostazioniCorsa();
    void CompilaIntestazione();
    bool EseguiRiga(size_t indice);
    void PreparaIngresso(const ScanLine& riga);
    void SettaRadCondK3XSweep(const ScanLine& riga);
    bool AvviaPassata(const ScanLine& riga);
    bool RiceviPassata(ScanLine& riga);
    bool ControllaInterruzioni();
    bool AttendeIntestazione() const;
    bool Attendi5520F(Scadenza& intestazione, const ScanLine& riga);
    bool LetturaFallita();
    bool Elabora(ScanLine& riga);
    void FermaFlusso();
    void MostraDati(const ScanLine& riga, Passi passi);
    void ApplicaPassoAnnunciato(ScanLine& riga);
    bool SweepRifiutato();
    void ScarigaDatiSweepRestanti();
    void RileggiHoldTimeSW(ScanLine& riga);
    void VisualizzaBatteria();
    void FermaRicevitore();
    bool Interrotta() const { return c_.stato.StopRichiesto || r_.stato.AbbandonaComandi; }
    bool Fallisci(EsitoCorsa esito, std::string motivo);
    void Fase(FaseCorsa fase);
    double TempoMassimo(const ScanLine& riga) const;

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
    std::optional<LettoreFlusso> lettore_;
    ScrittoreTraccia traccia_;
    std::string percorsoTraccia_;
    double passoMhz_ = 0;
    long long passiRiga_ = 0;
    double ultimoTesto_ = 0;
    int tentativiIntestazione_ = 0;
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
    InviaImpostazioniCorsa();
    if (Interrotta())
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

void Svolgimento::InviaImpostazioniCorsa() {
    const Dinamica dinamica = CalcolaDinamica(r_.modello, s_.setup);
    const bool generatore = HaGeneratore(r_.modello);
    const std::array<std::function<void()>, 6> invii = {
        [&] { ImpostaDinamica(r_, dinamica.dinamica, dinamica.riferimento); },
        [&] { ImpostaPulseLim(r_, false); },
        [&] { ImpostaRFOut(r_, false); },
        [&] {
            if (generatore)
                ImpostaLivelloTG(r_, s_.setup.TGLevel);
        },
        [&] {
            if (generatore)
                ImpostaTracking(r_, s_.setup.TGOn != 0);
        },
        [&] {
            if (generatore)
                ImpostaFrequenzaTG(r_, s_.setup.TGFreq);
        },
    };
    for (const auto& invia : invii) {
        if (!Interrotta())
            invia();
    }
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
    ScanLine& riga = scan_.Righe[indice];
    progresso_->IniziaRiga(static_cast<int>(indice));
    passoMhz_ = riga.Step;
    passiRiga_ = 0;
    tentativiIntestazione_ = 0;
    percorsoTraccia_ = PercorsoRS(misura_, misura_, static_cast<int>(indice));
    if (!traccia_.Apri(s_, percorsoTraccia_)) {
        r_.ambiente.Mostra(
            {.testo = "Cannot open file " + s_.albero.DataRoot() + percorsoTraccia_});
        return Fallisci(EsitoCorsa::GuastoFile, "cannot write " + percorsoTraccia_);
    }
    VisualizzaBatteria();
    if (Interrotta())
        return ControllaInterruzioni();
    PreparaIngresso(riga);
    if (Interrotta())
        return ControllaInterruzioni();
    if (!AvviaPassata(riga) || !RiceviPassata(riga))
        return false;
    traccia_.Chiudi();
    progresso_->FineRiga();
    RileggiHoldTimeSW(riga);
    return !Interrotta() || ControllaInterruzioni();
}

/// What a line asks of the receiver ahead of its command.
void Svolgimento::PreparaIngresso(const ScanLine& riga) {
    if (HaGeneratore(r_.modello) && s_.setup.TGOn != 0)
        ImpostaTracking(r_, true);
    Attendi(r_.ambiente, kAttesaComandoS);
    if (!Interrotta())
        SettaRadCondK3XSweep(riga);
}

/// Gives the input that the line needs, on the models that have a conducted and a radiated one.
void Svolgimento::SettaRadCondK3XSweep(const ScanLine& riga) {
    if (!HaCondottoERadiato(r_.modello))
        return;
    InviaGrezzo(r_, "#SSTP*");
    Attendi(r_.ambiente, 0.1);
    r_.porta.SvuotaRicezione();
    if (riga.Start >= kInizioRadiatoMhz)
        ImpostaRadiato(r_);
    else
        ImpostaCondotto(r_);
}

bool Svolgimento::AvviaPassata(const ScanLine& riga) {
    const std::string comando = ComponiComandoSweep(r_.modello, riga);
    lettore_.emplace(riga.Detector, r_.modello.Is5520F);
    r_.porta.SvuotaRicezione();
    r_.log.InizioSweep(comando);
    if (!InviaGrezzo(r_, comando))
        return LetturaFallita();
    Attendi(r_.ambiente, kAttesaComandoS);
    Fase(FaseCorsa::Misura);
    return true;
}

double Svolgimento::TempoMassimo(const ScanLine& riga) const {
    return static_cast<double>(riga.HoldTime + riga.HoldTimeSD) / 1000 * 8 + kInizioConcessoS;
}

bool Svolgimento::RiceviPassata(ScanLine& riga) {
    Scadenza termine(r_.ambiente, TempoMassimo(riga));
    Scadenza intestazione(r_.ambiente, kIntestazioneS);
    while (true) {
        const bool subito = r_.porta.ByteInCoda() > 0 || !r_.porta.Aperta();
        const double attesa = AttendeIntestazione()
                                  ? std::min(termine.Rimane(), intestazione.Rimane())
                                  : termine.Rimane();
        r_.ambiente.ElaboraEventi(subito ? 0 : attesa, Veglia::EventiELink);
        if (Interrotta())
            return ControllaInterruzioni();
        const size_t letti = r_.porta.LeggiInAccumulo(kBloccoLettura);
        if (letti == 0) {
            if (termine.Passata() || !r_.porta.Aperta())
                return LetturaFallita();
        } else {
            r_.log.BloccoSweep(r_.porta.accumulo.Dati().last(letti));
            if (!Elabora(riga))
                return false;
            if (lettore_->StatoAttuale() != LettoreFlusso::Stato::Riscontro)
                termine.Rinnova(TempoMassimo(riga));
        }
        if (lettore_->StatoAttuale() == LettoreFlusso::Stato::Finito)
            break;
        if (!Attendi5520F(intestazione, riga))
            return false;
    }
    ScarigaDatiSweepRestanti();
    return true;
}

/// Whether a header is still to come for which the command may be sent once more.
bool Svolgimento::AttendeIntestazione() const {
    return lettore_->StatoAttuale() == LettoreFlusso::Stato::Intestazione &&
           r_.modello.TipoFrontEnd >= 2 && tentativiIntestazione_ < kTentativiIntestazione;
}

/// A fast front-end may acknowledge and then send no header: after a second the command goes out
/// again, three times at most.
bool Svolgimento::Attendi5520F(Scadenza& intestazione, const ScanLine& riga) {
    if (lettore_->StatoAttuale() == LettoreFlusso::Stato::Riscontro)
        intestazione.Rinnova(kIntestazioneS);
    if (!AttendeIntestazione() || !intestazione.Passata())
        return true;
    ++tentativiIntestazione_;
    return AvviaPassata(riga);
}

bool Svolgimento::LetturaFallita() {
    r_.ambiente.Mostra({.testo = "5520 Time out", .icona = Icona::Esclamazione});
    return Fallisci(EsitoCorsa::GuastoLink, "5520 Time out");
}

/// What has just been read: to the log, through the decoder, to the file, to the picture.
bool Svolgimento::Elabora(ScanLine& riga) {
    bool scritti = true;
    const auto stato = lettore_->Avanza(r_.porta.accumulo, [&](Passi passi) {
        ApplicaPassoAnnunciato(riga);
        scritti = traccia_.Scrivi(passi);
        MostraDati(riga, passi);
    });
    if (!scritti) {
        r_.ambiente.Mostra({.testo = "Cannot save file " + s_.albero.DataRoot() + percorsoTraccia_,
                            .icona = Icona::Esclamazione});
        FermaFlusso();
        return Fallisci(EsitoCorsa::GuastoFile, "cannot write " + percorsoTraccia_);
    }
    if (passiRiga_ > 2 * PassiDellaRiga(riga) + kPassiDiTroppo) {
        FermaFlusso();
        return Fallisci(EsitoCorsa::GuastoLink, "the receiver sends more steps than the line has");
    }
    return stato != LettoreFlusso::Stato::Rifiutato || SweepRifiutato();
}

/// Ends a stream that nobody reads any more. Its reply would be lost among the samples, so none is
/// waited for.
void Svolgimento::FermaFlusso() {
    InviaGrezzo(r_, "#ASBK*");
    Attendi(r_.ambiente, kAttesaComandoS);
    r_.porta.SvuotaRicezione();
}

void Svolgimento::MostraDati(const ScanLine& riga, Passi passi) {
    const double inizio = riga.Start + static_cast<double>(passiRiga_) * passoMhz_;
    passiRiga_ += static_cast<long long>(passi.size());
    progresso_->Aggiungi(static_cast<long long>(passi.size()));
    c_.vista.AggiungiPassi(riga, inizio, passoMhz_, passi);
    if (r_.ambiente.Adesso() - ultimoTesto_ < kPeriodoTestoS)
        return;
    ultimoTesto_ = r_.ambiente.Adesso();
    const auto& livelli = passi.back().Livello;
    const auto piuAlto = *std::max_element(livelli.begin(), livelli.end());
    c_.vista.MostraFreqLivello(riga.Start + static_cast<double>(passiRiga_ - 1) * passoMhz_,
                               piuAlto);
    c_.vista.MostraAvanzamento(progresso_->Adesso());
}

/// The step that a 5520F works with takes the place of the table's for this pass.
void Svolgimento::ApplicaPassoAnnunciato(ScanLine& riga) {
    const auto passo = lettore_->PassoAnnunciato();
    if (!passo || *passo == passoMhz_)
        return;
    passoMhz_ = *passo;
    riga.Step = *passo;
    progresso_->CorreggiRiga(PassiDellaRiga(riga));
}

bool Svolgimento::SweepRifiutato() {
    const std::string_view parole = ParoleErroreSweep(lettore_->CodiceErrore());
    const std::string testo(parole.empty() ? "set Sweep" : parole);
    MostraErrore(r_, testo, true);
    return Fallisci(EsitoCorsa::GuastoLink, "Error " + testo + " (" + lettore_->Riscontro() + ")");
}

void Svolgimento::ScarigaDatiSweepRestanti() {
    Scadenza silenzio(r_.ambiente, kSilenzioFinaleS);
    const Scadenza fine(r_.ambiente, kResiduoMassimoS); // a receiver that never falls silent
    while (!silenzio.Passata() && !fine.Passata() && !Interrotta() && r_.porta.Aperta()) {
        r_.ambiente.ElaboraEventi(silenzio.Rimane(), Veglia::EventiELink);
        if (r_.porta.LeggiInAccumulo(kBloccoLettura) > 0)
            silenzio.Rinnova(kSilenzioFinaleS);
        r_.porta.accumulo.Azzera();
    }
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
    traccia_.Chiudi();
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

} // namespace orvane
