// The front-end of the GX2207 kind brought to what a sweep needs.
#pragma once

#include <vector>

#include "data/Scrivania.h"
#include "link/Comandi.h"
#include "records/ScanRecord.h"

namespace orvane {

/// Bring a front-end of kind 3 to its FFT or to its swept operation, with the wait window up.
/// False: it did not answer, which a box has told, or the user gave up.
bool SettaGX2207FFT(Ricevitore& r);
bool SettaGX2207Swept(Ricevitore& r);

/// FFT operation where a line in use is an FFT scan, else swept operation; the receiver is then
/// identified anew. Does nothing unless the front-end is of kind 3. False as above.
bool ControllaGX2207FFTSwept(Ricevitore& r, const ScanTable& tabella);

/// Clears filter and high impedance input in a set-up without the unit, with a box for each.
void ControllaFiltroAntennaGX2207(const ReceiverModel& modello, Scrivania& s);
/// What the unit is told of filter, input and generator; nothing without it.
std::vector<ComandoPronto> ComponiFiltroAntennaGX2207(const ReceiverModel& modello,
                                                      const SetupRecord& setup);

} // namespace orvane
