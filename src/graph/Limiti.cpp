// Limits as lines on the grid, and their names over them.
#include "graph/Limiti.h"

#include <algorithm>
#include <cmath>

#include "data/Interpolazione.h"

namespace orvane {
namespace {

constexpr double kHzPerMhz = 1e6;
/// A bent segment is drawn in pieces of this many pixels of the scale.
constexpr double kPezzoPixel = 3;
/// Between a line and its name, and between a name and whatever is next to it; pixels.
constexpr double kStaccoNome = 3;
/// Places for a name are tried at this distance, pixels.
constexpr double kPassoNome = 6;

constexpr double kOpacitaFondo = 0.8;

struct PuntoLimite {
    double hz = 0;
    double cent = 0;
};
struct TrattoLimite {
    PuntoLimite da;
    PuntoLimite a;
};

/// What of a segment lies in a span; the level at a cut is the one that is looked up.
std::optional<TrattoLimite> Taglia(const LimFacRecord& limite, TrattoLimite t,
                                   const std::optional<CampoMhz>& fra) {
    if (!fra)
        return t;
    // As the look-up has them.
    const double start = static_cast<float>(fra->start * kHzPerMhz);
    const double stop = static_cast<float>(fra->stop * kHzPerMhz);
    // A step at the start has been made there; one at the stop is still to be made.
    const bool gradino = t.da.hz == t.a.hz;
    if (t.a.hz <= start || t.da.hz > stop || (t.da.hz == stop && !gradino))
        return std::nullopt;
    for (const auto& [hz, punto] : {std::pair{start, &t.da}, std::pair{stop, &t.a}}) {
        if (t.da.hz >= hz || t.a.hz <= hz)
            continue;
        const int16_t livello = ValoreLimite(limite, static_cast<float>(hz));
        if (livello == kNessunValore)
            return std::nullopt;
        *punto = {hz, static_cast<double>(livello)};
    }
    return t;
}

/// Draws segments as runs of points; a segment that does not go on where the last ended begins one.
class ComponiLinee {
public:
    ComponiLinee(const ScalaGrafico& scala, bool lineare)
        : scala_(scala), curva_(lineare == scala.logaritmica) {}

    void Aggiungi(const TrattoLimite& t) {
        const auto da = Posto(t.da);
        const auto a = Posto(t.a);
        if (!da || !a)
            return;
        if (linee_.empty() || linee_.back().back().x != da->x || linee_.back().back().y != da->y)
            linee_.push_back({*da});
        if (curva_)
            Piega(t, da->x, a->x);
        linee_.back().push_back(*a);
    }
    std::vector<std::vector<Punto>> Prendi() { return std::move(linee_); }

private:
    std::optional<Punto> Posto(const PuntoLimite& p) const {
        const auto x = PosizioneX(scala_, p.hz / kHzPerMhz);
        if (!x)
            return std::nullopt;
        return Punto{*x, p.cent + scala_.UnitOffset * 100};
    }
    /// Points between the ends, where the picture shows them.
    void Piega(const TrattoLimite& t, double xDa, double xA) {
        const double inizio = std::max(xDa, -kPezzoPixel);
        const double fine = std::min(xA, scala_.larghezzaPixel + kPezzoPixel);
        for (double x = inizio; x < fine; x += kPezzoPixel) {
            if (x <= xDa)
                continue;
            const double hz = XToFreq(scala_, x) * kHzPerMhz;
            const auto p = Posto({hz, std::lerp(t.da.cent, t.a.cent, Parte(t, hz))});
            if (p)
                linee_.back().push_back(*p);
        }
    }
    /// How far along a segment, on the limit's own axis.
    double Parte(const TrattoLimite& t, double hz) const {
        const bool logaritmo = !scala_.logaritmica;
        return logaritmo ? std::log(hz / t.da.hz) / std::log(t.a.hz / t.da.hz)
                         : (hz - t.da.hz) / (t.a.hz - t.da.hz);
    }

    const ScalaGrafico& scala_;
    bool curva_;
    std::vector<std::vector<Punto>> linee_;
};

/// Between the coordinates of the grid and the pixels of the picture.
struct Riporto {
    const ScalaGrafico& scala;
    const RiquadroGriglia& dove;

    Punto Pixel(Punto p) const {
        return {dove.sinistra + p.x * dove.larghezza / scala.larghezzaPixel,
                dove.alto + (scala.alto - p.y) * dove.altezza / (scala.alto - scala.basso)};
    }
    Punto Coordinate(Punto pixel) const {
        return {(pixel.x - dove.sinistra) * scala.larghezzaPixel / dove.larghezza,
                scala.alto - (pixel.y - dove.alto) * (scala.alto - scala.basso) / dove.altezza};
    }
};

/// The topmost pixel of a line between two places; empty where it does not go.
std::optional<double> CimaLinea(const std::vector<Punto>& linea, double da, double a) {
    std::optional<double> cima;
    const auto prova = [&](double y) { cima = std::min(cima.value_or(y), y); };
    for (size_t i = 1; i < linea.size(); ++i) {
        const Punto& p = linea[i - 1];
        const Punto& q = linea[i];
        if (q.x < da || p.x > a)
            continue;
        const double largo = q.x - p.x;
        for (const double x : {std::max(p.x, da), std::min(q.x, a)})
            prova(largo > 0 ? std::lerp(p.y, q.y, (x - p.x) / largo) : p.y);
        if (!(largo > 0))
            prova(q.y);
    }
    return cima;
}

bool Libero(const RettangoloTesto& r, const RiquadroGriglia& dove,
            const std::vector<RettangoloTesto>& occupati) {
    if (r.sinistra < dove.sinistra + kStaccoNome || r.alto < dove.alto + kStaccoNome ||
        r.destra > dove.sinistra + dove.larghezza - kStaccoNome ||
        r.basso > dove.alto + dove.altezza - kStaccoNome)
        return false;
    return std::ranges::none_of(occupati, [&](const RettangoloTesto& o) {
        return r.sinistra < o.destra + kStaccoNome && o.sinistra < r.destra + kStaccoNome &&
               r.alto < o.basso && o.alto < r.basso;
    });
}

/// The leftmost free place over a line, in pixels; `sporge` lets a name reach beyond its ends.
std::optional<RettangoloTesto> PostoNome(const std::vector<Punto>& linea, Punto grande, bool sporge,
                                         const RiquadroGriglia& dove,
                                         const std::vector<RettangoloTesto>& occupati) {
    const double primo = std::max(linea.front().x, dove.sinistra) + kStaccoNome;
    const double fine = std::min(linea.back().x, dove.sinistra + dove.larghezza);
    for (double x = primo; x + (sporge ? 0 : grande.x) <= fine; x += kPassoNome) {
        const auto cima = CimaLinea(linea, x, x + grande.x);
        if (!cima)
            continue;
        const double basso = *cima - kStaccoNome;
        const RettangoloTesto posto{x, basso - grande.y, x + grande.x, basso};
        if (Libero(posto, dove, occupati))
            return posto;
    }
    return std::nullopt;
}

} // namespace

std::vector<std::vector<Punto>> LineeLimite(const LimFacRecord& limite, const ScalaGrafico& scala,
                                            const std::optional<CampoMhz>& soloFra) {
    ComponiLinee linee(scala, limite.LinFreq == 1);
    const auto punto = [&](size_t i) {
        return PuntoLimite{static_cast<double>(limite.Freq[i]),
                           static_cast<double>(limite.Value[i])};
    };
    for (size_t i = 1; i < NumeroPunti(limite); ++i) {
        if (limite.Freq[i] < limite.Freq[i - 1])
            break;
        if (const auto tratto = Taglia(limite, {punto(i - 1), punto(i)}, soloFra))
            linee.Aggiungi(*tratto);
    }
    return linee.Prendi();
}

void DisegnaLimite(Superficie& superficie, const ScalaGrafico& scala, const RiquadroGriglia& dove,
                   const LimFacRecord& limite, const std::optional<CampoMhz>& soloFra,
                   const Penna& penna) {
    if (!ImpostaCoordinate(superficie, scala, dove))
        return;
    superficie.Ritaglio({0, scala.alto}, {scala.larghezzaPixel, scala.basso});
    for (const auto& linea : LineeLimite(limite, scala, soloFra))
        superficie.Spezzata(linea, penna);
    superficie.FineRitaglio();
}

void ScriviNomeLimite(Superficie& superficie, const ScalaGrafico& scala,
                      const RiquadroGriglia& dove, const LimFacRecord& limite,
                      const std::string& nome, int32_t colore, double altezzaTesto,
                      std::vector<RettangoloTesto>& occupati,
                      const std::optional<CampoMhz>& soloFra, const std::optional<int32_t>& fondo) {
    if (nome.empty() || !ImpostaCoordinate(superficie, scala, dove))
        return;
    const Riporto riporto{scala, dove};
    auto linee = LineeLimite(limite, scala, soloFra);
    for (auto& linea : linee)
        for (Punto& p : linea)
            p = riporto.Pixel(p);
    const Punto grande = superficie.DimensioneTesto(nome, altezzaTesto);
    for (const bool sporge : {false, true})
        for (const auto& linea : linee)
            if (const auto posto = PostoNome(linea, grande, sporge, dove, occupati)) {
                occupati.push_back(*posto);
                if (fondo)
                    superficie.Rettangolo(riporto.Coordinate({posto->sinistra, posto->alto}),
                                          riporto.Coordinate({posto->destra, posto->basso}), *fondo,
                                          kOpacitaFondo);
                superficie.Testo(riporto.Coordinate({posto->sinistra, posto->alto}),
                                 Ancora::SinistraAlto, nome, colore, altezzaTesto);
                return;
            }
}

} // namespace orvane
