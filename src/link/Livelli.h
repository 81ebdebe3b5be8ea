// Levels as they come on the wire, of a run and of the Analyzer alike: two bytes each, low byte
// first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "records/SampleRecord.h"

namespace orvane {

inline constexpr size_t kByteLivello = 2;

/// The one decoder of wire levels: hundredths of a dB in dBuV.
constexpr int16_t DecodificaLivello(uint8_t basso, uint8_t alto) {
    const int v = alto * 256 + basso;
    // Minus 65535, not 65536: every stored trace relies on this one encoding.
    return static_cast<int16_t>(v > 32767 ? v - 65535 : v);
}

/// Steps of so many detectors, at least one, that are whole in so many bytes.
constexpr size_t PassiInteri(size_t byte, size_t detector) {
    return byte / (kByteLivello * detector);
}

/// Fills `livelli`, for which `dati` has all the bytes.
void DecodificaLivelli(std::span<const uint8_t> dati, std::span<int16_t> livelli);

/// Fills of each step the detectors that `quali` names, in their order on the wire; `dati` has all
/// the bytes. The other detectors have no level.
void DecodificaPassi(std::span<const uint8_t> dati, std::span<const int> quali,
                     std::span<SampleRecord> passi);

} // namespace orvane
