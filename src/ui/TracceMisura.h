// The traces of a stored measure, reduced to the columns of the span on show.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "graph/PiramideTraccia.h"
#include "graph/Quadro.h"

namespace orvane {

class TracceMisura {
public:
    /// Keeps its share of the traces, and what it knew of those that it had before; nothing is
    /// reduced yet.
    void Imposta(const std::vector<StratoQuadro>& strati);
    /// Reduces what is drawn to this span and width; again only after a change.
    void Vista(CampoMhz campo, int colonne);
    /// Null where the layer does not draw this detector. After `Vista`.
    const ColonneTraccia* Traccia(size_t strato, size_t detector) const;

private:
    struct Strato {
        std::shared_ptr<const SweepTrace> traccia;
        std::array<bool, kNumDetector> detector{};
        std::array<std::shared_ptr<const PiramideTraccia>, kNumDetector> piramidi{};
        std::array<std::optional<ColonneTraccia>, kNumDetector> colonne{};
    };

    std::vector<Strato> strati_;
    CampoMhz campo_;
    int colonne_ = 0;
    bool ridotte_ = false;
};

} // namespace orvane
