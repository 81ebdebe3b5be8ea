// The grid: its lines by kind, and the numbers along its axes.
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "base/Numeri.h"
#include "graph/Grafico.h"

namespace orvane {
namespace {

// Hundredths of a dB.
constexpr int kPassoPunteggiate = 500;
constexpr int kPassoSub = 1000;
constexpr int kPassoPrincipali = 2000;
/// A label at the top of the grid keeps off the frame by this much.
constexpr int kSottoCornice = 20;

constexpr int kPartiLineare = 10;

// Pixels.
constexpr double kStaccoLivello = 8;
constexpr double kStaccoFrequenza = 5;
constexpr double kStampaLarghezza = 2;
/// A line of the grid is a pixel wide for so much height of the text, so that large pictures keep
/// it.
constexpr double kTestoPerPixel = 16;
/// Height of a label's place, in text heights; free width between two labels, in pixels.
constexpr double kPostoLivello = 1.2;
constexpr double kFraFrequenze = 10;
/// From 1 to 2, the narrowest step between labels, in decades.
constexpr double kUnoADue = 0.301;

/// In the order of the pairs in `GraphColors`, and of painting: what counts more lies on top.
enum class GenereLinea { Punteggiata, Sub, Principale };

struct LineaGriglia {
    Punto da;
    Punto a;
    GenereLinea genere;
};

struct PassoPixel {
    double x;
    double y;
};
PassoPixel UnitaPerPixel(const ScalaGrafico& scala, const RiquadroGriglia& dove) {
    return {scala.larghezzaPixel / dove.larghezza, (scala.alto - scala.basso) / dove.altezza};
}

Penna PennaLinea(const EnvRecord& env, GenereLinea genere, const TintaGrafico& tinta) {
    const size_t coppia = 2 * static_cast<size_t>(genere);
    const double larghezza = std::max(1.0, std::floor(tinta.altezzaTesto / kTestoPerPixel));
    if (tinta.PrintColors)
        return {.colore = env.GraphColors[coppia + 1], .larghezza = kStampaLarghezza * larghezza};
    const bool punteggiata = genere == GenereLinea::Punteggiata;
    return {.colore = env.GraphColors[coppia],
            .larghezza = larghezza,
            .tratto = punteggiata ? Tratto::Punteggiato : Tratto::Pieno};
}

/// Levels of the grid, rising, as level 0 in dBuV counts them and as the unit reads them.
struct LivelloGriglia {
    int base;
    int mostrato;
};
std::vector<LivelloGriglia> LivelliGriglia(const ScalaGrafico& scala, int passo) {
    const int offset = static_cast<int>(std::lround(scala.UnitOffset * 100));
    const int primo = static_cast<int>(std::ceil((scala.basso - offset) / passo)) * passo;
    std::vector<LivelloGriglia> livelli;
    for (int base = primo; base + offset <= scala.alto; base += passo)
        livelli.push_back({base, base + offset});
    return livelli;
}

GenereLinea GenereLivello(int base) {
    if (base % kPassoPrincipali == 0)
        return GenereLinea::Principale;
    return base % kPassoSub == 0 ? GenereLinea::Sub : GenereLinea::Punteggiata;
}

LineaGriglia Orizzontale(const ScalaGrafico& scala, double livello, GenereLinea genere) {
    return {{0, livello}, {scala.larghezzaPixel, livello}, genere};
}
LineaGriglia Verticale(const ScalaGrafico& scala, double x, GenereLinea genere) {
    return {{x, scala.basso}, {x, scala.alto}, genere};
}

/// A zoomed axis that holds fewer lines of its decades is divided evenly in their place.
constexpr size_t kPocheTacche = 4;
constexpr double kPartiFitte = 5;

/// At whole multiples of 1, 2 or 5 times a power of ten.
std::vector<Tacca> TaccheFitte(double startMhz, double stopMhz) {
    const double parte = (stopMhz - startMhz) / kPartiFitte;
    const double potenza = std::pow(10, std::floor(std::log10(parte)));
    const double cifra = parte / potenza;
    const double passo = potenza * (cifra < 2 ? 1 : cifra < 5 ? 2 : 5);
    std::vector<Tacca> tacche;
    const double prima = std::ceil(startMhz / passo);
    for (int i = 0; i <= 2 * kPartiFitte; ++i)
        if (const double f = (prima + i) * passo; f <= stopMhz)
            tacche.push_back({.freqMhz = f, .etichetta = FormatFreqLabel(f)});
    return tacche;
}

/// The vertical lines of either axis with their labels.
std::vector<Tacca> TaccheAsse(const ScalaGrafico& scala) {
    if (!AsseValido(scala.start, scala.stop, scala.logaritmica))
        return {};
    std::vector<Tacca> tacche;
    if (scala.logaritmica) {
        tacche = CalcolaDecade(scala.start, scala.stop);
        return tacche.size() < kPocheTacche ? TaccheFitte(scala.start, scala.stop) : tacche;
    }
    for (int i = 0; i <= kPartiLineare; ++i) {
        const double f = scala.start + (scala.stop - scala.start) * i / kPartiLineare;
        tacche.push_back({.freqMhz = f, .etichetta = FormatFreqLabel(f)});
    }
    return tacche;
}

std::vector<LineaGriglia> LineeCornice(const ScalaGrafico& scala) {
    return {
        Orizzontale(scala, scala.basso, GenereLinea::Sub),
        Orizzontale(scala, scala.alto, GenereLinea::Sub),
        Verticale(scala, 0, GenereLinea::Sub),
        Verticale(scala, scala.larghezzaPixel, GenereLinea::Sub),
    };
}

std::vector<LineaGriglia> LineeInterne(const ScalaGrafico& scala) {
    std::vector<LineaGriglia> linee;
    for (const Tacca& tacca : TaccheAsse(scala))
        linee.push_back(Verticale(scala, FreqToX(scala, tacca.freqMhz),
                                  tacca.decade ? GenereLinea::Principale : GenereLinea::Sub));
    for (const LivelloGriglia& livello : LivelliGriglia(scala, kPassoPunteggiate))
        linee.push_back(Orizzontale(scala, livello.mostrato, GenereLivello(livello.base)));
    return linee;
}

std::vector<LineaGriglia> LineeGriglia(const ScalaGrafico& scala, LineeVisibili visibili) {
    std::vector<LineaGriglia> linee = LineeCornice(scala);
    if (visibili != LineeVisibili::Nessuna)
        for (const LineaGriglia& linea : LineeInterne(scala))
            if (visibili == LineeVisibili::Tutte || linea.genere == GenereLinea::Principale)
                linee.push_back(linea);
    std::stable_sort(linee.begin(), linee.end(),
                     [](const auto& a, const auto& b) { return a.genere < b.genere; });
    return linee;
}

void ScriviLivelli(Superficie& superficie, const ScalaGrafico& scala, const PassoPixel& passo,
                   const TintaGrafico& tinta, const std::string& unita) {
    const double posto =
        kPostoLivello * superficie.DimensioneTesto("0", tinta.altezzaTesto).y * passo.y;
    int ogni = kPassoSub;
    while (ogni < posto && ogni < scala.alto - scala.basso)
        ogni *= 2;
    for (const LivelloGriglia& livello : LivelliGriglia(scala, ogni)) {
        const double y = std::min<double>(livello.mostrato, scala.alto - kSottoCornice);
        std::string testo = TestoDaNumero(livello.mostrato / 100.0);
        if (GenereLivello(livello.base) == GenereLinea::Principale)
            testo += " " + unita;
        superficie.Testo({-kStaccoLivello * passo.x, y}, Ancora::DestraMezzo, testo, tinta.scritte,
                         tinta.altezzaTesto);
    }
}

/// Frequency labels below the axis, each only where it does not touch one already there.
class FilaEtichette {
public:
    FilaEtichette(Superficie& superficie, const TintaGrafico& tinta, double y, double xPerPixel)
        : superficie_(superficie), tinta_(tinta), y_(y), xPerPixel_(xPerPixel) {}

    void Scrivi(double x, const std::string& testo) {
        const double mezza =
            superficie_.DimensioneTesto(testo, tinta_.altezzaTesto).x * xPerPixel_ / 2;
        const double aria = kFraFrequenze * xPerPixel_;
        const std::pair posto{x - mezza, x + mezza};
        const bool libero = std::none_of(occupati_.begin(), occupati_.end(), [&](const auto& o) {
            return posto.first < o.second + aria && posto.second + aria > o.first;
        });
        if (!libero)
            return;
        occupati_.push_back(posto);
        superficie_.Testo({x, y_}, Ancora::CentroAlto, testo, tinta_.scritte, tinta_.altezzaTesto);
    }
    size_t Quante() const { return occupati_.size(); }

private:
    Superficie& superficie_;
    const TintaGrafico& tinta_;
    double y_;
    double xPerPixel_;
    std::vector<std::pair<double, double>> occupati_;
};

void ScriviFrequenze(Superficie& superficie, const ScalaGrafico& scala, const PassoPixel& passo,
                     const TintaGrafico& tinta) {
    FilaEtichette fila(superficie, tinta, scala.basso - kStaccoFrequenza * passo.y, passo.x);
    const std::vector<Tacca> tacche = TaccheAsse(scala);
    const auto scrivi = [&](bool decade) {
        for (const Tacca& tacca : tacche)
            if (tacca.decade == decade && !tacca.etichetta.empty())
                fila.Scrivi(FreqToX(scala, tacca.freqMhz), tacca.etichetta);
    };
    scrivi(true);
    // All of a decade or none: a lone 2 here and there would only puzzle.
    const double larga = superficie.DimensioneTesto("500 M", tinta.altezzaTesto).x + kFraFrequenze;
    const double unoADue = scala.XScale * kLog10App * kUnoADue / passo.x;
    if (!scala.logaritmica || unoADue > larga || fila.Quante() < 2)
        scrivi(false);
    // A narrow span may hold no line worth a number: then its ends tell where it lies.
    if (fila.Quante() < 2 && scala.XScale > 0) {
        fila.Scrivi(0, FormatFreqLabel(scala.start));
        fila.Scrivi(scala.larghezzaPixel, FormatFreqLabel(scala.stop));
    }
}

} // namespace

void Grid(Superficie& superficie, const ScalaGrafico& scala, const RiquadroGriglia& dove,
          const EnvRecord& env, const TintaGrafico& tinta) {
    const Punto fine{superficie.LarghezzaPixel(), superficie.AltezzaPixel()};
    superficie.Scala(0, 0, fine.x, fine.y);
    superficie.Rettangolo({0, 0}, fine, tinta.sfondo, 1);
    if (!ImpostaCoordinate(superficie, scala, dove))
        return;
    for (const LineaGriglia& linea : LineeGriglia(scala, tinta.linee))
        superficie.Linea(linea.da, linea.a, PennaLinea(env, linea.genere, tinta));
}

void GridLabel(Superficie& superficie, const ScalaGrafico& scala, const RiquadroGriglia& dove,
               const TintaGrafico& tinta, const std::string& unita) {
    if (!ImpostaCoordinate(superficie, scala, dove))
        return;
    const PassoPixel passo = UnitaPerPixel(scala, dove);
    const double riga = superficie.DimensioneTesto("0", tinta.altezzaTesto).y;
    ScriviLivelli(superficie, scala, passo, tinta, unita);
    ScriviFrequenze(superficie, scala, passo, tinta);
    superficie.Testo({scala.larghezzaPixel, scala.basso - (kStaccoFrequenza + riga) * passo.y},
                     Ancora::DestraAlto, "Hz", tinta.scritte, tinta.altezzaTesto);
}

} // namespace orvane
