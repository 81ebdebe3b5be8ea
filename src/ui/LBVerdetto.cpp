#include "ui/LBVerdetto.h"

#include <array>
#include <cmath>

#include <QPainter>

#include "base/Numeri.h"
#include "records/ScanRecord.h"
#include "ui/LettureQuadro.h"
#include "ui/Tema.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

/// By `DetectorKind`, as they are written beside limits.
constexpr std::array<const char*, kNumDetector> kSigle = {"PK", "QP",     "RMS",
                                                          "AV", "RMS-AV", "CISPR-AV"};
constexpr double kBordoX = 10;
constexpr double kBordoY = 4;

/// With the typographic minus and a sign in front of everything but zero.
QString TestoDb(double db) {
    const double arrotondato = std::round(db * 10) / 10;
    const QString cifre = Q(TestoFisso(std::abs(arrotondato), 1));
    return arrotondato == 0 ? cifre
                            : (arrotondato < 0 ? QStringLiteral("−") : QStringLiteral("+")) + cifre;
}

} // namespace

LBVerdetto::LBVerdetto(const VerdettoLimite& verdetto, const QString& frequenza, QWidget* padre)
    : QAbstractButton(padre), giudizio_(verdetto.giudizio) {
    setObjectName(QStringLiteral("LBVerdetto%1").arg(verdetto.slot));
    const auto d = static_cast<size_t>(verdetto.detector);
    const QString sigla = QLatin1String(kSigle[d]);
    const QString giudizio = QLatin1String(TestoGiudizio(giudizio_));
    const bool vuoto = giudizio_ == Giudizio::Nessuno;
    setText(vuoto ? sigla + QStringLiteral("  ---")
                  : tr("%1  %2 dB at %3").arg(sigla, TestoDb(verdetto.Delta()), frequenza));
    const QString limite = tr("Limit %1: %2").arg(Q(verdetto.limite), giudizio);
    setAccessibleName(vuoto ? limite : limite + QStringLiteral(", ") + text());
    setToolTip(vuoto ? tr("%1\nNo sample where the limit has a value").arg(limite)
                     : tr("%1\n%2 against it: %n sample(s) above", nullptr,
                          static_cast<int>(verdetto.oltre))
                           .arg(limite, QLatin1String(kNomiDetector[d])));
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
    tinta.setAlphaF(underMouse() ? 0.34f : 0.22f);
    p.setBrush(tinta);
    p.drawRoundedRect(riquadro, 4, 4);
    QFont carattere = font();
    carattere.setWeight(QFont::DemiBold);
    p.setFont(carattere);
    p.setPen(ColoreLeggibile(colore, Tinta(palette(), Ruolo::Grafico)));
    p.drawText(rect(), Qt::AlignCenter, text());
}

} // namespace orvane
