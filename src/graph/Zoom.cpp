#include "graph/Zoom.h"

#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

/// A span narrower than this has no width: 1 Hz.
constexpr double kMinimaLarghezzaMhz = 1e-6;

/// Frequencies as the axis lays them out.
struct Asse {
    bool logaritmico;
    double Posto(double mhz) const { return logaritmico ? std::log(mhz) : mhz; }
    double Mhz(double posto) const { return logaritmico ? std::exp(posto) : posto; }
};

bool HaLarghezza(const CampoMhz& campo) {
    return campo.stop - campo.start >= kMinimaLarghezzaMhz;
}

/// What steps of the wheel make of a view. At an edge of the whole the window slides along it.
CampoMhz Ruota(const CampoMhz& intero, const CampoMhz& vista, const Asse& asse, double attornoMhz,
               int scatti) {
    const double inizio = asse.Posto(intero.start);
    const double fine = asse.Posto(intero.stop);
    const double da = asse.Posto(vista.start);
    const double fermo = asse.Posto(std::clamp(attornoMhz, vista.start, vista.stop));
    const double k = std::pow(kFattoreRotella, scatti);
    const double larghezza = (asse.Posto(vista.stop) - da) * k;
    if (!(larghezza < fine - inizio))
        return intero;
    const double nuovo = std::clamp(fermo - (fermo - da) * k, inizio, fine - larghezza);
    return {.start = std::max(asse.Mhz(nuovo), intero.start),
            .stop = std::min(asse.Mhz(nuovo + larghezza), intero.stop)};
}

} // namespace

void ZoomSweep::Inizia(CampoMhz intero, bool logaritmico) {
    intero_ = vista_ = intero;
    logaritmico_ = logaritmico && intero.start > 0;
    storia_ = {intero};
    qui_ = 0;
    rotella_ = false;
}

bool ZoomSweep::Registra(CampoMhz nuova) {
    if (nuova == vista_)
        return false;
    storia_.resize(qui_ + 1);
    storia_.push_back(nuova);
    ++qui_;
    vista_ = nuova;
    rotella_ = false;
    return true;
}

bool ZoomSweep::Ingrandisci(double aMhz, double bMhz) {
    if (!std::isfinite(aMhz) || !std::isfinite(bMhz) || !HaLarghezza(intero_))
        return false;
    const CampoMhz nuova{.start = std::clamp(std::min(aMhz, bMhz), intero_.start, intero_.stop),
                         .stop = std::clamp(std::max(aMhz, bMhz), intero_.start, intero_.stop)};
    return HaLarghezza(nuova) && Registra(nuova);
}

bool ZoomSweep::Rotella(double attornoMhz, int scatti) {
    if (!std::isfinite(attornoMhz) || !HaLarghezza(intero_))
        return false;
    const CampoMhz nuova = Ruota(intero_, vista_, {logaritmico_}, attornoMhz, scatti);
    if (!HaLarghezza(nuova) || nuova == vista_)
        return false;
    if (rotella_)
        vista_ = storia_[--qui_]; // the step takes the place of the one before
    rotella_ = Registra(nuova);
    if (!rotella_) // back where the wheel began
        storia_.resize(qui_ + 1);
    return true;
}

bool ZoomSweep::Tutto() {
    return Registra(intero_);
}

bool ZoomSweep::Indietro() {
    if (!PuoIndietro())
        return false;
    vista_ = storia_[--qui_];
    rotella_ = false;
    return true;
}

bool ZoomSweep::Avanti() {
    if (!PuoAvanti())
        return false;
    vista_ = storia_[++qui_];
    rotella_ = false;
    return true;
}

ZoomSweep::Barra ZoomSweep::StatoBarra() const {
    if (!HaLarghezza(intero_))
        return {};
    const Asse asse{logaritmico_};
    const double inizio = asse.Posto(intero_.start);
    const double passo = (asse.Posto(intero_.stop) - inizio) / kPassiBarraZoom;
    const auto passi = [&](double posti) { return static_cast<int>(std::lround(posti / passo)); };
    const int larghezza =
        std::clamp(passi(asse.Posto(vista_.stop) - asse.Posto(vista_.start)), 1, kPassiBarraZoom);
    return {.posto = std::clamp(passi(asse.Posto(vista_.start) - inizio), 0,
                                kPassiBarraZoom - larghezza),
            .larghezza = larghezza};
}

bool ZoomSweep::Scorri(int posto) {
    const Barra barra = StatoBarra();
    const int ultimo = kPassiBarraZoom - barra.larghezza;
    posto = std::clamp(posto, 0, ultimo);
    // A bar that is only told where the window stands moves nothing by its rounding.
    if (posto == barra.posto)
        return false;
    const Asse asse{logaritmico_};
    const double inizio = asse.Posto(intero_.start);
    const double fine = asse.Posto(intero_.stop);
    const double larghezza = asse.Posto(vista_.stop) - asse.Posto(vista_.start);
    const double da = posto == ultimo ? fine - larghezza
                                      : std::min(inizio + (fine - inizio) * posto / kPassiBarraZoom,
                                                 fine - larghezza);
    vista_ = {.start = posto == 0 ? intero_.start : std::max(asse.Mhz(da), intero_.start),
              .stop = posto == ultimo ? intero_.stop
                                      : std::min(asse.Mhz(da + larghezza), intero_.stop)};
    storia_[qui_] = vista_; // the way back and forward leads to where it was left
    rotella_ = false;
    return true;
}

} // namespace orvane
