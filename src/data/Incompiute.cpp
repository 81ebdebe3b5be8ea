#include "data/Incompiute.h"

#include "data/Cartelle.h"
#include "data/Misure.h"

namespace orvane {

std::string PercorsoSegnoCorsa(std::string_view misura) {
    return CartellaMisura(misura) + "Running.RUN";
}

std::optional<Presa> SegnaCorsa(const AlberoDati& albero, std::string_view misura) {
    const std::string segno = PercorsoSegnoCorsa(misura);
    if (!albero.Salva(segno, {}))
        return std::nullopt;
    return albero.Prendi(segno);
}

bool TogliSegnoCorsa(const AlberoDati& albero, std::string_view misura) {
    return albero.Cancella(PercorsoSegnoCorsa(misura));
}

bool MisuraInCorso(const AlberoDati& albero, std::string_view misura) {
    return albero.InMano(PercorsoSegnoCorsa(misura));
}

bool MisuraIncompiuta(const AlberoDati& albero, std::string_view misura) {
    const std::string segno = PercorsoSegnoCorsa(misura);
    return albero.Esiste(segno) && !albero.InMano(segno);
}

std::vector<std::string> MisureIncompiute(const AlberoDati& albero) {
    std::vector<std::string> nomi = albero.ElencaCartelle(cartella::kSweep);
    std::erase_if(nomi, [&](const std::string& nome) { return !MisuraIncompiuta(albero, nome); });
    return nomi;
}

} // namespace orvane
