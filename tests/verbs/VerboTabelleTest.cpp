// The verbs of tables: what they print, and what `store` sends.
#include "aiuto/BancoVerbi.h"

namespace orvane::prova {
namespace {

using VerboTabelleTest = BancoVerbi;

TEST_F(VerboTabelleTest, ValuesComeOneALineOrAsJson) {
    ASSERT_EQ(Esegui("limit", {"library"}), kFatto);
    EXPECT_EQ(Esegui("limit", {"value", "CISPR 32 B mains QP", "150e3", "149999", "5e6", "5,1e6"}),
              kFatto);
    EXPECT_EQ(dati.str(), "6600\nnone\n5600\n6000\n");
    banco.json = true;
    Esegui("limit", {"value", "CISPR 32 B mains QP", "150e3", "40e6"});
    EXPECT_EQ(dati.str(), "[{\"hz\":150000,\"hundredths\":6600},"
                          "{\"hz\":40000000,\"hundredths\":null}]\n");
}

TEST_F(VerboTabelleTest, ShowsTitleUnitAxisAndPoints) {
    Esegui("limit", {"library"});
    EXPECT_EQ(Esegui("limit", {"show", "cispr 32 b RADIATED 10m qp"}), kFatto);
    EXPECT_EQ(dati.str(), "title: CISPR 32 class B, radiated, QP, 10 m\nunit: dB\xC2\xB5V/m\n"
                          "axis: logarithmic\n30\t30.00\n230.00002\t30.00\n230.00002\t37.00\n"
                          "1000.00006\t37.00\n");
}

TEST_F(VerboTabelleTest, StoresUnderTheReceiversOwnNumber) {
    Esegui("limit", {"library"});
    EXPECT_EQ(Esegui("limit", {"store", "CISPR 32 A mains QP", "--slot", "2", "--name", "C32"}),
              kFatto);
    EXPECT_EQ(
        b.simulato.Tabella("LIC", 2),
        (std::vector<std::string>{"C32", "150e3;79", "500e3;79", "500e3;73", "30000.002e3;73"}));
    const auto& comandi = b.simulato.Comandi();
    EXPECT_EQ(comandi.front(), "#ASBK*") << "whatever the receiver was doing is ended first";
    EXPECT_EQ(comandi.back(), "#SLIC 2,C32*");
    EXPECT_FALSE(b.flusso.Aperto());
}

TEST_F(VerboTabelleTest, AnUploadThatFailsIsTheLinks) {
    Esegui("limit", {"library"});
    b.simulato.Aggiungi({.tipo = Capriccio::Tipo::Muto, .comando = "SLIW"});
    EXPECT_EQ(Esegui("limit", {"store", "CISPR 32 A mains QP", "--slot", "2", "--name", "C32"}),
              kGuastoLink);
    EXPECT_EQ(b.ambiente.riquadri.back().testo, "Could not store\rLimit C32");
}

TEST_F(VerboTabelleTest, WrongWordsAreWrongUse) {
    for (const char* riga :
         {"limit", "limit shown X", "limit value X", "limit value X inf", "limit store X",
          "limit store X --slot 1.5", "limit store X --slot 0", "limit store X --slot 100",
          "factor library", "factor import X f --lin", "limit import X f --unit dBx",
          "table value X 1", "table import X f --title T"}) {
        EXPECT_EQ(Esegui(Sostituisci(riga, " ", "|")), kUsoErrato) << riga;
    }
}

} // namespace
} // namespace orvane::prova
