// The files of the table editor: one way in and out for its four kinds.
#pragma once

#include <optional>
#include <string_view>

#include "data/ModificaTabella.h"
#include "data/Scrivania.h"

namespace orvane {

/// The slot that the editor works on.
int SlotDiKind(TableKind kind);

/// Loads a table of the kind of `attuale`. Empty after a box, and in silence for a limit or factor
/// that is absent or "NONE"; an absent frequency table is made with what `attuale` holds. A
/// frequency table, which keeps no unit, takes that of `attuale`.
std::optional<ContenutoTabella> CaricaTabella(Scrivania& s, const ContenutoTabella& attuale,
                                              std::string_view percorso);
/// Writes the complete rows. False after the box; the old file then stays.
bool SalvaTabella(const Scrivania& s, const ContenutoTabella& c, std::string_view percorso);

/// A look at a table without a box, without a conversion on disk and whatever its length; empty
/// for a file that cannot be read.
std::optional<ContenutoTabella> AnteprimaTabella(const Scrivania& s, TableKind kind,
                                                 std::string_view percorso);

} // namespace orvane
