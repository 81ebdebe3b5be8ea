// What may be attached ahead of the receiver, by `AncillaryKind`: the entries of `CBXLisn`.
#pragma once

#include <array>

#include "records/SetupRecord.h"

namespace orvane {

struct VoceTipoAncillary {
    const char* testo;
    const char* aiuto;
};
inline constexpr std::array<VoceTipoAncillary, kMaxAncillaryKind + 1> kTipiAncillary = {{
    {"Nothing", "Nothing is switched; cables are changed by hand"},
    {"L2 KRV", "Two-line network: L1, L2"},
    {"L3 KRV", "Four-line network: N, L1, L2, L3"},
    {"Antenna V/H", "Antenna with two polarisations"},
    {"QDSW3", "Switch box: W, X, Y, Z"},
    {"Mast-Table", "Antenna mast and turntable"},
    {"L2 3360", "The network built into a 3360: L1, L2"},
}};
/// Of a kind as `AncillaryDi` gives it.
constexpr const VoceTipoAncillary& TipoAncillary(int kind) {
    return kTipiAncillary[static_cast<size_t>(kind)];
}

} // namespace orvane
