// The verbs of the command line program: each a row of one table, each a small procedure over the
// core.
#pragma once

#include <functional>
#include <iosfwd>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "data/Scrivania.h"
#include "graph/FabbricaQuadri.h"
#include "link/Ricevitore.h"
#include "records/ScanRecord.h"
#include "sweep/Corsa.h"
#include "verbs/GuidaPausa.h"
#include "verbs/VistaTerminale.h"

namespace orvane {

/// Exit status of the program.
enum EsitoVerbo : int {
    kFatto = 0,
    kRifiutato = 1, ///< by a check
    kUsoErrato = 2,
    kGuastoLink = 3, ///< link or receiver
    kGuastoFile = 4,
    kFermato = 5
};

/// What a verb works with.
struct Banco {
    Scrivania& scrivania;
    Ricevitore& ricevitore;
    StatoCorsa& corsa;
    VistaTerminale& vista;
    CatalogoPorte& catalogo;
    bool linkScelto = false; ///< --link was given: the panel does not decide
    const bool& interrotto;  ///< the user has pressed Ctrl-C
    std::ostream& dati;      ///< standard output
    std::ostream& messaggi;  ///< standard error
    bool json = false;
    FabbricaQuadri* fabbrica = nullptr; ///< null: there are no pictures
    /// What a verb has done at each turn of the pump.
    std::function<void()> alGiro = {};
    TastoInvio tastiera = {};
};
using Parole = std::span<const std::string>;

struct VoceVerbo {
    std::string_view nome;
    std::string_view uso;   ///< words behind the name
    std::string_view aiuto; ///< one line
    EsitoVerbo (*esegui)(Banco&, Parole);
};
std::span<const VoceVerbo> TabellaVerbi();
const VoceVerbo* TrovaVerbo(std::string_view nome);

/// A name that a file may bear, trimmed; empty for any other.
std::optional<std::string> NomeDaParola(std::string_view parola);

/// Words of a box on one line, without the blanks that centre them.
std::string ParoleInRiga(std::string_view testo);

/// Says what is wrong with the words, and how the verb is used.
EsitoVerbo UsoErrato(Banco& banco, std::string_view verbo, std::string_view perche);
EsitoVerbo Guasto(Banco& banco, EsitoVerbo esito, std::string_view perche);
/// Status of a link that was given up: by the user, or because it failed.
EsitoVerbo EsitoDelLink(const Banco& banco);

EsitoVerbo VerboIdentify(Banco& banco, Parole parole);
EsitoVerbo VerboScan(Banco& banco, Parole parole);
EsitoVerbo VerboSweep(Banco& banco, Parole parole);
EsitoVerbo VerboCommand(Banco& banco, Parole parole);
EsitoVerbo VerboCheck(Banco& banco, Parole parole);
EsitoVerbo VerboArchive(Banco& banco, Parole parole);
EsitoVerbo VerboTrace(Banco& banco, Parole parole);
EsitoVerbo VerboPeaks(Banco& banco, Parole parole);
EsitoVerbo VerboVerdict(Banco& banco, Parole parole);
EsitoVerbo VerboPicture(Banco& banco, Parole parole);
EsitoVerbo VerboReport(Banco& banco, Parole parole);
EsitoVerbo VerboPanel(Banco& banco, Parole parole);
EsitoVerbo VerboPorts(Banco& banco, Parole parole);
EsitoVerbo VerboLimit(Banco& banco, Parole parole);
EsitoVerbo VerboFactor(Banco& banco, Parole parole);
EsitoVerbo VerboTable(Banco& banco, Parole parole);

} // namespace orvane
