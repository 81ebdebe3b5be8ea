// Tables from text, a point a line or pasted columns, and back to text.
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "data/ModificaTabella.h"
#include "data/Scrivania.h"

namespace orvane {

struct EsitoImporto {
    size_t aggiunti = 0;
    size_t doppi = 0;                   ///< frequencies already present, dropped in silence
    std::vector<size_t> nonValide = {}; ///< line numbers from 1; one more than are listed at most
    bool piena = false;                 ///< the table filled up: the rest was not read
};

/// Place of the separator behind the first field: the first blank; without one the first tab, then
/// ";", then ":". Empty where there is none.
std::optional<size_t> TrovaSepValueTabTXT(std::string_view riga);

/// Adds the points of a text file, a line each: frequency in MHz and level in the unit of the
/// table; a frequency table may do without level, and one with positions has them behind it.
EsitoImporto ImportaTesto(ContenutoTabella& c, std::string_view testo);
/// Columns as a spreadsheet puts them on the clipboard, divided by tabs or ";". From the frequency
/// column on each line is a new point; from a further column on the lines go into the rows that
/// are there, from `riga` down. Empty lines are passed over.
EsitoImporto IncollaColonne(ContenutoTabella& c, std::string_view testo, size_t riga,
                            ColonnaTabella colonna);
/// The boxes of an import: the table is full; lines that were no points.
void AvvisaImporto(Ambiente& ambiente, const EsitoImporto& esito, TableKind kind);

/// Bytes of a text file of the host, as far as any table needs; empty when it cannot be read.
std::optional<std::string> LeggiFileTesto(const std::filesystem::path& file);

/// Rows as a spreadsheet takes them from the clipboard: a line each, columns divided by tabs.
std::string CopiaRighe(const ContenutoTabella& c, std::span<const size_t> righe);

/// Header, title, and a line a point, as bytes of the file.
std::string TestoTabella(const ContenutoTabella& c, std::string_view header);
/// Writes it below the lines of "Header.TXT". False after the box "Cannot open file " + path; the
/// old file then stays.
bool SalvaComeTesto(const Scrivania& s, const std::filesystem::path& file,
                    const ContenutoTabella& c);

} // namespace orvane
