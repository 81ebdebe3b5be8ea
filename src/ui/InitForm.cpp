#include "ui/InitForm.h"

#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QVBoxLayout>

#include "base/Versione.h"
#include "records/EnvRecord.h"
#include "ui/Tema.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

QPixmap Disegna(int lato) {
    QPixmap quadro(lato, lato);
    quadro.fill(Qt::transparent);
    QPainter p(&quadro);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(lato / 64.0, lato / 64.0);
    p.setPen(Qt::NoPen);
    p.setBrush(Tinta(true, Ruolo::Finestra));
    p.drawRoundedRect(QRectF(2, 2, 60, 60), 13, 13);
    p.setPen(QPen(Tinta(true, Ruolo::BordoCampo), 2));
    p.drawLine(QPointF(10, 50), QPointF(54, 50));
    QPainterPath traccia;
    traccia.moveTo(10, 44);
    for (const QPointF& punto :
         {QPointF(19, 41), QPointF(23, 44), QPointF(28, 14), QPointF(33, 43), QPointF(38, 40),
          QPointF(42, 28), QPointF(46, 43), QPointF(54, 41)})
        traccia.lineTo(punto);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(Tinta(true, Ruolo::Accento), 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPath(traccia);
    return quadro;
}

} // namespace

QIcon IconaProgramma() {
    QIcon icona;
    for (const int lato : {16, 32, 48, 64, 128, 256})
        icona.addPixmap(Disegna(lato));
    return icona;
}

InitForm::InitForm() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("InitForm"));
    setWindowTitle(QLatin1String(kNomeProgramma));
    auto* segno = new QLabel(this);
    segno->setPixmap(IconaProgramma().pixmap(QSize(64, 64), devicePixelRatioF()));
    auto* nome = new QLabel(QLatin1String(kNomeProgramma), this);
    QFont grande = nome->font();
    grande.setPointSizeF(grande.pointSizeF() * 2.1);
    grande.setWeight(QFont::DemiBold);
    nome->setFont(grande);
    auto* release = new QLabel(Q(RelSoftware()), this);
    ImpostaRuoloTesto(*release, Ruolo::Tenue);
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(56, 44, 56, 44);
    colonna->setSpacing(10);
    for (QLabel* pezzo : {segno, nome, release}) {
        pezzo->setAlignment(Qt::AlignCenter);
        colonna->addWidget(pezzo);
    }
    adjustSize();
    move(screen()->availableGeometry().center() - rect().center());
}

void InitForm::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), Tinta(palette(), Ruolo::Finestra));
    p.setPen(Tinta(palette(), Ruolo::BordoCampo));
    p.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace orvane
