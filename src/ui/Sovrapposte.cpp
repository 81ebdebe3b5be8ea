#include "ui/Sovrapposte.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QSignalBlocker>

namespace orvane {
namespace {

enum Dato { Nome = Qt::UserRole, Quale };

Sovrapposte::Genere GenereDi(const QListWidgetItem& voce) {
    return static_cast<Sovrapposte::Genere>(voce.data(Quale).toInt());
}

/// A short stroke in the colour of the trace.
QIcon Tratto(const QColor& colore, double rapporto) {
    QPixmap quadro(QSize(16, 16) * rapporto);
    quadro.setDevicePixelRatio(rapporto);
    quadro.fill(Qt::transparent);
    QPainter p(&quadro);
    p.fillRect(QRectF(1, 6.5, 14, 3), colore);
    return quadro;
}

} // namespace

Sovrapposte::Sovrapposte(QWidget* padre) : QListWidget(padre) {
    setFrameShape(QFrame::NoFrame);
    viewport()->setBackgroundRole(QPalette::Window);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setSpacing(2);
    connect(this, &QListWidget::itemChanged, this, [this](const QListWidgetItem* voce) {
        Q_EMIT Accesa(GenereDi(*voce), voce->data(Nome).toString(),
                      voce->checkState() == Qt::Checked);
    });
}

void Sovrapposte::Mostra(const std::vector<Voce>& voci) {
    const QSignalBlocker zitta(this);
    const int qui = currentRow();
    clear();
    for (const Voce& v : voci) {
        auto* voce = new QListWidgetItem(Tratto(v.colore, devicePixelRatioF()), v.testo, this);
        voce->setData(Nome, v.nome);
        voce->setData(Quale, static_cast<int>(v.genere));
        voce->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        voce->setCheckState(v.accesa ? Qt::Checked : Qt::Unchecked);
        voce->setToolTip(tr("%1\nSpace shows or hides it, Delete takes it away").arg(v.testo));
    }
    setCurrentRow(std::min(qui, count() - 1));
    updateGeometry();
}

QSize Sovrapposte::sizeHint() const {
    constexpr int kMassimo = 6;
    int alto = 2;
    for (int i = 0; i < std::min(count(), kMassimo); ++i)
        alto += sizeHintForRow(i) + 2 * spacing();
    return {160, alto};
}

void Sovrapposte::Togli(const QListWidgetItem* voce) {
    if (voce)
        Q_EMIT Tolta(GenereDi(*voce), voce->data(Nome).toString());
}

void Sovrapposte::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Delete)
        Togli(currentItem());
    else
        QListWidget::keyPressEvent(evento);
}

void Sovrapposte::contextMenuEvent(QContextMenuEvent* evento) {
    const bool tasto = evento->reason() == QContextMenuEvent::Keyboard;
    const QListWidgetItem* voce = tasto ? currentItem() : itemAt(evento->pos());
    if (!voce)
        return;
    const QPoint dove =
        tasto ? viewport()->mapToGlobal(visualItemRect(voce).center()) : evento->globalPos();
    QMenu menu(this);
    if (menu.exec({menu.addAction(tr("Take Away"))}, dove) != nullptr)
        Togli(voce);
}

} // namespace orvane
