// Reduction to columns: what must survive it, and what breaks the line.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

#include "graph/Colonne.h"

namespace orvane {
namespace {

int Piene(const ColonneTraccia& traccia) {
    int piene = 0;
    for (int i = 0; i < traccia.Quante(); ++i)
        piene += !traccia.Colonna(i).vuota;
    return piene;
}

/// Columns of one MHz each, from 10 to 20.
ColonneTraccia DieciColonne() {
    return ColonneTraccia(10, 20, 10, false);
}

TEST(Colonne, EstremiPrimoEUltimo) {
    ColonneTraccia traccia = DieciColonne();
    for (const int16_t livello : {300, -100, 900, 200})
        traccia.Aggiungi(12.4, livello);
    const auto& c = traccia.Colonna(2);
    EXPECT_EQ((std::array{c.primo, c.minimo, c.massimo, c.ultimo}),
              (std::array<int16_t, 4>{300, -100, 900, 200}));
    EXPECT_EQ(Piene(traccia), 1);
    EXPECT_DOUBLE_EQ(traccia.Frequenza(2), 12.5);
    traccia.Azzera();
    EXPECT_EQ(Piene(traccia), 0);
}

TEST(Colonne, BordiEUltimeCifre) {
    const std::pair<double, int> casi[] = {{10, 0}, {10.9999, 0},    {11, 1},        {19, 9},
                                           {20, 9}, {10 - 1e-12, 0}, {20 + 1e-12, 9}};
    for (const auto& [f, colonna] : casi) {
        ColonneTraccia traccia = DieciColonne();
        traccia.Aggiungi(f, 100);
        ASSERT_EQ(Piene(traccia), 1) << f;
        EXPECT_FALSE(traccia.Colonna(colonna).vuota) << f;
    }
}

TEST(Colonne, RotturaSoloDoveIlLivelloManca) {
    ColonneTraccia traccia = DieciColonne();
    traccia.Aggiungi(10.5, 100);
    traccia.Aggiungi(14.5, 100); // far, but the line runs on
    traccia.Aggiungi(15.5, kNessunLivello);
    traccia.Aggiungi(16.5, 100);
    traccia.Aggiungi(17.5, -20001);
    traccia.Aggiungi(18.5, -19999);
    EXPECT_TRUE(traccia.Colonna(0).rottura);
    EXPECT_FALSE(traccia.Colonna(4).rottura);
    EXPECT_TRUE(traccia.Colonna(5).vuota);
    EXPECT_TRUE(traccia.Colonna(6).rottura);
    EXPECT_TRUE(traccia.Colonna(7).vuota);
    EXPECT_TRUE(traccia.Colonna(8).rottura);
}

TEST(Colonne, UnaRigaStaccataNonSiCongiunge) {
    ColonneTraccia traccia = DieciColonne();
    traccia.Aggiungi(11.5, 100);
    traccia.Interrompi();
    traccia.Aggiungi(15.5, 100);
    EXPECT_TRUE(traccia.Colonna(5).rottura);
    // A later line bridges the gap without lifting the pen.
    traccia.Interrompi();
    for (double f = 11.6; f < 16; f += 1)
        traccia.Aggiungi(f, 200);
    for (int i = 2; i <= 5; ++i)
        EXPECT_FALSE(traccia.Colonna(i).rottura) << i;
    EXPECT_TRUE(traccia.Colonna(1).rottura);
}

TEST(Colonne, ViciniOltreGliEstremi) {
    ColonneTraccia traccia = DieciColonne();
    for (double f = 1; f < 30; f += 4)
        traccia.Aggiungi(f, static_cast<int16_t>(f * 10));
    ASSERT_TRUE(traccia.Sinistra());
    EXPECT_EQ(traccia.Sinistra()->freqMhz, 9);
    EXPECT_EQ(traccia.Sinistra()->livello, 90);
    ASSERT_TRUE(traccia.Destra());
    EXPECT_EQ(traccia.Destra()->freqMhz, 21);
    EXPECT_FALSE(traccia.Destra()->rottura);
    EXPECT_FALSE(traccia.Colonna(3).rottura);
    traccia.Azzera();
    EXPECT_FALSE(traccia.Sinistra() || traccia.Destra());
}

TEST(Colonne, AssiECampioniImpossibili) {
    const double nonNumero = std::numeric_limits<double>::quiet_NaN();
    const double infinito = std::numeric_limits<double>::infinity();
    const std::pair<double, double> assi[] = {
        {30, 1}, {1, 1}, {0, 30}, {nonNumero, 30}, {1, infinito}};
    for (const auto& [start, stop] : assi) {
        for (const int colonne : {-5, 0, 1, 100}) {
            ColonneTraccia traccia(start, stop, colonne, true);
            for (double f : {nonNumero, -infinito, infinito, 0.0, 1.0, 30.0})
                traccia.Aggiungi(f, 100);
            EXPECT_EQ(traccia.Quante(), std::max(1, colonne));
            EXPECT_EQ(Piene(traccia), 0);
            EXPECT_FALSE(traccia.Sinistra() || traccia.Destra());
        }
    }
    ColonneTraccia traccia = DieciColonne();
    for (double f : {nonNumero, -infinito, infinito})
        traccia.Aggiungi(f, 100);
    EXPECT_FALSE(traccia.Sinistra() || traccia.Destra());
    EXPECT_EQ(Piene(traccia), 0);
}

} // namespace
} // namespace orvane
