// What came from a file made harmless: indices, flags and numbers into their ranges. Ranges of the
// records that have no name are never touched, and a record that was written whole stays as it is.
#pragma once

#include "records/EnvRecord.h"
#include "records/ScanRecord.h"
#include "records/SetupRecord.h"

namespace orvane {

inline constexpr int16_t kMaxNumeroCom = 256;

// Each is true if any value was changed.

/// Colours, integers, offsets, and the paths with their names.
bool ControllaParStand(EnvRecord& env);
bool ControllaSetup(SetupRecord& setup);
/// Every line; at least Peak is on in the lines in use.
bool ControllaScan(ScanRecord& scan);

} // namespace orvane
