#include "graph/TestataQuadro.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "base/Numeri.h"
#include "graph/RighePicchi.h"
#include "graph/TinteQuadro.h"

namespace orvane {
namespace {

// In heights of the letters.
constexpr double kSopra = 0.5;
constexpr double kAltezzaRiga = 1.9;
constexpr double kMargineInsegna = 0.6;
constexpr double kStaccoInsegna = 0.35; ///< above and below the ground of a badge, together
constexpr double kLunghezzaTratto = 1.6;
constexpr double kDietroTratto = 0.5;
constexpr double kFraPezzi = 0.9;

size_t Accesi(const StratoQuadro& strato) {
    return static_cast<size_t>(std::count(strato.detector.begin(), strato.detector.end(), true));
}

std::vector<PezzoTestata> Legenda(const ContenutoQuadro& contenuto, const StileQuadro& stile) {
    const auto& strati = contenuto.strati;
    std::vector<PezzoTestata> pezzi;
    if (!stile.legenda || strati.empty() || (strati.size() == 1 && Accesi(strati[0]) < 2))
        return pezzi;
    for (const StratoQuadro& strato : strati) {
        if (!strato.nome.empty())
            pezzi.push_back({.testo = strato.nome, .colore = stile.inchiostro});
        for (size_t d = 0; d < kNumDetector; ++d)
            if (strato.detector[d])
                pezzi.push_back({.testo = kNomiDetector[d],
                                 .colore = stile.inchiostro,
                                 .tratto = strato.colori[d]});
    }
    return pezzi;
}

PezzoTestata Insegna(Giudizio giudizio, const std::string& testo) {
    const TintaInsegna& tinta = TintaGiudizio(giudizio);
    return {.testo = testo, .colore = tinta.testo, .fondo = tinta.fondo};
}

/// The verdict in one word, then each limit.
std::vector<PezzoTestata> Insegne(const ContenutoQuadro& contenuto, const StileQuadro& stile) {
    const Verdetto& verdetto = contenuto.verdetto;
    if (!stile.verdetto || verdetto.insieme == Giudizio::Nessuno)
        return {};
    std::vector<PezzoTestata> pezzi = {Insegna(verdetto.insieme, TestoGiudizio(verdetto.insieme))};
    for (const VerdettoLimite& v : verdetto.limiti)
        pezzi.push_back(Insegna(v.giudizio, TestoInsegna(v, contenuto.misura)));
    return pezzi;
}

void Misura(const Superficie& superficie, std::vector<PezzoTestata>& pezzi, double altezza) {
    for (PezzoTestata& p : pezzi) {
        p.larghezza = std::ceil(superficie.DimensioneTesto(p.testo, altezza).x);
        if (p.tratto)
            p.larghezza += (kLunghezzaTratto + kDietroTratto) * altezza;
        if (p.fondo)
            p.larghezza += 2 * kMargineInsegna * altezza;
    }
}

double Somma(const std::vector<PezzoTestata>& pezzi, double aria) {
    double somma = 0;
    for (const PezzoTestata& p : pezzi)
        somma += p.larghezza + aria;
    return somma;
}

/// Rows from the left; gives the first row behind them.
size_t VaiACapo(std::span<PezzoTestata> pezzi, size_t riga, double sinistra, double destra,
                double aria) {
    double x = sinistra;
    for (PezzoTestata& p : pezzi) {
        if (x > sinistra && x + p.larghezza > destra) {
            x = sinistra;
            ++riga;
        }
        p.x = x;
        p.riga = riga;
        x += p.larghezza + aria;
    }
    return pezzi.empty() ? riga : riga + 1;
}

/// Moves each row so that it ends at the right edge.
void SpingiADestra(std::span<PezzoTestata> pezzi, double destra) {
    for (size_t da = 0; da < pezzi.size();) {
        size_t fine = da;
        while (fine < pezzi.size() && pezzi[fine].riga == pezzi[da].riga)
            ++fine;
        const double spinta = destra - (pezzi[fine - 1].x + pezzi[fine - 1].larghezza);
        for (; da < fine; ++da)
            pezzi[da].x += std::max(0.0, spinta);
    }
}

void Disegna(Superficie& superficie, const PezzoTestata& p, const TestataQuadro& testata,
             const StileQuadro& stile) {
    const double lettera = stile.tinta.altezzaTesto;
    const double y = testata.sopra + (static_cast<double>(p.riga) + 0.5) * testata.altezzaRiga;
    double x = p.x;
    if (p.fondo) {
        const double mezza = (testata.altezzaRiga - kStaccoInsegna * lettera) / 2;
        superficie.Rettangolo({p.x, y - mezza}, {p.x + p.larghezza, y + mezza}, *p.fondo, 1);
        x += kMargineInsegna * lettera;
    }
    if (p.tratto) {
        superficie.Linea(
            {x, y}, {x + kLunghezzaTratto * lettera, y},
            {.colore = *p.tratto, .larghezza = std::max(2.0, 2 * stile.spessoreTracce)});
        x += (kLunghezzaTratto + kDietroTratto) * lettera;
    }
    superficie.Testo({x, y}, Ancora::SinistraMezzo, p.testo, p.colore, lettera);
}

} // namespace

std::string TestoInsegna(const VerdettoLimite& verdetto, const MisuraAperta& misura) {
    if (verdetto.giudizio == Giudizio::Nessuno)
        return std::string(SiglaDetector(verdetto.detector)) + " " +
               TestoGiudizio(Giudizio::Nessuno);
    const double delta = verdetto.Delta();
    const double passo = PassoTraccia(misura, verdetto.indice);
    return std::string(SiglaDetector(verdetto.detector)) + (delta > 0 ? " +" : " ") +
           TestoFisso(delta, 2) + " dB at " + DetFormatoVal(verdetto.freqMhz, passo) + " MHz";
}

TestataQuadro DisponiTestata(const Superficie& superficie, const ContenutoQuadro& contenuto,
                             const StileQuadro& stile, double sinistra, double destra) {
    const double lettera = stile.tinta.altezzaTesto;
    const double aria = kFraPezzi * lettera;
    TestataQuadro testata{.altezzaRiga = std::ceil(kAltezzaRiga * lettera)};
    testata.pezzi = Legenda(contenuto, stile);
    std::vector<PezzoTestata> insegne = Insegne(contenuto, stile);
    Misura(superficie, testata.pezzi, lettera);
    Misura(superficie, insegne, lettera);
    const bool insieme = Somma(testata.pezzi, aria) + Somma(insegne, aria) <= destra - sinistra;
    const size_t dopo = VaiACapo(testata.pezzi, 0, sinistra, destra, aria);
    const size_t fine = VaiACapo(insegne, insieme ? 0 : dopo, sinistra, destra, aria / 2);
    SpingiADestra(insegne, destra);
    testata.pezzi.insert(testata.pezzi.end(), insegne.begin(), insegne.end());
    const double righe = static_cast<double>(std::max(dopo, fine));
    testata.sopra = std::ceil(kSopra * lettera);
    testata.altezza = righe > 0 ? righe * testata.altezzaRiga + testata.sopra : 0;
    return testata;
}

void DisegnaTestata(Superficie& superficie, const TestataQuadro& testata,
                    const StileQuadro& stile) {
    superficie.Scala(0, 0, superficie.LarghezzaPixel(), superficie.AltezzaPixel());
    for (const PezzoTestata& p : testata.pezzi)
        Disegna(superficie, p, testata, stile);
}

} // namespace orvane
