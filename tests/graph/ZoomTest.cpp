// The zoom: spans pulled into the whole, the wheel, the way back, and the bar.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "graph/Zoom.h"

namespace orvane {
namespace {

struct ZoomTest : ::testing::Test {
    ZoomSweep zoom;
    ZoomTest() { zoom.Inizia({.start = 0.15, .stop = 30}); }
};

TEST_F(ZoomTest, ABoxCountsInEitherOrderWithinTheWholeAndWithAWidth) {
    EXPECT_FALSE(zoom.ZoomOn());
    EXPECT_TRUE(zoom.Ingrandisci(10, 1));
    EXPECT_EQ(zoom.Vista(), (CampoMhz{1, 10}));
    EXPECT_TRUE(zoom.Ingrandisci(0.01, 0.5));
    EXPECT_EQ(zoom.Vista(), (CampoMhz{0.15, 0.5}));
    for (const auto& [a, b] : {std::pair{2.0, 2.0}, std::pair{40.0, 50.0}, std::pair{0.15, 0.5},
                               std::pair{std::nan(""), 3.0}})
        EXPECT_FALSE(zoom.Ingrandisci(a, b)) << a;
    EXPECT_EQ(zoom.Vista(), (CampoMhz{0.15, 0.5}));
    zoom.Inizia({});
    EXPECT_FALSE(zoom.Ingrandisci(1, 2)) << "no trace, no axis";
    EXPECT_FALSE(zoom.Rotella(1, 1));
    EXPECT_EQ(zoom.StatoBarra().larghezza, kPassiBarraZoom);
}

TEST_F(ZoomTest, TheWayBackAndForwardIsCutByANewZoom) {
    zoom.Ingrandisci(1, 10);
    zoom.Ingrandisci(2, 5);
    EXPECT_TRUE(zoom.Tutto());
    EXPECT_FALSE(zoom.Tutto()) << "nothing changes";
    EXPECT_TRUE(zoom.Indietro() && zoom.Indietro());
    EXPECT_EQ(zoom.Vista(), (CampoMhz{1, 10}));
    EXPECT_TRUE(zoom.Avanti());
    EXPECT_EQ(zoom.Vista(), (CampoMhz{2, 5}));
    zoom.Ingrandisci(3, 4);
    EXPECT_FALSE(zoom.PuoAvanti() || zoom.Avanti());
    zoom.Inizia({.start = 1, .stop = 2});
    EXPECT_FALSE(zoom.PuoIndietro() || zoom.Indietro());
}

TEST_F(ZoomTest, TheWheelKeepsItsFrequencyInPlaceAndIsOneEntry) {
    const auto posto = [&](double mhz) {
        return std::log(mhz / zoom.Vista().start) /
               std::log(zoom.Vista().stop / zoom.Vista().start);
    };
    const double prima = posto(3);
    EXPECT_TRUE(zoom.Rotella(3, 1) && zoom.Rotella(3, 2));
    EXPECT_NEAR(posto(3), prima, 1e-9);
    EXPECT_NEAR(std::log(zoom.Vista().stop / zoom.Vista().start),
                std::log(200) * std::pow(kFattoreRotella, 3), 1e-9);
    EXPECT_TRUE(zoom.Indietro());
    EXPECT_FALSE(zoom.ZoomOn()) << "one turn, one entry";
    EXPECT_TRUE(zoom.Rotella(0.15, 1));
    EXPECT_DOUBLE_EQ(zoom.Vista().start, 0.15);
    EXPECT_TRUE(zoom.Rotella(3, -50));
    EXPECT_EQ(zoom.Vista(), zoom.Intero());
    EXPECT_FALSE(zoom.PuoIndietro()) << "back where the wheel began";
    EXPECT_FALSE(zoom.Rotella(3, -1));
    EXPECT_FALSE(zoom.Rotella(3, 1000)) << "no width left";
}

TEST_F(ZoomTest, TheBarMovesTheWindowAndKeepsItsWidthOnBothAxes) {
    for (const bool logaritmico : {true, false}) {
        zoom.Inizia({.start = 1, .stop = 100}, logaritmico);
        zoom.Ingrandisci(2, 4);
        const auto larghezza = [&] {
            const CampoMhz& v = zoom.Vista();
            return logaritmico ? v.stop / v.start : v.stop - v.start;
        };
        const auto barra = zoom.StatoBarra();
        EXPECT_FALSE(zoom.Scorri(barra.posto)) << "told, not moved";
        EXPECT_TRUE(zoom.Scorri(5000));
        EXPECT_NEAR(larghezza(), 2, 1e-9);
        EXPECT_EQ(zoom.StatoBarra().posto, 5000);
        EXPECT_EQ(zoom.StatoBarra().larghezza, barra.larghezza);
        EXPECT_TRUE(zoom.Scorri(std::numeric_limits<int>::max()));
        EXPECT_EQ(zoom.Vista().stop, 100);
        EXPECT_NEAR(larghezza(), 2, 1e-9);
        EXPECT_TRUE(zoom.Scorri(-1));
        EXPECT_EQ(zoom.Vista().start, 1);
        EXPECT_TRUE(zoom.Indietro());
        EXPECT_FALSE(zoom.PuoIndietro()) << "scrolling made no entries";
    }
}

} // namespace
} // namespace orvane
