// How the chosen row of a list looks, the same in all lists of the archive.
#pragma once

#include <QPainter>
#include <QStyleOptionViewItem>

namespace orvane {

/// A stroke at the left of the chosen row while its list has the keys.
void SegnaFuoco(QPainter& p, const QStyleOptionViewItem& o, const QRect& riga);

} // namespace orvane
