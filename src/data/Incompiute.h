// The mark of a run that has not come to its end: a small file in the measure's directory, which
// the run holds while it lasts. Marked but held by nobody, the run was cut off by a crash or a
// power cut.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/AlberoDati.h"

namespace orvane {

/// "Running.RUN", in the measure's directory.
std::string PercorsoSegnoCorsa(std::string_view misura);

/// Marks a measure as under way, for as long as the result lives; empty where the file cannot be
/// written. Where the machine cannot hold it the run looks cut off until its end.
std::optional<Presa> SegnaCorsa(const AlberoDati& albero, std::string_view misura);
/// Takes the mark away: the run has ended, or the user has seen that it did not.
bool TogliSegnoCorsa(const AlberoDati& albero, std::string_view misura);

/// Whether a run has the measure in hand, in this process or another.
bool MisuraInCorso(const AlberoDati& albero, std::string_view misura);
/// Whether its run was cut off.
bool MisuraIncompiuta(const AlberoDati& albero, std::string_view misura);
/// Names of the measures whose run was cut off.
std::vector<std::string> MisureIncompiute(const AlberoDati& albero);

} // namespace orvane
