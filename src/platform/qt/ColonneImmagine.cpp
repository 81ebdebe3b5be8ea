// Coverage of a column by its two edges, and columns side by side filled together.
#include "platform/qt/ColonneImmagine.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace orvane {
namespace {

/// Columns whose common part is filled row by row: as many pixels as lie in one line of the cache.
constexpr int kColonneInsieme = 16;
constexpr uint32_t kPieno = 256;
constexpr double kLontano = std::numeric_limits<double>::infinity();

/// One end of a run, measured away from it: upwards for the top, downwards for the bottom. The edge
/// of a line that crosses the column aslant covers it bit by bit, over `pendenza` pixels up to
/// `fine`; nothing of it shows beyond `limite`.
struct Estremo {
    double fine = 0;
    double pendenza = 0;
    double limite = 0;
    double accanto = -kLontano;   ///< how far the pen reaches over from columns beside it, whole...
    double sbavatura = -kLontano; ///< ...and in part

    /// Share of the pixel from `y` to `y` + 1 that lies on this side of the edge.
    double Copre(double y) const {
        const double bordo =
            std::clamp((fine - pendenza / 2 - y - 0.5) / (1 + pendenza) + 0.5, 0.0, 1.0);
        return std::max(std::min(bordo, std::clamp(limite - y, 0.0, 1.0)),
                        std::clamp(accanto - y, 0.0, 1.0));
    }
    double Pieno() const { return std::max(std::min(fine - pendenza, limite), accanto); }
    double Ultimo() const { return std::max({std::min(fine, limite), accanto, sbavatura}); }
};

/// How far a column reaches one way.
struct Portata {
    double punta;    ///< farthest sample
    double corda;    ///< farther one of the places where the line comes in and goes out
    double pendenza; ///< from one to the other
    double Oltre() const { return punta - corda; }
    double Cima() const { return std::max(punta, corda); }
};
Portata PortataDi(const ColonnaPixel& c, bool su) {
    const double s = std::abs(c.esce - c.entra);
    return su ? Portata{-c.alto, -std::min(c.entra, c.esce), s}
              : Portata{c.basso, std::max(c.entra, c.esce), s};
}

/// How far a pen reaches over into the columns beside its own.
struct Raggio {
    int sinistra = 0; ///< whole columns
    int destra = 0;
    double parte = 0; ///< of the column behind those
};
Raggio RaggioPenna(double larghezza, bool liscia) {
    const double fuori = (larghezza - 1) / 2;
    if (liscia)
        return {.sinistra = static_cast<int>(fuori),
                .destra = static_cast<int>(fuori),
                .parte = fuori - std::floor(fuori)};
    const int colonne = static_cast<int>(std::ceil(larghezza - 0.5)) - 1;
    return {.sinistra = colonne / 2, .destra = colonne - colonne / 2};
}

/// The ends one way of all columns.
class EstremiColonne {
public:
    EstremiColonne(std::span<const ColonnaPixel> colonne, bool su, double larghezza,
                   const Raggio& raggio)
        : colonne_(colonne), su_(su), mezza_(larghezza / 2), raggio_(raggio) {}

    Estremo Trova(int i) const {
        const Portata p = Di(i);
        // A line that only passes through is thicker along the column the steeper it is; a spike
        // that turns in it ends flat.
        const double passa = std::clamp(1 - p.Oltre(), 0.0, 1.0);
        const double mezza = mezza_ * (1 + passa * (std::hypot(1, p.pendenza) - 1));
        Estremo e{.fine = p.Cima() + mezza,
                  .pendenza = passa * std::min(p.pendenza, 2 * mezza),
                  .limite = Intorno(i) + mezza_};
        for (int d = 1; d <= raggio_.destra; ++d)
            e.accanto = std::max(e.accanto, Accanto(i - d, d));
        for (int d = 1; d <= raggio_.sinistra; ++d)
            e.accanto = std::max(e.accanto, Accanto(i + d, d));
        if (raggio_.parte > 0)
            e.sbavatura = std::max(Accanto(i - raggio_.destra - 1, raggio_.destra + 1),
                                   Accanto(i + raggio_.sinistra + 1, raggio_.sinistra + 1));
        return e;
    }

private:
    Portata Di(int i) const { return PortataDi(colonne_[static_cast<size_t>(i)], su_); }
    bool Dentro(int i) const { return i >= 0 && i < static_cast<int>(colonne_.size()); }

    /// How far the line reaches here and beside.
    double Intorno(int i) const {
        double cima = Di(i).Cima();
        for (const int j : {i - 1, i + 1})
            if (Dentro(j))
                cima = std::max(cima, Di(j).Cima());
        return cima;
    }
    /// How far a column at a distance reaches with the pen's edge: a spike all the way, a line that
    /// only passes through falls off, for its thickness has counted already.
    double Accanto(int j, int distanza) const {
        if (!Dentro(j))
            return -kLontano;
        const Portata p = Di(j);
        return p.Cima() + mezza_ - (p.Oltre() > 1 ? 0 : distanza);
    }

    std::span<const ColonnaPixel> colonne_;
    bool su_;
    double mezza_;
    Raggio raggio_;
};

/// A run between its ends: rows from `prima` on that show, and those from `piena` to `finePiena`
/// that it fills.
struct Corsa {
    Estremo alto; ///< counts upwards
    Estremo basso;
    int prima = 0;
    int piena = 0;
    int finePiena = 0;
    int fine = 0;

    double Copertura(int riga, double pesoSbavatura) const {
        const double y = riga;
        const double su = -y - 1;
        const bool sopra = y + 0.5 < (basso.fine - alto.fine) / 2;
        const double sbavatura = sopra ? alto.sbavatura - su : basso.sbavatura - y;
        return std::max(alto.Copre(su) + basso.Copre(y) - 1,
                        pesoSbavatura * std::clamp(sbavatura, 0.0, 1.0));
    }
    void TrovaRighe(const QRect& ritaglio) {
        const double cima = ritaglio.top();
        const double fondo = ritaglio.bottom() + 1;
        const auto riga = [&](double y) { return static_cast<int>(std::clamp(y, cima, fondo)); };
        prima = riga(std::floor(-alto.Ultimo()));
        fine = riga(std::ceil(basso.Ultimo()));
        piena = riga(std::ceil(-alto.Pieno()));
        finePiena = riga(std::floor(basso.Pieno()));
        if (piena >= finePiena)
            piena = finePiena = fine;
    }
};

uint32_t Mescola(uint32_t sotto, uint32_t sopra, uint32_t quanto) {
    constexpr uint32_t kPari = 0x00ff00ff;
    const uint32_t resto = kPieno - quanto;
    const uint32_t pari = (sopra & kPari) * quanto + (sotto & kPari) * resto;
    const uint32_t dispari = (sopra >> 8 & kPari) * quanto + (sotto >> 8 & kPari) * resto;
    return (pari >> 8 & kPari) | (dispari & ~kPari);
}

/// The image with what is painted into it.
struct Tela {
    uint32_t* pixel;
    ptrdiff_t passo;
    uint32_t colore;
    double pesoSbavatura;
    bool liscia;

    uint32_t* Riga(int x, int y) const { return pixel + y * passo + x; }

    void Bordo(const Corsa& c, int x, int da, int fino) const {
        for (int y = da; y < fino; ++y) {
            const double copertura = c.Copertura(y, pesoSbavatura);
            uint32_t* p = Riga(x, y);
            if (!liscia && copertura >= 0.5)
                *p = colore;
            else if (liscia && copertura > 0)
                *p = Mescola(*p, colore, static_cast<uint32_t>(copertura * kPieno));
        }
    }
    void Pieno(int x, int da, int fino) const {
        for (int y = da; y < fino; ++y)
            *Riga(x, y) = colore;
    }
    void Insieme(int x, std::span<const Corsa> corse) const;
};

/// Columns side by side: what all of them fill row by row, the rest down each column.
void Tela::Insieme(int x, std::span<const Corsa> corse) const {
    int da = corse.front().piena;
    int fino = corse.front().finePiena;
    for (const Corsa& c : corse) {
        da = std::max(da, c.piena);
        fino = std::min(fino, c.finePiena);
    }
    const bool comune = da < fino;
    for (int y = da; y < fino; ++y)
        std::fill_n(Riga(x, y), corse.size(), colore);
    for (const Corsa& c : corse) {
        Bordo(c, x, c.prima, c.piena);
        Pieno(x, c.piena, comune ? da : c.finePiena);
        Pieno(x, comune ? fino : c.finePiena, c.finePiena);
        Bordo(c, x, c.finePiena, c.fine);
        ++x;
    }
}

} // namespace

bool AccettaColonne(const QImage& immagine) {
    return immagine.format() == QImage::Format_RGB32 ||
           immagine.format() == QImage::Format_ARGB32_Premultiplied;
}

void DipingiColonne(const QImage& immagine, const QRect& ritaglio, int primaX,
                    std::span<const ColonnaPixel> colonne, QRgb colore, double larghezza,
                    bool liscia) {
    const QRect dentro = ritaglio & immagine.rect();
    if (dentro.isEmpty() || !AccettaColonne(immagine))
        return;
    const double penna = std::max(larghezza, 1.0);
    const Raggio raggio = RaggioPenna(penna, liscia);
    const EstremiColonne alti(colonne, true, penna, raggio);
    const EstremiColonne bassi(colonne, false, penna, raggio);
    const Tela tela{.pixel = reinterpret_cast<uint32_t*>(const_cast<uchar*>(immagine.constBits())),
                    .passo = immagine.bytesPerLine() / ptrdiff_t{sizeof(uint32_t)},
                    .colore = colore | 0xff000000u,
                    .pesoSbavatura = raggio.parte,
                    .liscia = liscia};
    const int da = std::max(dentro.left() - primaX, 0);
    const int fino = std::min(dentro.right() + 1 - primaX, static_cast<int>(colonne.size()));
    std::array<Corsa, kColonneInsieme> corse;
    for (int i = da; i < fino; i += kColonneInsieme) {
        const int quante = std::min(kColonneInsieme, fino - i);
        for (int k = 0; k < quante; ++k) {
            Corsa& c = corse[static_cast<size_t>(k)];
            c = {.alto = alti.Trova(i + k), .basso = bassi.Trova(i + k)};
            c.TrovaRighe(dentro);
        }
        tela.Insieme(primaX + i, std::span(corse).first(static_cast<size_t>(quante)));
    }
}

} // namespace orvane
