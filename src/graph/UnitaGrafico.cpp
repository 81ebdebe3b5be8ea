// Field units ask for a factor, and the reference level goes along.
#include "graph/UnitaGrafico.h"

#include <algorithm>
#include <cmath>

#include "graph/Scala.h"

namespace orvane {
namespace {

constexpr size_t kLettereVoce = 6;
constexpr long kRefMax = 300;

/// Where the top of the grid stands above the base unit with a reference of 0, in whole dB, so that
/// the way there and back ends where it began.
long CimaSenzaRiferimento(int unitId) {
    int cima = 0;
    int fondo = 0;
    ImpostaLimitiScala(ImpostaUnita(unitId), cima, fondo);
    return std::lround(cima / 100.0 - static_cast<double>(ImpostaUnita(unitId)));
}

bool FattorePer(Ambiente& ambiente, const SetupRecord& setup, int unitId) {
    const VoceUnita& voce = TabellaUnitaGrafico().at(static_cast<size_t>(unitId));
    if (!voce.chiedeFattore ||
        std::ranges::any_of(setup.FactorOn, [](int16_t acceso) { return acceso == 1; }))
        return true;
    ambiente.Mostra({.testo = voce.testo + "\r          The selected Unit " +
                              "\rShould have an active Conversion Factor",
                     .icona = Icona::Esclamazione});
    return false;
}

} // namespace

std::string VoceUnitaGrafico(int unitId) {
    std::string voce = TabellaUnitaGrafico().at(static_cast<size_t>(unitId)).testo;
    // Characters, not bytes: the micro sign has two.
    const auto lettere =
        static_cast<size_t>(std::ranges::count_if(voce, [](char c) { return (c & 0xc0) != 0x80; }));
    voce.append(kLettereVoce - std::min(lettere, kLettereVoce), ' ');
    return voce;
}

bool ControlladBpTFC(Ambiente& ambiente, const SetupRecord& setup, int unitId) {
    return FattorePer(ambiente, setup, unitId);
}

bool ControlladBpTFCSweep(Ambiente& ambiente, const SetupRecord& setupScan, int unitId) {
    return FattorePer(ambiente, setupScan, unitId);
}

bool UnitaAmmessa(Modalita modalita, int unitId) {
    // Clicks are counted against levels at the receiver's input, which no factor turns into a
    // field.
    const bool campo = unitId >= 0 && unitId < kUnitaGrafico &&
                       TabellaUnitaGrafico()[static_cast<size_t>(unitId)].chiedeFattore;
    return unitId >= 0 && unitId < kUnitaGrafico && !(modalita == Modalita::Click && campo);
}

int16_t RiferimentoInUnita(const SetupRecord& setup, int unitId) {
    const long riferimento =
        setup.RefLevel + CimaSenzaRiferimento(setup.UnitId) - CimaSenzaRiferimento(unitId);
    return static_cast<int16_t>(std::clamp(riferimento, -kRefMax, kRefMax));
}

bool CambiaUnita(Ambiente& ambiente, SetupRecord& setup, Modalita modalita, int unitId) {
    if (!UnitaAmmessa(modalita, unitId)) {
        ambiente.Mostra({.testo = "Unit not suitable", .icona = Icona::Esclamazione});
        return false;
    }
    const bool viva = modalita == Modalita::Analyzer || modalita == Modalita::Manual;
    if (!(viva ? ControlladBpTFC : ControlladBpTFCSweep)(ambiente, setup, unitId))
        return false;
    setup.RefLevel = RiferimentoInUnita(setup, unitId);
    setup.UnitId = static_cast<int16_t>(unitId);
    return true;
}

} // namespace orvane
