// The look of the checks at a scan table while it is edited, before any run.
#pragma once

#include "setup/Controlli.h"

namespace orvane {

/// What `EsaminaScan` finds, each with words: the box's, or else why the run would be refused. A
/// finding without either is left out, and so is the empty table. A receiver that has not been
/// asked yet is taken for a 5520 with every option.
Segnalazioni EsaminaTabella(const ContestoControlli& contesto);

} // namespace orvane
