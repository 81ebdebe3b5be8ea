// `CBXSweepsArchive`: the list of measures, with its own way of wheel, Delete key and menu.
#pragma once

#include <QListView>

namespace orvane {

class ElencoMisure : public QListView {
    Q_OBJECT
public:
    explicit ElencoMisure(QWidget* padre);

Q_SIGNALS:
    /// `InterceptMousewheelSelMeas`: one row on, or back.
    void Passo(int verso);
    /// Key code 46.
    void Cancella();
    /// At a row that need not be the current one.
    void MenuChiesto(const QModelIndex& riga, const QPoint& dove);

protected:
    void wheelEvent(QWheelEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;

private:
    int rotella_ = 0; ///< eighths of a degree that have not made a step yet
};

} // namespace orvane
