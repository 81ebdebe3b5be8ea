#include <ostream>

#include "data/Misure.h"
#include "verbs/Argomenti.h"
#include "verbs/Json.h"
#include "verbs/ParoleArchivio.h"
#include "verbs/Verbo.h"

namespace orvane {
namespace {

void Stampa(Banco& banco, Json& json, const VoceArchivio& voce) {
    json.Oggetto().Coppia("name", voce.nome).Coppia("first", voce.prima);
    json.Coppia("last", voce.ultima).Coppia("lines", voce.righe);
    json.Coppia("steps", static_cast<double>(voce.passi)).Coppia("detectors", voce.detector);
    json.Coppia("readable", voce.leggibile).Coppia("incomplete", voce.incompiuta);
    json.Coppia("running", voce.inCorso).Chiudi();
    if (banco.json)
        return;
    const char* fine = voce.inCorso ? "\trunning\n" : voce.incompiuta ? "\tincomplete\n" : "\n";
    banco.dati << voce.nome << "\t" << voce.ultima << "\t";
    if (voce.leggibile)
        banco.dati << voce.righe << (voce.righe == 1 ? " line\t" : " lines\t") << voce.passi
                   << " steps\t" << voce.detector << fine;
    else
        banco.dati << "header damaged\t" << voce.passi << " steps" << fine;
}

/// All measures, or those that contain the words of `--search`.
EsitoVerbo Elenca(Banco& banco, Parole parole) {
    const Argomenti argomenti(parole, {"search"});
    if (!argomenti.Errore().empty() || !argomenti.Posizioni().empty())
        return UsoErrato(banco, "archive",
                         argomenti.Errore().empty()
                             ? "unknown word \"" + argomenti.Posizioni()[0] + "\""
                             : argomenti.Errore());
    const std::string cercato = argomenti.Opzione("search").value_or("");
    Json json;
    json.Lista();
    for (const std::string& nome : ElencaNomiMisure(banco.scrivania, OrdineArchivio::PerNome))
        if (cercato.empty() || MisuraContiene(banco.scrivania, nome, cercato))
            Stampa(banco, json, LeggiVoce(banco.scrivania, nome));
    if (banco.json)
        banco.dati << json.Chiudi().Documento() << "\n";
    return kFatto;
}

} // namespace

EsitoVerbo VerboArchive(Banco& banco, Parole parole) {
    for (const ParolaArchivio& parola : ParoleArchivio())
        if (!parole.empty() && parole[0] == parola.nome)
            return parola.esegui(banco, parole.subspan(1));
    const bool list = !parole.empty() && parole[0] == "list";
    return Elenca(banco, list ? parole.subspan(1) : parole);
}

} // namespace orvane
