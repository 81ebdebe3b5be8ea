// A finished measure from another place of the tree to its own.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/AlberoDati.h"

namespace orvane {

struct EsitoCopiaMisura {
    size_t copiati = 0;
    /// Tree paths of what could not be copied; a directory where nothing of the measure is.
    std::vector<std::string> falliti = {};

    bool Riuscita() const { return falliti.empty(); }
};

/// Copies header, traces, positions and advance files of a measure, those of its "Sub_Measure\",
/// and its "Factors\" and "Limits\", from the same places below `cartellaFast`, which ends in a
/// backslash. What is there under the same name is replaced, and nothing taken away. A file that
/// fails leaves the old one and does not keep the others back.
EsitoCopiaMisura CopiaMisuraFTDaFast(const AlberoDati& albero, std::string_view cartellaFast,
                                     std::string_view misura);

} // namespace orvane
