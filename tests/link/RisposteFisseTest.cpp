// The canned replies of the 3360 family, and what still goes out to it.
#include <gtest/gtest.h>

#include "aiuto/BancoLink.h"
#include "link/Comandi.h"
#include "link/Interrogazioni.h"
#include "link/Protocollo.h"

namespace orvane {
namespace {

using namespace prova;

struct Riga {
    const char* comando;
    const char* risposta;
};

TEST(RisposteFisse, EachKey) {
    for (const Riga& riga :
         {Riga{"#?BAT*", "---"}, Riga{"#?MIL*", "MIL=N/A"}, Riga{"#?MPA*", ""}, Riga{"#?MPS*", ""},
          Riga{"#?PLM*", ""}, Riga{"#?FSF*", ""}, Riga{"#?FSA*", "---"}, Riga{"#?TGS*", ""},
          Riga{"#?TGT*", ""}, Riga{"#?TGF*", ""}, Riga{"#?TGL*", ""}, Riga{"#?BCD*", "BCD=Off "},
          Riga{"#?APA*", ""}, Riga{"#?APS*", "APS=***"}, Riga{"#?SPA*", ""}, Riga{"#?SPS*", ""},
          Riga{"#?DPY*", ""}, Riga{"#?CKR*", "---"}, Riga{"#SDIS120;80*", "DIS=OK"},
          Riga{"#SMPAON*", "MPA=OK"}, Riga{"#SMPSON*", "MPS=OK"}, Riga{"#SPLMON*", "PLM =OK"},
          Riga{"#STGSON*", "TGS =OK"}, Riga{"#STGTON*", "TGT =OK"}, Riga{"#STGF1e3*", "TGF=OK"},
          Riga{"#STGL80*", "TGL=OK"}, Riga{"#SAPAON*", "APA=OK"}, Riga{"#SAPSON*", "APS=OK"},
          Riga{"#SSPAON*", "SPA=OK"}, Riga{"#SSPSON*", "SPS=OK"}, Riga{"#SLII1*", "SLII =OK"},
          Riga{"#SLIC 1,A*", "SLIC =OK"}, Riga{"#SSDO*", "SDO=OK"}, Riga{"#SRBW3*", ""},
          Riga{"#?RBW *", ""}, Riga{"#?bat*", ""},
          // The first key in the order of the table decides.
          Riga{"#SLIC 1,?BAT*", "---"}, Riga{"#SLIC 1,?PLM*", ""}})
        EXPECT_EQ(RisposteFisse(riga.comando), riga.risposta) << riga.comando;
}

TEST(RisposteFisse, OnlyThe3360FamilyGetsThem) {
    BancoAperto b;
    b.peer.alComando = [&](const std::string& comando) {
        b.peer.Rispondi(comando.substr(2, 3) + "=OK\r\n");
    };
    ImpostaPulseLim(b.r, true);
    EXPECT_EQ(b.peer.scritti, Testi{"#SPLMON*"});
    b.r.modello.Is3360 = true;
    ImpostaPulseLim(b.r, true);
    ImpostaBWIF(b.r, 3);
    EXPECT_EQ(InviaComando(b.r, 0.7, "#?BAT*", true), "---");
    EXPECT_EQ(LeggiFiltriMil(b.r), false);
    EXPECT_EQ(LeggiPreselettore(b.r), "***");
    EXPECT_EQ(b.peer.scritti, (Testi{"#SPLMON*", "#SRBW3*"}));
    EXPECT_EQ(b.finestra.fatti, Testi{});
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
