#include "base/Percorsi.h"

#include "base/Testo.h"

namespace orvane {

std::string RimuoviEstensione(std::string_view percorso) {
    return Rifila(percorso.substr(0, percorso.rfind('.')));
}

std::string EstraiNomeFile(std::string_view percorso) {
    const std::string senza = RimuoviEstensione(percorso);
    const auto divide = senza.find_last_of("\\:");
    return divide == std::string::npos ? senza : senza.substr(divide + 1);
}

std::string EstraiPercorso(std::string_view percorso) {
    const std::string senza = RimuoviEstensione(percorso);
    const auto divide = senza.find_last_of("\\:");
    return divide == std::string::npos ? std::string() : senza.substr(0, divide + 1);
}

std::string EstraiEstensione(std::string_view percorso) {
    const auto punto = percorso.rfind('.');
    if (punto == std::string_view::npos || punto == 0)
        return {};
    return Rifila(percorso.substr(punto + 1, 3));
}

std::string ControllaNomeMisura(std::string_view nome) {
    const bool vietato = nome.find_first_of(".,+[]\\/|=*^:;<>?\"") != std::string_view::npos;
    return vietato ? "Untitled" : std::string(nome);
}

} // namespace orvane
