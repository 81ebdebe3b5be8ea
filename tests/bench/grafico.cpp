// Reduction of a trace to columns, beside a plain loop over precomputed column numbers: the least
// that any reduction must do.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "graph/Colonne.h"

namespace orvane {
namespace {

constexpr double kStart = 0.15;
constexpr double kStop = 30;
constexpr int kColonne = 1600;

struct Traccia {
    std::vector<double> freqMhz;
    std::vector<int16_t> livello;
    std::vector<int> colonna;
};

Traccia Genera(int64_t quanti) {
    Traccia t;
    const double passo = (kStop - kStart) / static_cast<double>(quanti - 1);
    for (int64_t k = 0; k < quanti; ++k) {
        const double f = kStart + static_cast<double>(k) * passo;
        const double posto = kColonne * std::log(f / kStart) / std::log(kStop / kStart);
        t.freqMhz.push_back(f);
        t.livello.push_back(static_cast<int16_t>(2000 + k * 7919 % 1500));
        t.colonna.push_back(std::clamp(static_cast<int>(posto), 0, kColonne - 1));
    }
    return t;
}

void RiduzioneColonne(benchmark::State& stato) {
    const Traccia t = Genera(stato.range(0));
    ColonneTraccia colonne(kStart, kStop, kColonne, true);
    for (auto _ : stato) {
        colonne.Azzera();
        for (size_t k = 0; k < t.freqMhz.size(); ++k)
            colonne.Aggiungi(t.freqMhz[k], t.livello[k]);
        benchmark::DoNotOptimize(colonne.Colonna(kColonne / 2).massimo);
    }
    stato.SetItemsProcessed(stato.iterations() * stato.range(0));
}
BENCHMARK(RiduzioneColonne)->Arg(300'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

void RiferimentoSemplice(benchmark::State& stato) {
    const Traccia t = Genera(stato.range(0));
    std::vector<int16_t> minimo(kColonne), massimo(kColonne);
    for (auto _ : stato) {
        std::fill(minimo.begin(), minimo.end(), int16_t{32767});
        std::fill(massimo.begin(), massimo.end(), int16_t{-32768});
        for (size_t k = 0; k < t.livello.size(); ++k) {
            const auto c = static_cast<size_t>(t.colonna[k]);
            minimo[c] = std::min(minimo[c], t.livello[k]);
            massimo[c] = std::max(massimo[c], t.livello[k]);
        }
        benchmark::DoNotOptimize(minimo.data());
        benchmark::DoNotOptimize(massimo.data());
    }
    stato.SetItemsProcessed(stato.iterations() * stato.range(0));
}
BENCHMARK(RiferimentoSemplice)->Arg(300'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace orvane
