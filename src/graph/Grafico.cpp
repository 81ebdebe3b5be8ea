// The place of the grid in the picture, and traces over it.
#include "graph/Grafico.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace orvane {
namespace {

/// Wide enough for the level labels of every unit.
constexpr const char* kLivelloPiuLargo = "-000.0 dBµV/m";
constexpr const char* kFrequenzaPiuLarga = "500 M";
constexpr double kMargine = 8;
/// No scale is higher; what is comes from a damaged record.
constexpr double kMassimoLivello = 1e7;
/// Half the width of a sample that stands alone between two gaps, in pixels.
constexpr double kMezzoPunto = 0.5;

/// Shorter stretches of filled columns stay in the polyline around them.
constexpr int kMinimoTratto = 8;
/// Columns to a sample from which on a line is drawn.
constexpr int kMassimoVuote = 24;

/// Collects one unbroken run after the other and draws each as columns, where the surface takes
/// them and the samples are not too far apart, or as one line.
class Tracciatore {
public:
    Tracciatore(Superficie& superficie, const ScalaGrafico& scala, const ColonneTraccia& traccia,
                const Penna& penna)
        : superficie_(superficie), scala_(scala), traccia_(traccia), penna_(penna) {}

    void Disegna() {
        if (traccia_.Sinistra())
            Campione(*traccia_.Sinistra());
        for (int i = 0; i < traccia_.Quante();) {
            const int fine = FineTratto(i);
            if (!Fitto(i, fine) || !Tratto(i, fine))
                for (int k = i; k < fine; ++k)
                    Colonna(k);
            i = std::max(fine, i + 1);
        }
        if (traccia_.Destra())
            Campione(*traccia_.Destra());
        Stacca();
    }
    size_t Punti() const { return punti_; }

private:
    /// Behind the last filled column from `i` on that no gap divides from it; empty ones between
    /// them are no gap.
    int FineTratto(int i) const {
        int fine = traccia_.Colonna(i).vuota ? i : i + 1;
        for (int k = fine; fine > i && k < traccia_.Quante(); ++k) {
            const auto& c = traccia_.Colonna(k);
            if (!c.vuota && c.rottura)
                break;
            fine = c.vuota ? fine : k + 1;
        }
        return fine;
    }
    /// Few samples far apart are a line; more of them are columns, for what a line of many points
    /// costs.
    bool Fitto(int da, int fine) const {
        int piene = 0;
        for (int i = da; i < fine; ++i)
            piene += traccia_.Colonna(i).vuota ? 0 : 1;
        return fine - da >= kMinimoTratto && piene * kMassimoVuote >= fine - da;
    }
    double Livello(double cent) const { return cent + scala_.UnitOffset * 100; }
    /// The line from a filled column through empty ones to the next: where it comes into that.
    double Congiungi(int prima, int poi) {
        const double da = Livello(traccia_.Colonna(prima).ultimo);
        const double passo = (Livello(traccia_.Colonna(poi).primo) - da) / (poi - prima);
        piene_.back().esce = da + passo / 2;
        for (int k = 1; k < poi - prima; ++k) {
            const double qui = da + passo * k;
            piene_.push_back(
                {.minimo = qui, .massimo = qui, .entra = qui - passo / 2, .esce = qui + passo / 2});
        }
        return piene_.back().esce;
    }
    void RiempiPiene(int da, int fine) {
        piene_.clear();
        int prima = -1;
        for (int i = da; i < fine; ++i) {
            const auto& c = traccia_.Colonna(i);
            if (c.vuota)
                continue;
            const double entra = prima < 0 ? Livello(c.primo) : Congiungi(prima, i);
            piene_.push_back({.minimo = Livello(c.minimo),
                              .massimo = Livello(c.massimo),
                              .entra = entra,
                              .esce = Livello(c.ultimo)});
            prima = i;
        }
    }
    bool Tratto(int da, int fine) {
        RiempiPiene(da, fine);
        const double passo = scala_.larghezzaPixel / traccia_.Quante();
        if (!superficie_.Colonne(da * passo, passo, piene_, penna_))
            return false;
        // The line from the last sample runs up to the first column, and on from the last one.
        if (traccia_.Colonna(da).rottura)
            Stacca();
        else if (const auto x = PosizioneX(scala_, traccia_.Frequenza(da)); x && !tratto_.empty())
            Vai(*x, traccia_.Colonna(da).primo, true);
        Stacca();
        punti_ += piene_.size();
        if (const auto x = PosizioneX(scala_, traccia_.Frequenza(fine - 1)))
            Vai(*x, traccia_.Colonna(fine - 1).ultimo, true);
        ripresa_ = true;
        return true;
    }
    void Colonna(int i) {
        const auto& c = traccia_.Colonna(i);
        if (c.vuota)
            return;
        if (c.rottura)
            Stacca();
        const auto x = PosizioneX(scala_, traccia_.Frequenza(i));
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
        if (tratto_.size() == 1 && ripresa_)
            tratto_.clear();
        if (tratto_.size() == 1) {
            const Punto solo = tratto_.front();
            tratto_ = {{solo.x - kMezzoPunto, solo.y}, {solo.x + kMezzoPunto, solo.y}};
        }
        if (!tratto_.empty())
            superficie_.Spezzata(tratto_, penna_);
        punti_ += tratto_.size();
        tratto_.clear();
        ripresa_ = false;
    }
    void Vai(double x, int16_t livello, bool sempre) {
        const double y = livello + scala_.UnitOffset * 100;
        if (sempre || tratto_.back().y != y)
            tratto_.push_back({x, y});
    }

    Superficie& superficie_;
    const ScalaGrafico& scala_;
    const ColonneTraccia& traccia_;
    const Penna& penna_;
    std::vector<Punto> tratto_;
    std::vector<TrattoColonna> piene_;
    size_t punti_ = 0;
    bool ripresa_ = false; ///< the line so far is the end of drawn columns alone
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
    Tracciatore tracciatore(superficie, scala, traccia, penna);
    tracciatore.Disegna();
    superficie.FineRitaglio();
    return tracciatore.Punti();
}

int32_t ColoreTraccia(const EnvRecord& env, DetectorKind detector) {
    constexpr size_t kPrimaTraccia = 6;
    return env.GraphColors[kPrimaTraccia + static_cast<size_t>(detector)];
}

} // namespace orvane
