// A pseudo terminal: the master end for a simulated receiver, the path for whoever opens it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace orvane {

class PseudoTerminale {
public:
    /// Opens a pair in raw mode; `Percorso` stays empty when there is none to be had.
    PseudoTerminale();
    ~PseudoTerminale();
    PseudoTerminale(const PseudoTerminale&) = delete;
    PseudoTerminale& operator=(const PseudoTerminale&) = delete;

    const std::string& Percorso() const { return percorso_; }
    /// Waits until bytes can be read (or written, where `ancheScrivere`), at most `secondi`. A
    /// signal ends it early. Without a line it only sleeps.
    void Attendi(double secondi, bool ancheScrivere);
    /// How many bytes came; 0 where none wait.
    size_t Leggi(std::span<uint8_t> dove);
    /// How many of the bytes went; never blocks.
    size_t Scrivi(std::span<const uint8_t> dati);
    /// Takes the line away from whoever has it open, as a pulled adapter does: reads give nothing,
    /// writes and counts fail, the descriptor reports a hang-up without end, and the path is gone,
    /// so that a new opening finds no device. For good: this object has no line any more.
    void Stacca();

private:
    int padrone_ = -1;
    int guardiano_ = -1; ///< keeps the line up between two openings
    std::string percorso_;
};

} // namespace orvane
