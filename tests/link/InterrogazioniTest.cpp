// Readings of replies, whole and damaged, and the queries that make them.
#include <gtest/gtest.h>

#include <tuple>

#include "aiuto/BancoLink.h"
#include "link/Interrogazioni.h"

namespace orvane {
namespace {

using namespace prova;

TEST(LeggiRisposta, FilterInUse) {
    const auto automatico = LeggiRispostaRBW("RBW=AUTO 10\r");
    const auto manuale = LeggiRispostaRBW("RBW = MAN 3\r");
    ASSERT_TRUE(automatico && manuale);
    EXPECT_TRUE(automatico->automatico && automatico->id == 10);
    EXPECT_TRUE(!manuale->automatico && manuale->id == 3);
    for (const char* rotta : {"", "RBW=", "RBW=AUTO\r", "RBW=AUTO \r", "RBW=AUTO x\r", "RBW=3\r",
                              "RBW=MAN 3x\r", "RBW=MAN 99999\r", "XBW=MAN 3\r", "RBW=AUTO10\r"})
        EXPECT_FALSE(LeggiRispostaRBW(rotta)) << rotta;
}

TEST(LeggiRisposta, AttenuatorBehindTheFirstSemicolon) {
    EXPECT_EQ(LeggiRispostaMAT("MAT=AUTO;20\r"), 20);
    EXPECT_EQ(LeggiRispostaMAT("MAT=0; 5 ;7\r"), 5);
    for (const char* rotta : {"", "MAT=20\r", "MAT=AUTO;\r", "MAT=AUTO;x\r"})
        EXPECT_FALSE(LeggiRispostaMAT(rotta)) << rotta;
}

TEST(LeggiRisposta, Battery) {
    // A reply, then level, voltage and charge.
    const std::pair<const char*, const char*> casi[] = {
        {"BAT=85,12.4;0\r", "85 12.4 0"}, {"BAT=85,12,4;1\r", "85 12.4 1"},
        {"BAT= 7 , 1.99;0\r", "7  0"},    {"BAT=7,2.0;0\r", "7 2.0 0"},
        {"BAT=85;0\r", "85  0"},          {"BAT=100;1;7\r", "100  1"},
        {"BAT=100%\r", "100%  1"},        {"BAT=50;0,9\r", "50  0"}};
    for (const auto& [risposta, attesa] : casi) {
        const auto b = LeggiRispostaBAT(risposta);
        ASSERT_TRUE(b) << risposta;
        EXPECT_EQ(b->livello + " " + b->tensione + " " + std::to_string(b->carica), attesa);
    }
    for (const char* rotta :
         {"", "BAT\r", "BAT=\r", "BAT=85,12.4\r", "BAT=85,12.4;\r", "BAT=85;x\r", "TAB=85;0\r"})
        EXPECT_FALSE(LeggiRispostaBAT(rotta)) << rotta;
}

TEST(LeggiRisposta, ConductedOrRadiated) {
    for (const char* condotta : {"CO6=CND\r", "3PR=CON\r", "3PR=CON;1,2\r"})
        EXPECT_FALSE(LeggiRispostaGamma(condotta).value().radiata) << condotta;
    const std::tuple<const char*, float, float> casi[] = {{"CO6=RAD\r", 0, 0},
                                                          {"3PR=RAD;25.5, 6020,\r", 25.5f, 6020.f},
                                                          {"CO6=RAD;-1,3000,\r", 0, 3000.f}};
    for (const auto& [risposta, fMin, fMax] : casi) {
        const auto gamma = LeggiRispostaGamma(risposta);
        ASSERT_TRUE(gamma && gamma->radiata) << risposta;
        EXPECT_EQ(gamma->fMinMhz.value_or(0), fMin) << risposta;
        EXPECT_EQ(gamma->fMaxMhz.value_or(0), fMax) << risposta;
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
    b.peer.RispondiInFila({"MIL=OK\r\n", "CRA=N/A\r\n", "UPP=5\r\n", "UHT= 10 ms \r\n",
                           "APS=on\r\n", "RBW=MAN 6\r\n", "MAT=0;15\r\n", "BAT=99\r\n",
                           "3PR=CON\r\n"});
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
