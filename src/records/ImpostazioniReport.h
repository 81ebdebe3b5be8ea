// What the report fields of the environment mean: margin, detectors, and how reports are written.
#pragma once

#include "records/EnvRecord.h"

namespace orvane {

/// Entries of `ReportList`; each 0 until the user has chosen.
namespace voce_report {
inline constexpr size_t kNumPicchi = 0;    ///< `TBNumOFPeaks`; 0 stands for 10
inline constexpr size_t kRiassunto = 1;    ///< 1: a first page with the verdict
inline constexpr size_t kIntestazione = 2; ///< 1: without the header text
inline constexpr size_t kTipoAuto =
    3; ///< report written by itself: 0 one detector, 1 two, 2 two full
inline constexpr size_t kSeparatoreCsv = 4; ///< 0 comma, 1 semicolon, 2 tab
inline constexpr size_t kDecimaleCsv = 5;   ///< 0 point, 1 comma
inline constexpr size_t kOrizzontale = 6;   ///< 1: PDF on landscape sheets
} // namespace voce_report

inline constexpr int kMaxPicchi = 100;
inline constexpr int kPicchiDefault = 10;

/// dB, -999 to 999: rows of a report lie at most this far below their limit.
inline float& ReportMargin(EnvRecord& env) {
    return env.ReportValue;
}
inline float ReportMargin(const EnvRecord& env) {
    return env.ReportValue;
}
/// 0 to 5: the detector of the one-detector report, and those compared with limit 0 and limit 1.
int16_t ReportDetector(const EnvRecord& env);
int16_t ReportDetectorLim1(const EnvRecord& env);
int16_t ReportDetectorLim2(const EnvRecord& env);
/// 1 to `kMaxPicchi`.
int NumPicchi(const EnvRecord& env);

} // namespace orvane
