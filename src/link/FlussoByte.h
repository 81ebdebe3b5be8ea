// The seam to one byte stream to the receiver, whatever carries it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace orvane {

enum class EsitoApertura {
    Aperto,
    Assente, ///< no such device
    InUso,   ///< another program holds it
    Vietato, ///< no permission
    Guasto,  ///< anything else
};

/// Every carrier runs at 115200 baud, 8 data bits, no parity, 1 stop bit. No call blocks for longer
/// than a write takes. An empty optional or false means that the device failed.
struct FlussoByte {
    virtual ~FlussoByte() = default;

    /// `nome`: what the carrier opens by: a device path, or a USB description.
    virtual EsitoApertura Apri(const std::string& nome) = 0;
    virtual void Chiudi() = 0;
    virtual bool Aperto() const = 0;
    /// All of it, or false.
    virtual bool Scrivi(std::span<const uint8_t> dati) = 0;
    /// Fills `dove` as far as bytes are there; how many came.
    virtual std::optional<size_t> Leggi(std::span<uint8_t> dove) = 0;
    /// Received bytes waiting.
    virtual std::optional<size_t> InArrivo() = 0;
    /// Bytes written and not yet sent.
    virtual std::optional<size_t> DaSpedire() = 0;
    /// Drops what has been received so far.
    virtual void Scarta() = 0;
};

} // namespace orvane
