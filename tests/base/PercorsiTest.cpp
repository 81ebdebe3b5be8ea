// Paths with backslashes, as text.
#include <gtest/gtest.h>

#include "base/Percorsi.h"

namespace orvane {
namespace {

TEST(Percorsi, PartsOfAPath) {
    struct Caso {
        const char* percorso;
        const char* senza;
        const char* nome;
        const char* cartella;
        const char* estensione;
    };
    for (const Caso& caso :
         {Caso{"C:\\Data\\Sweep\\Test.KSH", "C:\\Data\\Sweep\\Test", "Test", "C:\\Data\\Sweep\\",
               "KSH"},
          Caso{"Untitled.EPN", "Untitled", "Untitled", "", "EPN"},
          Caso{" Test .RS0", "Test", "Test", "", "RS0"},
          Caso{"C:Test.5SL", "C:Test", "Test", "C:", "5SL"},
          Caso{"Panels\\", "Panels\\", "", "Panels\\", ""}, Caso{"a.b.c", "a.b", "a.b", "", "c"},
          // The last point divides, wherever it stands.
          Caso{"Rel.1\\Test", "Rel", "Rel", "", "1\\T"},
          Caso{"Test.LONGER", "Test", "Test", "", "LON"}, Caso{"Test. K ", "Test", "Test", "", "K"},
          Caso{".KSH", "", "", "", ""}, Caso{"Test.", "Test", "Test", "", ""},
          Caso{"", "", "", "", ""}}) {
        EXPECT_EQ(RimuoviEstensione(caso.percorso), caso.senza) << caso.percorso;
        EXPECT_EQ(EstraiNomeFile(caso.percorso), caso.nome) << caso.percorso;
        EXPECT_EQ(EstraiPercorso(caso.percorso), caso.cartella) << caso.percorso;
        EXPECT_EQ(EstraiEstensione(caso.percorso), caso.estensione) << caso.percorso;
    }
}

TEST(Percorsi, AForbiddenCharacterMakesANameUntitled) {
    for (const char c : std::string(".,+[]\\/|=*^:;<>?\""))
        EXPECT_EQ(ControllaNomeMisura(std::string("Te") + c + "st"), "Untitled") << c;
    for (const char* buono : {"Test_000", "Te st-1 (2)", "\u00B5", ""})
        EXPECT_EQ(ControllaNomeMisura(buono), buono);
}

} // namespace
} // namespace orvane
