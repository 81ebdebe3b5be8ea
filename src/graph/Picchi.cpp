#include "graph/Picchi.h"

#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

/// Neighbours of one level: a sample, or a plateau.
struct Tratta {
    int16_t livello = 0;
    size_t primo = 0; ///< indices into the trace
    size_t ultimo = 0;
};
/// Lowest level on the way to higher ground; empty where there is none before the end.
using Valle = std::optional<int16_t>;

struct Gradino {
    int16_t livello;
    int16_t minimo; ///< on the way from the ground before it
};
/// One step of a walk over the tratte: those that are lower fall off the stack and leave their
/// valley to the one that overtakes them. `pariSupera`: an equal one is overtaken too.
Valle Avanza(std::vector<Gradino>& pila, int16_t livello, bool pariSupera) {
    int16_t minimo = livello;
    while (!pila.empty() &&
           (pila.back().livello < livello || (pariSupera && pila.back().livello == livello))) {
        minimo = std::min(minimo, pila.back().minimo);
        pila.pop_back();
    }
    const bool piuAlta = !pila.empty();
    pila.push_back({livello, minimo});
    return piuAlta ? Valle(minimo) : std::nullopt;
}

/// Valleys on the left. Of two equal grounds the left one counts as the higher, so that a notch in
/// a top makes no second peak.
std::vector<Valle> ValliASinistra(const std::vector<Tratta>& tratte) {
    std::vector<Valle> valli;
    std::vector<Gradino> pila;
    for (const Tratta& t : tratte)
        valli.push_back(Avanza(pila, t.livello, false));
    return valli;
}

std::vector<Valle> ValliADestra(const std::vector<Tratta>& tratte) {
    std::vector<Valle> valli(tratte.size());
    std::vector<Gradino> pila;
    for (size_t i = tratte.size(); i-- > 0;)
        valli[i] = Avanza(pila, tratte[i].livello, true);
    return valli;
}

/// What a peak is measured from. The highest of a piece rises from its lowest point.
int Base(Valle sinistra, Valle destra, int16_t minimo) {
    if (sinistra && destra)
        return std::max(*sinistra, *destra);
    return sinistra.value_or(destra.value_or(minimo));
}

/// Peaks of one unbroken piece.
void CercaNelPezzo(const SweepTrace& traccia, const std::vector<Tratta>& tratte, int emergenzaCent,
                   std::vector<Picco>& picchi) {
    if (tratte.size() < 2)
        return;
    const int16_t minimo = std::ranges::min(tratte, {}, &Tratta::livello).livello;
    const auto sinistra = ValliASinistra(tratte);
    const auto destra = ValliADestra(tratte);
    for (size_t i = 0; i < tratte.size(); ++i) {
        const Tratta& t = tratte[i];
        // On a slope the valley is the place itself, and nothing rises.
        if (t.livello - Base(sinistra[i], destra[i], minimo) < std::max(emergenzaCent, 1))
            continue;
        const size_t mezzo = t.primo + (t.ultimo - t.primo) / 2;
        picchi.push_back(
            {.freqMhz = traccia[mezzo].freqMhz, .livelloCent = t.livello, .indice = mezzo});
    }
}

/// All of them, by frequency.
std::vector<Picco> CercaOvunque(const SweepTrace& traccia, size_t d, int emergenzaCent) {
    std::vector<Picco> picchi;
    std::vector<Tratta> pezzo;
    for (size_t i = 0; i < traccia.size(); ++i) {
        const int16_t livello = traccia[i].livello[d];
        const bool assente = livello <= kNessunLivello;
        if (assente || traccia[i].stacco) {
            CercaNelPezzo(traccia, pezzo, emergenzaCent, picchi);
            pezzo.clear();
        }
        if (assente)
            continue;
        if (!pezzo.empty() && pezzo.back().livello == livello)
            pezzo.back().ultimo = i;
        else
            pezzo.push_back({livello, i, i});
    }
    CercaNelPezzo(traccia, pezzo, emergenzaCent, picchi);
    return picchi;
}

int Centesimi(double db) {
    constexpr double kMassimoDb = 1000;
    return static_cast<int>(
        std::lround(std::clamp(std::isfinite(db) ? db : 0, 0.0, kMassimoDb) * 100));
}

/// The highest first, and not more than asked for.
std::vector<Picco> Ordina(std::vector<Picco> picchi, int quanti) {
    std::ranges::stable_sort(picchi, std::ranges::greater{}, &Picco::livelloCent);
    picchi.resize(std::min(picchi.size(), static_cast<size_t>(std::max(quanti, 0))));
    return picchi;
}

/// Where the tip of a symbol is, in the coordinates of the grid; empty outside the axis.
std::optional<Punto> PostoSimbolo(const ScalaGrafico& scala, const Picco& picco) {
    const auto x = PosizioneX(scala, picco.freqMhz);
    const double y = picco.livelloCent + scala.UnitOffset * 100;
    if (!x || *x < 0 || *x > scala.larghezzaPixel || y < scala.basso || y > scala.alto)
        return std::nullopt;
    return Punto{*x, y};
}

/// A pixel of the picture in the coordinates of the grid.
Punto Pixel(const ScalaGrafico& scala, const RiquadroGriglia& dove) {
    return {scala.larghezzaPixel / dove.larghezza, (scala.alto - scala.basso) / dove.altezza};
}

} // namespace

std::vector<Picco> TrovaPicchi(const SweepTrace& traccia, DetectorKind detector, int quanti,
                               double emergenzaDb) {
    return Ordina(CercaOvunque(traccia, static_cast<size_t>(detector), Centesimi(emergenzaDb)),
                  quanti);
}

std::vector<Picco> TrovaPicchi(const SweepTrace& traccia, DetectorKind detector, int quanti,
                               double daMhz, double aMhz, double emergenzaDb) {
    auto picchi = CercaOvunque(traccia, static_cast<size_t>(detector), Centesimi(emergenzaDb));
    // Written so that an end that is no number keeps nothing.
    std::erase_if(picchi,
                  [&](const Picco& p) { return !(p.freqMhz >= daMhz && p.freqMhz <= aMhz); });
    return Ordina(std::move(picchi), quanti);
}

std::optional<size_t> PiccoDaTastiera(const std::vector<Picco>& picchi, size_t indice,
                                      VersoPicco verso) {
    const auto qui = std::ranges::find(picchi, indice, &Picco::indice);
    if (verso == VersoPicco::PiuAlto || (verso == VersoPicco::Prossimo && qui == picchi.end()))
        return picchi.empty() ? std::nullopt : std::optional(picchi.front().indice);
    if (verso == VersoPicco::Prossimo)
        return qui + 1 == picchi.end() ? std::nullopt : std::optional((qui + 1)->indice);
    std::optional<size_t> vicino;
    for (const Picco& p : picchi) {
        if (verso == VersoPicco::Sinistra && p.indice < indice)
            vicino = std::max(vicino.value_or(p.indice), p.indice);
        if (verso == VersoPicco::Destra && p.indice > indice)
            vicino = std::min(vicino.value_or(p.indice), p.indice);
    }
    return vicino;
}

std::optional<PiccoTrovato> TrovaPicco(const PicchiMisura& picchi, const ScalaGrafico& scala,
                                       const RiquadroGriglia& dove, Punto punto,
                                       double raggioPixel) {
    const Punto pixel = Pixel(scala, dove);
    std::optional<PiccoTrovato> trovato;
    double entro = raggioPixel;
    for (size_t d = 0; d < kNumDetector; ++d)
        for (size_t i = 0; i < picchi[d].size(); ++i) {
            const auto posto = PostoSimbolo(scala, picchi[d][i]);
            if (!posto)
                continue;
            const double distanza =
                std::hypot((posto->x - punto.x) / pixel.x, (posto->y - punto.y) / pixel.y);
            if (distanza < entro || (distanza == entro && !trovato)) {
                entro = distanza;
                trovato = {.detector = static_cast<DetectorKind>(d), .quale = i};
            }
        }
    return trovato;
}

void DisegnaPicchi(Superficie& superficie, const ScalaGrafico& scala, const RiquadroGriglia& dove,
                   const PicchiMisura& picchi, const std::array<int32_t, kNumDetector>& colori,
                   double latoPixel) {
    if (!ImpostaCoordinate(superficie, scala, dove))
        return;
    const Punto pixel = Pixel(scala, dove);
    const double mezzo = latoPixel / 2 * pixel.x;
    const double altezza = latoPixel * pixel.y;
    superficie.Ritaglio({0, scala.alto}, {scala.larghezzaPixel, scala.basso});
    for (size_t d = 0; d < kNumDetector; ++d)
        for (const Picco& picco : picchi[d])
            if (const auto p = PostoSimbolo(scala, picco))
                superficie.TriangoloSfumato(
                    {*p, {p->x - mezzo, p->y + altezza}, {p->x + mezzo, p->y + altezza}},
                    {colori[d], colori[d], colori[d]});
    superficie.FineRitaglio();
}

} // namespace orvane
