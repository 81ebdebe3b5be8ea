// What a key does in the edit controls over the scan grid.
#pragma once

#include <cstddef>

#include "setup/TabellaScan.h"

namespace orvane {

enum class TastoScan { Altro, Invio, Esc, Su, Giu, Sinistra, Destra, PaginaSu, PaginaGiu, Canc };
enum class EditoreScan { TBCella, CBXCella, CBXScanTab };

enum class AzioneTasto {
    Lascia,         ///< the control's own business
    ConfermaAvanti, ///< commit, close, and on to the next cell
    ConfermaSposta, ///< commit, close, and on to the cell in `righe`, `colonne`
    Chiudi,         ///< close without a commit
    Pagina,         ///< the selection of the list by `righe` pages
    ChiediCancella  ///< ask, then delete the panel of the selected scan table
};
struct DecisioneTasto {
    AzioneTasto azione = AzioneTasto::Lascia;
    int righe = 0;
    int colonne = 0;
    bool operator==(const DecisioneTasto&) const = default;
};
/// `vuoto`: the text box holds nothing.
DecisioneTasto KeyDownCellaScanTab(EditoreScan editore, TastoScan tasto, bool maiuscole,
                                   bool vuoto);

/// A place in the grid.
struct PostoScan {
    size_t riga = 0;
    ColonnaScan colonna = ColonnaScan::Start;
    bool oltre = false; ///< behind the last row: it is there once `AggiornaRigaScanTab` counts it
    bool operator==(const PostoScan&) const = default;
};
/// The cell behind another one; behind the last column, column 1 of the next row. `numRighe`: rows
/// of the grid.
PostoScan CellaSeguente(size_t riga, ColonnaScan colonna, size_t numRighe);

} // namespace orvane
