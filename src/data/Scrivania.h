// The desk: the data tree and the panels that lie on it.
#pragma once

#include <string>
#include <vector>

#include "base/Ambiente.h"
#include "data/AlberoDati.h"
#include "records/EnvRecord.h"
#include "records/PathRecord.h"
#include "records/SetupRecord.h"

namespace orvane {

struct Scrivania {
    Ambiente& ambiente;
    AlberoDati albero;
    EnvRecord env = {};
    SetupRecord setup = {};
    PathRecord path = {};
    std::string RigaSetup = {}; ///< last line of the setup file
    /// Panels whose damaged values were repaired while loading, a sentence each.
    std::vector<std::string> avvisi = {};
    bool NoSaveSetup = false; ///< a stored measure's set-up is being viewed
};

} // namespace orvane
