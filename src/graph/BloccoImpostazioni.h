// What stands under the graph of a picture: how the measure was made, and what is held against it.
#pragma once

#include <string>
#include <vector>

#include "graph/Quadro.h"

namespace orvane {

/// Of a measure's lines, its front end, the traces, limits and factors on show by `setup`, and the
/// comment of its test. A comment that cannot be read is told and left out.
std::vector<std::string> BloccoImpostazioni(const Scrivania& s, const ContenutoQuadro& quadro,
                                            const SetupRecord& setup);

} // namespace orvane
