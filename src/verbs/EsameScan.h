// What a verb that looks at a scan table before a run hands to the checks.
#pragma once

#include "setup/PreVolo.h"
#include "verbs/Verbo.h"

namespace orvane {

/// Loads the panels, and the scan table of this name; kFatto, or why it could not be read.
EsitoVerbo CaricaPerEsame(Banco& banco, const std::string& nome, ScanRecord& scan);
/// The receiver has been identified.
ContestoControlli ContestoDiScan(Banco& banco, const ScanTable& tabella);
/// Each question as a line, answered as the command line says.
Rispondi RispostaDiScan(Banco& banco);

} // namespace orvane
