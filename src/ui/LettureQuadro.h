// What is read off the picture, as rows of text in colours that can be read.
#pragma once

#include <vector>

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QString>

#include "graph/Quadro.h"

namespace orvane {

/// A row of `LBMultiMK`; the first is the title.
struct RigaLettura {
    QString nome;
    QString valore;
    QString delta; ///< against the delta marker; empty without one
    QColor colore;
};

/// The colour, lightened or darkened as far as it takes to read text in it on this ground.
QColor ColoreLeggibile(const QColor& colore, const QColor& fondo);

/// Frequency, levels, factors and distances at marker 0, with the differences to marker 1; at
/// marker 1 where it is alone. Empty without a marker.
std::vector<RigaLettura> RigheMarker(const ContenutoQuadro& contenuto, const SetupRecord& setup,
                                     const QPalette& tavolozza);
/// Rows as one sentence for a screen reader.
QString TestoRighe(const std::vector<RigaLettura>& righe);

/// "0.195 MHz   Peak 59.12   Avg 55.03 dBµV" of the same marker, for a line; empty without one.
QString TestoStatoMarker(const ContenutoQuadro& contenuto, const SetupRecord& setup);
/// "0.195 MHz", as at a marker there. The trace must have the sample.
QString FrequenzaCampione(const MisuraAperta& misura, size_t indice);
/// "Peak 51.32 dBµV at 0.195 MHz"
QString TestoPicco(const MisuraAperta& misura, DetectorKind detector, const Picco& picco,
                   const SetupRecord& setup);

/// A name in the legend with the colours of its traces.
struct VoceLegenda {
    QString nome;
    std::vector<QColor> colori;
    bool viva = true; ///< in full text colour
};
/// In one row, without a frame; long names are cut to what fits. Nothing for fewer than two names.
void DisegnaLegenda(QPainter& p, const QRectF& riga, const std::vector<VoceLegenda>& voci,
                    const QPalette& tavolozza);

} // namespace orvane
