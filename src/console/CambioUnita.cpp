#include "console/CambioUnita.h"

#include <algorithm>
#include <cmath>

#include "data/Panels.h"
#include "graph/Scala.h"

namespace orvane {
namespace {

constexpr long kRefMax = 300;

/// Where the top of the grid stands above the base unit with a reference of 0, dB.
double CimaSenzaRiferimento(int unitId) {
    int cima = 0;
    int fondo = 0;
    ImpostaLimitiScala(ImpostaUnita(unitId), cima, fondo);
    return cima / 100.0 - static_cast<double>(ImpostaUnita(unitId));
}

} // namespace

bool ControlladBpTFC(Scrivania& s, int unitId) {
    return ControlladBpTFC(s.ambiente, s.setup, unitId);
}

bool ControlladBpTFC(Ambiente& ambiente, const SetupRecord& setup, int unitId) {
    const auto& voce = TabellaUnitaGrafico()[static_cast<size_t>(unitId)];
    const auto& accesi = setup.FactorOn;
    if (!voce.chiedeFattore ||
        std::any_of(accesi.begin(), accesi.end(), [](int16_t f) { return f == 1; }))
        return true;
    ambiente.Mostra({.testo = "          The selected Unit " + voce.testo +
                              "\rShould have an active Conversion Factor",
                     .icona = Icona::Esclamazione});
    return false;
}

int16_t RiferimentoInUnita(const SetupRecord& setup, int unitId) {
    const double spostamento = CimaSenzaRiferimento(setup.UnitId) - CimaSenzaRiferimento(unitId);
    const auto riferimento = std::lround(setup.RefLevel + spostamento);
    return static_cast<int16_t>(std::clamp(riferimento, -kRefMax, kRefMax));
}

bool CambiaUnita(Scrivania& s, int unitId) {
    if (unitId < 0 || unitId >= static_cast<int>(TabellaUnitaGrafico().size()))
        return false;
    if (!ControlladBpTFC(s, unitId))
        return false;
    s.setup.RefLevel = RiferimentoInUnita(s.setup, unitId);
    s.setup.UnitId = static_cast<int16_t>(unitId);
    return SalvaPanelEAM(s, kPannelloEAM);
}

} // namespace orvane
