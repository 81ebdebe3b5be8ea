#include "graph/PiedeQuadro.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "base/Numeri.h"

namespace orvane {
namespace {

// In heights of the text along the axes.
constexpr double kLetteraMassima = 0.9;
constexpr double kLetteraMinima = 0.62;
constexpr double kMinimoPixel = 7;
constexpr double kMargine = 1.2;

constexpr size_t kMassimoColonne = 4;
constexpr size_t kFraColonne = 4; ///< letters

bool Continua(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}
size_t Caratteri(const std::string& testo) {
    return static_cast<size_t>(
        std::count_if(testo.begin(), testo.end(), [](char c) { return !Continua(c); }));
}

/// Place behind so many characters.
size_t Dietro(const std::string& testo, size_t da, size_t caratteri) {
    size_t i = da;
    for (; i < testo.size(); ++i)
        if (!Continua(testo[i]) && caratteri-- == 0)
            break;
    return i;
}

/// Pieces of at most `larga` characters, cut behind a blank where there is one.
void Spezza(const std::string& riga, size_t larga, std::vector<std::string>& pezzi) {
    size_t da = 0;
    while (Caratteri(riga.substr(da)) > larga) {
        const size_t fine = Dietro(riga, da, larga);
        const size_t bianco = riga.rfind(' ', fine);
        const size_t taglio = bianco != std::string::npos && bianco > da ? bianco : fine;
        pezzi.push_back(riga.substr(da, taglio - da));
        da = riga.find_first_not_of(' ', taglio);
        if (da == std::string::npos)
            return;
    }
    pezzi.push_back(riga.substr(da));
}

struct Misure {
    double larghezza = 0; ///< of the picture without its margins
    double altezza = 0;   ///< that the lines may take
};

PiedeQuadro Prova(const Superficie& superficie, const std::vector<std::string>& righe,
                  double lettera, size_t colonne, const Misure& misure) {
    const Punto cella = superficie.DimensionePassoFisso("0", lettera);
    const double aria = static_cast<double>(colonne - 1) * kFraColonne * cella.x;
    const auto entro = static_cast<size_t>(
        std::max(1.0, (misure.larghezza - aria) / static_cast<double>(colonne) / cella.x));
    PiedeQuadro piede{.lettera = lettera, .passo = std::ceil(cella.y), .colonne = colonne};
    for (const std::string& riga : righe)
        Spezza(riga, entro, piede.righe);
    piede.perColonna = (piede.righe.size() + colonne - 1) / colonne;
    piede.larghezzaColonna = static_cast<double>(entro + kFraColonne) * cella.x;
    piede.altezza = static_cast<double>(piede.perColonna) * piede.passo;
    return piede;
}

/// Whether it has room, and beside others no line is broken.
bool Buono(const PiedeQuadro& piede, size_t righe, const Misure& misure) {
    return piede.altezza <= misure.altezza && (piede.colonne == 1 || piede.righe.size() == righe);
}

void Accorcia(PiedeQuadro& piede, const Misure& misure) {
    piede.perColonna = std::max<size_t>(1, static_cast<size_t>(misure.altezza / piede.passo));
    const size_t posti = piede.perColonna * piede.colonne;
    if (piede.righe.size() > posti) {
        const size_t fuori = piede.righe.size() - posti + 1;
        piede.righe.resize(posti);
        piede.righe.back() = "... (" + TestoIntero(static_cast<long long>(fuori)) + " more lines)";
    }
    piede.altezza = static_cast<double>(piede.perColonna) * piede.passo;
}

} // namespace

PiedeQuadro DisponiPiede(const Superficie& superficie, const std::vector<std::string>& righe,
                         double altezzaTesto, double parteMassima) {
    if (righe.empty())
        return {};
    const double margine = std::ceil(kMargine * altezzaTesto);
    const Misure misure{superficie.LarghezzaPixel() - 2 * margine,
                        superficie.AltezzaPixel() * parteMassima - margine};
    const double minima = std::max(kMinimoPixel, std::floor(kLetteraMinima * altezzaTesto));
    const double massima = std::max(minima, std::floor(kLetteraMassima * altezzaTesto));
    std::optional<PiedeQuadro> piede;
    for (double lettera = massima; lettera >= minima && !piede; --lettera)
        for (size_t colonne = 1; colonne <= kMassimoColonne && !piede; ++colonne)
            if (PiedeQuadro prova = Prova(superficie, righe, lettera, colonne, misure);
                Buono(prova, righe.size(), misure))
                piede = std::move(prova);
    if (!piede) {
        piede = Prova(superficie, righe, minima, 1, misure);
        Accorcia(*piede, misure);
    }
    piede->altezza += margine;
    return *piede;
}

void DisegnaPiede(Superficie& superficie, const PiedeQuadro& piede, int32_t colore) {
    superficie.Scala(0, 0, superficie.LarghezzaPixel(), superficie.AltezzaPixel());
    const double margine = piede.altezza - static_cast<double>(piede.perColonna) * piede.passo;
    const double alto = superficie.AltezzaPixel() - piede.altezza;
    for (size_t i = 0; i < piede.righe.size(); ++i) {
        const auto colonna = static_cast<double>(i / piede.perColonna);
        const auto riga = static_cast<double>(i % piede.perColonna);
        superficie.TestoPassoFisso(
            {margine + colonna * piede.larghezzaColonna, alto + riga * piede.passo},
            Ancora::SinistraAlto, piede.righe[i], colore, piede.lettera);
    }
}

} // namespace orvane
