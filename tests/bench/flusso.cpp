// The way of a sweep's bytes, from the blocks of the line to the trace file, beside plain loops
// that do the same work with no state at all.
#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "../aiuto/CartellaProva.h"
#include "data/Misure.h"
#include "platform/AmbienteTerminale.h"
#include "sweep/FlussoSweep.h"

namespace orvane {
namespace {

constexpr size_t kBlocco = 4096; // what a pseudo terminal hands over at once
constexpr size_t kByteFlusso = 4 << 20;

std::array<int16_t, kNumDetector> PrimiDetector(int64_t quanti) {
    std::array<int16_t, kNumDetector> detector{};
    std::fill_n(detector.begin(), quanti, int16_t{1});
    return detector;
}

/// Levels that go through the whole range, so that both branches of the decoder are taken.
std::vector<uint8_t> Campioni() {
    std::vector<uint8_t> byte(kByteFlusso);
    for (size_t i = 0; i + 1 < byte.size(); i += 2) {
        const auto v = static_cast<uint16_t>(i * 2654435761u >> 8);
        byte[i] = static_cast<uint8_t>(v);
        byte[i + 1] = static_cast<uint8_t>(v >> 8);
    }
    return byte;
}

void Metti(Accumulo& dove, const uint8_t* da, size_t quanti) {
    std::memcpy(dove.Spazio(quanti).data(), da, quanti);
    dove.Aggiunti(quanti);
}

/// Says what a block held, so that no decoder can be left out.
int64_t Somma(std::span<const SampleRecord> passi) {
    return passi.front().Livello[0] + passi.back().Livello[0];
}

void Lettore(benchmark::State& stato) {
    const std::vector<uint8_t> flusso = Campioni();
    constexpr std::string_view kRiscontro = "SFD=OK\r\n";
    for (auto _ : stato) {
        LettoreFlusso lettore(PrimiDetector(stato.range(0)), false);
        Accumulo dati;
        int64_t somma = 0;
        const auto passi = [&](std::span<const SampleRecord> blocco) { somma += Somma(blocco); };
        Metti(dati, reinterpret_cast<const uint8_t*>(kRiscontro.data()), kRiscontro.size());
        for (size_t i = 0; i < flusso.size(); i += kBlocco) {
            Metti(dati, flusso.data() + i, kBlocco);
            lettore.Avanza(dati, passi);
        }
        benchmark::DoNotOptimize(somma);
        if (lettore.StatoAttuale() != LettoreFlusso::Stato::Campioni)
            stato.SkipWithError("the stream was not read");
    }
    stato.SetBytesProcessed(static_cast<int64_t>(stato.iterations() * kByteFlusso));
}
BENCHMARK(Lettore)->Arg(1)->Arg(2)->Arg(6);

/// The same bytes through a loop that knows neither acknowledgement nor end mark nor part-steps.
void CicloNudo(benchmark::State& stato) {
    const std::vector<uint8_t> flusso = Campioni();
    const auto quanti = static_cast<size_t>(stato.range(0));
    std::vector<uint8_t> coda(kBlocco);
    std::vector<SampleRecord> blocco;
    for (auto _ : stato) {
        int64_t somma = 0;
        for (size_t i = 0; i < flusso.size(); i += kBlocco) {
            std::memcpy(coda.data(), flusso.data() + i, kBlocco);
            blocco.assign(kBlocco / (2 * quanti), SampleRecord{});
            const uint8_t* da = coda.data();
            for (SampleRecord& passo : blocco)
                for (size_t d = 0; d < quanti; ++d, da += 2)
                    passo.Livello[d] = DecodificaLivello(da[0], da[1]);
            somma += Somma(blocco);
        }
        benchmark::DoNotOptimize(somma);
    }
    stato.SetBytesProcessed(static_cast<int64_t>(stato.iterations() * kByteFlusso));
}
BENCHMARK(CicloNudo)->Arg(1)->Arg(2)->Arg(6);

constexpr size_t kPassiScritti = 1 << 18;

void Scrittore(benchmark::State& stato) {
    const prova::CartellaProva cartella;
    SorvegliaLink sorveglia;
    AmbienteTerminale ambiente(sorveglia, {}, {});
    const Scrivania scrivania{.ambiente = ambiente, .albero = AlberoDati(cartella.Percorso())};
    const std::vector<SampleRecord> passi(static_cast<size_t>(stato.range(0)));
    for (auto _ : stato) {
        std::filesystem::remove(cartella.Percorso() / "M.RS0");
        ScrittoreTraccia traccia;
        bool scritti = traccia.Apri(scrivania, "M.RS0");
        for (size_t i = 0; i < kPassiScritti; i += passi.size())
            scritti = scritti && traccia.Scrivi(passi);
        if (!scritti)
            stato.SkipWithError("the file could not be written");
    }
    stato.SetBytesProcessed(static_cast<int64_t>(stato.iterations() * kPassiScritti * 12));
}
BENCHMARK(Scrittore)->Arg(341)->Arg(2048)->Arg(32768);

/// The same bytes, in blocks of the same size, by one unbuffered call each.
void FwriteNudo(benchmark::State& stato) {
    const prova::CartellaProva cartella;
    const std::string percorso = (cartella.Percorso() / "M.RS0").string();
    const auto passi = static_cast<size_t>(stato.range(0));
    const std::vector<uint8_t> byte(passi * 12);
    for (auto _ : stato) {
        std::filesystem::remove(percorso);
        std::FILE* file = std::fopen(percorso.c_str(), "ab");
        bool scritti = file && std::setvbuf(file, nullptr, _IONBF, 0) == 0;
        for (size_t i = 0; i < kPassiScritti; i += passi)
            scritti = scritti && std::fwrite(byte.data(), 1, byte.size(), file) == byte.size();
        if (!scritti || std::fclose(file) != 0)
            stato.SkipWithError("the file could not be written");
    }
    stato.SetBytesProcessed(static_cast<int64_t>(stato.iterations() * kPassiScritti * 12));
}
BENCHMARK(FwriteNudo)->Arg(341)->Arg(2048)->Arg(32768);

} // namespace
} // namespace orvane
