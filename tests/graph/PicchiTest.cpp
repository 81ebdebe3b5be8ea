// Peaks: what is one, in which order, where the keys and the mouse find it, and its symbol.
#include <gtest/gtest.h>

#include <tuple>

#include "aiuto/SuperficieRegistra.h"
#include "graph/Picchi.h"

namespace orvane {
namespace {

constexpr int kVuoto = kNessunLivello / 100;

/// Levels in dB of the average at 1, 2, 3 MHz and on; `stacco` begins anew at that index.
SweepTrace Traccia(const std::vector<int>& db, size_t stacco = 0) {
    SweepTrace traccia;
    for (const int livello : db) {
        CampioneTraccia c{.freqMhz = static_cast<double>(traccia.size()) + 1,
                          .stacco = traccia.size() == stacco};
        c.livello.fill(kNessunLivello);
        c.livello[3] = static_cast<int16_t>(livello * 100);
        traccia.push_back(c);
    }
    return traccia;
}
std::vector<size_t> Indici(const std::vector<Picco>& picchi) {
    std::vector<size_t> indici;
    for (const Picco& p : picchi)
        indici.push_back(p.indice);
    return indici;
}

TEST(Picchi, RiseAboveWhatSurroundsThem) {
    struct Caso {
        const char* nome;
        std::vector<int> db;
        std::vector<size_t> attesi;
        size_t stacco = 0;
    };
    const std::vector<Caso> casi = {
        {"none", {}, {}},
        {"alone", {50}, {}},
        {"no level", {kVuoto, kVuoto, kVuoto}, {}},
        {"all equal", {50, 50, 50}, {}},
        {"at the left end", {60, 50, 40}, {0}},
        {"at the right end", {40, 50, 60}, {2}},
        {"just too low", {40, 45, 40}, {}},
        {"just enough", {40, 46, 40}, {1}},
        {"plateau", {40, 50, 50, 50, 40}, {2}},
        {"plateau of two, at an end", {50, 50, 40}, {0}},
        {"plateau on a slope", {40, 50, 50, 60, 30}, {3}},
        {"shoulder", {40, 60, 52, 57, 40}, {1}},
        {"shoulder with a valley", {40, 60, 50, 57, 40}, {1, 3}},
        {"the higher valley counts", {70, 40, 60, 55, 80}, {4, 0}},
        {"equals with a valley", {40, 60, 40, 60, 40}, {1, 3}},
        {"equals with a notch", {40, 60, 59, 60, 40}, {1}},
        {"highest first", {40, 60, 40, 70, 40, 60, 40}, {3, 1, 5}},
        {"a sample without level divides", {60, 50, kVuoto, 50, 70}, {4, 0}},
        {"a gap divides", {40, 50, 70, 60}, {2, 1}, 2},
        {"a deep valley stays with its piece", {40, 50, 49, 50}, {1}, 3},
    };
    for (const Caso& caso : casi)
        EXPECT_EQ(Indici(TrovaPicchi(Traccia(caso.db, caso.stacco), DetectorKind::Avg, 10)),
                  caso.attesi)
            << caso.nome;
    const auto traccia = Traccia({40, 60, 40, 70, 40, 60, 40});
    EXPECT_TRUE(TrovaPicchi(traccia, DetectorKind::Peak, 10).empty()) << "another detector";
    EXPECT_EQ(Indici(TrovaPicchi(traccia, DetectorKind::Avg, 2)), (std::vector<size_t>{3, 1}));
    EXPECT_TRUE(TrovaPicchi(traccia, DetectorKind::Avg, -1).empty());
    EXPECT_EQ(TrovaPicchi(Traccia({40, 41, 40, 40}), DetectorKind::Avg, 9, 0.0).size(), 1u);
    EXPECT_TRUE(TrovaPicchi(Traccia({40, 40}), DetectorKind::Avg, 9, 0.0).empty());
    // The edge of a span makes no peak of a slope.
    EXPECT_EQ(Indici(TrovaPicchi(traccia, DetectorKind::Avg, 9, 2.0, 3.5)),
              (std::vector<size_t>{1}));
    EXPECT_EQ(Indici(TrovaPicchi(traccia, DetectorKind::Avg, 9, 4.0, 6.0)),
              (std::vector<size_t>{3, 5}));
}

TEST(Picchi, KeysGoFromOneToTheNext) {
    using enum VersoPicco;
    const auto picchi =
        TrovaPicchi(Traccia({40, 60, 40, 70, 40, 65, 40}), DetectorKind::Avg, 9); // 3, 5, 1
    using Da = std::tuple<size_t, VersoPicco, std::optional<size_t>>;
    for (const auto& [da, verso, a] :
         {Da{1, PiuAlto, 3}, Da{3, PiuAlto, 3}, Da{3, Prossimo, 5}, Da{5, Prossimo, 1},
          Da{1, Prossimo, {}}, Da{5, Superiore, 3}, Da{3, Superiore, {}}, Da{0, Prossimo, 3},
          Da{4, Sinistra, 3}, Da{5, Sinistra, 3}, Da{1, Sinistra, {}}, Da{1, Destra, 3},
          Da{99, Destra, {}}})
        EXPECT_EQ(PiccoDaTastiera(picchi, da, verso), a) << da << " " << static_cast<int>(verso);
    EXPECT_FALSE(PiccoDaTastiera({}, 0, PiuAlto));
}

TEST(Picchi, SymbolsStandOnTheTraceAndAreFoundThere) {
    prova::SuperficieRegistra superficie(1100, 540);
    SetupRecord setup;
    setup.DinamicaId = 1;
    setup.RefLevel = -10;
    setup.UnitId = 2;
    const auto dove = DisponiGriglia(superficie, {});
    const auto scala = SetScaleGraph(setup, 2, 6, true, dove.larghezza, 0);
    PicchiMisura picchi;
    const auto livello = static_cast<int16_t>((scala.basso + scala.alto) / 2 + 3400);
    picchi[1] = {{1.9, livello, 0}, {3, livello, 1}, {6, livello, 2}, {6.1, livello, 3}};
    picchi[2] = {{3, static_cast<int16_t>(scala.alto + 3500), 1}};
    DisegnaPicchi(superficie, scala, dove, picchi, {}, 10);
    ASSERT_EQ(superficie.triangoli.size(), 2u) << "those beside and above the axis are left out";
    const auto& [punta, sinistra, destra] = superficie.triangoli[0];
    EXPECT_DOUBLE_EQ(punta.x, *PosizioneX(scala, 3));
    EXPECT_DOUBLE_EQ(punta.y, livello - 3400);
    EXPECT_NEAR(superficie.Pixel(destra).x - superficie.Pixel(sinistra).x, 10, 1e-9);
    EXPECT_NEAR(superficie.Pixel(punta).y - superficie.Pixel(destra).y, 10, 1e-9);
    EXPECT_EQ(superficie.ritagli, 0);
    const auto trova = [&](double pixelX) {
        return TrovaPicco(picchi, scala, dove, {punta.x + pixelX, punta.y}, 8);
    };
    ASSERT_TRUE(trova(-8));
    EXPECT_EQ(trova(-8)->detector, DetectorKind::QPeak);
    EXPECT_EQ(trova(-8)->quale, 1u);
    EXPECT_FALSE(trova(8.1));
}

} // namespace
} // namespace orvane
