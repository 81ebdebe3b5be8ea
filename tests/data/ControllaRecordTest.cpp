// Values of damaged files: each becomes harmless by its own rule, all else stays.
#include "data/ControllaRecord.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "data/Panels.h"
#include "records/ColoriGrafico.h"

namespace orvane {
namespace {

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInf = std::numeric_limits<float>::infinity();
constexpr int16_t kMinimo16 = std::numeric_limits<int16_t>::min();
constexpr int32_t kMinimo32 = std::numeric_limits<int32_t>::min();

EnvRecord EnvBuono() {
    EnvRecord env;
    ImpostaColoriDefault(env);
    env.LinkPort = 1;
    env.WaterfallScale = {0, 100};
    env.ScanPanelPath = "Panels\\a.EST";
    env.SetupPanelPath = "Panels\\a.EAM";
    env.SweepPath = "Sweep\\a\\a.KSH";
    return env;
}

TEST(ControllaParStandTest, ColoursAreValidOrTheFactoryOnes) {
    constexpr int32_t kBianco = 0xFFFFFF;
    const int32_t fabbrica = kColoriDefault[20];
    const std::pair<int32_t, int32_t> casi[] = {{0, 0},
                                                {-5, 5},
                                                {kBianco, kBianco},
                                                {-kBianco, kBianco},
                                                {kBianco + 1, fabbrica},
                                                {-kBianco - 1, fabbrica},
                                                {kMinimo32, fabbrica}};
    for (const auto& [da, a] : casi) {
        EnvRecord env = EnvBuono();
        env.GraphColors[20] = da;
        EXPECT_EQ(ControllaParStand(env), da != a) << da;
        EXPECT_EQ(env.GraphColors[20], a) << da;
    }
}

TEST(ControllaParStandTest, IntegersAreAbsoluteAndInRange) {
    using E = EnvRecord;
    const std::tuple<int16_t E::*, int16_t, int16_t> casi[] = {
        {&E::LinkKind, -1, 1},    {&E::LinkKind, 7, 1},  {&E::LinkKind, kMinimo16, 1},
        {&E::LinkPort, 0, 1},     {&E::LinkPort, -3, 3}, {&E::LinkPort, 256, 256},
        {&E::LinkPort, 257, 256}, {&E::AutoStart, 9, 1}, {&E::ExportMode, kMinimo16, 32767},
        {&E::ReportMode2, -4, 4}};
    for (const auto& [campo, da, a] : casi) {
        E env = EnvBuono();
        env.*campo = da;
        EXPECT_EQ(ControllaParStand(env), da != a) << da;
        EXPECT_EQ(env.*campo, a) << da;
    }
}

TEST(ControllaParStandTest, OffsetsKeepTheirOddRanges) {
    const std::array<float, 4> casi[] = {{0, 0, 0, 2},
                                         {2, 2, 2, 2},
                                         {1.9f, 1.9f, 1.9f, 2},
                                         {255, 255, 255, 255},
                                         {255.5f, 255.5f, 255.5f, 400},
                                         {400, 400, 327, 400},
                                         {1000, 999, 327, 400},
                                         {-1000, -999, -327, 2},
                                         {kNan, 0, 0, 400},
                                         {-kInf, 0, 0, 400}};
    for (const auto& [da, report, scala0, scala1] : casi) {
        EnvRecord env = EnvBuono();
        env.ReportValue = da;
        env.WaterfallScale = {da, da};
        ControllaParStand(env);
        EXPECT_EQ(env.ReportValue, report) << da;
        EXPECT_EQ(env.WaterfallScale, (std::array{scala0, scala1})) << da;
        EXPECT_FALSE(ControllaParStand(env)) << da;
    }
}

TEST(ControllaParStandTest, PathsWithoutAProperNameBecomeUntitled) {
    for (const std::string& cattivo :
         {std::string(), std::string("\0anels\\x.EAM", 12), std::string("Panels\\x\0y.EAM", 14),
          std::string("Panels\\.EAM"), std::string("Panels\\"), std::string("Panels\\a+b.EAM"),
          std::string("Panels\\a.b.EAM"), std::string("what?.EAM")}) {
        EnvRecord env = EnvBuono();
        env.SetupPanelPath = env.ScanPanelPath = env.SweepPath = cattivo;
        EXPECT_TRUE(ControllaParStand(env)) << cattivo;
        EXPECT_EQ(std::tie(env.SetupPanelPath, env.ScanPanelPath, env.SweepPath),
                  std::tie(kPannelloEAM, kPannelloEST, kSweepUntitled));
    }
    EnvRecord env = EnvBuono();
    env.SweepPath = "D:\\Data\\Sweep\\Motor 1\\Motor 1.KSH";
    EXPECT_FALSE(ControllaParStand(env));
}

TEST(ControllaSetupTest, IndicesFlagsAndNumbers) {
    SetupRecord r;
    r.UnitId = 8;
    r.TableUnitId = -1;
    r.DinamicaId = 7;
    r.MinAtt = 6;
    r.LimitOn[3] = r.OverwriteWarning = 99;
    r.FactorOn[6] = -1;
    r.ManualLevel = kNan;
    r.TGLevel = -kInf;
    r.RefLevel = -20;
    r.Riserva3010.fill(0xFF);
    const auto riserva = r.Riserva3010;
    EXPECT_TRUE(ControllaSetup(r));
    EXPECT_EQ((std::array{r.UnitId, r.TableUnitId, r.DinamicaId, r.MinAtt, r.LimitOn[3]}),
              (std::array<int16_t, 5>{7, 0, 6, 5, 1}));
    EXPECT_EQ(r.FactorOn[6], -1) << "minus one is true as well";
    EXPECT_EQ((std::array<double, 4>{double(r.OverwriteWarning), r.ManualLevel, r.TGLevel,
                                     double(r.RefLevel)}),
              (std::array<double, 4>{-1, 0, 0, -20}));
    EXPECT_EQ(r.Riserva3010, riserva);
    EXPECT_FALSE(ControllaSetup(r));
}

TEST(ControllaSetupTest, TheAxisIsFiniteAndInOrder) {
    const std::array<double, 4> casi[] = {{0.15, 30, 0.15, 30}, {30, 0.15, 0.15, 30},
                                          {0, 0, 0, 0},         {kNan, 30, 0, 0},
                                          {1, kInf, 0, 0},      {-1, 30, 0, 0}};
    for (const auto& [da, a, start, stop] : casi) {
        SetupRecord r;
        r.GraphStart = da;
        r.GraphStop = a;
        ControllaSetup(r);
        EXPECT_EQ(std::pair(r.GraphStart, r.GraphStop), std::pair(start, stop));
    }
}

TEST(ControllaScanTest, EveryFieldOfALine) {
    ScanRecord scan;
    ScanLine& r = scan.Righe[9];
    r = {.Start = 0.15,
         .Stop = kNan,
         .Step = -1,
         .MinAtt = -3,
         .HoldTime = 30001,
         .Margin = -25,
         .LineSwitch = {2, 0, -7, 1},
         .Smart = -1,
         .RbwId = 16,
         .NumStepFT = 50,
         .HoldTimeSD = kNan,
         .StepOriginal = kInf};
    scan.WorstMode = 3;
    scan.NumWorst = -8;
    EXPECT_TRUE(ControllaScan(scan));
    EXPECT_EQ(
        (std::array<double, 8>{r.Stop, r.Step, r.StepOriginal, double(r.MinAtt),
                               double(r.NumStepFT), double(r.Margin), r.HoldTime, r.HoldTimeSD}),
        (std::array<double, 8>{0, 0, 0, 0, 49, -19, 30000, 0}));
    EXPECT_EQ(r.LineSwitch, (std::array<int16_t, 4>{1, 0, 1, 1}));
    EXPECT_EQ(r.Smart, 1);
    EXPECT_EQ(r.RbwId, 15);
    EXPECT_EQ(r.Detector, (std::array<int16_t, 6>{1, 0, 0, 0, 0, 0}));
    EXPECT_EQ(scan.WorstMode, 0);
    EXPECT_EQ(scan.NumWorst, 0);
    EXPECT_FALSE(ControllaScan(scan));
}

TEST(ControllaScanTest, SeparatorsAreNoFiltersAndADetectorIsKept) {
    ScanRecord scan;
    scan.Righe[0] = {.Start = 1, .Detector = {0, 0, 0, 0, 0, 5}, .RbwId = 4};
    scan.Righe[1].RbwId = 11;
    ControllaScan(scan);
    EXPECT_EQ(scan.Righe[0].RbwId, 3);
    EXPECT_EQ(scan.Righe[1].RbwId, 10);
    EXPECT_EQ(scan.Righe[0].Detector, (std::array<int16_t, 6>{0, 0, 0, 0, 0, 1}));
    EXPECT_EQ(scan.Righe[1].Detector[0], 0) << "an unused line needs none";
}

} // namespace
} // namespace orvane
