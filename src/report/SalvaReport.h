// A compiled report into a file, of whatever kind the file's name says.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "graph/FabbricaQuadri.h"
#include "report/ConvertiTestoInPDFRTF.h"
#include "report/GrigliaReport.h"
#include "report/ReportCSV.h"

namespace orvane {

enum class FormatoReport { Testo, Pdf, Rtf, Csv, Html };
/// By the extension of a path, whatever its case; empty for any other.
std::optional<FormatoReport> FormatoReportDaPercorso(const std::filesystem::path& percorso);
/// Title of the dialog that asks for the file: "Save As Text" and the like.
std::string TitoloSalvaReport(FormatoReport formato);
/// "Report_", the measure's name and the extension.
std::string NomeReport(const std::string& misura, FormatoReport formato);

struct OpzioniReport {
    bool HeaderOn = true;     ///< with the header text, where there is one
    bool riassunto = false;   ///< with the summary ahead of the table
    bool orizzontale = false; ///< PDF and RTF on landscape sheets however few the columns,
    bool verticale = false;   ///< or upright however many
    std::string ColumnSeparator = "\t"; ///< of the text; on a sheet a tab is one blank
    FormaCsv csv;
};
OpzioniReport OpzioniDaPannello(const EnvRecord& env);

/// A report whose rows are complete.
struct ReportPronto {
    const GrigliaReport& griglia;
    const ReportModel& model;
    const FonteReport& fonte;
};

/// The header text that reports of a measure begin with: its own, or else the one in `DataRoot`.
std::filesystem::path PercorsoHeader(const AlberoDati& albero, const std::string& misura);

/// Header, title, letters and sheet of a report as PDF or RTF; no paths.
RichiestaDocumento RichiestaDelReport(const Scrivania& s, const ReportPronto& report,
                                      const OpzioniReport& opzioni);
/// Its lines behind the picture.
std::vector<std::string> RigheDelDocumento(const ReportPronto& report,
                                           const OpzioniReport& opzioni);

/// The canonical text, in Windows-1252 with CR LF. False when it cannot be written; an old file
/// then stays.
bool SalvaReportComTesto(const Scrivania& s, const ReportPronto& report,
                         const OpzioniReport& opzioni, const std::filesystem::path& percorso);

/// Writes the report as the extension of `percorso` says. `fabbrica` draws the measure into PDF,
/// RTF and HTML; without it they have no picture. False after a box that names the file, which is
/// then as it was; also, without a box, for a grid that was cut.
bool SalvaReport(Scrivania& s, const ReportPronto& report, const OpzioniReport& opzioni,
                 FabbricaQuadri* fabbrica, VistaAttesa& vista,
                 const std::filesystem::path& percorso);

} // namespace orvane
