// Pictures as files, painted by Qt.
#pragma once

#include "graph/FabbricaQuadri.h"

namespace orvane {

/// Needs an application object that can hold fonts; a window is not needed.
class FabbricaQt : public FabbricaQuadri {
public:
    std::vector<uint8_t> Dipingi(int larghezza, int altezza, FormatoImmagine formato,
                                 const std::function<void(Superficie&)>& disegna) override;
};

} // namespace orvane
