#include <cmath>
#include <limits>
#include <ostream>

#include "base/Numeri.h"
#include "data/CaricaSalva.h"
#include "data/FileTabelle.h"
#include "graph/Picchi.h"
#include "records/ImpostazioniReport.h"
#include "verbs/RigheCsv.h"

namespace orvane {
namespace {

constexpr double kMassimiPicchi = 1e6;

/// What is searched, and how.
struct Ricerca {
    double quanti = kPicchiDefault;
    double emergenzaDb = kEmergenzaPicco;
    double daMhz = -std::numeric_limits<double>::infinity();
    double aMhz = std::numeric_limits<double>::infinity();
    std::string errore;

    void Leggi(const Argomenti& argomenti, const std::string& nome, double minimo, double& valore) {
        const auto testo = argomenti.Opzione(nome);
        if (!testo)
            return;
        valore = LeggiNumero(*testo).value_or(NAN);
        if (!(valore >= minimo))
            errore = "--" + nome + ": \"" + *testo + "\" will not do";
    }
};

Ricerca LeggiRicerca(const Argomenti& argomenti) {
    Ricerca r;
    r.Leggi(argomenti, "count", 1, r.quanti);
    r.Leggi(argomenti, "excursion", 0, r.emergenzaDb);
    r.Leggi(argomenti, "from", 0, r.daMhz);
    r.Leggi(argomenti, "to", 0, r.aMhz);
    if (r.quanti > kMassimiPicchi || r.quanti != std::floor(r.quanti))
        r.errore = "--count wants a whole number";
    if (r.errore.empty() && r.daMhz > r.aMhz)
        r.errore = "--from lies above --to";
    return r;
}

void StampaCsv(Banco& banco, const MisuraChiesta& chiesta, const std::vector<Picco>& picchi) {
    const auto colonne = ColonneLimiti(chiesta);
    banco.dati << "number,frequency_mhz,level_db" << TitoliLimiti(colonne) << "\n";
    for (size_t i = 0; i < picchi.size(); ++i) {
        banco.dati << i + 1 << "," << TestoFreqPulita(picchi[i].freqMhz) << ","
                   << TestoFisso(InUnita(chiesta, picchi[i].livelloCent), 2)
                   << CampiLimiti(chiesta, colonne, picchi[i].freqMhz, picchi[i].livelloCent);
        banco.dati << "\n";
    }
}

void StampaJson(Banco& banco, const MisuraChiesta& chiesta, const std::vector<Picco>& picchi) {
    const auto colonne = ColonneLimiti(chiesta);
    Json json;
    json.Oggetto().Coppia("detector", kNomiDetector[static_cast<size_t>(chiesta.detector)]);
    json.Coppia("unit", chiesta.nomeUnita).Chiave("peaks").Lista();
    for (size_t i = 0; i < picchi.size(); ++i) {
        json.Oggetto().Coppia("number", static_cast<int>(i) + 1);
        json.Coppia("frequency_mhz", FreqPulita(picchi[i].freqMhz));
        json.Coppia("level", InUnita(chiesta, picchi[i].livelloCent)).Chiave("limits").Lista();
        for (const ColonnaLimite& colonna : colonne) {
            const auto limite = colonna.Valore(picchi[i].freqMhz);
            json.Oggetto().Coppia("name", colonna.nome);
            json.Coppia("level", limite ? InUnita(chiesta, *limite) : NAN);
            json.Coppia("delta", limite ? (picchi[i].livelloCent - *limite) / 100.0 : NAN).Chiudi();
        }
        json.Chiudi().Chiudi();
    }
    banco.dati << json.Chiudi().Chiudi().Documento() << "\n";
}

/// The frequencies as a frequency table, with the levels found there.
EsitoVerbo SalvaInTabella(Banco& banco, const std::vector<Picco>& picchi, const std::string& nome) {
    const Scrivania& s = banco.scrivania;
    ContenutoTabella tabella{.kind = TableKind::Frequenze};
    for (const Picco& picco : picchi) {
        const EsitoModifica esito = InserisciPunto(
            tabella, {.freqMhz = FreqPulita(picco.freqMhz), .livelloCent = picco.livelloCent});
        if (esito == EsitoModifica::Fatta)
            continue;
        AvvisaModifica(s.ambiente, esito, tabella.kind);
        return kRifiutato;
    }
    const auto percorso = CmdSave(s, RichiestaTabella(tabella.kind), nome);
    if (!percorso)
        return kRifiutato;
    if (!SalvaTabella(s, tabella, *percorso))
        return kGuastoFile;
    banco.messaggi << picchi.size() << " points in " << *percorso << "\n";
    return kFatto;
}

} // namespace

EsitoVerbo VerboPeaks(Banco& banco, Parole parole) {
    const Argomenti argomenti(parole,
                              OpzioniMisura({"count", "excursion", "from", "to", "save-table"}));
    const Ricerca ricerca = LeggiRicerca(argomenti);
    if (!ricerca.errore.empty())
        return UsoErrato(banco, "peaks", ricerca.errore);
    MisuraChiesta chiesta;
    const EsitoVerbo esito =
        ApriDaOpzioni(banco, "peaks", argomenti, Partenza::ComeMisurata, chiesta);
    if (esito != kFatto)
        return esito;
    const auto picchi =
        TrovaPicchi(*chiesta.misura.traccia, chiesta.detector, static_cast<int>(ricerca.quanti),
                    ricerca.daMhz, ricerca.aMhz, ricerca.emergenzaDb);
    (banco.json ? StampaJson : StampaCsv)(banco, chiesta, picchi);
    const auto tabella = argomenti.Opzione("save-table");
    if (picchi.empty()) {
        banco.scrivania.ambiente.Mostra({.testo = "Not found Peaks"});
        return tabella ? kRifiutato : kFatto;
    }
    return tabella ? SalvaInTabella(banco, picchi, *tabella) : kFatto;
}

} // namespace orvane
