#include "ui/Moduli.h"

#include <QKeyEvent>
#include <QPainter>

#include "ui/Tema.h"

namespace orvane {
namespace {

constexpr int kMargineEtichetta = 11;
constexpr int kPunto = 8;

class Filo : public QWidget {
public:
    explicit Filo(QWidget* padre) : QWidget(padre) {
        setFixedHeight(1);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter(this).fillRect(rect(), Tinta(palette(), Ruolo::Bordo));
    }
};

/// Enter presses the button that has the focus. A dialog would press its default one instead, and
/// so store where Cancel was meant.
class Pulsante : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void keyPressEvent(QKeyEvent* evento) override {
        if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter)
            return click();
        QPushButton::keyPressEvent(evento);
    }
};

} // namespace

QLabel* CreaTitoletto(const QString& testo, QWidget* padre) {
    auto* titolo = new QLabel(testo.toUpper(), padre);
    QFont carattere = titolo->font();
    carattere.setPointSizeF(carattere.pointSizeF() * 0.85);
    carattere.setWeight(QFont::DemiBold);
    carattere.setLetterSpacing(QFont::AbsoluteSpacing, 0.8);
    titolo->setFont(carattere);
    ImpostaRuoloTesto(*titolo, Ruolo::Tenue);
    return titolo;
}

QLabel* CreaDidascalia(const QString& testo, QWidget* padre) {
    auto* didascalia = new QLabel(testo, padre);
    ImpostaRuoloTesto(*didascalia, Ruolo::Tenue);
    return didascalia;
}

QPushButton* CreaPulsante(const QString& nome, const QString& testo, const QString& aiuto,
                          QWidget* padre) {
    auto* pulsante = new Pulsante(testo, padre);
    pulsante->setAutoDefault(false);
    return Nomina(pulsante, nome, testo, aiuto);
}

QWidget* CreaFilo(QWidget* padre) {
    return new Filo(padre);
}

Etichetta::Etichetta(const QString& nome, const QString& accessibile, QWidget* padre)
    : QLabel(padre) {
    Nomina(this, nome, accessibile);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    QFont carattere = font();
    carattere.setPointSizeF(carattere.pointSizeF() * 0.9);
    setFont(carattere);
    ImpostaRuoloTesto(*this, Ruolo::Tenue);
    hide();
}

void Etichetta::Mostra(const QString& testo, bool conPunto) {
    punto_ = conPunto;
    setText(testo);
    setVisible(!testo.isEmpty());
    updateGeometry();
}

QSize Etichetta::sizeHint() const {
    const int punto = punto_ ? kPunto + 7 : 0;
    return {fontMetrics().horizontalAdvance(text()) + punto + 2 * kMargineEtichetta,
            fontMetrics().height() + 8};
}

void Etichetta::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Tinta(palette(), Ruolo::BordoCampo), 1));
    const QRectF r = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    p.drawRoundedRect(r, r.height() / 2, r.height() / 2);
    int x = kMargineEtichetta;
    if (punto_) {
        p.setPen(Qt::NoPen);
        p.setBrush(Tinta(palette(), Ruolo::Bene));
        p.drawEllipse(QRectF(x, (height() - kPunto) / 2.0, kPunto, kPunto));
        x += kPunto + 7;
    }
    p.setPen(palette().color(QPalette::WindowText));
    p.drawText(rect().adjusted(x, 0, -kMargineEtichetta, 0), Qt::AlignVCenter, text());
}

} // namespace orvane
