// The table of the highest peaks: what its rows say.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "graph/MisuraAperta.h"
#include "graph/Picchi.h"

namespace orvane {

struct RigaPicco {
    size_t indice = 0; ///< of its sample in the trace
    double freqMhz = 0;
    std::string frequenza;            ///< MHz, as the marker writes it
    std::vector<std::string> livelli; ///< display unit, of each measured detector; "---" for none
    struct Confronto {
        std::string limite; ///< display unit; "---" where the limit has no value
        std::string delta;  ///< level less limit, dB, with its sign
        bool oltre = false;
    };
    std::vector<Confronto> confronti; ///< of each limit that is on, by slot
};

/// A column; a second line of its heading is joined by LF.
struct TitoloPicchi {
    std::string testo;
    std::string aiuto; ///< name of the limit; empty for none
};

struct TabellaPicchi {
    std::vector<TitoloPicchi> titoli; ///< from the frequency on
    std::vector<RigaPicco> righe;
};

/// `setup` says which limits are on, their detectors, and the unit.
TabellaPicchi ComponiTabellaPicchi(const MisuraAperta& misura, const SetupRecord& setup,
                                   std::span<const Picco> picchi);

/// "PK", "QP", "RMS", "AV", "RMS-AV", "C-AV": a detector where there is little room.
const char* SiglaDetector(DetectorKind detector);

} // namespace orvane
