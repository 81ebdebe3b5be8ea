// The measure on the picture: its markers, its zoom, the badges of its verdict.
#include <algorithm>
#include <cmath>

#include "ui/LBVerdetto.h"
#include "ui/MainPict.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

/// What a marker covers to either side of its line, logical pixels.
constexpr int kMezzoMarker = 48;

} // namespace

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
                                     qui ? FrequenzaCampione(contenuto_.misura, limite.indice)
                                         : TestoFrequenza(limite.freqMhz),
                                     this);
        connect(badge, &LBVerdetto::clicked, this,
                [this, indice = limite.indice] { MuoviMarker(0, indice); });
        badge->show();
        setTabOrder(badge_.empty() ? static_cast<QWidget*>(this) : badge_.back(), badge);
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

std::array<bool, kNumDetector> MainPict::DetectorMisura() const {
    std::array<bool, kNumDetector> quali{};
    for (size_t d = 0; d < kNumDetector && !contenuto_.strati.empty(); ++d)
        quali[d] = contenuto_.strati.front().detector[d] && mostrati_[d];
    return quali;
}

} // namespace orvane
