// The passes of a scan line, and how networks and antennas are switched ahead of each.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "link/Comandi.h"
#include "records/ScanRecord.h"
#include "records/SetupRecord.h"

namespace orvane {

/// Brings the selections of all lines in line with what is attached, without a question.
void SelLineParaSweep(ScanTable& tabella, const SetupRecord& setup);

/// One pass of a line: through a line of a network, with a polarisation, or plain.
struct PassataSweep {
    enum class Tipo { Semplice, Linea, Antenna };
    Tipo tipo = Tipo::Semplice;
    int quale = 0; ///< line 0 to 3, or polarisation 0 to 1
    bool operator==(const PassataSweep&) const = default;
};
/// In the order of the flags; one plain pass where none is set.
std::vector<PassataSweep> PassateDellaRiga(const ScanLine& riga, int ancillaryKind);
/// "N", "L1" to "L3", with the switch box "W" to "Z"; "V", "H"; empty for a plain pass.
std::string_view NomePassata(const PassataSweep& passata, int ancillaryKind);

/// Code that switches a network to `whichLine` (0 to 3); -1: there is no command.
int GetLisnCode(int ancillaryKind, int whichLine);

/// What a pass asks of the operator and of the receiver.
struct Commutazione {
    std::string testo; ///< "-L1", "-V": part of a file's title
    Riquadro riquadro; ///< without text: none
    std::optional<ComandoPronto> comando;
};
Commutazione ComponiKRVLisn(const ScanLine& riga, int ancillaryKind, int whichLine);
Commutazione ComponiKRVVH(int whichPol);
/// Nothing at all for a plain pass.
Commutazione ComponiCommutazione(const ScanLine& riga, int ancillaryKind,
                                 const PassataSweep& passata);

/// Show and send it, and give its text. False: the user gave up.
bool DeterminaEImpostaKRVLisn(Ricevitore& r, const ScanLine& riga, int ancillaryKind, int whichLine,
                              std::string& testo);
bool DeterminaEImpostaKRVVH(Ricevitore& r, int whichPol, std::string& testo);

} // namespace orvane
