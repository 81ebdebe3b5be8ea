// Retries of setters and queries, the banner, and the ways out of them.
#include <gtest/gtest.h>

#include "aiuto/BancoLink.h"
#include "link/Comandi.h"
#include "link/Interrogazioni.h"
#include "link/Protocollo.h"

namespace orvane {
namespace {

using namespace prova;

const ReceiverCommand kFiltro = {"#SRBW3*", "set BW IF", {"RBW", "OK"}};

TEST(InviaImpostazione, FourTriesInSilenceThenTheBanner) {
    BancoAperto b;
    b.peer.RispondiInFila(
        {"", "RBW=N/A\r\n", "TGS=OK\r\n", "RBW =OK\r\n"}); // both texts must occur
    InviaImpostazione(b.r, kFiltro, true);
    EXPECT_EQ(b.peer.scritti.size(), 4u);
    EXPECT_EQ(b.finestra.fatti, Testi{});
    EXPECT_FALSE(b.stato.ModoErrore);

    b.peer.RispondiInFila({"", "", "", "", "", "", "", "RBW=OK\r\n"});
    b.peer.scritti.clear();
    b.inizio = b.ambiente.ora;
    InviaImpostazione(b.r, kFiltro, true);
    EXPECT_EQ(b.peer.scritti.size(), 8u);
    EXPECT_NEAR(b.Trascorsi(), 7 * 0.7, 1e-9);
    EXPECT_EQ(b.finestra.fatti, (Testi{"mostra Error set BW IF", "abilita", "abilita", "abilita",
                                       "abilita", "nascondi"}));
    EXPECT_TRUE(b.stato.ModoErrore);
    EXPECT_EQ(b.stato.striscia, "");
}

TEST(InviaImpostazione, WhatArrivesBetweenTwoTriesIsDropped) {
    BancoAperto b;
    b.r.modello.Is5520F = true;
    b.peer.alComando = [&, volte = 0](const std::string&) mutable {
        const bool prima = ++volte == 1;
        b.peer.Rispondi(prima ? "XXX=OK\r\n" : "RBW=OK\r\n", prima ? 1.0 : 0);
    };
    InviaImpostazione(b.r, kFiltro, false);
    EXPECT_EQ(b.peer.scritti.size(), 2u);
}

TEST(InviaImpostazione, TheUserGivesUpWhileItRetries) {
    for (const double quando : {0.35, 2.0, 5.0}) {
        BancoAperto b;
        b.ambiente.Fra(quando, [&] { b.stato.AbbandonaComandi = true; });
        InviaImpostazione(b.r, kFiltro, true);
        EXPECT_TRUE(b.stato.AbbandonaComandi);
        EXPECT_LE(b.Trascorsi(), quando + 0.7);
        EXPECT_EQ(b.stato.striscia, "");
        EXPECT_EQ(b.finestra.Quanti("nascondi"), quando > 2.8 ? 1u : 0u);
    }
}

TEST(InviaImpostazione, ARefusalAtOnceDoesNotRace) {
    BancoAperto b;
    b.peer.alComando = [&](const std::string&) {
        b.ambiente.ora += 1e-4;
        b.peer.Rispondi("RBW=N/A\r\n");
    };
    b.ambiente.Fra(10, [&] { b.stato.AbbandonaComandi = true; });
    InviaImpostazione(b.r, kFiltro, true);
    EXPECT_LE(b.peer.scritti.size(), 110u);
}

TEST(InviaImpostazione, TheInputOfAnOemModelAnswersLate) {
    BancoAperto b;
    b.r.modello.ModelloOEM = 2;
    b.peer.alComando = [&](const std::string&) { b.peer.Rispondi("junk CO6=1", 2.9); };
    InviaImpostazione(b.r, Componi(Impostazione::CondottoOem, ""), true);
    EXPECT_EQ(b.peer.scritti, Testi{"#SCO6C*"});
    b.peer.scritti.clear();
    b.ambiente.Fra(10, [&] { b.stato.AbbandonaComandi = true; });
    b.r.modello.ModelloOEM = 0;
    InviaImpostazione(b.r, Componi(Impostazione::CondottoOem, ""), true);
    EXPECT_GT(b.peer.scritti.size(), 1u) << "other models are given 0.7 s";
}

TEST(Interroga, ThreeSilentRetriesThenTheBannerAndOn) {
    BancoAperto b;
    b.peer.RispondiInFila({"", "UPP=x\r\n", "ABC=4\r\n", "UPP=3.5\r\n", "", "UPP =4 \r\n"});
    EXPECT_EQ(LeggiUserPort(b.r), 4) << "a wrong reply is no reply";
    EXPECT_EQ(b.peer.scritti, Testi(6, "#?UPP*"));
    EXPECT_EQ(b.finestra.fatti, (Testi{"mostra Error Read User Port", "nascondi"}));
}

TEST(MostraErrore, TheSameDescriptionIsNotShownAgain) {
    BancoAperto b;
    MostraErrore(b.r, "set Level", true);
    MostraErrore(b.r, "set Level", true);
    MostraErrore(b.r, "Level", true);
    EXPECT_EQ(b.finestra.fatti, Testi{"mostra Error set Level"});
    MostraErrore(b.r, "Read S/N", true);
    EXPECT_EQ(b.stato.striscia, "Error Read S/N");
    MostraErrore(b.r, "", false);
    MostraErrore(b.r, "", true);
    EXPECT_EQ(b.finestra.fatti.back(), "mostra Error ");
}

TEST(TimerError, BlinksUntilTheUserGivesUp) {
    BancoAperto b;
    TimerError_Timer(b.r);
    EXPECT_EQ(b.finestra.fatti, Testi{});
    MostraErrore(b.r, "set Level", true);
    TimerError_Timer(b.r);
    TimerError_Timer(b.r);
    TimerError_Timer(b.r);
    b.stato.AbbandonaComandi = true;
    TimerError_Timer(b.r);
    EXPECT_EQ(b.finestra.fatti,
              (Testi{"mostra Error set Level", "scambiata", "diritta", "scambiata", "nascondi"}));
    EXPECT_FALSE(b.stato.strisciaScambiata);
}

TEST(InviaImpostazione, AClosedPortRetriesAtAReceiversPace) {
    BancoSeriale b;
    b.ambiente.Fra(60, [&] { b.stato.AbbandonaComandi = true; });
    InviaImpostazione(b.r, kFiltro, true);
    EXPECT_LT(b.ambiente.giri, 1000u);
    EXPECT_EQ(b.finestra.Quanti("mostra Error set BW IF"), 1u);
}

} // namespace
} // namespace orvane
