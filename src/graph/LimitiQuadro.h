// Limits over the traces of a picture, with their names where they hide least.
#pragma once

#include <vector>

#include "graph/Colonne.h"
#include "graph/Limiti.h"
#include "graph/Quadro.h"

namespace orvane {

/// Adds what a drawn trace covers of the picture, in pixels.
void AggiungiIngombro(const ColonneTraccia& traccia, const ScalaGrafico& scala,
                      const RiquadroGriglia& dove, std::vector<RettangoloTesto>& ingombri);
/// The same of symbols on peaks; `lato` is their height.
void AggiungiIngombro(const PicchiMisura& picchi, const ScalaGrafico& scala,
                      const RiquadroGriglia& dove, double lato,
                      std::vector<RettangoloTesto>& ingombri);

/// Each name stands on a thin ground over its line, off `ingombri` or else wherever it has room; no
/// name hides another, or a line of a limit.
void ScriviNomiLimiti(Superficie& superficie, const ScalaGrafico& scala,
                      const RiquadroGriglia& dove, const std::vector<LimiteQuadro>& limiti,
                      const TintaGrafico& tinta, const std::vector<RettangoloTesto>& ingombri);

} // namespace orvane
