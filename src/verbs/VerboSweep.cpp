#include <cmath>
#include <ostream>

#include "base/Numeri.h"
#include "base/Percorsi.h"
#include "console/AutoReport.h"
#include "data/Panels.h"
#include "setup/TabellaScan.h"
#include "verbs/Argomenti.h"
#include "verbs/AttesaMuta.h"
#include "verbs/EsameScan.h"
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

/// The report that the panel wants behind each sweep.
EsitoAutoReport ScriviReport(Banco& banco) {
    AttesaMuta attesa;
    EsitoAutoReport report =
        ScriviAutoReport(banco.scrivania, banco.corsa.misura, banco.fabbrica, attesa);
    if (report.esito == EsitoAuto::Scritto && !banco.json)
        banco.messaggi << "report: " << report.file << "\n";
    if (report.esito == EsitoAuto::Fallito)
        banco.corsa.motivo = "the report " + report.file + " was not written";
    return report;
}

/// Where the measure lies, as the host names it, and its report.
void DiMisura(Banco& banco, EsitoVerbo esito, const EsitoAutoReport& report) {
    const std::string& misura = banco.corsa.misura;
    const auto cartella = banco.scrivania.albero.Host(CartellaMisura(misura)).string();
    // A run that ends before its first file has no folder to tell of.
    const bool esiste =
        !misura.empty() && banco.scrivania.albero.EsisteCartella(CartellaMisura(misura));
    if (!banco.json) {
        if (esiste)
            banco.dati << cartella << "\n";
        return;
    }
    Json json;
    json.Oggetto().Coppia("event", "end").Coppia("status", static_cast<int>(esito));
    if (esiste)
        json.Coppia("measure", misura).Coppia("folder", cartella);
    if (report.esito == EsitoAuto::Scritto)
        json.Coppia("report", report.file);
    if (esito != kFatto)
        json.Coppia("reason", banco.corsa.motivo);
    banco.dati << json.Chiudi().Documento() << "\n" << std::flush;
}

/// How a run starts and pauses, from the options; `errore` where they make no sense.
struct ModoCorsa {
    int timerS = 0;
    int16_t trigger = 0; ///< `TriggerSweepMode`
    PianoPausa pausa;
    std::string errore;
};

constexpr double kSecondiMassimi = 24 * 3600;

/// Seconds behind an option, from `minimo` to a day.
std::optional<double> Secondi(const Argomenti& argomenti, const std::string& nome, double minimo,
                              ModoCorsa& modo) {
    const auto testo = argomenti.Opzione(nome);
    if (!testo)
        return std::nullopt;
    const auto secondi = LeggiNumero(*testo);
    if (!secondi || !(*secondi >= minimo && *secondi <= kSecondiMassimi))
        modo.errore = "--" + nome + " wants seconds";
    return secondi;
}

ModoCorsa LeggiModo(const Argomenti& argomenti, bool conTerminale) {
    ModoCorsa modo;
    modo.pausa.dopoS = Secondi(argomenti, "pause-after", 0, modo);
    modo.pausa.perS = Secondi(argomenti, "pause-for", 0, modo);
    const double timer = Secondi(argomenti, "timer", 1, modo).value_or(0);
    const auto trigger = argomenti.Opzione("trigger");
    if (!modo.errore.empty())
        return modo;
    if (timer != std::floor(timer))
        modo.errore = "--timer wants whole seconds";
    if (trigger && *trigger != "0" && *trigger != "1")
        modo.errore = "--trigger wants 0 or 1";
    if (trigger && timer > 0)
        modo.errore = "--timer and --trigger exclude each other";
    if (modo.pausa.perS && !modo.pausa.dopoS)
        modo.errore = "--pause-for wants --pause-after";
    if (modo.pausa.dopoS && !modo.pausa.perS && !conTerminale)
        modo.errore = "--pause-after wants --pause-for where there is no terminal";
    if (!modo.errore.empty())
        return modo;
    modo.timerS = static_cast<int>(timer);
    modo.trigger = static_cast<int16_t>(!trigger ? 0 : *trigger == "0" ? 1 : 2);
    return modo;
}

EsitoCorsa Corri(Banco& banco, ScanRecord& scan, const std::string& misura, const ModoCorsa& modo) {
    ScegliTimer(banco.corsa, modo.timerS);
    ScegliTrigger(banco.corsa, modo.trigger);
    GuidaPausa guida(banco.ricevitore.ambiente, banco.corsa, banco.vista, modo.pausa,
                     banco.tastiera);
    banco.alGiro = [&guida] { guida.Gira(); };
    if (banco.json)
        banco.vista.AvviaEventi(banco.dati);
    Corsa corsa{banco.scrivania, banco.ricevitore, scan, banco.corsa, banco.vista};
    const EsitoCorsa esito = ClickExecuteSweep(corsa, misura);
    banco.alGiro = {};
    banco.vista.FineRiga();
    return esito;
}

} // namespace

EsitoVerbo VerboSweep(Banco& banco, Parole parole) {
    const Argomenti argomenti(parole,
                              {"scan", "name", "timer", "trigger", "pause-after", "pause-for"});
    const auto scanChiesto = argomenti.Opzione("scan");
    const std::string misuraChiesta = argomenti.Opzione("name").value_or("Untitled");
    if (!argomenti.Errore().empty() || !argomenti.Posizioni().empty() || !scanChiesto)
        return UsoErrato(banco, "sweep",
                         argomenti.Errore().empty() ? "wants --scan NAME" : argomenti.Errore());
    const ModoCorsa modo = LeggiModo(argomenti, static_cast<bool>(banco.tastiera));
    if (!modo.errore.empty())
        return UsoErrato(banco, "sweep", modo.errore);
    const auto nomeScan = NomeDaParola(*scanChiesto);
    const auto misura = NomeDaParola(misuraChiesta);
    if (!nomeScan || !misura)
        return UsoErrato(banco, "sweep",
                         "\"" + (nomeScan ? misuraChiesta : *scanChiesto) + "\" is no valid name");
    ScanRecord scan;
    if (const EsitoVerbo esito = CaricaPerEsame(banco, *nomeScan, scan); esito != kFatto)
        return esito;
    banco.scrivania.env.ScanPanelPath = PercorsoPannello(*nomeScan, "EST");
    EsitoVerbo esito = DaCorsa(banco, Corri(banco, scan, *misura, modo));
    const EsitoAutoReport report = esito == kFatto ? ScriviReport(banco) : EsitoAutoReport{};
    if (report.esito == EsitoAuto::Fallito)
        esito = kGuastoFile;
    DiMisura(banco, esito, report);
    return esito == kFatto ? kFatto : Guasto(banco, esito, banco.corsa.motivo);
}

} // namespace orvane
