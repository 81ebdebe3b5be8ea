// The directories of the data tree, with their backslash. Each is made on demand, before the first
// file in it.
#pragma once

#include <array>
#include <string_view>

namespace orvane::cartella {

inline constexpr std::string_view kSweep = "Sweep\\";          ///< one directory per measure
inline constexpr std::string_view kPanels = "Panels\\";        ///< EPN, EAM, EST, PTH, DPT
inline constexpr std::string_view kLimits = "Limits\\";        ///< 5SL
inline constexpr std::string_view kFactors = "Factors\\";      ///< 5SC
inline constexpr std::string_view kTable = "Table\\";          ///< 5SF, FSR
inline constexpr std::string_view kMastTable = "Mast-Table\\"; ///< FTM
inline constexpr std::string_view kAnalyzer = "Analyzer\\";    ///< reports of the Analyzer
inline constexpr std::string_view kClick = "Click\\";          ///< CKR, with images and reports
inline constexpr std::string_view kWaterfall = "Waterfall\\";  ///< WFA, with reports
inline constexpr std::string_view kTmp = "TMP\\";              ///< a measure during a Sub Range run
inline constexpr std::string_view kReport = "Report\\";        ///< report output

inline constexpr std::array kTutte = {kSweep,    kPanels, kLimits,    kFactors, kTable, kMastTable,
                                      kAnalyzer, kClick,  kWaterfall, kTmp,     kReport};

/// Inside a measure; its copies of limits and factors lie in directories named as those above.
inline constexpr std::string_view kSubMeasure = "Sub_Measure\\";
/// In front of `kSweep`: second copies of measures, on the switches of the command line.
inline constexpr std::string_view kCopyFC = "COPYFC\\";

} // namespace orvane::cartella
