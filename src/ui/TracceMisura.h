// The traces of a stored measure, reduced to the columns of the span on show.
#pragma once

#include <optional>
#include <vector>

#include "graph/Quadro.h"

namespace orvane {

class TracceMisura {
public:
    /// Keeps its share of the traces; nothing is reduced yet.
    void Imposta(const std::vector<StratoQuadro>& strati);
    /// Reduces what is drawn to this span and width; again only after a change.
    void Vista(CampoMhz campo, int colonne);
    /// Null where the layer does not draw this detector.
    const ColonneTraccia* Traccia(size_t strato, size_t detector) const;

private:
    using Colonne = std::array<std::optional<ColonneTraccia>, kNumDetector>;
    Colonne Riduci(const StratoQuadro& strato) const;

    std::vector<StratoQuadro> strati_;
    std::vector<Colonne> ridotte_;
    CampoMhz campo_;
    int colonne_ = 0;
};

} // namespace orvane
