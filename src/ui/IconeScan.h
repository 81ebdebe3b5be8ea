// Small line pictures of the buttons under the scan grid, drawn in the colours of the theme.
#pragma once

#include <QIcon>

namespace orvane {

enum class SegnoScan { Nessuno, Annulla, Ripeti, Su, Giu, Duplica, Cancella, Avviso };

QIcon IconaScan(SegnoScan segno);
/// The sign of a cell or finding that a check refused: a triangle with its mark.
void DisegnaAvviso(QPainter& p, const QRectF& dove, const QColor& colore);

} // namespace orvane
