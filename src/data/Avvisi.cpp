#include "data/Avvisi.h"

#include <string>

namespace orvane {
namespace {

bool Avvisa(const Scrivania& s, std::string testo, std::string_view percorso) {
    s.ambiente.Mostra({.testo = testo + s.albero.PercorsoIntero(percorso),
                       .icona = Icona::Esclamazione,
                       .pulsanti = Pulsanti::Ok});
    return false;
}

} // namespace

bool AvvisaScrittura(const Scrivania& s, std::string_view percorso) {
    return Avvisa(s, "Cannot open file ", percorso);
}

bool AvvisaLettura(const Scrivania& s, std::string_view percorso) {
    // No blank in between: the text as users know it.
    return Avvisa(s, "Failed loading", percorso);
}

} // namespace orvane
