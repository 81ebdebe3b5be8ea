// Frequency limits of the live modes, and the border between the conducted and the radiated range.
#pragma once

#include <optional>

#include "link/ComuniVivi.h"

namespace orvane {

struct CampoFrequenza {
    double startMhz = 0;
    double stopMhz = 0;
    bool operator==(const CampoFrequenza&) const = default;
};

enum class GammaK3X { Condotta, Radiata };

/// The range that a wanted span needs, where it is not the one in charge: above 30.1 MHz the
/// radiated, below 28 MHz the conducted one; between them the range stays.
std::optional<GammaK3X> PassaggioGamma(const ReceiverModel& modello, const CampoFrequenza& voluto);
/// Asks, and on OK puts the receiver into the other range and identifies it anew. False: the range
/// stays, or the user gave up.
bool CambiaGamma(ComuniVivi& c, GammaK3X gamma, Modalita modalita);

/// Limited to the limits of Analyzer; for receivers with one range and for extension units.
CampoFrequenza DeterminaLimFStartFStopAn5570(const ModelCaps& caps, const CampoFrequenza& voluto);
/// The same across the border. Empty: the frequency stays.
std::optional<CampoFrequenza> DeterminaLimFStartFStopAnK3X(ComuniVivi& c,
                                                           const CampoFrequenza& voluto);
/// A frequency of Manual, likewise.
std::optional<double> DeterminaLimFreqMaK3X3360(ComuniVivi& c, double mhz);

} // namespace orvane
