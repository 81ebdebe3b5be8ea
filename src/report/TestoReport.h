// The canonical text of a report: lines of cells, which the other documents lay out.
#pragma once

#include <string>
#include <vector>

#include "report/GrigliaReport.h"

namespace orvane {

inline constexpr size_t kLarghezzaCella = 11;

/// `ColumnSeparator`, by `ExportMode`: tab, semicolon, comma; tab for anything else.
std::string ColumnSeparator(int ExportMode);

/// A name for a cell of a heading: trimmed, and over 11 characters its first 9 and "..".
std::string TagliaNomeCella(std::string_view nome);

/// Name, sub-measure in brackets where one is on show, and when it was measured.
std::string TitoloReport(const MisuraAperta& misura);
/// When the measure was made: the first time of its traces, and the last where that is another.
std::string TestoDate(const MisuraAperta& misura);
/// What follows the title: releases, receiver with serial number, margin.
std::vector<std::string> RigheDati(const ReportModel& model, const MisuraAperta& misura);

/// The lines of a report without their ends. `davanti` stands ahead of the title, `riassunto`
/// ahead of the headings; both are left out when empty.
std::vector<std::string> TestoReport(const GrigliaReport& griglia, const ReportModel& model,
                                     const MisuraAperta& misura, const std::string& separatore,
                                     const std::vector<std::string>& davanti = {},
                                     const std::vector<std::string>& riassunto = {});

} // namespace orvane
