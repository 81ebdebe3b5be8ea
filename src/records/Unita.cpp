#include "records/Unita.h"

namespace orvane {

const std::array<VoceUnita, 8>& TabellaUnitaGrafico() {
    static const std::array<VoceUnita, 8> tabella = {{
        {.testo = "dBm", .parteA = -1000, .parteB = -70},
        {.testo = "dBµV"},
        {.testo = "dBµA", .parteA = -300, .parteB = -40},
        {.testo = "dBpW", .parteA = -100, .parteB = -70},
        {.testo = "dBµV/m", .chiedeFattore = true},
        {.testo = "dBµA/m", .parteA = -500, .parteB = -15, .chiedeFattore = true},
        {.testo = "dBpT", .parteA = -400, .parteB = -95, .chiedeFattore = true},
        // Only the table editor offers it, and it shares the offset of dBm.
        {.testo = "dB", .parteA = -1000, .parteB = -70},
    }};
    return tabella;
}

float ImpostaUnita(int unitId) {
    const auto& tabella = TabellaUnitaGrafico();
    const bool nota = unitId >= 0 && unitId < static_cast<int>(tabella.size());
    return tabella[static_cast<size_t>(nota ? unitId : 1)].Offset();
}

} // namespace orvane
