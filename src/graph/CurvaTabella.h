// The picture of a limit, a factor or a frequency table while it is edited.
#pragma once

#include <optional>

#include "data/ModificaTabella.h"
#include "graph/Grafico.h"

namespace orvane {

/// An axis that holds the complete rows, in the unit of the table: logarithmic but for a limit that
/// is straight on a linear one. Without a row an empty grid.
ScalaGrafico ScalaTabella(const ContenutoTabella& c, double larghezzaPixel);

/// The points of the line, in the coordinates of `ImpostaCoordinate`: a limit straight on its own
/// axis with its vertical steps, a factor straight on a linear axis whatever the picture's.
std::vector<Punto> LineaTabella(const ContenutoTabella& c, const ScalaGrafico& scala);

/// Draws the table into a grid that is there. Frequency tables have a tick a frequency with its
/// level marked. `riga` is marked across the grid where it has a frequency.
void DisegnaTabella(Superficie& superficie, const ScalaGrafico& scala, const RiquadroGriglia& dove,
                    const ContenutoTabella& c, std::optional<size_t> riga, const EnvRecord& env,
                    double spessore);

} // namespace orvane
