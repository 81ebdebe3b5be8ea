// A desk for fuzzing: a private directory and an environment that answers nothing.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>
#include <string_view>

#include "aiuto/CartellaProva.h"
#include "data/Scrivania.h"

namespace orvane::prova {

struct AmbienteMuto : Ambiente {
    std::string riga;
    double Adesso() const override { return 0; }
    OraCalendario Calendario() const override { return {}; }
    void ElaboraEventi(double, Veglia) override {}
    Risposta Mostra(const Riquadro&) override { return Risposta::Annulla; }
    const std::string& RigaComando() const override { return riga; }
    void SegnalaDifetto(std::string_view) override { std::abort(); }
};

struct ScrivaniaFuzz {
    CartellaProva cartella;
    AmbienteMuto ambiente;
    Scrivania s{.ambiente = ambiente, .albero = AlberoDati(cartella.Percorso())};

    /// Below directories that exist.
    void Metti(const std::string& relativo, std::span<const uint8_t> byte) const {
        std::ofstream(cartella.Percorso() / relativo, std::ios::binary)
            .write(reinterpret_cast<const char*>(byte.data()),
                   static_cast<std::streamsize>(byte.size()));
    }
};

/// A broken promise ends the run.
inline void Pretendi(bool vero) {
    if (!vero)
        std::abort();
}

} // namespace orvane::prova
