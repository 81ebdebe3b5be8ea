// What the checks of a scan table say, apart from who shows it: grid, boxes, command line and tests
// read the same result.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Ambiente.h"
#include "data/AlberoDati.h"
#include "link/ReceiverModel.h"
#include "records/LimFacRecord.h"
#include "records/ScanRecord.h"
#include "records/SetupRecord.h"
#include "setup/TabellaScan.h"

namespace orvane {

struct CellaErrata {
    size_t riga = 0; ///< 0 to 9
    ColonnaScan colonna = ColonnaScan::Numero;
    bool operator==(const CellaErrata&) const = default;
};

/// What follows from a finding.
enum class EsitoControllo {
    Ferma,    ///< the run does not start
    Corregge, ///< the table or the set-up is repaired; the user is told where there are words
    Chiede    ///< Yes goes on, with its repair where there is one; No stops
};

/// One finding of a check: which cells, in which words, and what follows.
struct Segnalazione {
    EsitoControllo esito = EsitoControllo::Ferma;
    std::vector<CellaErrata> celle = {};
    Riquadro riquadro = {};          ///< without text: nothing is shown
    int codice = 0;                  ///< of the rules that number their failures
    std::optional<size_t> riga = {}; ///< the line that the repair is for; empty for all of them
    bool noProsegue = false;         ///< of a question: No goes on too, without the repair
};
using Segnalazioni = std::vector<Segnalazione>;

/// What the checks look at. They change nothing and show nothing.
struct ContestoControlli {
    const ScanTable& tabella;
    const ReceiverModel& modello;
    const std::array<ModelCaps, 2>& caps;
    const SetupRecord& setup;
    const AlberoDati& albero; ///< limits, factors and frequency tables, by name
    std::string_view rigaComando = {};
    int runKind = 0; ///< 2 for a Mast-Table run
};

/// A limit or factor by name, or its empty record where there is no readable file; nothing is
/// shown and nothing converted on disk.
LimFacRecord LimiteDaNome(const AlberoDati& albero, std::string_view nome);
LimFacRecord FattoreDaNome(const AlberoDati& albero, std::string_view nome);

} // namespace orvane
