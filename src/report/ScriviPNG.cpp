#include "report/ScriviPNG.h"

#include <algorithm>
#include <string_view>

namespace orvane {
namespace {

using Byte = std::vector<uint8_t>;

constexpr std::array<uint32_t, 256> TabellaCrc() {
    std::array<uint32_t, 256> tabella{};
    for (uint32_t i = 0; i < 256; ++i) {
        uint32_t c = i;
        for (int k = 0; k < 8; ++k)
            c = c & 1 ? 0xEDB88320u ^ c >> 1 : c >> 1;
        tabella[i] = c;
    }
    return tabella;
}

void AccodaU32(Byte& byte, uint32_t valore) {
    for (const int spostamento : {24, 16, 8, 0})
        byte.push_back(static_cast<uint8_t>(valore >> spostamento & 0xFF));
}

void AccodaPezzo(Byte& file, std::string_view tipo, const Byte& dati) {
    static constexpr auto kCrc = TabellaCrc();
    AccodaU32(file, static_cast<uint32_t>(dati.size()));
    const size_t inizio = file.size();
    file.insert(file.end(), tipo.begin(), tipo.end());
    file.insert(file.end(), dati.begin(), dati.end());
    uint32_t crc = 0xFFFFFFFFu;
    for (size_t i = inizio; i < file.size(); ++i)
        crc = kCrc[(crc ^ file[i]) & 0xFF] ^ crc >> 8;
    AccodaU32(file, ~crc);
}

/// A zlib stream in the fixed code, whose only matches are runs of one byte.
class Compressione {
public:
    void Aggiungi(std::span<const uint8_t> byte) {
        for (const uint8_t b : byte) {
            somma1_ = (somma1_ + b) % 65521;
            somma2_ = (somma2_ + somma1_) % 65521;
            if (b == ultimo_) {
                ++ripetuto_;
                continue;
            }
            ChiudiSerie();
            Simbolo(b);
            ultimo_ = b;
        }
    }
    Byte Fine() {
        ChiudiSerie();
        Simbolo(256);
        Bit(0, 7); // up to a whole byte
        AccodaU32(uscita_, somma2_ << 16 | somma1_);
        return std::move(uscita_);
    }

private:
    // Only the lengths that need no further bits: 3 to 10, and 258.
    static constexpr size_t kMinima = 3, kBreve = 10, kMassima = 258;

    void ChiudiSerie() {
        while (ripetuto_ > 0) {
            const size_t lunga = ripetuto_ >= kMassima  ? kMassima
                                 : ripetuto_ >= kBreve  ? kBreve
                                 : ripetuto_ >= kMinima ? ripetuto_
                                                        : 1;
            if (lunga == 1)
                Simbolo(static_cast<unsigned>(ultimo_));
            else {
                Simbolo(lunga == kMassima ? 285 : static_cast<unsigned>(254 + lunga));
                Bit(0, 5); // distance 1
            }
            ripetuto_ -= lunga;
        }
    }
    void Simbolo(unsigned s) {
        if (s < 144)
            Codice(0x30 + s, 8);
        else if (s < 256)
            Codice(0x190 + s - 144, 9);
        else if (s < 280)
            Codice(s - 256, 7);
        else
            Codice(0xC0 + s - 280, 8);
    }
    void Codice(unsigned codice, int lunghezza) { // its highest bit comes first
        for (int i = lunghezza; i-- > 0;)
            Bit(codice >> i & 1, 1);
    }
    void Bit(unsigned valore, int quanti) {
        attesa_ |= valore << inAttesa_;
        for (inAttesa_ += quanti; inAttesa_ >= 8; inAttesa_ -= 8, attesa_ >>= 8)
            uscita_.push_back(static_cast<uint8_t>(attesa_ & 0xFF));
    }

    Byte uscita_ = {0x78, 0x01};
    unsigned attesa_ = 3; // the only block, in the fixed code
    int inAttesa_ = 3;
    int ultimo_ = -1;
    size_t ripetuto_ = 0;
    uint32_t somma1_ = 1, somma2_ = 0;
};

Byte Testata(const PixelPdf& pixel) {
    const bool paletta = pixel.bit != 24;
    const uint8_t tipo = paletta ? 3 : pixel.grigio ? 0 : 2;
    Byte dati;
    AccodaU32(dati, static_cast<uint32_t>(pixel.larghezza));
    AccodaU32(dati, static_cast<uint32_t>(pixel.altezza));
    dati.insert(dati.end(), {static_cast<uint8_t>(paletta ? pixel.bit : 8), tipo, 0, 0, 0});
    return dati;
}

/// Each row as its difference from the row above.
Byte Righe(const PixelPdf& pixel) {
    const size_t passo = pixel.dati.size() / static_cast<size_t>(pixel.altezza);
    Compressione compressione;
    Byte riga(passo + 1, 2); // "up"
    for (size_t da = 0; da < pixel.dati.size(); da += passo) {
        for (size_t i = 0; i < passo; ++i)
            riga[i + 1] = static_cast<uint8_t>(pixel.dati[da + i] -
                                               (da == 0 ? 0 : pixel.dati[da + i - passo]));
        compressione.Aggiungi(riga);
    }
    return compressione.Fine();
}

} // namespace

std::vector<uint8_t> InPNG(const PixelPdf& pixel) {
    Byte file = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    AccodaPezzo(file, "IHDR", Testata(pixel));
    if (pixel.bit != 24)
        AccodaPezzo(file, "PLTE", pixel.paletta);
    AccodaPezzo(file, "IDAT", Righe(pixel));
    AccodaPezzo(file, "IEND", {});
    return file;
}

} // namespace orvane
