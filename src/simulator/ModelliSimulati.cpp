// The table of the family's members.
#include "simulator/ModelliSimulati.h"

#include <algorithm>

#include "base/Testo.h"
#include "simulator/RicevitoreSimulato.h"

namespace orvane {
namespace {

constexpr GammaSimulata kBassa = {10, 30.1e6};
constexpr GammaSimulata kBassa9k = {9e3, 30.1e6};
constexpr GammaSimulata kBassa150k = {150e3, 30.1e6};
constexpr GammaSimulata Alta(double maxHz) {
    return {28e6, maxHz};
}
// The 18 GHz unit is said to begin one kilohertz higher; a line that starts at 6 GHz still runs.
constexpr GammaSimulata kAlta5590 = {6e9, 18e9};
// A link of its own kind, with a margin on both sides.
constexpr GammaSimulata kAltaLink = {25e6, 6020e6};

using enum IngressoSimulato;
constexpr std::string_view kFw = "2.15";

constexpr ModelloSimulato kModelli[] = {
    {.nome = "5520", .formaIdn = "IDN=5520-FW -", .firmware = kFw, .bassa = kBassa},
    {.nome = "5520F",
     .formaIdn = "IDN=5520F-FW -",
     .firmware = kFw,
     .ingresso = Oem,
     .bassa = kBassa,
     .alta = Alta(6e9),
     .conIntestazione = true,
     .conBatteria = false},
    {.nome = "VSD3",
     .formaIdn = "IDN=VSD3",
     .firmware = kFw,
     .ingresso = Oem,
     .bassa = kBassa,
     .alta = kAltaLink,
     .conIntestazione = true,
     .conBatteria = false,
     .conLink = true},
    {.nome = "T4470K",
     .formaIdn = "IDN=T4470K",
     .firmware = kFw,
     .ingresso = Oem,
     .bassa = kBassa,
     .alta = kAltaLink,
     .conIntestazione = true,
     .conBatteria = false,
     .conLink = true},
    {.nome = "K3X",
     .formaIdn = "IDN=5520/K3X -",
     .firmware = kFw,
     .ingresso = K3X,
     .bassa = kBassa,
     .alta = Alta(3e9),
     .parolaBcd = "K3X"},
    {.nome = "K0X",
     .formaIdn = "IDN=5520/K0X -",
     .firmware = kFw,
     .ingresso = K3X,
     .bassa = kBassa,
     .alta = Alta(300e6),
     .parolaBcd = "K3X"},
    {.nome = "K6X",
     .formaIdn = "IDN=5520/K6X -",
     .firmware = kFw,
     .ingresso = K3X,
     .bassa = kBassa,
     .alta = Alta(6e9),
     .parolaBcd = "K6X"},
    {.nome = "60OEM",
     .formaIdn = "IDN=60 OEM -",
     .firmware = kFw,
     .ingresso = K3X,
     .bassa = kBassa,
     .alta = Alta(6e9),
     .parolaBcd = "OEM",
     .conBatteria = false},
    {.nome = "3360",
     .formaIdn = "IDN=3360-FW -",
     .firmware = kFw,
     .ingresso = K3X,
     .bassa = kBassa150k,
     .alta = Alta(1e9),
     .famiglia3360 = true,
     .conBatteria = false},
    {.nome = "3360/00",
     .formaIdn = "IDN=3360/00-FW -",
     .firmware = kFw,
     .ingresso = K3X,
     .bassa = kBassa150k,
     .alta = Alta(1e9),
     .famiglia3360 = true,
     .conBatteria = false},
    {.nome = "3360/01",
     .formaIdn = "IDN=3360/01-FW -",
     .firmware = kFw,
     .ingresso = K3X,
     .bassa = kBassa9k,
     .alta = Alta(1e9),
     .famiglia3360 = true,
     .conBatteria = false},
    {.nome = "3360/02",
     .formaIdn = "IDN=3360/02-FW -",
     .firmware = kFw,
     .ingresso = K3X,
     .bassa = kBassa9k,
     .alta = Alta(1e9),
     .famiglia3360 = true,
     .conBatteria = false},
    {.nome = "3360/03",
     .formaIdn = "IDN=3360/03-FW -",
     .firmware = kFw,
     .ingresso = K3X,
     .bassa = kBassa9k,
     .alta = Alta(3e9),
     .famiglia3360 = true,
     .conBatteria = false},
    {.nome = "GX2207",
     .formaIdn = "IDN=GX2207-FW -",
     .firmware = kFw,
     .bassa = kBassa9k,
     .conGX2207 = true},
    {.nome = "TB05",
     .formaIdn = "IDN=TB05-FW -",
     .firmware = kFw,
     .bassa = kBassa9k,
     .conGX2207 = true},
    {.nome = "GX2207F",
     .formaIdn = "IDN=GX2207F-FW -",
     .firmware = kFw,
     .bassa = kBassa9k,
     .conIntestazione = true,
     .conGX2207 = true},
    {.nome = "5520+5540",
     .formaIdn = "IDN=5520-FW -",
     .firmware = kFw,
     .bassa = kBassa,
     .alta = Alta(3e9),
     .parolaBcd = "5540",
     .bcdAcceso = true},
    {.nome = "5520+5570",
     .formaIdn = "IDN=5520-FW -",
     .firmware = kFw,
     .bassa = kBassa,
     .alta = Alta(6e9),
     .parolaBcd = "5570",
     .bcdAcceso = true},
    {.nome = "5520+5590",
     .formaIdn = "IDN=5520-FW -",
     .firmware = kFw,
     .bassa = kBassa,
     .alta = kAlta5590,
     .parolaBcd = "5590",
     .bcdAcceso = true,
     .conPreselettore = false},
    {.nome = "5520+GX2207",
     .formaIdn = "IDN=5520-FW -",
     .firmware = kFw,
     .bassa = kBassa9k,
     .parolaBcd = "GX2207",
     .bcdAcceso = true,
     .conGX2207 = true},
};

} // namespace

const ModelloSimulato* TrovaModello(std::string_view nome) {
    const auto modello = std::ranges::find_if(
        kModelli, [&](const ModelloSimulato& m) { return UgualiSenzaMaiuscole(m.nome, nome); });
    return modello == std::end(kModelli) ? nullptr : modello;
}

std::vector<std::string> ModelliSimulati() {
    std::vector<std::string> nomi;
    for (const ModelloSimulato& modello : kModelli)
        nomi.emplace_back(modello.nome);
    return nomi;
}

} // namespace orvane
