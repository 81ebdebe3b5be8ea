// `TabFreqTable`: the grid of the table editor, edited in place by keys alone.
#pragma once

#include <vector>

#include <QLineEdit>
#include <QStyledItemDelegate>
#include <QTableView>

#include "ui/ModelloTabella.h"

namespace orvane {

/// Paints the cells and edits them in `TBCella`.
class DelegatoTabella : public QStyledItemDelegate {
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
    /// Commits and closes; the grid then goes `passo` cells on.
    void Conferma(QLineEdit* cella, int passo);

Q_SIGNALS:
    void Confermata(int passo);

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;
};

class TabFreqTable : public QTableView {
    Q_OBJECT
public:
    TabFreqTable(ModificaTabella& modifica, QWidget* padre);

    ModelloTabella& Modello() { return *modello_; }
    /// Commits the cell that is open.
    void ChiudiCella();
    /// This cell becomes the current one, and alone selected.
    void VaiA(int riga, int colonna);
    /// Rows with a selected cell that hold a point, rising; without a selection the current one.
    std::vector<size_t> RigheScelte() const;

Q_SIGNALS:
    void RigaCambiata();
    void Copia();
    void Incolla();
    void SvuotaCelle();
    void RimuoviScelte();

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void currentChanged(const QModelIndex& qui, const QModelIndex& prima) override;

private:
    void Avanza(int passo);

    ModelloTabella* modello_;
    DelegatoTabella* delegato_;
};

} // namespace orvane
