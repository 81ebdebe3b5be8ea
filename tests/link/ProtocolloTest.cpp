// One command, one line: framing, time-outs, late and damaged replies, and the guard against a send
// inside a send.
#include <gtest/gtest.h>

#include "aiuto/BancoLink.h"
#include "link/Comandi.h"
#include "link/Interrogazioni.h"
#include "link/Protocollo.h"

namespace orvane {
namespace {

using namespace prova;

std::string Invia(Ricevitore& r, const char* comando = "#?IDN*", bool svuota = true) {
    return InviaComando(r, kTempoRisposta, comando, svuota);
}

std::string InTesto(const std::vector<uint8_t>& byte) {
    return {byte.begin(), byte.end()};
}

TEST(InviaComando, PiecesAreJoinedAndDoNotMoveTheDeadline) {
    BancoAperto b;
    b.peer.alComando = [&](const std::string&) {
        b.peer.Rispondi("IDN", 0.2);
        b.peer.Rispondi("=50 \xB5V \x80\r", 0.4);
        b.peer.Rispondi("\nB=2\r\n", 0.65);
    };
    EXPECT_EQ(Invia(b.r), "IDN=50 \u00B5V \u20AC\r") << "the first line, from the code page";
    EXPECT_NEAR(b.Trascorsi(), 0.65, 1e-9);
    EXPECT_EQ(b.porta.ByteInCoda(), 0u);
    b.peer.alComando = [&](const std::string&) {
        for (int i = 1; i < 10; ++i)
            b.peer.Rispondi("x", 0.1 * i);
    };
    b.inizio = b.ambiente.ora;
    EXPECT_EQ(Invia(b.r), "Error");
    EXPECT_NEAR(b.Trascorsi(), 0.7, 1e-9);
    EXPECT_LE(b.ambiente.giri, 30u);
}

TEST(InviaComando, ALateReplyGoesWithTheNextDrain) {
    BancoAperto b;
    b.peer.alComando = [&](const std::string& comando) {
        b.peer.Rispondi(comando + "\r\n", comando == "#?MIL*" ? 0.8 : 0);
    };
    EXPECT_EQ(Invia(b.r, "#?MIL*"), "Error");
    b.ambiente.ora += 0.2;
    EXPECT_EQ(Invia(b.r, "#?CRA*"), "#?CRA*\r");
    EXPECT_EQ(Invia(b.r, "#?MIL*"), "Error");
    b.ambiente.ora += 0.2;
    EXPECT_EQ(Invia(b.r, "#?CRA*", false), "#?MIL*\r") << "without a drain it is taken for one";
}

TEST(InviaComando, ATransmitBacklogHasItsBoxAndTheCommandStillGoesOut) {
    BancoAperto b;
    b.peer.arretrato = 1;
    b.peer.RispondiDa({{"#?IDN*", "IDN=x\r\n"}});
    EXPECT_EQ(Invia(b.r), "IDN=x\r");
    EXPECT_EQ(b.Riquadri(), Testi{"Un recoverable comm port 7"});
    EXPECT_EQ(b.ambiente.riquadri[0].icona, Icona::Esclamazione);
}

TEST(InviaComando, BytesThatCannotBeReadDoNotSpin) {
    BancoUsb b;
    b.porta.ApriPorta(true);
    b.usb.alComando = [&](const std::string&) { b.usb.Rispondi(std::string(5000, 'x')); };
    b.usb.statoLeggi = 1;
    EXPECT_EQ(Invia(b.r), "Error");
    EXPECT_LT(b.ambiente.giri, 500u);
}

TEST(GuardiaVolo, NothingGoesOutWhileACommandIsInFlight) {
    BancoAperto b;
    b.ambiente.difettiAttesi = true;
    b.ambiente.Fra(0.1, [&] {
        EXPECT_TRUE(b.stato.inVolo);
        EXPECT_EQ(Invia(b.r, "#?MIL*"), "Error");
        EXPECT_FALSE(InviaGrezzo(b.r, "#SSTP*"));
        EXPECT_EQ(InviaComandoLento(b.r, "CO6", "#SCO6C*"), "");
        EXPECT_TRUE(LeggiBloccoFisso(b.r, 4, "#?FILE*").empty());
        EXPECT_EQ(LeggiFinoASilenzio(b.r), "");
        EXPECT_EQ(InviaRigaCaricamento(b.r, "#SLIW0*", "LIW"), "Error");
        EXPECT_EQ(LeggiFiltro(b.r), std::nullopt);
        ImpostaBWIF(b.r, 3);
        EXPECT_TRUE(b.stato.inVolo) << "the outer command is still out";
    });
    EXPECT_EQ(Invia(b.r), "Error");
    EXPECT_NEAR(b.Trascorsi(), 0.7, 1e-9);
    EXPECT_EQ(b.peer.scritti, Testi{"#?IDN*"});
    ASSERT_EQ(b.ambiente.difetti.size(), 8u);
    EXPECT_EQ(b.ambiente.difetti[0], "command #?MIL* while #?IDN* is in flight");
    EXPECT_EQ(b.ambiente.difetti[7], "command #SRBW3* while #?IDN* is in flight");
    EXPECT_FALSE(b.stato.inVolo);
}

TEST(GuardiaVolo, BetweenTheTriesOfASetterAHandlerMaySend) {
    BancoAperto b;
    b.r.modello.Is5520F = true;
    int volte = 0;
    b.peer.alComando = [&](const std::string& comando) {
        if (comando == "#SRBW3*" && ++volte == 1)
            b.ambiente.Fra(0.3, [&] { EXPECT_EQ(Invia(b.r, "#?MIL*"), "MIL=OK\r"); });
        b.peer.Rispondi(comando != "#SRBW3*" ? "MIL=OK\r\n"
                        : volte == 1         ? "RBW=ERR\r\n"
                                             : "RBW=OK\r\n");
    };
    ImpostaBWIF(b.r, 3);
    EXPECT_EQ(b.peer.scritti, (Testi{"#SRBW3*", "#?MIL*", "#SRBW3*"}));
}

TEST(InviaComandoLento, TheTextFromTheKeyOn) {
    BancoAperto b;
    b.peer.alComando = [&](const std::string&) {
        for (int i = 0; i < 5; ++i)
            b.peer.Rispondi("stream C", 2.5 * i);
        b.peer.Rispondi("O6=OK\r\nmore", 12.5);
    };
    EXPECT_EQ(InviaComandoLento(b.r, "CO6", "#SCO6C*"), "CO6=OK\r\nmore");
}

TEST(InviaComandoLento, GivesUpAfterSilenceAndDrainsTheRest) {
    BancoAperto b;
    b.peer.alComando = [&](const std::string&) {
        b.peer.Rispondi("noise", 1);
        b.peer.Rispondi("CO6=OK", 4.5);
        b.peer.Rispondi("tail", 6);
    };
    EXPECT_EQ(InviaComandoLento(b.r, "CO6", "#SCO6C*"), "");
    EXPECT_NEAR(b.Trascorsi(), 8, 1e-9);
    EXPECT_EQ(b.porta.ByteInCoda(), 0u);
    b.peer.alComando = nullptr;
    for (int i = 0; i < 1000; ++i)
        b.peer.Rispondi("stream", i);
    b.ambiente.Fra(20.5, [&] { b.stato.AbbandonaComandi = true; });
    EXPECT_EQ(InviaComandoLento(b.r, "CO6", "#SCO6C*"), "");
    EXPECT_LT(b.Trascorsi(), 30) << "an endless stream ends with the abort";
}

TEST(LeggiBloccoFisso, AsManyBytesAsAskedFor) {
    BancoAperto b;
    b.peer.Rispondi("stale");
    b.peer.alComando = [&](const std::string&) {
        b.peer.Rispondi("abc", 0.25);
        b.peer.Rispondi(std::string("\0de", 3), 0.5);
        b.peer.Rispondi("fgh", 0.75);
    };
    EXPECT_EQ(InTesto(LeggiBloccoFisso(b.r, 8, "#?FILE*")), std::string("abc\0defg", 8));
    EXPECT_EQ(InTesto(LeggiBloccoFisso(b.r, 0, "#?FILE*")), "");
}

TEST(LeggiBloccoFisso, ShortOrSilentIsAnError) {
    BancoAperto b;
    b.peer.alComando = [&](const std::string&) {
        b.peer.Rispondi("abc", 0.25);
        b.peer.Rispondi("late", 0.6);
    };
    EXPECT_EQ(InTesto(LeggiBloccoFisso(b.r, 4, "#?FILE*")), "Error");
    EXPECT_NEAR(b.Trascorsi(), 0.55, 1e-9);
    b.porta.ChiudiPorta();
    EXPECT_EQ(InTesto(LeggiBloccoFisso(b.r, 4, "#?FILE*")), "Error");
}

TEST(LeggiFinoASilenzio, GathersEverythingUntilTheReceiverFallsSilent) {
    BancoAperto b;
    for (int i = 0; i < 4; ++i)
        b.peer.Rispondi("CFW=OK\r\n", 0.2 * i);
    b.peer.Rispondi("CFW=OK\r\n", 1);
    EXPECT_EQ(LeggiFinoASilenzio(b.r), "CFW=OK\r\nCFW=OK\r\nCFW=OK\r\nCFW=OK\r\n");
}

TEST(InviaRigaCaricamento, ThreeShortTries) {
    BancoAperto b;
    b.peer.RispondiInFila({"", "", "LIW=OK\r\n"});
    EXPECT_EQ(InviaRigaCaricamento(b.r, "#SLIW0,150e3;66*", "LIW"), "LIW=OK\r");
    EXPECT_NEAR(b.Trascorsi(), 0.6, 1e-9);
    EXPECT_EQ(b.peer.scritti.size(), 3u);
    b.peer.RispondiDa({{"#SLIW1*", "LIW=ERR\r\n"}});
    EXPECT_EQ(InviaRigaCaricamento(b.r, "#SLIW1*", "LIW"), "LIW=ERR\r");
    EXPECT_EQ(b.peer.scritti.size(), 6u);
    EXPECT_EQ(InviaRigaCaricamento(b.r, "#SLIW2*", "LIW"), "Error");
    EXPECT_EQ(b.finestra.fatti, Testi{});
}

TEST(CercaSequenza, OneBasedAndZeroWhenAbsent) {
    const std::vector<uint8_t> buffer = {'a', '\r', 'b', '\r', '\n', 0xB5};
    for (const auto& [cosa, dove] : {std::pair{"\r\n", 4}, {"a", 1}, {"\xB5", 6}, {"\n\n", 0}})
        EXPECT_EQ(CercaSequenza(buffer, cosa), dove) << cosa;
    EXPECT_EQ(CercaSequenza({}, ""), 0);
}

} // namespace
} // namespace orvane
