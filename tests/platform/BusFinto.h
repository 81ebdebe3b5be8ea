// A USB bus that exists only in the test: it stands in for the calls of libusb and libftdi that
// the driver makes, and says what came in.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include <libftdi1/ftdi.h>
#include <libusb-1.0/libusb.h>

struct libusb_device {
    std::string descrizione;
    uint16_t venditore = 0x0403;
    bool permesso = true;
    int riferimenti = 0;
};
struct libusb_device_handle {
    libusb_device* dispositivo = nullptr;
};
struct libusb_context {};

namespace orvane::prova {

/// A transfer that comes back: raw packets, each with its two status bytes.
struct Arrivo {
    std::vector<uint8_t> grezzi;
    libusb_transfer_status stato = LIBUSB_TRANSFER_COMPLETED;
};

struct BusFinto {
    bool installato = true;
    bool elencabile = true;
    std::deque<libusb_device> dispositivi; ///< a deque: their addresses stay
    unsigned pacchetto = 64;
    size_t prestito = 1000; ///< transfers that the kernel lends
    std::deque<Arrivo> arrivi;
    std::deque<libusb_transfer*> inVolo;
    std::vector<std::string> chiamate;
    std::vector<uint8_t> scritti;
    int scrittiAlPiu = 1 << 20;
    bool staccato = false; ///< every call to the chip fails

    libusb_context contesto;
    ftdi_context ftdi = {};
    std::vector<libusb_device_handle*> aperti;

    void Aggiungi(const std::string& descrizione) {
        dispositivi.emplace_back().descrizione = descrizione;
    }
    void Ricevi(const std::string& testo);
    int Riferimenti() const;
    int Chiama(const std::string& cosa);
};

/// The bus on which every call of the two libraries ends; set by the fixture.
BusFinto*& Bus();

} // namespace orvane::prova
