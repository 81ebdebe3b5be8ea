// The tree: names in any case, paths that must not lead out, files replaced whole or not at all.
#include "data/AlberoDati.h"

#include "ScrivaniaProva.h"
#include "data/Cartelle.h"
#include "data/NomiDisco.h"

namespace orvane::prova {
namespace {

namespace fs = std::filesystem;

using AlberoDatiTest = ProvaDati;

TEST_F(AlberoDatiTest, DataRootHasBackslashesAndOneAtTheEnd) {
    std::string atteso = cartella.Percorso().string() + "\\";
    std::replace(atteso.begin(), atteso.end(), '/', '\\');
    EXPECT_EQ(s.albero.DataRoot(), atteso);
    EXPECT_EQ(AlberoDati(cartella.Percorso() / "").DataRoot(), atteso);
    EXPECT_EQ(AlberoDati(cartella.Percorso() / "." / "x" / "..").DataRoot(), atteso);
}

TEST_F(AlberoDatiTest, NamesAreFoundWhateverTheirCase) {
    Metti("SWEEP/Motor Test/motor test.ksh", "k");
    Metti("sweep.txt", "t");
    Metti("Limits/\xC3\x89mission.5sl", "l");
    struct {
        const char* chiesto;
        const char* trovato;
    } const casi[] = {
        {"Sweep\\MOTOR TEST\\Motor Test.KSH", "SWEEP/Motor Test/motor test.ksh"},
        {"sweep/motor test/MOTOR TEST.KSH", "SWEEP/Motor Test/motor test.ksh"},
        {"\x53weep\\.\\motor test\\\\motor test.ksh", "SWEEP/Motor Test/motor test.ksh"},
        {"Sweep.TXT", "sweep.txt"},
        {"LIMITS\\\xC3\xA9MISSION.5SL", "Limits/\xC3\x89mission.5sl"},
    };
    for (const auto& caso : casi) {
        EXPECT_EQ(s.albero.Host(caso.chiesto), Host(caso.trovato)) << caso.chiesto;
        EXPECT_TRUE(s.albero.Esiste(caso.chiesto)) << caso.chiesto;
    }
    EXPECT_TRUE(s.albero.EsisteCartella("sWEEP\\motor TEST\\"));
    EXPECT_FALSE(s.albero.Esiste("sWEEP\\motor TEST"));
    EXPECT_FALSE(s.albero.EsisteCartella("Sweep.txt"));
}

TEST_F(AlberoDatiTest, TheExactCaseGoesFirstThenTheFirstOfTheOthers) {
    Metti("Panels/base.EST", "1");
    Metti("Panels/Base.EST", "2");
    Metti("Panels/BASE.EST", "3");
    EXPECT_EQ(s.albero.Host("Panels\\base.EST"), Host("Panels/base.EST"));
    EXPECT_EQ(s.albero.Host("Panels\\Base.EST"), Host("Panels/Base.EST"));
    EXPECT_EQ(s.albero.Host("Panels\\bAse.EST"), Host("Panels/BASE.EST"));
}

TEST_F(AlberoDatiTest, ANewFileKeepsTheCaseThatWasAskedFor) {
    fs::create_directories(Host("PANELS"));
    const std::vector<uint8_t> dati = {1, 2, 3};
    ASSERT_TRUE(s.albero.Salva("Panels\\MyPanel.eam", dati));
    EXPECT_EQ(Nomi("PANELS"), std::vector<std::string>{"MyPanel.eam"});
    ASSERT_TRUE(s.albero.Salva("panels\\MYPANEL.EAM", dati));
    EXPECT_EQ(Nomi("PANELS"), std::vector<std::string>{"MyPanel.eam"}) << "one file, not two";
    s.albero.AssicuraCartella("panels\\Sub\\Deep\\");
    EXPECT_TRUE(fs::is_directory(Host("PANELS/Sub/Deep")));
}

TEST_F(AlberoDatiTest, PathsBehindTheRootCountAsRelative) {
    Metti("Sweep/a/a.KSH", "k");
    std::string grande = s.albero.DataRoot();
    std::transform(grande.begin(), grande.end(), grande.begin(), ::toupper);
    for (const std::string& radice :
         {s.albero.DataRoot(), cartella.Percorso().string() + "/", grande})
        EXPECT_EQ(s.albero.Host(radice + "Sweep\\A\\a.ksh"), Host("Sweep/a/a.KSH")) << radice;
    EXPECT_EQ(s.albero.Host(s.albero.DataRoot()), cartella.Percorso());
    EXPECT_EQ(s.albero.Host(""), cartella.Percorso());
    EXPECT_EQ(s.albero.PercorsoIntero("Sweep/a"), s.albero.DataRoot() + "Sweep\\a");
    EXPECT_EQ(s.albero.PercorsoIntero(s.albero.DataRoot() + "x"), s.albero.DataRoot() + "x");
}

TEST_F(AlberoDatiTest, PathsThatLeadElsewhereAreRefused) {
    fs::create_directories(Host("Sweep"));
    Metti("secret", "s");
    const std::string fuori = cartella.Percorso().parent_path().string();
    const std::string vietati[] = {"..\\secret",
                                   "Sweep\\..\\secret",
                                   "Sweep/../secret",
                                   "Sweep\\.. \\secret",
                                   "\\etc\\passwd",
                                   "/etc/passwd",
                                   "C:\\Windows\\x.ini",
                                   "C:secret",
                                   s.albero.DataRoot() + "..\\secret",
                                   cartella.Percorso().string() + "-other/secret",
                                   fuori,
                                   std::string("secret\0.KSH", 11)};
    for (const std::string& percorso : vietati) {
        SCOPED_TRACE(percorso);
        EXPECT_FALSE(s.albero.Esiste(percorso));
        EXPECT_FALSE(s.albero.EsisteCartella(percorso));
        EXPECT_FALSE(s.albero.Leggi(percorso).has_value());
        EXPECT_FALSE(s.albero.Salva(percorso, std::vector<uint8_t>{1}));
        EXPECT_FALSE(s.albero.Copia("secret", percorso));
        EXPECT_FALSE(s.albero.Copia(percorso, "copy"));
        s.albero.AssicuraCartella(percorso);
        s.albero.Cancella(percorso);
        s.albero.CancellaCartella(percorso);
    }
    EXPECT_EQ(Nomi(""), (std::vector<std::string>{"Sweep", "secret"}));
}

TEST_F(AlberoDatiTest, AFailedWriteLeavesTheOldFileAndNothingElse) {
    Metti("Panels/a.EAM", "old");
    const std::vector<uint8_t> molti(5000, 'x');
    {
        const DiscoPieno pieno(1000);
        EXPECT_FALSE(s.albero.Salva("Panels\\a.EAM", molti));
        Metti("big", "source");
        EXPECT_TRUE(s.albero.Copia("big", "Panels\\b.EAM"));
    }
    EXPECT_EQ(Prendi("Panels/a.EAM"), "old");
    EXPECT_EQ(Nomi("Panels"), (std::vector<std::string>{"a.EAM", "b.EAM"}));
    Metti("big", std::string(5000, 'y'));
    {
        const DiscoPieno pieno(1000);
        EXPECT_FALSE(s.albero.Copia("big", "Panels\\a.EAM"));
    }
    EXPECT_EQ(Prendi("Panels/a.EAM"), "old");
    EXPECT_EQ(Nomi("Panels"), (std::vector<std::string>{"a.EAM", "b.EAM"}));
}

TEST_F(AlberoDatiTest, ADirectoryIsNoTargetAndNoSource) {
    Metti("Panels/a.EAM/inside", "i");
    EXPECT_FALSE(s.albero.Salva("Panels\\a.EAM", std::vector<uint8_t>{1}));
    EXPECT_FALSE(s.albero.Leggi("Panels\\a.EAM").has_value());
    EXPECT_FALSE(s.albero.Cancella("Panels\\a.EAM"));
    EXPECT_FALSE(s.albero.Salva("Missing\\a.EAM", std::vector<uint8_t>{1}));
    EXPECT_EQ(Prendi("Panels/a.EAM/inside"), "i");
    EXPECT_EQ(Nomi("Panels"), std::vector<std::string>{"a.EAM"});
}

TEST_F(AlberoDatiTest, AForeignTemporaryFileIsPassedOver) {
    Metti("Panels/.salva-0", "of another console");
    ASSERT_TRUE(s.albero.Salva("Panels\\a.EAM", std::vector<uint8_t>{'n'}));
    EXPECT_EQ(Prendi("Panels/.salva-0"), "of another console");
    EXPECT_EQ(s.albero.ElencaFile("Panels", ""), std::vector<std::string>{"a.EAM"});
}

TEST_F(AlberoDatiTest, ReadsNoMoreThanAskedFor) {
    Metti("f", "abcdef");
    Metti("empty", "");
    EXPECT_EQ(s.albero.Leggi("f", 4)->size(), 4u);
    EXPECT_EQ(s.albero.Leggi("f", 100)->size(), 6u);
    EXPECT_TRUE(s.albero.Leggi("empty")->empty());
    EXPECT_FALSE(s.albero.Leggi("none").has_value());
}

TEST_F(AlberoDatiTest, ListsAreSortedWithoutRegardToCase) {
    for (const char* nome : {"b.5SL", "A.5sl", "a.5SC", "C.5SL", "noext", ".hidden"})
        Metti(std::string("Limits/") + nome, "");
    fs::create_directories(Host("Limits/Dir.5SL"));
    using Nomi = std::vector<std::string>;
    EXPECT_EQ(s.albero.ElencaFile("LIMITS", "5SL"), (Nomi{"A.5sl", "b.5SL", "C.5SL"}));
    EXPECT_EQ(s.albero.ElencaFile("Limits\\", ".5sc"), Nomi{"a.5SC"});
    EXPECT_EQ(s.albero.ElencaFile("Limits", "").size(), 6u);
    EXPECT_EQ(s.albero.ElencaCartelle("Limits"), Nomi{"Dir.5SL"});
    EXPECT_TRUE(s.albero.ElencaFile("Missing", "").empty());
}

TEST_F(AlberoDatiTest, RemovesFilesAndDirectoriesButNeverTheRoot) {
    Metti("a/b/c", "");
    EXPECT_TRUE(s.albero.Cancella("A\\B\\C"));
    EXPECT_TRUE(s.albero.Cancella("A\\B\\C")) << "a missing file is no failure";
    s.albero.CancellaCartella("A");
    EXPECT_FALSE(fs::exists(Host("a")));
    Metti("keep", "");
    for (const std::string& radice : {std::string(), std::string("."), s.albero.DataRoot()})
        s.albero.CancellaCartella(radice);
    EXPECT_TRUE(fs::exists(Host("keep")));
}

TEST_F(AlberoDatiTest, AFileIsOnTheDiskBeforeItTakesItsName) {
    Metti("Panels/a.EAM", "old");
    std::vector<std::string> passi;
    const AlberoDati albero(cartella.Percorso(), [&](const fs::path& cosa) {
        const bool file = fs::is_regular_file(cosa);
        passi.push_back((file ? "file " + std::to_string(fs::file_size(cosa))
                              : "directory " + cosa.filename().string()) +
                        ", target " + Prendi("Panels/a.EAM"));
        return true;
    });
    ASSERT_TRUE(albero.Salva("Panels\\a.EAM", std::vector<uint8_t>{'n', 'e', 'w'}));
    EXPECT_EQ(passi,
              (std::vector<std::string>{"file 3, target old", "directory Panels, target new"}));
    passi.clear();
    ASSERT_TRUE(albero.Copia("Panels\\a.EAM", "Panels\\b.EAM"));
    EXPECT_EQ(passi.size(), 2u);
    passi.clear();
    albero.AssicuraCartella("x\\y");
    EXPECT_EQ(passi, (std::vector<std::string>{
                         "directory x, target new",
                         "directory " + cartella.Percorso().filename().string() + ", target new"}));
    passi.clear();
    albero.AssicuraCartella("x\\y");
    EXPECT_TRUE(passi.empty());
}

TEST_F(AlberoDatiTest, WhatCannotBeMadeToLastDoesNotReplaceTheOld) {
    Metti("Panels/a.EAM", "old");
    const AlberoDati albero(cartella.Percorso(),
                            [](const fs::path& cosa) { return !fs::is_regular_file(cosa); });
    EXPECT_FALSE(albero.Salva("Panels\\a.EAM", std::vector<uint8_t>{'n'}));
    EXPECT_EQ(Prendi("Panels/a.EAM"), "old");
    EXPECT_EQ(Nomi("Panels"), std::vector<std::string>{"a.EAM"});
}

TEST_F(AlberoDatiTest, WhatACrashLeftBehindIsClearedAwayInTime) {
    Metti("Panels/.salva-0", "an hour old");
    Metti("Panels/.salva-1", "of now");
    fs::last_write_time(Host("Panels/.salva-0"),
                        fs::file_time_type::clock::now() - std::chrono::minutes(61));
    ASSERT_TRUE(s.albero.Salva("Panels\\a.EAM", std::vector<uint8_t>{'n'}));
    EXPECT_EQ(Nomi("Panels"), (std::vector<std::string>{".salva-1", "a.EAM"}));
}

TEST_F(AlberoDatiTest, ARenameTakesNothingsPlace) {
    Metti("Sweep/a/x", "a");
    Metti("Sweep/B/x", "b");
    Metti("f", "f");
    EXPECT_FALSE(s.albero.Rinomina("Sweep\\a", "Sweep\\b")) << "there in another case";
    EXPECT_FALSE(s.albero.Rinomina("f", "Sweep\\a\\X"));
    EXPECT_FALSE(s.albero.Rinomina("absent", "c"));
    EXPECT_FALSE(s.albero.Rinomina("f", "..\\f"));
    EXPECT_FALSE(s.albero.Rinomina("", "c"));
    EXPECT_EQ(Prendi("Sweep/a/x") + Prendi("Sweep/B/x") + Prendi("f"), "abf");
    EXPECT_TRUE(s.albero.Rinomina("SWEEP\\A\\", "Sweep\\New Name\\"));
    EXPECT_EQ(Nomi("Sweep"), (std::vector<std::string>{"B", "New Name"}));
    EXPECT_TRUE(s.albero.CancellaCartellaVuota("absent"));
    EXPECT_FALSE(s.albero.CancellaCartellaVuota("Sweep\\b"));
    EXPECT_FALSE(s.albero.CancellaCartellaVuota("f"));
}

TEST_F(AlberoDatiTest, EveryDirectoryOfTheTreeIsMadeOnDemand) {
    for (const std::string_view nome : orvane::cartella::kTutte) {
        EXPECT_TRUE(nome.ends_with('\\'));
        s.albero.AssicuraCartella(nome);
        EXPECT_TRUE(s.albero.EsisteCartella(nome)) << nome;
    }
    EXPECT_EQ(Nomi(""),
              (std::vector<std::string>{"Analyzer", "Click", "Factors", "Limits", "Mast-Table",
                                        "Panels", "Report", "Sweep", "TMP", "Table", "Waterfall"}));
}

TEST(NomiDiscoTest, TableNamesStayInTheirDirectory) {
    for (const char* buono : {"EN55011 A", "A+B", "v1.2", "NONE"})
        EXPECT_TRUE(NomeTabellaAmmesso(buono)) << buono;
    for (const char* cattivo : {"", "  ", "..\\x", "a/b", "C:x", "a*", "what?"})
        EXPECT_FALSE(NomeTabellaAmmesso(cattivo)) << cattivo;
}

} // namespace
} // namespace orvane::prova
