// The two commands that start a sweep: their checks, and the stream that follows each.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "simulator/FlussoCampioni.h"
#include "simulator/Memoria.h"

namespace orvane {

/// What became of a sweep command.
struct SweepAvviato {
    int errore = 0; ///< number of an "SFD=ERR", 0 when it runs
    std::unique_ptr<FlussoCampioni> flusso;
};

/// `campi`: what stands behind "#SSFD", with its "S" where a step is imposed. Remembers the hold
/// time in use.
SweepAvviato AvviaSweep(MemoriaSimulata& memoria, std::string_view campi);

/// One sweep of the Analyzer with the settings as they stand: 48 bytes of header, then the samples
/// of one detector, without an end mark.
std::unique_ptr<FlussoCampioni> AvviaAnalyzer(const MemoriaSimulata& memoria);

} // namespace orvane
