// Uploads to a simulated receiver: what goes out, what is refused before, what a failure leaves.
#include <gtest/gtest.h>

#include "aiuto/BancoSimulato.h"
#include "data/CaricamentoTabelle.h"
#include "data/ImportaTesto.h"

namespace orvane::prova {
namespace {

using Testi = std::vector<std::string>;

struct VistaProva : VistaCaricamento {
    std::vector<size_t> fatti;
    size_t totale = 0;
    bool nascosta = false;
    std::function<void()> alPunto;
    void ImpostaAvanzamento(size_t f, size_t t) override {
        fatti.push_back(f);
        totale = t;
        if (alPunto)
            alPunto();
    }
    void NascondiAvanzamento() override { nascosta = true; }
};

struct CaricamentoTest : ::testing::Test {
    BancoSimulato banco;
    VistaProva vista;
    LimFacRecord slot;

    EsitoCaricamento Carica(TableKind kind, const std::string& testo,
                            const std::string& nome = "LIM", int posizione = 2) {
        ContenutoTabella c{.kind = kind};
        ImportaTesto(c, testo);
        return StoreFacLim(banco.ricevitore, vista, c, slot, nome, posizione);
    }
    Testi Riquadri() const { return banco.ambiente.Testi(); }
};

TEST(TestoPunto, IsInKilohertzBelowOneGigahertz) {
    const std::tuple<double, int16_t, const char*> casi[] = {
        {0.15, 6600, "150e3;66"},           {0.0000095, 1, "0.0095e3;0.01"},
        {150.123, -4350, "150123e3;-43.5"}, {999.9, 0, "999900e3;0"},
        {1000, 1234, "1000e6;12.34"},       {18000, 5400, "18000e6;54"}};
    for (const auto& [mhz, cent, testo] : casi)
        EXPECT_EQ(TestoPunto(HzDaMhz(mhz), cent), testo);
}

TEST_F(CaricamentoTest, ALimitGoesOutPointByPointAndIsClosedByItsName) {
    EXPECT_EQ(Carica(TableKind::Limite, "0.15;66\n0.5;56.5\n5;56.5\n5;60\n1000;60\n"),
              EsitoCaricamento::Memorizzato);
    EXPECT_EQ(banco.simulato.Comandi(),
              (Testi{"#SLIW0,150e3;66*", "#SLIW1,500e3;56.5*", "#SLIW2,5000e3;56.5*",
                     "#SLIW3,5000e3;60*", "#SLIW4,1000e6;60*", "#SLIC 3,LIM*"}));
    EXPECT_EQ(banco.simulato.Tabella("LIC", 3),
              (Testi{"LIM", "150e3;66", "500e3;56.5", "5000e3;56.5", "5000e3;60", "1000e6;60"}));
    EXPECT_EQ(Riquadri(), Testi{"Successfully stored as \r3 LIM Limit"});
    EXPECT_EQ(vista.fatti, (std::vector<size_t>{1, 2, 3, 4, 5}));
    EXPECT_EQ(vista.totale, 5u);
    EXPECT_TRUE(vista.nascosta);
    EXPECT_FALSE(banco.flusso.Aperto()) << "the link is closed again";
    EXPECT_EQ(slot.Freq[4], 1e9f) << "the editor's slot holds what was sent";
}

TEST_F(CaricamentoTest, WhatIsRefusedSendsNothing) {
    std::string diciassette;
    for (int i = 1; i <= 17; ++i)
        diciassette += std::to_string(i) + ";1\n";
    const std::string pochi = "Too few factor frequencies\rMin 2 frequencies";
    const std::string lungo = "The name is too long!\rAnd it could be shortened on 5520";
    const std::string uguali = "First two frequencies must be different";
    const std::tuple<std::string, std::string, Testi> casi[] = {
        {"", "LIM", {pochi}},
        {"1;1\n1;2\n", "LIM", {pochi}},
        {"1;1\n1;2\n2;2\n", "ELEVEN CHAR", {lungo, uguali}},
        {diciassette, "LIM", {"Too many frequencies\rMax 16 frequencies"}},
        {"1;1\n2;2\n", "A*B", {"File name not valid"}},
        {"1;1\n2;2\n", " ", {"File name not valid"}},
        {"1;1\n", "LIM", {pochi}}};
    for (const auto& [testo, nome, riquadri] : casi) {
        banco.ambiente.riquadri.clear();
        EXPECT_EQ(Carica(TableKind::Limite, testo, nome), EsitoCaricamento::Rifiutato);
        EXPECT_EQ(Riquadri(), riquadri);
        EXPECT_TRUE(banco.simulato.Comandi().empty());
    }
    EXPECT_EQ(slot.Freq[1], 1e6f) << "a single point stands twice in the slot";
    EXPECT_EQ(slot.Value[1], 100);
}

TEST_F(CaricamentoTest, AFactorMayHaveMorePointsAndALongNameWarnsAndGoesOn) {
    std::string testo;
    for (int i = 1; i <= 201; ++i)
        testo += std::to_string(i) + ";-0.25\n";
    for (const auto& [nome, riquadri] : {std::pair{"ELEVEN CHAR", 2u}, {"TEN CHAR \xC2\xB5", 1u}}) {
        banco.ambiente.riquadri.clear();
        banco.simulato.DimenticaComandi();
        EXPECT_EQ(Carica(TableKind::Fattore, testo, nome, 0), EsitoCaricamento::Memorizzato);
        EXPECT_EQ(banco.ambiente.riquadri.size(), riquadri) << nome;
        EXPECT_EQ(Riquadri().back(),
                  "Successfully stored as \r1 " + std::string(nome) + " Conversion Factor");
        EXPECT_EQ(banco.simulato.Comandi().front(), "#SCFW0,1000e3;-0.25*");
        EXPECT_EQ(banco.simulato.Comandi().back(), "#SCFE 1," + std::string(nome) + "*");
        EXPECT_EQ(banco.simulato.Tabella("CFE", 1).size(), 202u);
    }
}

TEST_F(CaricamentoTest, ALostReplyIsAskedForTwiceMore) {
    banco.simulato.Aggiungi({.tipo = Capriccio::Tipo::Muto, .comando = "SLIW1", .volte = 2});
    EXPECT_EQ(Carica(TableKind::Limite, "1;1\n2;2\n"), EsitoCaricamento::Memorizzato);
    EXPECT_EQ(banco.simulato.Comandi().size(), 5u);
}

TEST_F(CaricamentoTest, AMissingReplyEndsTheUpload) {
    for (const auto& [comando, mandati] :
         std::vector<std::pair<std::string, size_t>>{{"SLIW1", 4}, {"SLIC", 6}}) {
        banco.simulato.Scorda();
        banco.simulato.Aggiungi({.tipo = Capriccio::Tipo::Rifiuto, .comando = comando});
        banco.simulato.DimenticaComandi();
        banco.ambiente.riquadri.clear();
        vista.nascosta = false;
        EXPECT_EQ(Carica(TableKind::Limite, "1;1\n2;2\n3;3\n"), EsitoCaricamento::NonRisponde);
        EXPECT_EQ(banco.simulato.Comandi().size(), mandati) << comando;
        EXPECT_EQ(Riquadri(), Testi{"Could not store\rLimit LIM"});
        EXPECT_TRUE(vista.nascosta);
        EXPECT_FALSE(banco.flusso.Aperto());
    }
}

TEST_F(CaricamentoTest, AnAbortIsHonouredBetweenTwoPoints) {
    vista.alPunto = [&] { banco.stato.AbbandonaComandi = vista.fatti.size() == 2; };
    EXPECT_EQ(Carica(TableKind::Limite, "1;1\n2;2\n3;3\n"), EsitoCaricamento::Abbandonato);
    EXPECT_EQ(banco.simulato.Comandi().size(), 2u);
    EXPECT_TRUE(Riquadri().empty());
    EXPECT_TRUE(vista.nascosta);
}

TEST_F(CaricamentoTest, WithoutALinkNothingIsShown) {
    banco.simulato.Aggiungi({.tipo = Capriccio::Tipo::Scollegato});
    EXPECT_NE(Carica(TableKind::Limite, "1;1\n2;2\n"), EsitoCaricamento::Memorizzato);
    EXPECT_TRUE(vista.fatti.empty());
}

} // namespace
} // namespace orvane::prova
