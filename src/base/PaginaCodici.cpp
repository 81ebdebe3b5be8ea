#include "base/PaginaCodici.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace orvane {
namespace {

// Codes 0x80 to 0x9F; the rest of the page is Latin-1.
constexpr std::array<char16_t, 32> kAlti = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// The least character that needs so many bytes; a longer form of a smaller one is no text.
constexpr std::array<uint32_t, 5> kPrimoPunto = {0, 0, 0x80, 0x800, 0x10000};

void Accoda(std::string& testo, char16_t punto) {
    if (punto < 0x80) {
        testo += static_cast<char>(punto);
    } else if (punto < 0x800) {
        testo += static_cast<char>(0xC0 | punto >> 6);
        testo += static_cast<char>(0x80 | (punto & 0x3F));
    } else {
        testo += static_cast<char>(0xE0 | punto >> 12);
        testo += static_cast<char>(0x80 | (punto >> 6 & 0x3F));
        testo += static_cast<char>(0x80 | (punto & 0x3F));
    }
}

/// The character at the head of `testo`, and how many bytes it takes; 0xFFFFFFFF for a bad one.
uint32_t Prossimo(std::string_view testo, size_t& lunghezza) {
    const auto primo = static_cast<uint8_t>(testo[0]);
    lunghezza = primo < 0x80       ? 1
                : primo >> 5 == 6  ? 2
                : primo >> 4 == 14 ? 3
                : primo >> 3 == 30 ? 4
                                   : 0;
    if (lunghezza == 0 || lunghezza > testo.size()) {
        lunghezza = 1;
        return ~0u;
    }
    uint32_t punto = lunghezza == 1 ? primo : primo & (0x7Fu >> lunghezza);
    for (size_t i = 1; i < lunghezza; ++i) {
        const auto seguente = static_cast<uint8_t>(testo[i]);
        if (seguente >> 6 != 2) {
            lunghezza = 1;
            return ~0u;
        }
        punto = punto << 6 | (seguente & 0x3F);
    }
    if (punto < kPrimoPunto[lunghezza]) {
        lunghezza = 1;
        return ~0u;
    }
    return punto;
}

char InByte(uint32_t punto) {
    if (punto < 0x80 || (punto >= 0xA0 && punto <= 0xFF))
        return static_cast<char>(punto);
    const auto trovato = std::find(kAlti.begin(), kAlti.end(), punto);
    return trovato == kAlti.end() ? '?' : static_cast<char>(0x80 + (trovato - kAlti.begin()));
}

} // namespace

std::string DaAnsi(std::string_view bytes) {
    std::string testo;
    testo.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<uint8_t>(c);
        Accoda(testo, byte >= 0x80 && byte < 0xA0 ? kAlti[byte - 0x80] : byte);
    }
    return testo;
}

std::string InAnsi(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    for (size_t lunghezza; !utf8.empty(); utf8.remove_prefix(lunghezza))
        bytes += InByte(Prossimo(utf8, lunghezza));
    return bytes;
}

bool NellaPagina(std::string_view utf8) {
    return DaAnsi(InAnsi(utf8)) == utf8;
}

} // namespace orvane
