// The change of the display unit where it is saved at once.
#pragma once

#include "data/Scrivania.h"
#include "graph/UnitaGrafico.h"

namespace orvane {

/// The unit changes by the rules of its mode, and the panel is saved. False: refused, nothing
/// changed.
bool CambiaUnita(Scrivania& s, int unitId, Modalita modalita = Modalita::SweepsArchive);

} // namespace orvane
