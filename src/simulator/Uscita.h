// What the receiver has to say, in order and paced: replies, and at most one running sweep.
#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <random>
#include <span>
#include <string>

#include "simulator/FlussoCampioni.h"

namespace orvane {

/// Most bytes that a sweep has on the way at a time.
inline constexpr size_t kFinestraFlusso = 65536;

class Uscita {
public:
    explicit Uscita(double byteAlSecondo) : byteAlSecondo_(byteAlSecondo) {}

    /// A text that leaves from `quando` on, behind all before it; only a sweep that has fallen
    /// silent lets it pass.
    void Accoda(std::string testo, double quando);
    /// A sweep, in place of one that runs. It stops for good after `limite` bytes.
    void AccodaFlusso(std::unique_ptr<FlussoCampioni> flusso, std::optional<uint64_t> limite,
                      double quando);
    /// Drops the sweep and whatever has not been taken.
    void Svuota();

    bool FlussoInCorso() const;
    /// The sweep falls silent; what has left before arrives.
    void Sospendi(double adesso);
    void Riprendi(double adesso);
    /// Says something in the midst of a sweep that goes on: behind a whole step.
    void Interrompi(std::string testo, double adesso);

    size_t Prendi(std::span<uint8_t> dove, double adesso);
    size_t Pronti(double adesso);
    std::optional<double> ProssimoByte(double adesso);
    /// Bytes of the running or last sweep that were taken.
    uint64_t PresiDalFlusso() const { return presiFlusso_; }

private:
    struct Pezzo {
        double quando = 0;
        std::string testo{};
        std::unique_ptr<FlussoCampioni> flusso{}; ///< in place of the text
        uint64_t limite = 0;                      ///< bytes that it will give
        uint64_t presi = 0;
        uint64_t usciti = 0; ///< left the receiver; used with pacing only
        bool sospeso = false;
    };

    void Avanza(double adesso);
    uint64_t Disponibili(const Pezzo& pezzo, double adesso) const;
    bool LasciaPassare(const Pezzo& pezzo) const;
    size_t PrendiDa(Pezzo& pezzo, std::span<uint8_t> dove);
    std::deque<Pezzo>::iterator TrovaFlusso();
    std::string PrendiInTesto(Pezzo& pezzo, uint64_t quanti);

    double byteAlSecondo_;
    double libera_ = 0; ///< when the last byte that left had left
    uint64_t presiFlusso_ = 0;
    std::deque<Pezzo> coda_;
};

} // namespace orvane
