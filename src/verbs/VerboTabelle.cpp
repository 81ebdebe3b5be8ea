#include "verbs/VerboTabelle.h"

#include <cmath>
#include <filesystem>
#include <limits>
#include <ostream>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "data/FileTabelle.h"
#include "data/ImportaTesto.h"
#include "data/Interpolazione.h"
#include "data/LibreriaLimiti.h"
#include "data/NomiDisco.h"
#include "data/NomiTabelle.h"
#include "data/TabelleLimFac.h"
#include "records/Unita.h"
#include "report/SalvaTabella.h"
#include "verbs/AttesaMuta.h"
#include "verbs/Json.h"

namespace orvane {
namespace {

/// What was repaired while loading goes to the user once.
void DiAvvisi(Banco& banco) {
    for (const std::string& avviso : banco.scrivania.avvisi)
        banco.messaggi << "orvane: " << avviso << "\n";
    banco.scrivania.avvisi.clear();
}

std::string PercorsoTabella(TableKind kind, const std::string& nome) {
    const RichiestaFile richiesta = RichiestaTabella(kind);
    return richiesta.cartella + nome + "." + richiesta.estensione;
}

/// False after saying why there is no file to load.
bool TabellaPresente(Banco& banco, TableKind kind, const std::string& nome) {
    const std::string percorso = PercorsoTabella(kind, nome);
    if (NomeTabellaAmmesso(nome) && NominaTabella(nome) && banco.scrivania.albero.Esiste(percorso))
        return true;
    Guasto(banco, kGuastoFile, "there is no table " + percorso);
    return false;
}

bool CaricaInSlot(Banco& banco, TabelleLimFac& tabelle, TableKind kind, const std::string& nome) {
    const bool caricata =
        TabellaPresente(banco, kind, nome) &&
        CaricaLimFac(banco.scrivania, tabelle, PercorsoTabella(kind, nome), SlotDiKind(kind));
    DiAvvisi(banco);
    return caricata;
}

EsitoVerbo Elenca(Banco& banco, TableKind kind) {
    const RichiestaFile richiesta = RichiestaTabella(kind);
    Json json;
    json.Lista();
    for (const std::string& nome :
         NomiTabelle(banco.scrivania.albero, richiesta.cartella, richiesta.estensione)) {
        json.Testo(nome);
        if (!banco.json)
            banco.dati << nome << "\n";
    }
    if (banco.json)
        banco.dati << json.Chiudi().Documento() << "\n";
    return kFatto;
}

std::string TestoUnita(const ContenutoTabella& c) {
    return TabellaUnitaGrafico()[static_cast<size_t>(c.unitId)].testo;
}

/// Levels as the table's unit reads them.
double LivelloInUnita(const ContenutoTabella& c, int16_t cent) {
    return cent / 100.0 + static_cast<double>(ImpostaUnita(c.unitId));
}

std::string ContenutoInJson(const ContenutoTabella& c, const std::string& nome) {
    Json json;
    json.Oggetto().Coppia("name", nome).Coppia("title", c.titolo);
    json.Coppia("unit", TestoUnita(c)).Coppia("linear", c.linFreq).Chiave("points").Lista();
    for (const RigaTabella& riga : c.righe) {
        json.Oggetto().Coppia("frequency_mhz", riga.freqMhz.value_or(0));
        json.Coppia("level", LivelloInUnita(c, riga.livelloCent.value_or(0)));
        if (c.kind == TableKind::FrequenzeMast) {
            json.Chiave("mast_cm").Numero(riga.mastCm ? *riga.mastCm : NAN);
            json.Chiave("table_deg").Numero(riga.tableGradi ? *riga.tableGradi : NAN);
        }
        json.Chiudi();
    }
    return json.Chiudi().Chiudi().Documento();
}

void StampaContenuto(Banco& banco, const ContenutoTabella& c) {
    if (LimiteOFattore(c.kind))
        banco.dati << "title: " << c.titolo << "\nunit: " << TestoUnita(c)
                   << "\naxis: " << (c.linFreq ? "linear" : "logarithmic") << "\n";
    for (const RigaTabella& riga : c.righe) {
        banco.dati << TestoDaNumero(riga.freqMhz.value_or(0)) << "\t"
                   << TestoFisso(LivelloInUnita(c, riga.livelloCent.value_or(0)), 2);
        if (c.kind == TableKind::FrequenzeMast)
            for (const auto& posizione : {riga.mastCm, riga.tableGradi})
                banco.dati << "\t" << (posizione ? TestoIntero(*posizione) : "---");
        banco.dati << "\n";
    }
}

EsitoVerbo Mostra(Banco& banco, TableKind kind, const std::string& nome) {
    const auto c = CaricaContenuto(banco, kind, nome);
    if (!c)
        return kGuastoFile;
    if (banco.json)
        banco.dati << ContenutoInJson(*c, nome) << "\n";
    else
        StampaContenuto(banco, *c);
    return kFatto;
}

/// Empty where the curve has no value; a factor is 0 there.
std::optional<int> Valore(TabelleLimFac& tabelle, TableKind kind, float hz) {
    if (kind == TableKind::Fattore)
        return ValoreFattore(tabelle, hz, 0);
    const int16_t valore = ValoreLimite(tabelle, hz, kPrimoLimite);
    return valore == kNessunValore ? std::nullopt : std::optional<int>(valore);
}

EsitoVerbo StampaValori(Banco& banco, TableKind kind, const std::string& nome,
                        std::span<const std::string> frequenze) {
    std::vector<double> hz;
    for (const std::string& testo : frequenze) {
        const auto letta = LeggiNumero(testo);
        if (!letta || !(std::abs(*letta) < static_cast<double>(std::numeric_limits<float>::max())))
            return UsoErrato(banco, VerboDiKind(kind), "\"" + testo + "\" is no frequency in Hz");
        hz.push_back(*letta);
    }
    TabelleLimFac tabelle;
    if (!CaricaInSlot(banco, tabelle, kind, nome))
        return kGuastoFile;
    Json json;
    json.Lista();
    for (const double f : hz) {
        const auto valore = Valore(tabelle, kind, static_cast<float>(f));
        json.Oggetto().Coppia("hz", f).Chiave("hundredths").Numero(valore ? *valore : NAN).Chiudi();
        if (!banco.json)
            banco.dati << (valore ? TestoIntero(*valore) : "none") << "\n";
    }
    if (banco.json)
        banco.dati << json.Chiudi().Documento() << "\n";
    return kFatto;
}

/// The empty table that an import fills; what is wrong with the options in `errore`.
ContenutoTabella TabellaDaOpzioni(TableKind kind, const Argomenti& argomenti, std::string& errore) {
    ContenutoTabella c{.kind = kind};
    c.titolo = argomenti.Opzione("title").value_or("");
    c.linFreq = argomenti.Bandiera("lin");
    if (const auto testo = argomenti.Opzione("unit")) {
        const auto unita = LeggiUnita(*testo);
        c.unitId = unita.value_or(1);
        if (!unita)
            errore = "unknown unit \"" + *testo + "\"";
    }
    if (c.linFreq && kind != TableKind::Limite)
        errore = "--lin is for limits";
    if (!c.titolo.empty() && !LimiteOFattore(kind))
        errore = "a frequency table has no title";
    return c;
}

EsitoVerbo Importa(Banco& banco, TableKind kind, const std::string& nome, const std::string& file,
                   const Argomenti& argomenti) {
    std::string errore;
    ContenutoTabella c = TabellaDaOpzioni(kind, argomenti, errore);
    if (!errore.empty())
        return UsoErrato(banco, VerboDiKind(kind), errore);
    const auto testo = LeggiFileTesto(PathDaUtf8(file));
    if (!testo)
        return Guasto(banco, kGuastoFile, "cannot read " + file);
    AvvisaImporto(banco.scrivania.ambiente, ImportaTesto(c, *testo), kind);
    if (ControllaRigaCompFreqTab(c) == 0)
        return Guasto(banco, kRifiutato, file + " holds no points; nothing was stored");
    const auto percorso = CmdSave(banco.scrivania, RichiestaTabella(kind), nome);
    if (!percorso)
        return kRifiutato;
    if (!SalvaTabella(banco.scrivania, c, *percorso))
        return kGuastoFile;
    if (!banco.json)
        banco.dati << ControllaRigaCompFreqTab(c) << " points in " << *percorso << "\n";
    else
        banco.dati << ContenutoInJson(c, nome) << "\n";
    return kFatto;
}

EsitoVerbo Esporta(Banco& banco, TableKind kind, const std::string& nome, const std::string& file) {
    const auto c = CaricaContenuto(banco, kind, nome);
    AttesaMuta attesa;
    return c && SalvaTabellaCome(banco.scrivania, *c, nome, PathDaUtf8(file), attesa) ? kFatto
                                                                                      : kGuastoFile;
}

std::string_view StatoLibreria(const EsitoLibreria& esito) {
    if (esito.presente)
        return "kept";
    return esito.scritto ? "written" : "failed";
}

EsitoVerbo Libreria(Banco& banco) {
    EsitoVerbo esito = kFatto;
    Json json;
    json.Lista();
    for (const EsitoLibreria& limite : InstallaLibreria(banco.scrivania)) {
        if (!limite.presente && !limite.scritto)
            esito = kGuastoFile;
        json.Oggetto().Coppia("name", limite.nome).Coppia("state", StatoLibreria(limite)).Chiudi();
        if (!banco.json)
            banco.dati << StatoLibreria(limite) << "\t" << limite.nome << "\n";
    }
    if (banco.json)
        banco.dati << json.Chiudi().Documento() << "\n";
    return esito;
}

EsitoVerbo EseguiTabelle(Banco& banco, TableKind kind, const Argomenti& argomenti) {
    const auto& parole = argomenti.Posizioni();
    const std::string azione = parole.empty() ? "" : parole[0];
    const bool curva = LimiteOFattore(kind);
    if (!argomenti.Errore().empty())
        return UsoErrato(banco, VerboDiKind(kind), argomenti.Errore());
    if (azione == "list" && parole.size() == 1)
        return Elenca(banco, kind);
    if (azione == "library" && parole.size() == 1 && kind == TableKind::Limite)
        return Libreria(banco);
    if (azione == "show" && parole.size() == 2)
        return Mostra(banco, kind, parole[1]);
    if (azione == "value" && parole.size() >= 3 && curva)
        return StampaValori(banco, kind, parole[1], std::span(parole).subspan(2));
    if (azione == "import" && parole.size() == 3)
        return Importa(banco, kind, parole[1], parole[2], argomenti);
    if (azione == "export" && parole.size() == 3)
        return Esporta(banco, kind, parole[1], parole[2]);
    if (azione == "store" && parole.size() == 2 && curva)
        return MemorizzaNelRicevitore(banco, kind, parole[1], argomenti);
    return UsoErrato(banco, VerboDiKind(kind), "what shall be done, and with which table?");
}

} // namespace

std::string_view VerboDiKind(TableKind kind) {
    if (!LimiteOFattore(kind))
        return "table";
    return kind == TableKind::Limite ? "limit" : "factor";
}

std::optional<int16_t> LeggiUnita(const std::string& testo) {
    const std::string chiesta = Maiuscolo(Sostituisci(testo, "µ", "u"));
    for (size_t i = 0; i < TabellaUnitaGrafico().size(); ++i)
        if (Maiuscolo(Sostituisci(TabellaUnitaGrafico()[i].testo, "µ", "u")) == chiesta ||
            TestoIntero(static_cast<long long>(i)) == chiesta)
            return static_cast<int16_t>(i);
    return std::nullopt;
}

std::optional<ContenutoTabella> CaricaContenuto(Banco& banco, TableKind kind,
                                                const std::string& nome) {
    if (!TabellaPresente(banco, kind, nome))
        return std::nullopt;
    const auto c = CaricaTabella(banco.scrivania, {.kind = kind}, PercorsoTabella(kind, nome));
    DiAvvisi(banco);
    return c;
}

EsitoVerbo VerboLimit(Banco& banco, Parole parole) {
    return EseguiTabelle(banco, TableKind::Limite,
                         Argomenti(parole, {"unit", "title", "slot", "name"}, {"lin"}));
}

EsitoVerbo VerboFactor(Banco& banco, Parole parole) {
    return EseguiTabelle(banco, TableKind::Fattore,
                         Argomenti(parole, {"unit", "title", "slot", "name"}));
}

EsitoVerbo VerboTable(Banco& banco, Parole parole) {
    const Argomenti argomenti(parole, {"unit"}, {"mast"});
    return EseguiTabelle(
        banco, argomenti.Bandiera("mast") ? TableKind::FrequenzeMast : TableKind::Frequenze,
        argomenti);
}

} // namespace orvane
