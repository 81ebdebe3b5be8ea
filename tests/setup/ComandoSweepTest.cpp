// The sweep command, character for character.
#include "setup/ComandoSweep.h"

#include <gtest/gtest.h>

#include <limits>

#include "setup/NumeroScalato.h"
#include "setup/TabellaScan.h"

namespace orvane {
namespace {

ReceiverModel Estesa(int16_t unita) {
    ReceiverModel modello;
    modello.EstensioneAttiva = true;
    modello.UnitaEstensione = unita;
    return modello;
}

ScanLine BandaB() {
    ScanLine riga;
    ImpostaBanda(riga, TabellaBande()[1], 0);
    riga.Detector = {1, 1};
    riga.HoldTime = 1000;
    return riga;
}

TEST(ComandoSweepTest, BandBSmart) {
    ScanLine riga = BandaB();
    riga.Smart = 1;
    riga.Detector = {0, 1};
    riga.HoldTimeSD = 100;
    EXPECT_EQ(ComponiComandoSweep({}, riga), "#SSFD 150000;30000000;5000;SQ;1000;6;10;OFF;ON;100*");
    riga.Smart = 0;
    EXPECT_EQ(ComponiComandoSweep({}, riga), "#SSFD 150000;30000000;5000;Q;1000;6;10;OFF;ON;0*")
        << "the peak scan's hold belongs to Smart alone";
}

TEST(ComandoSweepTest, FieldsThatFollowFromModelAndLine) {
    ScanLine riga = BandaB();
    riga.PreAmp = 1;
    riga.MinAtt = 5;
    riga.HoldTime = 1.9f;
    EXPECT_EQ(ComponiComandoSweep(Estesa(2), riga),
              "#SSFD 150000;30000000;5000;PQ;1.9;12;50;ON;OFF;0*")
        << "the 5590 has no preselector";
    EXPECT_EQ(ComponiComandoSweep(Estesa(1), riga),
              "#SSFD 150000;30000000;5000;PQ;1.9;12;50;ON;ON;0*");
    riga.StepMode = 1;
    EXPECT_EQ(ComponiComandoSweep({}, riga), "#SSFD 150000;30000000;0;PQ;1.9;6;50;ON;ON;0*");
}

TEST(ComandoSweepTest, TheStepIsForcedOnAFirmwareThatWouldChooseItself) {
    struct {
        bool is5520F;
        float firmware;
        int16_t autoStep;
        bool imposto;
    } const casi[] = {{true, 1.44f, 0, true},
                      {true, 1.43f, 0, false},
                      {true, 2.0f, 1, false},
                      {false, 2.0f, 0, false}};
    for (const auto& caso : casi) {
        ReceiverModel modello;
        modello.Is5520F = caso.is5520F;
        modello.FwVersione = caso.firmware;
        ScanLine riga = BandaB();
        riga.AutoStep = caso.autoStep;
        EXPECT_EQ(ComponiComandoSweep(modello, riga).starts_with("#SSFDS 150000;"), caso.imposto);
    }
}

TEST(ComandoSweepTest, HertzCarryNoBinaryTail) {
    struct {
        double mhz;
        const char* hz;
    } const casi[] = {{0.15, "150000"},
                      {0.0001, "100"},
                      {2.5e-05, "25"},
                      {2.5e-06, "2.5"},
                      {0.009, "9000"},
                      {0.00022, "220"},
                      {0.00003, "30"},
                      {1.605, "1605000"},
                      {30.000001, "30000001"},
                      {17999.999999, "17999999999"},
                      {18000, "18000000000"},
                      {433.9200001, "433920000.1"},
                      {0, "0"},
                      {std::numeric_limits<double>::infinity(), "0"},
                      {std::numeric_limits<double>::quiet_NaN(), "0"},
                      {1e305, "0"}};
    for (const auto& caso : casi)
        EXPECT_EQ(TestoScalato(caso.mhz, 1e6), caso.hz);
    for (int khz = 1; khz <= 100000; ++khz) // every kHz of the conducted range and beyond
        ASSERT_EQ(TestoScalato(khz / 1e3, 1e6), std::to_string(khz) + "000");
}

TEST(ComandoSweepTest, TheNineKilohertzFilterHasTwoCodes) {
    struct {
        bool estensione, k3x;
        int16_t oem;
        double stop;
        int codice;
    } const casi[] = {{false, false, 0, 30, 6},        {true, false, 0, 30, 12},
                      {false, false, 0, 1000, 6},      {false, true, 0, 30, 6},
                      {false, true, 0, 30.000001, 12}, {true, true, 0, 30, 6},
                      {false, false, 2, 31, 12},       {false, false, 3, 30, 6}};
    for (const auto& caso : casi) {
        ReceiverModel modello;
        modello.EstensioneAttiva = caso.estensione;
        modello.HaK3XK6X = caso.k3x;
        modello.ModelloOEM = caso.oem;
        EXPECT_EQ(DeterminaIDRbwSweep(modello, 2, caso.stop), caso.codice) << caso.stop;
    }
    const std::array<int, 16> codici = {9, 10, 6, 7, 0, 1, 2, 3, 4, 5, 8, 0, 11, 22, 23, 24};
    for (int id = 0; id < 16; ++id)
        EXPECT_EQ(DeterminaIDRbwSweep({}, id, 1), codici[static_cast<size_t>(id)]) << id;
    EXPECT_EQ(DeterminaIDRbwSweep({}, -1, 1), 0);
    EXPECT_EQ(DeterminaIDRbwSweep({}, 16, 1), 0);
}

} // namespace
} // namespace orvane
