// Levels at a frequency: the larger of noise and lines, detector by detector.
#include "simulator/Spettro.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "records/SampleRecord.h"
#include "simulator/Emissioni.h"

namespace orvane {
namespace {

/// Rms of noise against what each detector reads of it, and by how much it moves, in hundredths of
/// a dB. Two neighbours lie further apart than both can move, so that they never change places.
constexpr float kScartiRumore[kNumDetector] = {1080, 690, 60, -120, 280, 20};
constexpr float kMotoRumore[kNumDetector] = {230, 110, 70, 60, 90, 60};

/// The envelope is a table over the octaves, indexed by the leading bits of the frequency, and
/// straight in between: no logarithm a sample.
constexpr int kBitMantissa = 5;
constexpr int kTaglio = 52 - kBitMantissa;
constexpr uint64_t kPrimaChiave = uint64_t{1023} << kBitMantissa; // 1 Hz

size_t VoceInviluppo(double freqHz) {
    return (std::bit_cast<uint64_t>(freqHz) >> kTaglio) - kPrimaChiave;
}
double FrequenzaVoce(size_t voce) {
    return std::bit_cast<double>((voce + kPrimaChiave) << kTaglio);
}

/// Skirts are followed down to 75 dB below the line: two and a half bandwidths.
constexpr double kBandePortata = 2.5;
/// dB/100 that a filter loses at the edge of its bandwidth.
constexpr float kTreDb = 301;

constexpr size_t kNumClassi = std::size(kScartiDetector);
constexpr float kNienteRighe = -1e9f;

/// The widest line, so that a window of the sorted lines holds all that matter.
constexpr double kMezzaLarghezzaMax = 2e6;
constexpr double kMezzaLarghezzaPettine = 6.5e3;

double MezzaLarghezzaMassima(double maxHz) {
    return maxHz < 30e6 ? kMezzaLarghezzaPettine : maxHz < 5e9 ? 90e3 : kMezzaLarghezzaMax;
}

float SommaPotenze(double a, double b) {
    return static_cast<float>(1000 * std::log10(std::pow(10, a / 10) + std::pow(10, b / 10)));
}

float LivelloInviluppo(double freqHz, const CondizioniSpettro& c) {
    const double banda = 10 * std::log10(c.rbwHz / 9e3);
    const double ricevitore = FondoRicevitore(freqHz) + (c.attDb - 10) - (c.preAmp ? 8 : 0);
    return SommaPotenze(ricevitore + banda, FondoApparato(freqHz) + banda);
}

int Arrotonda(float centesimi) {
    // The bias makes the cut a rounding for negative levels too.
    return static_cast<int>(centesimi + 32768.5f) - 32768;
}

int16_t InCampo(int centesimi) {
    return static_cast<int16_t>(std::clamp(centesimi, -19999, 32767));
}

/// Networks by the three lowest pins of their code, in hundredths of a dB.
struct ReteSimulata {
    float medio;    ///< at the middle frequency
    float pendenza; ///< half of what it changes from far below to far above
};
constexpr ReteSimulata kReti[] = {{0, 0},      {-150, 80},  {220, -60}, {-260, 120},
                                  {-180, 140}, {160, -120}, {-230, 60}, {190, 90}};
constexpr double kMezzoReteHz = 2e6;

} // namespace

int64_t GrigliaMilliHz(double freqHz) {
    return static_cast<int64_t>(freqHz * 1000 + 0.5);
}

int ScartoRete(int codice, double freqHz) {
    const ReteSimulata& rete = kReti[static_cast<size_t>(codice) % std::size(kReti)];
    const double posto = (freqHz - kMezzoReteHz) / (freqHz + kMezzoReteHz);
    return static_cast<int>(std::lround(rete.medio + rete.pendenza * posto));
}

Spettro::Spettro(const CondizioniSpettro& condizioni, double minHz, double maxHz)
    : rbwHz_(std::max(condizioni.rbwHz, 0.1)), rete_(condizioni.rete),
      seme_(Mescola(condizioni.seme)), celleAlHz_(2 / rbwHz_), inversoMezzaBanda_(2 / rbwHz_),
      margine_(kBandePortata * rbwHz_) {
    const double da = std::max(minHz, 1.0);
    const double a = std::max(maxHz, da);
    primaVoce_ = VoceInviluppo(da);
    for (size_t voce = primaVoce_; voce <= VoceInviluppo(a) + 1; ++voce)
        inviluppo_.push_back(LivelloInviluppo(FrequenzaVoce(voce), condizioni));

    portata_ = margine_ + MezzaLarghezzaMassima(a + margine_);
    righe_ = RigheEmesse(condizioni.seme, da - portata_, a + portata_);
    altopiani_ = AltopianiEmessi(condizioni.seme, da - 80e6 - margine_, a + 80e6 + margine_);
    const float banda = static_cast<float>(1000 * std::log10(rbwHz_ / 9e3));
    for (Altopiano& altopiano : altopiani_)
        altopiano.livelloRms += banda;
}

void Spettro::TrovaTratto(double hz) {
    const size_t ultima = primaVoce_ + inviluppo_.size() - 2;
    const size_t voce = std::clamp(VoceInviluppo(hz), primaVoce_, ultima);
    const float* coppia = &inviluppo_[voce - primaVoce_];
    tratto_ = {.daHz = FrequenzaVoce(voce), .aHz = FrequenzaVoce(voce + 1), .fondo = coppia[0]};
    tratto_.pendenza = (coppia[1] - coppia[0]) / (tratto_.aHz - tratto_.daHz);
}

float Spettro::Fondo(double freqHz) {
    const double hz = std::max(freqHz, 1.0);
    if (hz < tratto_.daHz || hz >= tratto_.aHz)
        TrovaTratto(hz);
    auto fondo = static_cast<float>(tratto_.fondo + (hz - tratto_.daHz) * tratto_.pendenza);
    for (size_t i = primoAltopiano_; i < altopiani_.size(); ++i) {
        const Altopiano& a = altopiani_[i];
        const double fuori = std::abs(hz - a.freqHz) - a.mezzaLarghezzaHz;
        if (fuori > margine_)
            break;
        const auto x = static_cast<float>(std::max(fuori, 0.0) * inversoMezzaBanda_);
        fondo = std::max(fondo, a.livelloRms - kTreDb * x * x);
    }
    return fondo;
}

const RumoreCella& Spettro::Cella(int64_t cella, RumoreCella& tenuta, int64_t& quale) const {
    if (quale == cella)
        return tenuta;
    quale = cella;
    // Ten bits a detector, -1 to 1.
    uint64_t bit = Mescola(seme_ ^ static_cast<uint64_t>(cella));
    for (size_t d = 0; d < kNumDetector; ++d, bit >>= 10)
        tenuta[d] = kMotoRumore[d] * (static_cast<float>(bit & 1023) / 511.5f - 1);
    return tenuta;
}

void Spettro::AvanzaFinestre(double freqHz) {
    if (freqHz < ultimaHz_)
        primaRiga_ = primoAltopiano_ = 0;
    ultimaHz_ = freqHz;
    while (primaRiga_ < righe_.size() && righe_[primaRiga_].freqHz < freqHz - portata_)
        ++primaRiga_;
    while (primoAltopiano_ < altopiani_.size() &&
           altopiani_[primoAltopiano_].freqHz + altopiani_[primoAltopiano_].mezzaLarghezzaHz <
               freqHz - margine_)
        ++primoAltopiano_;
}

/// The highest line of each class counts; what the detectors read less follows from the class.
void Spettro::AggiungiRighe(double hz, std::span<const uint8_t> quali, float* livelli) const {
    const double fine = hz + portata_;
    if (primaRiga_ == righe_.size() || righe_[primaRiga_].freqHz > fine)
        return;
    float cime[kNumClassi];
    std::fill(std::begin(cime), std::end(cime), kNienteRighe);
    for (size_t r = primaRiga_; r < righe_.size() && righe_[r].freqHz <= fine; ++r) {
        const RigaSpettro& riga = righe_[r];
        const double fuori = std::abs(hz - riga.freqHz) - riga.mezzaLarghezzaHz;
        if (fuori > margine_)
            continue;
        const auto x = static_cast<float>(std::max(fuori, 0.0) * inversoMezzaBanda_);
        cime[riga.classe] = std::max(cime[riga.classe], riga.livello - kTreDb * x * x);
    }
    for (size_t classe = 0; classe < kNumClassi; ++classe)
        if (cime[classe] > kNienteRighe)
            for (size_t i = 0; i < quali.size(); ++i)
                livelli[i] = std::max(livelli[i], cime[classe] - kScartiDetector[classe][quali[i]]);
}

void Spettro::Livelli(double freqHz, std::span<const uint8_t> quali, int16_t* dove) {
    const double hz = static_cast<double>(GrigliaMilliHz(freqHz)) / 1000;
    AvanzaFinestre(hz);
    const float fondo = Fondo(hz);
    const double posto = hz * celleAlHz_;
    const auto cella = static_cast<int64_t>(posto);
    if (cella == cellaB_) {
        std::swap(cellaA_, cellaB_);
        std::swap(rumoreA_, rumoreB_);
    }
    const RumoreCella& a = Cella(cella, rumoreA_, cellaA_);
    const RumoreCella& b = Cella(cella + 1, rumoreB_, cellaB_);
    const auto parte = static_cast<float>(posto - static_cast<double>(cella));

    float livelli[kNumDetector];
    for (size_t i = 0; i < quali.size(); ++i) {
        const size_t d = quali[i];
        livelli[i] = fondo + kScartiRumore[d] + a[d] + (b[d] - a[d]) * parte;
    }
    AggiungiRighe(hz, quali, livelli);
    const int scarto = rete_ == 0 ? 0 : ScartoRete(rete_, hz);
    for (size_t i = 0; i < quali.size(); ++i)
        dove[i] = InCampo(Arrotonda(livelli[i]) + scarto);
}

int16_t LivelloSimulato(double freqMhz, int detector, const CondizioniSpettro& condizioni) {
    if (detector < 0 || detector >= static_cast<int>(kNumDetector))
        return kNessunLivello;
    const double hz = freqMhz * 1e6;
    Spettro spettro(condizioni, hz, hz);
    const auto quale = static_cast<uint8_t>(detector);
    int16_t livello = 0;
    spettro.Livelli(hz, {&quale, 1}, &livello);
    return livello;
}

double RbwDaCodice(int codice) {
    constexpr struct {
        int codice;
        double hz;
    } kFiltri[] = {{1, 300e3}, {2, 100e3}, {3, 30e3}, {4, 10e3}, {5, 3e3},
                   {6, 9e3},   {7, 200},   {8, 1e3},  {9, 1e6},  {10, 120e3},
                   {11, 10e3}, {12, 9e3},  {22, 1e3}, {23, 100}, {24, 10}};
    for (const auto& filtro : kFiltri)
        if (filtro.codice == codice)
            return filtro.hz;
    return 0;
}

} // namespace orvane
