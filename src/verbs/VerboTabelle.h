// What the verbs of limits, factors and frequency tables share.
#pragma once

#include <optional>
#include <string>

#include "data/CaricaSalva.h"
#include "data/ModificaTabella.h"
#include "verbs/Argomenti.h"
#include "verbs/Verbo.h"

namespace orvane {

/// Loads the table of this name for the editor; why not has been said.
std::optional<ContenutoTabella> CaricaContenuto(Banco& banco, TableKind kind,
                                                const std::string& nome);

/// `store`: upload to the receiver.
EsitoVerbo MemorizzaNelRicevitore(Banco& banco, TableKind kind, const std::string& nome,
                                  const Argomenti& argomenti);

/// A unit by its text, with "u" for the micro sign, or by its number.
std::optional<int16_t> LeggiUnita(const std::string& testo);

std::string_view VerboDiKind(TableKind kind);

} // namespace orvane
