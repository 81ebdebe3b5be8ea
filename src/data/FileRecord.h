// Whole records in files of their own: read as far as they go, written by temporary file.
#pragma once

#include "data/Avvisi.h"
#include "records/Visite.h"

namespace orvane {

/// Reads the record; a longer file is read only as far as the record goes. False after the box for
/// a short or unreadable file: the record then keeps what was read so far.
template <class Record>
bool LeggiFileRecord(const Scrivania& s, std::string_view percorso, Record& record) {
    const auto dati = s.albero.Leggi(percorso, DimensioneSuDisco<Record>());
    return (dati && LeggiRecord(*dati, record)) || AvvisaLettura(s, percorso);
}

/// False after the box; the old file then stays.
template <class Record>
bool SalvaFileRecord(const Scrivania& s, std::string_view percorso, const Record& record) {
    return s.albero.Salva(percorso, ScriviRecord(record)) || AvvisaScrittura(s, percorso);
}

} // namespace orvane
