// A serial device by termios: built-in ports, USB adapters, Bluetooth serial ports and pseudo
// terminals alike.
#pragma once

#include "link/FlussoByte.h"
#include "platform/SorvegliaLink.h"

namespace orvane {

class PortaSeriale : public FlussoByte {
public:
    explicit PortaSeriale(SorvegliaLink& sorveglia) : sorveglia_(sorveglia) {}
    ~PortaSeriale() override { Chiudi(); }
    PortaSeriale(const PortaSeriale&) = delete;
    PortaSeriale& operator=(const PortaSeriale&) = delete;

    /// `nome`: path of the device. 115200, 8, none, 1, raw, no flow control; RTS and DTR on where
    /// the device has them. Held for itself alone while open.
    EsitoApertura Apri(const std::string& nome) override;
    void Chiudi() override;
    bool Aperto() const override { return descrittore_ >= 0; }
    bool Scrivi(std::span<const uint8_t> dati) override;
    std::optional<size_t> Leggi(std::span<uint8_t> dove) override;
    std::optional<size_t> InArrivo() override;
    std::optional<size_t> DaSpedire() override;
    void Scarta() override;

private:
    SorvegliaLink& sorveglia_;
    int descrittore_ = -1;
};

} // namespace orvane
