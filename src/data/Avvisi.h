// The two boxes of the file routines.
#pragma once

#include <string_view>

#include "data/Scrivania.h"

namespace orvane {

/// "Cannot open file " and the whole path. Always false, for the caller to return.
bool AvvisaScrittura(const Scrivania& s, std::string_view percorso);
/// "Failed loading" and the whole path. Always false.
bool AvvisaLettura(const Scrivania& s, std::string_view percorso);

} // namespace orvane
