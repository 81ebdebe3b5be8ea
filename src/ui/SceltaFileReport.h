// Where a report goes: the dialog that asks for its file.
#pragma once

#include <filesystem>
#include <optional>

#include <QWidget>

#include "data/Scrivania.h"
#include "report/SalvaReport.h"

namespace orvane {

/// Proposes "Report_", the measure's name and the extension, where the last report went. Empty when
/// the user leaves. A name of another extension gets this one behind it.
std::optional<std::filesystem::path>
ChiediFileReport(QWidget* padre, Scrivania& s, const std::string& misura, FormatoReport formato);
/// The next dialog begins there.
void RicordaFileReport(Scrivania& s, const std::filesystem::path& file);

} // namespace orvane
