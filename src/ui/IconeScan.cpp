#include "ui/IconeScan.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

#include "ui/Tema.h"

namespace orvane {
namespace {

// All on a square of 16 x 16.

QPainterPath FrecciaCurva() {
    QPainterPath via;
    via.moveTo(6.5, 3.5);
    via.lineTo(3, 7);
    via.lineTo(6.5, 10.5);
    via.moveTo(3, 7);
    via.lineTo(9.5, 7);
    via.cubicTo(14, 7, 14, 13, 9.5, 13);
    via.lineTo(7, 13);
    return via;
}

QPainterPath FrecciaSu() {
    QPainterPath via;
    via.moveTo(8, 13);
    via.lineTo(8, 3.5);
    via.moveTo(4, 7.5);
    via.lineTo(8, 3.5);
    via.lineTo(12, 7.5);
    return via;
}

QPainterPath DueFogli() {
    QPainterPath via;
    via.addRoundedRect(QRectF(6, 6, 7.5, 7.5), 1.5, 1.5);
    via.moveTo(10, 3);
    via.lineTo(4, 3);
    via.quadTo(2.5, 3, 2.5, 4.5);
    via.lineTo(2.5, 10);
    return via;
}

QPainterPath Cestino() {
    QPainterPath via;
    via.moveTo(3, 4.5);
    via.lineTo(13, 4.5);
    via.moveTo(6, 4.5);
    via.lineTo(6.5, 2.5);
    via.lineTo(9.5, 2.5);
    via.lineTo(10, 4.5);
    via.moveTo(4.3, 4.5);
    via.lineTo(5, 13.5);
    via.lineTo(11, 13.5);
    via.lineTo(11.7, 4.5);
    return via;
}

QPainterPath Via(SegnoScan segno) {
    switch (segno) {
    case SegnoScan::Annulla:
        return FrecciaCurva();
    case SegnoScan::Ripeti:
        return QTransform(-1, 0, 0, 1, 16, 0).map(FrecciaCurva());
    case SegnoScan::Su:
        return FrecciaSu();
    case SegnoScan::Giu:
        return QTransform(1, 0, 0, -1, 0, 16).map(FrecciaSu());
    case SegnoScan::Duplica:
        return DueFogli();
    case SegnoScan::Cancella:
        return Cestino();
    case SegnoScan::Avviso:
    case SegnoScan::Nessuno:
        break;
    }
    return {};
}

/// Draws at each paint, so that it is sharp at any scale and follows a change of theme.
class MotoreScan : public QIconEngine {
public:
    explicit MotoreScan(SegnoScan segno) : segno_(segno) {}

    void paint(QPainter* p, const QRect& dove, QIcon::Mode modo, QIcon::State) override {
        const QPalette tavolozza = QApplication::palette();
        const bool acceso = modo != QIcon::Disabled;
        if (segno_ == SegnoScan::Avviso)
            return DisegnaAvviso(
                *p, dove,
                Tinta(tavolozza, modo == QIcon::Selected ? Ruolo::SuAccento : Ruolo::Errore));
        p->save();
        p->setRenderHint(QPainter::Antialiasing);
        p->translate(dove.topLeft());
        p->scale(dove.width() / 16.0, dove.height() / 16.0);
        p->setBrush(Qt::NoBrush);
        p->setPen(QPen(Tinta(tavolozza, acceso ? Ruolo::Testo : Ruolo::Spento), 1.4, Qt::SolidLine,
                       Qt::RoundCap, Qt::RoundJoin));
        p->drawPath(Via(segno_));
        p->restore();
    }
    QPixmap pixmap(const QSize& misura, QIcon::Mode modo, QIcon::State stato) override {
        QPixmap quadro(misura);
        quadro.fill(Qt::transparent);
        QPainter p(&quadro);
        paint(&p, QRect(QPoint(0, 0), misura), modo, stato);
        return quadro;
    }
    QIconEngine* clone() const override { return new MotoreScan(segno_); }

private:
    SegnoScan segno_;
};

} // namespace

QIcon IconaScan(SegnoScan segno) {
    return QIcon(new MotoreScan(segno));
}

void DisegnaAvviso(QPainter& p, const QRectF& dove, const QColor& colore) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.translate(dove.topLeft());
    p.scale(dove.width() / 16.0, dove.height() / 16.0);
    p.setPen(QPen(colore, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPolygon(QPolygonF({{8, 2.2}, {14.2, 13.4}, {1.8, 13.4}}));
    p.drawLine(QPointF(8, 6.4), QPointF(8, 9.4));
    p.drawPoint(QPointF(8, 11.4));
    p.restore();
}

} // namespace orvane
