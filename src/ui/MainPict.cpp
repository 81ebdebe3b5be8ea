#include "ui/MainPict.h"

#include <algorithm>
#include <cmath>

#include <QMouseEvent>
#include <QPainter>

#include "base/Numeri.h"
#include "platform/qt/SuperficieQt.h"
#include "records/ColoriGrafico.h"
#include "ui/Tema.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

constexpr int kRidisegnoMs = 40;
/// The axis of a picture that has nothing to show.
constexpr double kStartVuoto = 0.15;
constexpr double kStopVuoto = 30;

} // namespace

MainPict::MainPict(const EnvRecord& env, const SetupRecord& setup, QWidget* padre)
    : QWidget(padre), env_(env), setup_(setup) {
    setObjectName(QStringLiteral("MainPict"));
    setAccessibleName(tr("Picture of the traces"));
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    mostrati_.fill(true);
    ridisegno_.setSingleShot(true);
    ridisegno_.setInterval(kRidisegnoMs);
    connect(&ridisegno_, &QTimer::timeout, this, qOverload<>(&QWidget::update));
    tracce_.Inizia(kStartVuoto, kStopVuoto);
}

void MainPict::IniziaTraccia(double startMhz, double stopMhz) {
    const bool vuota = !(startMhz > 0 && stopMhz > startMhz);
    tracce_.Inizia(vuota ? kStartVuoto : startMhz, vuota ? kStopVuoto : stopMhz);
    DrawGrid();
}

void MainPict::ScegliPassata(int passata, const QString& nome) {
    tracce_.Scegli(passata, nome);
    update();
}

void MainPict::Aggiungi(double freqMhz, const SampleRecord& campione) {
    tracce_.Corrente().Aggiungi(freqMhz, campione);
    if (!ridisegno_.isActive())
        ridisegno_.start();
}

void MainPict::MostraDetector(const std::array<bool, kNumDetector>& quali) {
    mostrati_ = quali;
    update();
}

void MainPict::DrawGrid() {
    sfondoValido_ = false;
    update();
}

void MainPict::ImpostaInvito(const QString& testo) {
    invito_ = testo;
    update();
}

void MainPict::MostraQuadro(ContenutoQuadro contenuto, bool tieni) {
    const Marcatori prima = contenuto_.marcatori;
    contenuto_ = std::move(contenuto);
    haMisura_ = true;
    if (tieni)
        contenuto_.marcatori = prima;
    else if (!contenuto_.marcatori.indice[0])
        contenuto_.marcatori.indice[0] = 0;
    if (!tieni)
        vista_ = contenuto_.intero;
    RiempiTracce();
}

void MainPict::RiempiTracce() {
    IniziaTraccia(vista_.start, vista_.stop);
    for (size_t i = 0; i < contenuto_.strati.size(); ++i) {
        const StratoQuadro& strato = contenuto_.strati[i];
        ScegliPassata(static_cast<int>(i), Q(strato.nome));
        for (const CampioneTraccia& c : *strato.traccia) {
            if (c.stacco)
                InterrompiTraccia();
            SampleRecord campione;
            for (size_t d = 0; d < kNumDetector; ++d)
                campione.Livello[d] = strato.detector[d] ? c.livello[d] : kNessunLivello;
            Aggiungi(c.freqMhz, campione);
        }
    }
}

void MainPict::LasciaQuadro() {
    contenuto_ = {};
    haMisura_ = false;
    IniziaTraccia(0, 0);
}

CampoMhz MainPict::CampoMostrato() const {
    return haMisura_ ? vista_ : CampoMhz{Deposito().Start(), Deposito().Stop()};
}

void MainPict::MuoviMarker(int quale, size_t indice) {
    if (indice >= contenuto_.misura.traccia->size())
        return;
    contenuto_.marcatori.indice[static_cast<size_t>(quale)] = indice;
    update();
    Q_EMIT MarkerMosso(quale, indice);
}

void MainPict::TogliMarker(int quale) {
    contenuto_.marcatori.indice[static_cast<size_t>(quale)].reset();
    update();
}

void MainPict::ImpostaPicchi(PicchiMisura picchi) {
    contenuto_.picchi = std::move(picchi);
    update();
}

void MainPict::ImpostaLimiti(std::vector<LimiteQuadro> limiti) {
    contenuto_.limiti = std::move(limiti);
    DrawGrid();
}

void MainPict::ImpostaVerdetto(Verdetto verdetto) {
    contenuto_.verdetto = std::move(verdetto);
    update();
}

void MainPict::Ingrandisci(CampoMhz vista) {
    if (!haMisura_ || vista == vista_ || !(vista.start < vista.stop))
        return;
    vista_ = vista;
    RiempiTracce();
    Q_EMIT ZoomCambiato();
}

void MainPict::OKZoomMK() {
    const auto [primo, secondo] = contenuto_.marcatori.indice;
    if (!primo || !secondo)
        return;
    const SweepTrace& traccia = *contenuto_.misura.traccia;
    const auto [start, stop] = std::minmax({traccia[*primo].freqMhz, traccia[*secondo].freqMhz});
    Ingrandisci({start, stop});
}

void MainPict::CancelZoomMK() {
    Ingrandisci(contenuto_.intero);
}

void MainPict::ZoomIndietro() {
    CancelZoomMK();
}

void MainPict::ZoomAvanti() {
    OKZoomMK();
}

double MainPict::LivelloA(double y) const {
    const double parte = (y * Rapporto() - griglia_.alto) / std::max(1.0, griglia_.altezza);
    return (scala_.alto - parte * (scala_.alto - scala_.basso)) / 100;
}

ModoQuadro MainPict::Modo() const {
    return {
        .env = env_, .aspetto = LeggiAspetto(env_), .tavolozza = palette(), .rapporto = Rapporto()};
}

QFont MainPict::CarattereLettura() const {
    QFont carattere = font();
    carattere.setPointSizeF(carattere.pointSizeF() * LeggiAspetto(env_).testoGrafico / 100);
    return carattere;
}

void MainPict::PreparaScala() {
    const QSizeF misura = QSizeF(size()) * Rapporto();
    const QSize punti(std::max(1, qRound(misura.width())), std::max(1, qRound(misura.height())));
    if (sfondo_.size() != punti)
        sfondo_ = QPixmap(punti);
    sfondo_.setDevicePixelRatio(1);
    QPainter p(&sfondo_);
    p.setFont(font());
    SuperficieQt superficie(p, punti.width(), punti.height());
    griglia_ = DisponiGriglia(superficie, TinteQuadro(Modo(), font()));
    scala_ =
        SetScaleGraph(setup_, Deposito().Start(), Deposito().Stop(), true, griglia_.larghezza, 0);
    tracce_.ImpostaLarghezza(std::max(1, static_cast<int>(griglia_.larghezza)));
}

void MainPict::DisegnaSfondo() {
    PreparaScala();
    QPainter p(&sfondo_);
    p.setFont(font());
    const ModoQuadro modo = Modo();
    const int unita = std::clamp<int>(setup_.UnitId, 0, 7);
    DisegnaGrigliaQuadro(p, sfondo_.size(), modo, TinteQuadro(modo, font()), scala_, griglia_,
                         TabellaUnitaGrafico()[size_t(unita)].testo);
    sfondoValido_ = true;
}

void MainPict::DisegnaTracce(QPainter& p) {
    SuperficieQt superficie(p, sfondo_.width(), sfondo_.height());
    p.setRenderHint(QPainter::Antialiasing, Modo().aspetto.lisce != 0);
    for (const TraccePassate::Strato* strato : tracce_.DaDisegnare())
        DisegnaStrato(superficie, *strato);
}

void MainPict::DisegnaStrato(Superficie& superficie, const TraccePassate::Strato& strato) {
    const ModoQuadro modo = Modo();
    // Peak lies highest: it is drawn first, so that it hides none of the others.
    for (size_t d = 0; d < kNumDetector; ++d) {
        const ColonneTraccia* traccia = strato.deposito.Traccia(static_cast<DetectorKind>(d));
        if (!traccia || !mostrati_[d])
            continue;
        const QColor c = ColoreStrato(strato, d);
        DisegnaTraccia(superficie, scala_, griglia_, *traccia,
                       PennaTraccia(modo, Rgb(c.red(), c.green(), c.blue())));
    }
}

QColor MainPict::ColoreStrato(const TraccePassate::Strato& strato, size_t detector) const {
    return tracce_.Sfumata(strato,
                           ColoreQt(ColoreTraccia(env_, static_cast<DetectorKind>(detector))),
                           Tinta(palette(), Ruolo::Grafico));
}

QRectF MainPict::Griglia() const {
    const double r = Rapporto();
    return {griglia_.sinistra / r, griglia_.alto / r, griglia_.larghezza / r, griglia_.altezza / r};
}

/// The passes by name, each with the shades of its detectors; nothing where there is only one.
void MainPict::DisegnaLegenda(QPainter& p) {
    const auto passate = tracce_.Visibili();
    if (passate.size() < 2)
        return;
    constexpr double kCampione = 18;
    p.setFont(CarattereLettura());
    const QFontMetricsF metrica(p.font());
    p.setRenderHint(QPainter::Antialiasing);
    double x = Griglia().left() + 12;
    const double y = Griglia().top() + 8;
    for (const TraccePassate::Strato* strato : passate) {
        double riga = y + metrica.height() / 2;
        for (size_t d = 0; d < kNumDetector; ++d) {
            if (!strato->deposito.Traccia(static_cast<DetectorKind>(d)) || !mostrati_[d])
                continue;
            p.setPen(QPen(ColoreStrato(*strato, d), 2));
            p.drawLine(QPointF(x, riga), QPointF(x + kCampione, riga));
            riga += 4;
        }
        const double largo = metrica.horizontalAdvance(strato->nome);
        p.setPen(Tinta(palette(), &strato->deposito == &Deposito() ? Ruolo::Testo : Ruolo::Tenue));
        p.drawText(QPointF(x + kCampione + 6, y + metrica.ascent()), strato->nome);
        x += kCampione + largo + 26;
    }
}

/// What stands under the pointer: the frequency, and each trace's level in its colour.
std::vector<MainPict::RigaLettura> MainPict::Letture(double mhz) const {
    std::vector<RigaLettura> righe = {
        {TestoFrequenza(mhz), ColoreQt(env_.GraphColors[colore::kLettura])}};
    for (const TraccePassate::Strato* strato : tracce_.Visibili())
        for (size_t d = 0; d < kNumDetector; ++d) {
            const auto livello = strato->deposito.Livello(static_cast<DetectorKind>(d), mhz);
            if (!livello || !mostrati_[d])
                continue;
            const double valore = *livello / 100.0 + scala_.UnitOffset;
            QStringList parole = {strato->nome, QLatin1String(kNomiDetector[d])};
            parole.removeAll(QString());
            righe.push_back(
                {parole.join(QLatin1Char(' ')) + QStringLiteral("   ") + Q(TestoFisso(valore, 2)),
                 ColoreStrato(*strato, d)});
        }
    return righe;
}

void MainPict::DisegnaLettura(QPainter& p) {
    if (puntataX_ < 0 || tracce_.Vuoto())
        return;
    const auto righe = Letture(XToFreq(scala_, puntataX_));
    p.setFont(CarattereLettura());
    const QFontMetricsF metrica(p.font());
    const double passo = std::ceil(metrica.height() * 1.25);
    double largo = 0;
    for (const auto& riga : righe)
        largo = std::max(largo, metrica.horizontalAdvance(riga.testo));
    const QRectF griglia = Griglia();
    const double x = griglia.left() + puntataX_ / Rapporto();
    p.setPen(QPen(Tinta(palette(), Ruolo::Tenue), 1, Qt::DashLine));
    p.drawLine(QPointF(x, griglia.top()), QPointF(x, griglia.bottom()));
    const double alto = passo * double(righe.size()) + 12;
    const bool aDestra = x < griglia.center().x();
    const QRectF velo(aDestra ? griglia.right() - largo - 32 : griglia.left() + 10,
                      griglia.top() + 10, largo + 22, alto);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Tinta(palette(), Ruolo::BordoCampo), 1));
    p.setBrush(Tinta(palette(), Ruolo::Velo));
    p.drawRoundedRect(velo, 4, 4);
    for (size_t i = 0; i < righe.size(); ++i) {
        p.setPen(righe[i].colore);
        p.drawText(QRectF(velo.x() + 11, velo.y() + 6 + passo * double(i), largo + 2, passo),
                   Qt::AlignVCenter, righe[i].testo);
    }
}

void MainPict::DisegnaInvito(QPainter& p) {
    if (invito_.isEmpty() || !tracce_.Vuoto())
        return;
    p.setPen(Tinta(palette(), Ruolo::Tenue));
    p.drawText(rect().adjusted(60, 0, -30, 0), Qt::AlignCenter | Qt::TextWordWrap, invito_);
}

void MainPict::paintEvent(QPaintEvent*) {
    if (!sfondoValido_)
        DisegnaSfondo();
    QPainter p(this);
    const double r = Rapporto();
    p.save();
    p.scale(1 / r, 1 / r);
    p.drawPixmap(0, 0, sfondo_);
    p.setFont(font());
    DisegnaTracce(p);
    p.restore();
    DisegnaLegenda(p);
    DisegnaLettura(p);
    DisegnaInvito(p);
}

void MainPict::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    sfondoValido_ = false;
}

void MainPict::changeEvent(QEvent* evento) {
    if (evento->type() == QEvent::PaletteChange || evento->type() == QEvent::FontChange ||
        evento->type() == QEvent::StyleChange)
        DrawGrid();
    QWidget::changeEvent(evento);
}

void MainPict::mouseMoveEvent(QMouseEvent* evento) {
    const double x = evento->position().x() * Rapporto() - griglia_.sinistra;
    if (x < 0 || x > griglia_.larghezza)
        return leaveEvent(evento);
    puntataX_ = x;
    Q_EMIT Puntata(XToFreq(scala_, x), LivelloA(evento->position().y()));
    if (!ridisegno_.isActive())
        ridisegno_.start();
}

void MainPict::leaveEvent(QEvent*) {
    puntataX_ = -1;
    Q_EMIT PuntataPersa();
    update();
}

} // namespace orvane
