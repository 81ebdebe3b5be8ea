// `LBMultiMK`: the reading at the marker, a small panel over the picture.
#pragma once

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
    /// `PosizionaLBMultiMK`: inside `campo`, off the vertical lines at `evita` and off `occupato`,
    /// as far as there is room; where the user dragged it, there it stays.
    void Posiziona(const QRectF& campo, const std::vector<double>& evita, const QRectF& occupato);

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
    QPointF PostoDaSolo(const QSizeF& mia) const;

    std::vector<RigaLettura> righe_;
    QRectF campo_;
    std::vector<double> evita_;
    QRectF occupato_;
    std::optional<QPointF> posto_; ///< where it was dragged, as shares of the room around it
    std::optional<QPointF> presa_;
};

} // namespace orvane
