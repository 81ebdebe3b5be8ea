#include "platform/LetturaUsb.h"

#include <algorithm>

#include <libusb.h>

namespace orvane {
namespace {

/// The chip ends a transfer at each tick of its latency timer, and holds 256 bytes itself: at a
/// tick of 2 ms these bridge a quarter of a second in which nobody reads.
constexpr size_t kRichieste = 128;
constexpr size_t kByteDiStato = 2;
constexpr int kTroppeFallite = 8;
/// Rounds of waiting for the transfers to come back, 10 ms each.
constexpr int kGiriRitiro = 100;

struct LiberaTrasferimento {
    void operator()(libusb_transfer* trasferimento) const { libusb_free_transfer(trasferimento); }
};

} // namespace

struct LetturaUsb::Richiesta {
    LetturaUsb* padrona = nullptr;
    std::vector<uint8_t> spazio;
    std::unique_ptr<libusb_transfer, LiberaTrasferimento> trasferimento;
    bool inVolo = false;

    bool Parti();
    void Arriva();
};

void TogliStato(std::span<const uint8_t> grezzi, size_t pacchetto, std::deque<uint8_t>& coda) {
    while (grezzi.size() > kByteDiStato) {
        const auto uno = grezzi.first(std::min(grezzi.size(), pacchetto));
        coda.insert(coda.end(), uno.begin() + kByteDiStato, uno.end());
        grezzi = grezzi.subspan(uno.size());
    }
}

bool LetturaUsb::Richiesta::Parti() {
    inVolo = trasferimento && libusb_submit_transfer(trasferimento.get()) == 0;
    if (inVolo)
        ++padrona->inVolo_;
    return inVolo;
}

void LetturaUsb::Richiesta::Arriva() {
    inVolo = false;
    if (padrona == nullptr)
        return;
    --padrona->inVolo_;
    ++padrona->arrivi_;
    const auto arrivati = static_cast<size_t>(std::max(trasferimento->actual_length, 0));
    TogliStato(std::span(spazio).first(arrivati), padrona->presa_.pacchetto, padrona->coda);
    const bool riuscita = trasferimento->status == LIBUSB_TRANSFER_COMPLETED;
    padrona->fallite_ = riuscita ? 0 : padrona->fallite_ + 1;
    if (trasferimento->status == LIBUSB_TRANSFER_NO_DEVICE || padrona->fallite_ >= kTroppeFallite)
        padrona->guasta_ = true;
    if (!padrona->ferma_ && !padrona->guasta_ && !Parti())
        padrona->guasta_ = true;
}

LetturaUsb::LetturaUsb() = default;

LetturaUsb::~LetturaUsb() {
    Ferma();
}

bool LetturaUsb::Avvia(const PresaUsb& presa, size_t misura) {
    if (!richieste_.empty())
        return !guasta_;
    presa_ = presa;
    presa_.pacchetto = std::max(presa.pacchetto, kByteDiStato + 1);
    fallite_ = 0;
    ferma_ = false;
    const size_t pacchetti = (std::max<size_t>(misura, 1) - 1) / presa_.pacchetto + 1;
    do // fewer than asked for will do where the kernel lends no more
        richieste_.push_back(NuovaRichiesta(pacchetti * presa_.pacchetto));
    while (richieste_.back()->Parti() && richieste_.size() < kRichieste);
    guasta_ = inVolo_ == 0;
    return !guasta_;
}

std::unique_ptr<LetturaUsb::Richiesta> LetturaUsb::NuovaRichiesta(size_t misura) {
    auto nuova = std::make_unique<Richiesta>();
    nuova->padrona = this;
    nuova->spazio.resize(misura);
    nuova->trasferimento.reset(libusb_alloc_transfer(0));
    if (nuova->trasferimento)
        libusb_fill_bulk_transfer(
            nuova->trasferimento.get(), presa_.dispositivo, presa_.punto, nuova->spazio.data(),
            static_cast<int>(misura),
            [](libusb_transfer* t) { static_cast<Richiesta*>(t->user_data)->Arriva(); },
            nuova.get(), 0);
    return nuova;
}

bool LetturaUsb::Raccogli() {
    // The library hands over a limited number of transfers a call.
    size_t prima = 0;
    size_t giri = 0;
    do {
        prima = arrivi_;
        timeval subito = {.tv_sec = 0, .tv_usec = 0};
        if (libusb_handle_events_timeout_completed(presa_.contesto, &subito, nullptr) != 0)
            return false;
    } while (arrivi_ != prima && ++giri < kRichieste);
    return !guasta_;
}

void LetturaUsb::Ferma() {
    if (richieste_.empty())
        return;
    ferma_ = true;
    for (const auto& richiesta : richieste_)
        if (richiesta->inVolo)
            libusb_cancel_transfer(richiesta->trasferimento.get());
    for (int giro = 0; inVolo_ > 0 && giro < kGiriRitiro; ++giro) {
        timeval poco = {.tv_sec = 0, .tv_usec = 10000};
        libusb_handle_events_timeout_completed(presa_.contesto, &poco, nullptr);
    }
    // One that never came back may still be written to: its memory is given up, not freed.
    for (auto& richiesta : richieste_) {
        if (!richiesta->inVolo)
            continue;
        richiesta->padrona = nullptr;
        static_cast<void>(richiesta.release());
    }
    richieste_.clear();
    inVolo_ = 0;
}

} // namespace orvane
