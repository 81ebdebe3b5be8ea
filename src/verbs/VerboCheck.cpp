#include <algorithm>
#include <ostream>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "setup/PreVolo.h"
#include "verbs/Argomenti.h"
#include "verbs/EsameScan.h"
#include "verbs/Json.h"
#include "verbs/Verbo.h"

namespace orvane {
namespace {

constexpr int kControlloNome = 36;

std::string NomeColonna(ColonnaScan colonna) {
    return Sostituisci(std::string(TitoloColonna(colonna)), "\n", " ");
}

/// What a finding says; one without words of its own says why it stops.
std::string ParoleDi(const Riscontro& r) {
    const std::string& testo = r.segnalazione.riquadro.testo;
    return testo.empty() && Rifiuta(r) ? std::string(r.motivo) : testo;
}

std::string_view Esito(const Riscontro& r) {
    switch (r.segnalazione.esito) {
    case EsitoControllo::Ferma:
        return "stop";
    case EsitoControllo::Chiede:
        return r.risposta.value_or(false) ? "asked, yes" : "asked, no";
    case EsitoControllo::Corregge:
        break;
    }
    return r.corretto ? "corrected" : "told";
}

void StampaRighe(Banco& banco, const Riscontro& r) {
    const auto riga = [&](const std::string& linea, const std::string& colonna) {
        banco.dati << r.numero << "\t" << r.nome << "\t" << linea << "\t" << colonna << "\t"
                   << ParoleInRiga(ParoleDi(r)) << "\t" << Esito(r) << "\n";
    };
    for (const CellaErrata& cella : r.segnalazione.celle)
        riga(TestoIntero(static_cast<long long>(cella.riga) + 1), NomeColonna(cella.colonna));
    if (!r.segnalazione.celle.empty())
        return;
    const auto& linea = r.segnalazione.riga;
    riga(linea ? TestoIntero(static_cast<long long>(*linea) + 1) : "-", "-");
}

void StampaOggetto(Json& json, const Riscontro& r) {
    json.Oggetto().Coppia("check", r.numero).Coppia("name", r.nome).Chiave("cells").Lista();
    for (const CellaErrata& cella : r.segnalazione.celle)
        json.Oggetto()
            .Coppia("line", static_cast<double>(cella.riga + 1))
            .Coppia("column", NomeColonna(cella.colonna))
            .Chiudi();
    json.Chiudi();
    if (r.segnalazione.riga)
        json.Coppia("line", static_cast<double>(*r.segnalazione.riga + 1));
    json.Coppia("words", Sostituisci(ParoleDi(r), "\r", "\n"));
    json.Coppia("outcome", Esito(r).substr(0, Esito(r).find(',')));
    if (r.risposta)
        json.Coppia("answer", *r.risposta ? "yes" : "no");
    json.Coppia("refuses", Rifiuta(r)).Chiudi();
}

void Stampa(Banco& banco, const std::vector<Riscontro>& riscontri, const std::string& misura,
            bool rifiutato) {
    if (!banco.json) {
        for (const Riscontro& r : riscontri)
            StampaRighe(banco, r);
        banco.dati << (rifiutato ? "refused\n" : "passes\n");
        return;
    }
    Json json;
    json.Oggetto().Coppia("model", NomeModello(banco.ricevitore.modello, false));
    if (!misura.empty())
        json.Coppia("measure", misura);
    json.Coppia("refused", rifiutato).Chiave("findings").Lista();
    for (const Riscontro& r : riscontri)
        StampaOggetto(json, r);
    banco.dati << json.Chiudi().Chiudi().Documento() << "\n";
}

/// The name that the measure would get, by the answers given; empty for a refusal, which is a
/// finding. Nothing is moved on disk.
std::string RisolviNome(Banco& banco, const std::string& misura,
                        std::vector<Riscontro>& riscontri) {
    const std::string nome = ControlNameMeasProfiloB(banco.scrivania, misura);
    if (nome.empty())
        riscontri.push_back({.numero = kControlloNome,
                             .nome = "ControlNameMeasProfiloB",
                             .motivo = "the measure exists and is not to be replaced",
                             .segnalazione = {}});
    return nome;
}

EsitoVerbo Controlla(Banco& banco, const ScanRecord& scan, const std::string& misura) {
    Ricevitore& r = banco.ricevitore;
    std::string motivo;
    const bool riconosciuto = RiconosciRicevitore(r, motivo);
    r.porta.ChiudiPorta();
    if (!riconosciuto || r.modello.FwTesto == "---")
        return Guasto(banco, EsitoDelLink(banco),
                      banco.interrotto  ? "stopped"
                      : !motivo.empty() ? motivo
                                        : "no receiver answered");
    std::vector<Riscontro> riscontri =
        EsaminaScan(ContestoDiScan(banco, scan.Righe), RispostaDiScan(banco));
    const std::string nome = misura.empty() ? std::string() : RisolviNome(banco, misura, riscontri);
    const bool rifiutato = std::any_of(riscontri.begin(), riscontri.end(), Rifiuta);
    Stampa(banco, riscontri, nome, rifiutato);
    return rifiutato ? kRifiutato : kFatto;
}

} // namespace

EsitoVerbo VerboCheck(Banco& banco, Parole parole) {
    const Argomenti argomenti(parole, {"scan", "name"});
    const auto scanChiesto = argomenti.Opzione("scan");
    if (!argomenti.Errore().empty() || !argomenti.Posizioni().empty() || !scanChiesto)
        return UsoErrato(banco, "check",
                         argomenti.Errore().empty() ? "wants --scan NAME" : argomenti.Errore());
    const auto nomeScan = NomeDaParola(*scanChiesto);
    const auto misuraChiesta = argomenti.Opzione("name");
    const auto misura = misuraChiesta ? NomeDaParola(*misuraChiesta) : std::optional(std::string());
    if (!nomeScan || !misura)
        return UsoErrato(banco, "check",
                         "\"" + (nomeScan ? *misuraChiesta : *scanChiesto) + "\" is no valid name");
    ScanRecord scan;
    if (const EsitoVerbo esito = CaricaPerEsame(banco, *nomeScan, scan); esito != kFatto)
        return esito;
    return Controlla(banco, scan, *misura);
}

} // namespace orvane
