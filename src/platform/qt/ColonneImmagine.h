// A dense trace as vertical runs, written straight into the pixels of an image.
#pragma once

#include <QImage>
#include <QRect>
#include <span>

namespace orvane {

/// One column of pixels, y downwards from the top of the image: how far the line reaches in it, and
/// where it comes in from the left and goes out to the right.
struct ColonnaPixel {
    double alto = 0;
    double basso = 0;
    double entra = 0;
    double esce = 0;
};

/// Whether the pixels of an image are kept in a way that these runs can be mixed into.
bool AccettaColonne(const QImage& immagine);

/// Paints an unbroken line, its first column at `primaX`, within `ritaglio`. `larghezza` is that of
/// the pen in pixels, at least 1; `liscia` mixes the pixels that it covers in part.
/// The image is written where it is: a copy that shares its pixels sees it too, as with a painter.
void DipingiColonne(const QImage& immagine, const QRect& ritaglio, int primaX,
                    std::span<const ColonnaPixel> colonne, QRgb colore, double larghezza,
                    bool liscia);

} // namespace orvane
