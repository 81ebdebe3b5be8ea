// Windows-1252 against UTF-8, byte for byte.
#include <gtest/gtest.h>

#include <set>

#include "base/PaginaCodici.h"

namespace orvane {
namespace {

TEST(PaginaCodici, AllBytesSurviveTheRoundTrip) {
    std::set<std::string> caratteri;
    std::string tutti;
    for (int i = 0; i < 256; ++i) {
        const std::string byte(1, static_cast<char>(i));
        EXPECT_EQ(InAnsi(DaAnsi(byte)), byte) << i;
        EXPECT_TRUE(caratteri.insert(DaAnsi(byte)).second) << i;
        tutti += byte;
    }
    EXPECT_EQ(InAnsi(DaAnsi(tutti)), tutti);
}

TEST(PaginaCodici, TheCharactersThatThePageIsKnownBy) {
    EXPECT_EQ(DaAnsi("\xB5V \x80 \x99 \xE0"), "\u00B5V \u20AC \u2122 \u00E0");
    EXPECT_EQ(InAnsi("\u0160\u0178\u2013"), "\x8A\x9F\x96");
    EXPECT_EQ(DaAnsi("\x81"), "\u0081");
}

TEST(PaginaCodici, WhatIsOutsideThePageOrNoTextBecomesAQuestionMark) {
    const std::pair<const char*, const char*> casi[] = {
        {"\u03A9 \u4E2D \U0001F600.", "? ? ?."},
        {"\u0100", "?"},
        {"a\xFFz", "a?z"},
        {"a\x80z", "a?z"},
        {"a\xC2", "a?"},
        {"\xE2\x82", "??"},
        {"\xE2z\xAC", "?z?"},
        {"\xC0\x80", "??"}, // a longer form of a smaller character
        {"\xE0\x82\xB5", "???"},
        {"\xF8", "?"}};
    for (const auto& [testo, ansi] : casi)
        EXPECT_EQ(InAnsi(testo), ansi);
}

} // namespace
} // namespace orvane
