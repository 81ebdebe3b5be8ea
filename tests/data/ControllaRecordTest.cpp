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
    struct {
        int32_t da;
        int32_t a;
    } const casi[] = {{0, 0},
                      {-5, 5},
                      {Rgb(255, 255, 255), Rgb(255, 255, 255)},
                      {-Rgb(255, 255, 255), Rgb(255, 255, 255)},
                      {Rgb(255, 255, 255) + 1, kColoriDefault[20]},
                      {-Rgb(255, 255, 255) - 1, kColoriDefault[20]},
                      {std::numeric_limits<int32_t>::max(), kColoriDefault[20]},
                      {kMinimo32, kColoriDefault[20]}};
    for (const auto& caso : casi) {
        EnvRecord env = EnvBuono();
        env.GraphColors[20] = caso.da;
        EXPECT_EQ(ControllaParStand(env), caso.da != caso.a) << caso.da;
        EXPECT_EQ(env.GraphColors[20], caso.a) << caso.da;
    }
}

TEST(ControllaParStandTest, IntegersAreAbsoluteAndInRange) {
    struct {
        int16_t EnvRecord::*campo;
        int16_t da;
        int16_t a;
    } const casi[] = {{&EnvRecord::LinkKind, -1, 1},
                      {&EnvRecord::LinkKind, 7, 1},
                      {&EnvRecord::LinkKind, kMinimo16, 1},
                      {&EnvRecord::LinkPort, 0, 1},
                      {&EnvRecord::LinkPort, -3, 3},
                      {&EnvRecord::LinkPort, 256, 256},
                      {&EnvRecord::LinkPort, 257, 256},
                      {&EnvRecord::AutoStart, 9, 1},
                      {&EnvRecord::ExportMode, kMinimo16, 32767},
                      {&EnvRecord::ReportMode2, -4, 4}};
    for (const auto& caso : casi) {
        EnvRecord env = EnvBuono();
        env.*caso.campo = caso.da;
        EXPECT_EQ(ControllaParStand(env), caso.da != caso.a) << caso.da;
        EXPECT_EQ(env.*caso.campo, caso.a) << caso.da;
    }
}

TEST(ControllaParStandTest, OffsetsKeepTheirOddRanges) {
    struct {
        float da;
        float report;
        float scala0;
        float scala1;
    } const casi[] = {{0, 0, 0, 2},
                      {2, 2, 2, 2},
                      {1.9f, 1.9f, 1.9f, 2},
                      {255, 255, 255, 255},
                      {255.5f, 255.5f, 255.5f, 400},
                      {400, 400, 327, 400},
                      {1000, 999, 327, 400},
                      {-1000, -999, -327, 2},
                      {kNan, 0, 0, 400},
                      {kInf, 0, 0, 400},
                      {-kInf, 0, 0, 400}};
    for (const auto& caso : casi) {
        EnvRecord env = EnvBuono();
        env.ReportValue = caso.da;
        env.WaterfallScale = {caso.da, caso.da};
        ControllaParStand(env);
        EXPECT_EQ(env.ReportValue, caso.report) << caso.da;
        EXPECT_EQ(env.WaterfallScale[0], caso.scala0) << caso.da;
        EXPECT_EQ(env.WaterfallScale[1], caso.scala1) << caso.da;
        EXPECT_FALSE(ControllaParStand(env)) << caso.da;
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
        EXPECT_EQ(env.SetupPanelPath, kPannelloEAM) << cattivo;
        EXPECT_EQ(env.ScanPanelPath, kPannelloEST) << cattivo;
        EXPECT_EQ(env.SweepPath, kSweepUntitled) << cattivo;
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
    r.LimitOn[3] = 99;
    r.FactorOn[6] = -1;
    r.OverwriteWarning = 99;
    r.ManualLevel = kNan;
    r.TGLevel = -std::numeric_limits<double>::infinity();
    r.RefLevel = -20;
    r.Riserva3010.fill(0xFF);
    const auto riserva = r.Riserva3010;
    EXPECT_TRUE(ControllaSetup(r));
    EXPECT_EQ(r.UnitId, 7);
    EXPECT_EQ(r.TableUnitId, 0);
    EXPECT_EQ(r.DinamicaId, 6);
    EXPECT_EQ(r.MinAtt, 5);
    EXPECT_EQ(r.LimitOn[3], 1);
    EXPECT_EQ(r.FactorOn[6], -1) << "minus one is true as well";
    EXPECT_EQ(r.OverwriteWarning, -1);
    EXPECT_EQ(r.ManualLevel, 0);
    EXPECT_EQ(r.TGLevel, 0);
    EXPECT_EQ(r.RefLevel, -20);
    EXPECT_EQ(r.Riserva3010, riserva);
    EXPECT_FALSE(ControllaSetup(r));
}

TEST(ControllaSetupTest, TheAxisIsFiniteAndInOrder) {
    struct {
        double start, stop, attesoStart, attesoStop;
    } const casi[] = {{0.15, 30, 0.15, 30}, {30, 0.15, 0.15, 30}, {0, 0, 0, 0},
                      {kNan, 30, 0, 0},     {1, kInf, 0, 0},      {-1, 30, 0, 0}};
    for (const auto& caso : casi) {
        SetupRecord r;
        r.GraphStart = caso.start;
        r.GraphStop = caso.stop;
        ControllaSetup(r);
        EXPECT_EQ(r.GraphStart, caso.attesoStart);
        EXPECT_EQ(r.GraphStop, caso.attesoStop);
    }
}

TEST(ControllaScanTest, EveryFieldOfALine) {
    ScanRecord scan;
    ScanLine& r = scan.Righe[9];
    r.Start = 0.15;
    r.Stop = kNan;
    r.Step = -1;
    r.StepOriginal = kInf;
    r.MinAtt = -3;
    r.NumStepFT = 50;
    r.Margin = -25;
    r.HoldTime = 30001;
    r.HoldTimeSD = kNan;
    r.Smart = -1;
    r.LineSwitch = {2, 0, -7, 1};
    r.RbwId = 16;
    scan.WorstMode = 3;
    scan.NumWorst = -8;
    EXPECT_TRUE(ControllaScan(scan));
    EXPECT_EQ(r.Stop, 0);
    EXPECT_EQ(r.Step, 0);
    EXPECT_EQ(r.StepOriginal, 0);
    EXPECT_EQ(r.MinAtt, 0);
    EXPECT_EQ(r.NumStepFT, 49);
    EXPECT_EQ(r.Margin, -19);
    EXPECT_EQ(r.HoldTime, 30000);
    EXPECT_EQ(r.HoldTimeSD, 0);
    EXPECT_EQ(r.Smart, 1);
    EXPECT_EQ(r.LineSwitch, (std::array<int16_t, 4>{1, 0, 1, 1}));
    EXPECT_EQ(r.RbwId, 15);
    EXPECT_EQ(r.Detector, (std::array<int16_t, 6>{1, 0, 0, 0, 0, 0}));
    EXPECT_EQ(scan.WorstMode, 0);
    EXPECT_EQ(scan.NumWorst, 0);
    EXPECT_FALSE(ControllaScan(scan));
}

TEST(ControllaScanTest, SeparatorsAreNoFiltersAndADetectorIsKept) {
    ScanRecord scan;
    scan.Righe[0].Start = 1;
    scan.Righe[0].RbwId = 4;
    scan.Righe[0].Detector = {0, 0, 0, 0, 0, 5};
    scan.Righe[1].RbwId = 11;
    ControllaScan(scan);
    EXPECT_EQ(scan.Righe[0].RbwId, 3);
    EXPECT_EQ(scan.Righe[1].RbwId, 10);
    EXPECT_EQ(scan.Righe[0].Detector, (std::array<int16_t, 6>{0, 0, 0, 0, 0, 1}));
    EXPECT_EQ(scan.Righe[1].Detector[0], 0) << "an unused line needs none";
}

} // namespace
} // namespace orvane
