// One detector of a stored trace with its extremes in levels: columns of any zoom at the cost of
// the picture's width, however many samples there are.
#pragma once

#include <cstdint>
#include <vector>

#include "data/Traccia.h"
#include "graph/Colonne.h"

namespace orvane {

/// Built once when a measure is opened; needs the trace no longer then. Samples without a level are
/// left out, and the gaps that they and `stacco` make are kept.
class PiramideTraccia {
public:
    PiramideTraccia(const SweepTrace& traccia, DetectorKind detector);

    /// The same columns, neighbours and gaps as every sample added to `ColonneTraccia` in turn.
    ColonneTraccia Colonne(double startMhz, double stopMhz, int colonne, bool logaritmica) const;
    /// Fills columns that are there, for a picture whose axis stays: what they held is forgotten.
    void Riempi(ColonneTraccia& colonne) const;

    /// Without any level.
    bool Vuota() const { return livelli_.empty(); }

private:
    struct Estremi {
        int16_t minimo;
        int16_t massimo;
    };
    void AggiungiPiano(const std::vector<Estremi>& sotto);
    size_t PrimoDa(double freqMhz, size_t da) const;
    ColonneTraccia::Estremi Riassumi(size_t da, size_t fino) const;
    ColonneTraccia::Vicino Vicino(size_t quale) const;
    void RiempiOrdinate(ColonneTraccia& colonne) const;

    std::vector<double> freqMhz_;
    std::vector<int16_t> livelli_;
    std::vector<uint8_t> rotture_; ///< 1: no line from the sample before
    std::vector<double> passi_;    ///< every so many a frequency, for the search
    std::vector<std::vector<Estremi>> piani_;
    bool ordinata_ = true; ///< frequencies rise; others are added one by one
};

} // namespace orvane
