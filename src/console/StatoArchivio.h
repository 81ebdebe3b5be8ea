// What the Sweeps Archive has on show: the list, the open measure and its tree, and what it is
// compared with.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "console/AlberoSubMisure.h"
#include "graph/MisuraAperta.h"

namespace orvane {

/// All detectors, in `StatoArchivio::detector`.
inline constexpr int kTuttiDetector = -1;

struct StatoArchivio {
    bool attivo = false;             ///< between `AttivaSweepsArchive` and `LasciaSweepsArchive`
    SetupRecord SetupBackup;         ///< the operator's record, as it was on the way in
    std::vector<std::string> elenco; ///< names in the order of the list; `ElencaArchivio`
    /// The measure on show; its name is empty without one. `misura.vista` is `ViewMode`.
    MisuraAperta misura;
    int ViewWorstMode = 0; ///< `WorstMode` of the shown measure
    ContestoNodi contesto;
    std::vector<NodoSubMisura> albero;
    size_t nodo = 0;               ///< chosen in `albero`
    int detector = kTuttiDetector; ///< chosen: an index of `DetectorKind`
    std::optional<MisuraAperta> riferimento;
    SweepTrace differenza; ///< shown less reference, dB in hundredths; empty without a reference
    std::vector<MisuraAperta> sovrapposte;

    bool Mostrata() const { return !misura.nome.empty() && misura.leggibile; }
    std::optional<DetectorKind> DetectorScelto() const {
        return detector < 0 ? std::nullopt : std::optional(static_cast<DetectorKind>(detector));
    }
};

} // namespace orvane
