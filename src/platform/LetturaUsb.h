// Reading from an FTDI chip ahead of its reader: transfers that the kernel fills while the console
// does something else, and the queue of what they brought.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <span>
#include <vector>

struct libusb_context;
struct libusb_device_handle;

namespace orvane {

/// Drops the two status bytes that the chip puts in front of every packet of `pacchetto` bytes,
/// and appends the rest.
void TogliStato(std::span<const uint8_t> grezzi, size_t pacchetto, std::deque<uint8_t>& coda);

/// Where an open chip is read.
struct PresaUsb {
    libusb_context* contesto = nullptr;
    libusb_device_handle* dispositivo = nullptr;
    uint8_t punto = 0;    ///< endpoint address
    size_t pacchetto = 0; ///< largest packet of the endpoint
};

class LetturaUsb {
public:
    LetturaUsb();
    ~LetturaUsb();
    LetturaUsb(const LetturaUsb&) = delete;
    LetturaUsb& operator=(const LetturaUsb&) = delete;

    /// Begins to read in transfers of `misura` bytes, rounded up to whole packets, as the bus
    /// demands. Does nothing while it reads. False on failure.
    bool Avvia(const PresaUsb& presa, size_t misura);
    /// Takes the transfers back; what has come stays in the queue. To be called before the device
    /// is closed.
    void Ferma();
    /// Fetches what has come, without waiting. False once the device is gone.
    bool Raccogli();

    std::deque<uint8_t> coda;

private:
    struct Richiesta;

    std::unique_ptr<Richiesta> NuovaRichiesta(size_t misura);

    PresaUsb presa_;
    std::vector<std::unique_ptr<Richiesta>> richieste_;
    size_t inVolo_ = 0;
    size_t arrivi_ = 0;  ///< transfers that ended, in all
    int fallite_ = 0;    ///< in a row
    bool ferma_ = false; ///< nothing is sent out again
    bool guasta_ = false;
};

} // namespace orvane
