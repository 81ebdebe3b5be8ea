// A trace reduced to what pixels can show: the lowest and the highest level of each column.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "records/SampleRecord.h"

namespace orvane {

/// Extremes by column of one trace. Column edges are computed once, so that a sample costs a
/// comparison and no logarithm; memory does not grow with the samples.
class ColonneTraccia {
public:
    /// `colonne` at least 1; frequencies in MHz, `startMhz` below `stopMhz`.
    ColonneTraccia(double startMhz, double stopMhz, int colonne, bool logaritmica);

    /// Levels at or below `kNessunLivello` mark a gap and are left out. Frequencies outside the
    /// axis are left out too. Quick when frequencies come in rising order.
    void Aggiungi(double freqMhz, int16_t livelloCent);
    void Azzera();

    struct Estremi {
        int16_t minimo = 0;
        int16_t massimo = 0;
        int16_t primo = 0; ///< in the order of arrival, for the line to the neighbour column
        int16_t ultimo = 0;
        bool vuota = true;
    };
    int Quante() const { return static_cast<int>(estremi_.size()); }
    const Estremi& Colonna(int i) const { return estremi_[static_cast<size_t>(i)]; }
    /// Frequency at the middle of a column, MHz.
    double Frequenza(int i) const;

private:
    std::vector<double> bordi_; ///< left edges, and the right edge of the last column
    std::vector<Estremi> estremi_;
    int qui_ = 0;
};

} // namespace orvane
