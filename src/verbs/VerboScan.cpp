#include <ostream>

#include "base/Numeri.h"
#include "base/Percorsi.h"
#include "data/Cartelle.h"
#include "records/SetupRecord.h"
#include "setup/CommutatoriSweep.h"
#include "setup/ModuloScan.h"
#include "setup/RegoleRiga.h"
#include "setup/StimaDurata.h"
#include "setup/TabellaScan.h"
#include "verbs/Json.h"
#include "verbs/OpzioniRiga.h"
#include "verbs/VerboScanModifica.h"

namespace orvane {
namespace {

constexpr std::string_view kParole = "list, show, add, insert, set, remove, move, copy or clear?";

void CoppiaPasso(Json& json, const ScanLine& riga) {
    json.Coppia("start_mhz", riga.Start).Coppia("stop_mhz", riga.Stop);
    json.Coppia("step_mhz", riga.Step).Coppia("auto_step", riga.AutoStep == 1);
    json.Coppia("by_table", riga.StepMode == 1).Coppia("table", riga.FreqTable);
    json.Coppia("steps_between", static_cast<int>(riga.NumStepFT));
}

void CoppiaDetector(Json& json, const ScanLine& riga) {
    json.Coppia("detectors", LettereDetector(riga)).Coppia("smart", riga.Smart == 1);
    json.Coppia("double_smart", ControllaCondizioniDSDScanTab(riga));
    json.Coppia("hold_ms", riga.HoldTime).Coppia("peak_hold_ms", riga.HoldTimeSD);
    json.Coppia("margin_db", riga.Margin);
    json.Coppia("limit_on", riga.LimitOn == 1).Coppia("limit", riga.Limit);
    json.Coppia("limit_dsd_on", riga.LimitDSDOn == 1).Coppia("limit_dsd", riga.LimitDSD);
}

void CoppiaIngresso(Json& json, const ScanLine& riga) {
    json.Coppia("rbw", TestoCella(riga, ColonnaScan::Rbw, 0));
    json.Coppia("min_att_db", kMinAttDb[static_cast<size_t>(riga.MinAtt)]);
    json.Coppia("preamp", riga.PreAmp == 1).Coppia("presel", riga.PreSel == 1);
    json.Coppia("prompt_on", riga.PromptOn == 1).Coppia("prompt", riga.Prompt);
}

/// The selections whose flags are on, under the names of a kind.
void ListaSelezioni(Json& json, std::string_view chiave, const ScanLine& riga, int ancillaryKind) {
    json.Chiave(chiave).Lista();
    for (const VoceAncillary& voce : VociAncillary(riga, ancillaryKind))
        if (voce.accesa)
            json.Testo(voce.nome);
    json.Chiudi();
}

void JsonRiga(Json& json, const ScanLine& riga, size_t numero, int ancillaryKind) {
    constexpr int kQuattroLinee = 2, kAntenna = 3, kScatola = 4;
    json.Oggetto().Coppia("line", static_cast<double>(numero));
    CoppiaPasso(json, riga);
    CoppiaDetector(json, riga);
    CoppiaIngresso(json, riga);
    ListaSelezioni(json, "lines", riga, ancillaryKind == kScatola ? kScatola : kQuattroLinee);
    ListaSelezioni(json, "antenna", riga, kAntenna);
    json.Coppia("passes", static_cast<double>(PassateDellaRiga(riga, ancillaryKind).size()));
    json.Coppia("steps", static_cast<double>(PassiDellaRiga(riga))).Chiudi();
}

void StampaRiga(Banco& banco, const ScanLine& riga, size_t numero, int ancillaryKind) {
    banco.dati << numero;
    for (int c = 1; c < static_cast<int>(ColonnaScan::NumColonne); ++c)
        banco.dati << "\t" << TestoCella(riga, static_cast<ColonnaScan>(c), ancillaryKind);
    banco.dati << "\n";
}

EsitoVerbo Mostra(Banco& banco, const std::string& nome, int ancillaryKind) {
    ScanRecord scan;
    if (const auto esito = CaricaTabellaScan(banco, nome, scan); esito != kFatto)
        return esito;
    const StimaSweep stima = StimaTabella(banco.scrivania.albero, scan.Righe, ancillaryKind);
    Json json;
    json.Oggetto().Coppia("name", nome).Coppia("ancillary", ancillaryKind);
    json.Coppia("estimated_s", stima.secondi).Chiave("lines").Lista();
    for (size_t i = 0; i < RigheInUso(scan.Righe); ++i) {
        JsonRiga(json, scan.Righe[i], i + 1, ancillaryKind);
        if (!banco.json)
            StampaRiga(banco, scan.Righe[i], i + 1, ancillaryKind);
    }
    json.Chiudi().Chiudi();
    if (banco.json)
        banco.dati << json.Documento() << "\n";
    else if (stima.punti > 0)
        banco.messaggi << TestoStima(stima, ancillaryKind) << "\n";
    return kFatto;
}

EsitoVerbo Elenca(Banco& banco) {
    Json json;
    json.Lista();
    for (const std::string& file : banco.scrivania.albero.ElencaFile(cartella::kPanels, "EST")) {
        const std::string nome = RimuoviEstensione(file);
        json.Testo(nome);
        if (!banco.json)
            banco.dati << nome << "\n";
    }
    if (banco.json)
        banco.dati << json.Chiudi().Documento() << "\n";
    return kFatto;
}

/// What is attached: as the options say, or as the panel has it; empty for a wrong number.
std::optional<int> LeggiAncillary(const Banco& banco, const Argomenti& argomenti) {
    const auto testo = argomenti.Opzione("ancillary");
    if (!testo)
        return AncillaryDi(banco.scrivania.setup);
    for (int kind = 0; kind <= kMaxAncillaryKind; ++kind)
        if (LeggiNumero(*testo) == kind)
            return kind;
    return std::nullopt;
}

} // namespace

EsitoVerbo VerboScan(Banco& banco, Parole parole) {
    const Argomenti argomenti(parole, OpzioniDiRiga());
    const auto& posizioni = argomenti.Posizioni();
    if (!argomenti.Errore().empty() || posizioni.empty())
        return UsoErrato(banco, "scan", argomenti.Errore().empty() ? kParole : argomenti.Errore());
    if (posizioni[0] == "list" && posizioni.size() == 1)
        return Elenca(banco);
    const bool modifica = ModificaLineeScan(posizioni[0]);
    if (posizioni.size() < 2 || (posizioni.size() > 2 && !modifica))
        return UsoErrato(banco, "scan", "wants the name of a scan table");
    const auto nome = NomeDaParola(posizioni[1]);
    if (!nome)
        return UsoErrato(banco, "scan", "\"" + posizioni[1] + "\" is no name for a scan table");
    const auto ancillary = LeggiAncillary(banco, argomenti);
    if (!ancillary)
        return UsoErrato(banco, "scan", "--ancillary wants a number from 0 to 6");
    if (posizioni[0] == "show")
        return Mostra(banco, *nome, *ancillary);
    if (posizioni[0] == "clear")
        return SalvaTabellaScan(banco, *nome, ScanRecord{});
    if (modifica)
        return EseguiModificaScan(banco, *nome, argomenti, *ancillary);
    return UsoErrato(banco, "scan", kParole);
}

} // namespace orvane
