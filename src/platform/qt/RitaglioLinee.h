// Lines cut at a rectangle by arithmetic, for drawings whose format knows no clipping.
#pragma once

#include <span>
#include <vector>

#include <QPointF>
#include <QRectF>

namespace orvane {

/// What of a line through these points lies in the rectangle, piece by piece.
std::vector<std::vector<QPointF>> RitagliaSpezzata(std::span<const QPointF> punti,
                                                   const QRectF& dove);

} // namespace orvane
