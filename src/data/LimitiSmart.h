// Limits that go to the receiver for the smart detectors.
#pragma once

#include <optional>
#include <vector>

#include "base/Ambiente.h"
#include "records/LimFacRecord.h"

namespace orvane {

/// Points that the receiver takes for one limit.
inline constexpr size_t kMaxPuntiLimite = 16;

/// A frequency of two limits joined, with the level of each in hundredths of a dB in dBµV.
struct PuntoDSD {
    float freqHz = 0;
    int16_t livello1 = 0;
    int16_t livello2 = 0;
    bool operator==(const PuntoDSD&) const = default;
};

/// The joint list of the Double Smart Detector: over the range that both limits cover, the points
/// of both, each limit read on its own axis where only the other has a point. A step of either
/// gives two points at its frequency. Empty where they share no range.
std::optional<std::vector<PuntoDSD>> CreaElencoFreqLimDSD(const LimFacRecord& limite,
                                                          const LimFacRecord& limiteDSD);

enum class EsitoLimiteSD { Buono, NonCombinabile, TroppiPunti, PocheFrequenze };

/// Why the receiver cannot take the limit of a Smart line, or with `limiteDSD` the two joined;
/// without text where it can.
Riquadro ObiezioneLimiteSD(const LimFacRecord& limite, const LimFacRecord* limiteDSD = nullptr);
/// Whether it can; where not, a box has said so.
EsitoLimiteSD ControlloNMaxPuntiLimSD(Ambiente& ambiente, const LimFacRecord& limite,
                                      const LimFacRecord* limiteDSD = nullptr);

} // namespace orvane
