#include "report/ScriviBMP.h"

namespace orvane {
namespace {

constexpr size_t kTestata = 14 + 40;
constexpr uint32_t kPixelPerMetro = 11811;

void Accoda(std::vector<uint8_t>& byte, size_t valore, int quanti) {
    for (int i = 0; i < quanti; ++i, valore >>= 8)
        byte.push_back(static_cast<uint8_t>(valore & 0xFF));
}

} // namespace

std::vector<uint8_t> InBMP(const PixelPdf& pixel) {
    const auto altezza = static_cast<size_t>(pixel.altezza);
    const size_t utili = pixel.dati.size() / altezza;
    const size_t passo = (utili + 3) / 4 * 4;
    const size_t colori = pixel.paletta.size() / 3;
    const size_t inizio = kTestata + 4 * colori;
    std::vector<uint8_t> byte = {'B', 'M'};
    byte.reserve(inizio + passo * altezza);
    for (const size_t campo : {inizio + passo * altezza, size_t{0}, inizio, size_t{40},
                               static_cast<size_t>(pixel.larghezza), altezza})
        Accoda(byte, campo, 4);
    Accoda(byte, 1, 2);
    Accoda(byte, static_cast<size_t>(pixel.bit), 2);
    for (const size_t campo : {size_t{0}, passo * altezza, size_t{kPixelPerMetro},
                               size_t{kPixelPerMetro}, colori, size_t{0}})
        Accoda(byte, campo, 4);
    for (size_t i = 0; i < pixel.paletta.size(); i += 3)
        byte.insert(byte.end(), {pixel.paletta[i + 2], pixel.paletta[i + 1], pixel.paletta[i], 0});
    for (size_t riga = altezza; riga-- > 0;) {
        const auto da = pixel.dati.begin() + static_cast<long>(riga * utili);
        byte.insert(byte.end(), da, da + static_cast<long>(utili));
        byte.resize(byte.size() + passo - utili);
    }
    return byte;
}

} // namespace orvane
