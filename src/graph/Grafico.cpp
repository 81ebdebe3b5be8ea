// The place of the grid in the picture, and traces over it.
#include "graph/Grafico.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace orvane {
namespace {

/// Wide enough for the level labels of every unit.
constexpr const char* kLivelloPiuLargo = "-000.0";
constexpr const char* kFrequenzaPiuLarga = "500 M";
constexpr double kMargine = 8;
/// No scale is higher; what is comes from a damaged record.
constexpr double kMassimoLivello = 1e7;
/// Half the width of a sample that stands alone between two gaps, in pixels.
constexpr double kMezzoPunto = 0.5;

/// Collects one unbroken run after the other and draws each as one line.
class Tracciatore {
public:
    Tracciatore(Superficie& superficie, const ScalaGrafico& scala, const Penna& penna)
        : superficie_(superficie), scala_(scala), penna_(penna) {}

    void Colonna(double freqMhz, const ColonneTraccia::Estremi& c) {
        if (c.rottura)
            Stacca();
        const auto x = PosizioneX(scala_, freqMhz);
        if (!x)
            return;
        Vai(*x, c.primo, true);
        Vai(*x, c.minimo, false);
        Vai(*x, c.massimo, false);
        Vai(*x, c.ultimo, false);
    }
    void Campione(const ColonneTraccia::Vicino& vicino) {
        if (vicino.rottura)
            Stacca();
        if (const auto x = PosizioneX(scala_, vicino.freqMhz))
            Vai(*x, vicino.livello, true);
    }
    void Stacca() {
        if (tratto_.size() == 1) {
            const Punto solo = tratto_.front();
            tratto_ = {{solo.x - kMezzoPunto, solo.y}, {solo.x + kMezzoPunto, solo.y}};
        }
        if (!tratto_.empty())
            superficie_.Spezzata(tratto_, penna_);
        punti_ += tratto_.size();
        tratto_.clear();
    }
    size_t Punti() const { return punti_; }

private:
    void Vai(double x, int16_t livello, bool sempre) {
        const double y = livello + scala_.UnitOffset * 100;
        if (sempre || tratto_.back().y != y)
            tratto_.push_back({x, y});
    }

    Superficie& superficie_;
    const ScalaGrafico& scala_;
    const Penna& penna_;
    std::vector<Punto> tratto_;
    size_t punti_ = 0;
};

bool RangoValido(const ScalaGrafico& scala) {
    return scala.basso < scala.alto && std::abs(scala.basso) < kMassimoLivello &&
           std::abs(scala.alto) < kMassimoLivello;
}

} // namespace

RiquadroGriglia DisponiGriglia(const Superficie& superficie, const TintaGrafico& tinta) {
    const Punto livello = superficie.DimensioneTesto(kLivelloPiuLargo, tinta.altezzaTesto);
    const Punto frequenza = superficie.DimensioneTesto(kFrequenzaPiuLarga, tinta.altezzaTesto);
    RiquadroGriglia dove;
    // Whole pixels, so that columns of the trace are columns of the picture.
    dove.sinistra = std::ceil(livello.x + 2 * kMargine);
    dove.alto = std::ceil(livello.y + kMargine);
    const double destra = std::ceil(std::max(kMargine, frequenza.x / 2));
    const double basso = std::ceil(2 * frequenza.y + kMargine);
    dove.larghezza =
        std::max(0.0, std::floor(superficie.LarghezzaPixel() - dove.sinistra - destra));
    dove.altezza = std::max(0.0, std::floor(superficie.AltezzaPixel() - dove.alto - basso));
    return dove;
}

bool ImpostaCoordinate(Superficie& superficie, const ScalaGrafico& scala,
                       const RiquadroGriglia& dove) {
    if (!(dove.larghezza > 0) || !(dove.altezza > 0) || !(scala.larghezzaPixel > 0) ||
        !RangoValido(scala))
        return false;
    const double x = scala.larghezzaPixel / dove.larghezza;
    const double y = (scala.alto - scala.basso) / dove.altezza;
    superficie.Scala(-dove.sinistra * x, scala.alto + dove.alto * y,
                     (superficie.LarghezzaPixel() - dove.sinistra) * x,
                     scala.alto - (superficie.AltezzaPixel() - dove.alto) * y);
    return true;
}

size_t DisegnaTraccia(Superficie& superficie, const ScalaGrafico& scala,
                      const RiquadroGriglia& dove, const ColonneTraccia& traccia,
                      const Penna& penna) {
    if (!AsseValido(scala.start, scala.stop, scala.logaritmica) ||
        !ImpostaCoordinate(superficie, scala, dove))
        return 0;
    superficie.Ritaglio({0, scala.alto}, {scala.larghezzaPixel, scala.basso});
    Tracciatore tracciatore(superficie, scala, penna);
    if (traccia.Sinistra())
        tracciatore.Campione(*traccia.Sinistra());
    for (int i = 0; i < traccia.Quante(); ++i)
        if (!traccia.Colonna(i).vuota)
            tracciatore.Colonna(traccia.Frequenza(i), traccia.Colonna(i));
    if (traccia.Destra())
        tracciatore.Campione(*traccia.Destra());
    tracciatore.Stacca();
    superficie.FineRitaglio();
    return tracciatore.Punti();
}

int32_t ColoreTraccia(const EnvRecord& env, DetectorKind detector) {
    constexpr size_t kPrimaTraccia = 6;
    return env.GraphColors[kPrimaTraccia + static_cast<size_t>(detector)];
}

} // namespace orvane
