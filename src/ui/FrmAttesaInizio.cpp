#include "ui/FrmAttesaInizio.h"

#include <QPainter>
#include <QVBoxLayout>

#include "ui/Moduli.h"
#include "ui/StileConsole.h"
#include "ui/Tema.h"

namespace orvane {
namespace {

/// Steps of a bar that only tells of life.
constexpr int kGiro = 12;

} // namespace

FrmAttesaInizio::FrmAttesaInizio(const QString& nome, const QString& nomeBarra,
                                 const QString& titolo, QWidget* padre)
    : QFrame(padre) {
    setObjectName(nome);
    setAccessibleName(titolo);
    testo_ = Nomina(new QLabel(this), QStringLiteral("LB") + nomeBarra.mid(2), titolo);
    testo_->setAlignment(Qt::AlignCenter);
    QFont carattere = testo_->font();
    carattere.setPointSizeF(carattere.pointSizeF() * 1.15);
    testo_->setFont(carattere);
    barra_ = Nomina(new QProgressBar(this), nomeBarra, titolo);
    barra_->setTextVisible(false);
    barra_->setMinimumWidth(fontMetrics().averageCharWidth() * 48);
    ferma_ = CreaPulsante(QStringLiteral("CMBStop") + nomeBarra.mid(2), tr("Stop"),
                          tr("Gives the start up; nothing is stored (F5)"), this);
    ferma_->setProperty(kProprietaRuolo, QStringLiteral("stop"));
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(22, 16, 22, 16);
    colonna->setSpacing(12);
    colonna->addWidget(CreaTitoletto(titolo, this), 0, Qt::AlignHCenter);
    colonna->addWidget(testo_);
    colonna->addWidget(barra_);
    colonna->addWidget(ferma_, 0, Qt::AlignHCenter);
    connect(ferma_, &QPushButton::clicked, this, &FrmAttesaInizio::Ferma);
    hide();
}

void FrmAttesaInizio::Mostra(const QString& testo, int fatto, int totale) {
    testo_->setText(testo);
    barra_->setRange(0, totale > 0 ? totale : kGiro);
    barra_->setValue(totale > 0 ? fatto : (barra_->value() + 1) % (kGiro + 1));
    if (isVisible())
        return;
    show();
    raise();
    ferma_->setFocus();
}

void FrmAttesaInizio::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Tinta(palette(), Ruolo::BordoCampo), 1));
    p.setBrush(Tinta(palette(), Ruolo::Finestra));
    p.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);
}

} // namespace orvane
