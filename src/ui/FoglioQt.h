// One page of a report as a sheet of paper.
#pragma once

#include <QImage>
#include <QWidget>

#include "report/PagineReport.h"

namespace orvane {

class FoglioQt : public QWidget {
    Q_OBJECT
public:
    static constexpr int kBordo = 18; ///< pixels around the sheet

    /// `pagine` outlives it.
    FoglioQt(const PagineReport& pagine, QWidget* padre);

    void Mostra(size_t pagina);
    /// Pixels a cm of the sheet.
    void Scala(double pixelPerCm);

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    void DisegnaRiga(QPainter& p, const RigaFoglio& riga) const;
    void DisegnaImmagine(QPainter& p, const ImmagineFoglio& immagine);

    const PagineReport& pagine_;
    QImage logo_;
    QImage misura_;
    QImage ridotta_; ///< the picture of the measure in the size that it was last drawn in
    size_t pagina_ = 0;
    double scala_ = 20;
};

} // namespace orvane
