// Conversion factors on their way to the receiver: those in use, added into one table.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "data/Scrivania.h"
#include "link/Comandi.h"
#include "setup/Controlli.h"

namespace orvane {

/// Under this name the receiver keeps the joint table.
inline constexpr std::string_view kNomeFattoreSweep = "CF_Ext";

/// A point of the joint table: the sum of the factors, in hundredths of a dB.
struct PuntoFattore {
    float freqHz = 0;
    int somma = 0;
    bool operator==(const PuntoFattore&) const = default;
};

/// The factors that `setup` has in use, empty ones and "NONE" left out.
std::vector<FactorTable> FattoriInUso(const AlberoDati& albero, const SetupRecord& setup);
/// At each frequency of any of them the sum of all; a factor adds nothing outside its own range.
std::vector<PuntoFattore> UnisciFattori(std::span<const FactorTable> fattori);
/// The rows of the joint table and the name that closes it; nothing for a table without points.
std::vector<ComandoPronto> ComponiCFSweep(std::span<const PuntoFattore> punti);

/// Whether the receiver can take the joint table. Finds nothing where no factor is in use.
Segnalazioni ControllaCFSweep(const ContestoControlli& contesto);

/// Switches the receiver's factors off and gives it the joint table of those in use. False: a box
/// has said why, or the user gave up.
bool ImpostaCFSweep(Ricevitore& r, Scrivania& s);

} // namespace orvane
