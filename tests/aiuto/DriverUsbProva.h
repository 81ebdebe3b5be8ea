// A scripted USB driver: devices on the bus by description, each call noted, each failure chosen.
#pragma once

#include <algorithm>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "aiuto/AmbienteProva.h"
#include "link/DriverUsb.h"

namespace orvane::prova {

class DriverUsbProva : public DriverUsb {
public:
    explicit DriverUsbProva(AmbienteProva& ambiente) : ambiente_(ambiente) {
        ambiente.linkPronto = [this] { return Pronti() > 0; };
        ambiente.prossimoByte = [this] { return Prossimo(); };
    }

    bool installato = true;
    bool chiamabile = true; ///< false: no call can be made
    std::vector<std::string> dispositivi = {"5520 / 5540 A"};
    /// Status of these calls, 0 for success.
    uint32_t statoApri = 0, statoBaud = 0, statoFormato = 0, statoLeggi = 0, statoCoda = 0,
             statoSvuota = 0;
    size_t lettiDichiarati = std::numeric_limits<size_t>::max(); ///< what a read says it got
    /// Calls by name, with the arguments that matter.
    std::vector<std::string> chiamate;
    std::vector<std::string> scritti;
    std::function<void(const std::string&)> alComando;

    void Rispondi(std::string testo, double ritardoS = 0) {
        arrivi_.push_back({ambiente_.ora + ritardoS, std::move(testo)});
    }
    size_t Quante(const std::string& chiamata) const {
        return static_cast<size_t>(std::count(chiamate.begin(), chiamate.end(), chiamata));
    }

    bool Installato() override { return installato; }
    StatoUsb ListaNumero(uint32_t& quanti) override {
        quanti = static_cast<uint32_t>(dispositivi.size());
        return Nota("lista", 0);
    }
    StatoUsb ListaDescrizione(uint32_t indice, std::string& descrizione) override {
        descrizione = dispositivi.at(indice);
        descrizione.resize(256, '\0'); // as the driver's buffer has it
        return chiamabile ? StatoUsb(0) : std::nullopt;
    }
    StatoUsb Apri(const std::string& descrizione, HandleUsb& handle) override {
        handle = 7;
        return Nota("apri " + descrizione, statoApri);
    }
    StatoUsb ImpostaBaud(HandleUsb, uint32_t baud) override {
        return Nota("baud " + std::to_string(baud), statoBaud);
    }
    StatoUsb ImpostaCaratteristiche(HandleUsb, int bit, int stop, int parita) override {
        return Nota("formato " + std::to_string(bit) + std::to_string(stop) +
                        std::to_string(parita),
                    statoFormato);
    }
    StatoUsb ImpostaTrasferimenti(HandleUsb, uint32_t ingresso, uint32_t uscita) override {
        // Always refused: nobody is to care.
        return Nota("trasferimenti " + std::to_string(ingresso) + " " + std::to_string(uscita), 4);
    }
    StatoUsb Scrivi(HandleUsb, std::span<const uint8_t> dati, size_t& quanti) override {
        quanti = dati.size();
        if (chiamabile) {
            scritti.emplace_back(dati.begin(), dati.end());
            if (alComando)
                alComando(scritti.back());
        }
        return chiamabile ? StatoUsb(0) : std::nullopt;
    }
    StatoUsb Leggi(HandleUsb, std::span<uint8_t> dove, size_t& letti) override {
        letti = 0;
        for (; statoLeggi == 0 && letti < dove.size() && Pronti() > 0; ++letti) {
            dove[letti] = static_cast<uint8_t>(arrivi_.front().testo.front());
            arrivi_.front().testo.erase(0, 1);
            if (arrivi_.front().testo.empty())
                arrivi_.erase(arrivi_.begin());
        }
        letti = std::min(letti, lettiDichiarati);
        return chiamabile ? StatoUsb(statoLeggi) : std::nullopt;
    }
    StatoUsb InCoda(HandleUsb, size_t& quanti) override {
        quanti = Pronti();
        return chiamabile ? StatoUsb(statoCoda) : std::nullopt;
    }
    StatoUsb Svuota(HandleUsb) override {
        while (Pronti() > 0)
            arrivi_.erase(arrivi_.begin());
        return Nota("svuota", statoSvuota);
    }
    StatoUsb Chiudi(HandleUsb handle) override {
        return Nota(handle == kHandleUsbChiuso ? "chiudi niente" : "chiudi",
                    handle == kHandleUsbChiuso ? 1 : 0);
    }

private:
    struct Arrivo {
        double quando;
        std::string testo;
    };
    StatoUsb Nota(const std::string& chiamata, uint32_t stato) {
        chiamate.push_back(chiamata);
        return chiamabile ? StatoUsb(stato) : std::nullopt;
    }
    size_t Pronti() const {
        size_t n = 0;
        for (const Arrivo& arrivo : arrivi_)
            n += arrivo.quando <= ambiente_.ora ? arrivo.testo.size() : 0;
        return n;
    }
    double Prossimo() const {
        return arrivi_.empty() ? std::numeric_limits<double>::infinity() : arrivi_.front().quando;
    }

    AmbienteProva& ambiente_;
    std::vector<Arrivo> arrivi_;
};

} // namespace orvane::prova
