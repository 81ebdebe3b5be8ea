// The rules of one scan line's settings: the ranges of its numbers, which detectors go together,
// what a Smart line needs. Window, command line and clipboard edit by them.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/Ambiente.h"
#include "records/LimFacRecord.h"
#include "records/ScanRecord.h"

namespace orvane {

inline constexpr float kMargineMax = 19;   ///< dB, either way
inline constexpr int16_t kNumStepMax = 49; ///< between two entries of a frequency table
inline constexpr size_t kPromptMax = 200;  ///< characters

/// Selections by their flags: lines of a network, outputs of the switch box, polarisations.
inline constexpr std::array<std::string_view, 4> kNomiLinee = {"N", "L1", "L2", "L3"};
inline constexpr std::array<std::string_view, 4> kNomiUscite = {"W", "X", "Y", "Z"};
inline constexpr std::array<std::string_view, 2> kNomiAntenne = {"V", "H"};

enum class UnitaPasso { Hz, kHz, MHz };
struct VoceUnitaPasso {
    std::string_view testo;
    double mhz = 1; ///< of one unit
};
inline constexpr std::array<VoceUnitaPasso, 3> kUnitaPasso = {
    {{"Hz", 1e-6}, {"kHz", 1e-3}, {"MHz", 1}}};
/// The unit in which a step reads best, and the step in it: "5 kHz".
UnitaPasso UnitaDelPasso(double mhz);
std::string TestoPasso(double mhz, UnitaPasso unita); ///< the number alone
std::string TestoPassoConUnita(double mhz);

// Numbers as typed: comma or point, what is no number is 0.

/// dB, held to -19 to 19 with its sign.
void ModificaMargin(ScanLine& riga, std::string_view testo);
/// "Peak Scan Hold Time": absolute value of the number, at most 30000 ms.
void ModificaHoldTimeSD(ScanLine& riga, std::string_view testo);
/// Absolute value of the whole number, at most 49.
void ModificaNumStepFT(ScanLine& riga, std::string_view testo);
/// A step of one's own, in `unita`; the automatic step is then off. False, and nothing changed,
/// where it is not above 0.
bool ModificaStep(ScanLine& riga, std::string_view testo, UnitaPasso unita);
/// On: the step is computed at once.
void ModificaAutoStep(ScanLine& riga, bool acceso);
/// `OPTStep`: 0 by step, 1 from a frequency table.
void ModificaStepMode(ScanLine& riga, int modo);
/// The text, cut to its 200 characters; whether it is shown is another matter.
void ModificaPrompt(ScanLine& riga, std::string_view testo);
/// A selection by its place in `VociAncillary`. The flags that the kind does not know go out.
void ModificaAncillary(ScanLine& riga, int ancillaryKind, size_t voce, bool accesa);
/// An automatic step follows what decides over it: filter, span, detectors, hold, Smart.
void AggiornaStepAuto(ScanLine& riga);

/// Whether the line has two detectors under Smart: the Double Smart Detector.
bool ControllaCondizioniDSDScanTab(const ScanLine& riga);
/// Switches Smart. On, it leaves the first of the detectors in use alone, or Peak.
void ModificaSmart(ScanLine& riga, bool acceso);

/// Which of a line's limits: `Limit`, or `LimitDSD` of the Double Smart Detector.
enum class CoppiaLimite { Prima, DSD };
int16_t& LimiteAcceso(ScanLine& riga, CoppiaLimite coppia);
std::string& NomeLimite(ScanLine& riga, CoppiaLimite coppia);
/// Whether a pair is on and names a limit.
bool LimiteScelto(const ScanLine& riga, CoppiaLimite coppia);
/// Whether a Smart line has the limits that it must have: one, or two for two detectors.
bool ControllaSelLimSD(const ScanLine& riga);
/// A limit that is straight on a linear axis: no Smart line can use it.
bool LimiteLineare(const LimFacRecord& limite);

Riquadro RiquadroLimiteMancante(); ///< "Smart detector must have" a limit
Riquadro RiquadroLimiteLineare();

} // namespace orvane
