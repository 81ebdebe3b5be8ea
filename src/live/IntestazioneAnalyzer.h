// The header in front of each sweep of the Analyzer: what it holds, and whether it can be believed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "link/ReceiverModel.h"

namespace orvane {

inline constexpr size_t kByteIntestazioneAnalyzer = 48;
/// The header is read once the first byte of the samples is there too.
inline constexpr size_t kMinimiIntestazioneAnalyzer = kByteIntestazioneAnalyzer + 1;

/// Frequencies in MHz.
struct IntestazioneAnalyzer {
    double Start = 0;
    double Stop = 0;
    double Step = 0;
    int32_t riferimentoCent = 0; ///< reference level of the display, hundredths of a dB

    bool operator==(const IntestazioneAnalyzer&) const = default;
};

/// `dati` begins behind the line that acknowledges, and holds the whole header.
IntestazioneAnalyzer
DecodificaIntestazione(std::span<const uint8_t, kByteIntestazioneAnalyzer> dati);

/// The reference level for the grid: to whole fives of dB, in hundredths.
constexpr int32_t RiferimentoGriglia(int32_t riferimentoCent) {
    return (riferimentoCent / 100 + 2) / 5 * 500;
}

/// Takes off the three frequencies what single precision has put behind their digits, by way of
/// their shortest text.
void FormattaSSSSweep(IntestazioneAnalyzer& intestazione);

/// Whether the header is one of a sweep that this receiver can make. `caps`: limits of the unit in
/// charge.
bool ChkDataSweep(const IntestazioneAnalyzer& intestazione, const ReceiverModel& modello,
                  const ModelCaps& caps);

/// Points of the sweep. Of a header that `ChkDataSweep` accepts, with the frequencies as they came:
/// so the receiver counts them.
size_t PuntiSweep(const IntestazioneAnalyzer& intestazione);

} // namespace orvane
