// The rules of the scan table, at their boundaries.
#include "setup/TabellaScan.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>

namespace orvane {
namespace {

TEST(TabellaRbwTest, TheFilterThatGoesWithTheMiddleOfASpan) {
    struct {
        double start, stop;
        int16_t id;
    } const casi[] = {
        {0.001, 0.001, 15}, {0.001, 0.0010002, 14}, {0.008, 0.010, 14}, {0.009, 0.0090002, 3},
        {0.15, 0.15, 3},    {0.15, 0.1500002, 2},   {0.15, 30, 2},      {30, 30, 2},
        {30, 30.00001, 1},  {1000, 1000, 1},        {1000, 1001, 0},    {18000, 18000, 0},
        {18000, 30000, 0}};
    for (const auto& caso : casi)
        EXPECT_EQ(DetRBWDefault(caso.start, caso.stop), caso.id) << caso.start << " " << caso.stop;
}

TEST(ScanFFTTest, TheConditionsOneByOne) {
    const ScanLine buona{.Start = 0.009, .Stop = 0.15, .Detector = {1}};
    EXPECT_TRUE(ControllaScanFFT(buona));
    EXPECT_EQ(DetStepAutoDaRBW(3, buona), 0.00005);
    const ScanLine lunga{.Start = 30, .Stop = 1000};
    EXPECT_EQ(DetStepAutoDaRBW(15, lunga), 2.5e-06);
    for (const int niente : {-1, 4, 11, 16})
        EXPECT_EQ(DetStepAutoDaRBW(niente, lunga), 0) << niente;
    struct {
        const char* perche;
        ScanLine riga;
        bool esito;
    } const casi[] = {
        {"a second detector", {.Start = 0.009, .Stop = 0.15, .Detector = {1, 1}}, false},
        {"which Smart allows",
         {.Start = 0.009, .Stop = 0.15, .Smart = 1, .Detector = {0, 1}},
         true},
        {"hold 50 ms", {.Start = 0.009, .Stop = 0.15, .HoldTime = 50, .Detector = {1}}, false},
        {"below", {.Start = 0.009, .Stop = 0.15, .HoldTime = 49.9f, .Detector = {1}}, true},
        {"which Smart allows",
         {.Start = 0.009, .Stop = 0.15, .HoldTime = 50, .Smart = 1, .Detector = {1}},
         true},
        {"stop too high", {.Start = 0.009, .Stop = 0.1501, .Detector = {1}}, false},
        {"span of 5 kHz, short by its last bits",
         {.Start = 0.14, .Stop = 0.145, .Detector = {1}},
         true},
        {"span too small", {.Start = 0.14, .Stop = 0.1449, .Detector = {1}}, false},
        {"no detector at all", {.Start = 0.009, .Stop = 0.15}, true}};
    for (const auto& caso : casi)
        EXPECT_EQ(ControllaScanFFT(caso.riga), caso.esito) << caso.perche;
}

TEST(TabellaBandeTest, AnEntryWritesItsWholeLine) {
    struct {
        size_t banda;
        double start, stop;
        int rbw;
        float hold, holdSD;
        int autoStep;
        double step;
        int minAtt;
    } const casi[] = {
        {0, 0.009, 0.15, 3, 0, 62, 1, 0.0001, 1},   {1, 0.15, 30, 2, 1.9f, 0, 1, 0.005, 1},
        {5, 1000, 6000, 0, 0, 0.1f, 1, 0.25, 1},    {10, 0.00003, 0.001, 15, 323, 0, 0, 2.5e-06, 1},
        {24, 0.02, 0.15, 3, 100, 0, 0, 0.00022, 0}, {25, 0.15, 10, 2, 20, 0, 0, 0.01, 0}};
    for (const auto& attesa : casi) {
        SCOPED_TRACE(attesa.banda);
        ScanLine riga{.PreAmp = 1, .Margin = 5, .Smart = 1, .Limit = "old", .RbwId = 9};
        ImpostaBanda(riga, TabellaBande()[attesa.banda], 0);
        EXPECT_EQ(riga.Start, attesa.start);
        EXPECT_EQ(riga.Stop, attesa.stop);
        EXPECT_EQ(riga.RbwId, attesa.rbw);
        EXPECT_EQ(riga.HoldTime, attesa.hold);
        EXPECT_EQ(riga.HoldTimeSD, attesa.holdSD);
        EXPECT_EQ(riga.AutoStep, attesa.autoStep);
        EXPECT_EQ(riga.Step, attesa.step);
        EXPECT_EQ(riga.MinAtt, attesa.minAtt);
        EXPECT_EQ(riga.PreSel, 1);
        EXPECT_EQ(riga.PreAmp, 0);
        EXPECT_EQ(riga.Smart, 0);
        EXPECT_EQ(riga.Limit, "NONE");
    }
}

TEST(TabellaBandeTest, EntriesOfSeveralLinesHaveNoGapAndEndWhereTheySay) {
    const std::map<size_t, double> fini = {{2, 30},  {7, 6000},  {8, 6000},  {11, 30}, {13, 30},
                                           {15, 30}, {18, 3000}, {19, 6000}, {24, 10}};
    for (size_t i = 0; i < TabellaBande().size(); ++i) {
        const VoceBanda& banda = TabellaBande()[i];
        double fine = banda.stopMhz;
        for (const int seguente : banda.seguenti) {
            if (seguente < 0)
                break;
            const VoceBanda& altra = TabellaBande()[static_cast<size_t>(seguente)];
            EXPECT_EQ(altra.startMhz, fine) << banda.nome;
            fine = altra.stopMhz;
        }
        EXPECT_EQ(fine, fini.contains(i) ? fini.at(i) : banda.stopMhz) << banda.nome;
        EXPECT_EQ(banda.elencata, i != 25);
    }
}

TEST(TabellaBandeTest, BandsAreFoundByNameButSeparatorsAreNot) {
    EXPECT_EQ(TrovaBanda("a"), 0);
    EXPECT_EQ(TrovaBanda("c+d+E"), 8);
    EXPECT_EQ(TrovaBanda("iec 62493 annex e"), 24);
    for (const char* niente : {"", "---- Mil Scan ----", "------------------", "Z", "A "})
        EXPECT_EQ(TrovaBanda(niente), -1) << niente;
}

TEST(LineaDefaultTest, SelectionsFollowTheAncillaryKind) {
    using Linee = std::array<int16_t, 4>;
    using Antenne = std::array<int16_t, 2>;
    struct {
        int kind;
        Linee prima;
        Antenne antennePrima;
        Linee dopo;
        Antenne antenneDopo;
    } const casi[] = {{0, {1, 1, 1, 1}, {1, 1}, {0, 0, 0, 0}, {0, 0}},
                      {5, {1, 1, 1, 1}, {1, 1}, {0, 0, 0, 0}, {0, 0}},
                      {1, {1, 0, 0, 1}, {0, 0}, {0, 1, 1, 0}, {0, 0}},
                      {6, {0, 0, 0, 0}, {0, 0}, {0, 1, 1, 0}, {0, 0}},
                      {2, {0, 0, 0, 0}, {0, 0}, {1, 1, 1, 1}, {0, 0}},
                      {2, {0, 0, 1, 0}, {0, 0}, {0, 0, 1, 0}, {0, 0}},
                      {4, {0, 0, 0, 0}, {0, 0}, {1, 1, 1, 1}, {0, 0}},
                      {3, {0, 0, 0, 0}, {0, 0}, {0, 0, 0, 0}, {1, 1}},
                      {3, {0, 0, 0, 0}, {0, 1}, {0, 0, 0, 0}, {0, 1}}};
    for (const auto& caso : casi) {
        ScanLine riga{
            .LineSwitch = caso.prima, .Detector = {0, 1, 1}, .Antenna = caso.antennePrima};
        ImpostaLineaDefault(riga, caso.kind);
        EXPECT_EQ(riga.LineSwitch, caso.dopo) << caso.kind;
        EXPECT_EQ(riga.Antenna, caso.antenneDopo) << caso.kind;
        EXPECT_EQ(LettereDetector(riga), "P");
        EXPECT_EQ(riga.FreqTable, "NONE");
        EXPECT_EQ(riga.LimitDSD, "NONE");
        EXPECT_EQ(riga.AutoStep, 1);
    }
}

TEST(CompattaTest, UnusedLinesGoAndTheOthersKeepTheirOrder) {
    ScanTable tabella;
    tabella[1] = {.Start = 10, .Prompt = "ten"};
    tabella[2] = {.Start = 0, .Stop = 99};
    tabella[4] = {.Start = 20, .Prompt = "twenty"};
    tabella[9] = {.Start = 30};
    CompattaScanTable(tabella);
    EXPECT_EQ(RigheInUso(tabella), 3u);
    EXPECT_EQ(tabella[0].Prompt, "ten");
    EXPECT_EQ(tabella[1].Prompt, "twenty");
    EXPECT_EQ(tabella[2].Start, 30);
    for (size_t i = 3; i < tabella.size(); ++i) {
        EXPECT_EQ(tabella[i].Start, 0);
        EXPECT_EQ(tabella[i].Stop, 0);
        EXPECT_EQ(tabella[i].Prompt, "");
    }
    CompattaScanTable(tabella);
    EXPECT_EQ(tabella[0].Prompt, "ten") << "a tidy table stays as it is";
    ScanTable piena;
    piena.fill({.Start = 1});
    CompattaScanTable(piena);
    EXPECT_EQ(RigheInUso(piena), 10u);
}

TEST(PassiTest, BothEndsCountAndNonsenseIsNothing) {
    constexpr double inf = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    struct {
        double start, stop, step;
        long long passi;
    } const casi[] = {{0.15, 30, 0.005, 5971},
                      {0.009, 0.15, 0.0001, 1411},
                      {30, 1000, 0.1, 9701},
                      {1, 1.25, 0.1, 3},
                      {5, 5, 1, 1},
                      {5, 4, 1, 0},
                      {1, 2, 0, 0},
                      {1, 2, -1, 0},
                      {1, 2, nan, 0},
                      {1, nan, 1, 0},
                      {nan, 2, 1, 0},
                      {1, inf, 1, 0},
                      {1, 2, inf, 1},
                      {0, 1e300, 1e-300, 0},
                      {1, 1e12, 1e-12, 0}};
    for (const auto& caso : casi)
        EXPECT_EQ(PassiDellaRiga({.Start = caso.start, .Stop = caso.stop, .Step = caso.step}),
                  caso.passi)
            << caso.start << " " << caso.stop << " " << caso.step;
}

} // namespace
} // namespace orvane
