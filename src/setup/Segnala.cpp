#include "setup/Segnala.h"

#include <algorithm>

namespace orvane {

std::vector<CellaErrata> CelleDove(const ScanTable& tabella,
                                   std::initializer_list<ColonnaScan> colonne,
                                   const CheRiga& vale) {
    std::vector<CellaErrata> celle;
    for (size_t i = 0; i < tabella.size(); ++i) {
        if (tabella[i].Start == 0 || !vale(tabella[i]))
            continue;
        for (const ColonnaScan colonna : colonne)
            celle.push_back({i, colonna});
    }
    return celle;
}

bool UnaRiga(const ScanTable& tabella, const CheRiga& vale) {
    return std::any_of(tabella.begin(), tabella.end(),
                       [&](const ScanLine& riga) { return riga.Start != 0 && vale(riga); });
}

Segnalazioni SeCiSono(std::vector<CellaErrata> celle, EsitoControllo esito, Riquadro riquadro) {
    if (celle.empty())
        return {};
    return {{.esito = esito, .celle = std::move(celle), .riquadro = std::move(riquadro)}};
}

Segnalazioni Se(bool vale, EsitoControllo esito, Riquadro riquadro) {
    if (!vale)
        return {};
    return {{.esito = esito, .riquadro = std::move(riquadro)}};
}

bool RigaDoppioSmart(const ScanLine& riga) {
    return riga.Smart == 1 &&
           std::count(riga.Detector.begin(), riga.Detector.end(), int16_t{1}) == 2;
}

} // namespace orvane
