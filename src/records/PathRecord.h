// The last path of each kind of file dialog: the whole of the PTH file.
#pragma once

#include <array>
#include <string>

#include "records/Visite.h"

namespace orvane {

struct PathRecord {
    std::array<std::string, 100> Percorsi{}; ///< index 2 is the common one
};

template <class Visita> constexpr void Campi(Visita& v, PathRecord& r) {
    for (auto& x : r.Percorsi)
        v.Testo(x, 300, "Path");
}
static_assert(DimensioneSuDisco<PathRecord>() == 30000);

} // namespace orvane
