// A report for spreadsheets.
#pragma once

#include <string>

#include "report/GrigliaReport.h"

namespace orvane {

struct FormaCsv {
    char separatore = ','; ///< comma, semicolon or tab
    char decimale = '.';   ///< point or comma
};

/// One line of headings and one a row, ended by CR LF. Numbers without blanks, an empty field where
/// the report shows "---"; a field that holds the separator, a quote, blanks at its ends or a line
/// end stands in quotes.
std::string ReportCsv(const GrigliaReport& griglia, const FormaCsv& forma);

} // namespace orvane
