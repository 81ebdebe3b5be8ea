// The receiver's vocabulary: setters and queries, and what it says to each.
#pragma once

#include <string>
#include <string_view>

#include "simulator/Memoria.h"

namespace orvane {

/// A command taken apart: "#SRBW3*" is class 'S', name "RBW", value "3".
struct ComandoRicevuto {
    char classe = 0; ///< '?', 'S', 'A', or 'C' for #CHGS*
    std::string nome;
    std::string valore;
};
ComandoRicevuto DividiComando(std::string_view comando);

/// Carries a setter or query out and gives its reply, without line end. Sweeps and what acts on
/// them are not its business: they come back as unknown, "XXX=N/A".
std::string Rispondi(MemoriaSimulata& memoria, const ComandoRicevuto& comando);

} // namespace orvane
