#include "data/CopiaMisura.h"

#include <algorithm>
#include <array>

#include "base/Percorsi.h"
#include "data/Cartelle.h"
#include "data/Misure.h"
#include "data/NomiDisco.h"
#include "data/RegolaNomi.h"

namespace orvane {
namespace {

// Behind each may come the number of a scan line.
constexpr std::array<std::string_view, 4> kSuffissi = {"RS", "KSH", "TM", "AD"};

bool DellaMisura(const std::string& file) {
    const std::string genere = ChiaveNome(EstraiEstensione(file));
    return std::ranges::any_of(kSuffissi, [&](std::string_view suffisso) {
        return genere.starts_with(suffisso) &&
               genere.find_first_not_of("0123456789", suffisso.size()) == std::string::npos;
    });
}

bool Qualsiasi(const std::string&) {
    return true;
}

struct VoceCopia {
    std::string_view cartella; ///< inside the measure
    bool (*vale)(const std::string& file);
};
constexpr std::array<VoceCopia, 4> kCartelle = {{
    {"", DellaMisura},
    {cartella::kSubMeasure, DellaMisura},
    {cartella::kFactors, Qualsiasi},
    {cartella::kLimits, Qualsiasi},
}};

void CopiaCartella(const AlberoDati& albero, const std::string& da, const std::string& a,
                   bool (*vale)(const std::string&), EsitoCopiaMisura& esito) {
    if (!albero.SiElenca(da))
        esito.falliti.push_back(da);
    if (!albero.EsisteCartella(da))
        return;
    albero.AssicuraCartella(a);
    for (const std::string& file : albero.ElencaFile(da, "")) {
        if (!vale(file))
            continue;
        if (albero.Copia(da + file, a + file))
            ++esito.copiati;
        else
            esito.falliti.push_back(a + file);
    }
}

} // namespace

EsitoCopiaMisura CopiaMisuraFTDaFast(const AlberoDati& albero, std::string_view cartellaFast,
                                     std::string_view misura) {
    EsitoCopiaMisura esito;
    const std::string origine = std::string(cartellaFast) + CartellaMisura(misura);
    if (!NomeMisuraAmmesso(std::string(misura)) || !albero.EsisteCartella(origine)) {
        esito.falliti.push_back(origine);
        return esito;
    }
    for (const auto& [cartella, vale] : kCartelle)
        CopiaCartella(albero, origine + std::string(cartella),
                      CartellaMisura(misura) + std::string(cartella), vale, esito);
    return esito;
}

} // namespace orvane
