// The layout of a report as PDF: page heads, header, picture, table.
#pragma once

#include "report/ConvertiTestoInPDFRTF.h"

namespace orvane {

/// Writes the document to `percorso`; the logo passes through "TMP.TPI" in `DataRoot`. `Occupato`
/// after the box of `ControllaFilePDFAperto`.
EsitoDocumento CreaFilePDF(const Scrivania& s, const RichiestaDocumento& richiesta,
                           std::filesystem::path percorso);

} // namespace orvane
