// Two measures held against each other: whether they can be, their difference, and the layers of
// the picture.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "graph/MisuraAperta.h"
#include "graph/Quadro.h"

namespace orvane {

inline constexpr std::string_view kNonComparabile = "Measure not comparable";
inline constexpr std::string_view kNomeRiferimento = "Reference";
inline constexpr std::string_view kNomeConfrontata = "Compared";

/// Whether two scan tables lead to traces of the same points and settings: `ConfrontaScanTab`
/// without what leaves the trace as it is, which is the comment, prompts, unused lines, and limit
/// and margin of lines without the Smart detector.
bool Comparabili(const ScanRecord& a, const ScanRecord& b);

/// Shown less reference, dB in hundredths, at the frequencies of the shown one that the reference
/// has too. A detector that either lacks there holds `kNessunLivello`.
SweepTrace DifferenzaTracce(const SweepTrace& mostrata, const SweepTrace& riferimento);

/// The two as layers, the shown one first: `DetCompMeas` with "Compared", `DetRefMeas` with
/// "Reference". `detector` is -1 for all that were measured.
std::vector<StratoQuadro> StratiConfronto(const MisuraAperta& mostrata,
                                          const MisuraAperta& riferimento, int detector,
                                          const EnvRecord& env);
/// A measure laid over others: one colour of the second group by its place among them, its name in
/// the legend.
StratoQuadro StratoSovrapposto(const MisuraAperta& misura, size_t posto, int detector,
                               const EnvRecord& env);

} // namespace orvane
