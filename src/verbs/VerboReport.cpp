// `orvane report`: the rows of a stored measure that come near its limits, as a document.
#include <algorithm>
#include <array>
#include <ostream>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "console/CambioUnita.h"
#include "data/CaricaSalva.h"
#include "data/ModificaTabella.h"
#include "data/NomiDisco.h"
#include "data/Panels.h"
#include "data/TabelleFrequenza.h"
#include "graph/Verdetto.h"
#include "records/ImpostazioniReport.h"
#include "report/RigheReport.h"
#include "report/SalvaReport.h"
#include "report/TestoReport.h"
#include "verbs/AttesaMuta.h"
#include "verbs/Json.h"
#include "verbs/MisuraDaOpzioni.h"

namespace orvane {
namespace {

template <class Valore> struct Scelta {
    std::string_view parola;
    Valore valore;
};
constexpr std::array kTipi = {Scelta<TipoReport>{"1det", TipoReport::UnDetector},
                              Scelta<TipoReport>{"2det", TipoReport::DueDetector},
                              Scelta<TipoReport>{"2full", TipoReport::DueDetectorFull}};
constexpr std::array kSeparatori = {Scelta<char>{"comma", ','}, Scelta<char>{"semicolon", ';'},
                                    Scelta<char>{"tab", '\t'}};
constexpr std::array kDecimali = {Scelta<char>{"point", '.'}, Scelta<char>{"comma", ','}};
constexpr std::array kFogli = {Scelta<bool>{"portrait", false}, Scelta<bool>{"landscape", true}};

/// What the options of the verb itself say.
struct RichiestaReport {
    std::filesystem::path out;
    TipoReport tipo = TipoReport::UnDetector;
    std::optional<DetectorKind> detector;
    std::optional<DetectorKind> detector2;
    std::optional<std::string> tabella;
    std::optional<float> margine; ///< without it the panel's
    OpzioniReport opzioni{.HeaderOn = false};
    std::string errore;
};

template <class Valore, size_t N>
void Scegli(RichiestaReport& r, const Argomenti& argomenti, const char* nome,
            const std::array<Scelta<Valore>, N>& scelte, Valore& dove) {
    const auto parola = argomenti.Opzione(nome);
    if (!parola)
        return;
    const auto scelta = std::ranges::find(scelte, std::string_view(*parola),
                                          [](const Scelta<Valore>& s) { return s.parola; });
    if (scelta != scelte.end())
        dove = scelta->valore;
    else
        r.errore = "--" + std::string(nome) + " does not know \"" + *parola + "\"";
}

void LeggiDetectorDi(RichiestaReport& r, const Argomenti& argomenti, const char* nome,
                     std::optional<DetectorKind>& dove) {
    if (const auto testo = argomenti.Opzione(nome)) {
        dove = PrimoDetector(*testo);
        if (!dove)
            r.errore = "unknown detector: P, Q, R, A, N, C";
    }
}

RichiestaReport LeggiRichiesta(const Argomenti& argomenti) {
    RichiestaReport r{.errore = argomenti.Errore()};
    const auto out = argomenti.Opzione("out");
    if (!r.errore.empty())
        return r;
    r.out = PathDaUtf8(out.value_or(""));
    if (!out || !FormatoReportDaPercorso(r.out))
        r.errore = "wants --out F, a name that ends in .txt, .csv, .html, .pdf or .rtf";
    if (const auto margine = argomenti.Opzione("margin")) {
        const auto dB = LeggiNumero(*margine);
        r.margine = LimitaMargine(dB.value_or(0));
        if (!dB)
            r.errore = "--margin wants dB";
    }
    Scegli(r, argomenti, "kind", kTipi, r.tipo);
    Scegli(r, argomenti, "separator", kSeparatori, r.opzioni.csv.separatore);
    Scegli(r, argomenti, "decimal", kDecimali, r.opzioni.csv.decimale);
    Scegli(r, argomenti, "paper", kFogli, r.opzioni.orizzontale);
    r.opzioni.verticale = argomenti.Opzione("paper") && !r.opzioni.orizzontale;
    LeggiDetectorDi(r, argomenti, "detector", r.detector);
    LeggiDetectorDi(r, argomenti, "detector2", r.detector2);
    r.tabella = argomenti.Opzione("save-table");
    r.opzioni.HeaderOn = argomenti.Bandiera("header");
    r.opzioni.riassunto = argomenti.Bandiera("summary");
    return r;
}

int16_t DetectorDello(const MisuraChiesta& chiesta, size_t slot) {
    return static_cast<int16_t>(DetectorDelLimite(
        chiesta.setup.VerdictDetector[slot], Rifila(chiesta.setup.LimitName[slot]),
        chiesta.misura.tabelle.slot[static_cast<size_t>(kPrimoLimite) + slot],
        chiesta.misura.detector));
}

/// Detectors that were named, or else the first measured, and those that the limits are meant for.
ReportModel Modello(const RichiestaReport& r, const MisuraChiesta& chiesta, const EnvRecord& env) {
    ReportModel model;
    model.tipo = r.tipo;
    model.ReportMargin = r.margine.value_or(LimitaMargine(ReportMargin(env)));
    model.ReportDetector = static_cast<int16_t>(chiesta.detector);
    model.ReportDetectorLim1 =
        r.detector ? static_cast<int16_t>(*r.detector) : DetectorDello(chiesta, 0);
    model.ReportDetectorLim2 =
        r.detector2 ? static_cast<int16_t>(*r.detector2) : DetectorDello(chiesta, 1);
    return model;
}

/// A report of a detector that was never measured would be empty, and look like a good one.
std::string DetectorAssente(const RichiestaReport& r, const MisuraAperta& misura) {
    for (const auto& detector : {r.detector, r.detector2})
        if (detector && !misura.detector[static_cast<size_t>(*detector)])
            return std::string("the measure has no ") +
                   kNomiDetector.at(static_cast<size_t>(*detector));
    return {};
}

/// The frequencies of the rows as a frequency table; it must have room for all of them.
EsitoVerbo SalvaInTabella(Banco& banco, const GrigliaReport& griglia, const FonteReport& fonte,
                          const std::string& nome) {
    const Scrivania& s = banco.scrivania;
    bool intera = false;
    const FrequencyTable tabella = TabellaDaGriglia(griglia, fonte, intera);
    if (!intera) {
        AvvisaModifica(s.ambiente, EsitoModifica::Piena, TableKind::Frequenze);
        return kRifiutato;
    }
    const auto percorso = CmdSave(s, RichiestaTabella(TableKind::Frequenze), nome);
    if (!percorso)
        return kRifiutato;
    if (!SalvaFreqTab(s, FormaFreqTab::Semplice, *percorso, tabella))
        return kGuastoFile;
    banco.messaggi << griglia.righe.size() << " points in " << *percorso << "\n";
    return kFatto;
}

void Annuncia(Banco& banco, const std::string& file, size_t righe) {
    Json json;
    json.Oggetto().Coppia("file", file).Coppia("rows", static_cast<double>(righe)).Chiudi();
    if (banco.json)
        banco.dati << json.Documento() << "\n";
    else
        banco.dati << file << "\t" << righe << (righe == 1 ? " row\n" : " rows\n");
}

EsitoVerbo Componi(Banco& banco, const RichiestaReport& r, const MisuraChiesta& chiesta) {
    const FonteReport fonte{
        .misura = chiesta.misura, .setup = chiesta.setup, .env = banco.scrivania.env};
    ReportModel model = Modello(r, chiesta, fonte.env);
    RaccogliRigheRep(model, fonte);
    GrigliaReport griglia = ImpostaGridReport(model, fonte);
    CompilaReport(griglia, model, fonte, banco.scrivania.ambiente,
                  [&](size_t, size_t) { model.ReportCancelRequested = banco.interrotto; });
    if (griglia.tagliata || banco.interrotto)
        return kFermato;
    if (LimitiAttivi(fonte.setup).empty())
        banco.messaggi << "orvane: no limit is on, so the report has no rows\n";
    AttesaMuta attesa;
    if (!SalvaReport(banco.scrivania, {griglia, model, fonte}, r.opzioni, banco.fabbrica, attesa,
                     r.out))
        return kGuastoFile; // a box has told
    Annuncia(banco, Utf8DaPath(r.out), griglia.righe.size());
    return r.tabella ? SalvaInTabella(banco, griglia, fonte, *r.tabella) : kFatto;
}

} // namespace

EsitoVerbo VerboReport(Banco& banco, Parole parole) {
    const Argomenti argomenti(parole,
                              OpzioniMisura({"out", "kind", "detector2", "margin", "separator",
                                             "decimal", "paper", "save-table"}),
                              {"header", "summary"});
    RichiestaReport r = LeggiRichiesta(argomenti);
    if (!r.errore.empty())
        return UsoErrato(banco, "report", r.errore);
    CaricaEnvCheCe(banco.scrivania);
    r.opzioni.ColumnSeparator = ColumnSeparator(banco.scrivania.env.ExportMode);
    MisuraChiesta chiesta;
    const EsitoVerbo esito =
        ApriDaOpzioni(banco, "report", argomenti, Partenza::ComeMisurata, chiesta);
    if (esito != kFatto)
        return esito;
    if (const std::string assente = DetectorAssente(r, chiesta.misura); !assente.empty())
        return Guasto(banco, kRifiutato, assente);
    // In a unit that is not the measure's the trace keeps its place in the picture.
    chiesta.setup.RefLevel = RiferimentoInUnita(chiesta.misura.header.Setup, chiesta.setup.UnitId);
    return Componi(banco, r, chiesta);
}

} // namespace orvane
