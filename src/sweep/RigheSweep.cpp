// A run's lines and the passes of each: prompts, switches, limit and margin, command, data.
#include <algorithm>

#include "base/Interruttori.h"
#include "base/Numeri.h"
#include "link/Comandi.h"
#include "link/Interrogazioni.h"
#include "setup/RegoleScan.h"
#include "sweep/Svolgimento.h"

namespace orvane {
namespace {

constexpr double kAttesaComandoS = 0.2;
constexpr double kAttesaStopS = 0.1;
constexpr double kHoldMassimoMs = 30000;
constexpr int kAncillaryQDSW3 = 4;
constexpr int16_t kFrontEndFFT = 3;

std::string NumeroRiga(size_t indice) {
    return TestoIntero(static_cast<long long>(indice) + 1);
}

/// "1: ", "1: Line: L1", "1: QDSW3: W", "1: Antenna: V"
std::string Etichetta(size_t indice, const PassataSweep& passata, int ancillaryKind) {
    const std::string riga = NumeroRiga(indice) + ": ";
    const std::string nome(NomePassata(passata, ancillaryKind));
    switch (passata.tipo) {
    case PassataSweep::Tipo::Linea:
        return riga + (ancillaryKind == kAncillaryQDSW3 ? "QDSW3: " : "Line: ") + nome;
    case PassataSweep::Tipo::Antenna:
        return riga + "Antenna: " + nome;
    case PassataSweep::Tipo::Semplice:
        break;
    }
    return riga;
}

} // namespace

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
    if (!ControllaUnita(indice) || !PercorriPassate(indice))
        return false;
    progresso_->FineRiga();
    return !Interrotta() || ControllaInterruzioni();
}

/// Between lines of different ranges the user switches units by hand. Ahead of the command, which
/// depends on the unit in charge.
bool Svolgimento::ControllaUnita(size_t indice) {
    const ScanLine& riga = scan_.Righe[indice];
    // With /NOCONTFREQ the receiver itself is left to say whether it can sweep the line.
    if (Acceso(r_.ambiente.RigaComando(), interruttore::kNoContFreq) ||
        !UnitaPerRiga(r_.modello, riga.Start, riga.Stop))
        return true;
    limite_ = {}; // which a unit that was switched off does not keep
    const ContestoControlli contesto{.tabella = scan_.Righe,
                                     .modello = r_.modello,
                                     .caps = r_.caps,
                                     .setup = s_.setup,
                                     .albero = s_.albero,
                                     .rigaComando = r_.ambiente.RigaComando()};
    const auto segna = [&](const std::vector<CellaErrata>& celle) {
        for (const ColonnaScan colonna : {ColonnaScan::Start, ColonnaScan::Stop})
            c_.vista.EvidenziaCella(static_cast<int>(indice), colonna,
                                    std::ranges::count(celle, CellaErrata{indice, colonna}) > 0);
    };
    const bool bene = ControlloRigaPerRigaST(r_, contesto, indice, segna);
    c_.vista.MostraModello();
    if (bene && !Interrotta())
        return true;
    if (!Interrotta()) {
        c_.stato.StopRichiesto = true;
        c_.stato.motivo = "line " + NumeroRiga(indice) + " needs another unit";
    }
    return ControllaInterruzioni();
}

bool Svolgimento::PercorriPassate(size_t indice) {
    const int kind = AncillaryDi(s_.setup);
    const auto passate = PassateDellaRiga(originale_[indice], kind);
    TracciaRiga file(s_, misura_, static_cast<int>(indice));
    for (size_t p = 0; p < passate.size(); ++p) {
        Fase(FaseCorsa::Riga);
        progresso_->IniziaPassata(static_cast<int>(p), NomePassata(passate[p], kind));
        if (!EseguiPassata(indice, passate[p], file))
            return false;
    }
    return true;
}

bool Svolgimento::EseguiPassata(size_t indice, const PassataSweep& passata, TracciaRiga& file) {
    if (!IniziaPassata(indice, passata, file))
        return false;
    const auto comando = PreparaComando(indice);
    if (!comando)
        return false;
    VisualizzaBatteria();
    if (Interrotta() || !PreparaIngresso(originale_[indice]))
        return ControllaInterruzioni();
    if (!MisuraPassata(indice, *comando, file))
        return false;
    Fase(FaseCorsa::Riga);
    RileggiHoldTimeSW(scan_.Righe[indice]);
    return !Interrotta() || ControllaInterruzioni();
}

/// Prompt and switches, then the files, which bear the name of the pass.
bool Svolgimento::IniziaPassata(size_t indice, const PassataSweep& passata, TracciaRiga& file) {
    const ScanLine& riga = originale_[indice];
    const int kind = AncillaryDi(s_.setup);
    const std::string nome(NomePassata(passata, kind));
    std::string testo;
    if (!VisMsgboxPromptStart(riga, nome) || !Commuta(riga, passata, testo) || Interrotta())
        return ControllaInterruzioni();
    if (!file.IniziaPassata(testo)) {
        r_.ambiente.Mostra({.testo = "Cannot open file " + s_.albero.DataRoot() + file.Percorso()});
        return Fallisci(EsitoCorsa::GuastoFile, "cannot write " + file.Percorso());
    }
    c_.vista.IniziaPassata({.riga = static_cast<int>(indice),
                            .nome = nome,
                            .base = file.Base(),
                            .etichetta = Etichetta(indice, passata, kind)});
    return true;
}

/// False: the user wanted out while the box stood.
bool Svolgimento::VisMsgboxPromptStart(const ScanLine& riga, std::string_view nome) {
    if (riga.PromptOn != 1)
        return true;
    const std::string dietro = nome.empty() ? "" : " (" + std::string(nome) + ")";
    r_.ambiente.Mostra({.testo = riga.Prompt + dietro, .icona = Icona::Informazione});
    return !Interrotta();
}

bool Svolgimento::Commuta(const ScanLine& riga, const PassataSweep& passata, std::string& testo) {
    switch (passata.tipo) {
    case PassataSweep::Tipo::Linea:
        return DeterminaEImpostaKRVLisn(r_, riga, AncillaryDi(s_.setup), passata.quale, testo);
    case PassataSweep::Tipo::Antenna:
        return DeterminaEImpostaKRVVH(r_, passata.quale, testo);
    case PassataSweep::Tipo::Semplice:
        break;
    }
    return true;
}

/// Limit and margin, then the command, with its frequency list. Empty: the run has failed.
std::optional<ComandoSweep> Svolgimento::PreparaComando(size_t indice) {
    const ScanLine& riga = originale_[indice];
    ComandoSweep comando{.testo = std::string(kTabellaNonInviabile)};
    if (ImpostaLimitiSweep(r_, s_.albero, riga, limite_) && ImpostaMargineSweep(r_, riga, limite_))
        comando = DeterminaComandoSweep(r_, s_, riga);
    if (Interrotta())
        ControllaInterruzioni();
    else if (comando.Inviabile())
        return comando;
    else
        Fallisci(EsitoCorsa::GuastoFile, "limit or frequency table of line " + NumeroRiga(indice));
    return std::nullopt;
}

/// What a line asks of the receiver right ahead of its command; false where the user wants out.
bool Svolgimento::PreparaIngresso(const ScanLine& riga) {
    if (HaGeneratore(r_.modello) && s_.setup.TGOn != 0)
        ImpostaTracking(r_, true);
    AttendiNellaCorsa(c_, kAttesaComandoS);
    if (!Interrotta())
        SettaRadCondK3XSweep(riga);
    return !Interrotta();
}

/// Gives the input that the line needs, on the models that have a conducted and a radiated one.
void Svolgimento::SettaRadCondK3XSweep(const ScanLine& riga) {
    if (!HaCondottoERadiato(r_.modello))
        return;
    InviaGrezzo(r_, "#SSTP*");
    Attendi(r_.ambiente, kAttesaStopS);
    r_.porta.SvuotaRicezione();
    if (VaAlRadiato(riga))
        ImpostaRadiato(r_);
    else
        ImpostaCondotto(r_);
}

bool Svolgimento::MisuraPassata(size_t indice, const ComandoSweep& comando, TracciaRiga& file) {
    Fase(FaseCorsa::Misura);
    ScanLine riga = originale_[indice];
    const Passata::Fine fine =
        Passata(c_, *progresso_, riga, file, HoldTimePerAttesa(riga)).Esegui(comando);
    scan_.Righe[indice].Step = riga.Step;
    const bool scritta = file.FinePassata();
    if (fine.esito == EsitoCorsa::Fermata)
        return ControllaInterruzioni();
    if (fine.esito != EsitoCorsa::Compiuta)
        return Fallisci(fine.esito, fine.motivo);
    if (scritta)
        return true;
    r_.ambiente.Mostra({.testo = "Cannot save file " + s_.albero.DataRoot() + file.Percorso(),
                        .icona = Icona::Esclamazione});
    return Fallisci(EsitoCorsa::GuastoFile, "cannot write " + file.Percorso());
}

/// An FFT scan takes longer than its line says; how long the receiver told after an earlier one.
float Svolgimento::HoldTimePerAttesa(const ScanLine& riga) const {
    const bool fft = r_.modello.TipoFrontEnd == kFrontEndFFT && ControllaScanFFT(riga);
    return fft ? std::max(riga.HoldTime, holdFFT_) : riga.HoldTime;
}

/// The hold time that the receiver really used goes into the header.
void Svolgimento::RileggiHoldTimeSW(ScanLine& riga) {
    const auto ms = LeggiNumero(LeggiHoldTime(r_));
    if (!ms || *ms <= 0 || *ms > kHoldMassimoMs)
        return;
    riga.HoldTime = static_cast<float>(*ms);
    if (ControllaScanFFT(riga))
        holdFFT_ = riga.HoldTime;
}

} // namespace orvane
