#include "ui/QuadroTabella.h"

#include <algorithm>

#include <QPainter>

#include "graph/CurvaTabella.h"
#include "platform/qt/SuperficieQt.h"
#include "ui/Tema.h"

namespace orvane {
namespace {

constexpr double kOpacitaGriglia = 0.35;
constexpr double kSpessore = 1.5;

int32_t Impacca(const QColor& c) {
    return Rgb(c.red(), c.green(), c.blue());
}

} // namespace

QuadroTabella::QuadroTabella(const EnvRecord& env, QWidget* padre) : QWidget(padre), env_(env) {
    setObjectName(QStringLiteral("QuadroTabella"));
    setAccessibleName(QObject::tr("Picture of the table"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void QuadroTabella::Mostra(const ContenutoTabella& c, std::optional<size_t> riga) {
    contenuto_ = c;
    riga_ = riga;
    update();
}

void QuadroTabella::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), Tinta(palette(), Ruolo::Finestra));
    p.setFont(font());
    const TintaGrafico tinte{.sfondo = Impacca(Tinta(palette(), Ruolo::Grafico)),
                             .scritte = Impacca(Tinta(palette(), Ruolo::Tenue)),
                             .PrintColors = false,
                             .altezzaTesto = QFontMetricsF(font()).height() * 0.72};
    SuperficieQt superficie(p, width(), height());
    const RiquadroGriglia dove = DisponiGriglia(superficie, tinte);
    p.fillRect(QRectF(dove.sinistra, dove.alto, dove.larghezza, dove.altezza),
               Tinta(palette(), Ruolo::Grafico));
    const ScalaGrafico scala = ScalaTabella(contenuto_, dove.larghezza);
    // The panel's grid colours serve light and dark alike; thinned, the curve stands out on both.
    p.setOpacity(kOpacitaGriglia);
    Grid(superficie, scala, dove, env_, tinte);
    p.setOpacity(1);
    const auto unita = static_cast<size_t>(std::clamp<int>(contenuto_.unitId, 0, 7));
    GridLabel(superficie, scala, dove, tinte, TabellaUnitaGrafico()[unita].testo);
    DisegnaTabella(superficie, scala, dove, contenuto_, riga_, env_, kSpessore);
}

} // namespace orvane
