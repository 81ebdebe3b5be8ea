#include "ui/DelegatoScan.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QTimer>

#include "ui/ModelloScan.h"
#include "ui/Tema.h"

namespace orvane {
namespace {

constexpr int kMargine = 9;

ColonnaScan Colonna(const QModelIndex& indice) {
    return static_cast<ColonnaScan>(indice.column());
}

QColor ColoreCella(const QStyleOptionViewItem& o, const QModelIndex& indice) {
    if (indice.data(Qt::UserRole).toBool())
        return Tinta(o.palette, Ruolo::Errore);
    return Tinta(o.palette, Colonna(indice) == ColonnaScan::Numero ? Ruolo::Tenue : Ruolo::Testo);
}

} // namespace

void DelegatoScan::paint(QPainter* p, const QStyleOptionViewItem& opzione,
                         const QModelIndex& indice) const {
    QStyleOptionViewItem o = opzione;
    initStyleOption(&o, indice);
    const auto* vista = qobject_cast<const QAbstractItemView*>(o.widget);
    const bool corrente = vista && vista->currentIndex().row() == indice.row();
    const bool cella = corrente && vista->currentIndex() == indice && vista->hasFocus();
    p->fillRect(o.rect, Tinta(o.palette, corrente ? Ruolo::Scelta : Ruolo::Finestra));
    p->fillRect(QRect(o.rect.left(), o.rect.bottom(), o.rect.width(), 1),
                Tinta(o.palette, Ruolo::Bordo));
    if (cella) {
        p->setPen(QPen(Tinta(o.palette, Ruolo::Accento), 1));
        p->setBrush(Qt::NoBrush);
        p->drawRect(o.rect.adjusted(0, 0, -1, -2));
    }
    p->setPen(ColoreCella(o, indice));
    QFont carattere = o.font;
    carattere.setPointSizeF(carattere.pointSizeF() * 1.08);
    p->setFont(carattere);
    const QRect testo = o.rect.adjusted(kMargine, 0, -4, 0);
    p->drawText(testo, Qt::AlignVCenter | Qt::TextSingleLine,
                QFontMetrics(carattere).elidedText(o.text, Qt::ElideRight, testo.width()));
}

QWidget* DelegatoScan::createEditor(QWidget* padre, const QStyleOptionViewItem&,
                                    const QModelIndex& indice) const {
    if (!ElencoCella(Colonna(indice)).isEmpty())
        return CreaElenco(padre, indice);
    auto* testo = new QLineEdit(padre);
    testo->setObjectName(QStringLiteral("TBCella"));
    testo->setAccessibleName(
        indice.model()->headerData(indice.column(), Qt::Horizontal, Qt::ToolTipRole).toString());
    return testo;
}

QWidget* DelegatoScan::CreaElenco(QWidget* padre, const QModelIndex& indice) const {
    auto* elenco = new QComboBox(padre);
    elenco->setObjectName(QStringLiteral("CBXCella"));
    elenco->setMaxVisibleItems(20);
    const QStringList voci = ElencoCella(Colonna(indice));
    for (int i = 0; i < voci.size(); ++i) {
        // A separator keeps its place, so that an entry's place is its number.
        if (voci[i].isEmpty())
            elenco->insertSeparator(i);
        else
            elenco->addItem(voci[i]);
    }
    auto* io = const_cast<DelegatoScan*>(this);
    connect(elenco, &QComboBox::activated, io, [io, elenco] {
        Q_EMIT io->commitData(elenco);
        Q_EMIT io->closeEditor(elenco);
        Q_EMIT io->Confermata();
    });
    QTimer::singleShot(0, elenco, [elenco] { elenco->showPopup(); });
    return elenco;
}

void DelegatoScan::setEditorData(QWidget* editore, const QModelIndex& indice) const {
    const auto* modello = static_cast<const ModelloScan*>(indice.model());
    if (auto* elenco = qobject_cast<QComboBox*>(editore))
        return elenco->setCurrentIndex(SceltaCella(modello->Riga(indice.row()), Colonna(indice)));
    auto* testo = static_cast<QLineEdit*>(editore);
    testo->setText(indice.data(Qt::EditRole).toString());
    testo->selectAll();
}

void DelegatoScan::setModelData(QWidget* editore, QAbstractItemModel* modello,
                                const QModelIndex& indice) const {
    if (const auto* elenco = qobject_cast<QComboBox*>(editore))
        modello->setData(indice, elenco->currentIndex());
    else if (const auto* testo = static_cast<QLineEdit*>(editore); testo->isModified())
        modello->setData(indice, testo->text());
}

bool DelegatoScan::eventFilter(QObject* oggetto, QEvent* evento) {
    auto* testo = qobject_cast<QLineEdit*>(oggetto);
    if (!testo || evento->type() != QEvent::KeyPress)
        return QStyledItemDelegate::eventFilter(oggetto, evento);
    const auto* tasto = static_cast<QKeyEvent*>(evento);
    const bool invio = tasto->key() == Qt::Key_Return || tasto->key() == Qt::Key_Enter;
    // The arrows leave the cell only when it is empty or with Shift.
    const bool freccia = (tasto->key() == Qt::Key_Up || tasto->key() == Qt::Key_Down) &&
                         (testo->text().isEmpty() || tasto->modifiers() & Qt::ShiftModifier);
    if (!invio && !freccia)
        return QStyledItemDelegate::eventFilter(oggetto, evento);
    Q_EMIT commitData(testo);
    Q_EMIT closeEditor(testo);
    if (invio)
        Q_EMIT Confermata();
    return true;
}

} // namespace orvane
