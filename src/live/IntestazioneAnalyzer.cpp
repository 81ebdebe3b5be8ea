#include "live/IntestazioneAnalyzer.h"

#include <bit>
#include <charconv>
#include <cmath>

#include "link/Livelli.h"
#include "records/Visite.h"

namespace orvane {
namespace {

// Offsets from the end of the line that acknowledges.
constexpr size_t kStart = 8;
constexpr size_t kStop = 12;
constexpr size_t kStep = 16;
constexpr size_t kRiferimento = 26;

constexpr double kHzPerMhz = 1e6;
constexpr double kMassimiPassi = 1001000;
// Closes the gap that the last bits of the frequencies leave.
constexpr double kTolleranzaPassi = 1e-6;

double LeggiMhz(const uint8_t* dati) {
    return double{std::bit_cast<float>(LeggiLittle<uint32_t>(dati))} / kHzPerMhz;
}

/// The value with the fewest digits that is the same single in Hz.
double Normalizza(double mhz) {
    char testo[32];
    const auto fine =
        std::to_chars(testo, testo + sizeof testo, static_cast<float>(mhz * kHzPerMhz),
                      std::chars_format::scientific);
    double hz = 0;
    std::from_chars(testo, fine.ptr, hz);
    return hz / kHzPerMhz;
}

/// Steps between start and stop.
double PassiSweep(const IntestazioneAnalyzer& intestazione) {
    return (intestazione.Stop - intestazione.Start) / intestazione.Step + kTolleranzaPassi;
}

/// What the reference level is a multiple of, in hundredths of a dB.
int32_t DivisoreRiferimento(const ReceiverModel& modello) {
    const bool altriDellaClasse = modello.IsK6X || modello.Is60OEM || modello.ModelloOEM != 0;
    return modello.HaK3XK6X && !altriDellaClasse ? 500 : 200;
}

} // namespace

IntestazioneAnalyzer
DecodificaIntestazione(std::span<const uint8_t, kByteIntestazioneAnalyzer> dati) {
    const int livelloDb = DecodificaLivello(dati[kRiferimento], dati[kRiferimento + 1]);
    return {.Start = LeggiMhz(&dati[kStart]),
            .Stop = LeggiMhz(&dati[kStop]),
            .Step = LeggiMhz(&dati[kStep]),
            .riferimentoCent = livelloDb * 100};
}

void FormattaSSSSweep(IntestazioneAnalyzer& intestazione) {
    for (double* mhz : {&intestazione.Start, &intestazione.Stop, &intestazione.Step})
        *mhz = Normalizza(*mhz);
}

bool ChkDataSweep(const IntestazioneAnalyzer& intestazione, const ReceiverModel& modello,
                  const ModelCaps& caps) {
    const double passi = PassiSweep(intestazione);
    // Each in its positive form: what is no number is in no range.
    const bool nellaGamma = intestazione.Start >= caps.FMinAn && intestazione.Stop <= caps.FMaxAn;
    const bool conPassi = intestazione.Step > 0 && passi >= 1 && passi < kMassimiPassi;
    return nellaGamma && conPassi &&
           intestazione.riferimentoCent % DivisoreRiferimento(modello) == 0;
}

size_t PuntiSweep(const IntestazioneAnalyzer& intestazione) {
    return static_cast<size_t>(std::floor(PassiSweep(intestazione))) + 1;
}

} // namespace orvane
