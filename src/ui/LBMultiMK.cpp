#include "ui/LBMultiMK.h"

#include <algorithm>
#include <cmath>

#include <QMouseEvent>
#include <QPainter>

#include "ui/Tema.h"

namespace orvane {
namespace {

constexpr double kBordo = 11;
constexpr double kSpazio = 14; ///< between columns
constexpr double kRiga = 1.3;  ///< in line heights
/// Kept free around a marker and the edges of the grid.
constexpr double kDistanza = 12;

} // namespace

LBMultiMK::LBMultiMK(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("LBMultiMK"));
    setToolTip(tr("Reading at the marker: drag it where it is not in the way, double-click to put "
                  "it back"));
    setCursor(Qt::SizeAllCursor);
    hide();
}

void LBMultiMK::Mostra(std::vector<RigaLettura> righe) {
    righe_ = std::move(righe);
    setAccessibleName(TestoRighe(righe_));
    resize(sizeHint());
    setVisible(!righe_.empty());
    update();
}

QFont LBMultiMK::Grassetto() const {
    QFont carattere = font();
    carattere.setWeight(QFont::DemiBold);
    return carattere;
}

LBMultiMK::Colonne LBMultiMK::Misura() const {
    const QFontMetricsF metrica(Grassetto());
    Colonne c;
    for (size_t i = 0; i < righe_.size(); ++i) {
        double& prima = i == 0 ? c.titolo : c.nome;
        prima = std::max(prima, metrica.horizontalAdvance(righe_[i].nome));
        c.valore = std::max(c.valore, metrica.horizontalAdvance(righe_[i].valore));
        c.delta = std::max(c.delta, metrica.horizontalAdvance(righe_[i].delta));
    }
    // The title runs over the first two columns.
    c.nome = std::max(c.nome, c.titolo - c.valore - kSpazio);
    return c;
}

QSize LBMultiMK::sizeHint() const {
    const Colonne c = Misura();
    const double passo = std::ceil(QFontMetricsF(font()).height() * kRiga);
    const double largo =
        c.nome + kSpazio + c.valore + (c.delta > 0 ? kSpazio + c.delta : 0) + 2 * kBordo;
    return QSize(static_cast<int>(std::ceil(largo)) + 1,
                 static_cast<int>(passo * double(righe_.size())) + 12);
}

void LBMultiMK::Posiziona(const QRectF& campo, const std::vector<double>& evita,
                          const QRectF& occupato) {
    campo_ = campo;
    evita_ = evita;
    occupato_ = occupato;
    const QSizeF mia = size();
    const QSizeF gioco(std::max(0.0, campo.width() - mia.width()),
                       std::max(0.0, campo.height() - mia.height()));
    const QPointF dove = posto_ ? campo.topLeft() + QPointF(posto_->x() * gioco.width(),
                                                            posto_->y() * gioco.height())
                                : PostoDaSolo(mia);
    move(dove.toPoint());
}

/// Of the places along the top, from the left, the first that is free.
QPointF LBMultiMK::PostoDaSolo(const QSizeF& mia) const {
    std::vector<double> inizi = {campo_.left()};
    for (const double x : evita_)
        inizi.push_back(x + kDistanza);
    inizi.push_back(campo_.right() - mia.width());
    for (const double x : inizi) {
        QRectF posto(QPointF(x, campo_.top()), mia);
        if (posto.intersects(occupato_))
            posto.moveTop(occupato_.bottom() + kDistanza);
        const bool libero = std::ranges::none_of(evita_, [&](double linea) {
            return linea > posto.left() - kDistanza && linea < posto.right() + kDistanza;
        });
        if (libero && campo_.contains(posto))
            return posto.topLeft();
    }
    return campo_.topLeft();
}

void LBMultiMK::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Tinta(palette(), Ruolo::BordoCampo), 1));
    p.setBrush(Tinta(palette(), Ruolo::Velo));
    p.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    const Colonne c = Misura();
    const double passo = std::ceil(QFontMetricsF(font()).height() * kRiga);
    const double destra = kBordo + c.nome + kSpazio + c.valore;
    for (size_t i = 0; i < righe_.size(); ++i) {
        const RigaLettura& riga = righe_[i];
        const double y = 6 + passo * double(i);
        p.setFont(i == 0 ? font() : Grassetto());
        p.setPen(riga.colore);
        p.drawText(QRectF(kBordo, y, destra - kBordo, passo), Qt::AlignVCenter, riga.nome);
        p.drawText(QRectF(kBordo, y, destra - kBordo, passo), Qt::AlignVCenter | Qt::AlignRight,
                   riga.valore);
        p.drawText(QRectF(destra, y, kSpazio + c.delta, passo), Qt::AlignVCenter | Qt::AlignRight,
                   riga.delta);
    }
}

void LBMultiMK::mousePressEvent(QMouseEvent* evento) {
    if (evento->button() == Qt::LeftButton)
        presa_ = evento->position();
    else
        evento->ignore();
}

void LBMultiMK::mouseMoveEvent(QMouseEvent* evento) {
    if (!presa_)
        return;
    const QPointF dove = mapToParent(evento->position() - *presa_) - campo_.topLeft();
    const auto parte = [](double valore, double gioco) {
        return gioco > 0 ? std::clamp(valore / gioco, 0.0, 1.0) : 0.0;
    };
    posto_ = QPointF(parte(dove.x(), campo_.width() - width()),
                     parte(dove.y(), campo_.height() - height()));
    Posiziona(campo_, evita_, occupato_);
}

void LBMultiMK::mouseReleaseEvent(QMouseEvent*) {
    presa_.reset();
}

void LBMultiMK::mouseDoubleClickEvent(QMouseEvent*) {
    posto_.reset();
    presa_.reset();
    Posiziona(campo_, evita_, occupato_);
}

void LBMultiMK::changeEvent(QEvent* evento) {
    if (evento->type() == QEvent::FontChange) {
        resize(sizeHint());
        update();
    }
    QWidget::changeEvent(evento);
}

} // namespace orvane
