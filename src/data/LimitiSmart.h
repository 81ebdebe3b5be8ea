// Limits that go to the receiver for the smart detectors.
#pragma once

#include <optional>
#include <string>
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

/// Whether the receiver can take the limit of a Smart line, or with `limiteDSD` the two joined.
EsitoLimiteSD GiudicaLimiteSD(const LimFacRecord& limite, const LimFacRecord* limiteDSD = nullptr);
/// What a box says of it; empty where all is well.
std::string TestoLimiteSD(EsitoLimiteSD esito);
/// The same with its box.
EsitoLimiteSD ControlloNMaxPuntiLimSD(Ambiente& ambiente, const LimFacRecord& limite,
                                      const LimFacRecord* limiteDSD = nullptr);

} // namespace orvane
