#include "ui/DisegnoQuadro.h"

#include <algorithm>

#include "platform/qt/SuperficieQt.h"
#include "records/ColoriGrafico.h"
#include "ui/Tema.h"

namespace orvane {
namespace {

/// Height of the numbers along the axes, in line heights.
constexpr double kAltezzaTesto = 0.72;

QColor Fondo(const ModoQuadro& modo, Ruolo ruolo) {
    return modo.stampa ? QColor(Qt::white) : Tinta(modo.tavolozza, ruolo);
}

int32_t Colore(const QColor& c) {
    return Rgb(c.red(), c.green(), c.blue());
}

void DisegnaCornice(Superficie& superficie, const ScalaGrafico& scala, int32_t colore) {
    const double destra = scala.larghezzaPixel;
    const Penna penna{.colore = colore};
    superficie.Linea({0, scala.alto}, {destra, scala.alto}, penna);
    superficie.Linea({0, scala.basso}, {destra, scala.basso}, penna);
    superficie.Linea({0, scala.basso}, {0, scala.alto}, penna);
    superficie.Linea({destra, scala.basso}, {destra, scala.alto}, penna);
}

} // namespace

TintaGrafico TinteQuadro(const ModoQuadro& modo, const QFont& carattere) {
    const double riga = QFontMetricsF(carattere).height();
    return {.sfondo = Colore(Fondo(modo, Ruolo::Grafico)),
            .scritte = modo.env.GraphColors[colore::kEtichette],
            .PrintColors = modo.stampa,
            .altezzaTesto = riga * kAltezzaTesto * modo.aspetto.testoGrafico / 100 * modo.rapporto,
            .linee = modo.aspetto.Linee()};
}

void DisegnaGrigliaQuadro(QPainter& p, const QSizeF& misura, const ModoQuadro& modo,
                          const TintaGrafico& tinte, const ScalaGrafico& scala,
                          const RiquadroGriglia& griglia, const std::string& unita) {
    p.fillRect(QRectF({}, misura), Fondo(modo, Ruolo::Finestra));
    p.fillRect(QRectF(griglia.sinistra, griglia.alto, griglia.larghezza, griglia.altezza),
               Fondo(modo, Ruolo::Grafico));
    SuperficieQt superficie(p, misura.width(), misura.height());
    // The grid's colours come from the panel, for light and dark alike: thinned, so that the traces
    // stand out on either ground.
    p.setOpacity(modo.stampa ? 1 : modo.aspetto.opacitaGriglia / 100.0);
    Grid(superficie, scala, griglia, modo.env, tinte);
    p.setOpacity(1);
    if (ImpostaCoordinate(superficie, scala, griglia))
        DisegnaCornice(superficie, scala, modo.env.GraphColors[colore::kCornice]);
    GridLabel(superficie, scala, griglia, tinte, unita);
}

Penna PennaTraccia(const ModoQuadro& modo, int32_t colore) {
    const double larga = modo.aspetto.spessoreTracce / 10.0 * modo.rapporto;
    return {.colore = colore, .larghezza = std::max(1.0, larga)};
}

} // namespace orvane
