#include "data/LunghezzaTabella.h"

#include "data/Avvisi.h"

namespace orvane {

bool ControllaLunghezza(const Scrivania& s, std::string_view percorso, size_t lunghezza,
                        size_t attesa, LunghezzaErrata modo) {
    if (lunghezza == attesa)
        return true;
    const bool chiedi = modo == LunghezzaErrata::Chiedi;
    std::string testo = "This file is not as expected";
    if (chiedi)
        testo += "\rLOAD it Anyway ?";
    return s.ambiente.Mostra({.testo = testo,
                              .icona = Icona::Esclamazione,
                              .pulsanti = chiedi ? Pulsanti::SiNo : Pulsanti::Ok,
                              .titolo = "Loading " + s.albero.PercorsoIntero(percorso)}) ==
           Risposta::Si;
}

std::optional<std::vector<uint8_t>> LeggiFileTabella(const Scrivania& s, std::string_view percorso,
                                                     size_t attesa, LunghezzaErrata modo) {
    auto dati = s.albero.Leggi(percorso, attesa + 1);
    if (!dati)
        AvvisaLettura(s, percorso);
    else if (!ControllaLunghezza(s, percorso, dati->size(), attesa, modo))
        dati.reset();
    return dati;
}

void AvvisaTabellaRiparata(Scrivania& s, std::string_view percorso, bool riparata) {
    if (riparata)
        s.avvisi.push_back(std::string(percorso) +
                           " held damaged points; they were repaired in memory");
}

} // namespace orvane
