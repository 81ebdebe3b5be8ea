// The frequencies of a scan line that goes by a frequency table.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "data/AlberoDati.h"
#include "records/FreqTableRecord.h"
#include "records/ScanRecord.h"

namespace orvane {

/// Frequencies in MHz, rising: the table's own within the line, and with `NumStepFT` of 1 and more
/// also the line's two ends and that many steps from each to the next. A list longer than
/// `kMaxFreqTable` is cut one behind it.
std::vector<double> CreaElencoFreqTab(const FrequencyTable& tabella, const ScanLine& riga);

/// "Table\<nome>.5SF"
std::string PercorsoFreqTab(std::string_view nome);

/// Frequency of step k of a line by the table that lies in the data tree; empty behind the last.
/// For one reading of a table: it remembers the line that it was last asked for, by its place.
std::function<std::optional<double>(const ScanLine&, size_t)>
FrequenzeDaTabella(const AlberoDati& albero);

} // namespace orvane
