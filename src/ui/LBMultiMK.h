// `LBMultiMK`: the reading at the marker, a small panel over the picture.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QWidget>

#include "ui/LettureQuadro.h"

namespace orvane {

class LBMultiMK : public QWidget {
    Q_OBJECT
public:
    explicit LBMultiMK(QWidget* padre);

    /// Takes the size of its rows; without rows it is hidden.
    void Mostra(std::vector<RigaLettura> righe);
    /// What it keeps away from: `campo` holds it, at `evita` run vertical lines, `occupato` is
    /// taken, at `nomi` stand words that it leaves free where it can, and `sotto` tells how much of
    /// the traces a place would hide.
    struct Intorno {
        QRectF campo;
        std::vector<double> evita;
        QRectF occupato;
        std::vector<QRectF> nomi;
        std::function<double(const QRectF&)> sotto;
    };
    /// `PosizionaLBMultiMK`: as far as there is room; where the user dragged it, there it stays.
    void Posiziona(Intorno intorno);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void changeEvent(QEvent* evento) override;

private:
    struct Colonne {
        double nome = 0, valore = 0, delta = 0, titolo = 0;
    };
    Colonne Misura() const;
    QFont Grassetto() const;
    void Riposiziona();
    QPointF PostoDaSolo() const;
    std::optional<QRectF> PostoLibero(double x) const;

    std::vector<RigaLettura> righe_;
    Intorno intorno_;
    std::optional<QPointF> posto_; ///< where it was dragged, as shares of the room around it
    std::optional<QPointF> presa_;
};

} // namespace orvane
