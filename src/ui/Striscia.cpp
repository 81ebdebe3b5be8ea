#include "ui/Striscia.h"

#include <QHBoxLayout>
#include <QPainter>

#include "ui/Moduli.h"
#include "ui/Tema.h"

namespace orvane {
namespace {

constexpr int kLampoMs = 500;

} // namespace

Striscia::Striscia(QWidget* padre) : QFrame(padre), testo_(new QLabel(this)) {
    setObjectName(QStringLiteral("FRMErrore"));
    setAccessibleName(tr("Error of the receiver"));
    testo_->setObjectName(QStringLiteral("LBErrore"));
    testo_->setAlignment(Qt::AlignCenter);
    testo_->setWordWrap(true);
    QFont carattere = testo_->font();
    carattere.setBold(true);
    carattere.setPointSizeF(carattere.pointSizeF() * 1.15);
    testo_->setFont(carattere);
    abbandona_ = CreaPulsante(QStringLiteral("CMBAbort"), tr("Abort"),
                              tr("Gives up and leaves (Esc)"), this);
    abbandona_->setShortcut(QKeySequence(Qt::Key_Escape));
    auto* riga = new QHBoxLayout(this);
    riga->setContentsMargins(14, 8, 10, 8);
    riga->addWidget(testo_, 1);
    riga->addWidget(abbandona_);
    lampo_.setObjectName(QStringLiteral("TimerError"));
    lampo_.setInterval(kLampoMs);
    connect(&lampo_, &QTimer::timeout, this, &Striscia::Lampo);
    connect(abbandona_, &QPushButton::clicked, this, &Striscia::Abbandona);
    Colora(false);
    hide();
}

void Striscia::Mostra(const QString& testo) {
    testo_->setText(testo);
    show();
    raise();
    abbandona_->setFocus();
    lampo_.start();
}

void Striscia::Nascondi() {
    lampo_.stop();
    testo_->clear();
    hide();
}

void Striscia::Colora(bool scambiata) {
    const QColor viva = Tinta(palette(), Ruolo::StrisciaViva);
    const QColor pallida = Tinta(palette(), Ruolo::StrisciaPallida);
    // The button keeps the colours of its kind: only frame and label blink.
    QPalette tavolozza = testo_->palette();
    tavolozza.setColor(QPalette::WindowText, scambiata ? pallida : viva);
    testo_->setPalette(tavolozza);
    fondo_ = scambiata ? viva : pallida;
    update();
}

void Striscia::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(fondo_);
    p.drawRoundedRect(rect(), 6, 6);
}

} // namespace orvane
