#include "ui/ElencoMisure.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QWheelEvent>

#include "ui/VociArchivio.h"

namespace orvane {

ElencoMisure::ElencoMisure(QWidget* padre) : QListView(padre) {
    setFrameShape(QFrame::NoFrame);
    setItemDelegate(new DelegatoMisura(this));
    setMouseTracking(true);
    setUniformItemSizes(true);
    viewport()->setBackgroundRole(QPalette::Window);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

/// The wheel goes from measure to measure; with Shift it moves the list alone.
void ElencoMisure::wheelEvent(QWheelEvent* evento) {
    if (evento->modifiers() & Qt::ShiftModifier) {
        QWheelEvent soloScorre(evento->position(), evento->globalPosition(), evento->pixelDelta(),
                               evento->angleDelta(), evento->buttons(), Qt::NoModifier,
                               evento->phase(), evento->inverted());
        return QListView::wheelEvent(&soloScorre);
    }
    constexpr int kScatto = 120;
    rotella_ += evento->angleDelta().y();
    for (; rotella_ >= kScatto; rotella_ -= kScatto)
        Q_EMIT Passo(-1);
    for (; rotella_ <= -kScatto; rotella_ += kScatto)
        Q_EMIT Passo(1);
    evento->accept();
}

void ElencoMisure::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Delete && evento->modifiers() == Qt::NoModifier)
        Q_EMIT Cancella();
    else
        QListView::keyPressEvent(evento);
}

/// The right button asks for the menu of a row, and leaves the measure that is shown.
void ElencoMisure::mousePressEvent(QMouseEvent* evento) {
    if (evento->button() != Qt::RightButton)
        QListView::mousePressEvent(evento);
}

void ElencoMisure::contextMenuEvent(QContextMenuEvent* evento) {
    const bool tasto = evento->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex riga = tasto ? currentIndex() : indexAt(evento->pos());
    if (!riga.isValid())
        return;
    const QPoint dove =
        tasto ? viewport()->mapToGlobal(visualRect(riga).center()) : evento->globalPos();
    Q_EMIT MenuChiesto(riga, dove);
}

} // namespace orvane
