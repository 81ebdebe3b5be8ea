#include "console/CambioUnita.h"

#include "data/Panels.h"

namespace orvane {

bool CambiaUnita(Scrivania& s, int unitId, Modalita modalita) {
    return CambiaUnita(s.ambiente, s.setup, modalita, unitId) && SalvaPanelEAM(s, kPannelloEAM);
}

} // namespace orvane
