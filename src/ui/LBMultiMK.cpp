#include "ui/LBMultiMK.h"

#include <algorithm>
#include <cmath>
#include <limits>

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
/// Words hidden weigh so much more than as many pixels of a trace.
constexpr double kPesoNomi = 10;
/// Places that are tried across the picture.
constexpr int kPosti = 12;

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

void LBMultiMK::Posiziona(Intorno intorno) {
    intorno_ = std::move(intorno);
    // A picture that is lower than the reading is better seen without it.
    setVisible(!righe_.empty() && height() <= intorno_.campo.height());
    Riposiziona();
}

void LBMultiMK::Riposiziona() {
    const QRectF& campo = intorno_.campo;
    const QPointF gioco(std::max(0.0, campo.width() - width()),
                        std::max(0.0, campo.height() - height()));
    const QPointF dove =
        posto_ ? campo.topLeft() + QPointF(posto_->x() * gioco.x(), posto_->y() * gioco.y())
               : PostoDaSolo();
    move(dove.toPoint());
}

/// At the top from this place on, or under what is taken there; empty where a line runs through.
std::optional<QRectF> LBMultiMK::PostoLibero(double x) const {
    QRectF posto(QPointF(x, intorno_.campo.top()), QSizeF(size()));
    if (posto.intersects(intorno_.occupato))
        posto.moveTop(intorno_.occupato.bottom() + kDistanza);
    const bool libero = std::ranges::none_of(intorno_.evita, [&](double linea) {
        return linea > posto.left() - kDistanza && linea < posto.right() + kDistanza;
    });
    return libero && intorno_.campo.contains(posto) ? std::optional(posto) : std::nullopt;
}

/// Along the top from the left, the first place that hides no trace and no words, or the one that
/// hides least.
QPointF LBMultiMK::PostoDaSolo() const {
    const QRectF& campo = intorno_.campo;
    std::vector<double> inizi = {campo.left()};
    for (const double x : intorno_.evita)
        inizi.push_back(x + kDistanza);
    for (const QRectF& nome : intorno_.nomi)
        inizi.push_back(nome.right() + kDistanza);
    if (!intorno_.occupato.isEmpty())
        inizi.push_back(intorno_.occupato.left() - kDistanza - width());
    const double ultimo = campo.right() - width();
    for (int i = 1; i <= kPosti; ++i)
        inizi.push_back(campo.left() + (ultimo - campo.left()) * i / kPosti);
    QPointF scelto = campo.topLeft();
    double migliore = -std::numeric_limits<double>::infinity();
    for (const double x : inizi) {
        const auto posto = PostoLibero(x);
        if (!posto)
            continue;
        double aria = intorno_.sotto ? -intorno_.sotto(*posto) : 0;
        for (const QRectF& nome : intorno_.nomi) {
            const QRectF sotto = nome & *posto;
            aria -= kPesoNomi * sotto.width() * sotto.height();
        }
        if (aria > migliore) {
            migliore = aria;
            scelto = posto->topLeft();
        }
    }
    return scelto;
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
    const QPointF dove = mapToParent(evento->position() - *presa_) - intorno_.campo.topLeft();
    const auto parte = [](double valore, double gioco) {
        return gioco > 0 ? std::clamp(valore / gioco, 0.0, 1.0) : 0.0;
    };
    posto_ = QPointF(parte(dove.x(), intorno_.campo.width() - width()),
                     parte(dove.y(), intorno_.campo.height() - height()));
    Riposiziona();
}

void LBMultiMK::mouseReleaseEvent(QMouseEvent*) {
    presa_.reset();
}

void LBMultiMK::mouseDoubleClickEvent(QMouseEvent*) {
    posto_.reset();
    presa_.reset();
    Riposiziona();
}

void LBMultiMK::changeEvent(QEvent* evento) {
    if (evento->type() == QEvent::FontChange) {
        resize(sizeHint());
        update();
    }
    QWidget::changeEvent(evento);
}

} // namespace orvane
