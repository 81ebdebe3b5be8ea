#include "ui/RigaScelta.h"

#include <QWidget>

#include "ui/Tema.h"

namespace orvane {

void SegnaFuoco(QPainter& p, const QStyleOptionViewItem& o, const QRect& riga) {
    constexpr int kSpessore = 3;
    if (o.widget && o.widget->hasFocus() && o.state & QStyle::State_Selected)
        p.fillRect(QRect(riga.left(), riga.top() + 3, kSpessore, riga.height() - 6),
                   Tinta(o.palette, Ruolo::Accento));
}

} // namespace orvane
