// The band picker: what its buttons say, and what they do to the table.
#pragma once

#include <string>
#include <string_view>

#include "base/Ambiente.h"
#include "records/ScanRecord.h"

namespace orvane {

struct PulsanteBanda {
    std::string didascalia;
    bool attivo = false;
};
struct VistaBande {
    PulsanteBanda CMBSet;
    PulsanteBanda CMBInsert;
    PulsanteBanda CMBRemove;
    PulsanteBanda CMBClearTab;
};
/// For the entry `banda` of `TabellaBande` (-1 for none) and the row `indice`, from 0. Inactive:
/// set and insert on a separator and where the table has no room, remove below the lines in use.
VistaBande VistaDelleBande(const ScanTable& tabella, int banda, size_t indice);

// False, and nothing changed, where there is no room for all rows of the band.

/// Writes the band to a row, or behind the last line where the row is further down. The further
/// rows of a composite band push down what is below.
bool ImpostaBandaInRiga(ScanTable& tabella, size_t indice, int banda, int ancillaryKind);
/// Pushes the row down with all below, and writes the band into the gap.
bool InserisciBanda(ScanTable& tabella, size_t indice, int banda, int ancillaryKind);

/// "Are you sure you want to delete <table> ?", before `CMBClearTab`; also of `CBXScanTab`.
Riquadro DomandaCancella(std::string_view tabella);

/// The next listed band from `banda` in direction 1 or -1, separators skipped; the same at the end.
int BandaVicina(int banda, int verso);
/// What is typed in `CBXBanda`: upper case below nine characters.
std::string NomeBandaDigitato(std::string_view testo);

} // namespace orvane
