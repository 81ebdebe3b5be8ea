// The simulated spectrum: a smooth floor with its noise, and the lines of comb, clocks and
// carriers, built once for a range and read at any frequency in it.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "records/ScanRecord.h"
#include "simulator/RicevitoreSimulato.h"

namespace orvane {

/// Where the noise of a cell starts and ends, by detector.
using RumoreCella = std::array<float, kNumDetector>;

/// A line: full level within its half width, then the skirt of the filter.
struct RigaSpettro {
    double freqHz = 0;
    double mezzaLarghezzaHz = 0;
    float livello = 0;  ///< hundredths of a dB
    uint8_t classe = 0; ///< row of the table of what each detector reads less
};

/// A wide noise-like plateau, such as a digital broadcast channel.
struct Altopiano {
    double freqHz = 0;
    double mezzaLarghezzaHz = 0;
    float livelloRms = 0; ///< hundredths of a dB, with the filter in use
};

/// Frequencies on this grid give the same level whichever way they were computed.
int64_t GrigliaMilliHz(double freqHz);

/// What a network line measures more than the one with code 0, in hundredths of a dB: smooth over
/// the frequency, the same for every detector.
int ScartoRete(int codice, double freqHz);

class Spettro {
public:
    /// Covers `minHz` to `maxHz`; elsewhere there is nothing but floor.
    Spettro(const CondizioniSpettro& condizioni, double minHz, double maxHz);

    /// Levels in hundredths of a dB at `freqHz`, for each `DetectorKind` of `quali`, in its order.
    /// Cheapest on a rising sequence of frequencies.
    void Livelli(double freqHz, std::span<const uint8_t> quali, int16_t* dove);

private:
    float Fondo(double freqHz);
    const RumoreCella& Cella(int64_t cella, RumoreCella& tenuta, int64_t& quale) const;
    void AvanzaFinestre(double freqHz);
    void TrovaTratto(double hz);
    void AggiungiRighe(double hz, std::span<const uint8_t> quali, float* livelli) const;

    double rbwHz_;
    int rete_;
    uint64_t seme_;
    double celleAlHz_;
    double inversoMezzaBanda_;
    double margine_;     ///< how far from the edge of a line its skirt is followed
    double portata_ = 0; ///< the same, from the middle of the widest line
    size_t primaVoce_ = 0;
    std::vector<float> inviluppo_;
    std::vector<RigaSpettro> righe_;
    std::vector<Altopiano> altopiani_; ///< rising, with both their edges

    /// The straight piece of the envelope that was read last.
    struct Tratto {
        double daHz = 0, aHz = 0;
        double fondo = 0, pendenza = 0;
    };
    Tratto tratto_;
    double ultimaHz_ = -1;
    size_t primaRiga_ = 0;
    size_t primoAltopiano_ = 0;
    int64_t cellaA_ = -1, cellaB_ = -1;
    RumoreCella rumoreA_{}, rumoreB_{};
};

/// Filter behind a code of #SRBW or of the sweep command; 0 for an unknown code.
double RbwDaCodice(int codice);

} // namespace orvane
