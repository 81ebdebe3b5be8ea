// A report as one HTML file: summary, picture and a table that a click on its heads sorts.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "report/GrigliaReport.h"
#include "report/RiassuntoReport.h"

namespace orvane {

/// `&`, `<`, `>` and both quotes as entities; what HTML cannot hold becomes "?".
std::string TestoHtml(std::string_view testo);
std::string Base64(std::span<const uint8_t> byte);

struct ParteHtml {
    std::string intestazione; ///< header text; empty for none
    std::optional<Riassunto> riassunto = {};
    std::span<const uint8_t> png = {}; ///< picture of the measure; empty for none
};

/// The document, in UTF-8. It refers to nothing outside itself.
std::string ReportHtml(const GrigliaReport& griglia, const ReportModel& model,
                       const MisuraAperta& misura, const ParteHtml& parte);

} // namespace orvane
