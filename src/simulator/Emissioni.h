// What the simulated equipment and its surroundings emit: lines, plateaus and broad noise, from a
// seed. Levels in dBuV.
#pragma once

#include <cstdint>
#include <vector>

#include "simulator/Spettro.h"

namespace orvane {

/// How the detectors read a line: rows of `kScartiDetector`.
enum ClasseRiga : uint8_t { kPortante, kAmpiezzaModulata, kImpulsi, kRete };

/// What each detector reads less than Peak, in hundredths of a dB, by `ClasseRiga` and
/// `DetectorKind`. Each row keeps the order of the detectors.
inline constexpr float kScartiDetector[][kNumDetector] = {
    {0, 25, 70, 90, 50, 80},      // a steady carrier or a clock's harmonic
    {0, 90, 300, 380, 240, 330},  // an amplitude-modulated carrier
    {0, 160, 640, 930, 520, 700}, // a supply's harmonic, with its jitter
    {0, 60, 260, 330, 190, 290},  // a harmonic of the mains
};

/// Numbers from a seed: the same on every machine.
uint64_t Mescola(uint64_t x);
/// 0 to below 1, by seed and two ordinals.
double Sorte(uint64_t seme, uint64_t quale, uint64_t indice);

/// The noise of the receiver itself with 9 kHz, 10 dB and no preamplifier, Rms.
double FondoRicevitore(double freqHz);
/// The broad emissions of the equipment with 9 kHz, Rms.
double FondoApparato(double freqHz);

/// Lines and plateaus with their middle within the range. Levels of plateaus with 9 kHz.
std::vector<RigaSpettro> RigheEmesse(uint64_t seme, double minHz, double maxHz);
std::vector<Altopiano> AltopianiEmessi(uint64_t seme, double minHz, double maxHz);

} // namespace orvane
