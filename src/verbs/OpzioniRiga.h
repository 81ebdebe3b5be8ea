// The options of the scan verb that name a field of a line.
#pragma once

#include <set>
#include <string>

#include "records/ScanRecord.h"
#include "verbs/Argomenti.h"
#include "verbs/Verbo.h"

namespace orvane {

/// Their names, with those of the verb itself.
std::set<std::string> OpzioniDiRiga();
/// Writes those that were given to a line, by the rules of its window. Anything but kFatto after
/// the words or the box that say why; the line is then not to be used.
EsitoVerbo ApplicaOpzioniRiga(Banco& banco, const Argomenti& argomenti, int ancillaryKind,
                              ScanLine& riga);

} // namespace orvane
