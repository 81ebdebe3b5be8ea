#include "graph/LimitiQuadro.h"

#include <algorithm>

namespace orvane {
namespace {

/// Columns of a trace that are looked at together.
constexpr int kFascia = 4;
/// Between a trace and a name, pixels.
constexpr double kAria = 2;

double PixelY(double cent, const ScalaGrafico& scala, const RiquadroGriglia& dove) {
    const double livello = cent + scala.UnitOffset * 100;
    return dove.alto + (scala.alto - livello) * dove.altezza / (scala.alto - scala.basso);
}

} // namespace

void AggiungiIngombro(const ColonneTraccia& traccia, const ScalaGrafico& scala,
                      const RiquadroGriglia& dove, std::vector<RettangoloTesto>& ingombri) {
    for (int da = 0; da < traccia.Quante(); da += kFascia) {
        const int fine = std::min(da + kFascia, traccia.Quante());
        std::optional<RettangoloTesto> fascia;
        for (int i = da; i < fine; ++i) {
            const ColonneTraccia::Estremi& c = traccia.Colonna(i);
            if (c.vuota)
                continue;
            const double alto = PixelY(c.massimo, scala, dove) - kAria;
            const double basso = PixelY(c.minimo, scala, dove) + kAria;
            if (!fascia)
                fascia = {dove.sinistra + da, alto, dove.sinistra + fine, basso};
            fascia->alto = std::min(fascia->alto, alto);
            fascia->basso = std::max(fascia->basso, basso);
        }
        if (fascia)
            ingombri.push_back(*fascia);
    }
}

void AggiungiIngombro(const PicchiMisura& picchi, const ScalaGrafico& scala,
                      const RiquadroGriglia& dove, double lato,
                      std::vector<RettangoloTesto>& ingombri) {
    for (const auto& lista : picchi)
        for (const Picco& p : lista)
            if (const auto x = PosizioneX(scala, p.freqMhz)) {
                const double y = PixelY(p.livelloCent, scala, dove);
                const double xPixel = dove.sinistra + *x;
                ingombri.push_back({xPixel - lato, y - 2 * lato, xPixel + lato, y});
            }
}

void ScriviNomiLimiti(Superficie& superficie, const ScalaGrafico& scala,
                      const RiquadroGriglia& dove, const std::vector<LimiteQuadro>& limiti,
                      const TintaGrafico& tinta, const std::vector<RettangoloTesto>& ingombri) {
    std::vector<RettangoloTesto> nomi;
    for (const LimiteQuadro& l : limiti) {
        std::vector<RettangoloTesto> occupati = nomi;
        occupati.insert(occupati.end(), ingombri.begin(), ingombri.end());
        size_t prima = occupati.size();
        ScriviNomeLimite(superficie, scala, dove, l.limite, l.nome, l.colore, tinta.altezzaTesto,
                         occupati, l.soloFra);
        if (occupati.size() == prima) {
            occupati = nomi;
            prima = nomi.size();
            ScriviNomeLimite(superficie, scala, dove, l.limite, l.nome, l.colore,
                             tinta.altezzaTesto, occupati, l.soloFra, tinta.sfondo);
        }
        nomi.insert(nomi.end(), occupati.begin() + static_cast<std::ptrdiff_t>(prima),
                    occupati.end());
    }
}

} // namespace orvane
