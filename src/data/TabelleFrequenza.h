// Frequency tables on disk: 5SF in "Table\", and with positions FTM in "Mast-Table\".
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "data/LunghezzaTabella.h"
#include "data/Scrivania.h"
#include "records/FreqTableRecord.h"

namespace orvane {

enum class FormaFreqTab { Semplice, MastTable };

std::string_view CartellaFreqTab(FormaFreqTab forma);   ///< with a trailing backslash
std::string_view EstensioneFreqTab(FormaFreqTab forma); ///< without its dot

/// A file's bytes as the 14-byte form, as far as they go. Not checked.
FrequencyTable LeggiFreqTab(FormaFreqTab forma, std::span<const uint8_t> dati);

/// Reads a table; an absent file is written with the contents that `tabella` has. What was read
/// has passed `ControllaFrequencyTable`. False after a box: `tabella` is then as it was.
bool CaricaFreqTab(Scrivania& s, FormaFreqTab forma, std::string_view percorso,
                   FrequencyTable& tabella, LunghezzaErrata modo = LunghezzaErrata::Chiedi);
/// False after the box; the old file then stays. The simple form drops the positions.
bool SalvaFreqTab(const Scrivania& s, FormaFreqTab forma, std::string_view percorso,
                  const FrequencyTable& tabella);

} // namespace orvane
