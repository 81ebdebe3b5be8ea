// The canned replies of the 3360 family, and what still goes out to it.
#include <gtest/gtest.h>

#include "aiuto/BancoLink.h"
#include "link/Comandi.h"
#include "link/Interrogazioni.h"
#include "link/Protocollo.h"

namespace orvane {
namespace {

using namespace prova;

TEST(RisposteFisse, TheFirstKeyInTheOrderOfTheTableDecides) {
    const std::pair<const char*, const char*> casi[] = {
        {"#SPLMON*", "PLM =OK"}, {"#?BCD*", "BCD=Off "}, {"#SLIC 1,?BAT*", "---"},
        {"#SLIC 1,?PLM*", ""},   {"#SRBW3*", ""},        {"#?bat*", ""}};
    for (const auto& [comando, risposta] : casi)
        EXPECT_EQ(RisposteFisse(comando), risposta) << comando;
}

/// Every setter that the family answers for itself must take that answer for a success.
TEST(RisposteFisse, NoSetterRefusesItsCannedReply) {
    for (const VoceImpostazione& voce : TabellaImpostazioni()) {
        const auto fissa = RisposteFisse(Componi(voce.quale, "").Comando);
        if (!fissa.empty()) {
            EXPECT_NE(fissa.find(voce.risposta0), std::string_view::npos) << voce.testa;
            EXPECT_NE(fissa.find(voce.risposta1), std::string_view::npos) << voce.testa;
        }
    }
}

} // namespace
} // namespace orvane
