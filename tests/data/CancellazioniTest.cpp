// Deleting measures, tables and panels.
#include "data/Cancellazioni.h"

#include "ScrivaniaProva.h"
#include "base/Testo.h"
#include "data/Panels.h"

namespace orvane::prova {
namespace {

namespace fs = std::filesystem;

struct CancellazioniTest : ProvaDati {
    void Misura(const std::string& nome) {
        for (const char* file : {"/x.KSH", "/x.RS0", "/Sub_Measure/W_01.RS0", "/Factors/a.5SC",
                                 "/Limits/b.5SL", "/Test Comment.TXT"})
            Metti("Sweep/" + nome + file, "");
    }
};

TEST_F(CancellazioniTest, AMeasureGoesOnlyOnTheUsersWordAndTheLastLeavesAnEmptyArchive) {
    Misura("m");
    Misura("n");
    s.env.SweepPath = "Sweep\\m\\m.KSH";
    EXPECT_FALSE(CancellaMisura(s, "m"));
    EXPECT_EQ(Riquadro(), "Are you sure you want to delete m ?");
    EXPECT_TRUE(fs::exists(Host("Sweep/m/x.KSH")));
    ambiente.risposte = {Risposta::Ok, Risposta::Ok};
    EXPECT_TRUE(CancellaMisura(s, "m"));
    EXPECT_EQ(Nomi("Sweep"), std::vector<std::string>{"n"});
    EXPECT_EQ(s.env.SweepPath, "Sweep\\m\\m.KSH") << "another measure is left";
    EXPECT_TRUE(CancellaMisura(s, "N"));
    EnvRecord letto;
    ASSERT_TRUE(LeggiRecord(*s.albero.Leggi(kPannelloEPN), letto));
    EXPECT_EQ(letto.SweepPath, "Untitled.EST");
}

TEST_F(CancellazioniTest, WhatIsNotOfTheMeasureKeepsItsDirectory) {
    Misura("m");
    Metti("Sweep/m/Photos/set-up.jpg", "mine");
    ambiente.risposte = {Risposta::Ok};
    EXPECT_FALSE(CancellaMisura(s, "m"));
    EXPECT_EQ(ambiente.riquadri.back().testo, "Cannot be deleted");
    EXPECT_EQ(Nomi("Sweep/m"), std::vector<std::string>{"Photos"});
    EXPECT_EQ(Prendi("Sweep/m/Photos/set-up.jpg"), "mine");
}

TEST_F(CancellazioniTest, ANameThatIsNoneDeletesNothing) {
    Misura("m");
    for (const char* nome : {"", "..", ".", "*", "m\\Limits", "a/.."})
        EXPECT_FALSE(CancellaMisura(s, nome)) << nome;
    EXPECT_TRUE(ambiente.riquadri.empty());
    EXPECT_TRUE(fs::exists(Host("Sweep/m/x.KSH")));
}

TEST_F(CancellazioniTest, WhatIsInUseCannotBeDeleted) {
    ScanRecord scan;
    scan.Righe[0] = {.Start = 1, .FreqTable = "ft", .Limit = "A", .LimitDSD = "B"};
    scan.Righe[1] = {.Start = 0, .Limit = "C"};
    s.setup.LimitName[3] = "D";
    s.setup.FactorName[6] = "F";
    s.env.ScanPanelPath = "Panels\\Base.EST";
    s.env.SetupPanelPath = "Panels\\Mine.EAM";
    const std::pair<const char*, bool> casi[] = {
        {"Limits\\a.5SL", true},        {"Limits\\B.5sl", true},  {"Limits\\C.5SL", false},
        {"Limits\\D.5SL", true},        {"Limits\\F.5SL", false}, {"Factors\\f.5SC", true},
        {"Factors\\A.5SC", false},      {"Table\\FT.5SF", true},  {"Table\\A.5SF", false},
        {"Panels\\base.EST", true},     {"Panels\\x.EST", false}, {"Panels\\mine.EAM", true},
        {"Panels\\Untitled.EAM", true}, {"Panels\\x.EAM", false}, {"Mast-Table\\A.FTM", false},
        {"Panels\\Untitled.EPN", true}, {"Panels\\x.DPT", false},
    };
    for (const auto& [percorso, inUso] : casi) {
        SCOPED_TRACE(percorso);
        Metti(Sostituisci(percorso, "\\", "/"), "");
        EXPECT_FALSE(CancellaTabella(s, scan, percorso)) << "not without the user's word";
        ambiente.risposte = {Risposta::Ok};
        EXPECT_EQ(CancellaTabella(s, scan, percorso), !inUso);
        EXPECT_EQ(s.albero.Esiste(percorso), inUso);
        EXPECT_EQ(ambiente.riquadri.back().testo == "Cannot be deleted", inUso);
    }
}

} // namespace
} // namespace orvane::prova
