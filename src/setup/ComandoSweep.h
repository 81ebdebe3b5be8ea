// From a scan line to what the receiver is told before it runs.
#pragma once

#include <array>
#include <string>

#include "link/ReceiverModel.h"
#include "records/ScanRecord.h"
#include "records/SetupRecord.h"

namespace orvane {

/// RBW code of the sweep command. "9 kHz" is 6 or 12, by model, unit in charge and `stopMhz`.
int DeterminaIDRbwSweep(const ReceiverModel& modello, int rbwId, double stopMhz);
/// A 5520F from the firmware on that knows the automatic step.
bool ControllaFW5520FPerAutoStep(const ReceiverModel& modello);
/// The text of the sweep command of a line that steps by `Step`.
std::string ComponiComandoSweep(const ReceiverModel& modello, const ScanLine& riga);

/// What `#SDIS` carries: dynamics at most 120, reference 65 to 145.
struct Dinamica {
    int dinamica = 0;
    int riferimento = 0;
};
Dinamica CalcolaDinamica(const ReceiverModel& modello, const SetupRecord& setup);
/// dB of the vertical range by `DinamicaId`; an index beyond the list is the last one.
inline constexpr std::array<int, 7> kDinamicaTable = {80, 100, 120, 140, 160, 180, 200};
int DinamicaDb(int dinamicaId);

} // namespace orvane
