#include "graph/CurvaTabella.h"

#include <algorithm>
#include <cmath>

#include "data/FileTabelle.h"
#include "records/ColoriGrafico.h"

namespace orvane {
namespace {

constexpr double kCentPerDb = 100;
/// Levels end on a multiple of this, with as much air; hundredths of a dB.
constexpr double kPassoLivelli = 1000;
constexpr double kMinimaAltezza = 4000;
/// An axis without two frequencies, MHz, and around a single one.
constexpr double kStartVuoto = 0.15;
constexpr double kStopVuoto = 30;
constexpr double kIntorno = 2;
/// Pieces of a factor's segment, which is bent on a logarithmic axis.
constexpr int kPezziFattore = 24;
constexpr double kLatoPunto = 2.5; ///< half a mark, in pixels at a line one pixel wide
constexpr double kAltezzaTacca = 0.12;

double LivelloMostrato(const ContenutoTabella& c, int16_t cent) {
    return cent + static_cast<double>(ImpostaUnita(c.unitId)) * kCentPerDb;
}

std::vector<RigaTabella> RigheComplete(const ContenutoTabella& c) {
    std::vector<RigaTabella> righe;
    std::copy_if(c.righe.begin(), c.righe.end(), std::back_inserter(righe), RigaCompletaTabella);
    return righe;
}

void ImpostaLivelli(ScalaGrafico& scala, const ContenutoTabella& c,
                    const std::vector<RigaTabella>& righe) {
    double basso = 0;
    double alto = kMinimaAltezza;
    for (size_t i = 0; i < righe.size(); ++i) {
        const double livello = LivelloMostrato(c, *righe[i].livelloCent);
        basso = i == 0 ? livello : std::min(basso, livello);
        alto = i == 0 ? livello : std::max(alto, livello);
    }
    scala.basso = (std::floor(basso / kPassoLivelli) - 1) * kPassoLivelli;
    scala.alto = (std::ceil(alto / kPassoLivelli) + 1) * kPassoLivelli;
    while (scala.alto - scala.basso < kMinimaAltezza) {
        scala.basso -= kPassoLivelli;
        scala.alto += kPassoLivelli;
    }
}

Punto PuntoTabella(const ContenutoTabella& c, const ScalaGrafico& scala, double mhz, double cent) {
    return {PosizioneX(scala, mhz).value_or(0),
            cent + static_cast<double>(ImpostaUnita(c.unitId)) * kCentPerDb};
}

size_t ColoreDiKind(TableKind kind) {
    return LimiteOFattore(kind) ? colore::kLimiti + static_cast<size_t>(SlotDiKind(kind)) - 1
                                : colore::kPicchi;
}

void Segna(Superficie& superficie, const ScalaGrafico& scala, const RiquadroGriglia& dove, Punto p,
           const Penna& penna) {
    const double dx = kLatoPunto * penna.larghezza * scala.larghezzaPixel / dove.larghezza;
    const double dy = kLatoPunto * penna.larghezza * (scala.alto - scala.basso) / dove.altezza;
    superficie.Rettangolo({p.x - dx, p.y + dy}, {p.x + dx, p.y - dy}, penna.colore, 1);
}

void DisegnaRiga(Superficie& superficie, const ScalaGrafico& scala, const RiquadroGriglia& dove,
                 const ContenutoTabella& c, const RigaTabella& riga, const Penna& penna) {
    if (!riga.freqMhz)
        return;
    const auto x = PosizioneX(scala, *riga.freqMhz);
    if (!x || *x < 0 || *x > scala.larghezzaPixel)
        return;
    Penna sottile = penna;
    sottile.tratto = Tratto::Tratteggiato;
    sottile.larghezza = 1;
    superficie.Linea({*x, scala.basso}, {*x, scala.alto}, sottile);
    if (riga.livelloCent)
        Segna(superficie, scala, dove, {*x, LivelloMostrato(c, *riga.livelloCent)},
              {.colore = penna.colore, .larghezza = penna.larghezza * 2});
}

} // namespace

ScalaGrafico ScalaTabella(const ContenutoTabella& c, double larghezzaPixel) {
    const std::vector<RigaTabella> righe = RigheComplete(c);
    double start = righe.empty() ? kStartVuoto : *righe.front().freqMhz;
    double stop = righe.empty() ? kStopVuoto : *righe.back().freqMhz;
    if (start == stop) {
        start /= kIntorno;
        stop *= kIntorno;
    }
    const bool lineare = c.kind == TableKind::Limite && c.linFreq;
    SetupRecord setup;
    setup.UnitId = c.unitId;
    ScalaGrafico scala = SetScaleGraph(setup, start, stop, !lineare, larghezzaPixel, 0);
    ImpostaLivelli(scala, c, righe);
    return scala;
}

std::vector<Punto> LineaTabella(const ContenutoTabella& c, const ScalaGrafico& scala) {
    const std::vector<RigaTabella> righe = RigheComplete(c);
    const int pezzi = c.kind == TableKind::Fattore ? kPezziFattore : 1;
    std::vector<Punto> linea;
    for (size_t i = 0; i < righe.size(); ++i) {
        const RigaTabella& a = righe[i == 0 ? 0 : i - 1];
        const RigaTabella& b = righe[i];
        for (int k = i == 0 ? pezzi : 1; k <= pezzi; ++k) {
            const double parte = static_cast<double>(k) / pezzi;
            linea.push_back(
                PuntoTabella(c, scala, std::lerp(*a.freqMhz, *b.freqMhz, parte),
                             std::lerp(0.0 + *a.livelloCent, 0.0 + *b.livelloCent, parte)));
        }
    }
    return linea;
}

void DisegnaTabella(Superficie& superficie, const ScalaGrafico& scala, const RiquadroGriglia& dove,
                    const ContenutoTabella& c, std::optional<size_t> riga, const EnvRecord& env,
                    double spessore) {
    if (!ImpostaCoordinate(superficie, scala, dove))
        return;
    const Penna penna{.colore = env.GraphColors[ColoreDiKind(c.kind)], .larghezza = spessore};
    const double tacca = scala.basso + kAltezzaTacca * (scala.alto - scala.basso);
    if (LimiteOFattore(c.kind))
        superficie.Spezzata(LineaTabella(c, scala), penna);
    for (const RigaTabella& r : RigheComplete(c)) {
        const Punto p = PuntoTabella(c, scala, *r.freqMhz, *r.livelloCent);
        if (!LimiteOFattore(c.kind))
            superficie.Linea({p.x, scala.basso}, {p.x, tacca}, penna);
        Segna(superficie, scala, dove, p, penna);
    }
    if (riga && *riga < c.righe.size())
        DisegnaRiga(superficie, scala, dove, c, c.righe[*riga],
                    {.colore = env.GraphColors[colore::kMarcatori], .larghezza = spessore});
}

} // namespace orvane
