// Scales of the graph: units and their offsets, the vertical range, frequency to x and back, ticks
// and labels. Arithmetic only.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "records/SetupRecord.h"
#include "records/Unita.h"

namespace orvane {

/// Top and bottom of the vertical range that a unit allows, in hundredths of a dB. An offset that
/// the table does not know leaves both as they were.
void ImpostaLimitiScala(float unitOffset, int& scaleTop, int& scaleFloor);

/// Everything that `SetScaleGraph` computes. Levels in hundredths of a dB, frequencies in MHz.
struct ScalaGrafico {
    double start = 0;
    double stop = 0;
    bool logaritmica = true;
    double RangeDB = 0;
    double TopLevel = 0;
    double AttLevel = 0;
    double UnitOffset = 0; ///< dB
    int ScaleTop = 0;
    int ScaleFloor = 0;
    double basso = 0; ///< bottom of the grid, as its labels read
    double alto = 0;
    double larghezzaPixel = 0; ///< of the grid
    double XScale = 0;
    double XOffset = 0;
};

/// `refOffset`: the correction held by the mode, hundredths of a dB.
ScalaGrafico SetScaleGraph(const SetupRecord& setup, double startMhz, double stopMhz,
                           bool logaritmica, double larghezzaPixel, double refOffset);

/// Pixel of a frequency (MHz) from the left edge of the grid, whole; 0 for frequency 0, and 0 where
/// the result is beyond 10000 either way.
int FreqToX(const ScalaGrafico& scala, double freqMhz);
double XToFreq(const ScalaGrafico& scala, double x);
/// The same pixel before it is rounded, beyond the edges too; empty without an axis or a place on
/// it. Traces are drawn with it.
std::optional<double> PosizioneX(const ScalaGrafico& scala, double freqMhz);
/// Whether frequencies have a place: finite ends, start below stop, above 0 when logarithmic.
bool AsseValido(double startMhz, double stopMhz, bool logaritmica);

/// A frequency label: "150 k", "30 M", "1 G"; "0 Hz" and below with the plain unit. Empty when not
/// finite.
std::string FormatFreqLabel(double mhz);

/// ln 10 as the labelling has it.
inline constexpr double kLog10App = 2.3026;

/// A vertical line of the logarithmic grid.
struct Tacca {
    double freqMhz = 0;
    bool decade = false;   ///< on a power of ten
    std::string etichetta; ///< empty where there is none
};
/// The 1, 2, 3 to 9 of each decade inside start..stop, rising. Labels at 1, 2 and 5, or at each
/// where that would leave fewer than two; whoever draws leaves out what has no room.
std::vector<Tacca> CalcolaDecade(double startMhz, double stopMhz);

} // namespace orvane
