// What the load and save window decides about names.
#include "ScrivaniaProva.h"
#include "data/CaricaSalva.h"

namespace orvane::prova {
namespace {

struct CaricaSalvaTest : ProvaDati {
    RichiestaFile limite = RichiestaTabella(TableKind::Limite);
    ScanRecord scan;
};

TEST_F(CaricaSalvaTest, LoadsByNameWithOrWithoutExtension) {
    EXPECT_EQ(TitoloCaricaSalva(limite, false), "Load Limit");
    EXPECT_EQ(TitoloCaricaSalva(RichiestaTabella(TableKind::Fattore), true), "Save Factor As");
    EXPECT_EQ(CmdLoad(s, limite, "A"), "Limits\\A.5SL");
    EXPECT_EQ(CmdLoad(s, limite, " A.5sl "), "Limits\\A.5SL");
    EXPECT_EQ(CmdLoad(s, limite, "A.B"), "Limits\\A.B.5SL");
    EXPECT_TRUE(ambiente.riquadri.empty());
    for (const char* nome : {"", "..\\Sweep\\A", "a:b"}) {
        EXPECT_EQ(CmdLoad(s, limite, nome), std::nullopt) << nome;
        EXPECT_EQ(Riquadro(), "File name not valid") << nome;
    }
    EXPECT_EQ(CmdLoad(s, limite, "A+B"), std::nullopt);
    EXPECT_EQ(Riquadro(), "Not valid name\rA+B");
}

TEST_F(CaricaSalvaTest, ALongNameIsNotLoadedButShortenedToSave) {
    EXPECT_TRUE(CmdLoad(s, limite, std::string(56, 'x')));
    EXPECT_EQ(CmdLoad(s, limite, std::string(57, 'x')), std::nullopt);
    EXPECT_EQ(Riquadro(), "File name too long");
    const std::string corto(60, 'x');
    EXPECT_EQ(CmdSave(s, limite, corto + corto), "Limits\\" + corto + ".5SL");
    EXPECT_EQ(Riquadro(), "The name as been shortened in\r" + corto);
}

TEST_F(CaricaSalvaTest, RefusesWhatIsNoNameToSaveUnder) {
    for (const char* nome : {"", "  ", "NONE", "none", "a.b", "a+b", "a\\b", "a/b", "a*", "a:b",
                             "a\"b", "a|b", "a?", "a\tb", "5 k\xCE\xA9"}) {
        EXPECT_EQ(CmdSave(s, limite, nome), std::nullopt) << nome;
        EXPECT_EQ(Riquadro(), "File name not valid") << nome;
    }
    EXPECT_EQ(CmdSave(s, limite, "Grenze \xC3\x84 10m"), "Limits\\Grenze \xC3\x84 10m.5SL");
}

TEST_F(CaricaSalvaTest, AsksBeforeAFileIsReplaced) {
    Metti("Limits/old.5SL", "x");
    EXPECT_EQ(CmdSave(s, limite, "OLD"), std::nullopt);
    EXPECT_EQ(Riquadro(), "OLD exists already.\rDo you want to replace it?");
    ambiente.risposte = {Risposta::Si};
    EXPECT_EQ(CmdSave(s, limite, "OLD"), "Limits\\OLD.5SL");
}

TEST_F(CaricaSalvaTest, DeletesOnRequestWhatNothingNames) {
    Metti("Limits/X.5SL", "x");
    EXPECT_FALSE(CMBDelete(s, limite, "X", scan));
    EXPECT_EQ(Riquadro(), "Delete X");
    EXPECT_TRUE(s.albero.Esiste("Limits\\X.5SL"));
    ambiente.risposte = {Risposta::Si};
    EXPECT_TRUE(CMBDelete(s, limite, "X", scan));
    EXPECT_FALSE(s.albero.Esiste("Limits\\X.5SL"));
    ambiente.riquadri.clear();
    EXPECT_TRUE(CMBDelete(s, limite, "X", scan));
    EXPECT_TRUE(ambiente.riquadri.empty()) << "there is nothing to ask about";
    EXPECT_FALSE(CMBDelete(s, limite, "a:b", scan));
    EXPECT_EQ(Riquadro(), "Cannot be deleted");
    ambiente.riquadri.clear();
    scan.Righe[0] = {.Start = 1, .Limit = "In Line"};
    Metti("Limits/in line.5SL", "x");
    ambiente.risposte = {Risposta::Si, Risposta::Ok};
    EXPECT_FALSE(CMBDelete(s, limite, "In Line", scan));
    EXPECT_EQ(ambiente.riquadri.at(1).testo, "Cannot be deleted");
    EXPECT_TRUE(s.albero.Esiste("Limits\\In Line.5SL"));
}

} // namespace
} // namespace orvane::prova
