// Checks of generator and pulse limiter: what a receiver lacks, or what goes with its front-end, is
// put right in the set-up. The run sends it.
#include "setup/ElencoControlli.h"
#include "setup/RegoleScan.h"
#include "setup/Segnala.h"

namespace orvane::prevolo {
namespace {

bool GeneratoreAcceso(const SetupRecord& setup) {
    return setup.RFOut != 0 || setup.TGOn != 0;
}

} // namespace

Segnalazioni ControllaRFOutTracking3360Sweep(C c) {
    return Se(c.modello.Is3360 && GeneratoreAcceso(c.setup), EsitoControllo::Corregge);
}

// No member of the family has a radiated input alone, whose control would be left as it is.
Segnalazioni ControllaPulseLim(C c) {
    if (c.modello.TipoFrontEnd != 0 || c.setup.PulseLim == 0)
        return {};
    const bool fuori = c.modello.EstensioneAttiva || UnaRiga(c.tabella, [&](const ScanLine& riga) {
                           return DetIDMacLocRBWScanTab(c.modello, riga.Start, riga.Stop) == 1;
                       });
    return Se(fuori, EsitoControllo::Corregge);
}

Segnalazioni ControllaGeneratoreOem(C c) {
    const bool senza = c.modello.ModelloOEM == 1 || c.modello.ModelloOEM == 2;
    return Se(senza && GeneratoreAcceso(c.setup), EsitoControllo::Corregge);
}

Segnalazioni ControllaTrackingGX2207(C c) {
    const bool suo = c.modello.TipoFrontEnd == 1 || c.modello.TipoFrontEnd == 3;
    return Se(suo && c.setup.RFOut != 0, EsitoControllo::Chiede,
              {.testo = "With GX2207 connected RF Out works with Tracking only",
               .icona = Icona::Informazione,
               .pulsanti = Pulsanti::OkAnnulla});
}

Segnalazioni ControllaTrackingFrontEnd2(C c) {
    const bool senza = c.modello.TipoFrontEnd == 2 && !c.modello.Is5520F;
    return Se(senza && GeneratoreAcceso(c.setup), EsitoControllo::Corregge,
              c.setup.TGOn != 0 ? Informazione("Tracking not available") : Riquadro{});
}

void SpegniPulseLim(SetupRecord& setup) {
    setup.PulseLim = 0;
}

void SpegniGeneratore(SetupRecord& setup) {
    setup.RFOut = setup.TGOn = 0;
}

void SpegniTracking(SetupRecord& setup) {
    setup.TGOn = 0;
}

void AccendiTracking(SetupRecord& setup) {
    setup.TGOn = 1;
}

} // namespace orvane::prevolo
