// The picture of the measure that a document bears.
#pragma once

#include "graph/FabbricaQuadri.h"
#include "report/ReportModel.h"

namespace orvane {

/// The whole measure drawn for paper, with the settings under the graph. `ridotta`: 97.5 % of its
/// size, unless the command line holds "/NORIDIMGRTF". Empty where it cannot be drawn.
std::vector<uint8_t> CatturaImmagineMisura(const Scrivania& s, const FonteReport& fonte,
                                           FabbricaQuadri* fabbrica, FormatoImmagine formato,
                                           bool ridotta);

} // namespace orvane
