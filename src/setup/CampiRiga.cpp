#include "setup/CampiRiga.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "data/NomiTabelle.h"
#include "setup/ModificaTabella.h"
#include "setup/RegoleRiga.h"
#include "setup/TabellaScan.h"

namespace orvane {
namespace {

constexpr std::string_view kNessunaVoce = "-";

std::optional<bool> OnOff(std::string_view testo) {
    const std::string parola = Rifila(testo);
    const auto una = [&](auto... nomi) { return (UgualiSenzaMaiuscole(parola, nomi) || ...); };
    if (una("ON", "1", "TRUE"))
        return true;
    return una("OFF", "0", "FALSE") ? std::optional(false) : std::nullopt;
}

template <auto Campo> std::string TestoFlag(const ScanLine& riga) {
    return riga.*Campo == 1 ? "ON" : "OFF";
}
template <auto Campo> bool LeggiFlag(ScanLine& riga, std::string_view testo, int) {
    const auto acceso = OnOff(testo);
    if (acceso)
        riga.*Campo = *acceso ? 1 : 0;
    return acceso.has_value();
}
template <auto Campo> std::string TestoNumero(const ScanLine& riga) {
    return TestoDaNumero(riga.*Campo);
}
/// A number whose range `Modifica` keeps.
template <auto Modifica> bool LeggiConRegola(ScanLine& riga, std::string_view testo, int) {
    if (!LeggiNumero(testo))
        return false;
    Modifica(riga, testo);
    return true;
}
template <auto Campo> bool LeggiFrequenza(ScanLine& riga, std::string_view testo, int) {
    const auto mhz = LeggiNumero(testo);
    if (!mhz || !(*mhz > 0))
        return false;
    riga.*Campo = *mhz;
    return true;
}

std::string TestoStep(const ScanLine& riga) {
    return riga.Step > 0 ? TestoDaNumero(riga.Step) : "";
}
bool LeggiStep(ScanLine& riga, std::string_view testo, int) {
    if (!LeggiNumero(testo) || !ModificaStep(riga, testo, UnitaPasso::MHz))
        return false;
    riga.StepMode = 0;
    return true;
}

std::string TestoModo(const ScanLine& riga) {
    return riga.StepMode == 1 ? "TABLE" : "STEP";
}
bool LeggiModo(ScanLine& riga, std::string_view testo, int) {
    const bool tabella = UgualiSenzaMaiuscole(Rifila(testo), "TABLE");
    if (!tabella && !UgualiSenzaMaiuscole(Rifila(testo), "STEP"))
        return false;
    ModificaStepMode(riga, tabella ? 1 : 0);
    return true;
}

std::string TestoTabella(const ScanLine& riga) {
    return riga.FreqTable;
}
bool LeggiTabella(ScanLine& riga, std::string_view testo, int) {
    riga.FreqTable = NominaTabella(testo) ? Rifila(testo) : std::string(kNessunaTabella);
    ModificaStepMode(riga, NominaTabella(testo) ? 1 : 0);
    return true;
}

std::string TestoNumStep(const ScanLine& riga) {
    return TestoIntero(riga.NumStepFT);
}

bool LeggiSmart(ScanLine& riga, std::string_view testo, int) {
    const auto acceso = OnOff(testo);
    if (acceso && *acceso != (riga.Smart == 1))
        ModificaSmart(riga, *acceso);
    return acceso.has_value();
}

std::string TestoDetector(const ScanLine& riga) {
    return LettereDetector(riga);
}
bool LeggiDetectorDiRiga(ScanLine& riga, std::string_view testo, int ancillaryKind) {
    const auto detector = LeggiDetector(testo);
    return detector && ImpostaDetector(riga, *detector, ancillaryKind);
}

bool LeggiHold(ScanLine& riga, std::string_view testo, int) {
    const bool minimo = UgualiSenzaMaiuscole(Rifila(testo), "Lowest");
    if (!minimo && !LeggiNumero(testo))
        return false;
    ModificaHoldTime(riga, testo);
    return true;
}

std::string TestoRbw(const ScanLine& riga) {
    return TestoCella(riga, ColonnaScan::Rbw, 0);
}
bool LeggiRbw(ScanLine& riga, std::string_view testo, int) {
    const int id = TrovaRbw(testo);
    ScriviCellaScanLine(riga, ColonnaScan::Rbw, {}, id);
    return id >= 0;
}

std::string TestoMinAtt(const ScanLine& riga) {
    return TestoIntero(kMinAttDb[static_cast<size_t>(std::clamp<int>(riga.MinAtt, 0, 5))]);
}
bool LeggiMinAtt(ScanLine& riga, std::string_view testo, int) {
    const auto dB = LeggiNumero(testo);
    const auto voce = std::find(kMinAttDb.begin(), kMinAttDb.end(), dB.value_or(-1));
    if (voce == kMinAttDb.end())
        return false;
    riga.MinAtt = static_cast<int16_t>(voce - kMinAttDb.begin());
    return true;
}

template <CoppiaLimite Coppia> std::string TestoLimite(const ScanLine& riga) {
    return Coppia == CoppiaLimite::Prima ? riga.Limit : riga.LimitDSD;
}
template <CoppiaLimite Coppia> bool LeggiLimite(ScanLine& riga, std::string_view testo, int) {
    NomeLimite(riga, Coppia) = NominaTabella(testo) ? Rifila(testo) : std::string(kNessunaTabella);
    LimiteAcceso(riga, Coppia) = NominaTabella(testo) ? 1 : 0;
    return true;
}

std::string TestoPrompt(const ScanLine& riga) {
    return riga.Prompt;
}
bool LeggiPrompt(ScanLine& riga, std::string_view testo, int) {
    ModificaPrompt(riga, testo);
    riga.PromptOn = riga.Prompt.empty() ? 0 : 1;
    return true;
}

std::string NomiAccesi(std::span<const int16_t> flag, std::span<const std::string_view> nomi) {
    std::vector<std::string> accesi;
    for (size_t i = 0; i < flag.size(); ++i)
        if (flag[i] == 1)
            accesi.emplace_back(nomi[i]);
    return accesi.empty() ? std::string(kNessunaVoce) : Unisci(accesi, ",");
}

/// Flags from names of either list, the two as long as `flag`; "-" is none of them.
bool LeggiNomi(std::span<int16_t> flag, std::string_view testo,
               std::span<const std::string_view> nomi, std::span<const std::string_view> altri) {
    std::vector<int16_t> letti(flag.size());
    const auto voci = !NominaTabella(testo) || Rifila(testo) == kNessunaVoce
                          ? std::vector<std::string>{}
                          : Dividi(testo, ',');
    for (const std::string& voce : voci) {
        const auto suo = [&](std::string_view nome) {
            return UgualiSenzaMaiuscole(nome, Rifila(voce));
        };
        size_t i = 0;
        while (i < nomi.size() && !suo(nomi[i]) && !suo(altri[i]))
            ++i;
        if (i == nomi.size())
            return false;
        letti[i] = 1;
    }
    std::copy(letti.begin(), letti.end(), flag.begin());
    return true;
}

std::string TestoLinee(const ScanLine& riga) {
    return NomiAccesi(riga.LineSwitch, kNomiLinee);
}
bool LeggiLinee(ScanLine& riga, std::string_view testo, int) {
    return LeggiNomi(riga.LineSwitch, testo, kNomiLinee, kNomiUscite);
}
std::string TestoAntenna(const ScanLine& riga) {
    return NomiAccesi(riga.Antenna, kNomiAntenne);
}
bool LeggiAntenna(ScanLine& riga, std::string_view testo, int) {
    return LeggiNomi(riga.Antenna, testo, kNomiAntenne, kNomiAntenne);
}

using L = ScanLine;
constexpr std::string_view kNumero = "a number";
constexpr std::string_view kSopraZero = "a number above 0";
constexpr std::string_view kOnOff = "on or off";

// The filter and the lines' own marks stand before what follows from them; Smart, which reduces the
// detectors, before these; a name, which switches its mark on, before the mark.
constexpr std::array kCampi = {
    CampoRiga{"start", "Start [MHz]", TestoNumero<&L::Start>, LeggiFrequenza<&L::Start>,
              kSopraZero},
    CampoRiga{"stop", "Stop [MHz]", TestoNumero<&L::Stop>, LeggiFrequenza<&L::Stop>, kSopraZero},
    CampoRiga{"rbw", "RBW", TestoRbw, LeggiRbw, "a filter such as \"9 kHz\""},
    CampoRiga{"step", "Step [MHz]", TestoStep, LeggiStep, "a step above 0, in MHz"},
    CampoRiga{"auto-step", "Auto Step", TestoFlag<&L::AutoStep>, LeggiFlag<&L::AutoStep>, kOnOff},
    CampoRiga{"table", "Frequency Table", TestoTabella, LeggiTabella, "a name"},
    CampoRiga{"", "Step Mode", TestoModo, LeggiModo, "STEP or TABLE"},
    CampoRiga{"steps-between", "Steps Between", TestoNumStep, LeggiConRegola<ModificaNumStepFT>,
              kNumero},
    CampoRiga{"smart", "Smart", TestoFlag<&L::Smart>, LeggiSmart, kOnOff},
    CampoRiga{"detector", "Detector", TestoDetector, LeggiDetectorDiRiga,
              "some of P, Q, R, A, N, C; two at most with Smart, one with a mast"},
    CampoRiga{"hold", "Hold Time [ms]", TestoNumero<&L::HoldTime>, LeggiHold, kNumero},
    CampoRiga{"peak-hold", "Peak Scan Hold Time [ms]", TestoNumero<&L::HoldTimeSD>,
              LeggiConRegola<ModificaHoldTimeSD>, kNumero},
    CampoRiga{"margin", "Margin [dB]", TestoNumero<&L::Margin>, LeggiConRegola<ModificaMargin>,
              kNumero},
    CampoRiga{"limit", "Limit", TestoLimite<CoppiaLimite::Prima>, LeggiLimite<CoppiaLimite::Prima>,
              "a name"},
    CampoRiga{"", "Limit On", TestoFlag<&L::LimitOn>, LeggiFlag<&L::LimitOn>, kOnOff},
    CampoRiga{"limit-dsd", "Limit DSD", TestoLimite<CoppiaLimite::DSD>,
              LeggiLimite<CoppiaLimite::DSD>, "a name"},
    CampoRiga{"", "Limit DSD On", TestoFlag<&L::LimitDSDOn>, LeggiFlag<&L::LimitDSDOn>, kOnOff},
    CampoRiga{"min-att", "Min Att [dB]", TestoMinAtt, LeggiMinAtt, "0, 10, 20, 30, 40 or 50"},
    CampoRiga{"preamp", "Pre Amp", TestoFlag<&L::PreAmp>, LeggiFlag<&L::PreAmp>, kOnOff},
    CampoRiga{"presel", "Pre Sel", TestoFlag<&L::PreSel>, LeggiFlag<&L::PreSel>, kOnOff},
    CampoRiga{"prompt", "Prompt", TestoPrompt, LeggiPrompt, "a text"},
    CampoRiga{"", "Prompt On", TestoFlag<&L::PromptOn>, LeggiFlag<&L::PromptOn>, kOnOff},
    CampoRiga{"lines", "Lines", TestoLinee, LeggiLinee, "some of N, L1, L2, L3 or W, X, Y, Z"},
    CampoRiga{"antenna", "Antenna", TestoAntenna, LeggiAntenna, "V, H or both"},
};

} // namespace

std::span<const CampoRiga> TabellaCampiRiga() {
    return kCampi;
}

bool ImpostaDetector(ScanLine& riga, const std::array<int16_t, kNumDetector>& detector,
                     int ancillaryKind) {
    const auto quanti = std::count(detector.begin(), detector.end(), int16_t{1});
    const int massimo = ancillaryKind == kAncillaryMastTable ? 1 : riga.Smart == 1 ? 2 : 6;
    if (quanti < 1 || quanti > massimo)
        return false;
    riga.Detector = detector;
    return true;
}

int TrovaRbw(std::string_view testo) {
    const auto ridotto = [](std::string_view t) { return Maiuscolo(Sostituisci(t, " ", "")); };
    for (size_t i = 0; i < TabellaRbw().size(); ++i)
        if (!TabellaRbw()[i].Separatore() && ridotto(TabellaRbw()[i].testo) == ridotto(testo))
            return static_cast<int>(i);
    return -1;
}

} // namespace orvane
