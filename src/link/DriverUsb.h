// The seam to the USB serial driver: the calls that the link makes of it, in the driver's shape.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace orvane {

using HandleUsb = uint32_t;
inline constexpr HandleUsb kHandleUsbChiuso = 0xFFFFFFFF;

/// A driver call that could not be made at all, because there is no driver, is an empty optional;
/// otherwise the driver's status, 0 for success.
using StatoUsb = std::optional<uint32_t>;

/// How a description in `ListaDescrizione` ends is the driver's affair: it may hold NULs.
struct DriverUsb {
    virtual ~DriverUsb() = default;

    /// Whether the driver is installed on this machine.
    virtual bool Installato() = 0;
    virtual StatoUsb ListaNumero(uint32_t& quanti) = 0;
    virtual StatoUsb ListaDescrizione(uint32_t indice, std::string& descrizione) = 0;
    virtual StatoUsb Apri(const std::string& descrizione, HandleUsb& handle) = 0;
    virtual StatoUsb ImpostaBaud(HandleUsb handle, uint32_t baud) = 0;
    /// `bitDati` 8, `bitStop` 0 for one, `parita` 0 for none.
    virtual StatoUsb ImpostaCaratteristiche(HandleUsb handle, int bitDati, int bitStop,
                                            int parita) = 0;
    /// Transfer sizes in bytes.
    virtual StatoUsb ImpostaTrasferimenti(HandleUsb handle, uint32_t ingresso, uint32_t uscita) = 0;
    virtual StatoUsb Scrivi(HandleUsb handle, std::span<const uint8_t> dati, size_t& scritti) = 0;
    virtual StatoUsb Leggi(HandleUsb handle, std::span<uint8_t> dove, size_t& letti) = 0;
    virtual StatoUsb InCoda(HandleUsb handle, size_t& quanti) = 0;
    /// Both directions.
    virtual StatoUsb Svuota(HandleUsb handle) = 0;
    virtual StatoUsb Chiudi(HandleUsb handle) = 0;
};

} // namespace orvane
