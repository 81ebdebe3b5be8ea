// The panel verb: every field with its place, damaged files, and wrong words.
#include <fstream>

#include "aiuto/BancoVerbi.h"
#include "data/Misure.h"
#include "data/Panels.h"

namespace orvane::prova {
namespace {

using PanelTest = BancoVerbi;

TEST_F(PanelTest, TellsEveryFieldAndTheRangesWithoutAName) {
    s.setup.RefLevel = -20;
    s.setup.LimitName[0] = "EN 55011 \xC2\xB5";
    s.setup.SwRelease = "1\t2";
    ASSERT_TRUE(SalvaPanelEAM(s, kPannelloEAM));
    ASSERT_EQ(Esegui("panel|show"), kFatto);
    EXPECT_TRUE(Ha("38\t(604 bytes)"));
    EXPECT_TRUE(Ha("1308\tLimitOn\t0 x10"));
    EXPECT_TRUE(Ha("1328\tLimitName\tEN 55011 \xC2\xB5, NONE x9"));
    EXPECT_TRUE(Ha("2538\tRefLevel\t-20"));
    EXPECT_TRUE(Ha("4226\tSwRelease\t1.2")) << "no tab inside a column";
}

TEST_F(PanelTest, TheExtensionTellsTheKindAndWhereABareNameLies) {
    ScanRecord scan;
    scan.Righe[9].Stop = 0.15;
    s.env.LinkPort = 7;
    s.env.ExportFlags = {0, 0x1f, 0xa0, 0xff};
    ASSERT_TRUE(SalvaPanelEST(s, "Panels\\Base.EST", scan));
    ASSERT_TRUE(SalvaHeaderSweep(s, PercorsoKSH("m"), scan, s.setup));
    ASSERT_TRUE(SalvaPanelEPN(s, kPannelloEPN));
    ASSERT_TRUE(SalvaPanelEPN(s, kColoriCOL));
    ASSERT_TRUE(SalvaPathPTH(s));
    const std::pair<const char*, const char*> casi[] = {
        {"Base.EST", "10812\tScanLine[9].Stop\t0.15"},
        {"base.est", "12000\tWorstMode\t0"},
        {"Panels/Base.EST", "12000\tWorstMode\t0"},
        {"m.KSH", "15674\tUnitId\t1"},
        {"Sweep\\m\\m.ksh", "15674\tUnitId\t1"},
        {"Untitled.EPN", "838\tExportFlags\t001fa0ff"},
        {"Color.COL", "236\tLinkPort\t7"},
        {"Untitled.PTH", "0\tPath\t x100"},
    };
    for (const auto& [nome, riga] : casi) {
        EXPECT_EQ(Esegui("panel", {"show", nome}), kFatto) << nome << messaggi.str();
        EXPECT_TRUE(Ha(riga)) << nome;
    }
}

TEST_F(PanelTest, JsonTellsTheSameFacts) {
    banco.json = true;
    s.setup.HoldTimeAn = 1.9f;
    ASSERT_TRUE(SalvaPanelEAM(s, kPannelloEAM));
    ASSERT_EQ(Esegui("panel|show"), kFatto);
    DiceTutte({"\"kind\":\"EAM\"", "{\"offset\":38,\"bytes\":604}",
               "{\"offset\":18,\"bytes\":4,\"name\":\"HoldTimeAn\",\"type\":\"f32\",\"value\":1.9}",
               "\"name\":\"ScaleAn\",\"type\":\"f32\",\"value\":[0,0]}",
               "\"name\":\"LimitName\",\"type\":\"char[60]\",\"value\":[\"NONE\","});
}

TEST_F(PanelTest, AShortFileIsToldAfterTheFieldsThatItHas) {
    ASSERT_TRUE(SalvaPanelEAM(s, kPannelloEAM));
    std::filesystem::resize_file(s.albero.Host(kPannelloEAM), 20);
    EXPECT_EQ(Esegui("panel|show"), kGuastoFile);
    EXPECT_TRUE(Ha("16\tGraphFlag\t1"));
    EXPECT_EQ(dati.str().find("HoldTimeAn"), std::string::npos) << "it has only half of this";
    EXPECT_NE(messaggi.str().find("Untitled.EAM ends after 20 of 5094 bytes"), std::string::npos);
}

TEST_F(PanelTest, WrongWordsAndAbsentFilesAreTold) {
    for (const char* riga :
         {"panel", "panel|edit", "panel|list|x", "panel|show|x|y", "panel|show|x.5SL"})
        EXPECT_EQ(Esegui(riga), kUsoErrato) << riga;
    std::filesystem::create_directories(s.albero.Host("Panels"));
    std::ofstream(s.albero.Host("Panels\\Torn.EST")) << "x";
    EXPECT_EQ(Esegui("panel|list"), kFatto);
    EXPECT_EQ(dati.str(), "Panels\\Torn.EST\t1 bytes\tnot the size of its kind\n");
    EXPECT_EQ(Esegui("panel|show|absent"), kGuastoFile);
    EXPECT_NE(messaggi.str().find("Panels\\absent.EAM"), std::string::npos);
    EXPECT_EQ(Esegui("panel|show|..\\x.EAM"), kGuastoFile);
}

} // namespace
} // namespace orvane::prova
