// A scripted peer behind the byte link, under virtual time: replies by rule, each write recorded.
#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <limits>
#include <map>
#include <string>
#include <vector>

#include "aiuto/AmbienteProva.h"
#include "link/FlussoByte.h"

namespace orvane::prova {

class PeerProva : public FlussoByte {
public:
    explicit PeerProva(AmbienteProva& ambiente) : ambiente_(ambiente) {
        ambiente.linkPronto = [this] { return InArrivo().value_or(0) > 0; };
        ambiente.prossimoByte = [this] {
            return coda_.empty() ? std::numeric_limits<double>::infinity() : coda_.front().quando;
        };
    }

    /// What to do with each whole write; usually calls `Rispondi`.
    std::function<void(const std::string&)> alComando;
    std::vector<std::string> scritti;
    std::vector<std::string> aperture;
    EsitoApertura esitoApertura = EsitoApertura::Aperto;
    bool guasto = false; ///< every call fails
    size_t arretrato = 0;

    /// Replies `testo` after `ritardoS`, each reply behind the one before.
    void Rispondi(const std::string& testo, double ritardoS = 0) {
        if (testo.empty())
            return;
        coda_.push_back({ambiente_.ora + ritardoS, testo});
        std::stable_sort(coda_.begin(), coda_.end(),
                         [](const Pezzo& a, const Pezzo& b) { return a.quando < b.quando; });
    }
    /// Fixed answers by command; a command that is not there stays without one.
    void RispondiDa(std::map<std::string, std::string> tabella) {
        alComando = [this, tabella = std::move(tabella)](const std::string& comando) {
            if (const auto voce = tabella.find(comando); voce != tabella.end())
                Rispondi(voce->second);
        };
    }
    /// These answers one after the other, whatever is asked; the last one for all that follow.
    void RispondiInFila(std::vector<std::string> fila) {
        alComando = [this, fila = std::move(fila), n = size_t{0}](const std::string&) mutable {
            Rispondi(fila[std::min(n++, fila.size() - 1)]);
        };
    }

    EsitoApertura Apri(const std::string& nome) override {
        aperture.push_back(nome);
        aperto_ = esitoApertura == EsitoApertura::Aperto;
        return esitoApertura;
    }
    void Chiudi() override { aperto_ = false; }
    bool Aperto() const override { return aperto_; }
    bool Scrivi(std::span<const uint8_t> dati) override {
        if (guasto)
            return false;
        scritti.emplace_back(dati.begin(), dati.end());
        if (alComando)
            alComando(scritti.back());
        return true;
    }
    std::optional<size_t> Leggi(std::span<uint8_t> dove) override {
        if (guasto)
            return std::nullopt;
        size_t n = 0;
        while (n < dove.size() && !coda_.empty() && coda_.front().quando <= ambiente_.ora) {
            std::string& testo = coda_.front().testo;
            const size_t parte = std::min(testo.size(), dove.size() - n);
            std::copy_n(testo.begin(), parte, dove.begin() + static_cast<std::ptrdiff_t>(n));
            n += parte;
            testo.erase(0, parte);
            if (testo.empty())
                coda_.pop_front();
        }
        return n;
    }
    std::optional<size_t> InArrivo() override {
        if (guasto)
            return std::nullopt;
        size_t n = 0;
        for (const Pezzo& pezzo : coda_)
            if (pezzo.quando <= ambiente_.ora)
                n += pezzo.testo.size();
        return n;
    }
    std::optional<size_t> DaSpedire() override {
        return guasto ? std::nullopt : std::optional<size_t>(arretrato);
    }
    void Scarta() override {
        while (!coda_.empty() && coda_.front().quando <= ambiente_.ora)
            coda_.pop_front();
    }

private:
    struct Pezzo {
        double quando;
        std::string testo;
    };
    AmbienteProva& ambiente_;
    std::deque<Pezzo> coda_;
    bool aperto_ = false;
};

} // namespace orvane::prova
