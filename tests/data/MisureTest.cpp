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

TEST_F(MisureTest, PathsOfAMeasure) {
    EXPECT_EQ(CartellaMisura("a"), "Sweep\\a\\");
    EXPECT_EQ(PercorsoKSH("a b"), "Sweep\\a b\\a b.KSH");
    EXPECT_EQ(PercorsoRS("a", "a-L1", 9), "Sweep\\a\\a-L1.RS9");
}

TEST_F(MisureTest, AFreeNameIsTakenWithoutAQuestion) {
    s.setup.OverwriteWarning = -1;
    Cartelle({"other"});
    Metti("Sweep/file", "not a directory");
    for (const char* nome : {"TEST", " TEST ", "Sweep\\TEST\\TEST.KSH", "TEST.KSH"})
        EXPECT_EQ(ControlNameMeasProfiloB(s, nome), "TEST") << nome;
    EXPECT_EQ(ControlNameMeasProfiloB(s, "file"), "file");
    EXPECT_TRUE(ambiente.riquadri.empty());
    EXPECT_FALSE(fs::exists(Host("Sweep/TEST"))) << "nothing changes on disk";
}

TEST_F(MisureTest, ATakenNameAsksToRenameThenToReplace) {
    s.setup.OverwriteWarning = -1;
    Cartelle({"TEST", "Test_000", "TEST_002"});
    struct {
        std::deque<Risposta> risposte;
        const char* esito;
        size_t riquadri;
    } const casi[] = {{{Risposta::Si}, "test_001", 1},
                      {{Risposta::No, Risposta::Si}, "test", 2},
                      {{Risposta::No, Risposta::No}, "", 2}};
    for (const auto& caso : casi) {
        ambiente.riquadri.clear();
        ambiente.risposte = caso.risposte;
        EXPECT_EQ(ControlNameMeasProfiloB(s, "test"), caso.esito);
        const std::vector<std::string> attesi = {"Sweep test already exists.\rRename in test_001?",
                                                 "Replace it?"};
        EXPECT_EQ(Testi(),
                  std::vector(attesi.begin(), attesi.begin() + static_cast<long>(caso.riquadri)));
    }
}

TEST_F(MisureTest, WithoutTheWarningTheNameIsTakenOver) {
    s.setup.OverwriteWarning = 0;
    Cartelle({"TEST"});
    EXPECT_EQ(ControlNameMeasProfiloB(s, "TEST"), "TEST");
    EXPECT_TRUE(ambiente.riquadri.empty());
}

TEST_F(MisureTest, AfterAThousandNamesOnlyReplacingIsLeft) {
    Cartelle({"T"});
    for (int i = 0; i < 999; ++i) {
        Cartelle({("T_" + TestoIntero(i, 3)).c_str()});
    }
    s.setup.OverwriteWarning = -1;
    ambiente.risposte = {Risposta::Si};
    EXPECT_EQ(ControlNameMeasProfiloB(s, "T"), "T_999") << "the last number is free";
    Cartelle({"T_999"});
    ambiente.riquadri.clear();
    ambiente.risposte = {Risposta::No, Risposta::Si};
    EXPECT_EQ(ControlNameMeasProfiloB(s, "T"), "");
    EXPECT_EQ(ControlNameMeasProfiloB(s, "T"), "T");
    EXPECT_EQ(Testi()[0], "T already exists.\rReplace it to?");
    s.setup.OverwriteWarning = 0;
    EXPECT_EQ(ControlNameMeasProfiloB(s, "T"), "T");
    EXPECT_EQ(ambiente.riquadri.size(), 2u);
}

TEST_F(MisureTest, ANameThatIsNoNameIsRefused) {
    for (const std::string& nome : {std::string(), std::string("  "), std::string("a.b"),
                                    std::string(".."), std::string("a/b"), std::string("what?"),
                                    std::string("a\0b", 3), std::string("x\\..\\")}) {
        EXPECT_EQ(ControlNameMeasProfiloB(s, nome), "") << nome;
        EXPECT_TRUE(Riquadro().starts_with("Not valid name\r")) << nome;
    }
}

TEST_F(MisureTest, TheHeaderComesBackAndAnAbsentOneIsMade) {
    ScanRecord scan;
    scan.Righe[0].Start = 0.15;
    scan.Righe[0].Stop = 30;
    scan.Righe[0].Detector = {1, 1};
    scan.Righe[0].Prompt = "connect \xC2\xB5";
    SetupRecord setup;
    setup.UnitId = 2;
    setup.FwRelease = "Rel. FW 2.1";
    ASSERT_TRUE(SalvaHeaderSweep(s, PercorsoKSH("m"), scan, setup));
    EXPECT_EQ(fs::file_size(Host("Sweep/m/m.KSH")), 17770u);
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

TEST_F(MisureTest, ABrokenHeaderKeepsWhatWasReadAndIsHarmless) {
    ScanRecord scan;
    scan.Righe[0].Start = 5;
    scan.Righe[0].RbwId = 4;
    const std::vector<uint8_t> byte = ScriviRecord(scan);
    Metti("Sweep/m/m.KSH", std::vector<uint8_t>(byte.begin(), byte.begin() + 3000));
    ScanRecord letto;
    letto.ScanComment = "mine";
    SetupRecord setup;
    EXPECT_FALSE(CaricaHeaderSweep(s, PercorsoKSH("m"), letto, setup));
    EXPECT_EQ(Riquadro(), "Failed loading" + s.albero.DataRoot() + "Sweep\\m\\m.KSH");
    EXPECT_EQ(letto.Righe[0].Start, 5);
    EXPECT_EQ(letto.Righe[0].RbwId, 3);
    EXPECT_EQ(letto.ScanComment, "mine");
    fs::create_directories(Host("Sweep/d/d.KSH"));
    EXPECT_FALSE(SalvaHeaderSweep(s, PercorsoKSH("d"), letto, setup));
    EXPECT_EQ(Riquadro(), "Cannot open file " + s.albero.DataRoot() + "Sweep\\d\\d.KSH");
}

TEST_F(MisureTest, ANewRunFindsItsDirectoryEmptyAndTouchesNoOther) {
    for (const char* file : {"Sweep/m/m.KSH", "Sweep/m/m.RS0", "Sweep/m/Test Comment.TXT",
                             "Sweep/m/Sub_Measure/W_01.RS0", "Sweep/m2/m2.KSH", "Sweep/loose"})
        Metti(file, "old");
    PreparaCartellaMisura(s, "M");
    EXPECT_EQ(Nomi("Sweep/m"), std::vector<std::string>{"Sub_Measure"});
    EXPECT_TRUE(Nomi("Sweep/m/Sub_Measure").empty());
    EXPECT_EQ(Prendi("Sweep/m2/m2.KSH"), "old");
    EXPECT_EQ(Prendi("Sweep/loose"), "old");
    PreparaCartellaMisura(s, "fresh");
    EXPECT_TRUE(fs::is_directory(Host("Sweep/fresh/Sub_Measure")));
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
    s.setup.FactorName[0] = "A";
    s.setup.FactorName[1] = "C";
    s.setup.FactorName[2] = "NONE";
    CopiaFileLimSweep(s, "m", tabella);
    CopiaFileFacSweep(s, "m");
    EXPECT_EQ(Nomi("Sweep/m/Limits").size(), 2u);
    EXPECT_EQ(*s.albero.Leggi("Sweep\\m\\Limits\\A.5SL"),
              (std::vector<uint8_t>{'l', 'i', 'm', 'i', 't', ' ', 'A'}));
    EXPECT_TRUE(s.albero.Esiste("Sweep\\m\\Limits\\B.5SL"));
    EXPECT_EQ(Nomi("Sweep/m/Factors"), std::vector<std::string>{"C.5SC"});
    EXPECT_TRUE(ambiente.riquadri.empty());
}

TEST_F(MisureTest, TheArchiveTellsDatesLinesStepsAndDetectors) {
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
    Metti("Sweep/Alpha/Sub_Measure/MEASMT.RS0", std::string(24, 'x'));
    Metti("Sweep/no measure.txt", "");
    const std::vector<VoceArchivio> voci = ElencaMisure(s);
    ASSERT_EQ(voci.size(), 2u);
    EXPECT_EQ(voci[0].nome, "Alpha");
    EXPECT_FALSE(voci[0].leggibile);
    EXPECT_EQ(voci[0].passi, 2) << "traces below, where there are none beside";
    EXPECT_EQ(voci[1].nome, "beta");
    EXPECT_TRUE(voci[1].leggibile);
    EXPECT_EQ(voci[1].righe, 2);
    EXPECT_EQ(voci[1].passi, 12);
    EXPECT_EQ(voci[1].detector, "PQA");
    EXPECT_EQ(voci[1].prima, "02/07/2024 03:05:09");
    EXPECT_EQ(voci[1].ultima, "31/12/2025 23:30:00");
}

TEST_F(MisureTest, AnEmptyArchiveIsNoFailure) {
    EXPECT_TRUE(ElencaMisure(s).empty());
    fs::create_directories(Host("Sweep/bare"));
    const auto voci = ElencaMisure(s);
    ASSERT_EQ(voci.size(), 1u);
    EXPECT_FALSE(voci[0].leggibile);
    EXPECT_EQ(voci[0].prima, "");
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
    struct {
        const char* percorso;
        const char* esito;
        const char* poi; ///< the path afterwards
    } const casi[] = {
        {"Sweep\\m\\m.KSH", "\\m", "Sweep\\m\\m.KSH"},
        {"  Sweep\\a b\\a b.KSH ", "\\a b", "  Sweep\\a b\\a b.KSH "},
        {"Sweep\\what?\\what?.KSH", "\\Untitled", "Untitled.KSH"},
        {"Sweep\\x\\...KSH", "\\Untitled", "Untitled.KSH"},
        {"file.KSH", "\\Untitled", "Untitled.KSH"},
        {".KSH", "\\Untitled", "Untitled."},
        {"Untitled.EST", "\\Untitled", "Untitled.EST"},
    };
    for (const auto& caso : casi) {
        s.env.SweepPath = caso.percorso;
        EXPECT_EQ(DirMisuraCorrente(s), caso.esito) << caso.percorso;
        EXPECT_EQ(s.env.SweepPath, caso.poi);
    }
}

TEST_F(MisureTest, OnTheirSwitchesAHeaderWrittenAgainIsCopiedWithItsTraces) {
    ScanRecord prima;
    prima.ScanComment = "first";
    for (const char* file : {"Sweep/m/m.RS0", "Sweep/m/m.TM0", "Sweep/m/Test Comment.TXT",
                             "Sweep/m/Sub_Measure/W_01.RS0", "Sweep/m/Limits/a.5SL"})
        Metti(file, "t");
    struct {
        const char* riga;
        bool copia;
    } const casi[] = {{"", false},
                      {"/SAVESETFCSWEEP", false},
                      {"/SETFCSWEEP", false},
                      {"/setfcsweep /savesetfcsweep", false},
                      {"/SAVESETFCSWEEP /SETFCSWEEP", true}};
    for (const auto& caso : casi) {
        fs::remove(Host("Sweep/m/m.KSH"));
        ambiente.riga = caso.riga;
        ASSERT_TRUE(SalvaHeaderSweep(s, PercorsoKSH("m"), prima, {}));
        EXPECT_FALSE(fs::exists(Host("COPYFC"))) << "nothing to copy the first time";
        ASSERT_TRUE(SalvaHeaderSweep(s, s.albero.DataRoot() + PercorsoKSH("m"), {}, {}));
        EXPECT_EQ(fs::exists(Host("COPYFC")), caso.copia) << caso.riga;
    }
    EXPECT_EQ(Nomi("COPYFC/Sweep/m"),
              (std::vector<std::string>{"Sub_Measure", "m.KSH", "m.RS0", "m.TM0"}));
    EXPECT_EQ(Nomi("COPYFC/Sweep/m/Sub_Measure"), std::vector<std::string>{"W_01.RS0"});
    ScanRecord copiato;
    ASSERT_TRUE(LeggiRecord(*s.albero.Leggi("COPYFC\\Sweep\\m\\m.KSH"), copiato));
    EXPECT_EQ(copiato.ScanComment, "first") << "as it was before";
    EXPECT_TRUE(ambiente.riquadri.empty());
}

TEST_F(MisureTest, TheDatesOfAMeasureAreThoseOfItsTraces) {
    EXPECT_EQ(DataMisura(s, "m").prima, "");
    Metti("Sweep/m/Sub_Measure/a.RS3", "");
    Data("Sweep/m/Sub_Measure/a.RS3", 2023, 1, 2, "00:00:01");
    EXPECT_EQ(DataMisura(s, "m").prima, "02/01/2023 00:00:01");
    Metti("Sweep/m/m.RS9", "");
    Metti("Sweep/m/m.RS0", "");
    Metti("Sweep/m/m.KSH", "");
    Data("Sweep/m/m.RS9", 2024, 2, 29, "23:59:59");
    Data("Sweep/m/m.RS0", 2025, 2, 28, "12:00:00");
    EXPECT_EQ(DataMisura(s, "M").prima, "29/02/2024 23:59:59");
    EXPECT_EQ(DataMisura(s, "M").ultima, "28/02/2025 12:00:00");
}

} // namespace
} // namespace orvane::prova
