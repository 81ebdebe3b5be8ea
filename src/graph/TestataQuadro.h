// The strip over the grid of a picture: which trace is which, and how the limits are met.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "graph/Quadro.h"

namespace orvane {

/// What a badge says of a limit: "QP -4.70 dB at 0.195 MHz"; "QP ---" where
/// nothing could be held against it.
std::string TestoInsegna(const VerdettoLimite& verdetto, const MisuraAperta& misura);

/// Words of the strip, each behind the stroke of its trace or on its ground, or bare.
struct PezzoTestata {
    std::string testo;
    int32_t colore = 0; ///< of the words
    std::optional<int32_t> tratto;
    std::optional<int32_t> fondo;
    double x = 0; ///< pixels from the left of the picture
    double larghezza = 0;
    size_t riga = 0;
};
struct TestataQuadro {
    std::vector<PezzoTestata> pezzi;
    double sopra = 0;       ///< pixels from the picture's edge to the first row
    double altezzaRiga = 0; ///< pixels
    double altezza = 0;     ///< 0: there is no strip
};

/// Lays the strip out between two edges, in pixels: the legend from the left, the badges to the
/// right, on further rows where they have no room.
TestataQuadro DisponiTestata(const Superficie& superficie, const ContenutoQuadro& contenuto,
                             const StileQuadro& stile, double sinistra, double destra);
/// Leaves the coordinates in pixels.
void DisegnaTestata(Superficie& superficie, const TestataQuadro& testata, const StileQuadro& stile);

} // namespace orvane
