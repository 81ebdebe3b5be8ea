// A report as the pages of its PDF, to be looked at before it is written.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "report/ImpaginaReport.h"
#include "report/SalvaReport.h"

namespace orvane {

/// A line on a page, with its text of its own.
struct RigaFoglio {
    TestoPagina posto; ///< its `testo` is not to be read
    std::string testo;
};

struct ImmagineFoglio {
    ImmaginePagina quale = ImmaginePagina::Logo;
    RiquadroPagina dove;
};

struct FoglioReport {
    std::vector<RigaFoglio> righe;
    std::vector<ImmagineFoglio> immagini;
};

struct PagineReport {
    double larghezzaCm = 0;
    double altezzaCm = 0;
    std::vector<FoglioReport> fogli;
    std::vector<uint8_t> misura; ///< its picture as a BMP; empty for none
};

/// The pages that a PDF of this report has, drawn by the same layout.
PagineReport ComponiPagine(const Scrivania& s, const ReportPronto& report,
                           const OpzioniReport& opzioni, FabbricaQuadri* fabbrica);

} // namespace orvane
