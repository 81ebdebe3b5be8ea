// Markers: two samples of the trace, and what is read at them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "data/Traccia.h"
#include "graph/Grafico.h"
#include "graph/MisuraAperta.h"

namespace orvane {

/// `Marker`: index 0, and index 1 the delta marker, as indices into the trace.
struct Marcatori {
    std::array<std::optional<size_t>, 2> indice{};
    bool operator==(const Marcatori&) const = default;
};

/// The sample nearest to a frequency; of two equally near the lower. Empty for an empty trace.
std::optional<size_t> CampioneVicino(const SweepTrace& traccia, double freqMhz);
/// `MoveMarker`: the sample nearest to a place of the picture, x in pixels from the grid's left
/// edge, clamped to the axis. A sample on the axis goes before a nearer one beside it.
std::optional<size_t> MoveMarker(const SweepTrace& traccia, const ScalaGrafico& scala, double x);

/// `DetFormatoVal`: a frequency in MHz with as many decimals as the step of the trace needs, "0."
/// kept in front; one digit more, up to three times, until it does not read as zero. No unit. A
/// step that is none gives six decimals.
std::string DetFormatoVal(double mhz, double passoMhz);
/// The step that the frequency of a sample is told by: of its scan line, or where the line starts
/// off its own grid, the finer one of the start; of a line by table, the frequency itself.
double PassoTraccia(const MisuraAperta& misura, size_t indice);

/// What `LBMultiMK` shows: a row a detector in use, then factors and distances.
struct LetturaMarker {
    struct Livello {
        DetectorKind detector = DetectorKind::Peak;
        std::string testo; ///< in the display unit, "0.00"; "---" without a level
    };
    struct Distanza {
        int slot = 0;                               ///< of the limit, 0 or 1
        DetectorKind detector = DetectorKind::Peak; ///< the one held against it
        std::string testo; ///< level less limit in dB, "+1.20"; "---" where either is missing
    };
    std::string frequenza; ///< "0.195 MHz"
    std::vector<Livello> livelli;
    std::vector<std::pair<std::string, std::string>> fattori; ///< name and dB of each factor on
    std::optional<std::string> sommaFattori;                  ///< dB; while `SommaFact` is on
    std::vector<Distanza> distanze;
};
/// `setup` says which limits and factors are on, and the unit. Nothing is read beyond the trace's
/// end.
LetturaMarker LeggiMarker(const MisuraAperta& misura, const SetupRecord& setup, size_t indice);

/// From marker 0 to marker 1: difference of frequency and, detector by detector, of level.
struct LetturaDelta {
    std::string frequenza; ///< "0.065 MHz"
    std::vector<LetturaMarker::Livello> livelli;
};
LetturaDelta LeggiDelta(const MisuraAperta& misura, size_t da, size_t a);

/// `DisegnaMarkerSweep`: a vertical line at the sample, with its number at the top and a ring at
/// each level; `numero` is 1, or 2 for the delta marker, which is dashed. Nothing outside the axis.
void DisegnaMarkerSweep(Superficie& superficie, const ScalaGrafico& scala,
                        const RiquadroGriglia& dove, const MisuraAperta& misura,
                        const std::array<bool, kNumDetector>& mostrati, size_t indice, int numero,
                        const Penna& penna, double altezzaTesto = 11);

} // namespace orvane
