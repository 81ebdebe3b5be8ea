// The bytes of one sweep, made as they are taken: header, samples, end mark.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "simulator/Spettro.h"

namespace orvane {

/// What a sweep runs over. With `frequenze` not empty these, else from start by step.
struct PassoSimulato {
    double startHz = 0;
    double stopHz = 0;
    double stepHz = 0;
    std::vector<double> frequenze;
    std::vector<uint8_t> detector; ///< `DetectorKind`, rising
    CondizioniSpettro condizioni;
};

/// Steps from start to stop, both included.
uint64_t NumeroPassi(const PassoSimulato& passo);

/// The two bytes, low one first, that the one decoder of levels turns back into `livello`.
std::array<uint8_t, 2> CodificaLivello(int16_t livello);

class FlussoCampioni {
public:
    /// `testa` goes before the samples, `coda` behind them, as they stand.
    FlussoCampioni(PassoSimulato passo, std::string testa, std::string coda);

    uint64_t Lunghezza() const { return lunghezza_; }
    /// Bytes from a place in the stream to the end of the step that it lies in.
    uint64_t FinoAlPassoIntero(uint64_t da) const;
    /// The next bytes, as many as `dove` holds or are left; how many.
    size_t Leggi(std::span<uint8_t> dove);

private:
    void ComponiPasso(uint8_t* dove);
    size_t LeggiCampioni(std::span<uint8_t> dove);

    PassoSimulato passo_;
    Spettro spettro_;
    std::string testa_;
    std::string coda_;
    size_t bytePasso_;
    uint64_t passi_;
    uint64_t lunghezza_;
    uint64_t letti_ = 0;
    uint64_t prossimo_ = 0;              ///< step to be composed next
    std::array<uint8_t, 12> spezzato_{}; ///< a step of which only a part has been taken
    size_t spezzatoDa_ = 12;
};

} // namespace orvane
