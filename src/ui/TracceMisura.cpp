#include "ui/TracceMisura.h"

namespace orvane {

void TracceMisura::Imposta(const std::vector<StratoQuadro>& strati) {
    strati_ = strati;
    ridotte_.clear();
}

void TracceMisura::Vista(CampoMhz campo, int colonne) {
    if (campo == campo_ && colonne == colonne_ && ridotte_.size() == strati_.size())
        return;
    campo_ = campo;
    colonne_ = colonne;
    ridotte_.clear();
    for (const StratoQuadro& strato : strati_)
        ridotte_.push_back(Riduci(strato));
}

TracceMisura::Colonne TracceMisura::Riduci(const StratoQuadro& strato) const {
    Colonne colonne;
    for (size_t d = 0; d < kNumDetector; ++d) {
        if (!strato.detector[d])
            continue;
        ColonneTraccia& traccia = colonne[d].emplace(campo_.start, campo_.stop, colonne_, true);
        for (const CampioneTraccia& c : *strato.traccia) {
            if (c.stacco)
                traccia.Interrompi();
            traccia.Aggiungi(c.freqMhz, c.livello[d]);
        }
    }
    return colonne;
}

const ColonneTraccia* TracceMisura::Traccia(size_t strato, size_t detector) const {
    const auto& traccia = ridotte_[strato][detector];
    return traccia ? &*traccia : nullptr;
}

} // namespace orvane
