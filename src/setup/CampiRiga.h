// The settings of a scan line as named texts: options of the command line and columns on the
// clipboard are rows of one table.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "records/ScanRecord.h"

namespace orvane {

struct CampoRiga {
    std::string_view opzione; ///< without its dashes; empty: only a column
    std::string_view titolo;  ///< heading of the column
    std::string (*testo)(const ScanLine& riga);
    /// By the rules of the window, values held to their ranges. False, and the line as it was, for
    /// a text that says nothing.
    bool (*leggi)(ScanLine& riga, std::string_view testo, int ancillaryKind);
    std::string_view vuole; ///< what the text has to be: "a number"
};
/// In the order in which they are to be applied: what is further down builds on what is above.
/// After the last one an automatic step is to be brought up to date.
std::span<const CampoRiga> TabellaCampiRiga();

/// All detectors at once. Where nobody clicks there is none to keep: a line takes up to six, as it
/// does from a file, two with Smart, one with positioners. False, and nothing changed, for others.
bool ImpostaDetector(ScanLine& riga, const std::array<int16_t, kNumDetector>& detector,
                     int ancillaryKind);
/// Index of a filter by its text, blanks and case aside; -1 for none.
int TrovaRbw(std::string_view testo);

} // namespace orvane
