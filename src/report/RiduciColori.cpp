#include "report/RiduciColori.h"

#include <algorithm>
#include <limits>
#include <unordered_map>

namespace orvane {
namespace {

constexpr size_t kColori = 256;
/// Colours nearer than this need no entry each; squares, so that nothing is rooted.
constexpr int kMinimaDistanza2 = 3 * 10 * 10;

using Colore = uint32_t; ///< red, green, blue from its low byte up
using Conteggi = std::unordered_map<Colore, size_t>;

Colore Leggi(const std::vector<uint8_t>& dati, size_t dove) {
    return dati[dove] | static_cast<Colore>(dati[dove + 1]) << 8 |
           static_cast<Colore>(dati[dove + 2]) << 16;
}

int Distanza2(Colore a, Colore b) {
    int somma = 0;
    for (const int bit : {0, 8, 16}) {
        const int d = static_cast<int>(a >> bit & 0xFF) - static_cast<int>(b >> bit & 0xFF);
        somma += d * d;
    }
    return somma;
}

/// Index of the nearest, and how near it is.
std::pair<size_t, int> PiuVicino(const std::vector<Colore>& scelti, Colore colore) {
    std::pair<size_t, int> vicino{0, std::numeric_limits<int>::max()};
    for (size_t i = 0; i < scelti.size() && vicino.second > 0; ++i)
        if (const int d = Distanza2(scelti[i], colore); d < vicino.second)
            vicino = {i, d};
    return vicino;
}

/// The most frequent ones, none beside another.
std::vector<Colore> Scegli(const Conteggi& conteggi) {
    std::vector<std::pair<size_t, Colore>> ordine;
    for (const auto& [colore, quanti] : conteggi)
        ordine.emplace_back(quanti, colore);
    std::ranges::sort(ordine, std::greater());
    const int minima = ordine.size() <= kColori ? 0 : kMinimaDistanza2;
    std::vector<Colore> scelti;
    for (const auto& [quanti, colore] : ordine)
        if (scelti.size() < kColori && PiuVicino(scelti, colore).second > minima)
            scelti.push_back(colore);
    return scelti;
}

} // namespace

PixelPdf RiduciColori(const PixelPdf& pixel) {
    if (pixel.bit != 24 || pixel.grigio)
        return pixel;
    Conteggi conteggi;
    for (size_t i = 0; i < pixel.dati.size(); i += 3)
        ++conteggi[Leggi(pixel.dati, i)];
    const std::vector<Colore> scelti = Scegli(conteggi);
    for (auto& [colore, indice] : conteggi)
        indice = PiuVicino(scelti, colore).first;
    PixelPdf ridotto{.larghezza = pixel.larghezza, .altezza = pixel.altezza, .bit = 8};
    ridotto.dati.reserve(pixel.dati.size() / 3);
    for (size_t i = 0; i < pixel.dati.size(); i += 3)
        ridotto.dati.push_back(static_cast<uint8_t>(conteggi[Leggi(pixel.dati, i)]));
    ridotto.paletta.resize(3 * kColori);
    for (size_t i = 0; i < 3 * scelti.size(); ++i)
        ridotto.paletta[i] = static_cast<uint8_t>(scelti[i / 3] >> 8 * (i % 3) & 0xFF);
    return ridotto;
}

} // namespace orvane
