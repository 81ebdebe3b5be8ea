#include "link/PorteCom.h"

#include "base/Numeri.h"
#include "base/Testo.h"

namespace orvane {

std::optional<int> DeterminaNumComSel(std::string_view nome) {
    constexpr std::string_view kChiave = "(COM";
    const auto qui = nome.find(kChiave);
    if (qui == std::string_view::npos)
        return std::nullopt;
    const double numero = ValoreIniziale(nome.substr(qui + kChiave.size()));
    return numero >= 1 && numero <= 32767 ? static_cast<int>(numero) : 0;
}

int TrovaIDComSelezionata(const std::vector<PortaCom>& porte, int numeroCom) {
    for (size_t i = 0; i < porte.size(); ++i)
        if (DeterminaNumComSel(porte[i].nome) == numeroCom)
            return static_cast<int>(i);
    return -1;
}

bool RilevaBluetooth(const std::vector<PortaCom>& porte, int numeroCom) {
    const int quale = TrovaIDComSelezionata(porte, numeroCom);
    return quale >= 0 &&
           ContieneSenzaMaiuscole(porte[static_cast<size_t>(quale)].nome, "Bluetooth");
}

std::optional<int> ComForzata(std::string_view rigaComando) {
    constexpr std::string_view kChiave = "COMM=";
    const std::string riga = Maiuscolo(rigaComando);
    const auto qui = riga.find(kChiave);
    if (qui == std::string::npos)
        return std::nullopt;
    // One character only, deliberately: COMM=12 is port 1.
    return static_cast<int>(ValoreIniziale(riga.substr(qui + kChiave.size(), 1)));
}

} // namespace orvane
