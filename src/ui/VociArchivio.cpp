#include "ui/VociArchivio.h"

#include <QDate>
#include <QLocale>
#include <QPainter>

#include "data/Incompiute.h"
#include "ui/IconeScan.h"
#include "ui/RigaScelta.h"
#include "ui/Tema.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

/// "22 Nov" of "dd/mm/yyyy hh:mm:ss"; with the year where it is not this one.
QString DataCorta(const std::string& data) {
    const QDate giorno = QDate::fromString(Q(data).left(10), QStringLiteral("dd/MM/yyyy"));
    if (!giorno.isValid())
        return {};
    const bool quest = giorno.year() == QDate::currentDate().year();
    return QLocale::c().toString(giorno,
                                 quest ? QStringLiteral("d MMM") : QStringLiteral("d MMM yyyy"));
}

/// Sign of a run that was cut off, in front of the date.
constexpr int kSegno = 14;

QString AiutoVoce(const VoceArchivio& misura) {
    if (!misura.leggibile)
        return QStringLiteral("The header of this measure is missing or damaged");
    const QString fatti = QStringLiteral("%1\n%2 lines, %3 steps, detectors %4")
                              .arg(Q(misura.ultima))
                              .arg(misura.righe)
                              .arg(misura.passi)
                              .arg(Q(misura.detector));
    if (misura.inCorso)
        return QStringLiteral("Its run is on\n%1").arg(fatti);
    return misura.incompiuta ? QStringLiteral("Incomplete: the run was cut off\n%1").arg(fatti)
                             : fatti;
}

void DisegnaNome(QPainter& p, const QStyleOptionViewItem& o, const QModelIndex& i,
                 const QRect& dove) {
    QFont nome = o.font;
    nome.setWeight(o.state & QStyle::State_Selected ? QFont::DemiBold : QFont::Normal);
    p.setFont(nome);
    p.setPen(Tinta(o.palette, i.data(VoceMisura::Guasta).toBool() ? Ruolo::Tenue : Ruolo::Testo));
    p.drawText(dove, Qt::AlignVCenter,
               QFontMetrics(nome).elidedText(i.data(VoceMisura::Nome).toString(), Qt::ElideRight,
                                             dove.width()));
}

} // namespace

QVariant DatoVoce(const VoceArchivio& misura, int ruolo) {
    switch (ruolo) {
    case VoceMisura::Nome:
        return Q(misura.nome);
    case VoceMisura::Data:
        return DataCorta(misura.ultima);
    case VoceMisura::Guasta:
        return !misura.leggibile;
    case VoceMisura::Incompiuta:
        return misura.incompiuta;
    case Qt::AccessibleTextRole:
        return Q(misura.nome + (misura.leggibile ? "" : ", damaged") +
                 (misura.inCorso      ? ", running"
                  : misura.incompiuta ? ", incomplete"
                                      : ""));
    case Qt::ToolTipRole:
        return AiutoVoce(misura);
    default:
        return {};
    }
}

QString TestoCercabile(const VoceArchivio& misura) {
    return Q(misura.nome + " " + misura.prima + " " + misura.ultima + " ") +
           DataCorta(misura.ultima);
}

void DelegatoMisura::paint(QPainter* p, const QStyleOptionViewItem& o, const QModelIndex& i) const {
    const bool scelta = o.state & QStyle::State_Selected;
    const bool guasta = i.data(VoceMisura::Guasta).toBool();
    const QRect riga = o.rect.adjusted(8, 1, -8, -1);
    p->save();
    p->setRenderHint(QPainter::Antialiasing);
    p->setPen(Qt::NoPen);
    if (scelta || o.state & QStyle::State_MouseOver) {
        p->setBrush(Tinta(o.palette, scelta ? Ruolo::Scelta : Ruolo::Sorvolo));
        p->drawRoundedRect(riga, 4, 4);
    }
    SegnaFuoco(*p, o, riga);
    QFont piccolo = o.font;
    piccolo.setPointSizeF(piccolo.pointSizeF() * 0.88);
    const QString data = guasta ? QStringLiteral("damaged") : i.data(VoceMisura::Data).toString();
    const int largo = QFontMetrics(piccolo).horizontalAdvance(data);
    p->setFont(piccolo);
    p->setPen(Tinta(o.palette, guasta ? Ruolo::Errore : Ruolo::Tenue));
    p->drawText(riga.adjusted(0, 0, -8, 0), Qt::AlignVCenter | Qt::AlignRight, data);
    int restano = riga.right() - riga.left() - largo - 26;
    if (i.data(VoceMisura::Incompiuta).toBool()) {
        restano -= kSegno + 6;
        DisegnaAvviso(*p, QRectF(riga.left() + 14 + restano, riga.center().y() - 6, kSegno, kSegno),
                      Tinta(o.palette, Ruolo::Errore));
    }
    DisegnaNome(*p, o, i, QRect(riga.left() + 8, riga.top(), restano, riga.height()));
    p->restore();
}

QSize DelegatoMisura::sizeHint(const QStyleOptionViewItem& o, const QModelIndex&) const {
    return {o.rect.width(), o.fontMetrics.height() + 12};
}

QString NomiIncompiute(const AlberoDati& albero) {
    constexpr qsizetype kNominate = 3;
    QStringList nomi;
    for (const std::string& nome : MisureIncompiute(albero))
        nomi << Q(nome);
    const qsizetype altre = nomi.size() - kNominate;
    if (altre <= 0)
        return nomi.join(QStringLiteral(", "));
    return QStringLiteral("%1 and %2 more")
        .arg(nomi.first(kNominate).join(QStringLiteral(", ")))
        .arg(altre);
}

} // namespace orvane
