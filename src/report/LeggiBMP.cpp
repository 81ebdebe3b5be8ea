#include "report/LeggiBMP.h"

#include <algorithm>
#include <cstdio>
#include <system_error>

namespace orvane {
namespace {

constexpr int kMassimoLato = 32767;
constexpr uintmax_t kMassimoFile = uintmax_t{1} << 29;

struct TestataBMP {
    size_t inizio = 0; ///< of the pixels
    size_t fineTestata = 0;
    int larghezza = 0;
    int altezza = 0;
    bool dallAlto = false;
    int bit = 0;
    uint32_t colori = 0;
};

uint32_t Intero(std::span<const uint8_t> byte, size_t dove, size_t quanti) {
    uint32_t valore = 0;
    for (size_t i = quanti; i-- > 0;)
        valore = valore << 8 | byte[dove + i];
    return valore;
}

std::optional<TestataBMP> LeggiTestata(std::span<const uint8_t> byte) {
    if (byte.size() < 54 || byte[0] != 'B' || byte[1] != 'M')
        return std::nullopt;
    const uint32_t lunghezza = Intero(byte, 14, 4);
    const auto altezza = static_cast<int32_t>(Intero(byte, 22, 4));
    const auto larghezza = static_cast<int32_t>(Intero(byte, 18, 4));
    const uint32_t bit = Intero(byte, 28, 2);
    const bool profondo = bit == 1 || bit == 4 || bit == 8 || bit == 24;
    if (lunghezza < 40 || lunghezza > byte.size() || !profondo || Intero(byte, 30, 4) != 0 ||
        larghezza <= 0 || larghezza > kMassimoLato || altezza == 0 || altezza > kMassimoLato ||
        altezza < -kMassimoLato)
        return std::nullopt;
    return TestataBMP{.inizio = Intero(byte, 10, 4),
                      .fineTestata = 14 + lunghezza,
                      .larghezza = larghezza,
                      .altezza = std::abs(altezza),
                      .dallAlto = altezza < 0,
                      .bit = static_cast<int>(bit),
                      .colori = Intero(byte, 46, 4)};
}

/// Colours that the file lacks are black.
std::vector<uint8_t> LeggiPaletta(std::span<const uint8_t> byte, const TestataBMP& testata) {
    const size_t tutti = size_t{1} << testata.bit;
    const size_t presenti = testata.colori == 0 ? tutti : std::min<size_t>(testata.colori, tutti);
    std::vector<uint8_t> paletta(tutti * 3, 0);
    for (size_t i = 0; i < presenti && testata.fineTestata + 4 * i + 2 < byte.size(); ++i)
        for (size_t c = 0; c < 3; ++c)
            paletta[3 * i + c] = byte[testata.fineTestata + 4 * i + 2 - c];
    return paletta;
}

void AccodaRiga(std::span<const uint8_t> riga, PixelPdf& pixel) {
    if (pixel.bit != 24) {
        pixel.dati.insert(pixel.dati.end(), riga.begin(), riga.end());
        return;
    }
    for (size_t i = 0; i + 2 < riga.size(); i += 3) {
        const uint8_t blu = riga[i], verde = riga[i + 1], rosso = riga[i + 2];
        if (pixel.grigio)
            pixel.dati.push_back(
                static_cast<uint8_t>((299 * rosso + 587 * verde + 114 * blu + 500) / 1000));
        else
            pixel.dati.insert(pixel.dati.end(), {rosso, verde, blu});
    }
}

} // namespace

std::optional<PixelPdf> LeggiBMP(std::span<const uint8_t> byte, bool grigio) {
    const auto testata = LeggiTestata(byte);
    if (!testata)
        return std::nullopt;
    const size_t utili = (static_cast<size_t>(testata->larghezza * testata->bit) + 7) / 8;
    const size_t passo = (utili + 3) / 4 * 4;
    const auto righe = static_cast<size_t>(testata->altezza);
    if (testata->inizio < testata->fineTestata || testata->inizio > byte.size() ||
        (byte.size() - testata->inizio) / passo < righe)
        return std::nullopt;
    PixelPdf pixel{.larghezza = testata->larghezza,
                   .altezza = testata->altezza,
                   .bit = testata->bit,
                   .grigio = grigio && testata->bit == 24};
    if (testata->bit != 24)
        pixel.paletta = LeggiPaletta(byte, *testata);
    pixel.dati.reserve(utili * righe);
    for (size_t i = 0; i < righe; ++i) {
        const size_t riga = testata->dallAlto ? i : righe - 1 - i;
        AccodaRiga(byte.subspan(testata->inizio + riga * passo, utili), pixel);
    }
    return pixel;
}

std::optional<PixelPdf> LeggiFileBMP(const std::filesystem::path& percorso, bool grigio) {
    std::error_code errore;
    const uintmax_t lunghezza = std::filesystem::file_size(percorso, errore);
    if (errore || lunghezza > kMassimoFile)
        return std::nullopt;
    const FileC file(std::fopen(percorso.string().c_str(), "rb"));
    std::vector<uint8_t> byte(lunghezza);
    if (!file || std::fread(byte.data(), 1, byte.size(), file.get()) != byte.size())
        return std::nullopt;
    return LeggiBMP(byte, grigio);
}

} // namespace orvane
