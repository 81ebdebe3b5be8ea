// The report that writes itself when a sweep has run to its end.
#pragma once

#include <string>

#include "graph/FabbricaQuadri.h"
#include "report/ConvertiTestoInPDFRTF.h"

namespace orvane {

enum class EsitoAuto {
    Spento, ///< `AutoReportMode` 0
    Scritto,
    Fallito ///< a box has told why
};

struct EsitoAutoReport {
    EsitoAuto esito = EsitoAuto::Spento;
    std::string file = {}; ///< of the host; also of what could not be written
    size_t righe = 0;
};

/// To be called behind a run that was completed. Writes "Report\Report_" + measure + extension,
/// over an older one, as `AutoReportMode` and the report entries of the panel say: kind, header,
/// summary. Unit, limits and factors are those that the measure was made with; a measure of passes
/// alone is read by their envelope.
EsitoAutoReport ScriviAutoReport(Scrivania& s, const std::string& misura, FabbricaQuadri* fabbrica,
                                 VistaAttesa& vista);

} // namespace orvane
