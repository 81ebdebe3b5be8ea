#include "data/NomiDisco.h"

#include <cstdint>
#include <string>

#include "base/Testo.h"

namespace orvane {
namespace {

/// Second byte of the upper case of a two-byte letter with lead byte 0xC3 or 0xC5.
uint8_t SecondoMaiuscolo(uint8_t primo, uint8_t secondo) {
    constexpr uint8_t kDiviso = 0xB7; // the division sign stands among the letters
    if (primo == 0xC3 && secondo >= 0xA0 && secondo <= 0xBE && secondo != kDiviso)
        return static_cast<uint8_t>(secondo - 0x20);
    if (primo == 0xC5 && (secondo == 0xA1 || secondo == 0x93 || secondo == 0xBE))
        return static_cast<uint8_t>(secondo - 1);
    return secondo;
}

} // namespace

std::string ChiaveNome(std::string_view nome) {
    std::string chiave = Maiuscolo(nome);
    for (size_t i = 0; i + 1 < chiave.size(); ++i) {
        const auto primo = static_cast<uint8_t>(chiave[i]);
        if (primo != 0xC3 && primo != 0xC5)
            continue;
        ++i;
        chiave[i] = static_cast<char>(SecondoMaiuscolo(primo, static_cast<uint8_t>(chiave[i])));
    }
    return Sostituisci(chiave, "\xC3\xBF", "\xC5\xB8"); // y with diaeresis
}

std::filesystem::path PathDaUtf8(std::string_view testo) {
    return std::filesystem::path(std::u8string(testo.begin(), testo.end()));
}

std::string Utf8DaPath(const std::filesystem::path& percorso) {
    const std::u8string testo = percorso.u8string();
    return std::string(testo.begin(), testo.end());
}

bool NomeTabellaAmmesso(std::string_view nome) {
    return !Rifila(nome).empty() &&
           nome.find_first_of(std::string_view("\\/:*?\"<>|\0", 10)) == std::string_view::npos;
}

} // namespace orvane
