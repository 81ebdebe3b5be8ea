// The pre-flight checks: the gate in front of every run. Each check stops, repairs or asks, and
// speaks for itself; later ones rely on the repairs of earlier ones.
#pragma once

#include <string>
#include <string_view>

#include "data/Scrivania.h"
#include "link/Ricevitore.h"
#include "records/ScanRecord.h"
#include "setup/TabellaScan.h"

namespace orvane {

/// What the checks show in the scan grid.
struct VistaGriglia {
    virtual ~VistaGriglia() = default;
    /// The scan table was changed by a check: the grid must show it.
    virtual void AggiornaGriglia() = 0;
    /// Marks or clears a cell: red and bold, or plain.
    virtual void EvidenziaCella(int riga, ColonnaScan colonna, bool errata) = 0;
    /// The receiver has been identified.
    virtual void MostraModello() = 0;
};

struct PreVolo {
    Scrivania& scrivania;
    Ricevitore& ricevitore;
    ScanRecord& scan;
    VistaGriglia& vista;
    std::string misura; ///< wished name; the last check may change it
    std::string motivo; ///< which check stopped the run
};

/// Opens the link, ends what the receiver was doing, identifies it, and runs the chain. False: the
/// run must not start; `motivo` says why, and the link is as the failure left it.
bool ControlliSweep(PreVolo& p);

/// Code of the step rules, and the cells at fault: 0 none, 1 too small step, 2 too big step, 3 too
/// small span. Compared in single precision.
int ControllaPassoDellaRiga(const ScanLine& riga);

} // namespace orvane
