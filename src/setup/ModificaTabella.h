// Edits of the scan table as the grid makes them: one cell, one detector, one band, one line.
#pragma once

#include <string_view>

#include "records/ScanRecord.h"
#include "setup/TabellaScan.h"

namespace orvane {

/// Longest hold time that a line takes, ms.
inline constexpr double kHoldTimeMax = 30000;

/// Whether a line has both its frequencies, and with them all its other cells.
bool RigaCompleta(const ScanLine& riga);

/// Commits one cell of a row (0 to 9) by `ScriviCellaScanLine`, gives a line that has just got both
/// its frequencies its defaults and its filter, and compacts the table.
void ModificaCella(ScanTable& tabella, size_t indice, ColonnaScan colonna, std::string_view testo,
                   int id, int ancillaryKind);
/// Absolute value of the number, at most 30000; "Lowest" and what is no number are 0.
void ModificaHoldTime(ScanLine& riga, std::string_view testo);
/// Switches a detector. The last one cannot be cleared; a fourth clears the others and stays alone.
/// Smart counts as one of them, so that a Smart line has two at most. With kind 5 one is on.
void CambiaDetector(ScanLine& riga, DetectorKind detector, bool acceso, int ancillaryKind = 0);
/// Fills the empty cells of a row that has both its frequencies; how many rows are filled then.
size_t AggiornaRigaScanTab(ScanTable& tabella, size_t indice, int ancillaryKind);
void CancellaRiga(ScanTable& tabella, size_t indice);
/// Puts a band with those that follow it behind the lines in use; false, and nothing changed, where
/// the table has no room for all of them.
bool AggiungiBanda(ScanTable& tabella, const VoceBanda& banda, int ancillaryKind);

} // namespace orvane
