// Asking the user to switch an extension unit on or off by hand, and meeting the receiver anew.
#include <array>

#include "link/Identificazione.h"

namespace orvane {
namespace {

// By `UnitaRichiesta`.
constexpr std::array<std::string_view, 3> kUnita = {"5540 or 5570", "5570", "5590"};

} // namespace

std::string TestoCambioUnita(UnitaRichiesta unita, std::string_view nomeUnita) {
    if (unita == UnitaRichiesta::SoloRicevitore)
        return "             Switch OFF 5520 and " + std::string(nomeUnita) +
               "\rThen switch back ON 5520 only and click OK.";
    return "Switch OFF 5520.\rSwitch ON the extension unit (" +
           std::string(kUnita[static_cast<size_t>(unita)]) +
           "),\rwait a couple of seconds, then switch back ON 5520 and click OK.";
}

bool RiapriERiconosci(Ricevitore& r, Modalita modalita, int sorgente) {
    while (!r.porta.ApriPorta(false)) {
        const Risposta risposta =
            r.ambiente.Mostra({.testo = "Cannot find 5520 / 5540\r on the USB bus.",
                               .icona = Icona::Stop,
                               .pulsanti = Pulsanti::RiprovaAnnulla});
        if (risposta == Risposta::Annulla) {
            r.stato.AbbandonaComandi = true;
            return false;
        }
    }
    LeggiModello(r, modalita, sorgente);
    return !r.stato.AbbandonaComandi;
}

bool ChiediCambioUnita(Ricevitore& r, UnitaRichiesta unita, Modalita modalita, int sorgente) {
    r.ambiente.Mostra({.testo = TestoCambioUnita(unita, NomeModello(r.modello, false)),
                       .icona = Icona::Informazione});
    return RiapriERiconosci(r, modalita, sorgente);
}

} // namespace orvane
