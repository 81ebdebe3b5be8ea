#include "ui/FoglioQt.h"

#include <cmath>

#include <QPainter>

#include "report/LogoReport.h"

namespace orvane {
namespace {

constexpr double kCmPerPunto = 2.54 / 72;
constexpr double kPassoCourier = 0.6; ///< of the em
constexpr int kFinezza = 10;          ///< letters are set in tenths of a point

QFont FontDi(const TestoPagina& posto) {
    const bool numero = posto.font == FontPagina::Numero;
    QFont carattere(numero ? QStringLiteral("Times New Roman") : QStringLiteral("Courier New"));
    carattere.setStyleHint(numero ? QFont::Times : QFont::TypeWriter);
    carattere.setFixedPitch(!numero);
    carattere.setItalic(!numero);
    carattere.setPixelSize(static_cast<int>(std::lround(posto.corpo * kFinezza)));
    return carattere;
}

} // namespace

FoglioQt::FoglioQt(const PagineReport& pagine, QWidget* padre) : QWidget(padre), pagine_(pagine) {
    setObjectName(QStringLiteral("FoglioReport"));
    const std::vector<uint8_t> logo = LogoBMP();
    logo_ = QImage::fromData(logo.data(), static_cast<int>(logo.size()), "BMP");
    misura_ = QImage::fromData(pagine.misura.data(), static_cast<int>(pagine.misura.size()), "BMP");
}

void FoglioQt::Mostra(size_t pagina) {
    pagina_ = pagina;
    update();
}

void FoglioQt::Scala(double pixelPerCm) {
    scala_ = pixelPerCm;
    setFixedSize(static_cast<int>(pagine_.larghezzaCm * scala_) + 2 * kBordo,
                 static_cast<int>(pagine_.altezzaCm * scala_) + 2 * kBordo);
    update();
}

void FoglioQt::paintEvent(QPaintEvent*) {
    QPainter p(this);
    const QRectF carta(kBordo, kBordo, pagine_.larghezzaCm * scala_, pagine_.altezzaCm * scala_);
    for (int i = 4; i > 0; --i)
        p.fillRect(carta.adjusted(-i, 2 - i, i, 2 + i), QColor(0, 0, 0, 16));
    p.fillRect(carta, Qt::white);
    p.setClipRect(carta);
    p.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                     QPainter::SmoothPixmapTransform);
    p.translate(carta.bottomLeft());
    const FoglioReport& foglio = pagine_.fogli.at(pagina_);
    for (const ImmagineFoglio& immagine : foglio.immagini)
        DisegnaImmagine(p, immagine);
    for (const RigaFoglio& riga : foglio.righe)
        DisegnaRiga(p, riga);
}

/// Whatever font stands in for the file's, a line is as long as in the file.
void FoglioQt::DisegnaRiga(QPainter& p, const RigaFoglio& riga) const {
    const QString testo = QString::fromStdString(riga.testo);
    const QFont carattere = FontDi(riga.posto);
    const double larga = QFontMetricsF(carattere).horizontalAdvance(testo);
    if (larga <= 0)
        return;
    const double voluta =
        riga.posto.font == FontPagina::Numero
            ? larga
            : kPassoCourier * carattere.pixelSize() * static_cast<double>(testo.size());
    const double unita = scala_ * kCmPerPunto / kFinezza;
    p.save();
    p.translate(riga.posto.x * scala_, -riga.posto.y * scala_);
    p.scale(unita * voluta / larga, unita);
    p.setPen(Qt::black);
    p.setFont(carattere);
    p.drawText(QPointF(riga.posto.aDestra ? -larga : 0, 0), testo);
    p.restore();
}

void FoglioQt::DisegnaImmagine(QPainter& p, const ImmagineFoglio& immagine) {
    const QRectF dove(immagine.dove.x * scala_, -(immagine.dove.y + immagine.dove.altezza) * scala_,
                      immagine.dove.larghezza * scala_, immagine.dove.altezza * scala_);
    if (immagine.quale == ImmaginePagina::Logo)
        return p.drawImage(dove, logo_);
    const QSize punti = (dove.size() * devicePixelRatioF()).toSize();
    if (ridotta_.size() != punti)
        ridotta_ = misura_.scaled(punti, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    p.drawImage(dove, ridotta_);
}

} // namespace orvane
