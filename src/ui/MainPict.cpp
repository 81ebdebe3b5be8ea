#include "ui/MainPict.h"

#include <algorithm>
#include <cmath>

#include "base/Numeri.h"
#include "platform/qt/SuperficieQt.h"
#include "records/ColoriGrafico.h"
#include "ui/LBMultiMK.h"
#include "ui/LBVerdetto.h"
#include "ui/SBZoomSweep.h"
#include "ui/Tema.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

constexpr int kRidisegnoMs = 40;
/// The axis of a picture that has nothing to show.
constexpr double kStartVuoto = 0.15;
constexpr double kStopVuoto = 30;
/// What a marker covers to either side of its line, logical pixels.
constexpr int kMezzoMarker = 48;

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
    connect(&ridisegno_, &QTimer::timeout, this, qOverload<>(&QWidget::update));
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

void MainPict::MostraQuadro(ContenutoQuadro contenuto, bool tieni) {
    const Marcatori markerPrima = contenuto_.marcatori;
    const auto tracciaPrima = contenuto_.misura.traccia;
    const bool stessa = tieni && haMisura_;
    contenuto_ = std::move(contenuto);
    haMisura_ = true;
    picchiTasti_.reset();
    sorvolato_.reset();
    gesto_ = Gesto::Nessuno;
    if (!stessa || contenuto_.intero != zoom_.Intero())
        zoom_.Inizia(contenuto_.intero);
    if (stessa)
        RipigliaMarker(markerPrima, *tracciaPrima);
    else
        attivo_ = 0;
    if (!stessa && !contenuto_.marcatori.indice[0] && !Traccia().empty())
        contenuto_.marcatori.indice[0] = 0;
    misurate_.Imposta(contenuto_.strati);
    CreaBadge();
    DrawGrid();
    if (const auto primo = contenuto_.marcatori.indice[0])
        Q_EMIT MarkerMosso(0, *primo);
}

/// The markers stay at their frequencies: the samples of another merge may be others.
void MainPict::RipigliaMarker(const Marcatori& prima, const SweepTrace& tracciaPrima) {
    for (size_t i = 0; i < prima.indice.size(); ++i) {
        contenuto_.marcatori.indice[i].reset();
        if (const auto indice = prima.indice[i]; indice && *indice < tracciaPrima.size())
            contenuto_.marcatori.indice[i] =
                CampioneVicino(Traccia(), tracciaPrima[*indice].freqMhz);
    }
}

void MainPict::SvuotaMisura() {
    haMisura_ = false;
    contenuto_ = {};
    misurate_.Imposta({});
    picchiTasti_.reset();
    sorvolato_.reset();
    gesto_ = Gesto::Nessuno;
    zoom_.Inizia({});
    CreaBadge();
}

void MainPict::LasciaQuadro() {
    SvuotaMisura();
    IniziaTraccia(0, 0);
}

CampoMhz MainPict::CampoMostrato() const {
    if (haMisura_ && zoom_.Vista().start < zoom_.Vista().stop)
        return zoom_.Vista();
    if (haMisura_)
        return {kStartVuoto, kStopVuoto};
    return {Deposito().Start(), Deposito().Stop()};
}

void MainPict::MuoviMarker(int quale, size_t indice) {
    const auto i = static_cast<size_t>(quale);
    if (!haMisura_ || i >= contenuto_.marcatori.indice.size() || indice >= Traccia().size())
        return;
    SegnaMarker(i);
    contenuto_.marcatori.indice[i] = indice;
    PortaInVista(Traccia()[indice].freqMhz);
    SegnaMarker(i);
    AggiornaLettura();
    Q_EMIT MarkerMosso(quale, indice);
}

void MainPict::TogliMarker(int quale) {
    const auto i = static_cast<size_t>(quale);
    if (i >= contenuto_.marcatori.indice.size())
        return;
    SegnaMarker(i);
    contenuto_.marcatori.indice[i].reset();
    attivo_ = 0;
    AggiornaLettura();
}

/// Repaints what a marker covers, and no more.
void MainPict::SegnaMarker(size_t quale) {
    const auto indice = contenuto_.marcatori.indice[quale];
    if (!indice || *indice >= Traccia().size())
        return;
    if (const auto x = PostoX(Traccia()[*indice].freqMhz))
        AggiornaColonna(*x);
}

void MainPict::AggiornaColonna(double x) {
    update(qRound(x) - kMezzoMarker, 0, 2 * kMezzoMarker, height());
}

void MainPict::ImpostaPicchi(PicchiMisura picchi) {
    contenuto_.picchi = std::move(picchi);
    sorvolato_.reset();
    InvalidaTracce();
}

void MainPict::ImpostaLimiti(std::vector<LimiteQuadro> limiti) {
    contenuto_.limiti = std::move(limiti);
    InvalidaTracce();
    AggiornaLettura();
}

void MainPict::ImpostaVerdetto(Verdetto verdetto) {
    contenuto_.verdetto = std::move(verdetto);
    CreaBadge();
    DisponiFigli();
}

void MainPict::CreaBadge() {
    for (LBVerdetto* vecchio : badge_) {
        vecchio->hide();
        vecchio->deleteLater();
    }
    badge_.clear();
    for (const VerdettoLimite& limite : contenuto_.verdetto.limiti) {
        const bool qui = limite.indice < Traccia().size();
        auto* badge = new LBVerdetto(limite,
                                     qui ? FrequenzaCampione(Traccia(), limite.indice)
                                         : TestoFrequenza(limite.freqMhz),
                                     this);
        connect(badge, &LBVerdetto::clicked, this,
                [this, indice = limite.indice] { MuoviMarker(0, indice); });
        badge->show();
        badge_.push_back(badge);
    }
}

void MainPict::OKZoomMK() {
    const auto [primo, secondo] = contenuto_.marcatori.indice;
    if (primo && secondo)
        DopoZoom(zoom_.Ingrandisci(Traccia()[*primo].freqMhz, Traccia()[*secondo].freqMhz));
}

void MainPict::CancelZoomMK() {
    DopoZoom(zoom_.Tutto());
}

void MainPict::ZoomIndietro() {
    DopoZoom(zoom_.Indietro());
}

void MainPict::ZoomAvanti() {
    DopoZoom(zoom_.Avanti());
}

void MainPict::DopoZoom(bool cambiato) {
    if (!cambiato)
        return;
    sorvolato_.reset();
    DrawGrid();
    Q_EMIT ZoomCambiato();
}

/// A marker that leaves the zoom window takes it along.
void MainPict::PortaInVista(double mhz) {
    const CampoMhz vista = zoom_.Vista();
    const CampoMhz intero = zoom_.Intero();
    if (!zoom_.ZoomOn() || (mhz >= vista.start && mhz <= vista.stop) || !(mhz > 0))
        return;
    const double parte = std::log(mhz / intero.start) / std::log(intero.stop / intero.start);
    const int larga = zoom_.StatoBarra().larghezza;
    const int posto = static_cast<int>(parte * kPassiBarraZoom) - larga / 2;
    DopoZoom(zoom_.Scorri(std::clamp(posto, 0, std::max(0, kPassiBarraZoom - larga))));
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

std::array<bool, kNumDetector> MainPict::DetectorMisura() const {
    std::array<bool, kNumDetector> quali{};
    for (size_t d = 0; d < kNumDetector && !contenuto_.strati.empty(); ++d)
        quali[d] = contenuto_.strati.front().detector[d] && mostrati_[d];
    return quali;
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
