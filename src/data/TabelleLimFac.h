// Limits and factors: their slots in memory, and their files.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "data/LunghezzaTabella.h"
#include "data/Scrivania.h"
#include "records/LimFacRecord.h"

namespace orvane {

inline constexpr int kNumSlot = 11;
inline constexpr int kPrimoLimite = 1; ///< two of them: the limits on display
inline constexpr int kPrimoFattore = 3;
inline constexpr size_t kNumFattori = 7;

/// Slots 0 and 10 are spare. An empty record is an unused slot.
struct TabelleLimFac {
    std::array<LimFacRecord, kNumSlot> slot{};
};

/// "Limits\<nome>.5SL", "Factors\<nome>.5SC"
std::string PercorsoLimite(std::string_view nome);
std::string PercorsoFattore(std::string_view nome);

/// A file's bytes as a record: today's format, the earlier one of 1262 bytes, or as far as they
/// go. Not checked.
LimFacRecord LeggiLimFac(std::span<const uint8_t> dati);

/// Reads a table into a slot. A bare name is looked for in the directory of the slot, which is
/// made. A file of 1262 bytes is first rewritten in today's format; one that cannot be rewritten
/// is told and loaded all the same. What was read has passed `ControllaLimFac`; a repair is noted
/// in `Scrivania::avvisi`. True when the slot holds the table; otherwise it is empty: after a box
/// for a refused length or a file that cannot be read, in silence for "NONE" and an absent file.
bool CaricaLimFac(Scrivania& s, TabelleLimFac& tabelle, std::string_view percorso, int slot,
                  LunghezzaErrata modo = LunghezzaErrata::Chiedi);
bool CaricaFactorSlot(Scrivania& s, TabelleLimFac& tabelle, std::string_view nome, int slot);
/// False after the box; the old file then stays.
bool SalvaLimFac(const Scrivania& s, const TabelleLimFac& tabelle, std::string_view percorso,
                 int slot);

/// "NONE", then the base names of "Limits\*.5SL".
std::vector<std::string> CompilaCBXLimits(const AlberoDati& albero);

} // namespace orvane
