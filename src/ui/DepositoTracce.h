// The traces on the picture: a store of fixed size, and the same reduced to the picture's width.
#pragma once

#include <array>
#include <memory>
#include <optional>

#include "graph/Colonne.h"
#include "records/SampleRecord.h"

namespace orvane {

/// Columns of the store: more than a picture is wide, so that any width can be made from it.
inline constexpr int kColonneDeposito = 4096;

class DepositoTracce {
public:
    /// Forgets everything; from here on the axis is this one, MHz, logarithmic.
    void Inizia(double startMhz, double stopMhz);
    /// Width of the picture in pixels; made anew from the store.
    void ImpostaLarghezza(int colonne);
    void Aggiungi(double freqMhz, const SampleRecord& campione);
    /// What comes next does not continue the lines.
    void Interrompi();

    double Start() const { return start_; }
    double Stop() const { return stop_; }
    /// Null where this detector has shown nothing yet.
    const ColonneTraccia* Traccia(DetectorKind detector) const;
    bool Vuoto() const;
    /// The highest level in the screen column nearest to a frequency; empty where there is none.
    std::optional<int16_t> Livello(DetectorKind detector, double freqMhz) const;

private:
    struct Coppia {
        ColonneTraccia deposito;
        ColonneTraccia schermo;
    };
    Coppia& Prendi(size_t detector);

    double start_ = 0;
    double stop_ = 0;
    int colonne_ = 800;
    std::array<std::unique_ptr<Coppia>, kNumDetector> tracce_;
};

} // namespace orvane
