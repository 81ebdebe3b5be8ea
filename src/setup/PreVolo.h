// The pre-flight checks: the gate in front of every run. Each check stops, repairs or asks, and
// speaks for itself; later ones rely on the repairs of earlier ones.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/Scrivania.h"
#include "link/Ricevitore.h"
#include "records/ScanRecord.h"
#include "setup/Controlli.h"
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

/// Kinds of run.
inline constexpr int kSoloControlli = 1; ///< ends with false ahead of the Mast-Table checks
inline constexpr int kConMastTable = 2;

struct PreVolo {
    Scrivania& scrivania;
    Ricevitore& ricevitore;
    ScanRecord& scan;
    VistaGriglia& vista;
    std::string misura; ///< wished name; the last check but one may change it
    std::string motivo; ///< which check stopped the run
    int runKind = 0;    ///< 0: what is attached says whether it is a Mast-Table run
};

/// Opens the link, ends what the receiver was doing, identifies it, and runs the chain. False: the
/// run must not start; `motivo` says why, and the link is as the failure left it. The table is then
/// as corrected so far, with the marks of the check that stopped.
bool ControlliSweep(PreVolo& p);

/// Its first steps alone. False: no link, with `motivo`, or the user gave up.
bool RiconosciRicevitore(Ricevitore& r, std::string& motivo);

/// What one check found in a look at the whole table.
struct Riscontro {
    int numero = 0; ///< of the check, 1 to 37
    std::string_view nome;
    std::string_view motivo; ///< what is said of a run that it stops
    Segnalazione segnalazione;
    bool corretto = false;             ///< what follows has seen the repair
    std::optional<bool> risposta = {}; ///< of a question that was put: Yes
};
/// Whether a run with this answer would be refused. A question that was not put refuses nothing.
bool Rifiuta(const Riscontro& riscontro);

/// Puts a question; true for Yes or OK.
using Rispondi = std::function<bool(const Segnalazione&)>;
/// All checks that look, in order, on a copy that is corrected in between, to the end whatever is
/// found. Nothing is shown, sent or stored. Without `rispondi` no question is put, and none
/// repairs.
std::vector<Riscontro> EsaminaScan(const ContestoControlli& contesto,
                                   const Rispondi& rispondi = {});

struct ScanCorretto {
    ScanTable tabella;
    SetupRecord setup;
};
/// The same look, for what it leaves behind: what a run with these answers would go by.
ScanCorretto CorreggiScan(const ContestoControlli& contesto, const Rispondi& rispondi);

} // namespace orvane
