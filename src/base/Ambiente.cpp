#include "base/Ambiente.h"

namespace orvane {

void Attendi(Ambiente& ambiente, double secondi) {
    const Scadenza fine(ambiente, secondi);
    do {
        ambiente.ElaboraEventi(fine.Rimane(), Veglia::Eventi);
    } while (!fine.Passata());
}

} // namespace orvane
