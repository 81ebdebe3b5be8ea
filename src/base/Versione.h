// The product's name and release, as titles and reports print them.
#pragma once

#include <string>

namespace orvane {

inline constexpr const char* kNomeProgramma = "Orvane Console";

/// "Rel. " + major + "." + minor + "." + two-digit revision + " (January 2019)".
std::string RelSoftware();

} // namespace orvane
