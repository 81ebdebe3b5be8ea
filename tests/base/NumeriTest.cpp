// Numbers as text and back, whatever the locale.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <locale>
#include <random>

#include "base/Numeri.h"

namespace orvane {
namespace {

TEST(Numeri, TheShortestTextWithoutAnExponent) {
    struct Caso {
        double valore;
        const char* testo;
    };
    for (const Caso& caso :
         {Caso{0, "0"}, Caso{-0.0, "0"}, Caso{0.1, "0.1"}, Caso{-10700, "-10700"},
          Caso{30.1 * 1000, "30100"}, Caso{18e9, "18000000000"}, Caso{0.000001, "0.000001"},
          Caso{1e-20, "0.00000000000000000001"}, Caso{99999999999999984.0, "99999999999999984"},
          Caso{1e300, "1e+300"}, Caso{0.1 + 0.2, "0.30000000000000004"}})
        EXPECT_EQ(TestoDaNumero(caso.valore), caso.testo);
    EXPECT_EQ(TestoDaNumero(0.1f), "0.1");
    EXPECT_EQ(TestoDaNumero(-6.1f), "-6.1");
    EXPECT_EQ(TestoDaNumero(16777216.f), "16777216");
}

TEST(Numeri, AWholeNumberOrNone) {
    EXPECT_EQ(LeggiNumero(" 30,1 "), 30.1);
    EXPECT_EQ(LeggiNumero("1e3"), 1000);
    for (const char* rotto : {"", " ", "3 MHz", "1,234.5", "0x10", "+-5", "inf", "1e999", "5-"})
        EXPECT_EQ(LeggiNumero(rotto), std::nullopt) << rotto;
}

TEST(Numeri, EveryNumberReadsBackAsItself) {
    std::mt19937_64 caso(7);
    std::uniform_real_distribution<double> esponente(-25, 25);
    for (int i = 0; i < 5000; ++i) {
        const double valore = std::ldexp(1 + static_cast<double>(caso()) / 1.8446744073709552e19,
                                         static_cast<int>(esponente(caso) * 3)) *
                              (i % 2 ? 1 : -1);
        ASSERT_EQ(LeggiNumero(TestoDaNumero(valore)), valore);
        const auto corto = static_cast<float>(valore);
        ASSERT_EQ(static_cast<float>(ValoreIniziale(TestoDaNumero(corto))), corto);
    }
}

TEST(Numeri, FixedDecimalsAndPaddedIntegers) {
    EXPECT_EQ(TestoFisso(43200.126, 2), "43200.13");
    EXPECT_EQ(TestoFisso(0, 2), "0.00");
    EXPECT_EQ(TestoFisso(-1.5, 0), "-2");
    EXPECT_EQ(TestoFisso(1e22, 1), "10000000000000000000000.0");
    EXPECT_EQ(TestoIntero(7, 3), "007");
    EXPECT_EQ(TestoIntero(-7, 3), "-07");
    EXPECT_EQ(TestoIntero(1234, 3), "1234");
    EXPECT_EQ(TestoIntero(std::numeric_limits<long long>::min()), "-9223372036854775808");
}

TEST(Numeri, TheLeadingPartCounts) {
    struct Caso {
        const char* testo;
        double valore;
    };
    for (const Caso& caso :
         {Caso{"12)", 12}, Caso{"  3.5 MHz", 3.5}, Caso{"3,5", 3.5}, Caso{"-7x", -7}, Caso{"+7", 7},
          Caso{".5", 0.5}, Caso{"10700e3*", 10700000}, Caso{"1e", 1}, Caso{"1.2.3", 1.2},
          Caso{"", 0}, Caso{"x", 0}, Caso{"-", 0}, Caso{"+-5", 0}, Caso{"inf", 0}, Caso{"nan", 0},
          Caso{"1e999", 0}, Caso{"\r\n4", 4}})
        EXPECT_EQ(ValoreIniziale(caso.testo), caso.valore) << caso.testo;
}

struct Virgola : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(Numeri, TheLocaleHasNoSay) {
    const std::locale prima = std::locale::global(std::locale(std::locale(), new Virgola));
    EXPECT_EQ(TestoDaNumero(1234567.5), "1234567.5");
    EXPECT_EQ(TestoFisso(1234.5, 2), "1234.50");
    EXPECT_EQ(TestoIntero(1234567), "1234567");
    EXPECT_EQ(LeggiNumero("1.5"), 1.5);
    std::locale::global(prima);
}

} // namespace
} // namespace orvane
