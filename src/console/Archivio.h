// The archive: a stored measure opened for looking at, without a receiver.
#pragma once

#include <string>

#include "data/Misure.h"
#include "data/Scrivania.h"

namespace orvane {

struct MisuraAperta {
    std::string nome;
    SweepHeader header;
    SweepTrace traccia;                        ///< lines merged by the first detector in use
    std::array<bool, kNumDetector> detector{}; ///< those that any line measured
    double startMhz = 0;                       ///< span of all lines in use
    double stopMhz = 0;
    bool leggibile = false; ///< the header is there and whole
};

/// Reads header and trace; touches neither the running panels nor the disk. A measure without a
/// readable header comes back with `leggibile` false, told by "Failed loading" and the path.
MisuraAperta ApriMisura(Scrivania& s, const std::string& nome);

/// The span that all lines in use cover together, MHz; both 0 for an empty table.
void CampoDellaTabella(const ScanTable& tabella, double& startMhz, double& stopMhz);

} // namespace orvane
