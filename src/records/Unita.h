// Units of levels: each a constant offset in dB from dBµV.
#pragma once

#include <array>
#include <string>

namespace orvane {

/// A unit: level in the unit = level in dBµV + (parteA + parteB) / 10.
struct VoceUnita {
    std::string testo; ///< with the micro sign
    int parteA = 0;    ///< tenths of a dB
    int parteB = 0;
    bool chiedeFattore = false; ///< a field unit: only with a conversion factor
    float Offset() const { return static_cast<float>(parteA + parteB) / 10.0f; }
};
/// By `UnitId` 0 to 7.
const std::array<VoceUnita, 8>& TabellaUnitaGrafico();
/// `UnitOffset` in dB of a unit; an index outside the list counts as 1, dBµV.
float ImpostaUnita(int unitId);

} // namespace orvane
