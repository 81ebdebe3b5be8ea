#include <ostream>

#include "base/Percorsi.h"
#include "console/Console.h"
#include "data/ControllaRecord.h"
#include "data/Panels.h"
#include "setup/TabellaScan.h"
#include "verbs/Argomenti.h"
#include "verbs/Json.h"
#include "verbs/Verbo.h"

namespace orvane {
namespace {

EsitoVerbo DaCorsa(const Banco& banco, EsitoCorsa esito) {
    switch (esito) {
    case EsitoCorsa::Compiuta:
        return kFatto;
    case EsitoCorsa::Rifiutata:
        return kRifiutato;
    case EsitoCorsa::Fermata:
        return kFermato;
    case EsitoCorsa::GuastoFile:
        return kGuastoFile;
    case EsitoCorsa::Abbandonata:
    case EsitoCorsa::GuastoLink:
        break;
    }
    return EsitoDelLink(banco);
}

/// Where the measure lies, as the host names it.
void DiMisura(Banco& banco, const std::string& misura, EsitoVerbo esito) {
    const auto cartella = banco.scrivania.albero.Host(CartellaMisura(misura)).string();
    if (!banco.json) {
        // A run that ends before its first file has no folder to tell of.
        if (banco.scrivania.albero.EsisteCartella(CartellaMisura(misura)))
            banco.dati << cartella << "\n";
        return;
    }
    Json json;
    json.Oggetto().Coppia("event", "end").Coppia("measure", misura).Coppia("folder", cartella);
    json.Coppia("status", static_cast<double>(esito));
    banco.dati << json.Chiudi().Documento() << "\n";
}

} // namespace

EsitoVerbo VerboSweep(Banco& banco, Parole parole) {
    const Argomenti argomenti(parole, {"scan", "name"});
    const auto scanChiesto = argomenti.Opzione("scan");
    const std::string misuraChiesta = argomenti.Opzione("name").value_or("Untitled");
    if (!argomenti.Errore().empty() || !argomenti.Posizioni().empty() || !scanChiesto)
        return UsoErrato(banco, "sweep",
                         argomenti.Errore().empty() ? "wants --scan NAME" : argomenti.Errore());
    const auto nomeScan = NomeDaParola(*scanChiesto);
    const auto misura = NomeDaParola(misuraChiesta);
    if (!nomeScan || !misura)
        return UsoErrato(banco, "sweep",
                         "\"" + (nomeScan ? misuraChiesta : *scanChiesto) + "\" is no valid name");
    const std::string percorso = PercorsoPannello(*nomeScan, "EST");
    if (!banco.scrivania.albero.Esiste(percorso))
        return Guasto(banco, kGuastoFile, "there is no scan table " + percorso);

    AvviaInLettura(banco.scrivania, banco.ricevitore.porta.link, banco.linkScelto);
    ScanRecord scan;
    if (!CaricaPanelEST(banco.scrivania, percorso, scan))
        return kGuastoFile;
    ControllaScan(scan);
    banco.scrivania.env.ScanPanelPath = percorso;
    Corsa corsa{banco.scrivania, banco.ricevitore, scan, banco.corsa, banco.vista};
    const EsitoVerbo esito = DaCorsa(banco, ClickExecuteSweep(corsa, *misura));
    banco.vista.FineRiga();
    if (!banco.corsa.misura.empty())
        DiMisura(banco, banco.corsa.misura, esito);
    return esito == kFatto ? kFatto : Guasto(banco, esito, banco.corsa.motivo);
}

} // namespace orvane
