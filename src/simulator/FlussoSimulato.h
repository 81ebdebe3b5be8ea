// The simulated receiver behind the byte link: no cable, no device.
#pragma once

#include "base/Ambiente.h"
#include "link/FlussoByte.h"
#include "simulator/RicevitoreSimulato.h"

namespace orvane {

class FlussoSimulato : public FlussoByte {
public:
    FlussoSimulato(const Ambiente& ambiente, RicevitoreSimulato& ricevitore)
        : ambiente_(ambiente), ricevitore_(ricevitore) {}

    EsitoApertura Apri(const std::string& nome) override;
    void Chiudi() override;
    bool Aperto() const override;
    bool Scrivi(std::span<const uint8_t> dati) override;
    std::optional<size_t> Leggi(std::span<uint8_t> dove) override;
    std::optional<size_t> InArrivo() override;
    std::optional<size_t> DaSpedire() override;
    void Scarta() override;

private:
    bool Vivo() const;

    const Ambiente& ambiente_;
    RicevitoreSimulato& ricevitore_;
    bool aperto_ = false;
};

} // namespace orvane
