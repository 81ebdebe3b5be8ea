// Vertical range and reference level: the list of ranges, and what the receiver is told.
#pragma once

#include <array>

#include "link/ReceiverModel.h"
#include "records/SetupRecord.h"

namespace orvane {

/// dB of the vertical range by `DinamicaId`; an index beyond the list is the last one.
inline constexpr std::array<int, 7> kDinamicaTable = {80, 100, 120, 140, 160, 180, 200};
int DinamicaDb(int dinamicaId);

/// What `#SDIS` carries: dynamics at most 120, reference 65 to 145.
struct Dinamica {
    int dinamica = 0;
    int riferimento = 0;
};
/// Preamplifier and preselector change the reference that is sent, not the one shown.
Dinamica CalcolaDinamica(const ReceiverModel& modello, const SetupRecord& setup);

} // namespace orvane
