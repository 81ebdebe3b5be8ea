// The map of `GraphColors`: which entry colours what, and the factory table.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "records/EnvRecord.h"

namespace orvane {

inline constexpr size_t kNumColori = 50;

/// Indices into `GraphColors`. Where a name stands for several entries, they follow it.
namespace colore {
inline constexpr size_t kPunteggiata = 0; ///< grid line every 5 dB, screen
inline constexpr size_t kPunteggiataStampa = 1;
inline constexpr size_t kSotto = 2; ///< grid line every 10 dB and of the frequencies, screen
inline constexpr size_t kSottoStampa = 3;
inline constexpr size_t kPrincipale = 4; ///< grid line every 20 dB, screen
inline constexpr size_t kPrincipaleStampa = 5;
inline constexpr size_t kTracce = 6;          ///< six, by `DetectorKind`
inline constexpr size_t kTracceSeconde = 12;  ///< six, of the second group
inline constexpr size_t kTracceScure = 18;    ///< four darker shades
inline constexpr size_t kEtichette = 22;      ///< numbers and units along the axes
inline constexpr size_t kCornice = 23;        ///< frame of the grid
inline constexpr size_t kLimiti = 24;         ///< ten, by limit slot
inline constexpr size_t kMarcatori = 34;      ///< ten, by marker
inline constexpr size_t kDetRefMeas = 44;     ///< trace of the reference measure
inline constexpr size_t kDetCompMeas = 45;    ///< trace of the compared measure
inline constexpr size_t kPicchi = 46;         ///< symbols on peaks
inline constexpr size_t kZoom = 47;           ///< rectangle that is being drawn with the mouse
inline constexpr size_t kLettura = 48;        ///< text of frequency and level under the mouse
inline constexpr size_t kLivelloManuale = 49; ///< bar of the Manual mode
} // namespace colore

/// Grid, labels, limits and markers are mid tones: they must show on a dark and on a light picture.
inline constexpr std::array<int32_t, kNumColori> kColoriDefault = {
    Rgb(136, 136, 136), Rgb(170, 170, 170), // dotted line, screen and print
    Rgb(128, 128, 128), Rgb(128, 128, 128), // sub line
    Rgb(118, 122, 130), Rgb(64, 64, 64),    // main line
    // Peak, QPeak, Rms, Avg, Rms-Avg, C-Avg
    Rgb(244, 151, 23), Rgb(255, 0, 0), Rgb(0, 251, 0), Rgb(255, 0, 128), Rgb(0, 0, 255),
    Rgb(53, 57, 106),
    // the second group
    Rgb(244, 151, 23), Rgb(255, 0, 0), Rgb(0, 251, 0), Rgb(255, 0, 128), Rgb(0, 0, 255),
    Rgb(53, 57, 106),
    // darker shades
    Rgb(142, 85, 6), Rgb(150, 0, 0), Rgb(0, 147, 0), Rgb(150, 0, 75), Rgb(128, 132, 140),
    Rgb(120, 124, 132), // labels, frame
    // limits
    Rgb(214, 64, 64), Rgb(40, 136, 204), Rgb(196, 124, 20), Rgb(134, 96, 208), Rgb(20, 150, 122),
    Rgb(196, 78, 150), Rgb(136, 136, 24), Rgb(84, 146, 64), Rgb(166, 104, 70), Rgb(96, 120, 168),
    // markers
    Rgb(30, 144, 255), Rgb(220, 90, 40), Rgb(40, 160, 80), Rgb(170, 90, 200), Rgb(190, 140, 0),
    Rgb(0, 150, 170), Rgb(210, 70, 120), Rgb(120, 130, 60), Rgb(110, 110, 220), Rgb(150, 110, 90),
    Rgb(30, 144, 255), Rgb(214, 110, 30), // reference and compared measure
    Rgb(220, 60, 60), Rgb(30, 144, 255),  // peaks, zoom
    Rgb(128, 132, 140), Rgb(0, 160, 110), // readout, bar of the Manual mode
};

} // namespace orvane
