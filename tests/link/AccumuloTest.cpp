// The accumulation buffer of a sweep: its memory is used again, its bytes keep their order.
#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

#include "link/LinkPort.h"

namespace orvane {
namespace {

void Riempi(Accumulo& a, size_t n, uint8_t& prossimo) {
    for (uint8_t& byte : a.Spazio(n))
        byte = prossimo++;
    a.Aggiunti(n);
}

TEST(Accumulo, KeepsTheOrderHoweverItIsFilledAndUsed) {
    Accumulo a;
    uint8_t scritto = 0;
    uint8_t letto = 0;
    for (size_t giro = 0; giro < 2000; ++giro) {
        Riempi(a, 1 + giro * 37 % 211, scritto);
        const size_t uso = std::min(a.Quanti(), giro * 53 % 223);
        for (const uint8_t byte : a.Dati().first(uso))
            ASSERT_EQ(byte, letto++);
        a.Consuma(uso);
    }
    EXPECT_EQ(static_cast<uint8_t>(letto + a.Quanti()), scritto);
}

TEST(Accumulo, AStreamThatIsUsedUpNeedsNoNewMemory) {
    Accumulo a;
    uint8_t scritto = 0;
    Riempi(a, 65536, scritto);
    const uint8_t* memoria = a.Dati().data();
    for (int giro = 0; giro < 1000; ++giro) {
        a.Consuma(a.Quanti() - 5);
        Riempi(a, 60000, scritto);
    }
    EXPECT_EQ(a.Quanti(), 60005u);
    EXPECT_EQ(a.Dati().data(), memoria);
}

TEST(Accumulo, LessThanTheRoomMayCome) {
    Accumulo a;
    a.Spazio(100)[0] = 'x';
    a.Aggiunti(1);
    a.Spazio(100)[0] = 'y';
    a.Aggiunti(1);
    EXPECT_EQ(std::string(a.Dati().begin(), a.Dati().end()), "xy");
    a.Azzera();
    EXPECT_EQ(a.Quanti(), 0u);
    EXPECT_TRUE(a.Spazio(0).empty());
}

} // namespace
} // namespace orvane
