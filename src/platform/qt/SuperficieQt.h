// The picture surface over a painter: widgets, pixmaps, images and printers.
#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QTransform>
#include <optional>
#include <vector>

#include "graph/Superficie.h"

namespace orvane {

/// The colour that `Rgb` packed.
QColor ColoreQt(int32_t colore);

/// Qt's start-up, opaque fills and polylines may leave the upper halves of the wide registers in
/// use. Numeric loops run many times slower from then on, until this clears them. The surface does
/// so at its end; worth a call before other long arithmetic.
void LiberaRegistri();

/// Paints with an active painter, which it must not outlive. Lines along the axes and rectangles
/// fall on whole pixels of the device, whatever its pixel ratio. On an image, or a window that is
/// kept as one, columns of traces go straight into its pixels; a QPixmap gives no way to them.
class SuperficieQt : public Superficie {
public:
    /// Size of the picture in logical pixels; its top left is the painter's origin.
    SuperficieQt(QPainter& painter, double larghezza, double altezza);
    ~SuperficieQt() override;
    SuperficieQt(const SuperficieQt&) = delete;
    SuperficieQt& operator=(const SuperficieQt&) = delete;

    double LarghezzaPixel() const override { return larghezza_; }
    double AltezzaPixel() const override { return altezza_; }
    void Scala(double sinistra, double alto, double destra, double basso) override;
    void Linea(Punto da, Punto a, const Penna& penna) override;
    void Spezzata(std::span<const Punto> punti, const Penna& penna) override;
    bool Colonne(double sinistra, double passo, std::span<const TrattoColonna> colonne,
                 const Penna& penna) override;
    void Rettangolo(Punto angolo, Punto opposto, int32_t riempimento, double opacita) override;
    void TriangoloSfumato(const Punto (&vertici)[3], const int32_t (&colori)[3]) override;
    void Testo(Punto dove, Ancora ancora, const std::string& testo, int32_t colore,
               double altezza) override;
    Punto DimensioneTesto(const std::string& testo, double altezza) const override;
    /// "Courier New", or the machine's own fixed-pitch face.
    void TestoPassoFisso(Punto dove, Ancora ancora, const std::string& testo, int32_t colore,
                         double altezza) override;
    Punto DimensionePassoFisso(const std::string& testo, double altezza) const override;
    void Ritaglio(Punto angolo, Punto opposto) override;
    void FineRitaglio() override;

private:
    /// One direction of the device: its pixels against logical ones.
    struct Retino {
        double scala = 1;
        double inizio = 0;
        /// Logical place where the pixel under `v` begins.
        double Pixel(double v) const;
        /// Logical place of the nearest edge between two pixels.
        double Bordo(double v) const;
        /// Logical width of the whole pixels, at least one, that come nearest to a width.
        double Spessore(double larghezza) const;
    };

    void Puntini(QPointF inizio, QPointF fine, const QPen& penna);
    void Traccia(std::span<const QPointF> pixel, const Penna& penna);
    void Scrivi(const QFont& font, Punto dove, Ancora ancora, const std::string& testo,
                int32_t colore);
    Punto Misura(const QFont& font, const std::string& testo) const;
    QPointF Pixel(Punto p) const;
    const QImage* ImmagineDiretta() const;
    std::optional<QRect> RitaglioDiretto(const QImage& immagine) const;
    QRectF RettangoloPixel(Punto angolo, Punto opposto) const;

    QPainter& painter_;
    double larghezza_;
    double altezza_;
    QTransform dispositivo_; ///< logical pixels to those of the device
    Retino orizzontale_;
    Retino verticale_;
    double scalaX_ = 1;
    double scalaY_ = 1;
    Punto origine_;
    bool ritaglioAltrui_ = false; ///< the painter came with a clip of its own
    std::vector<QRect> ritagli_;  ///< pixels of the device, each inside the one before
};

} // namespace orvane
