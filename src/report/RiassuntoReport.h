// The first page of a report: pass or fail, the worst point of each limit, and who measured it.
#pragma once

#include <string>
#include <vector>

#include "graph/Verdetto.h"
#include "report/ReportModel.h"

namespace orvane {

/// A worst point in the display unit, as texts.
struct PuntoPeggiore {
    Giudizio giudizio = Giudizio::Nessuno;
    std::string limite;
    std::string detector;
    std::string freqMhz; ///< "---", like those below, where nothing could be compared
    std::string livello;
    std::string valore; ///< of the limit
    std::string delta;
    size_t oltre = 0; ///< samples above the limit
};

struct VoceRiassunto {
    std::string etichetta;
    std::string testo;
};

struct Riassunto {
    Giudizio giudizio = Giudizio::Nessuno;
    std::vector<PuntoPeggiore> punti; ///< one for each limit that is on
    std::string unita;
    std::vector<VoceRiassunto> voci; ///< uncertainty, receiver, dates; those that are known
};

Riassunto CalcolaRiassunto(const FonteReport& fonte);
/// As lines of a text, with an empty one between the blocks.
std::vector<std::string> RigheRiassunto(const Riassunto& riassunto);

} // namespace orvane
