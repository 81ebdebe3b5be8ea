#include "verbs/OpzioniRiga.h"

#include <algorithm>
#include <array>

#include "base/Numeri.h"
#include "data/TabelleLimFac.h"
#include "setup/CampiRiga.h"
#include "setup/Controlli.h"
#include "setup/ModuloScan.h"
#include "setup/RegoleRiga.h"

namespace orvane {
namespace {

struct Contesto {
    Banco& banco;
    const Argomenti& argomenti;
    int ancillaryKind = 0;
    bool Ha(const char* opzione) const { return argomenti.Opzione(opzione).has_value(); }
};

EsitoVerbo Rifiuta(const Contesto& c, const Riquadro& riquadro) {
    c.banco.scrivania.ambiente.Mostra(riquadro);
    return kRifiutato;
}

/// The options that say something of the line. What is wrong with them; empty when nothing is.
std::string ApplicaOpzioni(const Contesto& c, ScanLine& riga) {
    for (const CampoRiga& campo : TabellaCampiRiga()) {
        const auto testo = c.argomenti.Opzione(std::string(campo.opzione));
        if (campo.opzione.empty() || !testo || campo.leggi(riga, *testo, c.ancillaryKind))
            continue;
        return "--" + std::string(campo.opzione) + " wants " + std::string(campo.vuole) +
               ", not \"" + *testo + "\"";
    }
    AggiornaStepAuto(riga);
    const bool campo = c.Ha("start") || c.Ha("stop");
    return campo && !(riga.Start < riga.Stop) ? "wants --start below --stop" : "";
}

/// Names that this kind of ancillary has not.
std::string ControllaSelezioni(const Contesto& c, const ScanLine& riga) {
    const bool linee = c.Ha("lines");
    if (!linee && !c.Ha("antenna"))
        return "";
    const int kind = c.ancillaryKind;
    const bool serve = linee ? kind != 3 && kind != 0 && kind != 5 : kind == 3;
    const bool dueLinee = kind == 1 || kind == 6;
    if (serve && !(linee && dueLinee && (riga.LineSwitch[0] == 1 || riga.LineSwitch[3] == 1)))
        return "";
    return std::string(linee ? "--lines" : "--antenna") + ": the ancillary " + TestoIntero(kind) +
           " has none of these; see --ancillary";
}

/// Files that the line names and that are not there.
EsitoVerbo ControllaNomi(const Contesto& c, ScanLine& riga) {
    ModuloScan modulo{.albero = c.banco.scrivania.albero, .riga = riga};
    if (c.Ha("table"))
        if (const auto riquadro = ControllaFreqTable(modulo))
            return Rifiuta(c, *riquadro);
    for (const auto& [opzione, coppia] :
         {std::pair{"limit", CoppiaLimite::Prima}, std::pair{"limit-dsd", CoppiaLimite::DSD}}) {
        const std::string& nome = NomeLimite(riga, coppia);
        if (c.Ha(opzione) && LimiteScelto(riga, coppia) &&
            !c.banco.scrivania.albero.Esiste(PercorsoLimite(nome)))
            return Guasto(c.banco, kGuastoFile, "there is no limit " + nome);
    }
    return kFatto;
}

/// What closing the window would refuse, where the options belong to it.
EsitoVerbo ControllaSmart(const Contesto& c, const ScanLine& riga) {
    constexpr std::array kDellaFinestra = {"smart",  "detector", "hold",     "peak-hold",
                                           "margin", "limit",    "limit-dsd"};
    const bool sua = std::any_of(kDellaFinestra.begin(), kDellaFinestra.end(),
                                 [&](const char* o) { return c.Ha(o); });
    if (!sua || riga.Smart != 1)
        return kFatto;
    if (!ControllaSelLimSD(riga))
        return Rifiuta(c, RiquadroLimiteMancante());
    const AlberoDati& albero = c.banco.scrivania.albero;
    const bool lineare =
        LimiteLineare(LimiteDaNome(albero, riga.Limit)) ||
        (ControllaCondizioniDSDScanTab(riga) && LimiteLineare(LimiteDaNome(albero, riga.LimitDSD)));
    return lineare ? Rifiuta(c, RiquadroLimiteLineare()) : kFatto;
}

} // namespace

std::set<std::string> OpzioniDiRiga() {
    std::set<std::string> opzioni = {"band", "ancillary"};
    for (const CampoRiga& campo : TabellaCampiRiga())
        if (!campo.opzione.empty())
            opzioni.emplace(campo.opzione);
    return opzioni;
}

EsitoVerbo ApplicaOpzioniRiga(Banco& banco, const Argomenti& argomenti, int ancillaryKind,
                              ScanLine& riga) {
    const Contesto c{.banco = banco, .argomenti = argomenti, .ancillaryKind = ancillaryKind};
    std::string errore = ApplicaOpzioni(c, riga);
    if (errore.empty())
        errore = ControllaSelezioni(c, riga);
    if (!errore.empty())
        return UsoErrato(banco, "scan", errore);
    const EsitoVerbo nomi = ControllaNomi(c, riga);
    return nomi == kFatto ? ControllaSmart(c, riga) : nomi;
}

} // namespace orvane
