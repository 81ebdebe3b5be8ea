// Sweep commands, field by field.
#include "simulator/SweepSimulato.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <optional>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "records/ScanRecord.h"

namespace orvane {
namespace {

/// Numbers of "SFD=ERR": the parameter that is wrong.
enum ErroreSweep {
    kNessuno,
    kFrequenze,
    kPasso,
    kDetector,
    kHoldTime,
    kRbw,
    kMinAtt,
    kPreAmp,
    kPreSel
};

/// Fields of the command, in their order.
enum Campo { kStart, kStop, kStep, kDet, kHold, kFiltro, kAtt, kAmp, kSel, kHoldSD, kNumCampi };

/// Finest raster that a sweep still has sensible lengths with.
constexpr double kPassiMassimi = 1e10;

struct Richiesta {
    std::vector<std::string> campi;
    bool passoImposto = false;
    PassoSimulato passo;
    double holdMs = 0;
};

ErroreSweep LeggiFrequenze(const MemoriaSimulata& memoria, Richiesta& r) {
    const auto start = LeggiNumero(r.campi[kStart]);
    const auto stop = LeggiNumero(r.campi[kStop]);
    const GammaSimulata gamma = GammaInCarico(memoria);
    // Half a hertz of slack: the ends come as text of a product.
    if (!start || !stop || *start > *stop || *start < gamma.minHz - 0.5 ||
        *stop > gamma.maxHz + 0.5)
        return kFrequenze;
    r.passo.startHz = *start;
    r.passo.stopHz = *stop;
    return kNessuno;
}

/// The rows of the uploaded frequency table, in Hz.
std::vector<double> TabellaFrequenze(const MemoriaSimulata& memoria) {
    std::vector<double> frequenze;
    if (const auto righe = memoria.righe.find("SFW"); righe != memoria.righe.end())
        for (const std::string& riga : righe->second)
            frequenze.push_back(ValoreIniziale(riga));
    return frequenze;
}

ErroreSweep LeggiPasso(const MemoriaSimulata& memoria, Richiesta& r) {
    const auto passo = LeggiNumero(r.campi[kStep]);
    if (!passo || *passo < 0)
        return kPasso;
    r.passo.stepHz = *passo;
    if (*passo > 0)
        return (r.passo.stopHz - r.passo.startHz) / *passo < kPassiMassimi ? kNessuno : kPasso;
    r.passo.frequenze = TabellaFrequenze(memoria);
    const bool valide = std::ranges::all_of(r.passo.frequenze, [](double hz) { return hz >= 1; });
    return r.passo.frequenze.size() >= 2 && valide ? kNessuno : kPasso;
}

/// Letters in the order of `DetectorKind`, each at most once; an "S" before them marks a Smart
/// line.
ErroreSweep LeggiDetector(Richiesta& r) {
    std::string_view lettere = r.campi[kDet];
    if (!lettere.empty() && lettere[0] == 'S')
        lettere.remove_prefix(1);
    for (const char lettera : lettere) {
        const auto quale = std::ranges::find(kLettereDetector, lettera);
        const auto indice = static_cast<uint8_t>(quale - kLettereDetector.begin());
        if (quale == kLettereDetector.end() ||
            (!r.passo.detector.empty() && r.passo.detector.back() >= indice))
            return kDetector;
        r.passo.detector.push_back(indice);
    }
    return lettere.empty() ? kDetector : kNessuno;
}

ErroreSweep LeggiHold(Richiesta& r) {
    const auto hold = LeggiNumero(r.campi[kHold]);
    const auto holdSD = LeggiNumero(r.campi[kHoldSD]);
    if (!hold || *hold < 0 || !holdSD || *holdSD < 0)
        return kHoldTime;
    r.holdMs = std::max(*hold, *holdSD);
    return kNessuno;
}

/// Filters that one of the two kinds of range lacks.
bool FiltroDisponibile(const MemoriaSimulata& memoria, int codice) {
    constexpr int kSoloAlta[] = {9, 10};
    constexpr int kSoloBassa[] = {7, 11, 22, 23, 24};
    const bool alta = GammaInCarico(memoria).maxHz > 30.1e6;
    return alta ? std::ranges::count(kSoloBassa, codice) == 0
                : std::ranges::count(kSoloAlta, codice) == 0;
}

ErroreSweep LeggiFiltro(const MemoriaSimulata& memoria, Richiesta& r) {
    const auto codice = LeggiNumero(r.campi[kFiltro]);
    if (!codice || *codice != std::floor(*codice))
        return kRbw;
    r.passo.condizioni.rbwHz = RbwDaCodice(static_cast<int>(*codice));
    const bool noto = r.passo.condizioni.rbwHz > 0;
    return noto && FiltroDisponibile(memoria, static_cast<int>(*codice)) ? kNessuno : kRbw;
}

ErroreSweep LeggiAttenuazione(Richiesta& r) {
    const auto att = LeggiNumero(r.campi[kAtt]);
    if (!att || *att < 0 || *att > 50 || std::fmod(*att, 10) != 0)
        return kMinAtt;
    r.passo.condizioni.attDb = static_cast<int>(*att);
    return kNessuno;
}

std::optional<bool> LeggiOnOff(std::string_view testo) {
    if (testo == "ON")
        return true;
    return testo == "OFF" ? std::optional(false) : std::nullopt;
}

ErroreSweep LeggiPreAmp(Richiesta& r) {
    const auto acceso = LeggiOnOff(r.campi[kAmp]);
    r.passo.condizioni.preAmp = acceso.value_or(false);
    return acceso ? kNessuno : kPreAmp;
}

ErroreSweep LeggiPreSel(const MemoriaSimulata& memoria, const Richiesta& r) {
    const auto acceso = LeggiOnOff(r.campi[kSel]);
    return acceso && (!*acceso || memoria.modello->conPreselettore) ? kNessuno : kPreSel;
}

/// Checks in the order of the numbers: the first wrong one is told.
ErroreSweep LeggiCampi(const MemoriaSimulata& memoria, Richiesta& r) {
    ErroreSweep errore = LeggiFrequenze(memoria, r);
    if (errore == kNessuno)
        errore = LeggiPasso(memoria, r);
    if (errore == kNessuno)
        errore = LeggiDetector(r);
    if (errore == kNessuno)
        errore = LeggiHold(r);
    if (errore == kNessuno)
        errore = LeggiFiltro(memoria, r);
    if (errore == kNessuno)
        errore = LeggiAttenuazione(r);
    if (errore == kNessuno)
        errore = LeggiPreAmp(r);
    if (errore == kNessuno)
        errore = LeggiPreSel(memoria, r);
    return errore;
}

/// IEEE single, low byte first.
void ScriviSingolo(std::string& testo, size_t dove, double valore) {
    const auto bit = std::bit_cast<uint32_t>(static_cast<float>(valore));
    for (size_t i = 0; i < 4; ++i)
        testo[dove + i] = static_cast<char>(bit >> (8 * i));
}

/// A 5520F of this kind steps by its own raster unless the step is imposed.
bool PassoAutomatico(const MemoriaSimulata& memoria, const Richiesta& r) {
    return memoria.modello->conIntestazione && VersioneInUso(memoria) >= 1.44 && !r.passoImposto &&
           r.passo.stepHz > 0;
}

/// The span of the Analyzer as floats carry it, so that both ends count the same steps.
PassoSimulato PassoAnalyzer(const MemoriaSimulata& memoria) {
    PassoSimulato passo;
    const GammaSimulata gamma = GammaInCarico(memoria);
    const std::vector<std::string> estremi = Dividi(
        ValoreOppure(memoria, "AFF", TestoDaNumero(gamma.minHz) + "," + TestoDaNumero(gamma.maxHz)),
        ',');
    passo.startHz = static_cast<float>(ValoreIniziale(estremi.front()));
    passo.stopHz = static_cast<float>(ValoreIniziale(estremi.back()));
    const int filtro = static_cast<int>(NumeroOppure(memoria, "RBW", 0));
    passo.condizioni = {.rbwHz = RbwDaCodice(FiltroPer(memoria, filtro, passo.stopHz)),
                        .attDb = AttenuatorePer(memoria, "AAT"),
                        .preAmp = ValoreOppure(memoria, "APA", "OFF") == "ON",
                        .seme = memoria.seme,
                        .rete = ReteInUso(memoria)};
    // At least 500 steps in a narrow span, at most a million in a wide one.
    const double spanHz = passo.stopHz - passo.startHz;
    passo.stepHz = static_cast<float>(
        std::max(std::min(passo.condizioni.rbwHz / 2, spanHz / 500), spanHz / 1e6));
    passo.detector = {static_cast<uint8_t>(NumeroOppure(memoria, "ADT", 0))};
    return passo;
}

std::string IntestazioneAnalyzer(const MemoriaSimulata& memoria, const PassoSimulato& passo) {
    std::string testa(48, '\0');
    ScriviSingolo(testa, 8, passo.startHz);
    ScriviSingolo(testa, 12, passo.stopHz);
    ScriviSingolo(testa, 16, passo.stepHz);
    // The reference goes in whole tens of dB: every model's rule for it holds.
    const std::vector<std::string> dinamica = Dividi(ValoreOppure(memoria, "DIS", "100;100"), ';');
    const auto livello =
        static_cast<int16_t>(std::lround(ValoreIniziale(dinamica.back()) / 10) * 10);
    const auto coppia = CodificaLivello(livello);
    testa[26] = static_cast<char>(coppia[0]);
    testa[27] = static_cast<char>(coppia[1]);
    return testa;
}

} // namespace

SweepAvviato AvviaSweep(MemoriaSimulata& memoria, std::string_view campi) {
    Richiesta r;
    r.passoImposto = !campi.empty() && campi[0] == 'S';
    if (r.passoImposto)
        campi.remove_prefix(1);
    r.campi = Dividi(campi, ';');
    r.campi.resize(kNumCampi);
    for (std::string& campo : r.campi)
        campo = Rifila(campo);
    r.passo.condizioni.seme = memoria.seme;
    r.passo.condizioni.rete = ReteInUso(memoria);
    if (const ErroreSweep errore = LeggiCampi(memoria, r); errore != kNessuno)
        return {.errore = errore, .flusso = nullptr};

    if (PassoAutomatico(memoria, r))
        r.passo.stepHz = r.passo.condizioni.rbwHz / 2;
    memoria.holdInUso = HoldEffettivo(r.holdMs, r.passo.condizioni.rbwHz);
    std::string testa;
    if (memoria.modello->conIntestazione) {
        testa.assign(32, '\0');
        ScriviSingolo(testa, 0, r.passo.stepHz);
    }
    return {.errore = 0,
            .flusso =
                std::make_unique<FlussoCampioni>(std::move(r.passo), std::move(testa), "SFD_END")};
}

std::unique_ptr<FlussoCampioni> AvviaAnalyzer(const MemoriaSimulata& memoria) {
    PassoSimulato passo = PassoAnalyzer(memoria);
    std::string testa = IntestazioneAnalyzer(memoria, passo);
    return std::make_unique<FlussoCampioni>(std::move(passo), std::move(testa), "");
}

} // namespace orvane
