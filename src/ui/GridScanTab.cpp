#include "ui/GridScanTab.h"

#include <array>

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

#include "setup/TastiScan.h"
#include "ui/DelegatoScan.h"

namespace orvane {
namespace {

/// Shares of the width, by `ColonnaScan`.
constexpr std::array<int, 12> kQuote = {4, 8, 8, 8, 9, 10, 10, 8, 9, 8, 12, 9};

} // namespace

GridScanTab::GridScanTab(ScanTable& tabella, const SetupRecord& setup, bool modificabile,
                         QWidget* padre)
    : QTableView(padre), modello_(new ModelloScan(tabella, setup, modificabile, this)) {
    setModel(modello_);
    setItemDelegate(new DelegatoScan(this));
    setAccessibleName(tr("Scan table"));
    setFrameShape(QFrame::NoFrame);
    setShowGrid(false);
    viewport()->setBackgroundRole(QPalette::Window);
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    setTabKeyNavigation(false);
    setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::EditKeyPressed);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setMinimumSectionSize(30);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    ScalaTesto(100);
    connect(this, &QTableView::clicked, this, [this](const QModelIndex& cella) {
        if (apreIlClick_)
            ApriCellaScanTab(cella);
    });
    connect(static_cast<DelegatoScan*>(itemDelegate()), &DelegatoScan::Confermata, this,
            &GridScanTab::Avanza, Qt::QueuedConnection);
    connect(static_cast<DelegatoScan*>(itemDelegate()), &DelegatoScan::Spostata, this,
            [this](int righe, int colonne) {
                const QModelIndex cella = modello_->index(currentIndex().row() + righe,
                                                          currentIndex().column() + colonne);
                if (cella.isValid() && cella.column() > 0)
                    Scegli(cella);
            });
}

void GridScanTab::ScalaTesto(int percento) {
    QFont carattere = QApplication::font();
    carattere.setPointSizeF(carattere.pointSizeF() * percento / 100);
    setFont(carattere);
    verticalHeader()->setDefaultSectionSize(QFontMetrics(carattere).height() + 14);
    carattere.setPointSizeF(carattere.pointSizeF() * 0.85);
    carattere.setWeight(QFont::DemiBold);
    horizontalHeader()->setFont(carattere);
    DisponiColonne();
}

void GridScanTab::ApriCellaScanTab(const QModelIndex& cella) {
    if (state() == EditingState)
        return;
    if (modello_->ConModulo(cella))
        Q_EMIT ModuloChiesto(cella, {});
    else if (cella.isValid() && cella.flags() & Qt::ItemIsEditable)
        edit(cella);
    else
        modello_->Aggiorna();
}

std::pair<int, int> GridScanTab::RigheScelte() const {
    int prima = currentIndex().isValid() ? currentIndex().row() : -1;
    int ultima = prima;
    for (const QModelIndex& cella : selectionModel()->selectedIndexes()) {
        prima = std::min(prima, cella.row());
        ultima = std::max(ultima, cella.row());
    }
    return {prima, ultima};
}

// The view's own way looks at the keyboard: with the Ctrl of Ctrl+V still down it would add to what
// was chosen before.
void GridScanTab::Scegli(const QModelIndex& cella) {
    selectionModel()->setCurrentIndex(cella, QItemSelectionModel::ClearAndSelect);
}

void GridScanTab::ScegliRighe(int prima, int ultima) {
    const int colonna = std::max(currentIndex().column(), 1);
    Scegli(modello_->index(prima, colonna));
    if (ultima > prima)
        selectionModel()->select(
            QItemSelection(modello_->index(prima, colonna), modello_->index(ultima, colonna)),
            QItemSelectionModel::ClearAndSelect);
}

void GridScanTab::VaiAllaCella(int riga, ColonnaScan colonna) {
    const QModelIndex cella = modello_->index(riga, static_cast<int>(colonna));
    if (!cella.isValid())
        return;
    setFocus();
    Scegli(cella);
    scrollTo(cella);
}

void GridScanTab::Avanza() {
    PostoScan posto{static_cast<size_t>(std::max(currentIndex().row(), 0)),
                    static_cast<ColonnaScan>(currentIndex().column())};
    for (int passo = 0; passo < modello_->columnCount() * 2; ++passo) {
        posto = CellaSeguente(posto.riga, posto.colonna, static_cast<size_t>(modello_->rowCount()));
        const QModelIndex cella =
            modello_->index(static_cast<int>(posto.riga), static_cast<int>(posto.colonna));
        if (posto.oltre || !cella.isValid())
            return;
        if (modello_->ConModulo(cella) || cella.flags() & Qt::ItemIsEditable) {
            Scegli(cella);
            if (ModelloScan::InTesto(cella))
                edit(cella);
            return;
        }
    }
}

/// The numbers of the rows are no cells.
QModelIndex GridScanTab::moveCursor(CursorAction azione, Qt::KeyboardModifiers tasti) {
    const QModelIndex cella = QTableView::moveCursor(azione, tasti);
    return cella.column() == 0 ? cella.siblingAtColumn(1) : cella;
}

void GridScanTab::keyPressEvent(QKeyEvent* evento) {
    const QModelIndex cella = currentIndex();
    if (!modello_->Modificabile() || !cella.isValid())
        return QTableView::keyPressEvent(evento);
    switch (evento->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_F2:
        return ApriCellaScanTab(cella);
    default:
        break;
    }
    const bool comando = evento->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    if (modello_->ConModulo(cella) && !comando && !evento->text().isEmpty() &&
        evento->text().front().isPrint())
        Q_EMIT ModuloChiesto(cella, evento->text());
    else
        QTableView::keyPressEvent(evento);
}

/// The other button brings the menu and opens nothing.
void GridScanTab::mousePressEvent(QMouseEvent* evento) {
    QTableView::mousePressEvent(evento);
    apreIlClick_ = evento->button() == Qt::LeftButton && !(evento->modifiers() & Qt::ShiftModifier);
}

void GridScanTab::currentChanged(const QModelIndex& ora, const QModelIndex& prima) {
    QTableView::currentChanged(ora, prima);
    Q_EMIT RigaCorrenteCambiata();
}

void GridScanTab::resizeEvent(QResizeEvent* evento) {
    QTableView::resizeEvent(evento);
    DisponiColonne();
}

void GridScanTab::DisponiColonne() {
    const int largo = std::max(viewport()->width(), fontMetrics().averageCharWidth() * 96);
    int somma = 0;
    for (const int quota : kQuote)
        somma += quota;
    int usato = 0;
    for (size_t i = 0; i + 1 < kQuote.size(); ++i) {
        const int colonna = largo * kQuote[i] / somma;
        setColumnWidth(static_cast<int>(i), colonna);
        usato += colonna;
    }
    setColumnWidth(static_cast<int>(kQuote.size()) - 1, largo - usato);
}

} // namespace orvane
