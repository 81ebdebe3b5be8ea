#include "data/LimitiSmart.h"

#include <algorithm>
#include <set>
#include <span>
#include <string>

#include "base/Numeri.h"
#include "data/Interpolazione.h"

namespace orvane {
namespace {

constexpr int kMinFrequenze = 2;

std::span<const float> Frequenze(const LimFacRecord& limite) {
    return std::span(limite.Freq).first(NumeroPunti(limite));
}

/// Levels of a limit when its frequency is reached from below and from above; they differ at a
/// step.
struct Lati {
    int16_t sotto = 0;
    int16_t sopra = 0;
};

Lati LatiDelLimite(const LimFacRecord& limite, float freqHz) {
    const auto freq = Frequenze(limite);
    const auto [primo, oltre] = std::equal_range(freq.begin(), freq.end(), freqHz);
    if (primo == oltre) {
        const int16_t livello = ValoreLimite(limite, freqHz);
        return {livello, livello};
    }
    const auto indice = static_cast<size_t>(primo - freq.begin());
    const auto ultimo = static_cast<size_t>(oltre - freq.begin()) - 1;
    return {limite.Value[indice], limite.Value[ultimo]};
}

EsitoLimiteSD Giudica(size_t punti, int frequenze) {
    if (punti > kMaxPuntiLimite)
        return EsitoLimiteSD::TroppiPunti;
    return frequenze < kMinFrequenze ? EsitoLimiteSD::PocheFrequenze : EsitoLimiteSD::Buono;
}

EsitoLimiteSD GiudicaCoppia(const LimFacRecord& limite, const LimFacRecord& limiteDSD) {
    const auto punti = CreaElencoFreqLimDSD(limite, limiteDSD);
    if (!punti)
        return EsitoLimiteSD::NonCombinabile;
    // A range that both cover has two ends.
    return Giudica(punti->size(), kMinFrequenze);
}

} // namespace

std::optional<std::vector<PuntoDSD>> CreaElencoFreqLimDSD(const LimFacRecord& limite,
                                                          const LimFacRecord& limiteDSD) {
    const auto uno = Frequenze(limite);
    const auto due = Frequenze(limiteDSD);
    if (uno.empty() || due.empty())
        return std::nullopt;
    const float start = std::max(uno.front(), due.front());
    const float stop = std::min(uno.back(), due.back());
    if (!(start < stop))
        return std::nullopt;
    std::set<float> frequenze(uno.begin(), uno.end());
    frequenze.insert(due.begin(), due.end());
    std::vector<PuntoDSD> punti;
    for (const float f : frequenze) {
        if (f < start || f > stop)
            continue;
        const Lati a = LatiDelLimite(limite, f);
        const Lati b = LatiDelLimite(limiteDSD, f);
        const PuntoDSD sotto{f, a.sotto, b.sotto};
        const PuntoDSD sopra{f, a.sopra, b.sopra};
        if (f > start)
            punti.push_back(sotto);
        if (f == start || (f < stop && sopra != sotto))
            punti.push_back(sopra);
    }
    return punti;
}

EsitoLimiteSD GiudicaLimiteSD(const LimFacRecord& limite, const LimFacRecord* limiteDSD) {
    return limiteDSD ? GiudicaCoppia(limite, *limiteDSD)
                     : Giudica(NumeroPunti(limite), NumeroFreqTabella(limite));
}

std::string TestoLimiteSD(EsitoLimiteSD esito) {
    switch (esito) {
    case EsitoLimiteSD::NonCombinabile:
        return "Cannot combine the limit";
    case EsitoLimiteSD::TroppiPunti:
        return "Too many points in the limit\rMax " +
               TestoIntero(static_cast<long long>(kMaxPuntiLimite)) + " points";
    case EsitoLimiteSD::PocheFrequenze:
        return "Too few limit frequencies\rMin 2 different frequencies";
    case EsitoLimiteSD::Buono:
        break;
    }
    return {};
}

EsitoLimiteSD ControlloNMaxPuntiLimSD(Ambiente& ambiente, const LimFacRecord& limite,
                                      const LimFacRecord* limiteDSD) {
    const EsitoLimiteSD esito = GiudicaLimiteSD(limite, limiteDSD);
    if (esito != EsitoLimiteSD::Buono)
        ambiente.Mostra({.testo = TestoLimiteSD(esito), .icona = Icona::Esclamazione});
    return esito;
}

} // namespace orvane
