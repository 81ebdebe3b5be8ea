#include "report/LogoReport.h"

#include <cmath>

#include "report/ScriviBMP.h"

namespace orvane {
namespace {

constexpr int kLarghezza = 320;
constexpr int kAltezza = 160;
constexpr int kCima = 72;    ///< rows that are drawn, from the foot
constexpr int kLimite1 = 60; ///< rows of a limit's two steps
constexpr int kLimite2 = 44;

enum Tinta : uint8_t { Bianco, Blu, Celeste, Rosso };
/// Red, green, blue of each.
constexpr std::array<uint8_t, 12> kColori = {255, 255, 255, 20,  60, 110,
                                             170, 205, 235, 200, 50, 40};

/// A spectrum: two peaks over a floor.
double Spettro(int x) {
    const double a = (x - 95) / 14.0, b = (x - 215) / 9.0;
    return 12 + 42 / (1 + a * a) + 22 / (1 + b * b) + 2 * std::sin(x * 0.7);
}

Tinta Punto(int x, int y) {
    if (y >= kCima)
        return Bianco;
    if (y < 4 || x < 4)
        return Blu;
    const int limite = x < kLarghezza / 2 ? kLimite1 : kLimite2;
    if (std::abs(y - limite) < 2 ||
        (std::abs(x - kLarghezza / 2) < 2 && y >= kLimite2 - 1 && y <= kLimite1 + 1))
        return Rosso;
    const double livello = Spettro(x);
    const double pendenza = std::abs(Spettro(x + 1) - Spettro(x - 1)) / 2;
    if (std::abs(y - livello) < 2.5 * std::sqrt(1 + pendenza * pendenza))
        return Blu;
    return y < livello ? Celeste : Bianco;
}

} // namespace

std::vector<uint8_t> LogoBMP() {
    PixelPdf pixel{.larghezza = kLarghezza, .altezza = kAltezza, .bit = 4};
    for (int y = kAltezza; y-- > 0;)
        for (int x = 0; x < kLarghezza; x += 2)
            pixel.dati.push_back(static_cast<uint8_t>(Punto(x, y) << 4 | Punto(x + 1, y)));
    pixel.paletta.assign(kColori.begin(), kColori.end());
    pixel.paletta.resize(16 * 3);
    return InBMP(pixel);
}

} // namespace orvane
