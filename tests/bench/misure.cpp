// Reading a measure back, beside one read of each file and a plain merge of the same samples into
// the same trace.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include "../aiuto/CartellaProva.h"
#include "data/Misure.h"
#include "platform/AmbienteTerminale.h"

namespace orvane {
namespace {

enum Forma { kUnaRiga, kAdiacenti, kSovrapposte, kDieci };

/// A measure of `quanti` samples in all, on disk once for all turns.
struct Misura {
    prova::CartellaProva cartella;
    SorvegliaLink sorveglia;
    AmbienteTerminale ambiente{sorveglia, {}, {}};
    Scrivania scrivania{.ambiente = ambiente, .albero = AlberoDati(cartella.Percorso())};
    ScanTable tabella{};
    size_t righe;

    Misura(Forma forma, size_t quanti)
        : righe(forma == kUnaRiga ? 1
                : forma == kDieci ? kMaxScanLine
                                  : 2) {
        scrivania.albero.AssicuraCartella(CartellaMisura("M"));
        const size_t passi = quanti / righe;
        for (size_t n = 0; n < righe; ++n) {
            tabella[n].Step = 1e-4;
            const auto posto = static_cast<double>(n);
            tabella[n].Start = forma == kAdiacenti
                                   ? 1 + posto * static_cast<double>(passi) * 1e-4
                                   : 1 + posto * 0.5e-4 / static_cast<double>(righe);
            std::vector<SampleRecord> campioni(passi);
            for (size_t k = 0; k < passi; ++k)
                campioni[k].Livello[0] = static_cast<int16_t>((k * 7919 + n * 101) % 5000);
            ScrittoreTraccia file;
            file.Apri(scrivania, PercorsoRS("M", "M", static_cast<int>(n)));
            if (!file.Scrivi(campioni))
                std::abort();
        }
    }
};

void CreaTraccia(benchmark::State& stato) {
    const Misura m(static_cast<Forma>(stato.range(0)), static_cast<size_t>(stato.range(1)));
    for (auto _ : stato) {
        SweepTrace traccia = CreaTracciaSweep(m.scrivania, "M", "M", m.tabella, DetectorKind::Peak);
        benchmark::DoNotOptimize(traccia.data());
        if (traccia.size() + m.righe < static_cast<size_t>(stato.range(1)))
            stato.SkipWithError("samples are missing");
    }
    stato.SetItemsProcessed(stato.iterations() * stato.range(1));
}

std::vector<uint8_t> LeggiFile(const std::filesystem::path& percorso) {
    std::vector<uint8_t> byte(std::filesystem::file_size(percorso));
    std::FILE* file = std::fopen(percorso.c_str(), "rb");
    byte.resize(std::fread(byte.data(), 1, byte.size(), file));
    std::fclose(file);
    return byte;
}

/// The least that any reader must do: a read of each file, and for each sample the lowest of the
/// heads, its six levels, and whether its frequency is there already.
void LetturaEFusione(benchmark::State& stato) {
    const Misura m(static_cast<Forma>(stato.range(0)), static_cast<size_t>(stato.range(1)));
    for (auto _ : stato) {
        std::vector<std::vector<uint8_t>> file(m.righe);
        size_t quanti = 0;
        for (size_t n = 0; n < m.righe; ++n) {
            file[n] =
                LeggiFile(m.cartella.Percorso() / "Sweep" / "M" / ("M.RS" + std::to_string(n)));
            quanti += file[n].size() / kByteCampione;
        }
        std::vector<size_t> k(m.righe);
        std::vector<double> testa(m.righe);
        for (size_t n = 0; n < m.righe; ++n)
            testa[n] = m.tabella[n].Start;
        SweepTrace traccia;
        traccia.reserve(quanti);
        for (size_t i = 0; i < quanti; ++i) {
            size_t n = 0;
            for (size_t altra = 1; altra < m.righe; ++altra)
                n = testa[altra] < testa[n] ? altra : n;
            CampioneTraccia c{.freqMhz = testa[n], .riga = static_cast<int16_t>(n)};
            std::memcpy(c.livello.data(), file[n].data() + k[n] * kByteCampione, kByteCampione);
            if (!traccia.empty() && std::abs(traccia.back().freqMhz - c.freqMhz) < 1e-9) {
                if (c.livello[0] > traccia.back().livello[0])
                    traccia.back() = c;
            } else {
                traccia.push_back(c);
            }
            ++k[n];
            testa[n] = k[n] * kByteCampione < file[n].size()
                           ? m.tabella[n].Start + static_cast<double>(k[n]) * m.tabella[n].Step
                           : HUGE_VAL;
        }
        benchmark::DoNotOptimize(traccia.data());
    }
    stato.SetItemsProcessed(stato.iterations() * stato.range(1));
}

void Casi(benchmark::internal::Benchmark* b) {
    b->ArgNames({"form", "samples"})->Unit(benchmark::kMillisecond);
    for (const int64_t quanti : {300'000, 3'000'000})
        for (const int64_t forma : {kUnaRiga, kAdiacenti, kSovrapposte, kDieci})
            b->Args({forma, quanti});
}
BENCHMARK(CreaTraccia)->Apply(Casi);
BENCHMARK(LetturaEFusione)->Apply(Casi);

} // namespace
} // namespace orvane
