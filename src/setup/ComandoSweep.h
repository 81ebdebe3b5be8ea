// From a scan line to what the receiver is told before it runs.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/Scrivania.h"
#include "link/Comandi.h"
#include "link/Dinamica.h"
#include "link/ReceiverModel.h"
#include "records/FreqTableRecord.h"
#include "records/ScanRecord.h"

namespace orvane {

/// RBW code of the sweep command. "9 kHz" is 6 or 12, by model, unit in charge and `stopMhz`.
int DeterminaIDRbwSweep(const ReceiverModel& modello, int rbwId, double stopMhz);
/// A 5520F from the firmware on that knows the automatic step.
bool ControllaFW5520FPerAutoStep(const ReceiverModel& modello);
/// On the models that have both inputs: whether a line belongs to the radiated one.
bool VaAlRadiato(const ScanLine& riga);
/// The text of the sweep command; the frequencies of a table are not in it.
std::string ComponiComandoSweep(const ReceiverModel& modello, const ScanLine& riga);

/// In place of a sweep command: the frequency table cannot be sent...
inline constexpr std::string_view kTabellaNonInviabile = "---";
/// ...or could not be read, which a box has told.
inline constexpr std::string_view kNessunaFrequenza = "NO_FREQ";

/// A sweep command with what goes ahead of it.
struct ComandoSweep {
    std::string testo;                      ///< "#SSFD...*", or one of the two texts above
    std::vector<double> frequenzeMhz = {};  ///< one a step, of a line with frequency table
    std::vector<ComandoPronto> elenco = {}; ///< their rows for the receiver
    Riquadro obiezione = {};                ///< why there is no command; without text: none
    bool Inviabile() const { return testo.starts_with('#'); }
};
/// `tabella` is looked at for a line that goes by one; null where there is no such file.
ComandoSweep ComponiComandoRiga(const ReceiverModel& modello, const ScanLine& riga,
                                const FrequencyTable* tabella);
/// The same with the line's table from the data tree. Shows no box but those of reading a file.
ComandoSweep PreparaComandoSweep(Scrivania& s, const ReceiverModel& modello, const ScanLine& riga);
/// The same, and sends the frequency list and shows the objection. With `AbbandonaComandi` set on
/// return the receiver may not have the whole list.
ComandoSweep DeterminaComandoSweep(Ricevitore& r, Scrivania& s, const ScanLine& riga);

/// What the receiver is told ahead of the first line, in order.
std::vector<ComandoPronto> ComponiImpostazioniCorsa(const ReceiverModel& modello,
                                                    const SetupRecord& setup);

} // namespace orvane
