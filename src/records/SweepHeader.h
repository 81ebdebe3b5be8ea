// The header of a measure, file KSH: scan table and set-up at the moment of the run.
#pragma once

#include "records/ScanRecord.h"
#include "records/SetupRecord.h"

namespace orvane {

struct SweepHeader {
    ScanRecord Scan;
    SetupRecord Setup;
};

template <class Visita> constexpr void Campi(Visita& v, SweepHeader& r) {
    Campi(v, r.Scan);
    Campi(v, r.Setup);
}
static_assert(DimensioneSuDisco<SweepHeader>() == 17770);

} // namespace orvane
