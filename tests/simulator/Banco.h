// A bench for the simulated receiver: commands in, text or samples out, at a moment that the test
// sets.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "simulator/RicevitoreSimulato.h"
#include "sweep/FlussoSweep.h"

namespace orvane::prova {

struct Banco {
    explicit Banco(const std::string& testo = "5520") : ricevitore(Opzioni(testo)) {}

    static OpzioniSimulatore Opzioni(const std::string& testo) {
        std::string errore;
        const auto opzioni = LeggiOpzioniSimulatore(testo, errore);
        EXPECT_TRUE(opzioni) << errore;
        return opzioni.value_or(OpzioniSimulatore{});
    }

    void Manda(std::string_view comandi) {
        ricevitore.Riceve({reinterpret_cast<const uint8_t*>(comandi.data()), comandi.size()}, ora);
    }
    /// At most `quanti` of the bytes that are there now.
    std::string Prendi(size_t quanti = 1 << 20) {
        std::string testo(quanti, '\0');
        const auto dove = reinterpret_cast<uint8_t*>(testo.data());
        testo.resize(ricevitore.Da({dove, quanti}, ora));
        return testo;
    }
    std::string Chiedi(std::string_view comando) {
        Manda(comando);
        return Prendi();
    }
    void Guasta(std::string_view testo) {
        std::string errore;
        const auto capriccio = LeggiCapriccio(testo, errore);
        ASSERT_TRUE(capriccio) << errore;
        ricevitore.Aggiungi(*capriccio);
    }

    double ora = 1000;
    RicevitoreSimulato ricevitore;
};

/// Levels of a piece of stream.
inline std::vector<int16_t> Decodifica(std::string_view byte) {
    std::vector<int16_t> livelli;
    for (size_t i = 0; i + 1 < byte.size(); i += 2)
        livelli.push_back(
            DecodificaLivello(static_cast<uint8_t>(byte[i]), static_cast<uint8_t>(byte[i + 1])));
    return livelli;
}

} // namespace orvane::prova
