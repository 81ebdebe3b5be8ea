#include "records/Visite.h"

#include "base/PaginaCodici.h"

namespace orvane {

void LettoreCampi::Testo(std::string& campo, size_t larghezza, std::string_view) {
    const uint8_t* da = Prendi(larghezza);
    if (!da)
        return;
    std::string_view bytes(reinterpret_cast<const char*>(da), larghezza);
    bytes = bytes.substr(0, bytes.find_last_not_of(' ') + 1);
    campo = DaAnsi(bytes);
}

void ScrittoreCampi::Testo(const std::string& campo, size_t larghezza, std::string_view) {
    std::string bytes = InAnsi(campo);
    bytes.resize(larghezza, ' ');
    dati_.insert(dati_.end(), bytes.begin(), bytes.end());
}

} // namespace orvane
