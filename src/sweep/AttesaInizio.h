// The delayed start of a run: by the clock, or when the user port says so.
#pragma once

#include "sweep/Corsa.h"

namespace orvane {

/// Waits for what `TriggerSweepMode` or `TimerSweepSec` asks for, with nothing set not at all.
/// False: the user wants out. Writes no file.
bool ControllaTTSweep(Corsa& corsa);

} // namespace orvane
