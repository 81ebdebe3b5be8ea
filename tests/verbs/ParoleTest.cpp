#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "verbs/Argomenti.h"
#include "verbs/Json.h"
#include "verbs/VistaTerminale.h"

namespace orvane {
namespace {

TEST(Argomenti, TellPositionsOptionsAndFlagsApart) {
    const std::vector<std::string> parole = {"add", "--band", "B", "NAME", "--quick", "-5"};
    const Argomenti a(parole, {"band"}, {"quick"});
    EXPECT_EQ(a.Errore(), "");
    EXPECT_EQ(a.Posizioni(), (std::vector<std::string>{"add", "NAME", "-5"}));
    EXPECT_EQ(a.Opzione("band"), "B");
    EXPECT_FALSE(a.Opzione("start"));
    EXPECT_TRUE(a.Bandiera("quick"));
    EXPECT_EQ(Argomenti(std::vector<std::string>{"--what"}, {"band"}).Errore(),
              "unknown option --what");
    EXPECT_EQ(Argomenti(std::vector<std::string>{"--band"}, {"band"}).Errore(),
              "--band wants a value");
}

TEST(Json, SetsCommasAndProtectsText) {
    Json json;
    json.Oggetto().Coppia("a", "x\"\\\n").Chiave("b").Lista();
    json.Numero(0.155).Numero(NAN).Logico(true).Lista().Chiudi().Chiudi();
    json.Coppia("c", 3).Chiudi();
    EXPECT_EQ(json.Documento(), "{\"a\":\"x\\\"\\\\\\u000a\",\"b\":[0.155,null,true,[]],\"c\":3}");
}

TEST(TestoTempo, CountsHoursOnlyFromTheFirst) {
    EXPECT_EQ(TestoTempo(0), "0:00");
    EXPECT_EQ(TestoTempo(75.6), "1:16");
    EXPECT_EQ(TestoTempo(3599.6), "1:00:00");
    EXPECT_EQ(TestoTempo(-3), "0:00");
}

} // namespace
} // namespace orvane
