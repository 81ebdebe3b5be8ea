// One frequency step of a trace file, and the positions that go with it.
#pragma once

#include <array>
#include <cstdint>

#include "records/ScanRecord.h"

namespace orvane {

/// Hundredths of a dB in dBuV: a detector that was not measured at this step. Values at or below
/// it never enter a maximum or a comparison.
inline constexpr int16_t kNessunLivello = -20000;

/// The element of an RS file, twelve bytes: levels in hundredths of a dB in dBuV, by
/// `DetectorKind`.
struct SampleRecord {
    std::array<int16_t, kNumDetector> Livello = {kNessunLivello, kNessunLivello, kNessunLivello,
                                                 kNessunLivello, kNessunLivello, kNessunLivello};
};

template <class Visita> constexpr void Campi(Visita& v, SampleRecord& r) {
    for (auto& x : r.Livello)
        v.I16(x, "Livello");
}
inline constexpr size_t kByteCampione = 12;
static_assert(DimensioneSuDisco<SampleRecord>() == kByteCampione);

/// Where mast or table has no position.
inline constexpr int16_t kNessunaPosizione = -1;

/// The element of a TM file, four bytes.
struct PositionRecord {
    int16_t Mast = 0;  ///< cm
    int16_t Table = 0; ///< degrees
};

template <class Visita> constexpr void Campi(Visita& v, PositionRecord& r) {
    v.I16(r.Mast, "Mast");
    v.I16(r.Table, "Table");
}
inline constexpr size_t kBytePosizione = 4;
static_assert(DimensioneSuDisco<PositionRecord>() == kBytePosizione);

} // namespace orvane
