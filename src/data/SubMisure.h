// What the names in "Sub_Measure\" tell: positions, envelope, worst list.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/Scrivania.h"

namespace orvane {

namespace submisura {
inline constexpr std::string_view kMisura = "MEASMT";       ///< final measure of a Mast-Table run
inline constexpr std::string_view kInviluppo = "ENVMEASMT"; ///< envelope of its positions
inline constexpr std::string_view kPosizioni = "POSMEASMT"; ///< TM files of the two
inline constexpr std::string_view kPosizioniInv = "POSENVMEASMT";
} // namespace submisura

/// Which of the two axes a name and a title tell first: the priority of the positioner settings.
enum class PrioritaAssi { Mast, Table };
/// The two steps of a Mast-Table run.
enum class FaseMastTable { PreScan, Measure };

/// "PSM100PST045", or "PST045PSM100"; "MEM" and "MET" for the measure. `mast` in cm, `table` in
/// degrees.
std::string BasePosizione(FaseMastTable fase, int mast, int table, PrioritaAssi priorita);
/// "W_01", or "MEASMT-W_01" with a prefix.
std::string BaseWorst(std::string_view prefisso, int numero);

/// Title of a sub-measure by the name of its file, with or without extension; a name that says
/// nothing is its own title, and the position files have none.
std::string NomeSubMisuraEsteso(std::string_view file, PrioritaAssi priorita);

/// Whether the measure is one of Mast-Table: it has a sub-measure "MEASMT".
bool ControllaMEASMT(const Scrivania& s, std::string_view misura);

/// Sub-measures that have a trace on any line, by name, sorted without regard to case; a single
/// empty text where there are none. With `conInviluppo` "Envelope" is among them, and first where
/// there is one sub-measure only. While `insertionLoss` is on "Difference" takes the first place.
std::vector<std::string> ElencaSubMisure(const Scrivania& s, bool conInviluppo,
                                         std::string_view misura, bool insertionLoss = false);

} // namespace orvane
