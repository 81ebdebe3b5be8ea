// A limit or a factor: a curve of level against frequency, the whole of a 5SL or 5SC file.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "records/Visite.h"

namespace orvane {

/// Hundredths of a dB: a curve has no value here.
inline constexpr int16_t kNessunValore = 16383;

struct LimFacRecord {
    /// Hz, rising; 0 ends the curve. Two equal neighbours make a vertical step.
    std::array<float, 202> Freq{};
    std::array<int16_t, 201> Value{}; ///< hundredths of a dB in dBµV; none for the last frequency
    int16_t LastSegment = 0;          ///< where the last lookup ended: a pure speed-up
    std::string Title;
    int16_t LinFreq = 0; ///< 1: straight on a linear frequency axis; factors always are
    int16_t UnitId = 1;  ///< 0 to 7: unit in which the table was entered
    std::array<uint8_t, 404> Reserved0{};
    std::array<uint8_t, 202> Reserved1{};
    std::array<uint8_t, 100> Reserved2{};
};
using LimitTable = LimFacRecord;
using FactorTable = LimFacRecord;

inline constexpr size_t kLarghezzaTitolo = 50;

/// The fields of the earlier format, which are also the first of today's.
template <class Visita> constexpr void CampiVecchi(Visita& v, LimFacRecord& r) {
    for (auto& x : r.Freq)
        v.F32(x, "Freq");
    for (auto& x : r.Value)
        v.I16(x, "Value");
    v.I16(r.LastSegment, "LastSegment");
    v.Testo(r.Title, kLarghezzaTitolo, "Title");
}

template <class Visita> constexpr void Campi(Visita& v, LimFacRecord& r) {
    CampiVecchi(v, r);
    v.I16(r.LinFreq, "LinFreq");
    v.I16(r.UnitId, "UnitId");
    v.Riserva(r.Reserved0, "Reserved0");
    v.Riserva(r.Reserved1, "Reserved1");
    v.Riserva(r.Reserved2, "Reserved2");
}

consteval size_t DimensioneLimFacVecchio() {
    MisuratoreCampi misuratore;
    CampiVecchi(misuratore, RecordFinto<LimFacRecord>::record);
    return misuratore.byte;
}
inline constexpr size_t kByteLimFac = 1972;
inline constexpr size_t kByteLimFacVecchio = 1262;
static_assert(DimensioneSuDisco<LimFacRecord>() == kByteLimFac);
static_assert(DimensioneLimFacVecchio() == kByteLimFacVecchio);

} // namespace orvane
