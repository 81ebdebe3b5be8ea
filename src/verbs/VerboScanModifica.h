// The words of the scan verb that change a table.
#pragma once

#include <string>

#include "records/ScanRecord.h"
#include "verbs/Argomenti.h"
#include "verbs/Verbo.h"

namespace orvane {

/// A scan table of the data tree that is there; kFatto, or why it could not be read.
EsitoVerbo CaricaTabellaScan(Banco& banco, const std::string& nome, ScanRecord& scan);

/// Whether this is one of the words that change lines: add, insert, set, remove, move, copy.
bool ModificaLineeScan(std::string_view parola);
/// Runs it: the words behind the verb, the name already looked at.
EsitoVerbo EseguiModificaScan(Banco& banco, const std::string& nome, const Argomenti& argomenti,
                              int ancillaryKind);
EsitoVerbo SalvaTabellaScan(Banco& banco, const std::string& nome, const ScanRecord& scan);

} // namespace orvane
