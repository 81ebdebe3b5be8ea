// The rows of the open report, and what they were chosen by.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "data/TabelleLimFac.h"
#include "graph/MisuraAperta.h"
#include "records/EnvRecord.h"

namespace orvane {

inline constexpr size_t kLimitiReport = 2; ///< slots 0 and 1 are the ones compared
inline constexpr size_t kPostiLimite = 10;
inline constexpr float kNessunLivelloRep = -20000.0f;
inline constexpr float kMargineMassimo = 999; ///< dB, either way

struct FattoreRep {
    float Value = 0;    ///< dB
    bool Valid = false; ///< the frequency lies inside the factor's table
};

/// A row of the one-detector report. Levels and limits in the display unit.
struct FreqLevLimRep {
    double Freq = 0; ///< MHz
    float Level = 0;
    std::array<float, kPostiLimite> Limit{}; ///< of the active limits alone, packed from 0
    int16_t Mast = kNessunaPosizione;        ///< cm
    int16_t Table = kNessunaPosizione;       ///< degrees
    std::array<FattoreRep, kNumFattori> Factor{};
};

/// A row of the two-detector reports.
struct FreqLevLimRepDSD {
    double Freq = 0;                         ///< MHz
    std::array<float, kNumDetector> Level{}; ///< `kNessunLivelloRep`: no value
    std::array<float, kPostiLimite> Limit{}; ///< by slot
    int16_t Mast = kNessunaPosizione;
    int16_t Table = kNessunaPosizione;
    std::array<FattoreRep, kNumFattori> Factor{};
};

enum class TipoReport { UnDetector, DueDetector, DueDetectorFull };

struct ReportModel {
    std::vector<FreqLevLimRep> ArrFreqLevLimRep;
    std::vector<FreqLevLimRepDSD> ArrFreqLevLimRepDSD;
    std::string ReportMeasureName;  ///< of the measure that the rows came from
    int16_t ReportDetector = 0;     ///< 0 to 5: of the one-detector report
    int16_t ReportDetectorLim1 = 0; ///< compared with limit slot 0
    int16_t ReportDetectorLim2 = 0; ///< compared with limit slot 1
    float ReportMargin = 0;         ///< dB
    TipoReport tipo = TipoReport::UnDetector;
    bool ReportCompiling = false;       ///< rows are being put in the grid
    bool ReportCancelRequested = false; ///< ends that, and leaves the rows so far
    bool ReportUnloadRequested = false; ///< likewise, and the window goes
    bool tagliato = false;              ///< cut by a cancel: shown red, and not to be saved
};

/// What a report is made from. `setup` says which limits and factors are on, their names and the
/// unit; the tables and the levels, factors included, are the measure's.
struct FonteReport {
    const MisuraAperta& misura;
    const SetupRecord& setup;
    const EnvRecord& env; ///< colours
    /// The limit is to be exceeded, as with an Insertion Loss.
    bool invertita = false;
};

/// An empty report with margin and detectors of the panel.
ReportModel ReportDaPannello(const EnvRecord& env, TipoReport tipo);
/// -999 to 999 dB; what is no number is 0.
float LimitaMargine(double dB);

} // namespace orvane
