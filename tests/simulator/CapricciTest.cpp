// Each misbehaviour, in its place and for its time; and the text forms, with their complaints.
#include "simulator/Banco.h"

namespace orvane::prova {
namespace {

constexpr std::string_view kSweep = "#SSFD 150000;30000000;5000;PQ;1;6;10;OFF;OFF;0*";

TEST(Capricci, MuteHearsNothingForAsOftenAsItIsTold) {
    Banco banco;
    banco.Guasta("mutex2:SRBW");
    EXPECT_EQ(banco.Chiedi("#SRBW3*#SRBW4*"), "");
    EXPECT_EQ(banco.ricevitore.Valore("RBW"), "");
    EXPECT_EQ(banco.Chiedi("#?UPP*"), "UPP=0\r\n") << "other commands are not concerned";
    EXPECT_EQ(banco.Chiedi("#SRBW5*"), "RBW=OK\r\n");
    banco.Guasta("mute");
    EXPECT_EQ(banco.Chiedi("#?UPP*#?IDN*"), "");
    banco.ricevitore.Scorda();
    EXPECT_EQ(banco.Chiedi("#?UPP*"), "UPP=0\r\n");
    banco.Guasta("garbagex1:?IDN");
    EXPECT_EQ(banco.Chiedi("#?IDN*").find_first_of("\r\n="), std::string::npos);
}

TEST(Capricci, LateAndSplitRepliesComeInTheirTime) {
    Banco banco;
    banco.Guasta("latex1:?UPP=0.5");
    EXPECT_EQ(banco.Chiedi("#?UPP*"), "");
    EXPECT_EQ(banco.ricevitore.ProssimoByte(banco.ora), banco.ora + 0.5);
    EXPECT_EQ(banco.Chiedi("#?UHT*"), "") << "what comes behind waits";
    banco.ora += 0.5;
    EXPECT_EQ(banco.Prendi(), "UPP=0\r\nUHT=1\r\n");

    banco.Guasta("split:?UHT=0.25");
    EXPECT_EQ(banco.Chiedi("#?UHT*"), "UHT");
    EXPECT_EQ(banco.ricevitore.ProssimoByte(banco.ora), banco.ora + 0.25);
    banco.ora += 0.25;
    EXPECT_EQ(banco.Prendi(), "=1\r\n");
}

TEST(Capricci, RefusalsErrorsAndOtherTexts) {
    const std::array<const char*, 3> casi[] = {
        {"refuse:SRBW", "#SRBW3*", "RBW=N/A\r\n"},
        {"error:SRBW", "#SRBW3*", "RBW=ERR\r\n"},
        {"error:SSFD=5", kSweep.data(), "SFD=ERR 5\r\n"},
        {"refuse:SSFD", kSweep.data(), "SFD=N/A\r\n"},
        {"late:SSFD=2", kSweep.data(), ""},
        {"error:ASRE", "#ASRE*", "SERR\r\n"},
        {"text:?DET=DET=1;2;OVER", "#?DET*", "DET=1;2;OVER\r\n"},
        {"text:?BCD=BCD=ON;5590\n", "#?BCD*", "BCD=ON;5590\n"}};
    for (const auto& [capriccio, comando, risposta] : casi) {
        Banco banco;
        banco.Guasta(capriccio);
        EXPECT_EQ(banco.Chiedi(comando), risposta) << capriccio;
        EXPECT_EQ(banco.ricevitore.Valore("RBW"), "");
    }
}

TEST(Capricci, ARefusedPauseStandsBetweenTwoSteps) {
    for (const size_t preso : {3u, 8u, 1001u, 1002u}) {
        const std::string intero = Banco().Chiedi(kSweep);
        Banco banco;
        banco.Guasta("errorx1:ASPA");
        banco.Manda(kSweep);
        std::string flusso = banco.Prendi(preso);
        banco.Manda("#ASPA*");
        flusso += banco.Prendi();
        const size_t dove = flusso.find("SERR\r\n");
        ASSERT_NE(dove, std::string::npos) << preso;
        EXPECT_EQ((dove - 8) % 4, 0u) << preso;
        EXPECT_TRUE(flusso.erase(dove, 6) == intero) << "the sweep goes on";
    }
}

TEST(Capricci, ASweepFallsSilentAtItsByte) {
    for (const char* modello : {"5520", "5520,speed=line"}) {
        Banco banco(modello);
        banco.Guasta("silentx1:1001");
        banco.Manda(kSweep);
        banco.ora += 100;
        EXPECT_EQ(banco.Prendi().size(), 8u + 1001) << modello;
        EXPECT_EQ(banco.ricevitore.ProssimoByte(banco.ora), std::nullopt);
        banco.Manda("#?UPP*");
        banco.ora += 1;
        EXPECT_EQ(banco.Prendi(), "UPP=0\r\n") << "it still answers";
        banco.Manda("#ASBK*");
        banco.ora += 1;
        EXPECT_EQ(banco.Prendi(), "SBK=OK\r\n");
        banco.Manda(kSweep);
        banco.ora += 100;
        EXPECT_EQ(banco.Prendi().size(), 8 + 5971 * 4 + 7u) << "once only";
    }
}

TEST(Capricci, TheLinkGoesDeadAtItsByte) {
    Banco banco;
    banco.Guasta("unplugx1:1000");
    EXPECT_EQ(banco.Chiedi("#SRBW3*"), "RBW=OK\r\n");
    banco.Manda(kSweep);
    EXPECT_FALSE(banco.ricevitore.Scollegato());
    EXPECT_EQ(banco.Prendi().size(), 8u + 1000);
    EXPECT_TRUE(banco.ricevitore.Scollegato());
    EXPECT_EQ(banco.Chiedi("#?UPP*"), "");
    EXPECT_EQ(banco.ricevitore.Pronti(banco.ora), 0u);
    EXPECT_EQ(banco.ricevitore.ProssimoByte(banco.ora), std::nullopt);
    banco.ricevitore.Ricollega();
    EXPECT_EQ(banco.Prendi(), "") << "a new power-up has nothing to say";
    EXPECT_EQ(banco.ricevitore.Valore("RBW"), "");
    EXPECT_EQ(banco.Chiedi(kSweep).size(), 8 + 5971 * 4 + 7u);
}

TEST(TestoCapriccio, ReadsItsForms) {
    using enum Capriccio::Tipo;
    const std::pair<const char*, Capriccio> casi[] = {
        {"mute x3 : ?IDN", {.tipo = Muto, .comando = "?IDN", .volte = 3}},
        {"late", {.tipo = Tardi, .secondi = 1}},
        {"split:SRBW=0,3", {.tipo = Spezzato, .comando = "SRBW", .secondi = 0.3}},
        {"error:SSFD=5", {.tipo = Errore, .comando = "SSFD", .numero = 5}},
        {"textx1:?DET=", {.tipo = Testo, .comando = "?DET", .volte = 1}},
        {"silent:1000", {.tipo = StreamMuto, .numero = 1000}},
        {"unplugx2:0", {.tipo = Scollegato, .volte = 2}}};
    for (const auto& [testo, attesa] : casi) {
        std::string errore;
        const auto c = LeggiCapriccio(testo, errore);
        ASSERT_TRUE(c) << testo << ": " << errore;
        EXPECT_TRUE(
            std::tie(c->tipo, c->comando, c->volte, c->secondi, c->numero) ==
            std::tie(attesa.tipo, attesa.comando, attesa.volte, attesa.secondi, attesa.numero))
            << testo;
    }
}

TEST(TestoCapriccio, NamesWhatItCannotRead) {
    for (const char* testo : {"", "deaf:?IDN", "mutex0:?IDN", "mute:?IDN=3", "late:?IDN=soon",
                              "late:?IDN=-1", "error:SSFD=1.5", "silent:many", "unplug:-5"}) {
        std::string errore;
        EXPECT_FALSE(LeggiCapriccio(testo, errore)) << testo;
        EXPECT_NE(errore.find("misbehaviour \""), std::string::npos) << testo;
    }
}

TEST(TestoOpzioni, ReadsModelAndWords) {
    std::string errore;
    const auto opzioni = LeggiOpzioniSimulatore("k6x,fw=2.09,seed=42,speed=line", errore);
    ASSERT_TRUE(opzioni) << errore;
    EXPECT_EQ(opzioni->modello, "K6X");
    EXPECT_EQ(opzioni->firmware, "2.09");
    EXPECT_EQ(opzioni->seme, 42u);
    EXPECT_EQ(opzioni->byteAlSecondo, kByteAlSecondoLinea);
    EXPECT_EQ(LeggiOpzioniSimulatore("", errore)->modello, "5520");
    EXPECT_EQ(LeggiOpzioniSimulatore(",seed=2", errore)->seme, 2u);
    EXPECT_EQ(LeggiOpzioniSimulatore(",port=4", errore)->userPort, 4);
    EXPECT_EQ(LeggiOpzioniSimulatore("5520+gx2207,speed=full", errore)->byteAlSecondo, 0);
    for (const char* parola :
         {"5521", "fw=new", "fw=-1", "seed=1.5", "seed=", "speed=slow", "colour=3"}) {
        const std::string modello = parola[0] == '5' ? "" : "5520,";
        EXPECT_FALSE(LeggiOpzioniSimulatore(modello + parola, errore)) << parola;
        EXPECT_NE(errore, "") << parola;
    }
}

} // namespace
} // namespace orvane::prova
