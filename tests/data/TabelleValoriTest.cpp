// Lookups in limits and factors, against figures worked out apart from the program: double
// arithmetic with single precision a and b, ties to even.
#include "data/Interpolazione.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "data/LimitiSmart.h"

#include "aiuto/AmbienteProva.h"

namespace orvane::prova {
namespace {

struct Punto {
    float hz;
    int16_t cent;
};

LimFacRecord Tabella(const std::vector<Punto>& punti, int16_t linFreq = 0) {
    LimFacRecord r;
    for (size_t i = 0; i < punti.size(); ++i) {
        r.Freq[i] = punti[i].hz;
        if (i < r.Value.size())
            r.Value[i] = punti[i].cent;
    }
    r.LinFreq = linFreq;
    return r;
}

const std::vector<Punto> kClasseB = {
    {150e3f, 6600}, {500e3f, 5600}, {5e6f, 5600}, {5e6f, 6000}, {30e6f, 6000}};

TEST(ValoreLimite, IsStraightOnItsOwnAxis) {
    // Frequency, level on the logarithmic and on the linear axis.
    const std::tuple<float, int16_t, int16_t> casi[] = {
        {std::nextafter(150e3f, 0.0f), kNessunValore, kNessunValore},
        {150e3f, 6600, 6600},
        {200e3f, 6361, 6457},
        {333333, 5937, 6076},
        {500e3f, 5600, 5600},
        {std::nextafter(5e6f, 0.0f), 5600, 5600},
        {5e6f, 6000, 6000},
        {std::nextafter(30e6f, 0.0f), 6000, 6000},
        {30e6f, kNessunValore, kNessunValore},
        {NAN, kNessunValore, kNessunValore},
        {-1, kNessunValore, kNessunValore}};
    for (const auto& [hz, logaritmico, lineare] : casi) {
        EXPECT_EQ(ValoreLimite(Tabella(kClasseB, 1), hz), lineare) << hz;
        for (const int16_t flag : {-1, 0, 2, 257}) // any other than one
            EXPECT_EQ(ValoreLimite(Tabella(kClasseB, flag), hz), logaritmico) << hz;
    }
}

TEST(ValoreLimite, RoundsTiesToEven) {
    // One hundredth every 2 Hz: odd distances lie half way.
    const LimFacRecord su = Tabella({{1024, 0}, {2048, 512}}, 1);
    const LimFacRecord giu = Tabella({{1024, 0}, {2048, -512}}, 1);
    for (const auto& [hz, cent] : std::vector<std::pair<float, int16_t>>{
             {1025, 0}, {1026, 1}, {1027, 2}, {1029, 2}, {1031, 4}, {1033, 4}}) {
        EXPECT_EQ(ValoreLimite(su, hz), cent) << hz;
        EXPECT_EQ(ValoreLimite(giu, hz), -cent) << hz;
    }
}

TEST(ValoreLimite, ASegmentTooSteepForSinglePrecisionStaysWithinTheType) {
    const std::vector<Punto> punti = {{1e9f, -32768}, {1e9f + 64, 32767}};
    EXPECT_EQ(ValoreLimite(Tabella(punti, 1), 1e9f), -27432); // b has lost its last places
    EXPECT_EQ(ValoreLimite(Tabella(punti, 0), 1e9f), 32767);  // 37029 by the formula
    // A slope beyond any number.
    EXPECT_EQ(ValoreLimite(Tabella({{1e-45f, 100}, {3e-45f, 200}}, 1), 1e-45f), 100);
}

TEST(ValoreLimite, EmptySingleAndFullTables) {
    EXPECT_EQ(ValoreLimite(LimFacRecord{}, 1e6f), kNessunValore);
    EXPECT_EQ(ValoreLimite(LimFacRecord{}, 0), kNessunValore);
    EXPECT_EQ(ValoreLimite(Tabella({{1e6f, 100}}), 1e6f), kNessunValore);
    std::vector<Punto> piena;
    for (int i = 0; i < 202; ++i)
        piena.push_back({1000.0f + static_cast<float>(i), static_cast<int16_t>(i)});
    const LimFacRecord r = Tabella(piena, 1);
    EXPECT_EQ(ValoreLimite(r, 1199), 199);
    EXPECT_EQ(ValoreLimite(r, 1199.6f), 200);
    // The last frequency ends the curve, but has no level of its own.
    EXPECT_EQ(ValoreLimite(r, 1200.5f), kNessunValore);
    EXPECT_EQ(NumeroPunti(r), 201u);
}

TEST(ValoreFattore, IsLinearAndRemembersWhereItEnded) {
    LimFacRecord r = Tabella({{9e3f, 1000}, {150e3f, 950}, {30e6f, 1120}});
    // Frequency, value, and the segment afterwards.
    const std::tuple<float, int16_t, int16_t> casi[] = {{8999, 0, 32767}, {1e6f, 955, 2},
                                                        {50e3f, 985, 1},  {40e6f, 0, 1},
                                                        {150e3f, 950, 2}, {30e6f, 0, 2}};
    r.LastSegment = 32767;
    for (const auto& [hz, cent, segmento] : casi) {
        EXPECT_EQ(ValoreFattore(r, hz), cent) << hz;
        EXPECT_EQ(r.LastSegment, segmento) << hz;
    }
}

TEST(ValoreFattore, ACurveThatBeginsBelowNineHertzIsEmpty) {
    for (const auto& [inizio, cent] : {std::pair{0.0f, 0}, {8.999f, 0}, {9.0f, 500}}) {
        LimFacRecord r = Tabella({{inizio, 500}, {1e6f, 500}});
        EXPECT_EQ(ValoreFattore(r, 1000), cent) << inizio;
    }
}

TEST(NumeroFreqTabella, CountsAStepOnce) {
    EXPECT_EQ(NumeroFreqTabella(Tabella(kClasseB)), 4);
    EXPECT_EQ(NumeroFreqTabella(Tabella({{1, 0}, {1, 0}})), 1);
    EXPECT_EQ(NumeroFreqTabella(LimFacRecord{}), 0);
    EXPECT_EQ(NumeroFreqTabella(Tabella({{1, 0}, {0, 0}, {3, 0}})), 1);
}

/// Seven factors of 1, 2, 4 ... 64 hundredths.
struct FattoriTest : ::testing::Test {
    FattoriTest() {
        for (size_t t = 0; t < kNumFattori; ++t) {
            const auto cent = static_cast<int16_t>(1 << t);
            tabelle.slot[kPrimoFattore + t] = Tabella({{1e3f, cent}, {1e9f, cent}});
        }
        setup.FactorOn.fill(1);
        setup.SommaFact = 1;
    }
    TabelleLimFac tabelle;
    SetupRecord setup;
};

TEST_F(FattoriTest, OnlyTheFirstFourEnterTheSumThatIsApplied) {
    EXPECT_EQ(SommaFattori(tabelle, setup, 1e6f), 1 + 2 + 4 + 8);
    EXPECT_EQ(SommaValoreFact(tabelle, setup, 1e6f), 127);
    setup.FactorOn = {1, 0, -1, 1, 1, 0, 0};
    EXPECT_EQ(SommaFattori(tabelle, setup, 1e6f), 1 + 8);
    EXPECT_EQ(SommaValoreFact(tabelle, setup, 1e6f), 1 + 8 + 16);
    EXPECT_EQ(SommaFattori(tabelle, setup, 2e9f), 0);
}

TEST_F(FattoriTest, TheMarkerReadsThoseThatAreOn) {
    setup.FactorOn = {0, 1, 0, 0, 0, 0, 1};
    const auto valori = VisualizzaValoreFact(tabelle, setup, 1e6f);
    EXPECT_EQ(valori[0], std::nullopt);
    EXPECT_EQ(valori[1], 2);
    EXPECT_EQ(valori[6], 64);
    setup.SommaFact = 0;
    EXPECT_EQ(SommaValoreFact(tabelle, setup, 1e6f), std::nullopt);
}

TEST(LimitiSmart, JoinAtThePointsOfBothWithinTheCommonRange) {
    const LimFacRecord qp = Tabella(kClasseB);
    const LimFacRecord av = Tabella({{200e3f, 5000}, {1e6f, 4000}, {60e6f, 4000}}, 1);
    const auto punti = CreaElencoFreqLimDSD(qp, av);
    ASSERT_TRUE(punti);
    const std::vector<PuntoDSD> attesi = {{200e3f, 6361, 5000}, {500e3f, 5600, 4625},
                                          {1e6f, 5600, 4000},   {5e6f, 5600, 4000},
                                          {5e6f, 6000, 4000},   {30e6f, 6000, 4000}};
    EXPECT_EQ(*punti, attesi);
}

TEST(LimitiSmart, AStepAtAnEndOfTheCommonRangeGivesItsInnerSide) {
    const LimFacRecord uno =
        Tabella({{10, 100}, {20, 100}, {20, 200}, {40, 200}, {40, 300}, {50, 300}});
    const LimFacRecord due = Tabella({{20, 1}, {40, 1}});
    const std::vector<PuntoDSD> attesi = {{20, 200, 1}, {40, 200, 1}};
    EXPECT_EQ(CreaElencoFreqLimDSD(uno, due), attesi);
    for (const LimFacRecord& altro : {Tabella({{40, 1}, {50, 1}}), Tabella({{30, 1}}), Tabella({})})
        EXPECT_FALSE(CreaElencoFreqLimDSD(due, altro)) << "without a common range";
}

LimFacRecord ConPunti(int quanti, float passo) {
    std::vector<Punto> punti;
    for (int i = 0; i < quanti; ++i)
        punti.push_back({1e6f + static_cast<float>(i) * passo, 100});
    return Tabella(punti);
}

TEST(LimitiSmart, SayWhyTheReceiverCannotTakeThem) {
    const std::string troppi = "Too many points in the limit\rMax 16 points";
    const std::string pochi = "Too few limit frequencies\rMin 2 different frequencies";
    using enum EsitoLimiteSD;
    const std::tuple<LimFacRecord, std::optional<LimFacRecord>, EsitoLimiteSD, std::string> casi[] =
        {{ConPunti(16, 10), {}, Buono, ""},
         {ConPunti(17, 10), {}, TroppiPunti, troppi},
         {ConPunti(2, 0), {}, PocheFrequenze, pochi},
         {ConPunti(0, 10), {}, PocheFrequenze, pochi},
         {ConPunti(16, 10), ConPunti(16, 10), Buono, ""},
         {ConPunti(9, 10), ConPunti(17, 5), TroppiPunti, troppi},
         {ConPunti(2, 10), ConPunti(0, 10), NonCombinabile, "Cannot combine the limit"}};
    for (const auto& [limite, dsd, esito, testo] : casi) {
        AmbienteProva ambiente;
        EXPECT_EQ(ControlloNMaxPuntiLimSD(ambiente, limite, dsd ? &*dsd : nullptr), esito);
        EXPECT_EQ(ambiente.riquadri.empty() ? "" : ambiente.riquadri[0].testo, testo);
    }
}

} // namespace
} // namespace orvane::prova
