// The mark of a run that has not come to its end: a small file in the measure's directory, which
// only a crash or a power cut leaves behind.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/AlberoDati.h"

namespace orvane {

/// "Sweep\<misura>\Running.RUN"
std::string PercorsoSegnoCorsa(std::string_view misura);

/// Marks a measure as under way; false where the file cannot be written.
bool SegnaCorsa(const AlberoDati& albero, std::string_view misura);
/// Takes the mark away: the run has ended, or the user has seen that it did not.
bool TogliSegnoCorsa(const AlberoDati& albero, std::string_view misura);

bool MisuraIncompiuta(const AlberoDati& albero, std::string_view misura);
/// Names of the measures that bear the mark. While a run is on its own is among them.
std::vector<std::string> MisureIncompiute(const AlberoDati& albero);

} // namespace orvane
