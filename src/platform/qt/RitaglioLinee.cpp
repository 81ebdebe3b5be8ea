#include "platform/qt/RitaglioLinee.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace orvane {
namespace {

/// Parts of a segment, 0 at its start and 1 at its end, that are still inside.
struct Dentro {
    double da = 0;
    double a = 1;

    /// Cuts at one edge: `verso` is the way across it per part, outwards positive, and `resto` what
    /// is left to it at the start.
    bool Taglia(double verso, double resto) {
        if (verso == 0)
            return resto >= 0;
        const double parte = resto / verso;
        if (verso > 0)
            a = std::min(a, parte);
        else
            da = std::max(da, parte);
        return da <= a;
    }
};

std::optional<std::pair<QPointF, QPointF>> RitagliaSegmento(QPointF p, QPointF q,
                                                            const QRectF& dove) {
    const QPointF d = q - p;
    Dentro dentro;
    if (!dentro.Taglia(-d.x(), p.x() - dove.left()) ||
        !dentro.Taglia(d.x(), dove.right() - p.x()) || !dentro.Taglia(-d.y(), p.y() - dove.top()) ||
        !dentro.Taglia(d.y(), dove.bottom() - p.y()))
        return std::nullopt;
    return std::pair{p + d * dentro.da, dentro.a == 1 ? q : p + d * dentro.a};
}

} // namespace

std::vector<std::vector<QPointF>> RitagliaSpezzata(std::span<const QPointF> punti,
                                                   const QRectF& dove) {
    std::vector<std::vector<QPointF>> pezzi;
    bool segue = false;
    for (size_t i = 1; i < punti.size(); ++i) {
        const auto tratto = RitagliaSegmento(punti[i - 1], punti[i], dove);
        if (tratto && !segue)
            pezzi.push_back({tratto->first});
        if (tratto)
            pezzi.back().push_back(tratto->second);
        segue = tratto && tratto->second == punti[i];
    }
    return pezzi;
}

} // namespace orvane
