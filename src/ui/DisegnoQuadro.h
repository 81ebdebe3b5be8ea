// What the picture and its preview draw alike: the ground with the grid, by colours and aspect.
#pragma once

#include <QPainter>
#include <QPalette>

#include "graph/Grafico.h"
#include "records/Aspetto.h"
#include "records/EnvRecord.h"

namespace orvane {

/// How a picture is to look. `rapporto`: pixels of the device for a logical one.
struct ModoQuadro {
    const EnvRecord& env;
    Aspetto aspetto;
    QPalette tavolozza;
    double rapporto = 1;
    bool stampa = false; ///< as on paper: white, with the print colours
};

TintaGrafico TinteQuadro(const ModoQuadro& modo, const QFont& carattere);
/// Fills the picture and draws grid, frame and labels. `griglia` as `DisponiGriglia` gave it.
void DisegnaGrigliaQuadro(QPainter& p, const QSizeF& misura, const ModoQuadro& modo,
                          const TintaGrafico& tinte, const ScalaGrafico& scala,
                          const RiquadroGriglia& griglia, const std::string& unita);
Penna PennaTraccia(const ModoQuadro& modo, int32_t colore);

} // namespace orvane
