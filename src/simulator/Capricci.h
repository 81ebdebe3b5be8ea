// The misbehaviours in force: which one a command meets, and how often still.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "simulator/RicevitoreSimulato.h"

namespace orvane {

class ListaCapricci {
public:
    void Aggiungi(const Capriccio& capriccio) { lista_.push_back(capriccio); }
    void Scorda() { lista_.clear(); }

    /// The first one in force for the reply to this command; it counts as used.
    std::optional<Capriccio> PerRisposta(std::string_view comando);
    /// The first one in force for the stream that this command starts; it counts as used.
    std::optional<Capriccio> PerFlusso(std::string_view comando);

private:
    template <class Prova> std::optional<Capriccio> Prendi(std::string_view comando, Prova prova);

    std::vector<Capriccio> lista_;
};

/// It meets the stream of a sweep, not the reply to a command.
bool RiguardaFlusso(const Capriccio& capriccio);

} // namespace orvane
