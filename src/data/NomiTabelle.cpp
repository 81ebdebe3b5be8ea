#include "data/NomiTabelle.h"

#include "base/Percorsi.h"
#include "base/Testo.h"

namespace orvane {

bool NominaTabella(std::string_view nome) {
    const std::string pulito = Rifila(nome);
    return !pulito.empty() && !UgualiSenzaMaiuscole(pulito, kNessunaTabella);
}

std::vector<std::string> NomiTabelle(const AlberoDati& albero, std::string_view cartella,
                                     std::string_view estensione) {
    std::vector<std::string> nomi;
    for (const std::string& file : albero.ElencaFile(cartella, estensione))
        nomi.push_back(RimuoviEstensione(file));
    return nomi;
}

std::vector<std::string> VociTabelle(const AlberoDati& albero, std::string_view cartella,
                                     std::string_view estensione) {
    std::vector<std::string> voci = NomiTabelle(albero, cartella, estensione);
    voci.insert(voci.begin(), std::string(kNessunaTabella));
    return voci;
}

} // namespace orvane
