// The picture itself: grid with its labels, and traces over it, in layers that repaint on their
// own.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "graph/Colonne.h"
#include "graph/Scala.h"
#include "graph/Superficie.h"
#include "records/Aspetto.h"
#include "records/EnvRecord.h"

namespace orvane {

/// Colours of the picture that do not come from the panels: the frame around the grid.
struct TintaGrafico {
    int32_t sfondo = 0;
    int32_t scritte = 0;
    bool PrintColors =
        false; ///< the print set of the grid's colours, always solid, two pixels wide
    double altezzaTesto = 11; ///< pixels
    LineeVisibili linee = LineeVisibili::Tutte;
};

/// Where the grid lies in the picture, in pixels from its top left.
struct RiquadroGriglia {
    double sinistra = 0;
    double alto = 0;
    double larghezza = 0;
    double altezza = 0;
};
/// Leaves room for the labels of this scale.
RiquadroGriglia DisponiGriglia(const Superficie& superficie, const TintaGrafico& tinta);

/// Sets user coordinates for whatever belongs into the grid: x in pixels of the scale from the
/// grid's left edge, y in hundredths of a dB as the labels read. False, and nothing set, when there
/// is no grid: no size, or no range.
bool ImpostaCoordinate(Superficie& superficie, const ScalaGrafico& scala,
                       const RiquadroGriglia& dove);

/// Fills the picture with the background and draws the horizontal and vertical lines; `GridLabel`
/// writes the numbers and units along the axes. Both leave the coordinates set as above.
void Grid(Superficie& superficie, const ScalaGrafico& scala, const RiquadroGriglia& dove,
          const EnvRecord& env, const TintaGrafico& tinta);
void GridLabel(Superficie& superficie, const ScalaGrafico& scala, const RiquadroGriglia& dove,
               const TintaGrafico& tinta, const std::string& unita);

/// Draws a reduced trace in the current scale; gaps lift the pen. Returns the number of points.
size_t DisegnaTraccia(Superficie& superficie, const ScalaGrafico& scala,
                      const RiquadroGriglia& dove, const ColonneTraccia& traccia,
                      const Penna& penna);

/// Colour of a detector's trace, from the panel.
int32_t ColoreTraccia(const EnvRecord& env, DetectorKind detector);

} // namespace orvane
