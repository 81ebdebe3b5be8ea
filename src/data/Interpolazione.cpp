#include "data/Interpolazione.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvane {
namespace {

constexpr float kPrimaFreqFattoreHz = 9;
constexpr size_t kFattoriSommati = 4;

/// Index of the point that ends the segment of `f`: at or above the point before it, below its own.
/// The hint is only tried, so that a wrong one cannot misplace the search.
std::optional<size_t> TrovaSegmento(const LimFacRecord& r, float f) {
    const int ultimo = static_cast<int>(r.Freq.size()) - 1;
    auto i = static_cast<size_t>(std::clamp<int>(r.LastSegment, 1, ultimo));
    if (!(r.Freq[i - 1] <= f && f < r.Freq[i]))
        for (i = 0; i < r.Freq.size() && f >= r.Freq[i];)
            ++i;
    // A frequency of 0 has ended the curve before; and the last frequency has no level.
    if (i == 0 || i >= r.Value.size() || !(r.Freq[i - 1] > 0))
        return std::nullopt;
    return i;
}

int16_t Arrotonda(double valore) {
    // The binary places of a and b may carry a steep segment beyond its own ends.
    constexpr double kMinimo = std::numeric_limits<int16_t>::min();
    constexpr double kMassimo = std::numeric_limits<int16_t>::max();
    return static_cast<int16_t>(std::clamp(std::nearbyint(valore), kMinimo, kMassimo));
}

/// Between point `i` - 1 and point `i`, with `asse` applied to the frequencies.
template <class Asse> int16_t Interpola(const LimFacRecord& r, size_t i, float f, Asse asse) {
    const double fine = asse(static_cast<double>(r.Freq[i]));
    const double inizio = asse(static_cast<double>(r.Freq[i - 1]));
    // a and b are single precision, everything else is double.
    const auto a = static_cast<float>((r.Value[i] - r.Value[i - 1]) / (fine - inizio));
    const auto b = static_cast<float>(r.Value[i] - static_cast<double>(a) * fine);
    // Tiny fractions of a hertz apart, only a damaged file's points are: as good as a step.
    if (!std::isfinite(a) || !std::isfinite(b))
        return r.Value[i - 1];
    return Arrotonda(static_cast<double>(a) * asse(static_cast<double>(f)) +
                     static_cast<double>(b));
}

double Lineare(double hz) {
    return hz;
}
double Logaritmico(double hz) {
    return std::log(hz);
}

} // namespace

int16_t ValoreLimite(const LimFacRecord& limite, float freqHz) {
    const auto i = TrovaSegmento(limite, freqHz);
    if (!i)
        return kNessunValore;
    if (limite.Freq[*i] == limite.Freq[*i - 1])
        return limite.Value[*i - 1];
    return limite.LinFreq == 1 ? Interpola(limite, *i, freqHz, Lineare)
                               : Interpola(limite, *i, freqHz, Logaritmico);
}

int16_t ValoreLimite(const TabelleLimFac& tabelle, float freqHz, int slot) {
    return ValoreLimite(tabelle.slot.at(static_cast<size_t>(slot)), freqHz);
}

int16_t ValoreFattore(LimFacRecord& fattore, float freqHz) {
    if (!(fattore.Freq[0] >= kPrimaFreqFattoreHz))
        return 0;
    const auto i = TrovaSegmento(fattore, freqHz);
    if (!i)
        return 0;
    fattore.LastSegment = static_cast<int16_t>(*i);
    return Interpola(fattore, *i, freqHz, Lineare);
}

int16_t ValoreFattore(TabelleLimFac& tabelle, float freqHz, int quale) {
    return ValoreFattore(tabelle.slot.at(static_cast<size_t>(kPrimoFattore + quale)), freqHz);
}

size_t NumeroPunti(const LimFacRecord& tabella) {
    const auto fine = std::find(tabella.Freq.begin(), tabella.Freq.end(), 0.0f);
    // The last frequency is no point: it has no level.
    return std::min(static_cast<size_t>(fine - tabella.Freq.begin()), tabella.Value.size());
}

int NumeroFreqTabella(const LimFacRecord& tabella) {
    int quante = 0;
    for (size_t i = 0; i < NumeroPunti(tabella); ++i)
        quante += i == 0 || tabella.Freq[i] != tabella.Freq[i - 1];
    return quante;
}

int NumeroFreqTabella(const TabelleLimFac& tabelle, int slot) {
    return NumeroFreqTabella(tabelle.slot.at(static_cast<size_t>(slot)));
}

std::array<std::optional<int16_t>, kNumFattori>
VisualizzaValoreFact(TabelleLimFac& tabelle, const SetupRecord& setup, float freqHz) {
    std::array<std::optional<int16_t>, kNumFattori> valori{};
    for (size_t t = 0; t < valori.size(); ++t)
        if (setup.FactorOn[t] == 1)
            valori[t] = ValoreFattore(tabelle, freqHz, static_cast<int>(t));
    return valori;
}

int SommaFattori(TabelleLimFac& tabelle, const SetupRecord& setup, float freqHz) {
    int somma = 0;
    for (size_t t = 0; t < kFattoriSommati; ++t)
        if (setup.FactorOn[t] == 1)
            somma += ValoreFattore(tabelle, freqHz, static_cast<int>(t));
    return somma;
}

std::optional<int> SommaValoreFact(TabelleLimFac& tabelle, const SetupRecord& setup, float freqHz) {
    if (setup.SommaFact == 0)
        return std::nullopt;
    int somma = 0;
    for (const auto& valore : VisualizzaValoreFact(tabelle, setup, freqHz))
        somma += valore.value_or(0);
    return somma;
}

} // namespace orvane
