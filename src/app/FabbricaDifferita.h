// The maker of pictures of the command line program, woken when the first picture is drawn.
#pragma once

#include <memory>

#include "platform/qt/FabbricaQt.h"

class QGuiApplication;

namespace orvane {

/// Qt starts with the first picture, without a display: what draws none does not wait for it.
class FabbricaDifferita : public FabbricaQuadri {
public:
    FabbricaDifferita();
    ~FabbricaDifferita() override;
    std::vector<uint8_t> Dipingi(int larghezza, int altezza, FormatoImmagine formato,
                                 const std::function<void(Superficie&)>& disegna) override;

private:
    std::unique_ptr<QGuiApplication> applicazione_;
    FabbricaQt fabbrica_;
};

} // namespace orvane
