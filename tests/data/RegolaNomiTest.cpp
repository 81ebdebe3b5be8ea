// The name of a new measure or scan table that exists: boxes, shifts, and shifts that fail or are
// cut off at any step.
#include "data/RegolaNomi.h"

#include <sys/wait.h>
#include <unistd.h>

#include "ScrivaniaProva.h"
#include "base/Numeri.h"
#include "data/Misure.h"

namespace orvane::prova {
namespace {

namespace fs = std::filesystem;
using Elenco = std::vector<std::string>;

struct RegolaNomiTest : ProvaDati {
    /// A measure whose header and traces tell which one it is.
    void Misura(const std::string& nome, const std::string& segno) {
        ScanRecord scan;
        scan.ScanComment = segno;
        scan.Righe[0] = {.Start = 1, .Stop = 2, .Step = 1, .Detector = {1}};
        Metti("Sweep/" + nome + "/" + nome + ".KSH", ScriviRecord(SweepHeader{scan, {}}));
        for (const char* file : {".RS0", ".RS1", "-L1.RS0", ".TM0"})
            Metti("Sweep/" + nome + "/" + nome + file, segno + std::string(12, ' '));
        Metti("Sweep/" + nome + "/Sub_Measure/W_01.RS0", segno);
        Metti("Sweep/" + nome + "/Test Comment.TXT", segno);
    }
    void Tre() {
        fs::remove_all(Host("Sweep"));
        Misura("TEST", "a");
        Misura("TEST_000", "b");
        Misura("TEST_001", "c");
    }
    /// What a reader finds of a measure: the sign in its header, and whether its line is there.
    std::string Trova(const std::string& nome) {
        const auto dati = s.albero.Leggi(TrovaKSH(s.albero, nome));
        SweepHeader header;
        if (!dati || !LeggiRecord(*dati, header))
            return "no header";
        const SweepTrace traccia =
            CreaTracciaSweep(s, nome, nome, header.Scan.Righe, DetectorKind::Peak);
        return traccia.empty() ? "no trace" : header.Scan.ScanComment;
    }
    /// The signs of all measures that can be found, by directory.
    Elenco TrovaTutte() {
        Elenco segni;
        for (const std::string& nome : s.albero.ElencaCartelle("Sweep"))
            segni.push_back(Trova(nome));
        std::sort(segni.begin(), segni.end());
        return segni;
    }
    Elenco Testi() const { return ambiente.Testi(); }
};

TEST_F(RegolaNomiTest, ProfileALeavesAFreeNameAloneAndRefusesWhatIsNone) {
    s.setup.OverwriteWarning = -1;
    Metti("Sweep/file", "not a directory");
    for (const char* nome : {"TEST", " TEST ", "Sweep\\TEST\\TEST.KSH", "file"})
        EXPECT_TRUE(ControlNameMeasProfiloA(s, nome)) << nome;
    EXPECT_TRUE(ambiente.riquadri.empty());
    for (const char* nome : {"", "a.b", "..", "x\\..\\", "a+b", "k\xCE\xA9"}) {
        EXPECT_FALSE(ControlNameMeasProfiloA(s, nome) || RedoProfiloA(s, nome));
        EXPECT_EQ(RedoProfiloB(s, nome) + ControlNameMeasProfiloB(s, nome), "");
    }
    ASSERT_EQ(ambiente.riquadri.size(), 24u);
    for (const auto& riquadro : ambiente.riquadri)
        EXPECT_TRUE(riquadro.testo.starts_with("Not valid name\r")) << riquadro.testo;
    EXPECT_EQ(Nomi("Sweep"), Elenco{"file"});
}

TEST_F(RegolaNomiTest, ProfileAShiftsFromTheHighestNumberToTheLowest) {
    s.setup.OverwriteWarning = -1;
    Tre();
    Misura("TEST_003", "d"); // behind the first free number: stays
    ambiente.risposte = {Risposta::Si};
    EXPECT_TRUE(ControlNameMeasProfiloA(s, "test"));
    EXPECT_EQ(Testi(), Elenco{"Sweep test already exists.\rRename in test_000?"});
    EXPECT_EQ(Nomi("Sweep"), (Elenco{"TEST_003", "test_000", "test_001", "test_002"}));
    EXPECT_EQ(Trova("TEST_000") + Trova("TEST_001") + Trova("TEST_002") + Trova("TEST_003"),
              "abcd");
}

TEST_F(RegolaNomiTest, ProfileARenamesHeaderAndTracesButNotPositionsAndSubMeasures) {
    s.setup.OverwriteWarning = -1;
    Misura("T", "a");
    Metti("Sweep/T/Tail.RS0", "of another name");
    Metti("Sweep/T/Other.KSH", "of another name");
    ambiente.risposte = {Risposta::Si};
    ASSERT_TRUE(ControlNameMeasProfiloA(s, "T"));
    EXPECT_EQ(Nomi("Sweep/T_000"),
              (Elenco{"Other.KSH", "Sub_Measure", "T.TM0", "T_000-L1.RS0", "T_000.KSH", "T_000.RS0",
                      "T_000.RS1", "Tail.RS0", "Test Comment.TXT"}));
    EXPECT_EQ(Nomi("Sweep/T_000/Sub_Measure"), Elenco{"W_01.RS0"});
}

TEST_F(RegolaNomiTest, ProfileAAsksBeforeItReplaces) {
    Misura("T", "a");
    for (const bool sostituisci : {true, false}) {
        s.setup.OverwriteWarning = -1;
        ambiente.riquadri.clear();
        ambiente.risposte = {Risposta::No, sostituisci ? Risposta::Si : Risposta::No};
        EXPECT_EQ(ControlNameMeasProfiloA(s, "T"), sostituisci);
        EXPECT_EQ(Testi(), (Elenco{"Sweep T already exists.\rRename in T_000?", "Replace it?"}));
        s.setup.OverwriteWarning = 0;
        EXPECT_TRUE(ControlNameMeasProfiloA(s, "T"));
        EXPECT_EQ(ambiente.riquadri.size(), 2u) << "without the warning no question";
        EXPECT_EQ(Nomi("Sweep"), Elenco{"T"});
    }
    for (int i = 0; i < 1000; ++i)
        fs::create_directories(Host("Sweep/T_" + TestoIntero(i, 3)));
    s.setup.OverwriteWarning = -1;
    ambiente.risposte = {Risposta::Si};
    EXPECT_TRUE(ControlNameMeasProfiloA(s, "T"));
    EXPECT_EQ(Testi().back(), "T already exists.\rReplace it to?") << "no number is free";
}

/// Each new name of the shift in turn is taken by something that cannot give way.
TEST_F(RegolaNomiTest, AShiftThatFailsAtAnyStepIsTakenBackWhole) {
    const char* const ostacoli[] = {
        "TEST_001/TEST_002.KSH/x",    "TEST_001/TEST_002.RS0/x",
        "TEST_001/TEST_002-L1.RS0/x", "TEST_002",
        "TEST_000/TEST_001.KSH/x",    "TEST_000/TEST_001.RS1/x",
        "TEST/TEST_000.KSH/x",        "TEST/TEST_000.RS0/x",
        "TEST/TEST_000.RS1/x",        "TEST/TEST_000-L1.RS0/x",
    };
    for (const char* ostacolo : ostacoli) {
        SCOPED_TRACE(ostacolo);
        Tre();
        Metti("Sweep/" + std::string(ostacolo), "in the way");
        s.setup.OverwriteWarning = -1;
        ambiente.riquadri.clear();
        ambiente.risposte = {Risposta::Si};
        EXPECT_FALSE(ControlNameMeasProfiloA(s, "TEST"));
        ASSERT_EQ(ambiente.riquadri.size(), 2u);
        EXPECT_TRUE(ambiente.riquadri[1].testo.starts_with("Cannot open file " +
                                                           s.albero.DataRoot() + "Sweep\\TEST"));
        for (const char* nome : {"TEST", "TEST_000", "TEST_001"})
            for (const char* file : {".KSH", ".RS0", ".RS1", "-L1.RS0", ".TM0"})
                EXPECT_TRUE(fs::is_regular_file(Host("Sweep") / nome / (std::string(nome) + file)));
        EXPECT_EQ(TrovaTutte(), (Elenco{"a", "b", "c"}));
    }
}

/// A process that ends at the n-th rename, as by a power cut: whatever it leaves is still found,
/// and the next shift puts it right.
TEST_F(RegolaNomiTest, AShiftCutOffAtAnyStepLosesNoMeasure) {
    for (int passo = 1; passo <= 15; ++passo) {
        SCOPED_TRACE(passo);
        Tre();
        s.setup.OverwriteWarning = -1;
        const pid_t figlio = fork();
        ASSERT_GE(figlio, 0);
        if (figlio == 0) {
            int restano = passo;
            Scrivania altra{.ambiente = ambiente,
                            .albero = AlberoDati(cartella.Percorso(), [&](const fs::path&) {
                                if (--restano == 0)
                                    _exit(0);
                                return true;
                            })};
            altra.setup.OverwriteWarning = -1;
            ambiente.risposte = {Risposta::Si};
            ControlNameMeasProfiloA(altra, "TEST");
            _exit(1);
        }
        int stato = 0;
        waitpid(figlio, &stato, 0);
        ASSERT_TRUE(WIFEXITED(stato));
        EXPECT_EQ(WEXITSTATUS(stato), 0) << "the shift has 15 steps";
        EXPECT_EQ(TrovaTutte(), (Elenco{"a", "b", "c"}));
    }
}

TEST_F(RegolaNomiTest, ScanTablesFollowTheSameRulesUnderTheirOwnWord) {
    s.setup.OverwriteWarning = -1;
    Metti("Panels/Base.EST", "a");
    Metti("Panels/BASE_000.est", "b");
    Metti("Panels/Base_001.EAM", "no scan table");
    EXPECT_EQ(RedoProfiloB(s, "Free"), "Free");
    EXPECT_TRUE(RedoProfiloA(s, "Panels\\Free.EST"));
    EXPECT_TRUE(ambiente.riquadri.empty());
    ambiente.risposte = {Risposta::Si};
    EXPECT_EQ(RedoProfiloB(s, "base"), "base_001");
    EXPECT_EQ(Riquadro(), "Scan Table base already exists.\rRename in base_001?");
    ambiente.risposte = {Risposta::Si};
    EXPECT_TRUE(RedoProfiloA(s, "Panels\\base.EST"));
    EXPECT_EQ(Riquadro(), "Scan Table base already exists.\rRename in base_000?");
    EXPECT_EQ(Nomi("Panels"), (Elenco{"Base_001.EAM", "base_000.EST", "base_001.EST"}));
    EXPECT_EQ(Prendi("Panels/base_000.EST") + Prendi("Panels/base_001.EST"), "ab");
}

TEST_F(RegolaNomiTest, AShiftOfScanTablesThatFailsIsTakenBack) {
    s.setup.OverwriteWarning = -1;
    Metti("Panels/B.EST", "a");
    Metti("Panels/B_000.EST", "b");
    Metti("Panels/B_001.EST/x", "in the way"); // a directory is no scan table
    ambiente.risposte = {Risposta::Si};
    EXPECT_FALSE(RedoProfiloA(s, "B"));
    EXPECT_EQ(Testi().back(), "Cannot open file " + s.albero.DataRoot() + "Panels\\B_000.EST");
    EXPECT_EQ(Prendi("Panels/B.EST") + Prendi("Panels/B_000.EST"), "ab");
}

} // namespace
} // namespace orvane::prova
