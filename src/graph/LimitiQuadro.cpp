#include "graph/LimitiQuadro.h"

#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

/// Columns of a trace that are looked at together.
constexpr int kFascia = 4;
/// Between a trace and a name, pixels.
constexpr double kAria = 2;

constexpr int kMassimoPezzi = 4000;

Punto SulTratto(Punto da, Punto a, int k, int pezzi) {
    const double parte = static_cast<double>(k) / pezzi;
    return {std::lerp(da.x, a.x, parte), std::lerp(da.y, a.y, parte)};
}

double PixelY(double cent, const ScalaGrafico& scala, const RiquadroGriglia& dove) {
    const double livello = cent + scala.UnitOffset * 100;
    return dove.alto + (scala.alto - livello) * dove.altezza / (scala.alto - scala.basso);
}

/// What the lines of the limits cover, so that a name hides none.
std::vector<RettangoloTesto> IngombroLinee(const std::vector<LimiteQuadro>& limiti,
                                           const ScalaGrafico& scala, const RiquadroGriglia& dove) {
    std::vector<RettangoloTesto> ingombri;
    for (const LimiteQuadro& l : limiti)
        for (const auto& linea : LineeLimite(l.limite, scala, l.soloFra))
            for (size_t i = 1; i < linea.size(); ++i) {
                const double largo = linea[i].x - linea[i - 1].x;
                const int pezzi = std::clamp(static_cast<int>(largo / kFascia), 1, kMassimoPezzi);
                for (int k = 0; k < pezzi; ++k) {
                    const Punto da = SulTratto(linea[i - 1], linea[i], k, pezzi);
                    const Punto a = SulTratto(linea[i - 1], linea[i], k + 1, pezzi);
                    const double y = dove.altezza / (scala.alto - scala.basso);
                    ingombri.push_back(
                        {dove.sinistra + da.x, dove.alto + (scala.alto - std::max(da.y, a.y)) * y,
                         dove.sinistra + a.x, dove.alto + (scala.alto - std::min(da.y, a.y)) * y});
                }
            }
    return ingombri;
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
    // Of names and lines: what no name may hide.
    std::vector<RettangoloTesto> nomi = IngombroLinee(limiti, scala, dove);
    for (const LimiteQuadro& l : limiti) {
        std::vector<RettangoloTesto> occupati = nomi;
        occupati.insert(occupati.end(), ingombri.begin(), ingombri.end());
        size_t prima = occupati.size();
        const auto scrivi = [&] {
            ScriviNomeLimite(superficie, scala, dove, l.limite, l.nome, l.colore,
                             tinta.altezzaTesto, occupati, l.soloFra, tinta.sfondo);
        };
        scrivi();
        if (occupati.size() == prima) {
            occupati = nomi;
            prima = nomi.size();
            scrivi();
        }
        nomi.insert(nomi.end(), occupati.begin() + static_cast<std::ptrdiff_t>(prima),
                    occupati.end());
    }
}

} // namespace orvane
