// Between the rows of the editor and the records of the files.
#pragma once

#include "data/ModificaTabella.h"
#include "data/TabelleFrequenza.h"
#include "records/FreqTableRecord.h"
#include "records/LimFacRecord.h"

namespace orvane {

// Only complete rows enter a record; a record is expected as the checks of `ControllaTabelle.h`
// leave it.

LimFacRecord InLimFac(const ContenutoTabella& c);
ContenutoTabella DaLimFac(const LimFacRecord& tabella, TableKind kind);
FrequencyTable InFrequencyTable(const ContenutoTabella& c);
ContenutoTabella DaFrequencyTable(const FrequencyTable& tabella, TableKind kind);

FormaFreqTab FormaDiKind(TableKind kind);

} // namespace orvane
