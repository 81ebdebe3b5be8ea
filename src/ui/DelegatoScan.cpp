#include "ui/DelegatoScan.h"

#include <algorithm>
#include <functional>

#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QTimer>

#include "setup/TastiScan.h"
#include "ui/IconeScan.h"
#include "ui/ModelloScan.h"
#include "ui/Tema.h"

namespace orvane {
namespace {

constexpr int kMargine = 9;

ColonnaScan Colonna(const QModelIndex& indice) {
    return static_cast<ColonnaScan>(indice.column());
}

QColor ColoreCella(const QStyleOptionViewItem& o, const QModelIndex& indice) {
    if (indice.data(kRuoloErrata).toBool())
        return Tinta(o.palette, Ruolo::Errore);
    return Tinta(o.palette, Colonna(indice) == ColonnaScan::Numero ? Ruolo::Tenue : Ruolo::Testo);
}

/// The current row, and those that are chosen with it.
bool RigaScelta(const QAbstractItemView& vista, const QModelIndex& indice) {
    return vista.currentIndex().row() == indice.row() ||
           vista.selectionModel()->rowIntersectsSelection(indice.row(), indice.parent());
}

/// The text, and right behind it the sign of a cell that a check refused.
void ScriviCella(QPainter& p, const QStyleOptionViewItem& o, const QFontMetrics& misure,
                 const QColor& colore, bool errata) {
    const int lato = errata ? misure.ascent() : 0;
    const QRect dove = o.rect.adjusted(kMargine, 0, -4 - (errata ? lato + 5 : 0), 0);
    const QString testo = misure.elidedText(o.text, Qt::ElideRight, dove.width());
    p.drawText(dove, Qt::AlignVCenter | Qt::TextSingleLine, testo);
    if (errata)
        DisegnaAvviso(p,
                      QRectF(dove.left() + misure.horizontalAdvance(testo.trimmed()) + 5,
                             o.rect.center().y() - lato / 2.0, lato, lato),
                      colore);
}

/// Tells when its list goes away, whether an entry was chosen or not.
class ListaCella : public QComboBox {
public:
    using QComboBox::QComboBox;
    std::function<void()> chiuso;
    void hidePopup() override {
        QComboBox::hidePopup();
        QTimer::singleShot(0, this, [this] { chiuso(); });
    }
};

struct VoceTasto {
    int tasto;
    TastoScan quale;
};
constexpr VoceTasto kTasti[] = {
    {Qt::Key_Return, TastoScan::Invio},       {Qt::Key_Enter, TastoScan::Invio},
    {Qt::Key_Escape, TastoScan::Esc},         {Qt::Key_Up, TastoScan::Su},
    {Qt::Key_Down, TastoScan::Giu},           {Qt::Key_Left, TastoScan::Sinistra},
    {Qt::Key_Right, TastoScan::Destra},       {Qt::Key_PageUp, TastoScan::PaginaSu},
    {Qt::Key_PageDown, TastoScan::PaginaGiu}, {Qt::Key_Delete, TastoScan::Canc},
};

TastoScan Tasto(const QKeyEvent& evento) {
    for (const VoceTasto& voce : kTasti)
        if (voce.tasto == evento.key())
            return voce.quale;
    return TastoScan::Altro;
}

DecisioneTasto Decidi(QObject* oggetto, const QKeyEvent& evento) {
    const auto* testo = qobject_cast<QLineEdit*>(oggetto);
    return KeyDownCellaScanTab(testo ? EditoreScan::TBCella : EditoreScan::CBXCella, Tasto(evento),
                               evento.modifiers() & Qt::ShiftModifier,
                               testo && testo->text().isEmpty());
}

/// Undo and redo over a text that was not touched are the table's.
bool DellaTabella(QObject* oggetto, QEvent* evento) {
    const auto* testo = qobject_cast<QLineEdit*>(oggetto);
    const auto* tasto = static_cast<QKeyEvent*>(evento);
    return testo && !testo->isModified() &&
           (tasto->matches(QKeySequence::Undo) || tasto->matches(QKeySequence::Redo));
}

/// By pages of the list, separators skipped.
void Sfoglia(QComboBox& elenco, int pagine) {
    const int verso = pagine < 0 ? -1 : 1;
    int voce = std::clamp(elenco.currentIndex() + pagine * elenco.maxVisibleItems(), 0,
                          elenco.count() - 1);
    while (voce > 0 && voce + 1 < elenco.count() && elenco.itemText(voce).isEmpty())
        voce += verso;
    elenco.setCurrentIndex(voce);
}

} // namespace

void DelegatoScan::paint(QPainter* p, const QStyleOptionViewItem& opzione,
                         const QModelIndex& indice) const {
    QStyleOptionViewItem o = opzione;
    initStyleOption(&o, indice);
    const auto* vista = qobject_cast<const QAbstractItemView*>(o.widget);
    const bool corrente = vista && RigaScelta(*vista, indice);
    const bool cella = corrente && vista->currentIndex() == indice && vista->hasFocus();
    p->fillRect(o.rect, Tinta(o.palette, corrente ? Ruolo::Scelta : Ruolo::Finestra));
    p->fillRect(QRect(o.rect.left(), o.rect.bottom(), o.rect.width(), 1),
                Tinta(o.palette, Ruolo::Bordo));
    if (cella) {
        p->setPen(QPen(Tinta(o.palette, Ruolo::Accento), 1));
        p->setBrush(Qt::NoBrush);
        p->drawRect(o.rect.adjusted(0, 1, -1, -2));
    }
    p->setPen(ColoreCella(o, indice));
    QFont carattere = o.font;
    carattere.setPointSizeF(carattere.pointSizeF() * 1.08);
    p->setFont(carattere);
    ScriviCella(*p, o, QFontMetrics(carattere), ColoreCella(o, indice),
                indice.data(kRuoloErrata).toBool());
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
    auto* elenco = new ListaCella(padre);
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
        elenco->chiuso = [] {};
        Q_EMIT io->commitData(elenco);
        Q_EMIT io->closeEditor(elenco);
        Q_EMIT io->Confermata();
    });
    elenco->chiuso = [io, elenco] { Q_EMIT io->closeEditor(elenco); };
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
    if (evento->type() == QEvent::ShortcutOverride && DellaTabella(oggetto, evento)) {
        evento->ignore();
        return true;
    }
    if (evento->type() != QEvent::KeyPress)
        return QStyledItemDelegate::eventFilter(oggetto, evento);
    auto* editore = static_cast<QWidget*>(oggetto);
    const DecisioneTasto decisione = Decidi(oggetto, *static_cast<QKeyEvent*>(evento));
    switch (decisione.azione) {
    case AzioneTasto::ConfermaAvanti:
    case AzioneTasto::ConfermaSposta:
        Q_EMIT commitData(editore);
        Q_EMIT closeEditor(editore);
        if (decisione.azione == AzioneTasto::ConfermaAvanti)
            Q_EMIT Confermata();
        else
            Q_EMIT Spostata(decisione.righe, decisione.colonne);
        return true;
    case AzioneTasto::Chiudi:
        Q_EMIT closeEditor(editore, RevertModelCache);
        return true;
    case AzioneTasto::Pagina:
        if (auto* elenco = qobject_cast<QComboBox*>(oggetto))
            Sfoglia(*elenco, decisione.righe);
        return true;
    default:
        return QStyledItemDelegate::eventFilter(oggetto, evento);
    }
}

} // namespace orvane
