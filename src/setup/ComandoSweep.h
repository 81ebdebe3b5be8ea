// From a scan line to what the receiver is told before it runs.
#pragma once

#include <string>

#include "link/Dinamica.h" // what the receiver is told besides the command
#include "link/ReceiverModel.h"
#include "records/ScanRecord.h"

namespace orvane {

/// RBW code of the sweep command. "9 kHz" is 6 or 12, by model, unit in charge and `stopMhz`.
int DeterminaIDRbwSweep(const ReceiverModel& modello, int rbwId, double stopMhz);
/// A 5520F from the firmware on that knows the automatic step.
bool ControllaFW5520FPerAutoStep(const ReceiverModel& modello);
/// The text of the sweep command of a line that steps by `Step`.
std::string ComponiComandoSweep(const ReceiverModel& modello, const ScanLine& riga);

} // namespace orvane
