// `GridScanTab`: the grid of the scan table, edited in place.
#pragma once

#include <utility>

#include <QTableView>

#include "ui/ModelloScan.h"

namespace orvane {

class GridScanTab : public QTableView {
    Q_OBJECT
public:
    GridScanTab(ScanTable& tabella, const SetupRecord& setup, bool modificabile, QWidget* padre);

    ModelloScan& Modello() { return *modello_; }
    /// Size of the text, in per cent of the application's.
    void ScalaTesto(int percento);
    /// First and last row of the selection, or the current row; {-1, -1} for none.
    std::pair<int, int> RigheScelte() const;
    /// Makes these rows the selection, the first one current.
    void ScegliRighe(int prima, int ultima);
    void VaiAllaCella(int riga, ColonnaScan colonna);
    /// To the next cell that can be edited, at the end of the row to the first of the next. A
    /// frequency opens there; lists and windows wait for a key.
    void Avanza();

Q_SIGNALS:
    /// The settings window of this cell is wanted; `testo` was typed over the cell.
    void ModuloChiesto(const QModelIndex& cella, const QString& testo);
    void RigaCorrenteCambiata();

protected:
    QModelIndex moveCursor(CursorAction azione, Qt::KeyboardModifiers tasti) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void currentChanged(const QModelIndex& ora, const QModelIndex& prima) override;

private:
    void ApriCellaScanTab(const QModelIndex& cella);
    void Scegli(const QModelIndex& cella);
    void DisponiColonne();

    ModelloScan* modello_;
    bool apreIlClick_ = true;
};

} // namespace orvane
