// An environment for tests: virtual time, scripted answers, and boxes and faults kept for asserts.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "base/Ambiente.h"

namespace orvane::prova {

struct AmbienteProva : Ambiente {
    double ora = 1000;
    std::string riga;
    OraCalendario calendario{.anno = 2026, .mese = 11, .giorno = 22, .secondiDelGiorno = 43200};
    /// Boxes that came, and the answers to give them; without one the careful answer.
    std::vector<Riquadro> riquadri;
    std::deque<Risposta> risposte;
    /// A broken rule of the program fails the test, unless it is what the test is about.
    bool difettiAttesi = false;
    std::vector<std::string> difetti;
    /// Whether the link has bytes: ends a sleep early. And when the next ones are due.
    std::function<bool()> linkPronto;
    std::function<double()> prossimoByte; ///< moment of the clock; infinity for never
    /// What is to happen at a moment, run from inside the pump like a user's event.
    std::multimap<double, std::function<void()>> agenda;
    size_t giri = 0;

    void Fra(double secondi, std::function<void()> cosa) {
        agenda.emplace(ora + secondi, std::move(cosa));
    }

    /// The words of all boxes so far.
    std::vector<std::string> Testi() const {
        std::vector<std::string> testi;
        for (const Riquadro& riquadro : riquadri)
            testi.push_back(riquadro.testo);
        return testi;
    }

    double Adesso() const override { return ora; }
    OraCalendario Calendario() const override { return calendario; }

    void ElaboraEventi(double alPiuS, Veglia veglia) override {
        ++giri;
        const double fine = ora + alPiuS;
        if (veglia == Veglia::EventiELink && linkPronto && linkPronto())
            return Servi();
        double sveglia = fine;
        if (!agenda.empty() && agenda.begin()->first < sveglia)
            sveglia = agenda.begin()->first;
        if (veglia == Veglia::EventiELink && prossimoByte && prossimoByte() < sveglia)
            sveglia = prossimoByte();
        if (sveglia > ora)
            ora = sveglia;
        Servi();
    }

    Risposta Mostra(const Riquadro& riquadro) override {
        riquadri.push_back(riquadro);
        if (!risposte.empty()) {
            const Risposta data = risposte.front();
            risposte.pop_front();
            return data;
        }
        switch (riquadro.pulsanti) {
        case Pulsanti::SiNo:
            return Risposta::No;
        case Pulsanti::OkAnnulla:
        case Pulsanti::RiprovaAnnulla:
            return Risposta::Annulla;
        case Pulsanti::Ok:
            break;
        }
        return Risposta::Ok;
    }

    const std::string& RigaComando() const override { return riga; }

    void SegnalaDifetto(std::string_view testo) override {
        difetti.emplace_back(testo);
        if (!difettiAttesi)
            ADD_FAILURE() << "the program broke its own rule: " << testo;
    }

private:
    void Servi() {
        while (!agenda.empty() && agenda.begin()->first <= ora) {
            auto cosa = std::move(agenda.begin()->second);
            agenda.erase(agenda.begin());
            cosa();
        }
    }
};

} // namespace orvane::prova
