// A thousand pages of text as PDF, beside the same operators put together by `snprintf` and written
// with `fwrite`.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "report/clsPDFCreator.h"

namespace orvane {
namespace {

constexpr int kPagine = 1000;
constexpr int kRighe = 60;
constexpr double kPuntiPerCm = 72.0 / 2.54;

struct AmbienteFermo : Ambiente {
    double Adesso() const override { return 0; }
    OraCalendario Calendario() const override { return {}; }
    void ElaboraEventi(double, Veglia) override {}
    Risposta Mostra(const Riquadro&) override { return Risposta::Ok; }
    const std::string& RigaComando() const override { return riga; }
    void SegnalaDifetto(std::string_view) override {}
    std::string riga;
};

std::string Riga() {
    std::string riga;
    for (int i = 0; i < 90; ++i)
        riga += static_cast<char>(i % 12 == 11 ? ' ' : '0' + i * 7 % 10);
    return riga;
}

std::filesystem::path FileProva() {
    return std::filesystem::temp_directory_path() / "orvane-bench.pdf";
}

double Altezza(int riga) {
    return 29.0 - riga / 2.5;
}

void PaginePdf(benchmark::State& stato) {
    const AmbienteFermo ambiente;
    const std::string riga = Riga();
    std::filesystem::path file = FileProva();
    for (auto _ : stato) {
        clsPDFCreator pdf(ambiente);
        pdf.ScaleMode(3);
        bool scritto = pdf.InitPDFFile(file);
        pdf.LoadFont("Fnt3", "Courier New", 2);
        for (int pagina = 0; pagina < kPagine; ++pagina) {
            pdf.BeginPage();
            for (int n = 0; n < kRighe; ++n)
                pdf.DrawText(1.0f, static_cast<float>(Altezza(n)), riga, "Fnt3", 10);
            pdf.EndPage();
        }
        scritto &= pdf.ClosePDFFile();
        if (!scritto)
            stato.SkipWithError("not written");
    }
    std::filesystem::remove(file);
}
BENCHMARK(PaginePdf)->Unit(benchmark::kMillisecond);

void RiferimentoFwrite(benchmark::State& stato) {
    const std::string riga = Riga();
    const std::filesystem::path nome = FileProva();
    for (auto _ : stato) {
        std::FILE* file = std::fopen(nome.string().c_str(), "wb");
        bool scritto = file != nullptr;
        char testo[256];
        for (int n = 0; file && n < kPagine * kRighe; ++n) {
            const int lungo = std::snprintf(
                testo, sizeof testo, "BT\r\n/Fnt3 %d Tf\r\n%.3f %.3f Td\r\n(%s) Tj\r\nET\r\n", 10,
                1.0 * kPuntiPerCm, Altezza(n % kRighe) * kPuntiPerCm, riga.c_str());
            scritto &= std::fwrite(testo, 1, static_cast<size_t>(lungo), file) > 0;
        }
        if (!scritto || std::fclose(file) != 0)
            stato.SkipWithError("not written");
    }
    std::filesystem::remove(nome);
}
BENCHMARK(RiferimentoFwrite)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace orvane
