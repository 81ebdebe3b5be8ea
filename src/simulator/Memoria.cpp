// Settings read back with their fall-backs.
#include "simulator/Memoria.h"

#include <algorithm>
#include <cmath>

#include "base/Numeri.h"

namespace orvane {

std::string ValoreOppure(const MemoriaSimulata& memoria, std::string_view nome,
                         std::string_view predefinito) {
    const auto voce = memoria.valori.find(nome);
    return voce == memoria.valori.end() ? std::string(predefinito) : voce->second;
}

double NumeroOppure(const MemoriaSimulata& memoria, std::string_view nome, double predefinito) {
    const auto voce = memoria.valori.find(nome);
    return voce == memoria.valori.end() ? predefinito : ValoreIniziale(voce->second);
}

GammaSimulata GammaInCarico(const MemoriaSimulata& memoria) {
    const ModelloSimulato& m = *memoria.modello;
    const bool alta =
        m.ingresso == IngressoSimulato::Unico ? m.bcdAcceso && m.alta.maxHz > 0 : memoria.radiata;
    return alta ? m.alta : m.bassa;
}

double VersioneInUso(const MemoriaSimulata& memoria) {
    return ValoreIniziale(memoria.firmware);
}

int FiltroPer(const MemoriaSimulata& memoria, int id, double freqHz) {
    if (id != 0)
        return id;
    if (freqHz >= 1e9)
        return 9;
    const bool alta = GammaInCarico(memoria).maxHz > 30.1e6;
    if (alta)
        return 10;
    return freqHz < 150e3 ? 7 : 6;
}

int AttenuatorePer(const MemoriaSimulata& memoria, std::string_view nome) {
    const int minimo = static_cast<int>(NumeroOppure(memoria, "TAT", 0));
    const int scelto = static_cast<int>(NumeroOppure(memoria, nome, -1));
    return std::max(scelto < 0 ? 10 : scelto, minimo);
}

int ReteInUso(const MemoriaSimulata& memoria) {
    const int porta = static_cast<int>(NumeroOppure(memoria, "UPP", 0));
    return porta != 0 ? porta : static_cast<int>(NumeroOppure(memoria, "LSN", 0));
}

std::string HoldEffettivo(double ms, double rbwHz) {
    const double minimo = std::ceil(2000 / rbwHz * 1000) / 1000;
    return TestoDaNumero(ms > 0 ? ms : std::max(0.1, minimo));
}

} // namespace orvane
