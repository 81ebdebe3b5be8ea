// What follows when a colour set, and with it the whole environment, was loaded.
#pragma once

#include "console/Console.h"

namespace orvane {

/// Link, panel and scan table follow an environment that names others than `prima` did: as at a
/// start, but only what changed. A file that is not there leaves the former one current, so that no
/// edit goes to a file that was never opened. Stores the environment, and gives true, where
/// anything followed.
bool SeguiAmbiente(Console& c, const EnvRecord& prima);

} // namespace orvane
