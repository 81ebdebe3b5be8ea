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
    struct Caso {
        float hz;
        int16_t logaritmico;
        int16_t lineare;
    };
    const LimFacRecord logaritmico = Tabella(kClasseB);
    const LimFacRecord lineare = Tabella(kClasseB, 1);
    for (const Caso& c :
         {Caso{150000, 6600, 6600}, Caso{150001, 6600, 6600}, Caso{200e3f, 6361, 6457},
          Caso{273861.28f, 6100, 6246}, Caso{333333, 5937, 6076}, Caso{500e3f, 5600, 5600},
          Caso{1e6f, 5600, 5600}, Caso{4999999.5f, 5600, 5600}, Caso{5000001, 6000, 6000},
          Caso{29999998, 6000, 6000}}) {
        EXPECT_EQ(ValoreLimite(logaritmico, c.hz), c.logaritmico) << c.hz;
        EXPECT_EQ(ValoreLimite(lineare, c.hz), c.lineare) << c.hz;
    }
}

TEST(ValoreLimite, AnyOtherFlagThanOneIsLogarithmic) {
    for (const int16_t flag : {-1, 0, 2, 257})
        EXPECT_EQ(ValoreLimite(Tabella(kClasseB, flag), 200e3f), 6361) << flag;
}

TEST(ValoreLimite, EndsBeforeItsLastPoint) {
    const LimFacRecord r = Tabella(kClasseB);
    const float ultimo = std::nextafter(30e6f, 0.0f);
    EXPECT_EQ(ValoreLimite(r, ultimo), 6000);
    for (const float fuori : {30e6f, 31e6f, std::nextafter(150e3f, 0.0f), 0.0f, -1.0f,
                              std::numeric_limits<float>::infinity(), NAN})
        EXPECT_EQ(ValoreLimite(r, fuori), kNessunValore) << fuori;
}

TEST(ValoreLimite, AStepHasTheValueBehindItAtItsFrequency) {
    const LimFacRecord r = Tabella(kClasseB);
    EXPECT_EQ(ValoreLimite(r, std::nextafter(5e6f, 0.0f)), 5600);
    EXPECT_EQ(ValoreLimite(r, 5e6f), 6000);
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

TEST(ValoreLimite, NoHintCanMisplaceTheSearch) {
    for (const int hint : {-32768, -1, 0, 1, 2, 3, 4, 5, 200, 201, 202, 32767}) {
        LimFacRecord r = Tabella(kClasseB);
        r.LastSegment = static_cast<int16_t>(hint);
        EXPECT_EQ(ValoreLimite(r, 200e3f), 6361) << hint;
        EXPECT_EQ(ValoreLimite(r, 5e6f), 6000) << hint;
        EXPECT_EQ(ValoreLimite(r, 30e6f), kNessunValore) << hint;
        EXPECT_EQ(r.LastSegment, hint) << "a limit keeps no hint";
    }
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

TEST(ValoreFattore, IsLinearWhateverTheFlagSays) {
    for (const int16_t flag : {0, 1}) {
        LimFacRecord r = Tabella({{9e3f, 1000}, {150e3f, 950}, {30e6f, 1120}}, flag);
        for (const auto& [hz, cent] : std::vector<std::pair<float, int16_t>>{{8999, 0},
                                                                             {9000, 1000},
                                                                             {50e3f, 985},
                                                                             {150e3f, 950},
                                                                             {1e6f, 955},
                                                                             {12.345e6f, 1019},
                                                                             {29.9e6f, 1119},
                                                                             {30e6f, 0},
                                                                             {1e9f, 0}})
            EXPECT_EQ(ValoreFattore(r, hz), cent) << hz;
    }
}

TEST(ValoreFattore, RemembersWhereItEnded) {
    LimFacRecord r = Tabella({{9e3f, 1000}, {150e3f, 950}, {30e6f, 1120}});
    r.LastSegment = 32767;
    ValoreFattore(r, 1e6f);
    EXPECT_EQ(r.LastSegment, 2);
    ValoreFattore(r, 50e3f);
    EXPECT_EQ(r.LastSegment, 1);
    ValoreFattore(r, 40e6f);
    EXPECT_EQ(r.LastSegment, 1) << "nothing was found there";
}

TEST(ValoreFattore, ACurveThatBeginsBelowNineHertzIsEmpty) {
    LimFacRecord vuota = Tabella({{8.999f, 500}, {1e6f, 500}});
    LimFacRecord buona = Tabella({{9, 500}, {1e6f, 500}});
    LimFacRecord zero = Tabella({{0, 500}, {1e6f, 500}});
    EXPECT_EQ(ValoreFattore(vuota, 1000), 0);
    EXPECT_EQ(ValoreFattore(buona, 1000), 500);
    for (const float hz : {0.0f, 9.0f, 1000.0f, 1e6f})
        EXPECT_EQ(ValoreFattore(zero, hz), 0);
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
}

TEST(LimitiSmart, WithoutACommonRangeThereIsNothingToJoin) {
    const LimFacRecord basso = Tabella({{10, 1}, {20, 1}});
    for (const LimFacRecord& altro : {Tabella({{20, 1}, {30, 1}}), Tabella({{30, 1}, {40, 1}}),
                                      Tabella({{15, 1}}), Tabella({})})
        EXPECT_FALSE(CreaElencoFreqLimDSD(basso, altro));
}

LimFacRecord ConPunti(int quanti, float passo) {
    std::vector<Punto> punti;
    for (int i = 0; i < quanti; ++i)
        punti.push_back({1e6f + static_cast<float>(i) * passo, 100});
    return Tabella(punti);
}

TEST(LimitiSmart, SayWhyTheReceiverCannotTakeThem) {
    struct Caso {
        LimFacRecord limite;
        std::optional<LimFacRecord> dsd;
        EsitoLimiteSD esito;
        std::string testo;
    };
    const std::string troppi = "Too many points in the limit\rMax 16 points";
    const std::string pochi = "Too few limit frequencies\rMin 2 different frequencies";
    const std::vector<Caso> casi = {
        {ConPunti(16, 10), {}, EsitoLimiteSD::Buono, ""},
        {ConPunti(17, 10), {}, EsitoLimiteSD::TroppiPunti, troppi},
        {ConPunti(2, 0), {}, EsitoLimiteSD::PocheFrequenze, pochi},
        {ConPunti(1, 10), {}, EsitoLimiteSD::PocheFrequenze, pochi},
        {ConPunti(0, 10), {}, EsitoLimiteSD::PocheFrequenze, pochi},
        {ConPunti(16, 10), ConPunti(16, 10), EsitoLimiteSD::Buono, ""},
        {ConPunti(9, 10), ConPunti(17, 5), EsitoLimiteSD::TroppiPunti, troppi},
        {ConPunti(2, 10), ConPunti(0, 10), EsitoLimiteSD::NonCombinabile,
         "Cannot combine the limit"},
    };
    for (const Caso& c : casi) {
        AmbienteProva ambiente;
        EXPECT_EQ(ControlloNMaxPuntiLimSD(ambiente, c.limite, c.dsd ? &*c.dsd : nullptr), c.esito);
        const std::string testo = ambiente.riquadri.empty() ? "" : ambiente.riquadri[0].testo;
        EXPECT_EQ(testo, c.testo);
    }
}

} // namespace
} // namespace orvane::prova
