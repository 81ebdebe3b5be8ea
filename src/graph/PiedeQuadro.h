// The lines of settings under the graph of a picture: how large, in how many columns.
#pragma once

#include <string>
#include <vector>

#include "graph/Superficie.h"

namespace orvane {

struct PiedeQuadro {
    std::vector<std::string> righe;
    double lettera = 0; ///< height of the letters, pixels
    double passo = 0;   ///< from line to line
    size_t colonne = 1;
    size_t perColonna = 0;       ///< lines
    double larghezzaColonna = 0; ///< with the room to the next one
    double altezza = 0;          ///< 0: there are no lines
};

/// Room for the lines in a picture of this surface's size. Letters are as high as `altezzaTesto`
/// allows, then smaller, then in columns, until all lines keep within `parteMassima` of the
/// picture's height. Lines that are too wide go on in the next one. What has no room even then is
/// counted in the last line.
PiedeQuadro DisponiPiede(const Superficie& superficie, const std::vector<std::string>& righe,
                         double altezzaTesto, double parteMassima);
/// At the bottom of the picture. Leaves the coordinates in pixels.
void DisegnaPiede(Superficie& superficie, const PiedeQuadro& piede, int32_t colore);

} // namespace orvane
