#include "ui/TracceMisura.h"

#include <algorithm>

namespace orvane {

void TracceMisura::Imposta(const std::vector<StratoQuadro>& strati) {
    std::vector<Strato> nuovi;
    for (const StratoQuadro& strato : strati) {
        Strato& nuovo = nuovi.emplace_back(Strato{strato.traccia, strato.detector});
        const auto stesso = std::ranges::find(strati_, strato.traccia, &Strato::traccia);
        if (stesso != strati_.end())
            nuovo.piramidi = stesso->piramidi;
    }
    strati_ = std::move(nuovi);
    ridotte_ = false;
}

void TracceMisura::Vista(CampoMhz campo, int colonne) {
    if (ridotte_ && campo == campo_ && colonne == colonne_)
        return;
    campo_ = campo;
    colonne_ = colonne;
    ridotte_ = true;
    for (Strato& strato : strati_)
        for (size_t d = 0; d < kNumDetector; ++d) {
            if (!strato.detector[d])
                continue;
            auto& piramide = strato.piramidi[d];
            if (!piramide)
                piramide = std::make_shared<const PiramideTraccia>(*strato.traccia,
                                                                   static_cast<DetectorKind>(d));
            strato.colonne[d] = piramide->Colonne(campo.start, campo.stop, colonne, true);
        }
}

const ColonneTraccia* TracceMisura::Traccia(size_t strato, size_t detector) const {
    const auto& colonne = strati_[strato].colonne[detector];
    return colonne ? &*colonne : nullptr;
}

} // namespace orvane
