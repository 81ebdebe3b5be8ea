#include "ui/LBVerdetto.h"

#include <cmath>

#include <QPainter>

#include "base/Numeri.h"
#include "graph/RighePicchi.h"
#include "records/ScanRecord.h"
#include "ui/LettureQuadro.h"
#include "ui/Tema.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

constexpr double kBordoX = 10;
constexpr double kBordoY = 4;
/// How much of its colour a badge lets through, alone and under the pointer.
constexpr float kTinta = 0.22f;
constexpr float kTintaSorvolo = 0.34f;

/// The ground of the words, under the pointer, where it is nearest to them.
QColor Sopra(const QColor& tinta, const QColor& fondo) {
    const auto mescola = [](float sopra, float sotto) {
        return sopra * kTintaSorvolo + sotto * (1 - kTintaSorvolo);
    };
    return QColor::fromRgbF(mescola(tinta.redF(), fondo.redF()),
                            mescola(tinta.greenF(), fondo.greenF()),
                            mescola(tinta.blueF(), fondo.blueF()));
}

/// With the typographic minus and a sign in front of everything but zero.
QString TestoDb(double db) {
    const QString cifre = Q(TestoFisso(std::abs(db), 2));
    return db == 0 ? cifre : (db < 0 ? QStringLiteral("−") : QStringLiteral("+")) + cifre;
}

} // namespace

LBVerdetto::LBVerdetto(const VerdettoLimite& verdetto, const QString& frequenza, QWidget* padre)
    : QAbstractButton(padre), giudizio_(verdetto.giudizio) {
    setObjectName(QStringLiteral("LBVerdetto%1").arg(verdetto.slot));
    const QString sigla = QLatin1String(SiglaDetector(verdetto.detector));
    const QString giudizio = QLatin1String(TestoGiudizio(giudizio_));
    const bool vuoto = giudizio_ == Giudizio::Nessuno;
    setText(vuoto ? sigla + QStringLiteral("  ---")
                  : tr("%1  %2 dB at %3").arg(sigla, TestoDb(verdetto.Delta()), frequenza));
    const QString limite = tr("Limit %1: %2").arg(Q(verdetto.limite), giudizio);
    setAccessibleName(vuoto ? limite : limite + QStringLiteral(", ") + text());
    setToolTip(
        vuoto
            ? tr("%1\nNo sample where the limit has a value").arg(limite)
            : tr("%1\n%2 against it: %n sample(s) above", nullptr, static_cast<int>(verdetto.oltre))
                  .arg(limite,
                       QLatin1String(kNomiDetector[static_cast<size_t>(verdetto.detector)])));
    setCursor(vuoto ? Qt::ArrowCursor : Qt::PointingHandCursor);
    setFocusPolicy(vuoto ? Qt::NoFocus : Qt::TabFocus);
    setEnabled(!vuoto);
}

QSize LBVerdetto::sizeHint() const {
    QFont carattere = font();
    carattere.setWeight(QFont::DemiBold);
    const QFontMetricsF metrica(carattere);
    return QSize(static_cast<int>(std::ceil(metrica.horizontalAdvance(text()) + 2 * kBordoX)),
                 static_cast<int>(std::ceil(metrica.height() + 2 * kBordoY)));
}

QColor LBVerdetto::Colore() const {
    switch (giudizio_) {
    case Giudizio::Pass:
        return Tinta(palette(), Ruolo::Bene);
    case Giudizio::Fail:
        return Tinta(palette(), Ruolo::Errore);
    case Giudizio::Inconclusive:
        return TavolozzaScura(palette()) ? QColor(0xF5, 0xA5, 0x24) : QColor(0xB4, 0x6A, 0x00);
    case Giudizio::Nessuno:
        break;
    }
    return Tinta(palette(), Ruolo::Tenue);
}

void LBVerdetto::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QColor colore = Colore();
    const QRectF riquadro = QRectF(rect()).adjusted(1, 1, -1, -1);
    p.setPen(hasFocus() ? QPen(Tinta(palette(), Ruolo::Accento), 2) : Qt::NoPen);
    // Opaque under its tint: limits and grid must not run through the words.
    p.setBrush(Tinta(palette(), Ruolo::Grafico));
    p.drawRoundedRect(riquadro, 4, 4);
    QColor tinta = colore;
    tinta.setAlphaF(underMouse() ? kTintaSorvolo : kTinta);
    p.setBrush(tinta);
    p.drawRoundedRect(riquadro, 4, 4);
    QFont carattere = font();
    carattere.setWeight(QFont::DemiBold);
    p.setFont(carattere);
    p.setPen(ColoreLeggibile(colore, Sopra(colore, Tinta(palette(), Ruolo::Grafico))));
    p.drawText(rect(), Qt::AlignCenter, text());
}

} // namespace orvane
