// A picture from end to end: strip, grid, traces, limits, peaks, markers, settings.
#include "graph/Quadro.h"

#include <algorithm>
#include <cmath>

#include "base/Testo.h"
#include "data/NomiTabelle.h"
#include "graph/LimitiQuadro.h"
#include "graph/PiedeQuadro.h"
#include "graph/TestataQuadro.h"
#include "graph/TinteQuadro.h"
#include "records/ColoriGrafico.h"

namespace orvane {
namespace {

constexpr size_t kLimitiColonna = 2;
/// Of `GraphColors`: the limits of the scan lines have those behind the two of the column.
constexpr size_t kColoriLimitiRighe = 8;

/// Of a picture's height, for the settings under the graph.
constexpr double kParteBlocco = 0.45;
/// Text height for which widths of lines are meant, pixels.
constexpr double kTestoDiRiferimento = 11;
constexpr double kMinimoTesto = 9;
/// A text's part of the picture's width and height.
constexpr double kParteLarghezza = 1.0 / 80;
constexpr double kParteAltezza = 1.0 / 48;

/// In trace widths.
constexpr double kSpessoreLimite = 1.5;
/// In text heights.
constexpr double kLatoPicco = 0.8;

int32_t Sfuma(int32_t colore, int32_t fondo, double parte) {
    const auto canale = [&](int bit) {
        const int c = colore >> bit & 0xFF;
        const int f = fondo >> bit & 0xFF;
        return static_cast<int>(std::lround(f + (c - f) * parte));
    };
    return Rgb(canale(0), canale(8), canale(16));
}

/// On a screen the grid is thinned towards the ground, so that the traces stand out.
EnvRecord ColoriGriglia(const EnvRecord& env, const TintaGrafico& tinta) {
    EnvRecord colori = env;
    const double parte = LeggiAspetto(env).opacitaGriglia / 100.0;
    if (!tinta.PrintColors)
        for (const size_t linea : {colore::kPunteggiata, colore::kSotto, colore::kPrincipale})
            colori.GraphColors[linea] = Sfuma(env.GraphColors[linea], tinta.sfondo, parte);
    return colori;
}

StileQuadro StileComune(const EnvRecord& env, double altezzaTesto) {
    const Aspetto aspetto = LeggiAspetto(env);
    const double spessore = aspetto.spessoreTracce / 10.0 * altezzaTesto / kTestoDiRiferimento;
    return {.tinta = {.altezzaTesto = altezzaTesto, .linee = aspetto.Linee()},
            .spessoreTracce = std::max(1.0, spessore)};
}

/// Where everything lies, and the scale of the grid.
struct Disposizione {
    TestataQuadro testata;
    PiedeQuadro piede;
    RiquadroGriglia dove;
    ScalaGrafico scala;
};

Disposizione Disponi(const Superficie& superficie, const ContenutoQuadro& contenuto,
                     const SetupRecord& setup, CampoMhz campo, const StileQuadro& stile) {
    Disposizione d{.dove = DisponiGriglia(superficie, stile.tinta)};
    d.testata = DisponiTestata(superficie, contenuto, stile, d.dove.sinistra,
                               d.dove.sinistra + d.dove.larghezza);
    d.piede = DisponiPiede(superficie, stile.blocco, stile.tinta.altezzaTesto, kParteBlocco);
    d.dove.alto += d.testata.altezza;
    d.dove.altezza =
        std::max(0.0, std::floor(d.dove.altezza - d.testata.altezza - d.piede.altezza));
    d.scala = SetScaleGraph(setup, campo.start, campo.stop, true, d.dove.larghezza, 0);
    return d;
}

ColonneTraccia Riduci(const SweepTrace& traccia, size_t detector, const ScalaGrafico& scala) {
    ColonneTraccia colonne(scala.start, scala.stop,
                           std::max(1, static_cast<int>(scala.larghezzaPixel)), scala.logaritmica);
    for (const CampioneTraccia& c : traccia) {
        if (c.stacco)
            colonne.Interrompi();
        colonne.Aggiungi(c.freqMhz, c.livello[detector]);
    }
    return colonne;
}

/// Gives what the traces cover. The measure's own layer is the last, over the others. Peak lies
/// highest: it is drawn first, so that it hides none of the others.
std::vector<RettangoloTesto> DisegnaStrati(Superficie& superficie, const Disposizione& d,
                                           const std::vector<StratoQuadro>& strati,
                                           double spessore) {
    std::vector<RettangoloTesto> ingombri;
    for (auto s = strati.rbegin(); s != strati.rend(); ++s)
        for (size_t i = 0; i < kNumDetector; ++i) {
            const StratoQuadro& strato = *s;
            if (!strato.detector[i])
                continue;
            const ColonneTraccia colonne = Riduci(*strato.traccia, i, d.scala);
            DisegnaTraccia(superficie, d.scala, d.dove, colonne,
                           {.colore = strato.colori[i], .larghezza = spessore});
            AggiungiIngombro(colonne, d.scala, d.dove, ingombri);
        }
    return ingombri;
}

void DisegnaMarcatori(Superficie& superficie, const Disposizione& d,
                      const ContenutoQuadro& contenuto, const EnvRecord& env,
                      const StileQuadro& stile) {
    if (contenuto.strati.empty())
        return;
    for (size_t i = 0; i < contenuto.marcatori.indice.size(); ++i)
        if (const auto indice = contenuto.marcatori.indice[i])
            DisegnaMarkerSweep(superficie, d.scala, d.dove, contenuto.misura,
                               contenuto.strati[0].detector, *indice, static_cast<int>(i) + 1,
                               {.colore = env.GraphColors[colore::kMarcatori + i],
                                .larghezza = stile.spessoreTracce},
                               stile.tinta.altezzaTesto);
}

/// What lies in the grid, from below.
void DisegnaInterno(Superficie& superficie, const Disposizione& d, const ContenutoQuadro& contenuto,
                    const EnvRecord& env, const StileQuadro& stile) {
    const double spessore = stile.spessoreTracce;
    auto ingombri = DisegnaStrati(superficie, d, contenuto.strati, spessore);
    for (const LimiteQuadro& l : contenuto.limiti)
        DisegnaLimite(superficie, d.scala, d.dove, l.limite, l.soloFra,
                      {.colore = l.colore, .larghezza = kSpessoreLimite * spessore});
    std::array<int32_t, kNumDetector> colori;
    colori.fill(env.GraphColors[colore::kPicchi]);
    const double lato = kLatoPicco * stile.tinta.altezzaTesto;
    DisegnaPicchi(superficie, d.scala, d.dove, contenuto.picchi, colori, lato);
    AggiungiIngombro(contenuto.picchi, d.scala, d.dove, lato, ingombri);
    if (stile.marcatori)
        DisegnaMarcatori(superficie, d, contenuto, env, stile);
    ScriviNomiLimiti(superficie, d.scala, d.dove, contenuto.limiti, stile.tinta, ingombri);
}

} // namespace

ContenutoQuadro ComponiQuadro(const MisuraAperta& misura, const SetupRecord& setup,
                              const EnvRecord& env) {
    ContenutoQuadro quadro{.misura = misura,
                           .verdetto = CalcolaVerdetto(misura, setup),
                           .intero = {misura.startMhz, misura.stopMhz}};
    StratoQuadro strato{
        .traccia = misura.traccia, .detector = misura.detector, .nome = misura.nome};
    for (size_t d = 0; d < kNumDetector; ++d)
        strato.colori[d] = ColoreTraccia(env, static_cast<DetectorKind>(d));
    quadro.strati.push_back(std::move(strato));
    for (size_t i = 0; i < kLimitiColonna; ++i) {
        const LimFacRecord& limite = misura.tabelle.slot[kPrimoLimite + i];
        if (setup.LimitOn[i] == 1 && limite.Freq[0] != 0)
            quadro.limiti.push_back({.limite = limite,
                                     .slot = static_cast<int>(i),
                                     .colore = env.GraphColors[colore::kLimiti + i],
                                     .nome = Rifila(setup.LimitName[i])});
    }
    return quadro;
}

void AggiungiLimitiRighe(const Scrivania& s, ContenutoQuadro& contenuto) {
    std::vector<std::string> nomi;
    for (const LimiteQuadro& l : contenuto.limiti)
        nomi.push_back(Maiuscolo(l.nome));
    const size_t interi = nomi.size();
    for (const ScanLine& riga : contenuto.misura.header.Scan.Righe) {
        if (riga.Start == 0 || riga.LimitOn != 1 || !NominaTabella(riga.Limit))
            continue;
        const std::string nome = Rifila(riga.Limit);
        const auto noto = std::find(nomi.begin(), nomi.end(), Maiuscolo(nome));
        const auto posto = static_cast<size_t>(noto - nomi.begin());
        LimFacRecord limite = CercaTabella(s, contenuto.misura.nome, PercorsoLimite(nome));
        if (posto < interi || limite.Freq[0] == 0)
            continue;
        const size_t quale = kLimitiColonna + (posto - interi) % kColoriLimitiRighe;
        contenuto.limiti.push_back({.limite = std::move(limite),
                                    .colore = s.env.GraphColors[colore::kLimiti + quale],
                                    .nome = noto == nomi.end() ? nome : std::string(),
                                    .soloFra = CampoMhz{riga.Start, riga.Stop}});
        if (noto == nomi.end())
            nomi.push_back(Maiuscolo(nome));
    }
}

StileQuadro StileStampa(const EnvRecord& env, double altezzaTesto) {
    StileQuadro stile = StileComune(env, altezzaTesto);
    stile.tinta.sfondo = kCarta;
    stile.tinta.scritte = kInchiostro;
    stile.inchiostro = kInchiostro;
    stile.tinta.PrintColors = true;
    return stile;
}

StileQuadro StileSchermo(const EnvRecord& env, bool scuro, double altezzaTesto) {
    StileQuadro stile = StileComune(env, altezzaTesto);
    stile.tinta.sfondo = scuro ? kFondoScuro : kFondoChiaro;
    stile.tinta.scritte = env.GraphColors[colore::kEtichette];
    stile.inchiostro = scuro ? kScrittaScura : kScrittaChiara;
    return stile;
}

double AltezzaTestoQuadro(int larghezza, int altezza) {
    return std::max(kMinimoTesto, std::min(larghezza * kParteLarghezza, altezza * kParteAltezza));
}

void DisegnaQuadro(Superficie& superficie, const ContenutoQuadro& contenuto,
                   const SetupRecord& setup, const EnvRecord& env, CampoMhz campo,
                   const StileQuadro& stile) {
    const Disposizione d = Disponi(superficie, contenuto, setup, campo, stile);
    Grid(superficie, d.scala, d.dove, ColoriGriglia(env, stile.tinta), stile.tinta);
    DisegnaInterno(superficie, d, contenuto, env, stile);
    GridLabel(superficie, d.scala, d.dove, stile.tinta,
              TabellaUnitaGrafico()[size_t(std::clamp<int>(setup.UnitId, 0, 7))].testo);
    DisegnaTestata(superficie, d.testata, stile);
    DisegnaPiede(superficie, d.piede, stile.inchiostro);
}

} // namespace orvane
