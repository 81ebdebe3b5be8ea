// Drawing with a painter: whole pixels where it shows, antialiasing elsewhere.
#include "platform/qt/SuperficieQt.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPaintEngine>
#include <QPen>
#include <algorithm>
#include <cmath>
#include <vector>

#include "platform/qt/ColonneImmagine.h"
#include "platform/qt/RitaglioLinee.h"

#if defined(__x86_64__) || defined(__i386__)
#include <immintrin.h>
#endif

namespace orvane {
namespace {

/// Lengths of a dash and its pause, in pen widths.
constexpr double kPunto[] = {1, 3};
constexpr double kTrattino[] = {4, 3};

#if defined(__x86_64__) || defined(__i386__)
__attribute__((target("avx"))) void AzzeraMetaAlte() {
    _mm256_zeroupper();
}
#endif

/// Points of a wide line that are stroked at once.
constexpr size_t kPezzoSpezzata = 16;

QPen PennaQt(const Penna& penna) {
    QPen qt(ColoreQt(penna.colore), std::max(penna.larghezza, 0.0));
    qt.setCapStyle(Qt::FlatCap);
    qt.setJoinStyle(Qt::RoundJoin);
    if (penna.tratto == Tratto::Punteggiato)
        qt.setDashPattern({kPunto[0], kPunto[1]});
    if (penna.tratto == Tratto::Tratteggiato)
        qt.setDashPattern({kTrattino[0], kTrattino[1]});
    return qt;
}

QFont DiAltezza(QFont font, double altezza) {
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(altezza))));
    return font;
}

QFont Carattere(double altezza) {
    return DiAltezza(QGuiApplication::font(), altezza);
}

QFont CarattereFisso(double altezza) {
    QFont font(QStringLiteral("Courier New"));
    font.setStyleHint(QFont::Monospace);
    return DiAltezza(font, altezza);
}

/// Where the left end of the text's baseline lies for an anchor, against the anchor.
QPointF InizioTesto(Ancora ancora, double larghezza, const QFontMetricsF& misure) {
    const int indice = static_cast<int>(ancora);
    const double x[] = {0, -larghezza / 2, -larghezza};
    // The middle of a number is that of its digits, which have no descent.
    const double y[] = {misure.ascent(), misure.capHeight() / 2, -misure.descent()};
    return {x[indice % 3], y[indice / 3]};
}

double Area(QPointF a, QPointF b, QPointF c) {
    return (b.x() - a.x()) * (c.y() - a.y()) - (b.y() - a.y()) * (c.x() - a.x());
}

/// A triangle in the pixels of an image, with the weights of its corners at each of them.
struct Triangolo {
    QPointF a, b, c;
    QColor colori[3];

    QRgb Colore(QPointF p, double area) const {
        const double pesi[] = {Area(p, b, c) / area, Area(a, p, c) / area, Area(a, b, p) / area};
        if (pesi[0] < 0 || pesi[1] < 0 || pesi[2] < 0)
            return 0;
        double rgb[3] = {};
        for (int i = 0; i < 3; ++i) {
            rgb[0] += pesi[i] * colori[i].red();
            rgb[1] += pesi[i] * colori[i].green();
            rgb[2] += pesi[i] * colori[i].blue();
        }
        return qRgb(qRound(rgb[0]), qRound(rgb[1]), qRound(rgb[2]));
    }
};

QImage DipingiTriangolo(const Triangolo& triangolo, const QRect& riquadro) {
    QImage immagine(riquadro.size(), QImage::Format_ARGB32_Premultiplied);
    const double area = Area(triangolo.a, triangolo.b, triangolo.c);
    for (int y = 0; y < immagine.height(); ++y) {
        auto* riga = reinterpret_cast<QRgb*>(immagine.scanLine(y));
        for (int x = 0; x < immagine.width(); ++x)
            riga[x] = triangolo.Colore({riquadro.x() + x + 0.5, riquadro.y() + y + 0.5}, area);
    }
    return immagine;
}

} // namespace

void LiberaRegistri() {
#if defined(__x86_64__) || defined(__i386__)
    if (__builtin_cpu_supports("avx"))
        AzzeraMetaAlte();
#endif
}

QColor ColoreQt(int32_t colore) {
    return QColor(colore & 0xff, colore >> 8 & 0xff, colore >> 16 & 0xff);
}

SuperficieQt::SuperficieQt(QPainter& painter, double larghezza, double altezza)
    : painter_(painter), larghezza_(larghezza), altezza_(altezza),
      dispositivo_(painter.deviceTransform()), ritaglioAltrui_(painter.hasClipping()) {
    // A mirrored or turned painter has no such pixels; it draws as it comes.
    if (dispositivo_.m11() > 0 && dispositivo_.m22() > 0) {
        orizzontale_ = {.scala = dispositivo_.m11(), .inizio = dispositivo_.dx()};
        verticale_ = {.scala = dispositivo_.m22(), .inizio = dispositivo_.dy()};
    }
    painter_.setRenderHint(QPainter::Antialiasing, true);
    painter_.setRenderHint(QPainter::TextAntialiasing, true);
}

SuperficieQt::~SuperficieQt() {
    while (!ritagli_.empty())
        FineRitaglio();
    LiberaRegistri();
}

void SuperficieQt::Scala(double sinistra, double alto, double destra, double basso) {
    scalaX_ = destra != sinistra ? larghezza_ / (destra - sinistra) : 1;
    scalaY_ = basso != alto ? altezza_ / (basso - alto) : 1;
    origine_ = {sinistra, alto};
}

QPointF SuperficieQt::Pixel(Punto p) const {
    return {(p.x - origine_.x) * scalaX_, (p.y - origine_.y) * scalaY_};
}

double SuperficieQt::Retino::Pixel(double v) const {
    // A place that is meant to be an edge may lie a rounding below it.
    constexpr double kInezia = 1e-6;
    return (std::floor(v * scala + inizio + kInezia) - inizio) / scala;
}

double SuperficieQt::Retino::Bordo(double v) const {
    return (std::round(v * scala + inizio) - inizio) / scala;
}

double SuperficieQt::Retino::Spessore(double larghezza) const {
    return std::max(1.0, std::round(larghezza * scala)) / scala;
}

void SuperficieQt::Linea(Punto da, Punto a, const Penna& penna) {
    QPointF inizio = Pixel(da);
    QPointF fine = Pixel(a);
    QPen qt = PennaQt(penna);
    // Along the axes a line covers whole pixels, those at both ends included, so that corners meet.
    if (inizio.y() == fine.y()) {
        const double spessore = verticale_.Spessore(penna.larghezza);
        const double y = verticale_.Pixel(inizio.y()) + spessore / 2;
        const auto [sinistra, destra] = std::minmax({inizio.x(), fine.x()});
        qt.setWidthF(spessore);
        inizio = {orizzontale_.Pixel(sinistra), y};
        fine = {orizzontale_.Pixel(destra) + spessore, y};
    } else if (inizio.x() == fine.x()) {
        const double spessore = orizzontale_.Spessore(penna.larghezza);
        const double x = orizzontale_.Pixel(inizio.x()) + spessore / 2;
        const auto [alto, basso] = std::minmax({inizio.y(), fine.y()});
        qt.setWidthF(spessore);
        inizio = {x, verticale_.Pixel(alto)};
        fine = {x, verticale_.Pixel(basso) + spessore};
    }
    const bool dritta = inizio.y() == fine.y() || inizio.x() == fine.x();
    if (dritta && penna.tratto == Tratto::Punteggiato &&
        painter_.paintEngine()->type() == QPaintEngine::Raster)
        return Puntini(inizio, fine, qt);
    painter_.setPen(qt);
    painter_.drawLine(inizio, fine);
}

/// The same dots as those of the pen, at a tenth of the cost.
void SuperficieQt::Puntini(QPointF inizio, QPointF fine, const QPen& penna) {
    const double lato = penna.widthF();
    const QPointF verso = inizio.y() == fine.y() ? QPointF(1, 0) : QPointF(0, 1);
    const double lungo = QPointF::dotProduct(fine - inizio, verso);
    std::vector<QRectF> punti;
    for (double da = 0; da < lungo; da += (kPunto[0] + kPunto[1]) * lato) {
        const QPointF angolo = inizio + verso * da - QPointF(verso.y(), verso.x()) * lato / 2;
        const double resto = std::min(lato, lungo - da);
        punti.emplace_back(angolo, verso.x() > 0 ? QSizeF(resto, lato) : QSizeF(lato, resto));
    }
    const bool liscia = painter_.testRenderHint(QPainter::Antialiasing);
    painter_.setRenderHint(QPainter::Antialiasing, false);
    for (const QRectF& punto : punti)
        painter_.fillRect(punto, penna.color());
    painter_.setRenderHint(QPainter::Antialiasing, liscia);
}

void SuperficieQt::Spezzata(std::span<const Punto> punti, const Penna& penna) {
    std::vector<QPointF> pixel;
    pixel.reserve(punti.size());
    for (const Punto& p : punti)
        pixel.push_back(Pixel(p));
    painter_.setPen(PennaQt(penna));
    painter_.setBrush(Qt::NoBrush);
    // A drawing of lines is written without its clip.
    if (!ritagli_.empty() && painter_.paintEngine()->type() == QPaintEngine::SVG)
        for (const auto& pezzo : RitagliaSpezzata(pixel, QRectF(ritagli_.back())))
            Traccia(pezzo, penna);
    else
        Traccia(pixel, penna);
}

void SuperficieQt::Traccia(std::span<const QPointF> pixel, const Penna& penna) {
    // Qt strokes a wide line as one shape, at a cost that grows with the square of its points. The
    // pieces share a segment, so that the joint between them is round too.
    const bool larga = penna.larghezza * orizzontale_.scala > 1 && penna.tratto == Tratto::Pieno;
    const size_t pezzo = larga ? kPezzoSpezzata : pixel.size();
    for (size_t i = 0; i + 1 < pixel.size(); i += pezzo)
        painter_.drawPolyline(pixel.data() + i,
                              static_cast<int>(std::min(pezzo + 2, pixel.size() - i)));
}

/// The image under the painter, where its pixels lie open and nothing comes between.
const QImage* SuperficieQt::ImmagineDiretta() const {
    const QPaintEngine* motore = painter_.paintEngine();
    if (!motore || motore->type() != QPaintEngine::Raster || !motore->paintDevice() ||
        motore->paintDevice()->devType() != QInternal::Image ||
        dispositivo_.type() > QTransform::TxScale || ritaglioAltrui_ || painter_.opacity() != 1 ||
        painter_.compositionMode() != QPainter::CompositionMode_SourceOver)
        return nullptr;
    const auto* immagine = static_cast<const QImage*>(motore->paintDevice());
    return AccettaColonne(*immagine) ? immagine : nullptr;
}

/// What may be written of it; empty where that is not a rectangle.
std::optional<QRect> SuperficieQt::RitaglioDiretto(const QImage& immagine) const {
    const QRegion sistema = painter_.paintEngine()->systemClip();
    if (sistema.rectCount() > 1)
        return std::nullopt;
    QRect aperto = immagine.rect();
    if (!sistema.isEmpty())
        aperto &= sistema.boundingRect();
    return ritagli_.empty() ? aperto : aperto & ritagli_.back();
}

bool SuperficieQt::Colonne(double sinistra, double passo, std::span<const TrattoColonna> colonne,
                           const Penna& penna) {
    constexpr double kScarto = 1e-6;
    const QImage* immagine = ImmagineDiretta();
    const double largo = passo * scalaX_ * orizzontale_.scala;
    if (!immagine || penna.tratto != Tratto::Pieno || std::abs(largo - 1) > kScarto)
        return false;
    const auto ritaglio = RitaglioDiretto(*immagine);
    if (!ritaglio)
        return false;
    std::vector<ColonnaPixel> pixel;
    pixel.reserve(colonne.size());
    const auto y = [&](double v) {
        return (v - origine_.y) * scalaY_ * verticale_.scala + verticale_.inizio;
    };
    for (const TrattoColonna& c : colonne) {
        const auto [alto, basso] = std::minmax({y(c.minimo), y(c.massimo)});
        pixel.push_back({.alto = alto, .basso = basso, .entra = y(c.entra), .esce = y(c.esce)});
    }
    const double x = (sinistra - origine_.x) * scalaX_ * orizzontale_.scala + orizzontale_.inizio;
    LiberaRegistri();
    DipingiColonne(*immagine, *ritaglio, static_cast<int>(std::lround(x)), pixel,
                   ColoreQt(penna.colore).rgb(), penna.larghezza * verticale_.scala,
                   painter_.testRenderHint(QPainter::Antialiasing));
    return true;
}

QRectF SuperficieQt::RettangoloPixel(Punto angolo, Punto opposto) const {
    QPointF a = Pixel(angolo);
    QPointF b = Pixel(opposto);
    a = {orizzontale_.Bordo(a.x()), verticale_.Bordo(a.y())};
    b = {orizzontale_.Bordo(b.x()), verticale_.Bordo(b.y())};
    return QRectF(a, b).normalized();
}

void SuperficieQt::Rettangolo(Punto angolo, Punto opposto, int32_t riempimento, double opacita) {
    QColor colore = ColoreQt(riempimento);
    colore.setAlphaF(static_cast<float>(std::clamp(opacita, 0.0, 1.0)));
    painter_.fillRect(RettangoloPixel(angolo, opposto), colore);
}

void SuperficieQt::TriangoloSfumato(const Punto (&vertici)[3], const int32_t (&colori)[3]) {
    Triangolo t{.a = dispositivo_.map(Pixel(vertici[0])),
                .b = dispositivo_.map(Pixel(vertici[1])),
                .c = dispositivo_.map(Pixel(vertici[2])),
                .colori = {ColoreQt(colori[0]), ColoreQt(colori[1]), ColoreQt(colori[2])}};
    const QRectF quadro = dispositivo_.mapRect(QRectF(0, 0, larghezza_, altezza_));
    const QRectF contorno = QPolygonF({t.a, t.b, t.c}).boundingRect();
    const QRect riquadro = contorno.intersected(quadro).toAlignedRect();
    if (riquadro.isEmpty() || Area(t.a, t.b, t.c) == 0)
        return;
    const QRectF logico = dispositivo_.inverted().mapRect(QRectF(riquadro));
    painter_.drawImage(logico, DipingiTriangolo(t, riquadro));
}

void SuperficieQt::Scrivi(const QFont& font, Punto dove, Ancora ancora, const std::string& testo,
                          int32_t colore) {
    const QFontMetricsF misure(font, painter_.device());
    const QString scritta = QString::fromStdString(testo);
    QPointF base = Pixel(dove) + InizioTesto(ancora, misure.horizontalAdvance(scritta), misure);
    base = {orizzontale_.Bordo(base.x()), verticale_.Bordo(base.y())};
    painter_.setFont(font);
    painter_.setPen(ColoreQt(colore));
    painter_.drawText(base, scritta);
}

Punto SuperficieQt::Misura(const QFont& font, const std::string& testo) const {
    const QFontMetricsF misure(font, painter_.device());
    return {misure.horizontalAdvance(QString::fromStdString(testo)), misure.height()};
}

void SuperficieQt::Testo(Punto dove, Ancora ancora, const std::string& testo, int32_t colore,
                         double altezza) {
    Scrivi(Carattere(altezza), dove, ancora, testo, colore);
}

Punto SuperficieQt::DimensioneTesto(const std::string& testo, double altezza) const {
    return Misura(Carattere(altezza), testo);
}

void SuperficieQt::TestoPassoFisso(Punto dove, Ancora ancora, const std::string& testo,
                                   int32_t colore, double altezza) {
    Scrivi(CarattereFisso(altezza), dove, ancora, testo, colore);
}

Punto SuperficieQt::DimensionePassoFisso(const std::string& testo, double altezza) const {
    return Misura(CarattereFisso(altezza), testo);
}

void SuperficieQt::Ritaglio(Punto angolo, Punto opposto) {
    const QRectF dove = RettangoloPixel(angolo, opposto);
    painter_.save();
    painter_.setClipRect(dove, Qt::IntersectClip);
    const QRect pixel = dispositivo_.mapRect(dove).toRect();
    ritagli_.push_back(ritagli_.empty() ? pixel : pixel & ritagli_.back());
}

void SuperficieQt::FineRitaglio() {
    if (ritagli_.empty())
        return;
    painter_.restore();
    ritagli_.pop_back();
}

} // namespace orvane
