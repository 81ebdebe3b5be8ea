// What the cells of the scan grid show, and what is written back.
#include <gtest/gtest.h>

#include "setup/TabellaScan.h"

namespace orvane {
namespace {

using enum ColonnaScan;

ScanLine BandaB() {
    ScanLine riga;
    ImpostaBanda(riga, TabellaBande()[1], 1);
    return riga;
}

TEST(CelleTest, ABandShowsItsValues) {
    const ScanLine riga = BandaB();
    EXPECT_EQ(TestoCella(riga, Start, 1), "0.15");
    EXPECT_EQ(TestoCella(riga, Stop, 1), "30");
    EXPECT_EQ(TestoCella(riga, Step, 1), "AUTO");
    EXPECT_EQ(TestoCella(riga, Detector, 1), "P ");
    EXPECT_EQ(TestoCella(riga, HoldTime, 1), "1.9");
    EXPECT_EQ(TestoCella(riga, Rbw, 1), "9 kHz");
    EXPECT_EQ(TestoCella(riga, MinAtt, 1), "10 dB");
    EXPECT_EQ(TestoCella(riga, PreAmp, 1), "OFF");
    EXPECT_EQ(TestoCella(riga, PreSel, 1), "ON");
    EXPECT_EQ(TestoCella(riga, Prompt, 1), "...");
    EXPECT_EQ(TestoCella(riga, Ancillary, 1), "L1, L2");
}

TEST(CelleTest, TheStepTakesTheUnitThatFits) {
    struct {
        double mhz;
        const char* testo;
    } const casi[] = {{0.25, "250 kHz"},   {1, "1 MHz"},        {2.5, "2.5 MHz"},
                      {0.1, "100 kHz"},    {0.001, "1 kHz"},    {0.00022, "220 Hz"},
                      {2.5e-06, "2.5 Hz"}, {0.0025, "2.5 kHz"}, {0, "0 Hz"}};
    for (const auto& caso : casi) {
        ScanLine riga{.AutoStep = 0, .Step = caso.mhz};
        EXPECT_EQ(TestoCella(riga, Step, 0), caso.testo);
    }
    ScanLine riga{.StepMode = 1, .AutoStep = 1};
    EXPECT_EQ(TestoCella(riga, Step, 0), "...");
    riga.FreqTable = "Harmonics";
    EXPECT_EQ(TestoCella(riga, Step, 0), "Harmonics");
    riga.FreqTable = "123456789\xC3\xA9nd more";
    EXPECT_EQ(TestoCella(riga, Step, 0), "123456789..") << "no letter is cut in two";
}

TEST(CelleTest, DetectorsHoldPromptAndAncillary) {
    ScanLine riga{.HoldTime = 0,
                  .LineSwitch = {1, 0, 1, 0},
                  .Smart = 1,
                  .Detector = {1, 1, 1, 1, 1, 1},
                  .PromptOn = 1,
                  .Prompt = "Turn the EUT\r\nthen wait",
                  .Antenna = {0, 1}};
    EXPECT_EQ(TestoCella(riga, Detector, 0), "S P Q R A N C ");
    EXPECT_EQ(TestoCella(riga, HoldTime, 0), "Lowest");
    EXPECT_EQ(TestoCella(riga, Prompt, 0), "Turn the EUT");
    const std::array<const char*, 7> ancillary = {"...",  "N , L2",       "N , L2", "H ",
                                                  "W, Y", "Table - Mast", "N , L2"};
    for (int kind = 0; kind < 7; ++kind)
        EXPECT_EQ(TestoCella(riga, Ancillary, kind), ancillary[static_cast<size_t>(kind)]) << kind;
    riga.LineSwitch = {};
    EXPECT_EQ(TestoCella(riga, Ancillary, 2), "...");
}

TEST(CelleTest, AWildIndexShowsNothing) {
    ScanLine riga{.MinAtt = 99, .RbwId = -1};
    EXPECT_EQ(TestoCella(riga, Rbw, 0), "");
    EXPECT_EQ(TestoCella(riga, MinAtt, 0), "");
    EXPECT_EQ(TestoCella(riga, Ancillary, 77), "...");
}

TEST(CelleTest, FrequenciesAreReadAndTheAutomaticStepFollows) {
    ScanLine riga = BandaB();
    ScriviCellaScanLine(riga, Start, " 0,15 ", -1);
    EXPECT_EQ(riga.Start, 0.15);
    ScriviCellaScanLine(riga, Stop, "0.155 MHz", -1);
    EXPECT_EQ(riga.Stop, 0.155);
    ScriviCellaScanLine(riga, Start, "nonsense", -1);
    EXPECT_EQ(riga.Start, 0) << "the line is then unused";
    ScriviCellaScanLine(riga, Start, "-3", -1);
    EXPECT_EQ(riga.Start, 0);
    ScriviCellaScanLine(riga, Start, "0.01", -1);
    ScriviCellaScanLine(riga, Stop, "0.15", -1);
    EXPECT_EQ(riga.Step, 0.00005) << "now an FFT scan";
    ScriviCellaScanLine(riga, Stop, "30", -1);
    ScriviCellaScanLine(riga, Rbw, "", 8);
    EXPECT_EQ(riga.Step, 0.0025);
    riga.AutoStep = 0;
    ScriviCellaScanLine(riga, Rbw, "", 0);
    EXPECT_EQ(riga.RbwId, 0);
    EXPECT_EQ(riga.Step, 0.0025);
}

TEST(CelleTest, ListsTakeOnlyWhatTheyOffer) {
    ScanLine riga = BandaB();
    for (const int id : {4, 11, 16, -1})
        ScriviCellaScanLine(riga, Rbw, "", id);
    EXPECT_EQ(riga.RbwId, 2);
    ScriviCellaScanLine(riga, MinAtt, "", 5);
    ScriviCellaScanLine(riga, MinAtt, "", 6);
    EXPECT_EQ(riga.MinAtt, 5);
    ScriviCellaScanLine(riga, PreAmp, "", 1);
    ScriviCellaScanLine(riga, PreSel, "", 0);
    ScriviCellaScanLine(riga, PreSel, "", 2);
    EXPECT_EQ(riga.PreAmp, 1);
    EXPECT_EQ(riga.PreSel, 0);
}

TEST(CelleTest, DetectorsAreReadByLetterAndByName) {
    struct {
        const char* testo;
        const char* lettere;
    } const buoni[] = {
        {"P", "P"},       {"q,p", "PQ"},          {"QP", "PQ"},         {"Peak, QPeak", "PQ"},
        {"rms-avg", "N"}, {"C-Avg,A , R", "RAC"}, {"PQRANC", "PQRANC"}, {"P,P", "P"}};
    for (const auto& caso : buoni) {
        const auto flag = LeggiDetector(caso.testo);
        ASSERT_TRUE(flag.has_value()) << caso.testo;
        EXPECT_EQ(LettereDetector({.Detector = *flag}), caso.lettere) << caso.testo;
    }
    for (const char* cattivo : {"", " ", "X", "P,,Q", "P,", "Peak QPeak", "S", "1"})
        EXPECT_FALSE(LeggiDetector(cattivo).has_value()) << cattivo;
}

} // namespace
} // namespace orvane
