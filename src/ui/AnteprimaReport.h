// The pages of a report before it is saved.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>

#include "report/PagineReport.h"

namespace orvane {

/// One page as a sheet of paper.
class FoglioQt : public QWidget {
    Q_OBJECT
public:
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

class AnteprimaReport : public QDialog {
    Q_OBJECT
public:
    AnteprimaReport(PagineReport pagine, const QString& misura, QWidget* padre);

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    QLayout* CreaBarra();
    void Vai(int pagina, bool inFondo = false);
    /// A view further, and at its end a page.
    void Sfoglia(int verso);
    void Ingrandisci(int verso);
    void AggiornaScala();

    PagineReport pagine_;
    FoglioQt* foglio_;
    QScrollArea* area_;
    QComboBox* CBXZoom_ = nullptr;
    QLabel* LBPagina_ = nullptr;
    QPushButton* CMBPrima_ = nullptr;
    QPushButton* CMBDopo_ = nullptr;
    int pagina_ = 0;
};

} // namespace orvane
