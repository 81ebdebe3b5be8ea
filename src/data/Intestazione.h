// `Header.TXT`, and the form that a user finds in it the first time.
#pragma once

#include <optional>
#include <string>

#include "data/Scrivania.h"

namespace orvane {

/// The header text, written as an empty form first where there is none. Empty after the box of what
/// could not be written or read.
std::optional<std::string> CaricaHeader(const Scrivania& s);

} // namespace orvane
