#include "graph/Picchi.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvane {
namespace {

/// Neighbours of one level: a sample, or a plateau.
struct Tratta {
    int16_t livello = 0;
    size_t primo = 0; ///< indices into the trace
    size_t ultimo = 0;
};
/// Searches one unbroken piece after the other, each tratta once: on the stack stand those that no
/// higher ground has followed yet, falling from its bottom to its top.
class CercaPicchi {
public:
    CercaPicchi(const SweepTrace& traccia, int emergenzaCent)
        : traccia_(traccia), emergenzaCent_(std::max(emergenzaCent, 1)) {}

    /// The next one of the piece, of another level than the one before.
    void Aggiungi(const Tratta& t) {
        minimo_ = std::min(minimo_, t.livello);
        while (!pila_.empty() && pila_.back().tratta.livello < t.livello)
            Togli(true);
        Valle sinistra;
        // Of two equal grounds the left one is the higher: a notch in a top makes no second peak.
        if (!pila_.empty())
            sinistra = std::min(t.livello, pila_.back().minimoDopo);
        pila_.push_back({.tratta = t, .sinistra = sinistra});
    }
    void FinePezzo() {
        while (!pila_.empty())
            Togli(false);
        minimo_ = kMassimo;
    }
    std::vector<Picco> Trovati() && { return std::move(picchi_); }

private:
    /// Lowest level on the way to higher ground; empty where there is none before the end.
    using Valle = std::optional<int16_t>;
    static constexpr int16_t kMassimo = std::numeric_limits<int16_t>::max();
    struct Cima {
        Tratta tratta;
        Valle sinistra;
        int16_t minimoDopo = kMassimo; ///< lowest level since
    };

    void Togli(bool superata) {
        const Cima cima = pila_.back();
        pila_.pop_back();
        const int16_t valle = std::min(cima.tratta.livello, cima.minimoDopo);
        if (!pila_.empty())
            pila_.back().minimoDopo = std::min(pila_.back().minimoDopo, valle);
        // On a slope the valley is the place itself, and nothing rises.
        if (cima.tratta.livello - Base(cima.sinistra, superata ? Valle(valle) : Valle()) >=
            emergenzaCent_)
            Annota(cima.tratta);
    }
    /// What a peak is measured from. The highest of a piece rises from its lowest point.
    int Base(Valle sinistra, Valle destra) const {
        if (sinistra && destra)
            return std::max(*sinistra, *destra);
        return sinistra.value_or(destra.value_or(minimo_));
    }
    void Annota(const Tratta& t) {
        const size_t mezzo = t.primo + (t.ultimo - t.primo) / 2;
        picchi_.push_back(
            {.freqMhz = traccia_[mezzo].freqMhz, .livelloCent = t.livello, .indice = mezzo});
    }

    const SweepTrace& traccia_;
    int emergenzaCent_;
    std::vector<Cima> pila_;
    int16_t minimo_ = kMassimo; ///< of the piece
    std::vector<Picco> picchi_;
};

/// All of them, in no order.
std::vector<Picco> CercaOvunque(const SweepTrace& traccia, size_t d, int emergenzaCent) {
    CercaPicchi cerca(traccia, emergenzaCent);
    std::optional<Tratta> aperta;
    const auto chiudi = [&](bool pezzo) {
        if (aperta)
            cerca.Aggiungi(*aperta);
        aperta.reset();
        if (pezzo)
            cerca.FinePezzo();
    };
    for (size_t i = 0; i < traccia.size(); ++i) {
        const int16_t livello = traccia[i].livello[d];
        const bool assente = livello <= kNessunLivello;
        if (assente || traccia[i].stacco)
            chiudi(true);
        if (assente)
            continue;
        if (aperta && aperta->livello == livello) {
            aperta->ultimo = i;
            continue;
        }
        chiudi(false);
        aperta = {livello, i, i};
    }
    chiudi(true);
    return std::move(cerca).Trovati();
}

int Centesimi(double db) {
    constexpr double kMassimoDb = 1000;
    return static_cast<int>(
        std::lround(std::clamp(std::isfinite(db) ? db : 0, 0.0, kMassimoDb) * 100));
}

/// The highest first, and not more than asked for.
std::vector<Picco> Ordina(std::vector<Picco> picchi, int quanti) {
    const size_t tenuti = std::min(picchi.size(), static_cast<size_t>(std::max(quanti, 0)));
    std::ranges::partial_sort(
        picchi, picchi.begin() + static_cast<long>(tenuti), [](const Picco& a, const Picco& b) {
            return a.livelloCent != b.livelloCent ? a.livelloCent > b.livelloCent
                                                  : a.indice < b.indice;
        });
    picchi.resize(tenuti);
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
    const bool perAltezza = verso == VersoPicco::Prossimo || verso == VersoPicco::Superiore;
    if (verso == VersoPicco::PiuAlto || (perAltezza && qui == picchi.end()))
        return picchi.empty() ? std::nullopt : std::optional(picchi.front().indice);
    if (verso == VersoPicco::Prossimo)
        return qui + 1 == picchi.end() ? std::nullopt : std::optional((qui + 1)->indice);
    if (verso == VersoPicco::Superiore)
        return qui == picchi.begin() ? std::nullopt : std::optional((qui - 1)->indice);
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
    std::optional<PiccoTrovato> trovato;
    if (!(dove.larghezza > 0) || !(dove.altezza > 0))
        return trovato;
    const Punto pixel = Pixel(scala, dove);
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
