// The USB serial driver by libftdi1.
#pragma once

#include <memory>

#include "link/DriverUsb.h"
#include "platform/SorvegliaLink.h"

namespace orvane {

class DriverFtdi : public DriverUsb {
public:
    explicit DriverFtdi(SorvegliaLink& sorveglia);
    ~DriverFtdi() override;

    bool Installato() override;
    StatoUsb ListaNumero(uint32_t& quanti) override;
    StatoUsb ListaDescrizione(uint32_t indice, std::string& descrizione) override;
    StatoUsb Apri(const std::string& descrizione, HandleUsb& handle) override;
    StatoUsb ImpostaBaud(HandleUsb handle, uint32_t baud) override;
    StatoUsb ImpostaCaratteristiche(HandleUsb handle, int bitDati, int bitStop,
                                    int parita) override;
    StatoUsb ImpostaTrasferimenti(HandleUsb handle, uint32_t ingresso, uint32_t uscita) override;
    StatoUsb Scrivi(HandleUsb handle, std::span<const uint8_t> dati, size_t& scritti) override;
    StatoUsb Leggi(HandleUsb handle, std::span<uint8_t> dove, size_t& letti) override;
    StatoUsb InCoda(HandleUsb handle, size_t& quanti) override;
    StatoUsb Svuota(HandleUsb handle) override;
    StatoUsb Chiudi(HandleUsb handle) override;

private:
    struct Interno;
    std::unique_ptr<Interno> io_;
};

} // namespace orvane
