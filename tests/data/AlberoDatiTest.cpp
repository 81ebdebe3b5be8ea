// The tree: names in any case, paths that must not lead out, files replaced whole or not at all.
#include "data/AlberoDati.h"

#include "ScrivaniaProva.h"
#include "data/NomiDisco.h"

namespace orvane::prova {
namespace {

namespace fs = std::filesystem;

using AlberoDatiTest = ProvaDati;

TEST_F(AlberoDatiTest, DataRootHasBackslashesAndOneAtTheEnd) {
    std::string atteso = cartella.Percorso().string() + "\\";
    std::replace(atteso.begin(), atteso.end(), '/', '\\');
    for (const fs::path& radice :
         {cartella.Percorso(), cartella.Percorso() / "", cartella.Percorso() / "." / "x" / ".."})
        EXPECT_EQ(AlberoDati(radice).DataRoot(), atteso) << radice;
}

TEST_F(AlberoDatiTest, NamesAreFoundWhateverTheirCase) {
    Metti("SWEEP/Motor Test/motor test.ksh", "k");
    Metti("sweep.txt", "t");
    Metti("Limits/\xC3\x89mission.5sl", "l");
    const std::pair<const char*, const char*> casi[] = {
        {"Sweep\\MOTOR TEST\\Motor Test.KSH", "SWEEP/Motor Test/motor test.ksh"},
        {"sweep/motor test/MOTOR TEST.KSH", "SWEEP/Motor Test/motor test.ksh"},
        {"\x53weep\\.\\motor test\\\\motor test.ksh", "SWEEP/Motor Test/motor test.ksh"},
        {"Sweep.TXT", "sweep.txt"},
        {"LIMITS\\\xC3\xA9MISSION.5SL", "Limits/\xC3\x89mission.5sl"},
    };
    for (const auto& [chiesto, trovato] : casi) {
        EXPECT_EQ(s.albero.Host(chiesto), Host(trovato)) << chiesto;
        EXPECT_TRUE(s.albero.Esiste(chiesto)) << chiesto;
    }
    EXPECT_TRUE(s.albero.EsisteCartella("sWEEP\\motor TEST\\"));
    EXPECT_FALSE(s.albero.Esiste("sWEEP\\motor TEST"));
    EXPECT_FALSE(s.albero.EsisteCartella("Sweep.txt"));
}

TEST_F(AlberoDatiTest, TheExactCaseGoesFirstThenTheFirstOfTheOthers) {
    for (const char* nome : {"base", "Base", "BASE"})
        Metti("Panels/" + std::string(nome) + ".EST", "");
    for (const auto& [chiesto, trovato] :
         {std::pair{"base", "base"}, {"Base", "Base"}, {"bAse", "BASE"}})
        EXPECT_EQ(s.albero.Host("Panels\\" + std::string(chiesto) + ".EST"),
                  Host("Panels/" + std::string(trovato) + ".EST"));
}

TEST_F(AlberoDatiTest, ANewFileKeepsTheCaseThatWasAskedFor) {
    fs::create_directories(Host("PANELS"));
    for (const char* nome : {"Panels\\MyPanel.eam", "panels\\MYPANEL.EAM"}) {
        ASSERT_TRUE(s.albero.Salva(nome, std::vector<uint8_t>{1, 2, 3}));
        EXPECT_EQ(Nomi("PANELS"), std::vector<std::string>{"MyPanel.eam"}) << "one, not two";
    }
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
    for (const std::string& percorso :
         {std::string("..\\secret"), std::string("Sweep\\..\\secret"),
          std::string("Sweep/../secret"), std::string("Sweep\\.. \\secret"),
          std::string("\\etc\\passwd"), std::string("/etc/passwd"),
          std::string("C:\\Windows\\x.ini"), std::string("C:secret"),
          std::string("secret\0.KSH", 11), s.albero.DataRoot() + "..\\secret",
          cartella.Percorso().string() + "-other/secret",
          cartella.Percorso().parent_path().string()}) {
        SCOPED_TRACE(percorso);
        EXPECT_FALSE(s.albero.Esiste(percorso) || s.albero.EsisteCartella(percorso));
        EXPECT_FALSE(s.albero.Leggi(percorso).has_value());
        EXPECT_FALSE(s.albero.Salva(percorso, std::vector<uint8_t>{1}));
        EXPECT_FALSE(s.albero.Copia("secret", percorso) || s.albero.Copia(percorso, "copy"));
        s.albero.AssicuraCartella(percorso);
        s.albero.Cancella(percorso);
        s.albero.CancellaCartella(percorso);
    }
    EXPECT_EQ(Nomi(""), (std::vector<std::string>{"Sweep", "secret"}));
}

TEST_F(AlberoDatiTest, AFailedWriteLeavesTheOldFileAndNothingElse) {
    Metti("Panels/a.EAM", "old");
    Metti("Panels/d/inside", "i");
    Metti("big", std::string(5000, 'y'));
    {
        const DiscoPieno pieno(1000);
        EXPECT_FALSE(s.albero.Salva("Panels\\a.EAM", std::vector<uint8_t>(5000, 'x')));
        EXPECT_FALSE(s.albero.Copia("big", "Panels\\a.EAM"));
    }
    EXPECT_FALSE(s.albero.Salva("Panels\\d", std::vector<uint8_t>{1})) << "a directory";
    EXPECT_FALSE(s.albero.Cancella("Panels\\d") || s.albero.Leggi("Panels\\d"));
    EXPECT_FALSE(s.albero.Salva("Missing\\a.EAM", std::vector<uint8_t>{1}));
    EXPECT_EQ(Prendi("Panels/a.EAM") + Prendi("Panels/d/inside"), "oldi");
    EXPECT_EQ(Nomi("Panels"), (std::vector<std::string>{"a.EAM", "d"}));
    EXPECT_EQ(s.albero.Leggi("big", 4)->size(), 4u);
}

TEST_F(AlberoDatiTest, OfForeignTemporaryFilesOnlyThoseOfACrashAreClearedAway) {
    Metti("Panels/.salva-0", "of another console");
    Metti("Panels/.salva-1", "an hour old");
    fs::last_write_time(Host("Panels/.salva-1"),
                        fs::file_time_type::clock::now() - std::chrono::minutes(61));
    ASSERT_TRUE(s.albero.Salva("Panels\\a.EAM", std::vector<uint8_t>{'n'}));
    EXPECT_EQ(Prendi("Panels/.salva-0"), "of another console");
    EXPECT_EQ(Nomi("Panels"), (std::vector<std::string>{".salva-0", "a.EAM"}));
    EXPECT_EQ(s.albero.ElencaFile("Panels", ""), std::vector<std::string>{"a.EAM"});
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
    using Passi = std::vector<std::string>;
    Metti("Panels/a.EAM", "old");
    Passi passi;
    const AlberoDati albero(cartella.Percorso(), [&](const fs::path& cosa) {
        passi.push_back((fs::is_regular_file(cosa) ? std::to_string(fs::file_size(cosa))
                                                   : cosa.filename().string()) +
                        " " + Prendi("Panels/a.EAM"));
        return true;
    });
    ASSERT_TRUE(albero.Salva("Panels\\a.EAM", std::vector<uint8_t>{'n', 'e', 'w'}));
    EXPECT_EQ(passi, (Passi{"3 old", "Panels new"}));
    ASSERT_TRUE(albero.Copia("Panels\\a.EAM", "Panels\\b.EAM"));
    EXPECT_EQ(passi.size(), 4u);
    passi.clear();
    albero.AssicuraCartella("x\\y");
    albero.AssicuraCartella("x\\y"); // there already
    EXPECT_EQ(passi, (Passi{"x new", cartella.Percorso().filename().string() + " new"}));
}

TEST_F(AlberoDatiTest, WhatCannotBeMadeToLastDoesNotReplaceTheOld) {
    Metti("Panels/a.EAM", "old");
    const AlberoDati albero(cartella.Percorso(),
                            [](const fs::path& cosa) { return !fs::is_regular_file(cosa); });
    EXPECT_FALSE(albero.Salva("Panels\\a.EAM", std::vector<uint8_t>{'n'}));
    EXPECT_EQ(Prendi("Panels/a.EAM"), "old");
    EXPECT_EQ(Nomi("Panels"), std::vector<std::string>{"a.EAM"});
}

TEST_F(AlberoDatiTest, ARenameTakesNothingsPlace) {
    for (const char* file : {"Sweep/a/x", "Sweep/B/x", "f"})
        Metti(file, file);
    for (const auto& [da, a] : {std::pair{"Sweep\\a", "Sweep\\b"}, // there in another case
                                {"f", "Sweep\\a\\X"},
                                {"absent", "c"},
                                {"f", "..\\f"},
                                {"", "c"}})
        EXPECT_FALSE(s.albero.Rinomina(da, a)) << da;
    EXPECT_EQ(Prendi("Sweep/a/x") + Prendi("Sweep/B/x") + Prendi("f"), "Sweep/a/xSweep/B/xf");
    EXPECT_TRUE(s.albero.Rinomina("SWEEP\\A\\", "Sweep\\New Name\\"));
    EXPECT_EQ(Nomi("Sweep"), (std::vector<std::string>{"B", "New Name"}));
    EXPECT_TRUE(s.albero.CancellaCartellaVuota("absent"));
    EXPECT_FALSE(s.albero.CancellaCartellaVuota("Sweep\\b") || s.albero.CancellaCartellaVuota("f"));
}

TEST(NomiDiscoTest, TableNamesStayInTheirDirectory) {
    for (const char* buono : {"EN55011 A", "A+B", "v1.2", "NONE"})
        EXPECT_TRUE(NomeTabellaAmmesso(buono)) << buono;
    for (const char* cattivo : {"", "  ", "..\\x", "a/b", "C:x", "a*", "what?"})
        EXPECT_FALSE(NomeTabellaAmmesso(cattivo)) << cattivo;
}

} // namespace
} // namespace orvane::prova
