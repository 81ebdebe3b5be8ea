#include "setup/TastiScan.h"

namespace orvane {
namespace {

/// Which way an arrow or a page key goes: rows and columns.
DecisioneTasto Verso(TastoScan tasto) {
    switch (tasto) {
    case TastoScan::Su:
    case TastoScan::PaginaSu:
        return {.righe = -1};
    case TastoScan::Giu:
    case TastoScan::PaginaGiu:
        return {.righe = 1};
    case TastoScan::Sinistra:
        return {.colonne = -1};
    case TastoScan::Destra:
        return {.colonne = 1};
    default:
        return {};
    }
}

DecisioneTasto TastoNelTesto(TastoScan tasto, bool maiuscole, bool vuoto) {
    DecisioneTasto decisione = Verso(tasto);
    const bool pagina = tasto == TastoScan::PaginaSu || tasto == TastoScan::PaginaGiu;
    if (tasto == TastoScan::Invio)
        return {.azione = AzioneTasto::ConfermaAvanti};
    if (tasto == TastoScan::Esc)
        return {.azione = AzioneTasto::Chiudi};
    if (pagina || decisione == DecisioneTasto{} || !(vuoto || maiuscole))
        return {}; // the arrows stay in the text while there is one
    decisione.azione = AzioneTasto::ConfermaSposta;
    return decisione;
}

DecisioneTasto TastoNellElenco(TastoScan tasto) {
    DecisioneTasto decisione = Verso(tasto);
    switch (tasto) {
    case TastoScan::Invio:
        return {.azione = AzioneTasto::ConfermaAvanti};
    case TastoScan::Esc:
        return {.azione = AzioneTasto::Chiudi};
    case TastoScan::PaginaSu:
    case TastoScan::PaginaGiu:
        decisione.azione = AzioneTasto::Pagina;
        return decisione;
    default:
        return {};
    }
}

} // namespace

DecisioneTasto KeyDownCellaScanTab(EditoreScan editore, TastoScan tasto, bool maiuscole,
                                   bool vuoto) {
    if (editore == EditoreScan::TBCella)
        return TastoNelTesto(tasto, maiuscole, vuoto);
    if (editore == EditoreScan::CBXCella)
        return TastoNellElenco(tasto);
    return {.azione = tasto == TastoScan::Canc ? AzioneTasto::ChiediCancella : AzioneTasto::Lascia};
}

PostoScan CellaSeguente(size_t riga, ColonnaScan colonna, size_t numRighe) {
    const int seguente = static_cast<int>(colonna) + 1;
    if (seguente < static_cast<int>(ColonnaScan::NumColonne))
        return {.riga = riga, .colonna = static_cast<ColonnaScan>(seguente)};
    return {.riga = riga + 1, .colonna = ColonnaScan::Start, .oltre = riga + 1 >= numRighe};
}

} // namespace orvane
