#include <ostream>

#include "data/Incompiute.h"
#include "data/Misure.h"
#include "verbs/Json.h"
#include "verbs/Verbo.h"

namespace orvane {
namespace {

void Stampa(Banco& banco, Json& json, const VoceArchivio& voce) {
    json.Oggetto().Coppia("name", voce.nome).Coppia("first", voce.prima);
    json.Coppia("last", voce.ultima).Coppia("lines", voce.righe);
    json.Coppia("steps", static_cast<double>(voce.passi)).Coppia("detectors", voce.detector);
    json.Coppia("readable", voce.leggibile).Coppia("incomplete", voce.incompiuta).Chiudi();
    if (banco.json)
        return;
    const char* fine = voce.incompiuta ? "\tincomplete\n" : "\n";
    banco.dati << voce.nome << "\t" << voce.ultima << "\t";
    if (voce.leggibile)
        banco.dati << voce.righe << (voce.righe == 1 ? " line\t" : " lines\t") << voce.passi
                   << " steps\t" << voce.detector << fine;
    else
        banco.dati << "header damaged\t" << voce.passi << " steps" << fine;
}

/// The measure stands as it is: it no longer counts as cut off.
EsitoVerbo Accetta(Banco& banco, Parole parole) {
    const auto misura = parole.size() == 1 ? NomeDaParola(parole[0]) : std::nullopt;
    if (!misura)
        return UsoErrato(banco, "archive", "accept wants one MEASURE");
    const AlberoDati& albero = banco.scrivania.albero;
    if (!albero.EsisteCartella(CartellaMisura(*misura)))
        return Guasto(banco, kGuastoFile, "there is no measure " + CartellaMisura(*misura));
    if (MisuraIncompiuta(albero, *misura) && !TogliSegnoCorsa(albero, *misura))
        return Guasto(banco, kGuastoFile, "cannot delete " + PercorsoSegnoCorsa(*misura));
    return kFatto;
}

} // namespace

EsitoVerbo VerboArchive(Banco& banco, Parole parole) {
    if (!parole.empty() && parole[0] == "accept")
        return Accetta(banco, parole.subspan(1));
    if (!parole.empty())
        return UsoErrato(banco, "archive", "takes no further words");
    Json json;
    json.Lista();
    for (const VoceArchivio& voce : ElencaMisure(banco.scrivania))
        Stampa(banco, json, voce);
    if (banco.json)
        banco.dati << json.Chiudi().Documento() << "\n";
    return kFatto;
}

} // namespace orvane
