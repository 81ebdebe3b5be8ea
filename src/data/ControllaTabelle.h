// Tables that came from a file made harmless in memory; the file stays as it is until it is saved.
#pragma once

#include "records/FreqTableRecord.h"
#include "records/LimFacRecord.h"

namespace orvane {

// Points that have no use are left out (a frequency that is no number, infinite or negative; in a
// limit or factor the 202nd, for which there is no level), the others keep their levels and are
// put in rising order, equal ones as they stood. Whatever stood behind the end is cleared.
// Each is true if a point was left out or moved, or another value was changed.

/// Also a `UnitId` outside the list becomes 1.
bool ControllaLimFac(LimFacRecord& tabella);
bool ControllaFrequencyTable(FrequencyTable& tabella);

} // namespace orvane
