// `GridScanTab`: the grid of the scan table, edited in place.
#pragma once

#include <QTableView>

#include "ui/ModelloScan.h"

namespace orvane {

class GridScanTab : public QTableView {
    Q_OBJECT
public:
    GridScanTab(ScanTable& tabella, bool modificabile, QWidget* padre);

    ModelloScan& Modello() { return *modello_; }
    /// Size of the text, in per cent of the application's.
    void ScalaTesto(int percento);
    /// Opens the list of detectors over a cell.
    void ApriDetector(const QModelIndex& cella);

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    void ApriCellaScanTab(const QModelIndex& cella);
    void Avanza();
    void DisponiColonne();

    ModelloScan* modello_;
};

} // namespace orvane
