// What a verb that looks at a scan table before a run hands to the checks.
#pragma once

#include "setup/PreVolo.h"
#include "verbs/Verbo.h"

namespace orvane {

/// The receiver has been identified.
ContestoControlli ContestoDiScan(Banco& banco, const ScanTable& tabella);
/// Each question as a line, answered as the command line says.
Rispondi RispostaDiScan(Banco& banco);

} // namespace orvane
