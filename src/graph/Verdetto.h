// Pass or fail: for each limit the worst distance and where it is.
#pragma once

#include <string>
#include <vector>

#include "graph/MisuraAperta.h"

namespace orvane {

enum class Giudizio {
    Nessuno, ///< nothing to compare
    Pass,
    Inconclusive, ///< nearer to the limit than the measurement uncertainty, on either side
    Fail
};
/// "PASS", "FAIL", "INCONCLUSIVE"; "---" for none.
const char* TestoGiudizio(Giudizio giudizio);

/// A limit on show and the detector that is held against it.
struct VerdettoLimite {
    int slot = 0; ///< 0 or 1
    std::string limite;
    DetectorKind detector = DetectorKind::Peak;
    double freqMhz = 0;      ///< where the delta is greatest
    int16_t livelloCent = 0; ///< there, hundredths of a dB in dBµV, factors included
    int16_t limiteCent = 0;
    size_t indice = 0;                     ///< of that sample
    size_t oltre = 0;                      ///< samples above the limit
    Giudizio giudizio = Giudizio::Nessuno; ///< `Nessuno`: no sample where the limit has a value
    /// Level less limit, dB: positive above the limit.
    double Delta() const { return (livelloCent - limiteCent) / 100.0; }
};

struct Verdetto {
    std::vector<VerdettoLimite> limiti;   ///< those on, by slot
    Giudizio insieme = Giudizio::Nessuno; ///< the worst of them
};

/// The detector that a limit is meant for: `scelto` 1 to 6 names one; 0 goes by the first such word
/// of the title, or else of the name ("QP", "Quasi", "AV", "Avg", "Average", "PK", "Peak", "RMS",
/// "RMS-AV", "CISPR-AV", and the detectors' own names), as whole words. One that was not measured
/// gives way to the nearest measured detector that reads at or above it; where there is none it
/// stays, and nothing can be compared. Without such a word it is the first one measured.
DetectorKind DetectorDelLimite(int scelto, const std::string& nome, const LimFacRecord& limite,
                               const std::array<bool, kNumDetector>& misurati);

/// A level at the limit complies. With an uncertainty above 0 dB, closer than it to the limit is
/// inconclusive; exactly at its edge is not.
Giudizio Giudica(double deltaDb, double incertezzaDb);

/// Of the limits that `setup` names and has on (slots 0 and 1), with its `MeasUncertainty` and
/// `VerdictDetector`. What the trace hides of the detector counts: a worst level can be higher than
/// that of its sample on show.
Verdetto CalcolaVerdetto(const MisuraAperta& misura, const SetupRecord& setup);

} // namespace orvane
