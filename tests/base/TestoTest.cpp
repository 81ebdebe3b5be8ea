// Trimming, case, search and lists.
#include <gtest/gtest.h>

#include "base/Interruttori.h"
#include "base/Testo.h"

namespace orvane {
namespace {

using Testi = std::vector<std::string>;

TEST(Testo, TrimsBlanksOnlyOrControlsToo) {
    EXPECT_EQ(Rifila("  a b \t"), "a b \t");
    EXPECT_EQ(Rifila("   "), "");
    EXPECT_EQ(Rifila(""), "");
    EXPECT_EQ(RifilaControlli(std::string_view("\0 a\r\nb \t\r\n\0", 10)), "a\r\nb");
    EXPECT_EQ(RifilaControlli("\r\n"), "");
}

TEST(Testo, CaseIsThatOfAsciiLettersAlone) {
    EXPECT_EQ(Maiuscolo("az{`@[ \u00B5\u00E0"), "AZ{`@[ \u00B5\u00E0");
    EXPECT_TRUE(ContieneSenzaMaiuscole("usb <-> SERIAL", "USB <-> Serial"));
    EXPECT_FALSE(ContieneSenzaMaiuscole("usb", "usbx"));
    EXPECT_TRUE(Contiene("abc", ""));
    EXPECT_TRUE(UgualiSenzaMaiuscole("Test_000", "tEST_000"));
    EXPECT_FALSE(UgualiSenzaMaiuscole("Test", "Test_"));
}

TEST(Testo, ReplacesWithoutLookingAtWhatItPutIn) {
    EXPECT_EQ(Sostituisci("aXbXX", "X", "XX"), "aXXbXXXX");
    EXPECT_EQ(Sostituisci("aaa", "aa", "b"), "ba");
    EXPECT_EQ(Sostituisci("", "a", "b"), "");
    EXPECT_EQ(Sostituisci("abc", "x", ""), "abc");
}

TEST(Testo, OnePieceMoreThanSeparators) {
    EXPECT_EQ(Dividi("", ';'), Testi{""});
    EXPECT_EQ(Dividi("a;;b;", ';'), (Testi{"a", "", "b", ""}));
    EXPECT_EQ(Unisci(Dividi("x;;y;", ';'), "; "), "x; ; y; ");
}

TEST(Testo, WhatStandsBetweenAndBehind) {
    EXPECT_EQ(Fra("a(b)c(d)", "(", ")"), "b");
    EXPECT_EQ(Fra("a(b", "(", ")"), "b");
    EXPECT_EQ(Fra("a)b", "(", ")"), "");
    EXPECT_EQ(Fra(")a(b)", "(", ")"), "b");
    EXPECT_EQ(Dietro("S/N= 12 \r\n", "S/N="), "12");
    EXPECT_EQ(Dietro("S/N 12", "S/N="), "");
}

TEST(Interruttori, AreSubstringsInAnyOrderAndCaseMatters) {
    const std::string riga = "console /TIMELOG/LOGCOMRISP";
    EXPECT_TRUE(Acceso(riga, interruttore::kLogComRisp));
    EXPECT_TRUE(Acceso(riga, interruttore::kTimeLog));
    EXPECT_FALSE(Acceso(riga, interruttore::kLogComandi));
    EXPECT_FALSE(Acceso("/logcomrisp", interruttore::kLogComRisp));
}

} // namespace
} // namespace orvane
