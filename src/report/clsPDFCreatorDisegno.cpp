#include <algorithm>
#include <cmath>

#include "report/clsPDFCreator.h"

namespace orvane {
namespace {

constexpr double kGradi = 3.141592 / 180;
constexpr float kQuarto = 0.55f; // distance of a quarter's control points, in radii

} // namespace

void clsPDFCreator::Operatore(float valore, std::string_view operatore) {
    Contenuto(FormatNumber(valore, 3) + " " + std::string(operatore) + "\r\n");
}

void clsPDFCreator::Punti(std::initializer_list<PuntoPdf> punti, std::string_view operatore) {
    riga_.clear();
    for (const PuntoPdf& p : punti)
        for (const float v : {p.x, p.y}) {
            AccodaNumero(riga_, ToPoints(v), 3);
            riga_ += ' ';
        }
    riga_ += operatore;
    riga_ += "\r\n";
    Contenuto(riga_);
}

void clsPDFCreator::Colore(int32_t colore, std::string_view rgb, std::string_view grigio) {
    if (colore >= -255 && colore <= 0)
        return Contenuto(FormatNumber(-colore / 255.0, 3) + " " + std::string(grigio) + "\r\n");
    riga_.clear();
    for (const int spostamento : {0, 8, 16}) {
        AccodaNumero(riga_, (static_cast<uint32_t>(colore) >> spostamento & 0xFF) / 255.0, 3);
        riga_ += ' ';
    }
    riga_ += rgb;
    riga_ += "\r\n";
    Contenuto(riga_);
}

void clsPDFCreator::SetDash(std::span<const float> tratti) {
    std::string testo = "[";
    for (const float tratto : tratti)
        testo += FormatNumber(tratto, 3) + " ";
    Contenuto((tratti.empty() ? "[ " : testo) + "] 0 d\r\n");
}

void clsPDFCreator::Curve(PuntoPdf primo, PuntoPdf secondo, PuntoPdf fine) {
    Punti({primo, secondo, fine}, "c");
}

void clsPDFCreator::PathPaint(unsigned opzioni) {
    const bool riempi = opzioni & tracciato::kRiempi;
    const bool traccia = opzioni & tracciato::kTraccia;
    const bool chiudi = opzioni & tracciato::kChiudi;
    if (riempi && traccia)
        return Contenuto(chiudi ? "b\r\n" : "B\r\n");
    if (chiudi)
        Contenuto("h\r\n");
    Contenuto(traccia ? "S\r\n" : riempi ? "f\r\n" : "n\r\n");
}

void clsPDFCreator::Rectangle(float x, float y, float larghezza, float altezza, unsigned opzioni,
                              float raggio) {
    const float metaLato = std::min(std::abs(larghezza), std::abs(altezza)) / 2;
    raggio = std::min(raggio, metaLato);
    if (raggio > 0)
        AngoliTondi({std::min(x, x + larghezza), std::min(y, y + altezza)},
                    {std::max(x, x + larghezza), std::max(y, y + altezza)}, raggio);
    else
        Punti({{x, y}, {larghezza, altezza}}, "re");
    PathPaint(opzioni);
}

void clsPDFCreator::AngoliTondi(const PuntoPdf& basso, const PuntoPdf& alto, float raggio) {
    const float resto = raggio - raggio * kQuarto; // from the corner to its control point
    MoveTo(basso.x + raggio, basso.y);
    LineTo(alto.x - raggio, basso.y);
    Curve({alto.x - resto, basso.y}, {alto.x, basso.y + resto}, {alto.x, basso.y + raggio});
    LineTo(alto.x, alto.y - raggio);
    Curve({alto.x, alto.y - resto}, {alto.x - resto, alto.y}, {alto.x - raggio, alto.y});
    LineTo(basso.x + raggio, alto.y);
    Curve({basso.x + resto, alto.y}, {basso.x, alto.y - resto}, {basso.x, alto.y - raggio});
    LineTo(basso.x, basso.y + raggio);
    Curve({basso.x, basso.y + resto}, {basso.x + resto, basso.y}, {basso.x + raggio, basso.y});
}

void clsPDFCreator::DrawCircle(PuntoPdf c, float raggio, unsigned opzioni) {
    const float k = raggio * kQuarto;
    MoveTo(c.x + raggio, c.y);
    Curve({c.x + raggio, c.y + k}, {c.x + k, c.y + raggio}, {c.x, c.y + raggio});
    Curve({c.x - k, c.y + raggio}, {c.x - raggio, c.y + k}, {c.x - raggio, c.y});
    Curve({c.x - raggio, c.y - k}, {c.x - k, c.y - raggio}, {c.x, c.y - raggio});
    Curve({c.x + k, c.y - raggio}, {c.x + raggio, c.y - k}, {c.x + raggio, c.y});
    PathPaint(opzioni);
}

void clsPDFCreator::Arc(const ArcoPdf& arco, unsigned opzioni) {
    const double seno = std::sin(arco.rotazione * kGradi);
    const double coseno = std::cos(arco.rotazione * kGradi);
    // A point of the ellipse, or with `tangente` a step along it from there.
    const auto punto = [&](double angolo, double tangente) {
        const double x = arco.raggioX * (std::cos(angolo) - tangente * std::sin(angolo));
        const double y = arco.raggioY * (std::sin(angolo) + tangente * std::cos(angolo));
        return PuntoPdf{arco.centro.x + static_cast<float>(x * coseno - y * seno),
                        arco.centro.y + static_cast<float>(x * seno + y * coseno)};
    };
    const double ampiezza = std::clamp<double>(arco.a - arco.da, -360, 360);
    const int pezzi = std::max(1, static_cast<int>(std::ceil(std::abs(ampiezza) / 90)));
    const double passo = ampiezza / pezzi * kGradi;
    const double tangente = 4.0 / 3.0 * std::tan(passo / 4);
    double angolo = arco.da * kGradi;
    const PuntoPdf inizio = punto(angolo, 0);
    MoveTo(inizio.x, inizio.y);
    for (int i = 0; i < pezzi; ++i, angolo += passo)
        Curve(punto(angolo, tangente), punto(angolo + passo, -tangente), punto(angolo + passo, 0));
    PathPaint(opzioni);
}

} // namespace orvane
