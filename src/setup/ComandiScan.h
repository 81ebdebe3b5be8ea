// All that a scan table makes the console say to the receiver, without saying it.
#pragma once

#include <string>
#include <vector>

#include "data/Scrivania.h"
#include "link/ReceiverModel.h"
#include "records/ScanRecord.h"

namespace orvane {

/// What one pass of a line sends, its sweep command last.
struct PassataComposta {
    size_t riga = 0;   ///< 0 to 9
    std::string nome;  ///< "L1", "V"; empty for a plain pass
    Riquadro unita;    ///< which hardware the operator switches first; without text: none
    Riquadro riquadro; ///< what the operator is asked ahead of it; without text: nothing
    std::vector<std::string> comandi = {};
};

struct ScanComposto {
    std::vector<std::string> corsa; ///< ahead of the first line
    std::vector<PassataComposta> passate;
    /// What the receiver cannot take. Such a pass ends the list, without its sweep command.
    std::vector<Riquadro> obiezioni;
    bool intero = false; ///< nothing stands in the way of any pass
};

/// For an identified receiver; `tabella` as the checks have left it. Behind a change of units the
/// lines are composed for the unit that was asked for.
ScanComposto ComponiScan(Scrivania& s, const ReceiverModel& modello, const ScanTable& tabella);

} // namespace orvane
