// Panels: defaults, short and long files, the two boxes, and the rules of single fields.
#include "data/Panels.h"

#include <functional>

#include "ScrivaniaProva.h"
#include "records/ColoriGrafico.h"

namespace orvane::prova {
namespace {

namespace fs = std::filesystem;

using PanelsTest = ProvaDati;

TEST_F(PanelsTest, TheFirstStartWritesDefaultsThatPassTheirOwnChecks) {
    ScanRecord scan;
    scan.Righe[0].Start = 1;
    EXPECT_TRUE(CaricaPanelEPN(s, kPannelloEPN) && CaricaPanelEAM(s, kPannelloEAM));
    EXPECT_TRUE(CaricaPanelEST(s, "Panels\\new.EST", scan) && CaricaPathPTH(s));
    EXPECT_TRUE(ambiente.riquadri.empty());
    for (const auto& [file, byte] : {std::pair{"Untitled.EPN", 2096u},
                                     {"Untitled.EAM", 5094u},
                                     {"Untitled.PTH", 30000u},
                                     {"new.EST", 12676u}})
        EXPECT_EQ(fs::file_size(Host("Panels") / file), byte);
    EXPECT_EQ(s.env.LinkKind, 1);
    EXPECT_EQ(s.env.LinkPort, 1);
    EXPECT_EQ(s.env.SweepPath, "Sweep\\Untitled\\Untitled.KSH");
    EXPECT_EQ(s.setup.OrderForDate, -1);
    EXPECT_EQ(s.setup.CheckSweepArchiveSize, -1);
    EXPECT_EQ(s.setup.UnitId, 1);
    EXPECT_EQ(s.setup.InsLossRef, 2.0f);
    EXPECT_EQ(scan.Righe[0].Start, 0) << "an absent table is written cleared";
    const std::string eam = Prendi("Panels/Untitled.EAM");
    EXPECT_EQ(eam.substr(3616, 6), std::string("\1\0\0\0\xFF\xFF", 6));
    EXPECT_EQ(eam.substr(4924), std::string(170, '\0'));
    EXPECT_FALSE(ControllaParStand(s.env) || ControllaSetup(s.setup) || ControllaScan(scan));
}

TEST_F(PanelsTest, AFullFileComesBackByteForByte) {
    // Everything that is legal and unusual: unnamed ranges, odd texts, both kinds of true.
    s.env.LinkKind = 1;
    s.env.LinkPort = 7;
    ImpostaColoriDefault(s.env);
    s.env.WaterfallScale = {-12.5f, 200.0f};
    s.env.LookValues.fill(0xA5);
    s.env.SetupPanelPath = "Panels\\M\xC3\xBCller.EAM";
    s.env.ScanPanelPath = "Panels\\x.EST";
    s.env.SweepPath = "Sweep\\x\\x.KSH";
    s.setup = SetupDefault();
    s.setup.Riserva3010.fill(0x5A);
    s.setup.KeepTrace = -1;
    s.setup.MaxHold = 1;
    s.setup.GraphStart = 0.15;
    s.setup.GraphStop = 30;
    ASSERT_TRUE(SalvaPanelEPN(s, kPannelloEPN));
    ASSERT_TRUE(SalvaPanelEAM(s, kPannelloEAM));
    const std::string epn = Prendi("Panels/Untitled.EPN");
    const std::string eam = Prendi("Panels/Untitled.EAM");
    EXPECT_EQ(epn.substr(438, 18), "Panels\\M\xFCller.EAM ");
    s.env = {};
    s.setup = {};
    ASSERT_TRUE(CaricaPanelEPN(s, kPannelloEPN));
    ASSERT_TRUE(CaricaPanelEAM(s, kPannelloEAM));
    EXPECT_EQ(s.env.SetupPanelPath, "Panels\\M\xC3\xBCller.EAM");
    ASSERT_TRUE(SalvaPanelEPN(s, kPannelloEPN));
    ASSERT_TRUE(SalvaPanelEAM(s, kPannelloEAM));
    EXPECT_EQ(Prendi("Panels/Untitled.EPN"), epn);
    EXPECT_EQ(Prendi("Panels/Untitled.EAM"), eam);
}

TEST_F(PanelsTest, AShortFileKeepsWhatWasReadAndSaysSo) {
    SetupRecord intero = SetupDefault();
    intero.GraphStop = 30;
    intero.UnitId = 3;
    const std::vector<uint8_t> byte = ScriviRecord(intero);
    Metti("Panels/Untitled.EAM", std::vector<uint8_t>(byte.begin(), byte.begin() + 900));
    s.setup.UnitId = 6;
    EXPECT_FALSE(CaricaPanelEAM(s, kPannelloEAM));
    EXPECT_EQ(Riquadro(), "Failed loading" + s.albero.DataRoot() + "Panels\\Untitled.EAM");
    EXPECT_EQ(s.setup.GraphStop, 30);
    EXPECT_EQ(s.setup.UnitId, 6) << "behind the end: as it was";
}

TEST_F(PanelsTest, DamagedFilesLoadCheckSaveAndReloadEqual) {
    for (unsigned seme = 0; seme < 60; ++seme) {
        const size_t lunghezze[] = {0, 1, 235, 2095, 2096, 5093, 5094, 12676, 20000};
        const std::vector<uint8_t> byte = ByteCasuali(lunghezze[seme % 9], seme);
        for (const char* file : {"Panels/d.EPN", "Panels/d.EAM", "Panels/d.EST"})
            Metti(file, byte);
        ScanRecord scan;
        CaricaPanelEPN(s, "Panels\\d.EPN");
        CaricaPanelEAM(s, "Panels\\d.EAM");
        CaricaPanelEST(s, "Panels\\d.EST", scan);
        EXPECT_FALSE(ControllaParStand(s.env)) << seme;
        EXPECT_FALSE(ControllaSetup(s.setup)) << seme;
        EXPECT_FALSE(ControllaScan(scan)) << seme;
        const auto env = ScriviRecord(s.env);
        const auto setup = ScriviRecord(s.setup);
        const auto righe = ScriviRecord(scan);
        ASSERT_TRUE(SalvaPanelEPN(s, "Panels\\d.EPN") && SalvaPanelEAM(s, "Panels\\d.EAM") &&
                    SalvaPanelEST(s, "Panels\\d.EST", scan));
        ASSERT_TRUE(CaricaPanelEPN(s, "Panels\\d.EPN") && CaricaPanelEAM(s, "Panels\\d.EAM") &&
                    CaricaPanelEST(s, "Panels\\d.EST", scan));
        EXPECT_EQ(ScriviRecord(s.env), env) << seme;
        EXPECT_EQ(ScriviRecord(s.setup), setup) << seme;
        EXPECT_EQ(ScriviRecord(scan), righe) << seme;
    }
}

TEST_F(PanelsTest, AFailedWriteShowsThePathAndLeavesTheOldFile) {
    Metti("Panels/Untitled.EAM", "old");
    fs::create_directories(Host("Panels/dir.EST"));
    {
        const DiscoPieno pieno(1000);
        EXPECT_FALSE(SalvaPanelEAM(s, kPannelloEAM));
    }
    EXPECT_EQ(Riquadro(), "Cannot open file " + s.albero.DataRoot() + "Panels\\Untitled.EAM");
    EXPECT_EQ(Prendi("Panels/Untitled.EAM"), "old");
    EXPECT_FALSE(SalvaPanelEST(s, "Panels\\dir.EST", {}));
    EXPECT_EQ(Riquadro(), "Cannot open file " + s.albero.DataRoot() + "Panels\\dir.EST");
    EXPECT_EQ(Nomi("Panels"), (std::vector<std::string>{"Untitled.EAM", "dir.EST"}));
}

TEST_F(PanelsTest, TheOlderManualLevelCountsWhereTheNewOneIsZero) {
    const std::tuple<float, int16_t, float> casi[] = {{0, 7, 7}, {0, -20, -20}, {3.5f, 7, 3.5f}};
    for (const auto& [nuovo, vecchio, atteso] : casi) {
        SetupRecord setup;
        setup.ManualLevel = nuovo;
        setup.ManualOld = vecchio;
        Metti("Panels/m.EAM", ScriviRecord(setup));
        ASSERT_TRUE(CaricaPanelEAM(s, "Panels\\m.EAM"));
        EXPECT_EQ(s.setup.ManualLevel, atteso);
        EXPECT_EQ(s.setup.ManualOld, vecchio);
    }
}

TEST_F(PanelsTest, ThePathsOfTheDialogsSurvive) {
    s.path.Percorsi[2] = "Limits\\";
    s.path.Percorsi[99] = std::string(300, 'p');
    ASSERT_TRUE(SalvaPathPTH(s));
    const PathRecord prima = s.path;
    s.path = {};
    ASSERT_TRUE(CaricaPathPTH(s));
    EXPECT_EQ(s.path.Percorsi, prima.Percorsi);
    Metti("Panels/Untitled.PTH", "short");
    EXPECT_FALSE(CaricaPathPTH(s));
    EXPECT_EQ(Riquadro(), "Failed loading" + s.albero.DataRoot() + "Panels\\Untitled.PTH");
}

TEST_F(PanelsTest, TheSetupLineIsTheLastOfItsFile) {
    s.RigaSetup = "before";
    LeggiDatiSetup(s);
    EXPECT_EQ(s.RigaSetup, "");
    const std::pair<std::string, const char*> casi[] = {{"", ""},
                                                        {"one", "one"},
                                                        {"one\r\ntwo\r\n", "two"},
                                                        {"one\ntwo", "two"},
                                                        {"one\ntwo\n\n", ""},
                                                        {"one\r\n \xB5V\r\n", " \xC2\xB5V"},
                                                        {"\r\n", ""}};
    for (const auto& [file, riga] : casi) {
        Metti("Orvane Console.DAT", file);
        LeggiDatiSetup(s);
        EXPECT_EQ(s.RigaSetup, riga) << file;
    }
}

TEST_F(PanelsTest, AChosenPanelBecomesTheRunningOneAndTheOtherWayRound) {
    s.setup.RefLevel = 7;
    ASSERT_TRUE(SalvaPannelloCome(s, "Panels\\Mine.EAM"));
    EXPECT_EQ(s.env.SetupPanelPath, "Panels\\Mine.EAM");
    EXPECT_EQ(Prendi("Panels/Mine.EAM"), Prendi("Panels/Untitled.EAM"));
    ASSERT_TRUE(SalvaPanelEAM(s, "Panels\\Other.EAM"));
    s.setup.RefLevel = 1;
    ASSERT_TRUE(CaricaPannelloCome(s, "Panels\\Other.EAM"));
    EXPECT_EQ(s.setup.RefLevel, 7);
    EXPECT_EQ(Prendi("Panels/Untitled.EAM"), Prendi("Panels/Other.EAM"));
    // What cannot be read or written changes neither the running panel nor its name.
    Metti("Panels/Short.EAM", "short");
    fs::create_directories(Host("Panels/Dir.EAM"));
    EXPECT_FALSE(CaricaPannelloCome(s, "Panels\\Short.EAM"));
    EXPECT_EQ(Riquadro(), "Failed loading" + s.albero.DataRoot() + "Panels\\Short.EAM");
    EXPECT_FALSE(SalvaPannelloCome(s, "Panels\\Dir.EAM"));
    EXPECT_EQ(Riquadro(), "Cannot open file " + s.albero.DataRoot() + "Panels\\Dir.EAM");
    EXPECT_EQ(Prendi("Panels/Untitled.EAM"), Prendi("Panels/Other.EAM"));
    EnvRecord env;
    ASSERT_TRUE(LeggiRecord(*s.albero.Leggi(kPannelloEPN), env));
    EXPECT_EQ(env.SetupPanelPath, "Panels\\Other.EAM");
}

TEST_F(PanelsTest, WhileAMeasureIsViewedNoPanelIsSavedOrChosen) {
    s.setup.RefLevel = 3;
    ASSERT_TRUE(SalvaPanelEAM(s, "Panels\\Mine.EAM"));
    const std::string prima = Prendi("Panels/Mine.EAM");
    s.setup.RefLevel = 4;
    s.NoSaveSetup = true;
    EXPECT_TRUE(SalvaPanelEAM(s, "Panels\\Mine.EAM"));
    EXPECT_FALSE(CaricaPannelloCome(s, "Panels\\Mine.EAM"));
    EXPECT_FALSE(SalvaPannelloCome(s, "Panels\\New.EAM"));
    EXPECT_EQ(s.setup.RefLevel, 4);
    EXPECT_EQ(Prendi("Panels/Mine.EAM"), prima);
    EXPECT_EQ(Nomi("Panels"), std::vector<std::string>{"Mine.EAM"});
}

TEST_F(PanelsTest, AColourSetIsAWholeEnvironment) {
    EXPECT_EQ(Rgb(244, 151, 23), 0x1797F4) << "red in the low byte";
    s.env.GraphColors = {-Rgb(1, 2, 3), 0x1000000};
    s.env.LinkPort = 5;
    ASSERT_TRUE(SalvaPanelEPN(s, kColoriCOL));
    s.env = {};
    ASSERT_TRUE(CaricaPanelEPN(s, kColoriCOL));
    EXPECT_EQ(s.env.GraphColors[0], Rgb(1, 2, 3));
    EXPECT_EQ(s.env.GraphColors[1], kColoriDefault[1]);
    EXPECT_EQ(s.env.LinkPort, 5) << "deliberately: the other settings come with it";
}

TEST_F(PanelsTest, TablesAreTheSameWhenTheyMeasureTheSame) {
    ScanRecord a;
    a.Righe[0] = {.Start = 1, .Stop = 2, .Step = 0.1};
    ScanRecord b = a;
    EXPECT_TRUE(ConfrontaScanTab(a, b));
    b.GridRow = 4;
    b.GridCol = 2;
    b.Righe[0].StepOriginal = 0.1;
    EXPECT_TRUE(ConfrontaScanTab(a, b)) << "the selected cell and a run's mark are no change";
    using R = ScanRecord;
    const std::function<void(R&)> cambi[] = {
        [](R& r) { r.Righe[0].PreAmp = 1; },   [](R& r) { r.Righe[0].Start = 1.1; },
        [](R& r) { r.Righe[9].Prompt = "x"; }, [](R& r) { r.WorstMode = 1; },
        [](R& r) { r.NumWorst = 3; },          [](R& r) { r.ScanComment = "x"; }};
    for (const auto& cambia : cambi) {
        b = a;
        cambia(b);
        EXPECT_FALSE(ConfrontaScanTab(a, b)) << &cambia - cambi;
    }
}

} // namespace
} // namespace orvane::prova
