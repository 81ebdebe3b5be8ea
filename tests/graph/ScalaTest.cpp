// Scales as tables: units, ranges, pixels of frequencies, labels, ticks.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "graph/Scala.h"

namespace orvane {
namespace {

constexpr double kNonNumero = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinito = std::numeric_limits<double>::infinity();

ScalaGrafico Asse(double start, double stop, double larghezza, bool logaritmica = true) {
    return SetScaleGraph(SetupRecord{}, start, stop, logaritmica, larghezza, 0);
}

TEST(Unita, OffsetERango) {
    const std::tuple<int, float, int, int> casi[] = {
        {-1, 0.0f, 9000, -10700}, {0, -107.0f, -2000, 0},   {1, 0.0f, 9000, -10700},
        {2, -34.0f, 5000, -7300}, {3, -17.0f, 7000, -9000}, {4, 0.0f, 9000, -10700},
        {5, -51.5f, 5000, -5750}, {6, -49.5f, 5000, -5550}, {7, -107.0f, -2000, 0},
        {8, 0.0f, 9000, -10700}};
    int top = 11, floor = 22;
    ImpostaLimitiScala(-33.9f, top, floor);
    EXPECT_EQ(top + floor, 33) << "an unknown offset changes nothing";
    for (const auto& [unitId, offset, scaleTop, scaleFloor] : casi) {
        EXPECT_EQ(ImpostaUnita(unitId), offset) << unitId;
        ImpostaLimitiScala(offset, top, floor);
        EXPECT_EQ(std::pair(top, floor), std::pair(scaleTop, scaleFloor)) << unitId;
    }
}

TEST(SetScaleGraph, AltezzaEdEstremi) {
    struct Caso {
        int dinamicaId, refLevel, attenuator, unitId;
        double refOffset;
        double RangeDB, TopLevel, basso, alto;
    };
    const Caso casi[] = {
        {0, 0, 0, 1, 0, 7000, -1000, 1000, 8000},
        {1, -10, 0, 1, 0, 9000, 0, 0, 9000},
        {1, -10, 10, 1, 0, 9000, 0, 1000, 10000},
        {1, -10, -1, 1, 0, 9000, 0, 0, 9000}, // AUTO
        {6, -10, 0, 1, 250, 19000, 10250, 250, 19250},
        {1, -10, 0, 0, 0, 9000, 0, -11000, -2000}, // dBm: the top of its odd row
        {1, 0, 0, 5, 0, 9000, 1000, -3000, 6000},
        {99, 0, 0, 1, 0, 19000, 11000, 1000, 20000}, // beyond the list: its last entry
        {-3, 0, 0, 1, 0, 7000, -1000, 1000, 8000}};
    for (const Caso& caso : casi) {
        SCOPED_TRACE(testing::Message() << caso.dinamicaId << '/' << caso.unitId);
        SetupRecord setup;
        setup.DinamicaId = static_cast<int16_t>(caso.dinamicaId);
        setup.RefLevel = static_cast<int16_t>(caso.refLevel);
        setup.Attenuator = static_cast<int16_t>(caso.attenuator);
        setup.UnitId = static_cast<int16_t>(caso.unitId);
        const ScalaGrafico s = SetScaleGraph(setup, 0.15, 30, true, 1000, caso.refOffset);
        EXPECT_EQ(s.RangeDB, caso.RangeDB);
        EXPECT_EQ(s.TopLevel, caso.TopLevel);
        EXPECT_EQ(s.basso, caso.basso);
        EXPECT_EQ(s.alto, caso.alto);
    }
}

TEST(FreqToX, PixelInteri) {
    const ScalaGrafico scala = Asse(0.15, 30, 1000);
    // 1000 x ln(f / 0.15) / ln 200
    const std::pair<double, int> casi[] = {{0.15, 0},  {0.2, 54},     {0.5, 227},   {1, 358},
                                           {2, 489},   {5, 662},      {10, 793},    {20, 923},
                                           {30, 1000}, {1e-5, -1815}, {18000, 2207}};
    for (const auto& [f, x] : casi)
        EXPECT_EQ(FreqToX(scala, f), x) << f;
}

TEST(FreqToX, FuoriDaDiecimilaValeZero) {
    const ScalaGrafico scala = Asse(0.15, 30, 10000);
    EXPECT_EQ(FreqToX(scala, 30), 10000);
    EXPECT_EQ(FreqToX(scala, 30.01), 0);
    EXPECT_EQ(FreqToX(scala, 0.00075), -10000);
    EXPECT_EQ(FreqToX(scala, 0.0007), 0);
    for (double f : {0.0, -1.0, kNonNumero, kInfinito})
        EXPECT_EQ(FreqToX(scala, f), 0) << f;
}

TEST(XToFreq, ContrarioDiFreqToX) {
    const ScalaGrafico scala = Asse(0.15, 30, 1000);
    EXPECT_NEAR(XToFreq(scala, 0), 0.15, 1e-12);
    EXPECT_NEAR(XToFreq(scala, 250), 0.564090463962959, 1e-12);
    EXPECT_NEAR(XToFreq(scala, 1000), 30, 1e-9);
    for (int x = 0; x <= 1000; ++x)
        ASSERT_EQ(FreqToX(scala, XToFreq(scala, x)), x);
}

TEST(Asse, DegenereNonHaPosti) {
    const std::pair<double, double> assi[] = {{30, 0.15}, {1, 1},          {0, 30},
                                              {-1, 30},   {kNonNumero, 1}, {1, kInfinito}};
    for (const auto& [start, stop] : assi) {
        SCOPED_TRACE(testing::Message() << start << ".." << stop);
        const ScalaGrafico scala = Asse(start, stop, 1000);
        EXPECT_EQ(FreqToX(scala, 2), 0);
        EXPECT_FALSE(PosizioneX(scala, 2));
        EXPECT_TRUE(CalcolaDecade(start, stop).empty());
    }
    EXPECT_FALSE(PosizioneX(Asse(1, 2, 0), 1.5));
    EXPECT_EQ(XToFreq(Asse(1, 2, 0), 500), 1);
}

TEST(FormatFreqLabel, UnitaESoglie) {
    const std::pair<double, const char*> casi[] = {
        {0.15, "150 k"},      {0.00001, "0.01 k"},  {0.0003, "0.3 k"},
        {0.0007, "0.7 k"},    {0.9999, "999.9 k"},  {1, "1 M"},
        {30, "30 M"},         {107.95, "107.95 M"}, {999.999, "999.999 M"},
        {1000, "1 G"},        {18000, "18 G"},      {2750.5, "2.7505 G"},
        {0, "0 Hz"},          {-0.0, "0 Hz"},       {-0.5, "-500000 Hz"},
        {0.1 + 0.2, "300 k"}, {kNonNumero, ""},     {kInfinito, ""}};
    for (const auto& [mhz, testo] : casi)
        EXPECT_EQ(FormatFreqLabel(mhz), testo) << mhz;
}

TEST(CalcolaDecade, CondottaDa150kHzA30MHz) {
    const auto tacche = CalcolaDecade(0.15, 30);
    ASSERT_EQ(tacche.size(), 8u + 9 + 3);
    EXPECT_DOUBLE_EQ(tacche.front().freqMhz, 0.2);
    EXPECT_DOUBLE_EQ(tacche.back().freqMhz, 30);
    std::string scritte, decadi;
    for (const Tacca& tacca : tacche) {
        if (!tacca.etichetta.empty())
            scritte += tacca.etichetta + ",";
        if (tacca.decade)
            decadi += FormatFreqLabel(tacca.freqMhz) + ",";
    }
    EXPECT_EQ(scritte, "200 k,500 k,1 M,2 M,5 M,10 M,20 M,");
    EXPECT_EQ(decadi, "1 M,10 M,");
}

} // namespace
} // namespace orvane
