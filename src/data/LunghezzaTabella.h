// Table files are known by their length alone: the test that every load of one begins with.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "data/Scrivania.h"

namespace orvane {

/// What becomes of a file of another length: the user decides, or it is refused.
enum class LunghezzaErrata { Chiedi, Rifiuta };

/// True when the lengths agree, or the user wants the file anyway.
bool ControllaLunghezza(const Scrivania& s, std::string_view percorso, size_t lunghezza,
                        size_t attesa, LunghezzaErrata modo);

/// The bytes of a table file, at most one more than `attesa`, once their length has been accepted;
/// empty after the box.
std::optional<std::vector<uint8_t>> LeggiFileTabella(const Scrivania& s, std::string_view percorso,
                                                     size_t attesa, LunghezzaErrata modo);

/// Notes that a loaded table was not in order, for the window to tell.
void AvvisaTabellaRiparata(Scrivania& s, std::string_view percorso, bool riparata);

} // namespace orvane
