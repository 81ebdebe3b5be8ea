// A row of the archive list: its data, and how it is drawn.
#pragma once

#include <QStyledItemDelegate>

#include "data/Misure.h"

namespace orvane {

namespace VoceMisura {
enum Ruolo { Nome = Qt::UserRole, Data, Guasta, Incompiuta };
}

/// What a list shows of a measure, by role.
QVariant DatoVoce(const VoceArchivio& misura, int ruolo);
/// Name and dates, as a search looks through them.
QString TestoCercabile(const VoceArchivio& misura);

class DelegatoMisura : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* p, const QStyleOptionViewItem& o, const QModelIndex& i) const override;
    QSize sizeHint(const QStyleOptionViewItem& o, const QModelIndex& i) const override;
};

/// The measures whose runs were cut off, for a sentence: "A, B and 3 more"; empty without any.
QString NomiIncompiute(const AlberoDati& albero);

} // namespace orvane
