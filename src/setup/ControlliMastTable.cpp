// Checks of a Mast-Table run, and of the kind of run.
#include "base/Numeri.h"
#include "base/Testo.h"
#include "link/Interrogazioni.h"
#include "setup/ElencoControlli.h"
#include "setup/PreVolo.h"
#include "setup/Segnala.h"

namespace orvane::prevolo {
namespace {

constexpr int kMastTable = 5;
constexpr double kBatteriaBassa = 20; ///< per cent

bool ConMastTable(C c) {
    return AncillaryDi(c.setup) == kMastTable;
}

bool Bassa(const std::string& livello) {
    const std::string maiuscolo = Maiuscolo(livello);
    return maiuscolo != "FULL" && maiuscolo != "CHARGING" &&
           ValoreIniziale(livello) < kBatteriaBassa;
}

} // namespace

Segnalazioni ControllaFreqTableMT(C c) {
    if (!ConMastTable(c))
        return {};
    return SeCiSono(CelleDove(c.tabella, {ColonnaScan::Step},
                              [](const ScanLine& riga) { return riga.StepMode == 1; }),
                    EsitoControllo::Ferma, Esclamazione("Cannot scan through frequency table"));
}

Segnalazioni ControllaRunKind(C c) {
    return Se(c.runKind == kSoloControlli, EsitoControllo::Ferma);
}

Segnalazioni ControllaImpostazioniMT(C c) {
    return Se(c.runKind == kConMastTable && ConMastTable(c) && RigheInUso(c.tabella) > 1,
              EsitoControllo::Ferma, Esclamazione("Mast-Table permits a single line scan-table"));
}

Segnalazioni ControllaSmartDetectorMT(C c) {
    if (c.runKind != kConMastTable || !ConMastTable(c))
        return {};
    return SeCiSono(CelleDove(c.tabella, {ColonnaScan::Detector},
                              [](const ScanLine& riga) { return riga.Smart == 1; }),
                    EsitoControllo::Ferma,
                    Esclamazione("Smart Detector not available with Mast-Table"));
}

// No query tells the battery of an extension unit: only the receiver's own is asked.
bool ControllaBatteriaMT(PreVolo& p) {
    Ricevitore& r = p.ricevitore;
    if (AncillaryDi(p.scrivania.setup) != kMastTable ||
        r.modello.FwVersione < firmware::kPausaBatteria)
        return true;
    const auto batteria = LeggiBatteria(r);
    if (r.stato.AbbandonaComandi)
        return false;
    if (!batteria || !Bassa(batteria->livello))
        return true;
    return r.ambiente.Mostra(DomandaSiNo("5520 battery low. Do you want to continue?")) ==
           Risposta::Si;
}

} // namespace orvane::prevolo
