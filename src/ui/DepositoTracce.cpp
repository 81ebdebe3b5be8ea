#include "ui/DepositoTracce.h"

#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

/// Columns to either side in which the pointer still finds a level.
constexpr int kVicinanza = 6;

ColonneTraccia Riduci(const ColonneTraccia& deposito, double start, double stop, int colonne) {
    ColonneTraccia schermo(start, stop, colonne, true);
    for (int i = 0; i < deposito.Quante(); ++i) {
        const auto& c = deposito.Colonna(i);
        if (c.vuota)
            continue;
        if (c.rottura)
            schermo.Interrompi();
        const double freq = deposito.Frequenza(i);
        for (const int16_t livello : {c.primo, c.minimo, c.massimo, c.ultimo})
            schermo.Aggiungi(freq, livello);
    }
    return schermo;
}

} // namespace

void DepositoTracce::Inizia(double startMhz, double stopMhz) {
    start_ = startMhz;
    stop_ = stopMhz;
    for (auto& traccia : tracce_)
        traccia.reset();
}

void DepositoTracce::ImpostaLarghezza(int colonne) {
    if (colonne == colonne_ || colonne < 1)
        return;
    colonne_ = colonne;
    for (auto& traccia : tracce_)
        if (traccia)
            traccia->schermo = Riduci(traccia->deposito, start_, stop_, colonne_);
}

DepositoTracce::Coppia& DepositoTracce::Prendi(size_t detector) {
    auto& traccia = tracce_[detector];
    if (!traccia)
        traccia =
            std::make_unique<Coppia>(Coppia{ColonneTraccia(start_, stop_, kColonneDeposito, true),
                                            ColonneTraccia(start_, stop_, colonne_, true)});
    return *traccia;
}

void DepositoTracce::Aggiungi(double freqMhz, const SampleRecord& campione) {
    for (size_t d = 0; d < kNumDetector; ++d) {
        const int16_t livello = campione.Livello[d];
        if (livello <= kNessunLivello && !tracce_[d])
            continue;
        Coppia& traccia = Prendi(d);
        traccia.deposito.Aggiungi(freqMhz, livello);
        traccia.schermo.Aggiungi(freqMhz, livello);
    }
}

void DepositoTracce::Interrompi() {
    for (auto& traccia : tracce_)
        if (traccia) {
            traccia->deposito.Interrompi();
            traccia->schermo.Interrompi();
        }
}

const ColonneTraccia* DepositoTracce::Traccia(DetectorKind detector) const {
    const auto& traccia = tracce_[static_cast<size_t>(detector)];
    return traccia ? &traccia->schermo : nullptr;
}

bool DepositoTracce::Vuoto() const {
    return std::all_of(tracce_.begin(), tracce_.end(), [](const auto& t) { return !t; });
}

std::optional<int16_t> DepositoTracce::Livello(DetectorKind detector, double freqMhz) const {
    const ColonneTraccia* traccia = Traccia(detector);
    if (!traccia || !(freqMhz >= start_ && freqMhz <= stop_))
        return std::nullopt;
    const double parte = std::log(freqMhz / start_) / std::log(stop_ / start_);
    const int qui = std::clamp(static_cast<int>(parte * colonne_), 0, traccia->Quante() - 1);
    for (int scarto = 0; scarto <= kVicinanza; ++scarto)
        for (const int i : {qui - scarto, qui + scarto})
            if (i >= 0 && i < traccia->Quante() && !traccia->Colonna(i).vuota)
                return traccia->Colonna(i).massimo;
    return std::nullopt;
}

} // namespace orvane
