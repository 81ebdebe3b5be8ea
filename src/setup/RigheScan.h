// Whole lines of the scan table: insert, move, duplicate, and their form as text on the clipboard.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "records/ScanRecord.h"

namespace orvane {

// False, and nothing changed, where there is no room or no such line. The table is compact after.

/// Whether `quante` lines more fit in.
bool CiStanno(const ScanTable& tabella, size_t quante);
/// Before line `qui`; behind the last one where `qui` is further down.
bool InserisciRighe(ScanTable& tabella, size_t qui, std::span<const ScanLine> righe);
/// Line `da` becomes line `a`; those between make room.
bool SpostaRiga(ScanTable& tabella, size_t da, size_t a);
/// A copy of the line below it.
bool DuplicaRiga(ScanTable& tabella, size_t indice);

/// The lines as text: a row of headings, then a row a line, cells by tabs, as a spreadsheet takes
/// them. The text holds every field of a line but those of a run.
std::string TestoDelleRighe(std::span<const ScanLine> righe);

struct RigheLette {
    std::vector<ScanLine> righe;     ///< ten at most
    std::vector<std::string> errori; ///< what was wrong, a sentence each; the cell kept its default
};
/// Lines from text: columns in any order under their headings, or without headings in the order of
/// `TestoDelleRighe`. Numbers may have a comma, values are held to their ranges, a missing cell
/// gives the default of a new line, and a row without start and stop gives no line.
RigheLette LeggiRighe(std::string_view testo, int ancillaryKind);

} // namespace orvane
