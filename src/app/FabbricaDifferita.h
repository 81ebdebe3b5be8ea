// The maker of pictures of the command line program, woken when the first picture is drawn.
#pragma once

#include <memory>

#include "graph/FabbricaQuadri.h"

namespace orvane {

/// Loads the module `orvane-pictures` with the first picture, from beside the program or from
/// "../lib/orvane": what draws none does not wait for the libraries of the windows. A module that
/// cannot be loaded is told on standard error, and there are no pictures.
class FabbricaDifferita : public FabbricaQuadri {
public:
    std::vector<uint8_t> Dipingi(int larghezza, int altezza, FormatoImmagine formato,
                                 const std::function<void(Superficie&)>& disegna) override;

private:
    std::unique_ptr<FabbricaQuadri> fabbrica_;
};

} // namespace orvane
