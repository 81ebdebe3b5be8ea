// The highest peaks of a trace, and the way from one to the next.
#pragma once

#include <optional>
#include <vector>

#include "data/Traccia.h"
#include "graph/Grafico.h"

namespace orvane {

struct Picco {
    double freqMhz = 0;
    int16_t livelloCent = 0; ///< hundredths of a dB in dBµV, factors included
    size_t indice = 0;       ///< of its sample in the trace
    bool operator==(const Picco&) const = default;
};
/// The peaks of each detector, by `DetectorKind`; empty for one that was not searched.
using PicchiMisura = std::array<std::vector<Picco>, kNumDetector>;

/// How far a peak must rise above the higher of the two lowest points between it and the next
/// higher ground on either side, dB; towards an end of the trace or a gap only the other side
/// counts. The highest of a piece rises from its lowest point; of two equal grounds the left one
/// counts as the higher. So a sample that stands alone, or among none but equals, is no peak.
inline constexpr double kEmergenzaPicco = 6;

/// Local maxima of a detector that rise by `emergenzaDb` above what surrounds them: highest first,
/// of equal ones the lower frequency first; at most `quanti`. A plateau counts once, at its middle.
/// Samples without a level and gaps between lines divide the trace.
std::vector<Picco> TrovaPicchi(const SweepTrace& traccia, DetectorKind detector, int quanti,
                               double emergenzaDb = kEmergenzaPicco);
/// Those of them that lie within a span, ends included, MHz: what stands beside it still counts as
/// higher ground.
std::vector<Picco> TrovaPicchi(const SweepTrace& traccia, DetectorKind detector, int quanti,
                               double daMhz, double aMhz, double emergenzaDb = kEmergenzaPicco);

enum class VersoPicco { PiuAlto, Prossimo, Superiore, Sinistra, Destra };
/// Where the keys take the marker from a sample: always the highest peak; the next lower and the
/// next higher one, from a place that is no peak the highest; the nearest to the left or to the
/// right. Empty where there is none.
std::optional<size_t> PiccoDaTastiera(const std::vector<Picco>& picchi, size_t indice,
                                      VersoPicco verso);

/// `TrovaPicco`: the peak whose symbol lies nearest to a place of the picture, in the coordinates
/// of `ImpostaCoordinate`, within `raggioPixel`; empty where none is near.
struct PiccoTrovato {
    DetectorKind detector = DetectorKind::Peak;
    size_t quale = 0;
};
std::optional<PiccoTrovato> TrovaPicco(const PicchiMisura& picchi, const ScalaGrafico& scala,
                                       const RiquadroGriglia& dove, Punto punto,
                                       double raggioPixel);

/// A small triangle over each peak, its tip on the trace; those outside the axis are left out.
void DisegnaPicchi(Superficie& superficie, const ScalaGrafico& scala, const RiquadroGriglia& dove,
                   const PicchiMisura& picchi, const std::array<int32_t, kNumDetector>& colori,
                   double latoPixel);

} // namespace orvane
