#include <cmath>
#include <ostream>

#include "base/Numeri.h"
#include "graph/Verdetto.h"
#include "verbs/RigheCsv.h"

namespace orvane {
namespace {

/// Columns by tabs: limit, detector, worst delta, where, level, limit there, samples above,
/// verdict.
void StampaLimite(Banco& banco, const MisuraChiesta& chiesta, const VerdettoLimite& v) {
    banco.dati << v.limite << "\t" << kNomiDetector[static_cast<size_t>(v.detector)] << "\t";
    if (v.giudizio == Giudizio::Nessuno)
        banco.dati << "---\t---\t---\t---";
    else
        banco.dati << (v.Delta() > 0 ? "+" : "") << TestoFisso(v.Delta(), 2) << " dB\t"
                   << TestoFreqPulita(v.freqMhz) << " MHz\t"
                   << TestoFisso(InUnita(chiesta, v.livelloCent), 2) << " " << chiesta.nomeUnita
                   << "\t" << TestoFisso(InUnita(chiesta, v.limiteCent), 2) << " "
                   << chiesta.nomeUnita;
    banco.dati << "\t" << v.oltre << " above\t" << TestoGiudizio(v.giudizio) << "\n";
}

void AggiungiLimite(Json& json, const MisuraChiesta& chiesta, const VerdettoLimite& v) {
    const auto seConfrontato = [&](double valore) {
        return v.giudizio == Giudizio::Nessuno ? NAN : valore;
    };
    json.Oggetto().Coppia("name", v.limite);
    json.Coppia("detector", kNomiDetector[static_cast<size_t>(v.detector)]);
    json.Coppia("delta", seConfrontato(v.Delta()));
    json.Coppia("frequency_mhz", seConfrontato(FreqPulita(v.freqMhz)));
    json.Coppia("level", seConfrontato(InUnita(chiesta, v.livelloCent)));
    json.Coppia("limit", seConfrontato(InUnita(chiesta, v.limiteCent)));
    json.Coppia("above", static_cast<double>(v.oltre));
    json.Coppia("verdict", TestoGiudizio(v.giudizio)).Chiudi();
}

void Stampa(Banco& banco, const MisuraChiesta& chiesta, const Verdetto& verdetto) {
    Json json;
    json.Oggetto().Coppia("unit", chiesta.nomeUnita);
    json.Coppia("uncertainty", chiesta.setup.MeasUncertainty).Chiave("limits").Lista();
    for (const VerdettoLimite& v : verdetto.limiti) {
        AggiungiLimite(json, chiesta, v);
        if (!banco.json)
            StampaLimite(banco, chiesta, v);
    }
    json.Chiudi().Coppia("verdict", TestoGiudizio(verdetto.insieme)).Chiudi();
    banco.dati << (banco.json ? json.Documento() : TestoGiudizio(verdetto.insieme)) << "\n";
}

/// Says which of the limits, or that all of them, had nothing to be held against.
void DiSenzaConfronto(Banco& banco, const Verdetto& verdetto) {
    if (verdetto.limiti.empty())
        banco.messaggi << "orvane: nothing to compare: no limit is on\n";
    for (const VerdettoLimite& v : verdetto.limiti)
        if (v.giudizio == Giudizio::Nessuno)
            banco.messaggi << "orvane: nothing to compare: no "
                           << kNomiDetector[static_cast<size_t>(v.detector)]
                           << " level where the limit " << v.limite << " has a value\n";
}

/// False for what is no uncertainty.
bool LeggiIncertezza(const Argomenti& argomenti, SetupRecord& setup) {
    constexpr double kMassimaDb = 99;
    const auto testo = argomenti.Opzione("uncertainty");
    const auto valore = testo ? LeggiNumero(*testo) : std::nullopt;
    if (valore)
        setup.MeasUncertainty = static_cast<float>(*valore);
    return !testo || (valore && *valore >= 0 && *valore <= kMassimaDb);
}

} // namespace

EsitoVerbo VerboVerdict(Banco& banco, Parole parole) {
    auto opzioni = OpzioniMisura({"uncertainty"});
    opzioni.erase("detector"); // each limit has its own
    const Argomenti argomenti(parole, opzioni);
    MisuraChiesta chiesta;
    if (SetupRecord prova; !LeggiIncertezza(argomenti, prova))
        return UsoErrato(banco, "verdict", "--uncertainty wants 0 to 99 dB");
    const EsitoVerbo esito =
        ApriDaOpzioni(banco, "verdict", argomenti, Partenza::ComeMisurata, chiesta);
    if (esito != kFatto)
        return esito;
    if (!chiesta.limitiAssenti.empty())
        return Guasto(banco, kGuastoFile, "no verdict without " + chiesta.limitiAssenti[0]);
    LeggiIncertezza(argomenti, chiesta.setup);
    const Verdetto verdetto = CalcolaVerdetto(chiesta.misura, chiesta.setup);
    Stampa(banco, chiesta, verdetto);
    DiSenzaConfronto(banco, verdetto);
    return verdetto.insieme == Giudizio::Pass ? kFatto : kRifiutato;
}

} // namespace orvane
