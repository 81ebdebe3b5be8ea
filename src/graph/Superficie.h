// The seam to a picture: user coordinates, lines, shapes and text, whoever paints them.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace orvane {

struct Punto {
    double x = 0;
    double y = 0;
};

enum class Tratto { Pieno, Punteggiato, Tratteggiato };

/// `colore` as `Rgb` makes it. Width in pixels.
struct Penna {
    int32_t colore = 0;
    double larghezza = 1;
    Tratto tratto = Tratto::Pieno;
};

/// A line that is as dense as the pixels, one column of it: its extremes, and the levels where it
/// comes in from the left and goes out to the right.
struct TrattoColonna {
    double minimo = 0;
    double massimo = 0;
    double entra = 0;
    double esce = 0;
};

/// Which point of a text lies at the given place.
enum class Ancora {
    SinistraAlto,
    CentroAlto,
    DestraAlto,
    SinistraMezzo,
    CentroMezzo,
    DestraMezzo,
    SinistraBasso,
    CentroBasso,
    DestraBasso
};

struct Superficie {
    virtual ~Superficie() = default;

    /// Size of the picture in pixels.
    virtual double LarghezzaPixel() const = 0;
    virtual double AltezzaPixel() const = 0;
    /// User coordinates of the picture's edges; every later call is in these.
    virtual void Scala(double sinistra, double alto, double destra, double basso) = 0;
    virtual void Linea(Punto da, Punto a, const Penna& penna) = 0;
    virtual void Spezzata(std::span<const Punto> punti, const Penna& penna) = 0;
    /// An unbroken line by columns of width `passo` from `sinistra` on, each going out where the
    /// next comes in. False, and nothing drawn, where such columns are not the surface's own
    /// pixels: then a polyline serves.
    virtual bool Colonne(double /*sinistra*/, double /*passo*/,
                         std::span<const TrattoColonna> /*colonne*/, const Penna& /*penna*/) {
        return false;
    }
    virtual void Rettangolo(Punto angolo, Punto opposto, int32_t riempimento, double opacita) = 0;
    /// Colour runs from corner to corner.
    virtual void TriangoloSfumato(const Punto (&vertici)[3], const int32_t (&colori)[3]) = 0;
    /// `altezza` of the letters in pixels.
    virtual void Testo(Punto dove, Ancora ancora, const std::string& testo, int32_t colore,
                       double altezza) = 0;
    /// Width and height of a text, in pixels.
    virtual Punto DimensioneTesto(const std::string& testo, double altezza) const = 0;
    /// The same in the fixed-pitch face, each letter as wide as the next; a surface that has none
    /// writes in the face of `Testo`.
    virtual void TestoPassoFisso(Punto dove, Ancora ancora, const std::string& testo,
                                 int32_t colore, double altezza) {
        Testo(dove, ancora, testo, colore, altezza);
    }
    virtual Punto DimensionePassoFisso(const std::string& testo, double altezza) const {
        return DimensioneTesto(testo, altezza);
    }
    /// What is drawn from here on shows only inside this rectangle; `FineRitaglio` ends it.
    virtual void Ritaglio(Punto angolo, Punto opposto) = 0;
    virtual void FineRitaglio() = 0;
};

} // namespace orvane
