#include "ui/TabFreqTable.h"

#include <set>

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

#include "ui/Tema.h"

namespace orvane {
namespace {

constexpr int kMargine = 10;

} // namespace

void DelegatoTabella::paint(QPainter* p, const QStyleOptionViewItem& opzione,
                            const QModelIndex& indice) const {
    QStyleOptionViewItem o = opzione;
    initStyleOption(&o, indice);
    const auto* vista = qobject_cast<const QAbstractItemView*>(o.widget);
    const QModelIndex corrente = vista ? vista->currentIndex() : QModelIndex();
    const bool scelta = o.state & QStyle::State_Selected || corrente.row() == indice.row();
    p->fillRect(o.rect, Tinta(o.palette, scelta ? Ruolo::Scelta : Ruolo::Finestra));
    p->fillRect(QRect(o.rect.left(), o.rect.bottom(), o.rect.width(), 1),
                Tinta(o.palette, Ruolo::Bordo));
    if (corrente == indice && vista->hasFocus()) {
        p->setPen(QPen(Tinta(o.palette, Ruolo::Accento), 1));
        p->setBrush(Qt::NoBrush);
        p->drawRect(o.rect.adjusted(0, 0, -1, -2));
    }
    const bool incompleta = indice.data(Qt::UserRole).toBool();
    p->setPen(Tinta(o.palette, incompleta ? Ruolo::Errore : Ruolo::Testo));
    p->setFont(o.font);
    p->drawText(o.rect.adjusted(4, 0, -kMargine, 0),
                Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine, o.text);
}

QWidget* DelegatoTabella::createEditor(QWidget* padre, const QStyleOptionViewItem&,
                                       const QModelIndex& indice) const {
    auto* cella = new QLineEdit(padre);
    cella->setObjectName(QStringLiteral("TBCella"));
    cella->setAlignment(Qt::AlignRight);
    cella->setAccessibleName(
        indice.model()->headerData(indice.column(), Qt::Horizontal, Qt::ToolTipRole).toString());
    return cella;
}

void DelegatoTabella::setEditorData(QWidget* editore, const QModelIndex& indice) const {
    auto* cella = static_cast<QLineEdit*>(editore);
    cella->setText(indice.data(Qt::EditRole).toString());
    cella->selectAll();
}

void DelegatoTabella::setModelData(QWidget* editore, QAbstractItemModel* modello,
                                   const QModelIndex& indice) const {
    auto* cella = static_cast<QLineEdit*>(editore);
    if (!cella->isModified())
        return;
    // A commit may come twice, once more from the loss of the focus.
    cella->setModified(false);
    modello->setData(indice, cella->text());
}

void DelegatoTabella::Conferma(QLineEdit* cella, int passo) {
    Q_EMIT commitData(cella);
    Q_EMIT closeEditor(cella);
    Q_EMIT Confermata(passo);
}

bool DelegatoTabella::eventFilter(QObject* oggetto, QEvent* evento) {
    auto* cella = qobject_cast<QLineEdit*>(oggetto);
    if (!cella || evento->type() != QEvent::KeyPress)
        return QStyledItemDelegate::eventFilter(oggetto, evento);
    switch (static_cast<QKeyEvent*>(evento)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
        Conferma(cella, 1);
        return true;
    case Qt::Key_Backtab:
        Conferma(cella, -1);
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        Conferma(cella, 0);
        return true;
    default:
        return QStyledItemDelegate::eventFilter(oggetto, evento);
    }
}

TabFreqTable::TabFreqTable(ModificaTabella& modifica, QWidget* padre)
    : QTableView(padre), modello_(new ModelloTabella(modifica, this)),
      delegato_(new DelegatoTabella(this)) {
    setModel(modello_);
    setItemDelegate(delegato_);
    setObjectName(QStringLiteral("TabFreqTable"));
    setAccessibleName(tr("Points of the table"));
    setFrameShape(QFrame::NoFrame);
    setShowGrid(false);
    viewport()->setBackgroundRole(QPalette::Window);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setTabKeyNavigation(false);
    setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::EditKeyPressed |
                    QAbstractItemView::DoubleClicked);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QFont carattere = horizontalHeader()->font();
    carattere.setPointSizeF(carattere.pointSizeF() * 0.85);
    carattere.setWeight(QFont::DemiBold);
    horizontalHeader()->setFont(carattere);
    connect(delegato_, &DelegatoTabella::Confermata, this, &TabFreqTable::Avanza,
            Qt::QueuedConnection);
}

void TabFreqTable::ChiudiCella() {
    if (auto* cella = findChild<QLineEdit*>(QStringLiteral("TBCella")))
        delegato_->Conferma(cella, 0);
}

std::vector<size_t> TabFreqTable::RigheScelte() const {
    std::set<size_t> righe;
    for (const QModelIndex& cella : selectionModel()->selectedIndexes())
        righe.insert(static_cast<size_t>(cella.row()));
    if (righe.empty() && currentIndex().isValid())
        righe.insert(static_cast<size_t>(currentIndex().row()));
    std::vector<size_t> scelte(righe.begin(), righe.end());
    std::erase_if(scelte, [this](size_t r) { return r >= modello_->Contenuto().righe.size(); });
    return scelte;
}

/// From the place that the committed row has now; a refused cell stays the current one, and behind
/// a new row comes the next new one, not the row that happens to follow.
void TabFreqTable::Avanza(int passo) {
    const auto scritta = modello_->PrendiScritta();
    if (scritta && !scritta->accettata)
        passo = 0;
    int riga = scritta ? scritta->riga : currentIndex().row();
    int colonna = currentIndex().column() + passo;
    if (colonna == modello_->columnCount()) {
        colonna = 0;
        riga = riga == modello_->RigaNuova() ? modello_->rowCount() - 1 : riga + 1;
    } else if (colonna < 0) {
        colonna = modello_->columnCount() - 1;
        --riga;
    }
    setFocus();
    VaiA(riga, colonna);
}

void TabFreqTable::VaiA(int riga, int colonna) {
    // The view itself would add to the selection while Ctrl is held.
    if (const QModelIndex cella = modello_->index(riga, colonna); cella.isValid())
        selectionModel()->setCurrentIndex(cella, QItemSelectionModel::ClearAndSelect);
}

void TabFreqTable::keyPressEvent(QKeyEvent* evento) {
    if (evento->matches(QKeySequence::Copy))
        return Q_EMIT Copia();
    if (evento->matches(QKeySequence::Paste))
        return Q_EMIT Incolla();
    switch (evento->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        return edit(currentIndex());
    case Qt::Key_Delete:
        if (evento->modifiers() & Qt::ControlModifier)
            return Q_EMIT RimuoviScelte();
        return Q_EMIT SvuotaCelle();
    default:
        QTableView::keyPressEvent(evento);
    }
}

void TabFreqTable::resizeEvent(QResizeEvent* evento) {
    QTableView::resizeEvent(evento);
    const int colonne = modello_->columnCount();
    for (int i = 0; i < colonne; ++i)
        setColumnWidth(i, viewport()->width() / colonne);
}

void TabFreqTable::currentChanged(const QModelIndex& qui, const QModelIndex& prima) {
    QTableView::currentChanged(qui, prima);
    viewport()->update(); // the whole row is tinted
    Q_EMIT RigaCambiata();
}

} // namespace orvane
