// Pictures as files, painted by Qt.
#pragma once

#include <QImage>

#include "graph/FabbricaQuadri.h"

namespace orvane {

/// A picture of this size, 24 bits a pixel; null when there is no memory for it.
QImage DipingiImmagine(int larghezza, int altezza, const std::function<void(Superficie&)>& disegna);

/// Needs an application object that can hold fonts; a window is not needed.
class FabbricaQt : public FabbricaQuadri {
public:
    std::vector<uint8_t> Dipingi(int larghezza, int altezza, FormatoImmagine formato,
                                 const std::function<void(Superficie&)>& disegna) override;
};

} // namespace orvane
