#include "ui/MainPict.h"

#include <algorithm>
#include <cmath>

#include "base/Numeri.h"
#include "platform/qt/SuperficieQt.h"
#include "records/ColoriGrafico.h"
#include "ui/LBMultiMK.h"
#include "ui/SBZoomSweep.h"
#include "ui/Tema.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

/// A run is seen to grow, and the picture costs little beside it.
constexpr int kRidisegnoMs = 60;
/// The axis of a picture that has nothing to show.
constexpr double kStartVuoto = 0.15;
constexpr double kStopVuoto = 30;

} // namespace

MainPict::MainPict(const EnvRecord& env, const SetupRecord& setup, QWidget* padre)
    : QWidget(padre), env_(env), setup_(setup), lettura_(new LBMultiMK(this)),
      barra_(new SBZoomSweep(this)) {
    setObjectName(QStringLiteral("MainPict"));
    setAccessibleName(tr("Picture of the traces"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    mostrati_.fill(true);
    ridisegno_.setSingleShot(true);
    ridisegno_.setInterval(kRidisegnoMs);
    connect(&ridisegno_, &QTimer::timeout, this, [this] {
        if (!haMisura_)
            AggiornaLettura();
        update();
    });
    connect(barra_, &SBZoomSweep::valueChanged, this,
            [this](int posto) { DopoZoom(zoom_.Scorri(posto)); });
    tracce_.Inizia(kStartVuoto, kStopVuoto);
}

void MainPict::IniziaTraccia(double startMhz, double stopMhz) {
    if (haMisura_)
        SvuotaMisura();
    const bool vuota = !(startMhz > 0 && stopMhz > startMhz);
    tracce_.Inizia(vuota ? kStartVuoto : startMhz, vuota ? kStopVuoto : stopMhz);
    DrawGrid();
}

void MainPict::ScegliPassata(int passata, const QString& nome) {
    tracce_.Scegli(passata, nome);
    InvalidaTracce();
}

void MainPict::Aggiungi(double freqMhz, const SampleRecord& campione) {
    tracce_.Corrente().Aggiungi(freqMhz, campione);
    stratoValido_ = false;
    if (!ridisegno_.isActive())
        ridisegno_.start();
}

void MainPict::MostraDetector(const std::array<bool, kNumDetector>& quali) {
    mostrati_ = quali;
    InvalidaTracce();
    AggiornaLettura();
}

void MainPict::DrawGrid() {
    sfondoValido_ = false;
    Riscala();
    AggiornaLettura();
    update();
}

void MainPict::InvalidaTracce() {
    stratoValido_ = false;
    update();
}

void MainPict::ImpostaInvito(const QString& testo) {
    invito_ = testo;
    update();
}

CampoMhz MainPict::CampoMostrato() const {
    if (haMisura_ && zoom_.Vista().start < zoom_.Vista().stop)
        return zoom_.Vista();
    if (haMisura_)
        return {kStartVuoto, kStopVuoto};
    return {Deposito().Start(), Deposito().Stop()};
}

double MainPict::LivelloA(double y) const {
    const double parte = (y * Rapporto() - griglia_.alto) / std::max(1.0, griglia_.altezza);
    return (scala_.alto - parte * (scala_.alto - scala_.basso)) / 100;
}

std::optional<double> MainPict::PostoX(double mhz) const {
    const auto x = PosizioneX(scala_, mhz);
    constexpr double kOrlo = 0.5;
    if (!x || *x < -kOrlo || *x > griglia_.larghezza + kOrlo)
        return std::nullopt;
    return (griglia_.sinistra + *x) / Rapporto();
}

/// The panel shows the markers of a measure, or what lies under the pointer during a run.
void MainPict::AggiornaLettura() {
    lettura_->setFont(CarattereLettura());
    lettura_->setAttribute(Qt::WA_TransparentForMouseEvents, !haMisura_);
    std::vector<RigaLettura> righe;
    if (haMisura_)
        righe = RigheMarker(contenuto_, setup_, palette());
    else if (puntataX_ >= 0 && !tracce_.Vuoto())
        righe = LettureCorsa(XToFreq(scala_, puntataX_));
    setAccessibleDescription(haMisura_ ? TestoRighe(righe) : QString());
    lettura_->Mostra(std::move(righe));
    Q_EMIT LetturaCambiata(TestoStatoMarker(contenuto_, setup_));
    DisponiFigli();
}

/// What stands under the pointer: the frequency, and each trace's level in its colour.
std::vector<RigaLettura> MainPict::LettureCorsa(double mhz) const {
    const QColor velo = Tinta(palette(), Ruolo::Velo);
    std::vector<RigaLettura> righe = {
        {TestoFrequenza(mhz),
         {},
         {},
         ColoreLeggibile(ColoreQt(env_.GraphColors[colore::kLettura]), velo)}};
    for (const TraccePassate::Strato* strato : tracce_.Visibili())
        for (size_t d = 0; d < kNumDetector; ++d) {
            const auto livello = strato->deposito.Livello(static_cast<DetectorKind>(d), mhz);
            if (!livello || !mostrati_[d])
                continue;
            QStringList parole = {strato->nome, QLatin1String(kNomiDetector[d])};
            parole.removeAll(QString());
            righe.push_back({parole.join(QLatin1Char(' ')),
                             Q(TestoFisso(*livello / 100.0 + scala_.UnitOffset, 2)),
                             {},
                             ColoreLeggibile(ColoreStrato(*strato, d), velo)});
        }
    return righe;
}

} // namespace orvane
