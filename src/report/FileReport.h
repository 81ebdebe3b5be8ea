// Small procedures of every report on its way to a file: header text, sizes of letters and sheets.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/Ambiente.h"

namespace orvane {

/// `ReportPaper`: values of `clsPDFCreator::PaperSize`.
inline constexpr int kFoglioVerticale = 0;
inline constexpr int kFoglioOrizzontale = 4;

struct CarattereFoglio {
    float ReportFontSize = 10; ///< points
    int ReportPaper = kFoglioVerticale;
};

/// By the columns of a table: up to 6, 7 and 8, 9 and more.
CarattereFoglio DetDimCaratEOrientMeasurePDF(int colonne);
/// Points of a report's table; asked after `DetDimCaratEOrientMeasurePDF`, whose size it replaces.
float DetDimCarattereTabella(int colonne);
CarattereFoglio DetCarattereEOrientazione(bool orizzontale, bool datiMast);

/// Whether the PDF can be written; what lies there stays as it is. An empty path is replaced with a
/// made-up name. Where it cannot, a box says the path and "Is already open".
bool ControllaFilePDFAperto(Ambiente& ambiente, std::filesystem::path& percorso);

/// The header's lines behind the text that `canale` holds, each ended by LF, and one more line end
/// when the last line isn't empty. UTF-8. An absent file adds nothing; false when it exists and
/// cannot be read.
bool StampaFileHeader(const std::filesystem::path& header, std::string& canale);

inline constexpr size_t kLarghezzaHeader = 90;

/// The pieces of a UTF-8 line, cut at blanks, of at most `massimo` characters each; one without a
/// blank to cut at is cut at `massimo`. An empty line is one empty piece.
std::vector<std::string> SpezzaRigaHeader(std::string_view riga, size_t massimo = kLarghezzaHeader);

} // namespace orvane
