// What a simulated receiver remembers: settings, uploads, its input, its battery.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/ModelliSimulati.h"

namespace orvane {

/// A table as it was uploaded, row by row.
struct TabellaCaricata {
    std::string nome;
    std::vector<std::string> righe; ///< without their ordinal
};

struct BatteriaSimulata {
    std::string livello = "87";
    double volt = 12.34;
    bool inCarica = false;
};

struct MemoriaSimulata {
    const ModelloSimulato* modello = nullptr;
    std::string firmware;
    uint32_t seme = 1;

    std::map<std::string, std::string, std::less<>> valori; ///< by three letters
    bool radiata = false;
    int userPort = 0;
    BatteriaSimulata batteria;
    std::string holdInUso = "1"; ///< ms
    /// Rows of the table under way, by the three letters of the row's command.
    std::map<std::string, std::vector<std::string>, std::less<>> righe;
    /// Closed tables, by the three letters of the closing command and the slot; 0 is the one that
    /// serves the next sweep.
    std::map<std::string, std::map<int, TabellaCaricata>, std::less<>> tabelle;
};

/// What the setter left, or `predefinito`.
std::string ValoreOppure(const MemoriaSimulata& memoria, std::string_view nome,
                         std::string_view predefinito);
double NumeroOppure(const MemoriaSimulata& memoria, std::string_view nome, double predefinito);
/// The range that the input in charge has.
GammaSimulata GammaInCarico(const MemoriaSimulata& memoria);
/// Version as a number, from the firmware text.
double VersioneInUso(const MemoriaSimulata& memoria);
/// An id of the receiver's list; 0 asks for the CISPR filter of `freqHz`.
int FiltroPer(const MemoriaSimulata& memoria, int id, double freqHz);
/// Attenuator in use: as set by `nome`, on AUTO 10 dB, never below the minimum.
int AttenuatorePer(const MemoriaSimulata& memoria, std::string_view nome);
/// Code of the network line that a command has switched to: at the user port, or else inside.
int ReteInUso(const MemoriaSimulata& memoria);
/// The time that the receiver measures at each step, ms; 0 asks for the shortest of the filter.
std::string HoldEffettivo(double ms, double rbwHz);

} // namespace orvane
