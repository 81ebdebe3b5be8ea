#include "setup/TabellaScan.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "data/Misure.h"
#include "data/NomiTabelle.h"

namespace orvane {
namespace {

enum Commutatore : size_t { kN, kL1, kL2, kL3 };

bool Nessuno(std::span<const int16_t> flag) {
    return std::all_of(flag.begin(), flag.end(), [](int16_t acceso) { return acceso == 0; });
}

void ImpostaAncillaryDefault(ScanLine& riga, int ancillaryKind) {
    switch (ancillaryKind) {
    case 1:
    case 6:
        riga.LineSwitch[kL1] = riga.LineSwitch[kL2] = 1;
        riga.LineSwitch[kN] = riga.LineSwitch[kL3] = 0;
        break;
    case 2:
    case 4:
        if (Nessuno(riga.LineSwitch))
            riga.LineSwitch.fill(1);
        break;
    case 3:
        if (Nessuno(riga.Antenna))
            riga.Antenna.fill(1);
        break;
    default:
        riga.LineSwitch.fill(0);
        riga.Antenna.fill(0);
    }
}

} // namespace

void ImpostaLineaDefault(ScanLine& riga, int ancillaryKind) {
    riga.PreSel = 1;
    riga.PreAmp = 0;
    riga.StepMode = 0;
    riga.AutoStep = 1;
    riga.FreqTable = kNessunaTabella;
    riga.MinAtt = 1;
    riga.HoldTime = 0;
    riga.Margin = 0;
    riga.Smart = 0;
    riga.Detector = {1};
    riga.LimitOn = 0;
    riga.Limit = kNessunaTabella;
    riga.PromptOn = 0;
    riga.Prompt.clear();
    riga.NumStepFT = 0;
    riga.HoldTimeSD = 0;
    riga.LimitDSDOn = 0;
    riga.LimitDSD = kNessunaTabella;
    ImpostaAncillaryDefault(riga, ancillaryKind);
}

bool ControllaScanFFT(const ScanLine& riga) {
    constexpr float kHoldFFT = 50;    // ms
    constexpr double kStopFFT = 0.15; // MHz
    constexpr double kSpanFFT = 0.005;
    const bool soloPeak = Nessuno(std::span(riga.Detector).subspan(1));
    const bool lunga = riga.Smart == 0 && riga.HoldTime >= kHoldFFT;
    const double span = riga.Stop - riga.Start;
    return (riga.Smart == 1 || soloPeak) && !lunga && riga.Stop <= kStopFFT &&
           (span >= kSpanFFT || StessaFrequenza(span, kSpanFFT));
}

void CompattaScanTable(ScanTable& tabella) {
    size_t meta = 0;
    for (ScanLine& riga : tabella) {
        if (riga.Start == 0)
            continue;
        if (&riga != &tabella[meta])
            tabella[meta] = std::move(riga);
        ++meta;
    }
    std::fill(tabella.begin() + static_cast<std::ptrdiff_t>(meta), tabella.end(), ScanLine{});
}

size_t RigheInUso(const ScanTable& tabella) {
    return static_cast<size_t>(std::count_if(tabella.begin(), tabella.end(),
                                             [](const ScanLine& riga) { return riga.Start != 0; }));
}

long long PassiDellaRiga(const ScanLine& riga) {
    // k x Step falls short of the span by its last bits; a millionth of a step closes the gap.
    constexpr double kTolleranza = 1e-6;
    constexpr double kMassimi = 1e15; // more is no sweep, and would not fit a count
    if (!(riga.Step > 0) || !(riga.Stop >= riga.Start))
        return 0;
    const double passi = std::floor((riga.Stop - riga.Start) / riga.Step + kTolleranza) + 1;
    return passi < kMassimi ? static_cast<long long>(passi) : 0;
}

} // namespace orvane
