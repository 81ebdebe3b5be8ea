#include "report/LogoReport.h"

#include <array>
#include <cmath>

namespace orvane {
namespace {

constexpr int kLarghezza = 320;
constexpr int kAltezza = 160;
constexpr int kCima = 72;    ///< rows that are drawn, from the foot
constexpr int kLimite1 = 60; ///< rows of a limit's two steps
constexpr int kLimite2 = 44;
constexpr uint32_t kTestata = 14 + 40 + 16 * 4;

enum Tinta : uint8_t { Bianco, Blu, Celeste, Rosso };
struct Colore {
    uint8_t blu, verde, rosso;
};
constexpr std::array<Colore, 4> kColori = {
    {{255, 255, 255}, {110, 60, 20}, {235, 205, 170}, {40, 50, 200}}};

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

void Accoda(std::vector<uint8_t>& byte, uint32_t valore, int quanti) {
    for (int i = 0; i < quanti; ++i, valore >>= 8)
        byte.push_back(static_cast<uint8_t>(valore & 0xFF));
}

} // namespace

std::vector<uint8_t> LogoBMP() {
    constexpr uint32_t kPixel = kLarghezza / 2 * kAltezza;
    std::vector<uint8_t> byte = {'B', 'M'};
    for (const uint32_t campo :
         {kTestata + kPixel, 0u, kTestata, 40u, uint32_t{kLarghezza}, uint32_t{kAltezza}})
        Accoda(byte, campo, 4);
    Accoda(byte, 1, 2);
    Accoda(byte, 4, 2);
    for (const uint32_t campo : {0u, kPixel, 11811u, 11811u, 16u, 0u}) // 300 pixels an inch
        Accoda(byte, campo, 4);
    for (size_t i = 0; i < 16; ++i) {
        const Colore colore = i < kColori.size() ? kColori[i] : Colore{};
        byte.insert(byte.end(), {colore.blu, colore.verde, colore.rosso, 0});
    }
    for (int y = 0; y < kAltezza; ++y)
        for (int x = 0; x < kLarghezza; x += 2)
            byte.push_back(static_cast<uint8_t>(Punto(x, y) << 4 | Punto(x + 1, y)));
    return byte;
}

} // namespace orvane
