// The rules of the scan table as pure decisions: what each finds in a table, for a receiver and a
// set-up, and the repairs that belong to them. An empty result is a table that passes.
#pragma once

#include <algorithm>
#include <functional>
#include <optional>

#include "link/Identificazione.h"
#include "link/Ricevitore.h"
#include "setup/Controlli.h"

namespace orvane {

/// A range of frequencies, both ends belonging to it.
struct GammaMhz {
    double minimo = 0;
    double massimo = 0;
    /// Both within; of a span that is turned round too.
    bool Contiene(double startMhz, double stopMhz) const {
        return std::min(startMhz, stopMhz) >= minimo && std::max(startMhz, stopMhz) <= massimo;
    }
};
/// What the receiver sweeps without a front-end and without an extension unit.
inline constexpr GammaMhz kGammaRicevitore = {0.00001, 30};
/// `FreqLinkStart` to `FreqLinkStop`: what the link has told, else the radiated range of the model.
/// Of a receiver with extension units it is what all of them reach together; a front-end has none.
GammaMhz GammaRadiata(const ReceiverModel& modello);
/// Whether the ranges beyond 30 MHz come with extension units that the user switches on by hand.
bool HaUnitaAMano(const ReceiverModel& modello);

/// Lines whose Ancillary cell does not fit what is attached: one question for all, with the cells
/// that keep their mark. Yes is followed by `CorreggiLineScanTab`.
Segnalazioni ControllaLineScanTab(const ContestoControlli& c);
/// The repair alone: saves and shows nothing.
void CorreggiLineScanTab(ScanTable& tabella, int ancillaryKind, bool insertionLoss);

/// Conducted and radiated lines in one table: a question, without marks. Only where the ranges are
/// units that are switched by hand.
Segnalazioni ControllaCondRadScanTab(const ContestoControlli& c);

/// Codes of `ControllaFstartFstopScanTab`.
inline constexpr int kFreqErrata = 1;     ///< "Start/Stop Frequency Error"
inline constexpr int kFreqFuoriGamma = 2; ///< beyond the ends of a 3360
/// Lines `prima` to `ultima`, both included, as far as they are in use. With `chiede` a span that
/// the unit in charge cannot sweep is a finding too: of one line a question with Retry and Cancel,
/// of a table a box with OK. Lines that fail in the same words are one finding. Whether
/// "/NOCONTFREQ" lets a run go on is the caller's business.
Segnalazioni ControllaFstartFstopScanTab(const ContestoControlli& c, bool chiede, size_t prima,
                                         size_t ultima);

/// `idReceiver` for a span within 0.00001 to 30 MHz, `idLocal` for one within the radiated range,
/// 0 for any other.
int DetIDMacLocRBWScanTab(const ReceiverModel& modello, double startMhz, double stopMhz,
                          int idReceiver = 1, int idLocal = 2);
/// The first line whose filter, or detectors with it, the receiver does not have: marked on the RBW
/// cell, with codes 1 to 6. A line counts by its own range; one that has none, on a receiver whose
/// ranges are separate units, by the start of the first line.
Segnalazioni ControllaRBWScanTab(const ContestoControlli& c);

/// Lines that have frequencies in common: one question; touching spans have none.
Segnalazioni ControllaSovrapposizioniFreq(const ContestoControlli& c);

/// Code of the step rules for one line: 0 none, 1 too small step, 2 too big step, 3 too small
/// span. Compared in single precision; `Step` is taken as it stands.
int DetErroreStep(const ScanLine& riga);
/// The first line that breaks the step rules, with its code. Automatic steps are taken as they
/// would be recomputed: `RicalcolaPassiAuto` writes them to the table.
Segnalazioni ControlloStepScanTab(const ContestoControlli& c);
void RicalcolaPassiAuto(ScanTable& tabella);

/// Longest step of the models that switch their ranges themselves, MHz.
inline constexpr double kStepMaxK3XK6X = 0.4;
/// Lines with a longer step, as one finding that is repaired by `LimitaPassi`.
Segnalazioni ControlloStepScanTabK3XK6X(const ContestoControlli& c);
void LimitaPassi(ScanTable& tabella);

/// Which hardware must be switched on or off by hand ahead of a line; empty for none.
std::optional<UnitaRichiesta> UnitaPerRiga(const ReceiverModel& modello, double startMhz,
                                           double stopMhz);
/// Shows which cells of a line are marked on Start and Stop; none clears them.
using SegnaCelle = std::function<void(const std::vector<CellaErrata>&)>;
/// Asks for the unit that line `indice` of `c.tabella` needs, opens the link again, identifies
/// anew, and asks again while the unit does not fit. `c` looks at the model of `r`. False: the run
/// ends; `AbbandonaComandi` is set where no unit was found. Nothing is shown or sent where the unit
/// in charge fits.
bool ControlloRigaPerRigaST(Ricevitore& r, const ContestoControlli& c, size_t indice,
                            const SegnaCelle& segna);

} // namespace orvane
