// What happens with the name of a new measure or scan table that exists.
#pragma once

#include <string>
#include <string_view>

#include "data/Scrivania.h"

namespace orvane {

// Profile A moves what bears the name out of the way, on the user's Yes: <name> becomes
// <name>_000, and the numbered ones one number more. True if the new one may bear its name. A
// rename that fails shows "Cannot open file " and the path, is taken back with all before it, and
// gives false.
//
// Profile B changes nothing on disk: the name to use, the name itself when free; empty for a
// refusal.
//
// `nome` is a bare name or a path that ends in the extension. One that cannot be a name is refused
// with the box "Not valid name".

/// Measures: directories in "Sweep\".
bool ControlNameMeasProfiloA(Scrivania& s, std::string_view nome);
std::string ControlNameMeasProfiloB(Scrivania& s, std::string_view nome);

/// Scan tables: files "Panels\*.EST".
bool RedoProfiloA(Scrivania& s, std::string_view nome);
std::string RedoProfiloB(Scrivania& s, std::string_view nome);

/// Whether a measure or panel can bear this name.
bool NomeMisuraAmmesso(const std::string& nome);

} // namespace orvane
