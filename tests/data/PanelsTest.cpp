// Panels: defaults, short and long files, the two boxes, and the rules of single fields.
#include "data/Panels.h"

#include <functional>

#include "ScrivaniaProva.h"
#include "records/ColoriGrafico.h"

namespace orvane::prova {
namespace {

namespace fs = std::filesystem;

using PanelsTest = ProvaDati;

TEST_F(PanelsTest, TheFirstStartWritesTheDefaults) {
    EXPECT_TRUE(CaricaPanelEPN(s, kPannelloEPN));
    EXPECT_TRUE(CaricaPanelEAM(s, kPannelloEAM));
    EXPECT_TRUE(CaricaPathPTH(s));
    EXPECT_TRUE(ambiente.riquadri.empty());
    EXPECT_EQ(fs::file_size(Host("Panels/Untitled.EPN")), 2096u);
    EXPECT_EQ(fs::file_size(Host("Panels/Untitled.EAM")), 5094u);
    EXPECT_EQ(fs::file_size(Host("Panels/Untitled.PTH")), 30000u);
    EXPECT_EQ(s.env.LinkKind, 1);
    EXPECT_EQ(s.env.LinkPort, 1);
    EXPECT_EQ(s.env.ScanPanelPath, "Panels\\Untitled.EST");
    EXPECT_EQ(s.env.SetupPanelPath, "Panels\\Untitled.EAM");
    EXPECT_EQ(s.env.SweepPath, "Sweep\\Untitled\\Untitled.KSH");
    EXPECT_EQ(s.setup.OverwriteWarning, -1);
    EXPECT_EQ(s.setup.OrderForDate, -1);
    EXPECT_EQ(s.setup.CheckSweepArchiveSize, -1);
    EXPECT_EQ(s.setup.GX2207FFTSwept, 0);
    EXPECT_EQ(s.setup.GraphFlag, 1);
    EXPECT_EQ(s.setup.UnitId, 1);
    EXPECT_EQ(s.setup.TableUnitId, 1);
    EXPECT_EQ(s.setup.InsLossRef, 2.0f);
    const std::string eam = Prendi("Panels/Untitled.EAM");
    EXPECT_EQ(eam.substr(3616, 6), std::string("\1\0\0\0\xFF\xFF", 6));
    EXPECT_EQ(eam.substr(4924), std::string(170, '\0'));
}

TEST_F(PanelsTest, TheDefaultsPassTheirOwnChecks) {
    CaricaPanelEPN(s, kPannelloEPN);
    EXPECT_FALSE(ControllaParStand(s.env));
    SetupRecord setup = SetupDefault();
    EXPECT_FALSE(ControllaSetup(setup));
    ScanRecord scan;
    EXPECT_FALSE(ControllaScan(scan));
}

TEST_F(PanelsTest, TheTraceColoursAreTheDocumentedOnes) {
    ImpostaColoriDefault(s.env);
    const auto& c = s.env.GraphColors;
    const std::array<int32_t, 6> sei = {Rgb(244, 151, 23), Rgb(255, 0, 0), Rgb(0, 251, 0),
                                        Rgb(255, 0, 128),  Rgb(0, 0, 255), Rgb(53, 57, 106)};
    for (size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(c[colore::kTracce + i], sei[i]);
        EXPECT_EQ(c[colore::kTracceSeconde + i], sei[i]);
    }
    EXPECT_EQ(c[colore::kTracceScure], Rgb(142, 85, 6));
    EXPECT_EQ(Rgb(244, 151, 23), 0x1797F4) << "red in the low byte";
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
    intero.ManualLevel = 5;
    intero.UnitId = 3;
    const std::vector<uint8_t> byte = ScriviRecord(intero);
    Metti("Panels/Untitled.EAM", std::vector<uint8_t>(byte.begin(), byte.begin() + 900));
    s.setup.UnitId = 6;
    EXPECT_FALSE(CaricaPanelEAM(s, kPannelloEAM));
    EXPECT_EQ(Riquadro(), "Failed loading" + s.albero.DataRoot() + "Panels\\Untitled.EAM");
    EXPECT_EQ(s.setup.GraphStop, 30);
    EXPECT_EQ(s.setup.ManualLevel, 5);
    EXPECT_EQ(s.setup.UnitId, 6) << "behind the end: as it was";
}

TEST_F(PanelsTest, ALongerFileIsReadAsFarAsTheRecordGoes) {
    SetupRecord setup = SetupDefault();
    setup.UnitId = 4;
    std::vector<uint8_t> byte = ScriviRecord(setup);
    byte.resize(byte.size() + 500, 0xEE);
    Metti("Panels/Untitled.EAM", byte);
    EXPECT_TRUE(CaricaPanelEAM(s, kPannelloEAM));
    EXPECT_EQ(s.setup.UnitId, 4);
    EXPECT_TRUE(ambiente.riquadri.empty());
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
    ASSERT_TRUE(SalvaPanelEAM(s, kPannelloEAM));
    const std::string prima = Prendi("Panels/Untitled.EAM");
    s.setup.UnitId = 5;
    {
        const DiscoPieno pieno(1000);
        EXPECT_FALSE(SalvaPanelEAM(s, kPannelloEAM));
    }
    EXPECT_EQ(Riquadro(), "Cannot open file " + s.albero.DataRoot() + "Panels\\Untitled.EAM");
    EXPECT_EQ(Prendi("Panels/Untitled.EAM"), prima);
    fs::create_directories(Host("Panels/dir.EST"));
    EXPECT_FALSE(SalvaPanelEST(s, "Panels\\dir.EST", {}));
    EXPECT_EQ(Riquadro(), "Cannot open file " + s.albero.DataRoot() + "Panels\\dir.EST");
    EXPECT_EQ(Nomi("Panels"), (std::vector<std::string>{"Untitled.EAM", "dir.EST"}));
}

TEST_F(PanelsTest, NothingIsSavedWhileAMeasureIsViewed) {
    ASSERT_TRUE(SalvaPanelEAM(s, kPannelloEAM));
    const std::string prima = Prendi("Panels/Untitled.EAM");
    s.setup.UnitId = 5;
    s.NoSaveSetup = true;
    EXPECT_TRUE(SalvaPanelEAM(s, kPannelloEAM));
    EXPECT_EQ(Prendi("Panels/Untitled.EAM"), prima);
}

TEST_F(PanelsTest, TheOlderManualLevelCountsWhereTheNewOneIsZero) {
    struct {
        float nuovo;
        int16_t vecchio;
        float atteso;
    } const casi[] = {{0, 7, 7}, {0, -20, -20}, {3.5f, 7, 3.5f}, {0, 0, 0}};
    for (const auto& caso : casi) {
        SetupRecord setup;
        setup.ManualLevel = caso.nuovo;
        setup.ManualOld = caso.vecchio;
        Metti("Panels/m.EAM", ScriviRecord(setup));
        ASSERT_TRUE(CaricaPanelEAM(s, "Panels\\m.EAM"));
        EXPECT_EQ(s.setup.ManualLevel, caso.atteso);
        EXPECT_EQ(s.setup.ManualOld, caso.vecchio);
    }
}

TEST_F(PanelsTest, AnAbsentScanTableIsWrittenCleared) {
    ScanRecord scan;
    scan.Righe[0].Start = 1;
    scan.ScanComment = "old";
    EXPECT_TRUE(CaricaPanelEST(s, "Panels\\new.EST", scan));
    EXPECT_EQ(scan.Righe[0].Start, 0);
    EXPECT_EQ(scan.ScanComment, "");
    EXPECT_EQ(fs::file_size(Host("Panels/new.EST")), 12676u);
}

TEST_F(PanelsTest, AColourSetLoadsTheWholeEnvironment) {
    CaricaPanelEPN(s, kPannelloEPN);
    EnvRecord altro = s.env;
    altro.LinkPort = 9;
    altro.GraphColors[0] = -Rgb(1, 2, 3);
    altro.GraphColors[1] = 0x1000000;
    Metti("Color.COL", ScriviRecord(altro));
    ASSERT_TRUE(CaricaPanelEPN(s, "Color.COL"));
    EXPECT_EQ(s.env.LinkPort, 9);
    EXPECT_EQ(s.env.GraphColors[0], Rgb(1, 2, 3));
    EXPECT_EQ(s.env.GraphColors[1], kColoriDefault[1]);
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
    struct {
        const char* file;
        const char* riga;
    } const casi[] = {{"", ""},
                      {"one", "one"},
                      {"one\r\ntwo\r\n", "two"},
                      {"one\ntwo", "two"},
                      {"one\ntwo\n\n", ""},
                      {"one\r\n \xB5V\r\n", " \xC2\xB5V"},
                      {"\n", ""},
                      {"\r\n", ""}};
    for (const auto& caso : casi) {
        Metti("Orvane Console.DAT", std::string(caso.file));
        LeggiDatiSetup(s);
        EXPECT_EQ(s.RigaSetup, caso.riga) << caso.file;
    }
}

TEST_F(PanelsTest, AChosenPanelBecomesTheRunningOne) {
    s.setup.RefLevel = 7;
    ASSERT_TRUE(SalvaPanelEAM(s, "Panels\\Mine.EAM"));
    s.setup.RefLevel = 1;
    ASSERT_TRUE(CaricaPannelloCome(s, "Panels\\Mine.EAM"));
    EXPECT_EQ(s.setup.RefLevel, 7);
    EXPECT_EQ(Prendi("Panels/Untitled.EAM"), Prendi("Panels/Mine.EAM"));
    EnvRecord env;
    ASSERT_TRUE(LeggiRecord(*s.albero.Leggi(kPannelloEPN), env));
    EXPECT_EQ(env.SetupPanelPath, "Panels\\Mine.EAM");
}

TEST_F(PanelsTest, APanelThatCannotBeReadLeavesTheRunningFile) {
    s.env.SetupPanelPath = "Panels\\Old.EAM";
    Metti("Panels/Untitled.EAM", "running");
    Metti("Panels/Short.EAM", "short");
    EXPECT_FALSE(CaricaPannelloCome(s, "Panels\\Short.EAM"));
    EXPECT_EQ(Riquadro(), "Failed loading" + s.albero.DataRoot() + "Panels\\Short.EAM");
    EXPECT_EQ(Prendi("Panels/Untitled.EAM"), "running");
    EXPECT_EQ(s.env.SetupPanelPath, "Panels\\Old.EAM");
    EXPECT_FALSE(s.albero.Esiste(kPannelloEPN));
}

TEST_F(PanelsTest, ARunningPanelIsSavedUnderAChosenName) {
    s.setup.RefLevel = 9;
    ASSERT_TRUE(SalvaPannelloCome(s, "Panels\\Mine.EAM"));
    EXPECT_EQ(s.env.SetupPanelPath, "Panels\\Mine.EAM");
    EXPECT_EQ(Nomi("Panels"),
              (std::vector<std::string>{"Mine.EAM", "Untitled.EAM", "Untitled.EPN"}));
    EXPECT_EQ(Prendi("Panels/Mine.EAM"), Prendi("Panels/Untitled.EAM"));
    fs::create_directories(Host("Panels/Dir.EAM"));
    EXPECT_FALSE(SalvaPannelloCome(s, "Panels\\Dir.EAM"));
    EXPECT_EQ(Riquadro(), "Cannot open file " + s.albero.DataRoot() + "Panels\\Dir.EAM");
    EXPECT_EQ(s.env.SetupPanelPath, "Panels\\Mine.EAM");
}

TEST_F(PanelsTest, WhileAMeasureIsViewedNoPanelIsChosen) {
    s.setup.RefLevel = 3;
    ASSERT_TRUE(SalvaPanelEAM(s, "Panels\\Mine.EAM"));
    s.setup.RefLevel = 4;
    s.NoSaveSetup = true;
    EXPECT_FALSE(CaricaPannelloCome(s, "Panels\\Mine.EAM"));
    EXPECT_FALSE(SalvaPannelloCome(s, "Panels\\New.EAM"));
    EXPECT_EQ(s.setup.RefLevel, 4);
    EXPECT_EQ(Nomi("Panels"), std::vector<std::string>{"Mine.EAM"});
}

TEST_F(PanelsTest, AColourSetIsAWholeEnvironment) {
    s.env.GraphColors[0] = Rgb(1, 2, 3);
    s.env.LinkPort = 5;
    ASSERT_TRUE(SalvaPanelEPN(s, kColoriCOL));
    EXPECT_EQ(fs::file_size(Host("Color.COL")), 2096u);
    s.env = {};
    ASSERT_TRUE(CaricaPanelEPN(s, kColoriCOL));
    EXPECT_EQ(s.env.GraphColors[0], Rgb(1, 2, 3));
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
    const std::array<std::function<void(ScanRecord&)>, 6> cambi = {[](ScanRecord& r) { r.Righe[0].PreAmp = 1; },
                                                                   [](ScanRecord& r) { r.Righe[0].Start = 1.1; },
                                                                   [](ScanRecord& r) { r.Righe[9].Prompt = "x"; },
                                                                   [](ScanRecord& r) { r.WorstMode = 1; },
                                                                   [](ScanRecord& r) { r.NumWorst = 3; },
                                                                   [](ScanRecord& r) { r.ScanComment = "x"; }};
    for (size_t i = 0; i < cambi.size(); ++i) {
        b = a;
        cambi[i](b);
        EXPECT_FALSE(ConfrontaScanTab(a, b)) << i;
    }
}

} // namespace
} // namespace orvane::prova
