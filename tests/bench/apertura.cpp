// From a stored measure to its finished picture of 1600 x 900, beside one read of its trace file.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <vector>

#include "../aiuto/CartellaProva.h"
#include "data/Panels.h"
#include "graph/Quadro.h"
#include "platform/AmbienteTerminale.h"
#include "platform/qt/SuperficieQt.h"

namespace orvane {
namespace {

constexpr int kLarghezza = 1600;
constexpr int kAltezza = 900;

/// A measure of one line with Peak and Avg, from 150 kHz on, without a limit.
struct Misura {
    prova::CartellaProva cartella;
    SorvegliaLink sorveglia;
    AmbienteTerminale ambiente{sorveglia, {}, {}};
    Scrivania scrivania{.ambiente = ambiente, .albero = AlberoDati(cartella.Percorso())};

    explicit Misura(size_t passi) {
        scrivania.setup = SetupDefault();
        ImpostaColoriDefault(scrivania.env);
        scrivania.albero.AssicuraCartella(CartellaMisura("M"));
        ScanRecord scan;
        ScanLine& riga = scan.Righe[0];
        riga.Start = 0.15;
        riga.Step = 1e-4;
        riga.Stop = riga.Start + static_cast<double>(passi) * riga.Step;
        riga.Detector = {1, 0, 0, 1};
        std::vector<SampleRecord> campioni(passi);
        for (size_t k = 0; k < passi; ++k)
            campioni[k].Livello.fill(
                static_cast<int16_t>(3000 + 1200 * std::sin(1e-4 * static_cast<double>(k)) +
                                     static_cast<double>(k * 7919 % 1500)));
        if (!SalvaHeaderSweep(scrivania, PercorsoKSH("M"), scan, scrivania.setup) ||
            !SalvaTraccia(scrivania, PercorsoRS("M", "M", 0), campioni))
            std::abort();
    }
};

/// Texts of a picture ask for one.
void AssicuraApplicazione() {
    static int quanti = 1;
    static char nome[] = "orvane-bench";
    static char* parole[] = {nome, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication applicazione(quanti, parole);
}

void ApriFinoAlQuadro(benchmark::State& stato) {
    AssicuraApplicazione();
    Misura m(static_cast<size_t>(stato.range(0)));
    QImage foglio(kLarghezza, kAltezza, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : stato) {
        const MisuraAperta misura = ApriMisura(m.scrivania, "M");
        if (misura.traccia->size() != static_cast<size_t>(stato.range(0)))
            stato.SkipWithError("samples are missing");
        const ContenutoQuadro quadro = ComponiQuadro(misura, m.scrivania.setup, m.scrivania.env);
        QPainter painter(&foglio);
        SuperficieQt superficie(painter, kLarghezza, kAltezza);
        DisegnaQuadro(superficie, quadro, m.scrivania.setup, m.scrivania.env, quadro.intero,
                      StileStampa(m.scrivania.env, 16));
        benchmark::DoNotOptimize(foglio.bits());
    }
}
BENCHMARK(ApriFinoAlQuadro)->Arg(300'000)->Unit(benchmark::kMillisecond);

void LeggiIlFile(benchmark::State& stato) {
    const Misura m(static_cast<size_t>(stato.range(0)));
    const auto percorso = m.cartella.Percorso() / "Sweep" / "M" / "M.RS0";
    for (auto _ : stato) {
        std::vector<uint8_t> byte(std::filesystem::file_size(percorso));
        std::FILE* file = std::fopen(percorso.c_str(), "rb");
        benchmark::DoNotOptimize(std::fread(byte.data(), 1, byte.size(), file));
        std::fclose(file);
    }
}
BENCHMARK(LeggiIlFile)->Arg(300'000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace orvane
