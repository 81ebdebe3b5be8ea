#include "link/Dinamica.h"

#include <algorithm>

namespace orvane {

int DinamicaDb(int dinamicaId) {
    const int ultimo = static_cast<int>(kDinamicaTable.size()) - 1;
    return kDinamicaTable[static_cast<size_t>(std::clamp(dinamicaId, 0, ultimo))];
}

Dinamica CalcolaDinamica(const ReceiverModel& modello, const SetupRecord& setup) {
    const bool preAmp = setup.PreAmp != 0;
    int riferimento = setup.RefLevel;
    if (modello.EstensioneAttiva)
        riferimento += preAmp ? 45 : 35;
    else
        riferimento += (preAmp ? 20 : 0) - (setup.PreSel != 0 ? 10 : 0);
    return {.dinamica = std::min(DinamicaDb(setup.DinamicaId), 120),
            .riferimento = std::clamp(riferimento, 65, 145)};
}

} // namespace orvane
