#include "ui/AnteprimaGrafico.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "data/Panels.h"
#include "platform/qt/SuperficieQt.h"
#include "records/ColoriGrafico.h"
#include "ui/Tema.h"

namespace orvane {
namespace {

constexpr double kStartMhz = 0.15;
constexpr double kStopMhz = 30;
constexpr int kPunti = 900;
/// A limit as mains limits run: falling, level, a step up. Frequency, share of the height.
constexpr std::array<Punto, 5> kLimite = {
    {{0.15, 0.82}, {0.5, 0.7}, {5, 0.7}, {5, 0.76}, {30, 0.76}}};
constexpr double kFreqMarcatore = 0.45;

/// Share of the height at a frequency: the comb of a switching supply over its noise.
double Quota(double mhz, double base) {
    const double decadi = std::log10(mhz / kStartMhz);
    const double pettine = std::pow(std::abs(std::cos(mhz * 3.14159 / 0.15)), 14);
    const double rumore = 0.5 * std::sin(mhz * 311) + 0.5 * std::sin(mhz * 173.3 + 1);
    return base + 0.32 * pettine * std::exp(-decadi * 1.1) +
           0.08 * std::exp(-std::pow((decadi - 1.9) / 0.2, 2)) + 0.016 * rumore;
}

int16_t Livello(const ScalaGrafico& scala, double quota) {
    const double cent = scala.basso + quota * (scala.alto - scala.basso);
    return static_cast<int16_t>(cent - scala.UnitOffset * 100);
}

ColonneTraccia Traccia(const ScalaGrafico& scala, double base) {
    ColonneTraccia traccia(kStartMhz, kStopMhz, std::max(1, int(scala.larghezzaPixel)), true);
    for (int i = 0; i < kPunti; ++i) {
        const double mhz = kStartMhz * std::pow(kStopMhz / kStartMhz, double(i) / (kPunti - 1));
        traccia.Aggiungi(mhz, Livello(scala, Quota(mhz, base)));
    }
    return traccia;
}

double Altezza(const ScalaGrafico& scala, double quota) {
    return scala.basso + quota * (scala.alto - scala.basso);
}

void DisegnaLimite(Superficie& superficie, const ScalaGrafico& scala, const Penna& penna) {
    std::array<Punto, kLimite.size()> punti;
    std::transform(kLimite.begin(), kLimite.end(), punti.begin(), [&](const Punto& p) {
        return Punto{PosizioneX(scala, p.x).value_or(0), Altezza(scala, p.y)};
    });
    superficie.Spezzata(punti, penna);
}

} // namespace

AnteprimaGrafico::AnteprimaGrafico(const EnvRecord& env, QWidget* padre)
    : QWidget(padre), env_(env), setup_(SetupDefault()) {
    setObjectName(QStringLiteral("PictAnteprima"));
    setAccessibleName(tr("Preview"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void AnteprimaGrafico::ImpostaStampa(bool stampa) {
    stampa_ = stampa;
    update();
}

void AnteprimaGrafico::DisegnaContenuto(Superficie& superficie, const ModoQuadro& modo,
                                        const ScalaGrafico& scala, const RiquadroGriglia& griglia,
                                        double altezzaTesto) {
    const auto colori = [&](size_t i) { return env_.GraphColors[i]; };
    for (const auto& [detector, base] :
         {std::pair{DetectorKind::Peak, 0.36}, std::pair{DetectorKind::QPeak, 0.26}})
        DisegnaTraccia(superficie, scala, griglia, Traccia(scala, base),
                       PennaTraccia(modo, ColoreTraccia(env_, detector)));
    if (!ImpostaCoordinate(superficie, scala, griglia))
        return;
    DisegnaLimite(superficie, scala, PennaTraccia(modo, colori(colore::kLimiti)));
    const double x = PosizioneX(scala, kFreqMarcatore).value_or(0);
    const double y = Altezza(scala, Quota(kFreqMarcatore, 0.36));
    const double passo = (scala.alto - scala.basso) / griglia.altezza;
    superficie.Linea({x, scala.basso}, {x, scala.alto},
                     {.colore = colori(colore::kMarcatori), .tratto = Tratto::Tratteggiato});
    superficie.Testo({x + 4, scala.alto - 3 * passo}, Ancora::SinistraAlto, "M1",
                     colori(colore::kMarcatori), altezzaTesto);
    superficie.Testo({x, y + 2 * passo}, Ancora::CentroMezzo, "+", colori(colore::kPicchi),
                     altezzaTesto * 1.3);
}

void AnteprimaGrafico::paintEvent(QPaintEvent*) {
    QPainter p(this);
    const double rapporto = devicePixelRatioF();
    const QSizeF misura = QSizeF(size()) * rapporto;
    // Whatever part of a pixel is left at the edges.
    p.fillRect(rect(), stampa_ ? QColor(Qt::white) : Tinta(palette(), Ruolo::Finestra));
    p.scale(1 / rapporto, 1 / rapporto);
    const ModoQuadro modo{.env = env_,
                          .aspetto = LeggiAspetto(env_),
                          .tavolozza = palette(),
                          .rapporto = rapporto,
                          .stampa = stampa_};
    const TintaGrafico tinte = TinteQuadro(modo, font());
    SuperficieQt superficie(p, misura.width(), misura.height());
    const RiquadroGriglia griglia = DisponiGriglia(superficie, tinte);
    const ScalaGrafico scala =
        SetScaleGraph(setup_, kStartMhz, kStopMhz, true, griglia.larghezza, 0);
    DisegnaGrigliaQuadro(p, misura, modo, tinte, scala, griglia, TabellaUnitaGrafico()[1].testo);
    p.setRenderHint(QPainter::Antialiasing, modo.aspetto.lisce != 0);
    DisegnaContenuto(superficie, modo, scala, griglia, tinte.altezzaTesto);
}

} // namespace orvane
