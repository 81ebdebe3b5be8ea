// COM numbers out of friendly names and out of the command line.
#include <gtest/gtest.h>

#include "link/PorteCom.h"

namespace orvane {
namespace {

TEST(PorteCom, ANumberEndsAtItsBracket) {
    EXPECT_EQ(DeterminaNumComSel("USB Serial Port (COM12)"), 12);
    EXPECT_EQ(DeterminaNumComSel("Odd (COM3->COM4)"), 3);
    EXPECT_EQ(DeterminaNumComSel("Damaged (COM"), 0);
    EXPECT_EQ(DeterminaNumComSel("Endless (COM99999999999)"), 0);
    EXPECT_EQ(DeterminaNumComSel("Printer (LPT1)"), std::nullopt);
    EXPECT_EQ(DeterminaNumComSel("lower case (com1)"), std::nullopt);
}

TEST(PorteCom, OfTwoEntitiesWithOneNumberTheFirstDecides) {
    const std::vector<PortaCom> porte = {{"no number", "a"},
                                         {"Plain (COM5)", "b"},
                                         {"Bluetooth link (COM5)", "c"},
                                         {"BLUETOOTH (COM6)", "d"}};
    EXPECT_EQ(TrovaIDComSelezionata(porte, 5), 1);
    EXPECT_EQ(TrovaIDComSelezionata(porte, 7), -1);
    EXPECT_FALSE(RilevaBluetooth(porte, 5));
    EXPECT_TRUE(RilevaBluetooth(porte, 6));
    EXPECT_FALSE(RilevaBluetooth(porte, 7));
    EXPECT_FALSE(RilevaBluetooth({}, 5));
}

TEST(PorteCom, OneCharacterBehindTheSwitchForcesThePort) {
    EXPECT_EQ(ComForzata(""), std::nullopt);
    EXPECT_EQ(ComForzata("console COMM=12 /LOGSWEEP"), 1);
    EXPECT_EQ(ComForzata("console comm=9"), 9);
    EXPECT_EQ(ComForzata("COMM="), 0);
    EXPECT_EQ(ComForzata("COMM=x"), 0);
}

} // namespace
} // namespace orvane
