// Levels from their bytes.
#include "link/Livelli.h"

#include <gtest/gtest.h>

#include <array>

namespace orvane {
namespace {

TEST(DecodificaLivello, KeepsItsOneEncoding) {
    EXPECT_EQ(DecodificaLivello(0x10, 0x27), 10000);
    EXPECT_EQ(DecodificaLivello(0xFF, 0x7F), 32767);
    EXPECT_EQ(DecodificaLivello(0x00, 0x80), -32767);
    EXPECT_EQ(DecodificaLivello(0xFF, 0xFF), 0);
    EXPECT_EQ(DecodificaLivello(0xFE, 0xFF), -1);
}

TEST(DecodificaPassi, TakesWholeStepsAndLeavesTheOtherDetectorsWithoutALevel) {
    constexpr uint8_t kByte[] = {1, 0, 2, 0, 0xFE, 0xFF, 0x10, 0x27, 9, 0, 9};
    EXPECT_EQ(PassiInteri(sizeof kByte, 2), 2u);
    std::array<SampleRecord, 2> passi;
    passi[0].Livello[4] = 5; // of a block before
    DecodificaPassi(kByte, std::array{0, 3}, passi);
    const int16_t nessuno = kNessunLivello;
    EXPECT_EQ(passi[0].Livello, (std::array<int16_t, 6>{1, nessuno, nessuno, 2, nessuno, nessuno}));
    EXPECT_EQ(passi[1].Livello,
              (std::array<int16_t, 6>{-1, nessuno, nessuno, 10000, nessuno, nessuno}));
    std::array<int16_t, 3> livelli{};
    DecodificaLivelli(kByte, livelli);
    EXPECT_EQ(livelli, (std::array<int16_t, 3>{1, 2, -1}));
}

} // namespace
} // namespace orvane
