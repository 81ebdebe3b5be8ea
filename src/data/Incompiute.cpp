#include "data/Incompiute.h"

#include "data/Cartelle.h"
#include "data/Misure.h"

namespace orvane {

std::string PercorsoSegnoCorsa(std::string_view misura) {
    return CartellaMisura(misura) + "Running.RUN";
}

bool SegnaCorsa(const AlberoDati& albero, std::string_view misura) {
    return albero.Salva(PercorsoSegnoCorsa(misura), {});
}

bool TogliSegnoCorsa(const AlberoDati& albero, std::string_view misura) {
    return albero.Cancella(PercorsoSegnoCorsa(misura));
}

bool MisuraIncompiuta(const AlberoDati& albero, std::string_view misura) {
    return albero.Esiste(PercorsoSegnoCorsa(misura));
}

std::vector<std::string> MisureIncompiute(const AlberoDati& albero) {
    std::vector<std::string> nomi = albero.ElencaCartelle(cartella::kSweep);
    std::erase_if(nomi, [&](const std::string& nome) { return !MisuraIncompiuta(albero, nome); });
    return nomi;
}

} // namespace orvane
