// Limits in the picture.
#pragma once

#include <optional>

#include "data/TabelleLimFac.h"
#include "graph/Grafico.h"
#include "graph/Zoom.h"

namespace orvane {

/// The points of a limit in the coordinates of `ImpostaCoordinate`, run by run: straight on its own
/// axis, with its vertical steps, cut at the ends of `soloFra`, where the level is looked up. Empty
/// where it has no value there.
std::vector<std::vector<Punto>> LineeLimite(const LimFacRecord& limite, const ScalaGrafico& scala,
                                            const std::optional<CampoMhz>& soloFra = {});

/// Draws a limit clipped to the grid.
void DisegnaLimite(Superficie& superficie, const ScalaGrafico& scala, const RiquadroGriglia& dove,
                   const LimFacRecord& limite, const std::optional<CampoMhz>& soloFra,
                   const Penna& penna);

struct RettangoloTesto {
    double sinistra = 0, alto = 0, destra = 0, basso = 0; ///< pixels of the picture
};
/// Writes a limit's name over its line where that has room: inside the grid, off the other names in
/// `occupati`, to which it is added. Without room it is left out. `fondo`: a thin ground of this
/// colour behind the name, so that it reads over traces.
void ScriviNomeLimite(Superficie& superficie, const ScalaGrafico& scala,
                      const RiquadroGriglia& dove, const LimFacRecord& limite,
                      const std::string& nome, int32_t colore, double altezzaTesto,
                      std::vector<RettangoloTesto>& occupati,
                      const std::optional<CampoMhz>& soloFra = {},
                      const std::optional<int32_t>& fondo = {});

} // namespace orvane
