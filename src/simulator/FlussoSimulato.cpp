// The byte link's side of the simulated receiver.
#include "simulator/FlussoSimulato.h"

#include <vector>

namespace orvane {

EsitoApertura FlussoSimulato::Apri(const std::string&) {
    aperto_ = !ricevitore_.Scollegato();
    return aperto_ ? EsitoApertura::Aperto : EsitoApertura::Assente;
}

void FlussoSimulato::Chiudi() {
    aperto_ = false;
}

bool FlussoSimulato::Aperto() const {
    return aperto_;
}

bool FlussoSimulato::Vivo() const {
    return aperto_ && !ricevitore_.Scollegato();
}

bool FlussoSimulato::Scrivi(std::span<const uint8_t> dati) {
    if (!Vivo())
        return false;
    ricevitore_.Riceve(dati, ambiente_.Adesso());
    return !ricevitore_.Scollegato();
}

std::optional<size_t> FlussoSimulato::Leggi(std::span<uint8_t> dove) {
    if (!Vivo())
        return std::nullopt;
    return ricevitore_.Da(dove, ambiente_.Adesso());
}

std::optional<size_t> FlussoSimulato::InArrivo() {
    if (!Vivo())
        return std::nullopt;
    return ricevitore_.Pronti(ambiente_.Adesso());
}

std::optional<size_t> FlussoSimulato::DaSpedire() {
    return Vivo() ? std::optional<size_t>(0) : std::nullopt;
}

void FlussoSimulato::Scarta() {
    if (!Vivo())
        return;
    std::vector<uint8_t> via(ricevitore_.Pronti(ambiente_.Adesso()));
    ricevitore_.Da(via, ambiente_.Adesso());
}

} // namespace orvane
