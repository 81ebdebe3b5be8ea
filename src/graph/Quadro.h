// What a picture of a stored measure shows, and the whole of it drawn at once: for files, reports
// and the clipboard. The window draws the same parts as layers.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "graph/Marcatori.h"
#include "graph/MisuraAperta.h"
#include "graph/Picchi.h"
#include "graph/Verdetto.h"
#include "graph/Zoom.h"

namespace orvane {

/// One measure or pass among the traces.
struct StratoQuadro {
    std::shared_ptr<const SweepTrace> traccia; ///< never null
    std::array<bool, kNumDetector> detector{}; ///< those that are drawn
    std::array<int32_t, kNumDetector> colori{};
    std::string nome; ///< in the legend; empty for none
};

/// A limit in the picture; the ones held against the measure have slot 0 or 1, those of scan lines
/// -1 and the span of their line.
struct LimiteQuadro {
    LimFacRecord limite;
    int slot = -1;
    int32_t colore = 0;
    std::string nome;
    std::optional<CampoMhz> soloFra;
};

struct ContenutoQuadro {
    MisuraAperta misura;              ///< what markers and verdict read
    std::vector<StratoQuadro> strati; ///< in the order of drawing; the first is the measure's own
    std::vector<LimiteQuadro> limiti;
    Verdetto verdetto;
    PicchiMisura picchi; ///< symbols; empty for none
    Marcatori marcatori;
    CampoMhz intero; ///< span of the whole axis; 0 and 0 for an empty picture
};

/// The measure with all its detectors in the panel's colours, the limits and verdict by `setup`; no
/// peaks, no markers.
ContenutoQuadro ComponiQuadro(const MisuraAperta& misura, const SetupRecord& setup,
                              const EnvRecord& env);

/// Adds the limits that the measure's scan lines name, each within its line; one that is shown
/// whole is not repeated. The measure's own copy of a table counts before the one in the data tree.
void AggiungiLimitiRighe(const Scrivania& s, ContenutoQuadro& contenuto);

/// How a picture is drawn as a whole.
struct StileQuadro {
    TintaGrafico tinta;     ///< with `PrintColors` on white, for paper
    int32_t inchiostro = 0; ///< words of the legend and the settings
    double spessoreTracce = 1;
    bool verdetto = true;
    bool legenda = true;
    bool marcatori = true;           ///< the lines of the markers
    std::vector<std::string> blocco; ///< settings, under the graph; empty for none
};
/// Colours of a picture for paper: black on white, print colours of the grid.
StileQuadro StileStampa(const EnvRecord& env, double altezzaTesto);
/// As in the window, light or dark.
StileQuadro StileSchermo(const EnvRecord& env, bool scuro, double altezzaTesto);
/// Height of the text in a picture of this size, so that it reads alike in each.
double AltezzaTestoQuadro(int larghezza, int altezza);

/// Everything, from the background to the settings under the graph; `campo` is the span on show.
void DisegnaQuadro(Superficie& superficie, const ContenutoQuadro& contenuto,
                   const SetupRecord& setup, const EnvRecord& env, CampoMhz campo,
                   const StileQuadro& stile);

} // namespace orvane
