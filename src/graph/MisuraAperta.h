// A stored measure as it is looked at: header, trace with its factors, and the curves it is held
// against.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "data/Misure.h"
#include "data/Scrivania.h"
#include "data/TabelleLimFac.h"

namespace orvane {

struct MisuraAperta {
    std::string nome;
    std::string base; ///< of the trace files on show: `nome`, or a sub-measure
    ViewMode vista = ViewMode::Normale;
    SweepHeader header;
    /// Levels in hundredths of a dB in dBµV with the sum of the factors in force; the files hold
    /// them without. Never null once open.
    std::shared_ptr<const SweepTrace> traccia = std::make_shared<SweepTrace>();
    /// What the samples of `traccia` hide of other detectors (`NotaCoperto`), with the same
    /// factors, in the order of frequency. Never null.
    std::shared_ptr<const SweepTrace> coperti = std::make_shared<SweepTrace>();
    /// Limits and factors of `CaricaTabelleMisura`.
    TabelleLimFac tabelle;
    std::array<bool, kNumDetector> detector{}; ///< those that any line measured
    double startMhz = 0;                       ///< span of all lines in use
    double stopMhz = 0;
    DateMisura date;
    bool leggibile = false; ///< the header is there and whole
};

/// Reads header, tables and trace; touches neither the running panels nor the disk. A measure
/// without a readable header comes back with `leggibile` false, told by "Failed loading" and the
/// path. Limits and factors are those that the header has in use.
MisuraAperta ApriMisura(Scrivania& s, const std::string& nome);

/// The same without tables and trace.
MisuraAperta ApriIntestazione(Scrivania& s, const std::string& nome);

/// The tables that `setup` names, into their slots, whether on or not: limits of slots 0 and 1, and
/// the seven factors. The measure's own copy counts before the table of the same name that lies in
/// the data tree; without a measure only the latter. Nothing is told of one that is absent.
void CaricaTabelleMisura(Scrivania& s, const std::string& misura, const SetupRecord& setup,
                         TabelleLimFac& tabelle);

/// A table by its path, such as `PercorsoLimite` gives it: the measure's copy, or else the one in
/// the data tree. Empty, and nothing told, where there is none.
LimFacRecord CercaTabella(const Scrivania& s, const std::string& misura, const std::string& locale);

/// Reads the trace of `base` again, merged by `detector` (the first that was measured without one),
/// and adds the factors that `setup` has on.
void CaricaTracciaMisura(Scrivania& s, MisuraAperta& misura, const SetupRecord& setup,
                         std::optional<DetectorKind> detector = {});

/// Adds `SommaFattori` at a frequency to every level that is one; what leaves the range stays at
/// its end.
void AggiungiFattori(std::span<int16_t> livelli, int sommaCent);
void ApplicaFattori(SweepTrace& traccia, TabelleLimFac& tabelle, const SetupRecord& setup);

/// The span that all lines in use cover together, MHz; both 0 for an empty table.
void CampoDellaTabella(const ScanTable& tabella, double& startMhz, double& stopMhz);

} // namespace orvane
