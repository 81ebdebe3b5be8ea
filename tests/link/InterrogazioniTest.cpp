// Readings of replies, whole and damaged, and the queries that make them.
#include <gtest/gtest.h>

#include <tuple>

#include "aiuto/BancoLink.h"
#include "link/Interrogazioni.h"

namespace orvane {
namespace {

using namespace prova;

TEST(LeggiRisposta, FilterInUse) {
    for (const auto& [risposta, automatico, id] :
         {std::tuple{"RBW=AUTO 10\r", true, 10}, std::tuple{"RBW = MAN 3\r", false, 3}}) {
        const auto filtro = LeggiRispostaRBW(risposta);
        ASSERT_TRUE(filtro) << risposta;
        EXPECT_EQ(filtro->automatico, automatico);
        EXPECT_EQ(filtro->id, id);
    }
    for (const char* rotta :
         {"", "RBW", "RBW=", "RBW=AUTO\r", "RBW=AUTO \r", "RBW=AUTO x\r", "RBW=3\r", "RBW=MAN 3x\r",
          "RBW=MAN 99999\r", "XBW=MAN 3\r", "RBW=AUTO10\r"})
        EXPECT_FALSE(LeggiRispostaRBW(rotta)) << rotta;
}

TEST(LeggiRisposta, AttenuatorBehindTheFirstSemicolon) {
    EXPECT_EQ(LeggiRispostaMAT("MAT=AUTO;20\r"), 20);
    EXPECT_EQ(LeggiRispostaMAT("MAT=0; 5 ;7\r"), 5);
    for (const char* rotta : {"", "MAT=20\r", "MAT=AUTO;\r", "MAT=AUTO;x\r"})
        EXPECT_FALSE(LeggiRispostaMAT(rotta)) << rotta;
}

TEST(LeggiRisposta, Battery) {
    struct Caso {
        const char* risposta;
        const char* livello;
        const char* tensione;
        int carica;
    };
    for (const Caso& caso :
         {Caso{"BAT=85,12.4;0\r", "85", "12.4", 0}, Caso{"BAT=85,12,4;1\r", "85", "12.4", 1},
          Caso{"BAT= 7 , 1.99;0\r", "7", "", 0}, Caso{"BAT=7,2.0;0\r", "7", "2.0", 0},
          Caso{"BAT=85;0\r", "85", "", 0}, Caso{"BAT=100;1;7\r", "100", "", 1},
          Caso{"BAT=100%\r", "100%", "", 1}, Caso{"BAT=50;0,9\r", "50", "", 0}}) {
        const auto b = LeggiRispostaBAT(caso.risposta);
        ASSERT_TRUE(b) << caso.risposta;
        EXPECT_EQ(b->livello, caso.livello) << caso.risposta;
        EXPECT_EQ(b->tensione, caso.tensione) << caso.risposta;
        EXPECT_EQ(b->carica, caso.carica) << caso.risposta;
    }
    for (const char* rotta :
         {"", "BAT\r", "BAT=\r", "BAT=85,12.4\r", "BAT=85,12.4;\r", "BAT=85;x\r", "TAB=85;0\r"})
        EXPECT_FALSE(LeggiRispostaBAT(rotta)) << rotta;
}

TEST(LeggiRisposta, ConductedOrRadiated) {
    struct Caso {
        const char* risposta;
        bool radiata;
        std::optional<float> fMin = {}, fMax = {};
    };
    for (const Caso& caso :
         {Caso{"CO6=CND\r", false}, Caso{"3PR=CON\r", false}, Caso{"3PR=CON;1,2\r", false},
          Caso{"CO6=RAD\r", true}, Caso{"3PR=RAD;25.5, 6020,\r", true, 25.5f, 6020.f},
          Caso{"CO6=RAD;-1,3000,\r", true, {}, 3000.f}}) {
        const auto gamma = LeggiRispostaGamma(caso.risposta);
        ASSERT_TRUE(gamma) << caso.risposta;
        EXPECT_EQ(gamma->radiata, caso.radiata) << caso.risposta;
        if (caso.radiata) {
            EXPECT_EQ(gamma->fMinMhz, caso.fMin) << caso.risposta;
            EXPECT_EQ(gamma->fMaxMhz, caso.fMax) << caso.risposta;
        }
    }
    for (const char* rotta : {"", "3PR=OK\r", "3PR=RAD;\r", "3PR=RAD;25\r", "3PR=RAD;25,6020\r",
                              "3PR=RAD;x,6020,\r", "3PR=RAD;25,,\r"})
        EXPECT_FALSE(LeggiRispostaGamma(rotta)) << rotta;
}

TEST(LeggiRisposta, EnabledOrNot) {
    EXPECT_EQ(LeggiRispostaAbilitazione("MIL=N/A\r", "MIL"), false);
    EXPECT_EQ(LeggiRispostaAbilitazione("MIL =OK\r", "MIL"), true);
    EXPECT_EQ(LeggiRispostaAbilitazione("CRA=OK\r", "CRA"), true);
    for (const char* rotta : {"", "MIL\r", "MIL=ERR\r", "CRA=OK\r", "MIL=\r", "MIL N/A\r"})
        EXPECT_EQ(LeggiRispostaAbilitazione(rotta, "MIL"), std::nullopt) << rotta;
}

TEST(Interrogazioni, EachQueryGoesOutAsItStands) {
    BancoAperto b;
    b.peer.RispondiDa({{"#?MIL*", "MIL=OK\r\n"},
                       {"#?CRA*", "CRA=N/A\r\n"},
                       {"#?UPP*", "UPP=5\r\n"},
                       {"#?UHT*", "UHT= 10 ms \r\n"},
                       {"#?APS*", "APS=on\r\n"},
                       {"#?RBW *", "RBW=MAN 6\r\n"},
                       {"#?MAT*", "MAT=0;15\r\n"},
                       {"#?BAT*", "BAT=99\r\n"},
                       {"#?3PR*", "3PR=CON\r\n"}});
    EXPECT_EQ(LeggiFiltriMil(b.r), true);
    EXPECT_EQ(LeggiRmsAvg(b.r), false);
    EXPECT_EQ(LeggiUserPort(b.r), 5);
    EXPECT_EQ(LeggiHoldTime(b.r), "10 ms");
    EXPECT_EQ(LeggiPreselettore(b.r), "ON");
    EXPECT_EQ(LeggiFiltro(b.r)->id, 6);
    EXPECT_EQ(LeggiAttenuatore(b.r), 15);
    EXPECT_EQ(LeggiBatteria(b.r)->livello, "99");
    EXPECT_FALSE(LeggiGamma(b.r, "#?3PR*")->radiata);
    EXPECT_EQ(b.peer.scritti, (Testi{"#?MIL*", "#?CRA*", "#?UPP*", "#?UHT*", "#?APS*", "#?RBW *",
                                     "#?MAT*", "#?BAT*", "#?3PR*"}));
}

TEST(LeggiSerialNumber, TenCharactersAfterAWaitAndADrain) {
    BancoAperto b;
    b.peer.Rispondi("S/N=OLD\r\n", 0.05);
    b.peer.RispondiDa({{"#?S/N*", "S/N= 0123456789AB \r\n"}});
    EXPECT_EQ(LeggiSerialNumber(b.r), "0123456789");
    EXPECT_NEAR(b.Trascorsi(), 0.1, 1e-9);
    EXPECT_EQ(b.r.modello.SerialNumber, "0123456789");
    b.peer.RispondiDa({{"#?S/N*", "S/N N/A\r\n"}});
    EXPECT_EQ(LeggiSerialNumber(b.r), "") << "without its prefix, at once";
    EXPECT_EQ(b.r.modello.SerialNumber, "");
    EXPECT_EQ(b.peer.scritti.size(), 2u);
}

TEST(LeggiBatteria, ModelsWithoutOneAreNotAsked) {
    for (const ReceiverModel& modello :
         {ReceiverModel{.ModelloOEM = 1}, ReceiverModel{.Is3360 = true},
          ReceiverModel{.Is60OEM = true}}) {
        BancoAperto b;
        b.r.modello = modello;
        EXPECT_FALSE(LeggiBatteria(b.r));
        EXPECT_EQ(b.peer.scritti, Testi{});
    }
}

TEST(LeggiGamma, AStopGoesOutAfterThreeFailedTries) {
    BancoAperto b;
    b.peer.alComando = [&, fermo = false](const std::string& comando) mutable {
        fermo = fermo || comando == "#SSTP*";
        b.peer.Rispondi(!fermo                ? "sweep data\r\n"
                        : comando == "#SSTP*" ? "STP=OK\r\n"
                                              : "3PR=RAD\r\n",
                        0.05);
    };
    const auto gamma = LeggiGamma(b.r, "#?3PR*");
    ASSERT_TRUE(gamma);
    EXPECT_TRUE(gamma->radiata);
    EXPECT_EQ(b.peer.scritti, (Testi{"#?3PR*", "#?3PR*", "#?3PR*", "#SSTP*", "#?3PR*"}));
    EXPECT_EQ(b.finestra.fatti, Testi{});
}

} // namespace
} // namespace orvane
