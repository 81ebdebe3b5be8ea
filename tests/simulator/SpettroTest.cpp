// The simulated spectrum: detectors in order, the seed, the filter's shape, the floor.
#include <algorithm>
#include <random>

#include "simulator/Banco.h"

namespace orvane::prova {
namespace {

enum { kPeak, kQPeak, kRms, kAvg, kRmsAvg, kCAvg };

TEST(Spettro, DetectorsKeepTheirOrderEverywhere) {
    const struct {
        double daMhz, aMhz, rbwHz;
    } gamme[] = {{3e-5, 1e-3, 10},  {9e-3, 0.15, 200}, {0.15, 30, 9e3},
                 {0.15, 30, 300e3}, {30, 1000, 120e3}, {1000, 18000, 1e6}};
    constexpr std::pair<int, int> kOrdine[] = {{kPeak, kQPeak}, {kQPeak, kRmsAvg}, {kRmsAvg, kRms},
                                               {kRms, kAvg},    {kRmsAvg, kCAvg},  {kCAvg, kAvg}};
    std::mt19937 dado(5);
    for (const auto& gamma : gamme)
        for (uint32_t seme = 1; seme <= 6; ++seme)
            for (int i = 0; i < 300; ++i) {
                const double mhz = std::uniform_real_distribution(gamma.daMhz, gamma.aMhz)(dado);
                const CondizioniSpettro condizioni{.rbwHz = gamma.rbwHz,
                                                   .attDb = 10 * (i % 6),
                                                   .preAmp = i % 7 == 0,
                                                   .seme = seme};
                int16_t v[6];
                for (int d = 0; d < 6; ++d)
                    v[d] = LivelloSimulato(mhz, d, condizioni);
                for (const auto& [alto, basso] : kOrdine)
                    ASSERT_GE(v[alto], v[basso]) << mhz << " " << seme;
            }
}

TEST(Spettro, TheSeedDecides) {
    const CondizioniSpettro uno{.seme = 1}, altro{.seme = 2};
    int diversi = 0;
    for (int i = 0; i < 100; ++i) {
        const double mhz = 0.2 + 0.25 * i;
        EXPECT_EQ(LivelloSimulato(mhz, kPeak, uno), LivelloSimulato(mhz, kPeak, uno));
        diversi += LivelloSimulato(mhz, kPeak, uno) != LivelloSimulato(mhz, kPeak, altro);
    }
    EXPECT_GT(diversi, 90);
}

TEST(Spettro, ANetworkLineDiffersByWhatItsCodeSays) {
    const struct {
        int codice;
        double mhz;
        int diversa; ///< hundredths of a dB
    } casi[] = {{0, 0.5, 0},  {1, 2, -150}, {1, 6, -110}, {2, 2, 220}, {4, 2, -180},
                {4, 6, -110}, {4, 1, -227}, {7, 6, 235},  {8, 6, 0},   {12, 6, -110}};
    for (const auto& caso : casi)
        for (int d = kPeak; d <= kCAvg; ++d)
            EXPECT_EQ(LivelloSimulato(caso.mhz, d, {.rete = caso.codice}),
                      LivelloSimulato(caso.mhz, d, {}) + caso.diversa)
                << caso.codice << " at " << caso.mhz;
}

/// The highest point of a piece of spectrum, MHz.
double Cima(double daMhz, double aMhz, double passoMhz, const CondizioniSpettro& condizioni) {
    double cima = daMhz;
    for (double mhz = daMhz; mhz <= aMhz; mhz += passoMhz)
        if (LivelloSimulato(mhz, kPeak, condizioni) > LivelloSimulato(cima, kPeak, condizioni))
            cima = mhz;
    return cima;
}

TEST(Spettro, ALineHasTheShapeOfTheFilter) {
    const CondizioniSpettro larga{.rbwHz = 9e3}, stretta{.rbwHz = 1e3};
    const double fondamentale = Cima(0.06, 0.072, 0.00001, stretta);
    const int cima = LivelloSimulato(fondamentale, kPeak, larga);
    EXPECT_EQ(LivelloSimulato(fondamentale, kPeak, stretta), cima) << "a line keeps its level";
    for (const auto& c : {larga, stretta}) {
        const double mezza = c.rbwHz / 2e6;
        EXPECT_NEAR(LivelloSimulato(fondamentale + mezza, kPeak, c), cima - 300, 60);
        EXPECT_NEAR(LivelloSimulato(fondamentale - 2 * mezza, kPeak, c), cima - 1200, 120);
    }
}

TEST(Spettro, TheFloorFollowsFilterAttenuatorAndPreamplifier) {
    // An average over a stretch between the lines takes the noise out.
    const auto fondo = [](const CondizioniSpettro& c) {
        double somma = 0;
        for (int i = 0; i < 400; ++i)
            somma += LivelloSimulato(7000 + 0.37 * i, kAvg, c) / 400.0;
        return somma;
    };
    const CondizioniSpettro base{.rbwHz = 1e6, .attDb = 10};
    EXPECT_NEAR(fondo({.rbwHz = 100e3, .attDb = 10}), fondo(base) - 1000, 20);
    EXPECT_NEAR(fondo({.rbwHz = 1e6, .attDb = 30}), fondo(base) + 2000, 40);
    EXPECT_NEAR(fondo({.rbwHz = 1e6, .attDb = 10, .preAmp = true}), fondo(base) - 800, 40);
}

} // namespace
} // namespace orvane::prova
