// `TreeViewFileSweep` as data: the sub-measures of a measure, and which files a node stands for.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/SubMisure.h"
#include "data/Traccia.h"

namespace orvane {

/// A row of the tree, in its order; the children of a row follow it, one deeper.
struct NodoSubMisura {
    std::string testo;
    int profondita = 0;
    bool gruppo = false;                         ///< a heading: it shows nothing
    FaseMastTable fase = FaseMastTable::Measure; ///< of a position
    std::string prefisso;                        ///< of a worst list: the base that it belongs to
    std::string file; ///< base name on disk; empty for a heading, and for what is computed
};

/// What the names of a measure's nodes depend on.
struct ContestoNodi {
    std::string misura;
    std::string base;              ///< the name that its own files bear, see `BaseMisura`
    std::vector<std::string> file; ///< base names in "Sub_Measure\"; empty without any
    bool mastTable = false;        ///< `ControllaMEASMT`, or positions alone
    bool insertionLoss = false;
    /// The order that the positions of this measure were named in.
    PrioritaAssi priorita = PrioritaAssi::Mast;

    /// Whether this base has a trace file, in any case.
    bool Ha(std::string_view base) const;
};
ContestoNodi LeggiContestoNodi(const Scrivania& s, const std::string& misura,
                               bool insertionLoss = false);

/// The positions that an envelope is made over: those of the pre-scan, or else of the measure.
std::vector<std::string> PosizioniMastTable(const ContestoNodi& contesto);
/// The traces beside the measure's own, without worst lists, envelope and
/// those of an Insertion Loss measure.
std::vector<std::string> PassateDellaMisura(const ContestoNodi& contesto);

/// Plain measures: the measure itself, then its passes ("L1" of "<measure>-L1"), the envelope where
/// there are several, and worst lists below what they belong to. Mast-Table measures: the groups
/// "Pre Scan", "Measure" and "Envelope" with their positions.
std::vector<NodoSubMisura> CreaAlberoSubMisure(const ContestoNodi& contesto);

/// The base of the trace files of a node, and how positions are found. A heading gives an empty
/// base.
struct FileDaNodo {
    std::string base;
    ViewMode vista = ViewMode::Normale;
    bool operator==(const FileDaNodo&) const = default;
};
FileDaNodo NomeFileDaNodo(const ContestoNodi& contesto, const NodoSubMisura& nodo);

/// Base of an envelope of passes, which is made in memory.
inline constexpr std::string_view kBaseInviluppo = "Envelope";

/// N of a node "Worst: N"; empty for any other.
std::optional<int> NumeroWorst(const NodoSubMisura& nodo);
/// " Worst: N" behind a title with `WorstMode` 1 and 2; empty with 0.
std::string TitoloWorst(int viewWorstMode, int numero);

} // namespace orvane
