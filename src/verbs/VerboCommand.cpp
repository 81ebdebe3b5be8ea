#include <ostream>

#include "base/Numeri.h"
#include "link/Identificazione.h"
#include "setup/ComandiScan.h"
#include "setup/CommutatoriSweep.h"
#include "setup/PreVolo.h"
#include "setup/TabellaScan.h"
#include "verbs/Argomenti.h"
#include "verbs/EsameScan.h"
#include "verbs/Json.h"
#include "verbs/Verbo.h"

namespace orvane {
namespace {

std::string NumeroRiga(const PassataComposta& passata) {
    return TestoIntero(static_cast<long long>(passata.riga) + 1);
}

void StampaTesto(std::ostream& dati, const std::vector<std::string>& comandi) {
    for (const std::string& comando : comandi)
        dati << comando << "\n";
}

void StampaTesto(std::ostream& dati, const ScanComposto& scan) {
    dati << "run\n";
    StampaTesto(dati, scan.corsa);
    for (const PassataComposta& passata : scan.passate) {
        dati << "line " << NumeroRiga(passata);
        dati << (passata.nome.empty() ? "" : " ") << passata.nome << "\n";
        for (const Riquadro* riquadro : {&passata.unita, &passata.riquadro})
            if (!riquadro->testo.empty())
                dati << "[box] " << ParoleInRiga(riquadro->testo) << "\n";
        StampaTesto(dati, passata.comandi);
    }
}

void Lista(Json& json, std::string_view nome, const std::vector<std::string>& testi) {
    json.Chiave(nome).Lista();
    for (const std::string& testo : testi)
        json.Testo(testo);
    json.Chiudi();
}

void StampaJson(std::ostream& dati, const ScanComposto& scan) {
    Json json;
    json.Oggetto();
    Lista(json, "run", scan.corsa);
    json.Chiave("passes").Lista();
    for (const PassataComposta& passata : scan.passate) {
        json.Oggetto().Coppia("line", static_cast<int>(passata.riga) + 1);
        json.Coppia("pass", passata.nome).Coppia("unit", passata.unita.testo);
        json.Coppia("prompt", passata.riquadro.testo);
        Lista(json, "commands", passata.comandi);
        json.Chiudi();
    }
    json.Chiudi();
    dati << json.Chiudi().Documento() << "\n";
}

/// Who would be told; false where nobody answers.
bool Riconosci(Ricevitore& r) {
    if (!r.porta.ApriPorta(true))
        return false;
    LeggiModello(r, Modalita::Sweep, 1);
    r.porta.ChiudiPorta();
    return !r.stato.AbbandonaComandi && r.modello.FwTesto != "---";
}

/// Table and set-up as the checks would leave them; what only a run would ask is put in order
/// first.
ScanTable Correggi(Banco& banco, ScanTable tabella) {
    SetupRecord& setup = banco.scrivania.setup;
    CompattaScanTable(tabella);
    SelLineParaSweep(tabella, setup);
    ScanCorretto corretto = CorreggiScan(ContestoDiScan(banco, tabella), RispostaDiScan(banco));
    setup = std::move(corretto.setup);
    return corretto.tabella;
}

EsitoVerbo Racconta(Banco& banco, const ScanTable& tabella) {
    const ScanComposto scan = ComponiScan(banco.scrivania, banco.ricevitore.modello, tabella);
    banco.json ? StampaJson(banco.dati, scan) : StampaTesto(banco.dati, scan);
    for (const Riquadro& obiezione : scan.obiezioni)
        banco.scrivania.ambiente.Mostra(obiezione);
    return scan.intero ? kFatto : Guasto(banco, kRifiutato, "the table cannot be sent");
}

} // namespace

EsitoVerbo VerboCommand(Banco& banco, Parole parole) {
    const Argomenti argomenti(parole, {"scan"});
    const auto chiesto = argomenti.Opzione("scan");
    if (!argomenti.Errore().empty() || !argomenti.Posizioni().empty() || !chiesto)
        return UsoErrato(banco, "command",
                         argomenti.Errore().empty() ? "wants --scan NAME" : argomenti.Errore());
    const auto nome = NomeDaParola(*chiesto);
    if (!nome)
        return UsoErrato(banco, "command", "\"" + *chiesto + "\" is no valid name");
    ScanRecord scan;
    if (const EsitoVerbo esito = CaricaPerEsame(banco, *nome, scan); esito != kFatto)
        return esito;
    if (!Riconosci(banco.ricevitore))
        return Guasto(banco, EsitoDelLink(banco),
                      banco.interrotto ? "stopped" : "no receiver answered");
    return Racconta(banco, Correggi(banco, scan.Righe));
}

} // namespace orvane
