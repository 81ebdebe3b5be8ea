#include "ui/AlberoMisura.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include "ui/RigaScelta.h"
#include "ui/Tema.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

constexpr int kIndice = Qt::UserRole;
/// Rows that are seen without scrolling.
constexpr int kMassimoRighe = 7;

/// The chosen row as in the list of measures.
class DelegatoNodo : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* o, const QModelIndex& i) const override {
        QStyledItemDelegate::initStyleOption(o, i);
        o->font.setWeight(o->state & QStyle::State_Selected ? QFont::DemiBold : QFont::Normal);
        o->palette.setColor(QPalette::Highlight, Tinta(o->palette, Ruolo::Scelta));
        o->palette.setColor(QPalette::HighlightedText, Tinta(o->palette, Ruolo::Testo));
    }
    void paint(QPainter* p, const QStyleOptionViewItem& o, const QModelIndex& i) const override {
        QStyledItemDelegate::paint(p, o, i);
        SegnaFuoco(*p, o, o.rect);
    }
    QSize sizeHint(const QStyleOptionViewItem& o, const QModelIndex&) const override {
        return {o.rect.width(), o.fontMetrics.height() + 6};
    }
};

int RigheAperte(const QTreeWidgetItem& voce) {
    int righe = 0;
    for (int i = 0; i < voce.childCount(); ++i)
        righe += 1 + (voce.child(i)->isExpanded() ? RigheAperte(*voce.child(i)) : 0);
    return righe;
}

} // namespace

AlberoMisura::AlberoMisura(QWidget* padre) : QTreeWidget(padre) {
    setFrameShape(QFrame::NoFrame);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setIndentation(14);
    setUniformRowHeights(true);
    setItemDelegate(new DelegatoNodo(this));
    viewport()->setBackgroundRole(QPalette::Window);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(this, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* voce) {
        if (voce && voce->flags() & Qt::ItemIsSelectable)
            Q_EMIT NodoScelto(voce->data(0, kIndice).toULongLong());
    });
    connect(this, &QTreeWidget::itemExpanded, this, [this] { updateGeometry(); });
    connect(this, &QTreeWidget::itemCollapsed, this, [this] { updateGeometry(); });
}

void AlberoMisura::Mostra(const std::vector<NodoSubMisura>& nodi, size_t scelto) {
    const QSignalBlocker zitto(this);
    clear();
    std::vector<QTreeWidgetItem*> strada = {invisibleRootItem()};
    for (size_t i = 0; i < nodi.size(); ++i) {
        const NodoSubMisura& nodo = nodi[i];
        strada.resize(std::min(strada.size(), static_cast<size_t>(nodo.profondita) + 1));
        auto* voce = new QTreeWidgetItem(strada.back(), {Q(nodo.testo).trimmed()});
        voce->setData(0, kIndice, qulonglong(i));
        voce->setFlags(nodo.gruppo ? Qt::ItemIsEnabled : Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        voce->setToolTip(0, Q(nodo.file));
        strada.push_back(voce);
        if (i == scelto)
            setCurrentItem(voce);
    }
    expandAll();
    updateGeometry();
}

QSize AlberoMisura::sizeHint() const {
    const int riga = topLevelItemCount() > 0 ? rowHeight(indexFromItem(topLevelItem(0)))
                                             : fontMetrics().height();
    const int righe = std::clamp(RigheAperte(*invisibleRootItem()), 1, kMassimoRighe);
    return {160, righe * std::max(riga, fontMetrics().height() + 6) + 2};
}

} // namespace orvane
