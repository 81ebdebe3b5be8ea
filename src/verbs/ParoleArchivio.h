// The words behind `orvane archive` that name measures.
#pragma once

#include <span>
#include <string_view>

#include "verbs/Verbo.h"

namespace orvane {

struct ParolaArchivio {
    std::string_view nome;
    EsitoVerbo (*esegui)(Banco&, Parole); ///< gets the words behind it
};
/// show, accept, delete, rename, redo, difference, envelope.
std::span<const ParolaArchivio> ParoleArchivio();

// Those that change something on disk.
EsitoVerbo ArchivioAccept(Banco& banco, Parole parole);
EsitoVerbo ArchivioDelete(Banco& banco, Parole parole);
EsitoVerbo ArchivioRename(Banco& banco, Parole parole);
EsitoVerbo ArchivioRedo(Banco& banco, Parole parole);

// Those that print.
EsitoVerbo ArchivioShow(Banco& banco, Parole parole);
EsitoVerbo ArchivioDifference(Banco& banco, Parole parole);
EsitoVerbo ArchivioEnvelope(Banco& banco, Parole parole);

/// The measure that a word names, which must be there; empty after a message and its status.
std::optional<std::string> MisuraDaParola(Banco& banco, const std::string& parola,
                                          EsitoVerbo& esito);

} // namespace orvane
