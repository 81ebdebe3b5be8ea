// Records on disk: bytes come back as they were, texts in the code page, numbers little-endian.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "records/EnvRecord.h"
#include "records/PathRecord.h"
#include "records/SampleRecord.h"
#include "records/SweepHeader.h"

namespace orvane {
namespace {

using Byte = std::vector<uint8_t>;

/// Random bytes as a file may hold them: text fields do not end in blanks of their own accord, but
/// they do not need to.
Byte Casuali(size_t n, uint32_t seme) {
    std::mt19937 caso(seme);
    Byte dati(n);
    std::generate(dati.begin(), dati.end(), [&] { return static_cast<uint8_t>(caso()); });
    return dati;
}

template <class T> class GiroCompleto : public testing::Test {};
using Tutti = testing::Types<ScanLine, ScanRecord, SetupRecord, EnvRecord, SweepHeader, PathRecord,
                             SampleRecord, PositionRecord>;
TYPED_TEST_SUITE(GiroCompleto, Tutti);

TYPED_TEST(GiroCompleto, AnyBytesComeBackAsTheyWere) {
    constexpr size_t kByte = DimensioneSuDisco<TypeParam>();
    for (uint32_t seme = 1; seme <= 20; ++seme) {
        const Byte prima = Casuali(kByte, seme);
        TypeParam record;
        ASSERT_TRUE(LeggiRecord(prima, record));
        ASSERT_EQ(ScriviRecord(record), prima) << "seed " << seme;
    }
}

TYPED_TEST(GiroCompleto, AShortFileKeepsWhatWasRead) {
    constexpr size_t kByte = DimensioneSuDisco<TypeParam>();
    const Byte intero = Casuali(kByte, 42);
    const Byte vuoto = ScriviRecord(TypeParam{});
    for (const size_t n : {size_t{0}, size_t{1}, kByte / 3, kByte / 2, kByte - 1}) {
        TypeParam record;
        ASSERT_FALSE(LeggiRecord(std::span(intero).first(n), record)) << n;
        const Byte letto = ScriviRecord(record);
        const auto diverso = std::mismatch(letto.begin(), letto.end(), intero.begin()).first;
        const auto confine = diverso - letto.begin();
        EXPECT_LE(confine, static_cast<std::ptrdiff_t>(n) + 8) << "nothing comes from nowhere";
        EXPECT_TRUE(std::equal(letto.begin() + static_cast<std::ptrdiff_t>(n), letto.end(),
                               vuoto.begin() + static_cast<std::ptrdiff_t>(n)))
            << "fields behind the end keep their values";
    }
}

TEST(Records, ALongerFileIsReadAsFarAsTheRecordGoes) {
    Byte dati = ScriviRecord(PositionRecord{.Mast = 100, .Table = -1});
    EXPECT_EQ(dati, (Byte{100, 0, 255, 255}));
    dati.push_back(9);
    PositionRecord letto;
    EXPECT_TRUE(LeggiRecord(dati, letto));
    EXPECT_EQ(letto.Table, -1);
}

TEST(Records, TextIsPaddedCutAndInTheCodePage) {
    ScanLine riga;
    riga.FreqTable = "50 \u00B5V";
    riga.Limit = std::string(59, 'x') + "\u00B5y";
    riga.Prompt = "  kept in front  ";
    const Byte dati = ScriviRecord(riga);
    const auto testo = [&](size_t da, size_t n) {
        return std::string(dati.begin() + static_cast<std::ptrdiff_t>(da),
                           dati.begin() + static_cast<std::ptrdiff_t>(da + n));
    };
    EXPECT_EQ(testo(32, 60), "50 \xB5V" + std::string(55, ' '));
    EXPECT_EQ(testo(328, 60), std::string(59, 'x') + "\xB5");
    ScanLine letta;
    ASSERT_TRUE(LeggiRecord(dati, letta));
    EXPECT_EQ(letta.FreqTable, riga.FreqTable);
    EXPECT_EQ(letta.Prompt, "  kept in front");
    EXPECT_EQ(letta.LimitDSD, "");
}

TEST(Records, NumbersAreLittleEndian) {
    ScanRecord scan;
    scan.NumWorst = 0x01020304;
    scan.Righe[0].Start = 1.0;
    scan.Righe[0].Margin = -2.0f;
    const Byte dati = ScriviRecord(scan);
    EXPECT_EQ((Byte{dati.begin() + 12002, dati.begin() + 12006}), (Byte{4, 3, 2, 1}));
    EXPECT_EQ((Byte{dati.begin() + 4, dati.begin() + 12}), (Byte{0, 0, 0, 0, 0, 0, 0xF0, 0x3F}));
    EXPECT_EQ((Byte{dati.begin() + 98, dati.begin() + 102}), (Byte{0, 0, 0, 0xC0}));
    EXPECT_EQ(Rgb(1, 2, 3), 0x030201);
    EXPECT_EQ(ScriviRecord(SampleRecord{}),
              (Byte{0xE0, 0xB1, 0xE0, 0xB1, 0xE0, 0xB1, 0xE0, 0xB1, 0xE0, 0xB1, 0xE0, 0xB1}));
}

} // namespace
} // namespace orvane
