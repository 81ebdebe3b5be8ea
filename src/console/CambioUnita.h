// The change of the display unit.
#pragma once

#include "data/Scrivania.h"

namespace orvane {

/// `CBXUnitaDiMisura` change: a field unit without an active conversion factor is refused with a
/// box; otherwise the reference level moves so that the trace keeps its place, and the panel is
/// saved. False: refused, nothing changed.
bool CambiaUnita(Scrivania& s, int unitId);
/// The reference level with which a trace keeps its place in another unit, dB.
int16_t RiferimentoInUnita(const SetupRecord& setup, int unitId);
/// `ControlladBpTFC`: whether a unit may be shown with the factors that are on; false after a box.
bool ControlladBpTFC(Scrivania& s, int unitId);
bool ControlladBpTFC(Ambiente& ambiente, const SetupRecord& setup, int unitId);

} // namespace orvane
