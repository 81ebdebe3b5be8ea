// The measure that a verb is asked for, with the limits, factors and unit that its options put on
// show.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "graph/MisuraAperta.h"
#include "verbs/Argomenti.h"
#include "verbs/Verbo.h"

namespace orvane {

struct MisuraChiesta {
    MisuraAperta misura;
    /// The set-up of the measure with the options in it: unit, limits and factors on,
    /// `VerdictDetector` of the limits. A limit or factor that is on here has been read.
    SetupRecord setup;
    DetectorKind detector = DetectorKind::Peak; ///< the one asked for, or the first measured
    std::string nomeUnita;                      ///< as the unit list writes it
    double unitOffset = 0;                      ///< dB from dBµV to the unit
    /// Limits that the measure has on and that lie nowhere: they were told, and are off.
    std::vector<std::string> limitiAssenti;
};

/// What holds where no option says otherwise.
enum class Partenza {
    ComeMisurata, ///< unit, limits and factors that the measure has on
    Grezza        ///< stored levels in dBµV, no limits; `--factors`: those that it has on
};

/// The options that take a value: detector, sub, unit, factor, limit, and those of the verb itself.
/// The flag "factors" comes beside them, for verbs that begin `Grezza`.
std::set<std::string> OpzioniMisura(std::set<std::string> proprie = {});

/// Opens the measure that the first word behind the verb names; `parole` is how many words besides
/// options the verb takes. `--factor` and `--limit` may come again and again: the names given take
/// the place of those that the measure has on, "none" of all. A limit may bear its detector behind
/// a colon, "A:Q". Anything but kFatto has been told: wrong use, a field unit without a factor
/// (kRifiutato), a measure, sub-measure or named table that is not there or cannot be read
/// (kGuastoFile).
EsitoVerbo ApriDaOpzioni(Banco& banco, std::string_view verbo, const Argomenti& argomenti,
                         Partenza partenza, MisuraChiesta& chiesta, size_t parole = 1);

/// The first detector that a text names, by letter or long name.
std::optional<DetectorKind> PrimoDetector(std::string_view testo);

} // namespace orvane
