// Measures, tables and panels deleted on the user's word.
#pragma once

#include <string>
#include <string_view>

#include "data/Scrivania.h"
#include "records/ScanRecord.h"

namespace orvane {

// Each asks "Are you sure you want to delete <name> ?" and is true once the thing is gone. What
// cannot be removed shows "Cannot be deleted".

/// Sub-measures, files, copies of factors and limits, last the measure's directory; anything else
/// in it is left there and keeps it. Without any measure left `SweepPath` becomes "Untitled.EST"
/// and the environment is saved.
bool CancellaMisura(Scrivania& s, const std::string& nome);

/// A table or panel by its path; one that the scan table or the running panel names is in use.
bool CancellaTabella(Scrivania& s, const ScanRecord& scan, std::string_view percorso);

/// Whether the file at this path is named by a scan line in use, a limit or factor slot, or is the
/// current scan table or panel.
bool TabellaInUso(const Scrivania& s, const ScanRecord& scan, std::string_view percorso);

} // namespace orvane
