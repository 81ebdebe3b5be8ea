// Envelopes: the highest of several traces at each frequency.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "data/Traccia.h"

namespace orvane {

/// At each frequency that any of the traces has, the sample with the highest value of `detector`,
/// with all that it holds; on a tie the earlier trace. Frequencies meet by `StessaFrequenza`, so
/// that traces of different steps keep their own points between the common ones. A gap stays only
/// where no trace goes on. `coperti` gets what the best samples hide.
SweepTrace InviluppoTracce(std::span<const std::shared_ptr<const SweepTrace>> tracce,
                           DetectorKind detector, SweepTrace* coperti = nullptr);

/// A line of a stored envelope: record k beside record k.
struct RigaInviluppo {
    std::vector<SampleRecord> passi;
    std::vector<size_t> quale; ///< which of the lines each step comes from
};
/// The same over one scan line of several sub-measures, step by step; as long as the longest.
RigaInviluppo InviluppoRiga(std::span<const std::vector<SampleRecord>> righe,
                            DetectorKind detector);

/// Makes "ENVMEASMT" and, beside it, "POSENVMEASMT" in "Sub_Measure\" from the traces of these
/// positions. False after the box of a file that cannot be written.
bool SalvaInviluppoPosizioni(const Scrivania& s, const std::string& misura,
                             std::span<const std::string> posizioni, DetectorKind detector);

} // namespace orvane
