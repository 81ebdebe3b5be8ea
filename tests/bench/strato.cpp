// The layer of a stored trace in a picture of 1600 x 900, beside the least that makes the same
// picture: a plain reduction to column extremes, each written straight into the image.
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <vector>

#include "graph/Grafico.h"
#include "graph/PiramideTraccia.h"
#include "platform/qt/SuperficieQt.h"

namespace orvane {
namespace {

constexpr double kStart = 0.15;
constexpr double kStop = 30;
constexpr int kLarghezza = 1600;
constexpr int kAltezza = 900;
constexpr double kPassoZoom = 0.8;

SweepTrace Genera(int64_t quanti) {
    SweepTrace traccia(static_cast<size_t>(quanti));
    const double passo = (kStop - kStart) / static_cast<double>(quanti - 1);
    for (int64_t k = 0; k < quanti; ++k) {
        auto& c = traccia[static_cast<size_t>(k)];
        c.freqMhz = kStart + static_cast<double>(k) * passo;
        const double onda = 2500 + 1200 * std::sin(8 * std::log(c.freqMhz));
        c.livello.fill(static_cast<int16_t>(onda + static_cast<double>(k * 7919 % 1500)));
        c.stacco = k == 0;
    }
    return traccia;
}

QImage Foglio() {
    QImage foglio(kLarghezza, kAltezza, QImage::Format_ARGB32_Premultiplied);
    foglio.fill(0);
    return foglio;
}
ScalaGrafico Scala(double start, double stop) {
    SetupRecord setup;
    setup.DinamicaId = 1;
    setup.RefLevel = -10;
    return SetScaleGraph(setup, start, stop, true, kLarghezza, 0);
}
constexpr RiquadroGriglia kTutto{.larghezza = kLarghezza, .altezza = kAltezza};

void Disegna(QImage& foglio, const ScalaGrafico& scala, const ColonneTraccia& colonne) {
    QPainter painter(&foglio);
    SuperficieQt superficie(painter, kLarghezza, kAltezza);
    benchmark::DoNotOptimize(
        DisegnaTraccia(superficie, scala, kTutto, colonne, {.colore = Rgb(255, 200, 0)}));
}

void StratoTraccia(benchmark::State& stato) {
    const PiramideTraccia piramide(Genera(stato.range(0)), DetectorKind::Peak);
    const ScalaGrafico scala = Scala(kStart, kStop);
    QImage foglio = Foglio();
    for (auto _ : stato)
        Disegna(foglio, scala, piramide.Colonne(kStart, kStop, kLarghezza, true));
    benchmark::DoNotOptimize(foglio.bits());
}
BENCHMARK(StratoTraccia)->Arg(10'000)->Arg(300'000)->Arg(1'000'000);

/// Column numbers are there before the clock starts.
void RiferimentoDiretto(benchmark::State& stato) {
    const SweepTrace traccia = Genera(stato.range(0));
    std::vector<int> colonna;
    std::vector<int16_t> livello;
    for (const auto& c : traccia) {
        livello.push_back(c.livello[0]);
        colonna.push_back(std::clamp(
            static_cast<int>(kLarghezza * std::log(c.freqMhz / kStart) / std::log(kStop / kStart)),
            0, kLarghezza - 1));
    }
    QImage foglio = Foglio();
    auto* pixel = reinterpret_cast<uint32_t*>(foglio.bits());
    std::vector<int16_t> minimo(kLarghezza), massimo(kLarghezza);
    for (auto _ : stato) {
        std::fill(minimo.begin(), minimo.end(), int16_t{32767});
        std::fill(massimo.begin(), massimo.end(), int16_t{-32768});
        for (size_t k = 0; k < traccia.size(); ++k) {
            const auto c = static_cast<size_t>(colonna[k]);
            minimo[c] = std::min(minimo[c], livello[k]);
            massimo[c] = std::max(massimo[c], livello[k]);
        }
        for (size_t x = 0; x < kLarghezza; ++x) {
            const int alto = std::clamp((9000 - massimo[x]) / 10, 0, kAltezza - 1);
            const int basso = std::clamp((9000 - minimo[x]) / 10, 0, kAltezza - 1);
            for (int y = alto; y <= basso; ++y)
                pixel[static_cast<size_t>(y) * kLarghezza + x] = 0xffffc800u;
        }
        benchmark::ClobberMemory();
    }
}
BENCHMARK(RiferimentoDiretto)->Arg(10'000)->Arg(300'000)->Arg(1'000'000);

/// One step of the wheel, in and out again around 1 MHz: the layer made anew.
void PassoZoom(benchmark::State& stato) {
    const PiramideTraccia piramide(Genera(stato.range(0)), DetectorKind::Peak);
    QImage foglio = Foglio();
    double parte = 1;
    for (auto _ : stato) {
        parte = parte < 1e-3 ? 1 : parte * kPassoZoom;
        const double start = std::pow(kStart, parte);
        const double stop = std::pow(kStop, parte);
        foglio.fill(0);
        Disegna(foglio, Scala(start, stop), piramide.Colonne(start, stop, kLarghezza, true));
    }
}
BENCHMARK(PassoZoom)->Arg(300'000);

/// Grid and trace as they were kept, and the marker's line over them.
void SpostaMarcatore(benchmark::State& stato) {
    const PiramideTraccia piramide(Genera(stato.range(0)), DetectorKind::Peak);
    const ScalaGrafico scala = Scala(kStart, kStop);
    QImage strato = Foglio();
    Disegna(strato, scala, piramide.Colonne(kStart, kStop, kLarghezza, true));
    const QImage griglia = Foglio();
    QImage quadro(kLarghezza, kAltezza, QImage::Format_RGB32);
    double x = 0;
    for (auto _ : stato) {
        x = x < kLarghezza - 1 ? x + 1 : 0;
        QPainter painter(&quadro);
        painter.drawImage(0, 0, griglia);
        painter.drawImage(0, 0, strato);
        SuperficieQt superficie(painter, kLarghezza, kAltezza);
        ImpostaCoordinate(superficie, scala, kTutto);
        superficie.Linea({x, scala.basso}, {x, scala.alto}, {.colore = Rgb(0, 255, 0)});
    }
}
BENCHMARK(SpostaMarcatore)->Arg(300'000);

void ApriPiramide(benchmark::State& stato) {
    const SweepTrace traccia = Genera(stato.range(0));
    for (auto _ : stato)
        benchmark::DoNotOptimize(PiramideTraccia(traccia, DetectorKind::Peak).Vuota());
}
BENCHMARK(ApriPiramide)->Arg(300'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace orvane
