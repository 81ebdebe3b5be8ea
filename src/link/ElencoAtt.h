// The lists of attenuations and of minimum attenuations, by model.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "link/ReceiverModel.h"

namespace orvane {

/// Attenuation that the receiver chooses itself, as it is sent and stored.
inline constexpr int kAttAuto = -1;
/// By `MinAtt`; a scan line has all of them, a live mode those of `ElencoMinAtt`.
inline constexpr std::array<int, 6> kMinAttDb = {0, 10, 20, 30, 40, 50};

/// dB of `CBXAttenuator`, `kAttAuto` first. `antenna`: the rod antenna of the GX2207 is on.
std::vector<int> ElencoAtt(const ReceiverModel& modello, bool antenna);
/// dB of `CBXMinAtt`.
std::span<const int> ElencoMinAtt(const ReceiverModel& modello, bool antenna);
/// The row of a stored attenuation: the first that is not less; beyond the list, its last row.
size_t RigaAtt(std::span<const int> elenco, int dB);

} // namespace orvane
