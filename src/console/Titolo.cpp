#include "console/Titolo.h"

#include "base/Interruttori.h"
#include "base/Testo.h"
#include "base/Versione.h"

namespace orvane {

std::string ComponiTitolo(const ParteTitolo& parte, std::string_view rigaComando) {
    const std::string spazio(10, ' ');
    std::string titolo = kNomeProgramma + spazio + RelSoftware();
    const bool vivo =
        parte.modalita != Modalita::SweepsArchive && parte.modalita != Modalita::Sweep;
    if (!vivo)
        return titolo;
    titolo += spazio + "Panel: " + parte.pannello;
    std::string ricevitore;
    if (Acceso(rigaComando, interruttore::kInfoMod))
        ricevitore += parte.modello;
    if (Acceso(rigaComando, interruttore::kInfoComUsb))
        ricevitore += parte.descrizione;
    return ricevitore.empty() ? titolo : titolo + spazio + ricevitore;
}

} // namespace orvane
