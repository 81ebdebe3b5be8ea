// A list of spot frequencies, with the level found there, and in the Mast-Table form with
// positions: the whole of a 5SF or FTM file.
#pragma once

#include <array>
#include <cstdint>

#include "records/SampleRecord.h"

namespace orvane {

/// The 14-byte element; the 10-byte one has only its first two fields.
struct FreqTableElem {
    double Freq = 0;   ///< MHz; 0 ends the list
    int16_t Level = 0; ///< hundredths of a dB in dBµV
    int16_t Mast = 0;  ///< cm
    int16_t Table = 0; ///< degrees
};

inline constexpr size_t kMaxFreqTable = 202;

/// Content of an FTM file, and the form that memory works on.
struct FrequencyTable {
    std::array<FreqTableElem, kMaxFreqTable> Elementi{};
};

template <class Visita> constexpr void Campi(Visita& v, FrequencyTable& r) {
    for (FreqTableElem& e : r.Elementi) {
        v.F64(e.Freq, "Freq");
        v.I16(e.Level, "Level");
        v.I16(e.Mast, "Mast");
        v.I16(e.Table, "Table");
    }
}

/// Content of a 5SF file.
struct FreqTable5SF {
    struct Elem {
        double Freq = 0;
        int16_t Level = 0;
    };
    std::array<Elem, kMaxFreqTable> Elementi{};
};

template <class Visita> constexpr void Campi(Visita& v, FreqTable5SF& r) {
    for (FreqTable5SF::Elem& e : r.Elementi) {
        v.F64(e.Freq, "Freq");
        v.I16(e.Level, "Level");
    }
}

inline constexpr size_t kByteFTM = 2828;
inline constexpr size_t kByte5SF = 2020;
static_assert(DimensioneSuDisco<FrequencyTable>() == kByteFTM);
static_assert(DimensioneSuDisco<FreqTable5SF>() == kByte5SF);

} // namespace orvane
