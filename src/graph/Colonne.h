// A trace reduced to what pixels can show: the lowest and the highest level of each column.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "records/SampleRecord.h"

namespace orvane {

/// k x Step misses the ends of the axis by its last bits: nearer than 1 mHz is on it.
inline constexpr double kTolleranzaAsseMhz = 1e-9;

/// Extremes by column of one trace. Column edges are computed once, so that a sample costs a
/// comparison and no logarithm; memory does not grow with the samples.
///
/// An empty column is not yet a gap: sparse samples leave columns empty between them, and the line
/// runs on. A gap is what a missing level or `Interrompi` made; the column behind it says so.
class ColonneTraccia {
public:
    /// `colonne` at least 1; frequencies in MHz, `startMhz` below `stopMhz`. An axis that is none
    /// gives columns that stay empty.
    ColonneTraccia(double startMhz, double stopMhz, int colonne, bool logaritmica);

    /// Levels at or below `kNessunLivello` mark a gap and are left out. Frequencies outside the
    /// axis enter no column; the nearest on either side are kept as neighbours. Quick when
    /// frequencies come in rising order.
    void Aggiungi(double freqMhz, int16_t livelloCent);
    /// The next sample does not continue the line: a scan line begins that adjoins no other.
    void Interrompi() { interrotta_ = true; }
    void Azzera();

    struct Estremi {
        int16_t minimo = 0;
        int16_t massimo = 0;
        int16_t primo = 0; ///< in the order of arrival, for the line to the neighbour column
        int16_t ultimo = 0;
        bool vuota = true;
        bool rottura = false; ///< no line from the left into this column
    };
    /// A sample beyond the axis, so that the line runs on to the frame.
    struct Vicino {
        double freqMhz = 0;
        int16_t livello = 0;
        bool rottura = false; ///< no line from the left to it
    };
    int Quante() const { return static_cast<int>(estremi_.size()); }
    const Estremi& Colonna(int i) const { return estremi_[static_cast<size_t>(i)]; }
    /// Frequency at the middle of a column, MHz.
    double Frequenza(int i) const;
    const std::optional<Vicino>& Sinistra() const { return sinistra_; }
    const std::optional<Vicino>& Destra() const { return destra_; }

private:
    friend class PiramideTraccia; ///< fills columns without a look at each sample

    bool Dentro(size_t colonna, double freqMhz) const {
        return freqMhz >= bordi_[colonna] && freqMhz < bordi_[colonna + 1];
    }
    bool Trova(double freqMhz);
    void AggiungiFuori(double freqMhz, int16_t livelloCent);

    std::vector<double> bordi_; ///< left edges, and the right edge of the last column
    std::vector<Estremi> estremi_;
    std::optional<Vicino> sinistra_;
    std::optional<Vicino> destra_;
    size_t qui_ = 0;
    bool logaritmica_ = false;
    bool interrotta_ = true;
};

} // namespace orvane
