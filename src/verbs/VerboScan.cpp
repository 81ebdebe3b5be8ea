#include <algorithm>
#include <ostream>

#include "base/Numeri.h"
#include "base/Percorsi.h"
#include "base/Testo.h"
#include "data/ControllaRecord.h"
#include "data/Panels.h"
#include "setup/TabellaScan.h"
#include "verbs/Argomenti.h"
#include "verbs/Json.h"
#include "verbs/Verbo.h"

namespace orvane {
namespace {

constexpr int kNessunAncillary = 0;

/// Index of a filter by its text, blanks and case aside; -1 for none.
int TrovaRbw(std::string_view testo) {
    const auto ridotto = [](std::string_view t) { return Maiuscolo(Sostituisci(t, " ", "")); };
    for (size_t i = 0; i < TabellaRbw().size(); ++i)
        if (!TabellaRbw()[i].Separatore() && ridotto(TabellaRbw()[i].testo) == ridotto(testo))
            return static_cast<int>(i);
    return -1;
}

/// An option that is a number; `errore` tells of one that is none.
std::optional<double> Numero(const Argomenti& argomenti, const std::string& nome,
                             std::string& errore) {
    const auto testo = argomenti.Opzione(nome);
    if (!testo)
        return std::nullopt;
    const auto numero = LeggiNumero(*testo);
    if (!numero)
        errore = "--" + nome + " wants a number, not \"" + *testo + "\"";
    return numero;
}

void ApplicaOnOff(const Argomenti& argomenti, const std::string& nome, int16_t& campo,
                  std::string& errore) {
    const auto testo = argomenti.Opzione(nome);
    if (!testo)
        return;
    if (*testo != "on" && *testo != "off")
        errore = "--" + nome + " wants on or off";
    campo = *testo == "on" ? 1 : 0;
}

void ApplicaRbw(const Argomenti& argomenti, ScanLine& riga, std::string& errore) {
    const auto testo = argomenti.Opzione("rbw");
    if (!testo)
        return;
    const int id = TrovaRbw(*testo);
    if (id < 0)
        errore = "unknown filter \"" + *testo + "\"";
    else
        ScriviCellaScanLine(riga, ColonnaScan::Rbw, {}, id);
}

void ApplicaDetector(const Argomenti& argomenti, ScanLine& riga, std::string& errore) {
    const auto testo = argomenti.Opzione("detector");
    if (!testo)
        return;
    if (const auto detector = LeggiDetector(*testo))
        riga.Detector = *detector;
    else
        errore = "unknown detector in \"" + *testo + "\": P, Q, R, A, N, C";
}

void ApplicaMinAtt(const Argomenti& argomenti, ScanLine& riga, std::string& errore) {
    const auto dB = Numero(argomenti, "min-att", errore);
    if (!dB)
        return;
    const auto voce = std::find(kMinAttDb.begin(), kMinAttDb.end(), *dB);
    if (voce == kMinAttDb.end())
        errore = "--min-att wants 0, 10, 20, 30, 40 or 50";
    else
        riga.MinAtt = static_cast<int16_t>(voce - kMinAttDb.begin());
}

void ApplicaPasso(const Argomenti& argomenti, ScanLine& riga, std::string& errore) {
    if (const auto passo = Numero(argomenti, "step", errore)) {
        riga.AutoStep = 0;
        riga.Step = *passo;
        if (*passo <= 0)
            errore = "--step wants a step above 0";
    }
    if (const auto tempo = Numero(argomenti, "hold", errore))
        riga.HoldTime = static_cast<float>(std::clamp(*tempo, 0.0, 30000.0));
}

/// The options that say more than the band. What is wrong with them; empty when nothing is.
std::string ApplicaOpzioni(const Argomenti& argomenti, ScanLine& riga) {
    std::string errore;
    ApplicaRbw(argomenti, riga, errore);
    ApplicaDetector(argomenti, riga, errore);
    ApplicaMinAtt(argomenti, riga, errore);
    ApplicaPasso(argomenti, riga, errore);
    ApplicaOnOff(argomenti, "preamp", riga.PreAmp, errore);
    ApplicaOnOff(argomenti, "presel", riga.PreSel, errore);
    return errore;
}

/// Lines of a band, with those that a composite one brings along.
std::vector<ScanLine> RigheDellaBanda(int indice) {
    const VoceBanda& banda = TabellaBande()[static_cast<size_t>(indice)];
    std::vector<ScanLine> righe(1);
    ImpostaBanda(righe[0], banda, kNessunAncillary);
    for (const int seguente : banda.seguenti) {
        if (seguente < 0)
            continue;
        ImpostaBanda(righe.emplace_back(), TabellaBande()[static_cast<size_t>(seguente)],
                     kNessunAncillary);
    }
    return righe;
}

std::vector<ScanLine> RigaDaFrequenze(double startMhz, double stopMhz) {
    std::vector<ScanLine> righe(1);
    ScanLine& riga = righe[0];
    ImpostaLineaDefault(riga, kNessunAncillary);
    riga.Start = startMhz;
    riga.Stop = stopMhz;
    ScriviCellaScanLine(riga, ColonnaScan::Rbw, {}, DetRBWDefault(startMhz, stopMhz));
    return righe;
}

std::vector<ScanLine> RigheDaAggiungere(const Argomenti& argomenti, std::string& errore) {
    if (const auto nome = argomenti.Opzione("band")) {
        const int indice = TrovaBanda(*nome);
        if (indice >= 0)
            return RigheDellaBanda(indice);
        errore = "unknown band \"" + *nome + "\"";
        return {};
    }
    const auto start = Numero(argomenti, "start", errore);
    const auto stop = Numero(argomenti, "stop", errore);
    if (errore.empty() && (!start || !stop || !(*start > 0) || !(*start < *stop)))
        errore = "wants --band, or --start below --stop, in MHz";
    return errore.empty() ? RigaDaFrequenze(*start, *stop) : std::vector<ScanLine>{};
}

/// Loads an existing table into `scan`; kFatto, or why not.
EsitoVerbo CaricaEsistente(Banco& banco, const std::string& nome, ScanRecord& scan) {
    const std::string percorso = PercorsoPannello(nome, "EST");
    if (!banco.scrivania.albero.Esiste(percorso))
        return Guasto(banco, kGuastoFile, "there is no scan table " + percorso);
    if (!CaricaPanelEST(banco.scrivania, percorso, scan))
        return kGuastoFile;
    ControllaScan(scan);
    CompattaScanTable(scan.Righe);
    return kFatto;
}

EsitoVerbo Salva(Banco& banco, const std::string& nome, const ScanRecord& scan) {
    return SalvaPanelEST(banco.scrivania, PercorsoPannello(nome, "EST"), scan) ? kFatto
                                                                               : kGuastoFile;
}

EsitoVerbo Aggiungi(Banco& banco, const std::string& nome, const Argomenti& argomenti) {
    ScanRecord scan;
    if (banco.scrivania.albero.Esiste(PercorsoPannello(nome, "EST")))
        if (const auto esito = CaricaEsistente(banco, nome, scan); esito != kFatto)
            return esito;
    std::string errore;
    std::vector<ScanLine> nuove = RigheDaAggiungere(argomenti, errore);
    for (ScanLine& riga : nuove)
        if (errore.empty())
            errore = ApplicaOpzioni(argomenti, riga);
    size_t usate = RigheInUso(scan.Righe);
    if (errore.empty() && usate + nuove.size() > kMaxScanLine)
        errore = "a scan table holds ten lines at most";
    if (!errore.empty())
        return UsoErrato(banco, "scan", errore);
    for (const ScanLine& riga : nuove)
        scan.Righe[usate++] = riga;
    return Salva(banco, nome, scan);
}

void StampaRiga(Banco& banco, Json& json, const ScanLine& riga, size_t numero) {
    json.Oggetto().Coppia("line", static_cast<double>(numero));
    json.Coppia("start_mhz", riga.Start).Coppia("stop_mhz", riga.Stop);
    json.Coppia("step_mhz", riga.Step).Coppia("auto_step", riga.AutoStep == 1);
    json.Coppia("detectors", LettereDetector(riga)).Coppia("hold_ms", riga.HoldTime);
    json.Coppia("rbw", TestoCella(riga, ColonnaScan::Rbw, kNessunAncillary));
    json.Coppia("min_att_db", kMinAttDb[static_cast<size_t>(riga.MinAtt)]);
    json.Coppia("preamp", riga.PreAmp == 1).Coppia("presel", riga.PreSel == 1);
    json.Coppia("steps", static_cast<double>(PassiDellaRiga(riga))).Chiudi();
    if (banco.json)
        return;
    banco.dati << numero;
    for (int c = 1; c < static_cast<int>(ColonnaScan::NumColonne); ++c)
        banco.dati << "\t" << TestoCella(riga, static_cast<ColonnaScan>(c), kNessunAncillary);
    banco.dati << "\n";
}

EsitoVerbo Mostra(Banco& banco, const std::string& nome) {
    ScanRecord scan;
    if (const auto esito = CaricaEsistente(banco, nome, scan); esito != kFatto)
        return esito;
    Json json;
    json.Oggetto().Coppia("name", nome).Chiave("lines").Lista();
    for (size_t i = 0; i < RigheInUso(scan.Righe); ++i)
        StampaRiga(banco, json, scan.Righe[i], i + 1);
    json.Chiudi().Chiudi();
    if (banco.json)
        banco.dati << json.Documento() << "\n";
    return kFatto;
}

EsitoVerbo Elenca(Banco& banco) {
    Json json;
    json.Lista();
    for (const std::string& file : banco.scrivania.albero.ElencaFile("Panels\\", "EST")) {
        const std::string nome = RimuoviEstensione(file);
        json.Testo(nome);
        if (!banco.json)
            banco.dati << nome << "\n";
    }
    if (banco.json)
        banco.dati << json.Chiudi().Documento() << "\n";
    return kFatto;
}

} // namespace

EsitoVerbo VerboScan(Banco& banco, Parole parole) {
    const Argomenti argomenti(parole, {"band", "start", "stop", "rbw", "detector", "hold", "step",
                                       "min-att", "preamp", "presel"});
    const auto& posizioni = argomenti.Posizioni();
    if (!argomenti.Errore().empty() || posizioni.empty())
        return UsoErrato(banco, "scan",
                         argomenti.Errore().empty() ? "list, show, add or clear?"
                                                    : argomenti.Errore());
    if (posizioni[0] == "list" && posizioni.size() == 1)
        return Elenca(banco);
    if (posizioni.size() != 2)
        return UsoErrato(banco, "scan", "wants the name of a scan table");
    const auto nome = NomeDaParola(posizioni[1]);
    if (!nome)
        return UsoErrato(banco, "scan", "\"" + posizioni[1] + "\" is no name for a scan table");
    if (posizioni[0] == "show")
        return Mostra(banco, *nome);
    if (posizioni[0] == "clear")
        return Salva(banco, *nome, ScanRecord{});
    if (posizioni[0] == "add")
        return Aggiungi(banco, *nome, argomenti);
    return UsoErrato(banco, "scan", "list, show, add or clear?");
}

} // namespace orvane
