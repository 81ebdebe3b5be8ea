#include <algorithm>
#include <array>
#include <ostream>
#include <type_traits>

#include "base/Numeri.h"
#include "base/Percorsi.h"
#include "base/Testo.h"
#include "data/Cartelle.h"
#include "data/Misure.h"
#include "records/DescriviCampi.h"
#include "records/EnvRecord.h"
#include "records/PathRecord.h"
#include "verbs/Argomenti.h"
#include "verbs/Json.h"
#include "verbs/Verbo.h"

namespace orvane {
namespace {

using Byte = std::span<const uint8_t>;

/// The fields of a record as far as its bytes go.
template <class Record> std::vector<CampoDescritto> Descrivi(Byte dati) {
    Record record;
    LeggiRecord(dati, record);
    std::vector<CampoDescritto> campi = DescriviRecord(record);
    std::erase_if(campi, [&](const CampoDescritto& campo) {
        return campo.offset + campo.byte > dati.size();
    });
    return campi;
}

struct GenerePannello {
    std::string_view estensione;
    std::string_view cartella; ///< of a bare name; empty for `DataRoot`
    size_t byte;
    std::vector<CampoDescritto> (*descrivi)(Byte);
};
constexpr std::array kGeneri = {
    GenerePannello{"EAM", cartella::kPanels, DimensioneSuDisco<SetupRecord>(),
                   Descrivi<SetupRecord>},
    GenerePannello{"EPN", cartella::kPanels, DimensioneSuDisco<EnvRecord>(), Descrivi<EnvRecord>},
    GenerePannello{"EST", cartella::kPanels, DimensioneSuDisco<ScanRecord>(), Descrivi<ScanRecord>},
    GenerePannello{"PTH", cartella::kPanels, DimensioneSuDisco<PathRecord>(), Descrivi<PathRecord>},
    GenerePannello{"COL", "", DimensioneSuDisco<EnvRecord>(), Descrivi<EnvRecord>},
    GenerePannello{"KSH", cartella::kSweep, DimensioneSuDisco<SweepHeader>(),
                   Descrivi<SweepHeader>}};

const GenerePannello* TrovaGenere(std::string_view estensione) {
    const auto voce = std::find_if(kGeneri.begin(), kGeneri.end(), [&](const GenerePannello& g) {
        return UgualiSenzaMaiuscole(g.estensione, estensione);
    });
    return voce == kGeneri.end() ? nullptr : &*voce;
}

/// Where a name or path leads: a bare name into the directory of its kind.
std::string Percorso(const std::string& nome, const GenerePannello& genere) {
    if (nome.find_first_of("\\/") != std::string::npos)
        return nome;
    if (genere.estensione == "KSH")
        return PercorsoKSH(RimuoviEstensione(nome));
    return std::string(genere.cartella) + nome;
}

void AggiungiValore(Json& json, const ValoreCampo& valore) {
    if (const auto* testo = std::get_if<std::string>(&valore))
        json.Testo(*testo);
    else if (const auto* reale = std::get_if<float>(&valore))
        json.Numero(LeggiNumero(TestoDaNumero(*reale)).value_or(*reale));
    else if (const auto* doppio = std::get_if<double>(&valore))
        json.Numero(*doppio);
    else
        json.Numero(std::get<int32_t>(valore));
}

/// Control characters would break the line of a table.
std::string SenzaControlli(std::string testo) {
    std::replace_if(
        testo.begin(), testo.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; },
        '.');
    return testo;
}

std::string TestoValore(const ValoreCampo& valore) {
    return std::visit(
        [](const auto& v) -> std::string {
            using Tipo = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<Tipo, std::string>)
                return SenzaControlli(v);
            else if constexpr (std::is_same_v<Tipo, int32_t>)
                return TestoIntero(v);
            else
                return TestoDaNumero(v);
        },
        valore);
}

/// The elements of an array, those that repeat counted.
std::string TestoValori(const CampoDescritto& campo) {
    std::vector<std::string> testi;
    for (size_t i = 0; i < campo.valori.size();) {
        size_t uguali = 1;
        while (i + uguali < campo.valori.size() && campo.valori[i + uguali] == campo.valori[i])
            ++uguali;
        const std::string testo = TestoValore(campo.valori[i]);
        testi.push_back(uguali > 1 ? testo + " x" + TestoIntero(static_cast<int>(uguali)) : testo);
        i += uguali;
    }
    return Unisci(testi, ", ");
}

void StampaTesto(Banco& banco, const std::vector<CampoDescritto>& campi) {
    for (const CampoDescritto& campo : campi) {
        banco.dati << campo.offset << "\t";
        if (campo.nome.empty())
            banco.dati << "(" << campo.byte << " bytes)\n";
        else
            banco.dati << (campo.gruppo.empty() ? "" : campo.gruppo + ".") << campo.nome << "\t"
                       << TestoValori(campo) << "\n";
    }
}

void AggiungiCampo(Json& json, const CampoDescritto& campo) {
    json.Oggetto().Coppia("offset", static_cast<double>(campo.offset));
    json.Coppia("bytes", static_cast<double>(campo.byte));
    if (!campo.nome.empty()) {
        if (!campo.gruppo.empty())
            json.Coppia("group", campo.gruppo);
        json.Coppia("name", campo.nome).Coppia("type", campo.tipo).Chiave("value");
        const bool lista = campo.valori.size() > 1;
        if (lista)
            json.Lista();
        for (const ValoreCampo& valore : campo.valori)
            AggiungiValore(json, valore);
        if (lista)
            json.Chiudi();
    }
    json.Chiudi();
}

void StampaJson(Banco& banco, const std::string& percorso, const GenerePannello& genere,
                const std::vector<CampoDescritto>& campi) {
    Json json;
    json.Oggetto().Coppia("file", percorso).Coppia("kind", genere.estensione);
    json.Chiave("fields").Lista();
    for (const CampoDescritto& campo : campi)
        AggiungiCampo(json, campo);
    banco.dati << json.Chiudi().Chiudi().Documento() << "\n";
}

EsitoVerbo Mostra(Banco& banco, std::string nome) {
    if (EstraiEstensione(nome).empty())
        nome += ".EAM";
    const GenerePannello* genere = TrovaGenere(EstraiEstensione(nome));
    if (!genere)
        return UsoErrato(banco, "panel", "\"" + nome + "\" is no EAM, EPN, EST, PTH, COL or KSH");
    const AlberoDati& albero = banco.scrivania.albero;
    const std::string percorso = albero.PercorsoIntero(Percorso(nome, *genere));
    if (!albero.Esiste(percorso))
        return Guasto(banco, kGuastoFile, "there is no file " + percorso);
    const auto dati = albero.Leggi(percorso, genere->byte);
    if (!dati)
        return Guasto(banco, kGuastoFile, "cannot read " + percorso);
    const std::vector<CampoDescritto> campi = genere->descrivi(*dati);
    if (banco.json)
        StampaJson(banco, percorso, *genere, campi);
    else
        StampaTesto(banco, campi);
    if (dati->size() == genere->byte)
        return kFatto;
    return Guasto(banco, kGuastoFile,
                  percorso + " ends after " + std::to_string(dati->size()) + " of " +
                      std::to_string(genere->byte) + " bytes");
}

void StampaVoce(Banco& banco, Json& json, const std::string& percorso,
                const GenerePannello& genere) {
    std::error_code errore;
    const auto byte = std::filesystem::file_size(banco.scrivania.albero.Host(percorso), errore);
    const bool intero = !errore && byte == genere.byte;
    json.Oggetto().Coppia("file", percorso).Coppia("kind", genere.estensione);
    json.Coppia("bytes", errore ? 0.0 : static_cast<double>(byte)).Coppia("whole", intero).Chiudi();
    if (!banco.json)
        banco.dati << percorso << "\t" << (errore ? 0 : byte) << " bytes"
                   << (intero ? "" : "\tnot the size of its kind") << "\n";
}

EsitoVerbo Elenca(Banco& banco) {
    Json json;
    json.Lista();
    for (const GenerePannello& genere : kGeneri) {
        if (genere.estensione == "KSH") // `archive` lists those
            continue;
        const std::string cartella(genere.cartella);
        for (const std::string& file :
             banco.scrivania.albero.ElencaFile(cartella, genere.estensione))
            StampaVoce(banco, json, cartella + file, genere);
    }
    if (banco.json)
        banco.dati << json.Chiudi().Documento() << "\n";
    return kFatto;
}

} // namespace

EsitoVerbo VerboPanel(Banco& banco, Parole parole) {
    const Argomenti argomenti(parole, {});
    const auto& posizioni = argomenti.Posizioni();
    if (!argomenti.Errore().empty())
        return UsoErrato(banco, "panel", argomenti.Errore());
    if (posizioni.size() == 1 && posizioni[0] == "list")
        return Elenca(banco);
    if (posizioni.empty() || posizioni[0] != "show" || posizioni.size() > 2)
        return UsoErrato(banco, "panel", "list or show?");
    return Mostra(banco, posizioni.size() == 2 ? posizioni[1] : "Untitled");
}

} // namespace orvane
