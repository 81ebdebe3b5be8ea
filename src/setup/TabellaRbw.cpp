#include "data/Misure.h"
#include "setup/TabellaScan.h"

namespace orvane {
namespace {

constexpr std::string_view kTrattini = "----------------";

constexpr std::array<VoceRbw, kNumRbw> kRbw = {{
    {.testo = "1 MHz", .codice = 9, .passoAuto = 0.25},
    {.testo = "120 kHz", .codice = 10, .passoAuto = 0.1},
    {.testo = "9 kHz", .codice = 6, .passoAuto = 0.005},
    {.testo = "200 Hz", .codice = 7, .passoAuto = 0.0001},
    {.testo = kTrattini},
    {.testo = "300 kHz", .codice = 1, .passoAuto = 0.1},
    {.testo = "100 kHz", .codice = 2, .passoAuto = 0.025},
    {.testo = "30 kHz", .codice = 3, .passoAuto = 0.01},
    {.testo = "10 kHz", .codice = 4, .passoAuto = 0.0025},
    {.testo = "3 kHz", .codice = 5, .passoAuto = 0.001},
    {.testo = "1 kHz", .codice = 8, .passoAuto = 0.00025},
    {.testo = kTrattini},
    {.testo = "10 kHz Mil", .codice = 11, .passoAuto = 0.0025},
    {.testo = "1 kHz Mil", .codice = 22, .passoAuto = 0.00025},
    {.testo = "100 Hz Mil", .codice = 23, .passoAuto = 2.5e-05},
    {.testo = "10 Hz Mil", .codice = 24, .passoAuto = 2.5e-06},
}};

/// Highest middle of a span, MHz, for each filter.
struct SogliaRbw {
    double finoMhz;
    int16_t rbwId;
};
constexpr std::array<SogliaRbw, 6> kSoglie = {
    {{0.001, 15}, {0.009, 14}, {0.15, 3}, {30, 2}, {1000, 1}, {18000, 0}}};

} // namespace

const std::array<VoceRbw, kNumRbw>& TabellaRbw() {
    return kRbw;
}

int16_t DetRBWDefault(double startMhz, double stopMhz) {
    const double mezzo = (startMhz + stopMhz) / 2;
    for (const SogliaRbw& soglia : kSoglie)
        if (mezzo <= soglia.finoMhz || StessaFrequenza(mezzo, soglia.finoMhz))
            return soglia.rbwId;
    return 0;
}

double DetStepAutoDaRBW(int rbwId, const ScanLine& riga) {
    constexpr double kPassoFFT = 0.00005; // 50 Hz
    if (ControllaScanFFT(riga))
        return kPassoFFT;
    return rbwId >= 0 && rbwId < kNumRbw ? kRbw[static_cast<size_t>(rbwId)].passoAuto : 0;
}

} // namespace orvane
