#include "graph/Confronto.h"

#include <gtest/gtest.h>

#include <functional>

#include "records/ColoriGrafico.h"

namespace orvane {
namespace {

TEST(Confronto, OnlyWhatShapesATraceKeepsMeasuresApart) {
    struct Caso {
        const char* nome;
        std::function<void(ScanRecord&)> cambia;
        bool comparabili;
    };
    const Caso casi[] = {
        {"nothing", [](ScanRecord&) {}, true},
        {"start", [](ScanRecord& s) { s.Righe[0].Start = 0.2; }, false},
        {"preamplifier", [](ScanRecord& s) { s.Righe[0].PreAmp = 1; }, false},
        {"hold time", [](ScanRecord& s) { s.Righe[0].HoldTime = 5; }, false},
        {"another line", [](ScanRecord& s) { s.Righe[1].Start = 30; }, false},
        {"worst mode", [](ScanRecord& s) { s.WorstMode = 1; }, false},
        {"limit of a Smart line", [](ScanRecord& s) { s.Righe[2].Limit = "L"; }, false},
        {"margin of a Smart line", [](ScanRecord& s) { s.Righe[2].Margin = 6; }, false},
        {"limit", [](ScanRecord& s) { s.Righe[0].Limit = "L"; }, true},
        {"comment", [](ScanRecord& s) { s.ScanComment = "after the mod"; }, true},
        {"prompt", [](ScanRecord& s) { s.Righe[0].Prompt = "Turn it on"; }, true},
        {"unused line", [](ScanRecord& s) { s.Righe[5].PreAmp = 1; }, true},
        {"selected cell", [](ScanRecord& s) { s.GridRow = 3; }, true},
    };
    ScanRecord scan;
    scan.Righe[0].Start = 0.15;
    scan.Righe[0].Stop = 30;
    scan.Righe[2] = scan.Righe[0];
    scan.Righe[2].Smart = 1;
    for (const Caso& caso : casi) {
        ScanRecord altra = scan;
        caso.cambia(altra);
        EXPECT_EQ(Comparabili(scan, altra), caso.comparabili) << caso.nome;
    }
}

TEST(Confronto, TheDifferenceHasTheCommonFrequenciesAndNoLevelWhereOneHasNone) {
    const auto punto = [](double mhz, int16_t picco, int16_t medio) {
        return CampioneTraccia{.freqMhz = mhz,
                               .livello = {picco, kNessunLivello, kNessunLivello, medio}};
    };
    const SweepTrace a = {punto(1, 500, 100), punto(2, 600, kNessunLivello), punto(3, 700, 0),
                          punto(5, 19000, 0)};
    const SweepTrace b = {punto(0.5, 1, 1), punto(1 + 1e-10, 200, 150), punto(2, 900, 1),
                          punto(4, 1, 1),   punto(5, -19000, 0),        punto(6, 1, 1)};
    const SweepTrace d = DifferenzaTracce(a, b);
    ASSERT_EQ(d.size(), 3u);
    EXPECT_EQ(d[0].livello[0], 300);
    EXPECT_EQ(d[0].livello[3], -50);
    EXPECT_EQ(d[0].livello[1], kNessunLivello);
    EXPECT_EQ(d[1].livello[0], -300);
    EXPECT_EQ(d[1].livello[3], kNessunLivello);
    EXPECT_EQ(d[2].livello[0], 32767);
    EXPECT_TRUE(DifferenzaTracce({}, b).empty());
    EXPECT_TRUE(DifferenzaTracce(a, {}).empty());
}

TEST(Confronto, LayersBearTheColoursAndNamesOfTheirPart) {
    EnvRecord env;
    for (size_t i = 0; i < env.GraphColors.size(); ++i)
        env.GraphColors[i] = static_cast<int32_t>(i);
    MisuraAperta misura{.nome = "Lamp"};
    misura.detector[0] = misura.detector[3] = true;
    const auto strati = StratiConfronto(misura, misura, -1, env);
    ASSERT_EQ(strati.size(), 2u);
    EXPECT_EQ(strati[0].nome, "Compared");
    EXPECT_EQ(strati[0].colori[0], static_cast<int32_t>(colore::kDetCompMeas));
    EXPECT_EQ(strati[0].detector, misura.detector);
    EXPECT_EQ(strati[1].nome, "Reference");
    EXPECT_EQ(strati[1].colori[3], static_cast<int32_t>(colore::kDetRefMeas));
    const auto altra = StratoSovrapposto(misura, 7, 3, env);
    EXPECT_EQ(altra.nome, "Lamp");
    EXPECT_EQ(altra.colori[0], static_cast<int32_t>(colore::kTracceSeconde + 1));
    EXPECT_FALSE(altra.detector[0]);
    EXPECT_TRUE(altra.detector[3]);
}

} // namespace
} // namespace orvane
