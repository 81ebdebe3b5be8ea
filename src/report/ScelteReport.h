// What a report window lets the user set, and where it is kept: margin, detectors, documents.
#pragma once

#include <string_view>

#include "report/ReportModel.h"

namespace orvane {

/// An empty report with the panel's margin and detectors; the first that was measured takes the
/// place of one that was not.
ReportModel ReportDellaMisura(const EnvRecord& env, TipoReport tipo, const MisuraAperta& misura);

/// Which of a report's detectors.
enum class RuoloDetector { Report, Lim1, Lim2 };
int16_t DetectorReport(const ReportModel& model, RuoloDetector ruolo);
/// Stored in the panel at once.
void ScegliDetectorReport(Scrivania& s, ReportModel& model, RuoloDetector ruolo, int16_t detector);

/// The text of `TBMargin`, clamped and stored in the panel; what is no number counts as 0.
void ScegliMargineReport(Scrivania& s, ReportModel& model, std::string_view testo);

/// An entry of `voce_report`, stored in the panel at once.
void ScegliVoceReport(Scrivania& s, size_t voce, int16_t valore);

} // namespace orvane
