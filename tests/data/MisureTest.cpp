// Measures: the name of a new one, its header, its directory, its copies, and the list of all.
#include "data/Misure.h"

#include <chrono>
#include <ctime>

#include "ScrivaniaProva.h"
#include "base/Numeri.h"

namespace orvane::prova {
namespace {

namespace fs = std::filesystem;

struct MisureTest : ProvaDati {
    void Cartelle(std::initializer_list<const char*> nomi) {
        for (const char* nome : nomi)
            fs::create_directories(Host("Sweep") / nome);
    }
    std::vector<std::string> Testi() const {
        std::vector<std::string> testi;
        for (const auto& riquadro : ambiente.riquadri) {
            EXPECT_EQ(riquadro.pulsanti, Pulsanti::SiNo);
            EXPECT_EQ(riquadro.icona, Icona::Esclamazione);
            testi.push_back(riquadro.testo);
        }
        return testi;
    }
    /// A trace file's time, local.
    void Data(const std::string& relativo, int anno, int mese, int giorno, const char* ora) const {
        std::tm quando{};
        quando.tm_year = anno - 1900;
        quando.tm_mon = mese - 1;
        quando.tm_mday = giorno;
        quando.tm_isdst = -1;
        std::sscanf(ora, "%d:%d:%d", &quando.tm_hour, &quando.tm_min, &quando.tm_sec);
        const auto sistema = std::chrono::system_clock::from_time_t(std::mktime(&quando));
        fs::last_write_time(Host(relativo), std::chrono::file_clock::from_sys(sistema));
    }
};

TEST_F(MisureTest, AFreeNameIsTakenWithoutAQuestion) {
    s.setup.OverwriteWarning = -1;
    Cartelle({"other"});
    Metti("Sweep/file", "not a directory");
    for (const char* nome : {"TEST", " TEST ", "Sweep\\TEST\\TEST.KSH", "TEST.KSH"})
        EXPECT_EQ(ControlNameMeasProfiloB(s, nome), "TEST") << nome;
    EXPECT_EQ(ControlNameMeasProfiloB(s, "file"), "file");
    s.setup.OverwriteWarning = 0;
    EXPECT_EQ(ControlNameMeasProfiloB(s, "OTHER"), "OTHER") << "taken over without the warning";
    EXPECT_TRUE(ambiente.riquadri.empty());
    EXPECT_EQ(Nomi("Sweep").size(), 2u) << "nothing changes on disk";
}

TEST_F(MisureTest, ATakenNameAsksToRenameThenToReplace) {
    s.setup.OverwriteWarning = -1;
    Cartelle({"TEST", "Test_000", "TEST_002"});
    const std::pair<std::deque<Risposta>, const char*> casi[] = {
        {{Risposta::Si}, "test_001"}, {{Risposta::No, Risposta::Si}, "test"}, {{}, ""}};
    for (const auto& [risposte, esito] : casi) {
        ambiente.riquadri.clear();
        ambiente.risposte = risposte;
        EXPECT_EQ(ControlNameMeasProfiloB(s, "test"), esito);
        std::vector<std::string> attesi = {"Sweep test already exists.\rRename in test_001?",
                                           "Replace it?"};
        attesi.resize(risposte.size() == 1 ? 1 : 2);
        EXPECT_EQ(Testi(), attesi);
    }
}

TEST_F(MisureTest, AfterAThousandNamesOnlyReplacingIsLeft) {
    Cartelle({"T"});
    for (int i = 0; i < 999; ++i)
        Cartelle({("T_" + TestoIntero(i, 3)).c_str()});
    s.setup.OverwriteWarning = -1;
    ambiente.risposte = {Risposta::Si, Risposta::No, Risposta::Si};
    EXPECT_EQ(ControlNameMeasProfiloB(s, "T"), "T_999") << "the last number is free";
    Cartelle({"T_999"});
    EXPECT_EQ(ControlNameMeasProfiloB(s, "T"), "");
    EXPECT_EQ(ControlNameMeasProfiloB(s, "T"), "T");
    EXPECT_EQ(Testi()[1], "T already exists.\rReplace it to?");
    s.setup.OverwriteWarning = 0;
    EXPECT_EQ(ControlNameMeasProfiloB(s, "T"), "T");
    EXPECT_EQ(ambiente.riquadri.size(), 3u);
}

TEST_F(MisureTest, TheHeaderComesBackAndAnAbsentOneIsMade) {
    ScanRecord scan;
    scan.Righe[0] = {.Start = 0.15, .Stop = 30, .Detector = {1, 1}, .Prompt = "connect \xC2\xB5"};
    SetupRecord setup;
    setup.UnitId = 2;
    ASSERT_TRUE(SalvaHeaderSweep(s, PercorsoKSH("m"), scan, setup));
    ScanRecord scan2;
    SetupRecord setup2;
    ASSERT_TRUE(CaricaHeaderSweep(s, PercorsoKSH("M"), scan2, setup2));
    EXPECT_EQ(ScriviRecord(scan2), ScriviRecord(scan));
    EXPECT_EQ(ScriviRecord(setup2), ScriviRecord(setup));
    ASSERT_TRUE(CaricaHeaderSweep(s, PercorsoKSH("new"), scan2, setup2));
    EXPECT_EQ(scan2.Righe[0].Start, 0);
    EXPECT_EQ(setup2.UnitId, 2);
    EXPECT_EQ(fs::file_size(Host("Sweep/new/new.KSH")), 17770u);
    EXPECT_TRUE(ambiente.riquadri.empty());
}

TEST_F(MisureTest, ANewRunFindsItsDirectoryEmptyAndTouchesNoOther) {
    for (const char* file : {"Sweep/m/m.KSH", "Sweep/m/m.RS0", "Sweep/m/Test Comment.TXT",
                             "Sweep/m/Sub_Measure/W_01.RS0", "Sweep/m2/m2.KSH", "Sweep/loose"})
        Metti(file, "old");
    PreparaCartellaMisura(s, "M");
    EXPECT_EQ(Nomi("Sweep/m"), std::vector<std::string>{"Sub_Measure"});
    EXPECT_TRUE(Nomi("Sweep/m/Sub_Measure").empty());
    EXPECT_EQ(Prendi("Sweep/m2/m2.KSH") + Prendi("Sweep/loose"), "oldold");
}

TEST_F(MisureTest, LimitsAndFactorsInUseAreCopied) {
    for (const char* nome : {"A", "B", "C"}) {
        Metti(std::string("Limits/") + nome + ".5SL", std::string("limit ") + nome);
        Metti(std::string("Factors/") + nome + ".5SC", std::string("factor ") + nome);
    }
    Metti("Sweep/m/Limits/stale.5SL", "");
    Metti("Sweep/m/Factors/stale.5SC", "");
    Metti("x.5SL", "outside");
    ScanTable tabella;
    tabella[0] = {.Start = 1, .LimitOn = 1, .Limit = "a", .LimitDSDOn = 1, .LimitDSD = "B"};
    tabella[1] = {.Start = 2, .LimitOn = 0, .Limit = "C"};
    tabella[2] = {.Start = 3, .LimitOn = 1, .Limit = "missing"};
    tabella[3] = {.Start = 4, .LimitOn = 1, .Limit = "..\\x"};
    tabella[4] = {.Start = 0, .LimitOn = 1, .Limit = "C"};
    s.setup.FactorOn = {0, 1, 1};
    s.setup.FactorName = {"A", "C", "NONE"};
    CopiaFileLimSweep(s, "m", tabella);
    CopiaFileFacSweep(s, "m");
    EXPECT_EQ(Nomi("Sweep/m/Limits").size(), 2u);
    EXPECT_EQ(s.albero.Leggi("Sweep\\m\\Limits\\A.5SL")->size(), 7u);
    EXPECT_TRUE(s.albero.Esiste("Sweep\\m\\Limits\\B.5SL"));
    EXPECT_EQ(Nomi("Sweep/m/Factors"), std::vector<std::string>{"C.5SC"});
    EXPECT_TRUE(ambiente.riquadri.empty());
}

TEST_F(MisureTest, TheArchiveTellsDatesLinesStepsAndDetectors) {
    EXPECT_TRUE(ElencaMisure(s).empty());
    ScanRecord scan;
    scan.Righe[0] = {.Start = 0.009, .Stop = 0.15, .Detector = {1, 0, 0, 1}};
    scan.Righe[1] = {.Start = 0.15, .Stop = 30, .Detector = {1, 1}};
    ASSERT_TRUE(SalvaHeaderSweep(s, PercorsoKSH("beta"), scan, {}));
    Metti("Sweep/beta/beta.RS0", std::string(12 * 5, 'x'));
    Metti("Sweep/beta/beta.rs1", std::string(12 * 7 + 3, 'x'));
    Metti("Sweep/beta/beta.TM0", std::string(40, 'x'));
    Data("Sweep/beta/beta.RS0", 2024, 7, 2, "03:05:09");
    Data("Sweep/beta/beta.rs1", 2025, 12, 31, "23:30:00");
    Metti("Sweep/Alpha/Alpha.KSH", "too short");
    Metti("Sweep/Alpha/Sub_Measure/MEASMT.RS3", std::string(24, 'x'));
    Data("Sweep/Alpha/Sub_Measure/MEASMT.RS3", 2023, 1, 2, "00:00:01");
    Cartelle({"bare"});
    Metti("Sweep/no measure.txt", "");
    std::string testo;
    for (const VoceArchivio& v : ElencaMisure(s))
        testo += v.nome + (v.leggibile ? " " : "? ") + std::to_string(v.righe) + " " +
                 std::to_string(v.passi) + " " + v.detector + " " + v.prima + " " + v.ultima + "\n";
    // Traces below count where there are none beside.
    EXPECT_EQ(testo, "Alpha? 0 2  02/01/2023 00:00:01 02/01/2023 00:00:01\nbare? 0 0   \n"
                     "beta 2 12 PQA 02/07/2024 03:05:09 31/12/2025 23:30:00\n");
    EXPECT_FALSE(fs::exists(Host("Sweep/bare/bare.KSH"))) << "listing writes nothing";
}

TEST_F(MisureTest, AHeaderUnderAnotherNameIsFoundWhereItIsTheOnlyOne) {
    ScanRecord scan;
    scan.ScanComment = "moved by hand";
    ASSERT_TRUE(SalvaHeaderSweep(s, "Sweep\\new\\old.KSH", scan, {}));
    EXPECT_EQ(BaseMisura(s.albero, "new"), "old");
    EXPECT_EQ(TrovaKSH(s.albero, "new"), "Sweep\\new\\old.KSH");
    ScanRecord letto;
    SetupRecord setup;
    ASSERT_TRUE(CaricaHeaderSweep(s, PercorsoKSH("new"), letto, setup));
    EXPECT_EQ(letto.ScanComment, "moved by hand");
    EXPECT_FALSE(s.albero.Esiste(PercorsoKSH("new"))) << "no cleared one takes its place";
    EXPECT_TRUE(ElencaMisure(s).at(0).leggibile);
    Metti("Sweep/new/third.KSH", "");
    EXPECT_EQ(BaseMisura(s.albero, "new"), "new") << "which of them is open";
    EXPECT_EQ(TrovaKSH(s.albero, "absent"), PercorsoKSH("absent"));
}

TEST_F(MisureTest, TheCurrentMeasureIsNamedByItsPath) {
    Metti("Sweep/file", "");
    // A path, the directory, and the path afterwards.
    const std::array<const char*, 3> casi[] = {
        {"Sweep\\m\\m.KSH", "\\m", "Sweep\\m\\m.KSH"},
        {"  Sweep\\a b\\a b.KSH ", "\\a b", "  Sweep\\a b\\a b.KSH "},
        {"Sweep\\what?\\what?.KSH", "\\Untitled", "Untitled.KSH"},
        {"Sweep\\x\\...KSH", "\\Untitled", "Untitled.KSH"},
        {"file.KSH", "\\Untitled", "Untitled.KSH"},
        {".KSH", "\\Untitled", "Untitled."},
        {"Untitled.EST", "\\Untitled", "Untitled.EST"},
    };
    for (const auto& [percorso, esito, poi] : casi) {
        s.env.SweepPath = percorso;
        EXPECT_EQ(DirMisuraCorrente(s), esito) << percorso;
        EXPECT_EQ(s.env.SweepPath, poi);
    }
}

TEST_F(MisureTest, OnTheirSwitchesAHeaderWrittenAgainIsCopiedWithItsTraces) {
    ScanRecord prima;
    prima.ScanComment = "first";
    for (const char* file : {"Sweep/m/m.RS0", "Sweep/m/m.TM0", "Sweep/m/Test Comment.TXT",
                             "Sweep/m/Sub_Measure/W_01.RS0", "Sweep/m/Limits/a.5SL"})
        Metti(file, "t");
    for (const char* riga : {"", "/SAVESETFCSWEEP", "/SETFCSWEEP", "/setfcsweep /savesetfcsweep",
                             "/SAVESETFCSWEEP /SETFCSWEEP"}) {
        fs::remove(Host("Sweep/m/m.KSH"));
        ambiente.riga = riga;
        ASSERT_TRUE(SalvaHeaderSweep(s, PercorsoKSH("m"), prima, {}));
        EXPECT_FALSE(fs::exists(Host("COPYFC"))) << "nothing to copy the first time";
        ASSERT_TRUE(SalvaHeaderSweep(s, s.albero.DataRoot() + PercorsoKSH("m"), {}, {}));
        EXPECT_EQ(fs::exists(Host("COPYFC")), ambiente.riga.starts_with("/SAVESETFCSWEEP /"))
            << riga;
    }
    EXPECT_EQ(Nomi("COPYFC/Sweep/m"),
              (std::vector<std::string>{"Sub_Measure", "m.KSH", "m.RS0", "m.TM0"}));
    EXPECT_EQ(Nomi("COPYFC/Sweep/m/Sub_Measure"), std::vector<std::string>{"W_01.RS0"});
    ScanRecord copiato;
    ASSERT_TRUE(LeggiRecord(*s.albero.Leggi("COPYFC\\Sweep\\m\\m.KSH"), copiato));
    EXPECT_EQ(copiato.ScanComment, "first") << "as it was before";
    EXPECT_TRUE(ambiente.riquadri.empty());
}

} // namespace
} // namespace orvane::prova
