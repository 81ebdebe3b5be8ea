// Paints the cells of a scan grid and opens `TBCella` or `CBXCella` over them.
#pragma once

#include <QStyledItemDelegate>

namespace orvane {

class DelegatoScan : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* p, const QStyleOptionViewItem& opzione,
               const QModelIndex& indice) const override;
    QWidget* createEditor(QWidget* padre, const QStyleOptionViewItem& opzione,
                          const QModelIndex& indice) const override;
    void setEditorData(QWidget* editore, const QModelIndex& indice) const override;
    void setModelData(QWidget* editore, QAbstractItemModel* modello,
                      const QModelIndex& indice) const override;

Q_SIGNALS:
    /// The cell was committed by Return or by a choice: the next one is wanted.
    void Confermata();
    /// The cell was committed by a key that leads away from it.
    void Spostata(int righe, int colonne);

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    QWidget* CreaElenco(QWidget* padre, const QModelIndex& indice) const;
};

} // namespace orvane
