// Checks of the table as a whole: lines in use, frequencies, steps.
#include <algorithm>

#include "base/Interruttori.h"
#include "setup/ElencoControlli.h"
#include "setup/RegoleScan.h"
#include "setup/Segnala.h"

namespace orvane::prevolo {

Segnalazioni RiordinaTabella(C c) {
    const size_t inUso = RigheInUso(c.tabella);
    if (inUso == 0)
        return Se(true, EsitoControllo::Ferma);
    const bool conBuchi =
        std::any_of(c.tabella.begin(), c.tabella.begin() + static_cast<std::ptrdiff_t>(inUso),
                    [](const ScanLine& riga) { return riga.Start == 0; });
    return Se(conBuchi, EsitoControllo::Corregge);
}

void Riordina(ScanTable& tabella, const SetupRecord&, const Segnalazione&) {
    CompattaScanTable(tabella);
}

Segnalazioni TutteLeFrequenze(C c) {
    Segnalazioni trovate = ControllaFstartFstopScanTab(c, false, 0, c.tabella.size() - 1);
    // With the switch the receiver is to judge: the user is told, and nothing stops.
    if (Acceso(c.rigaComando, interruttore::kNoContFreq))
        for (Segnalazione& s : trovate)
            s.esito = EsitoControllo::Corregge;
    return trovate;
}

Segnalazioni PassiAutomatici(C c) {
    return Se(UnaRiga(c.tabella,
                      [](const ScanLine& riga) {
                          return riga.AutoStep == 1 &&
                                 riga.Step != DetStepAutoDaRBW(riga.RbwId, riga);
                      }),
              EsitoControllo::Corregge);
}

} // namespace orvane::prevolo
