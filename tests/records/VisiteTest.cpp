// Records on disk: where each field stands, and that bytes come back as they were.
#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <random>

#include "records/EnvRecord.h"
#include "records/PathRecord.h"
#include "records/SampleRecord.h"
#include "records/SweepHeader.h"

namespace orvane {
namespace {

using Byte = std::vector<uint8_t>;

/// Finds where a field stands: counts bytes until it meets the address.
struct Cercatore {
    const void* campo;
    size_t qui = 0;
    size_t trovato = SIZE_MAX;
    size_t larghezza = 0;

    void Visto(const void* questo, size_t byte) {
        if (questo == campo) {
            trovato = qui;
            larghezza = byte;
        }
        qui += byte;
    }
    void I16(const int16_t& x, std::string_view) { Visto(&x, 2); }
    void I32(const int32_t& x, std::string_view) { Visto(&x, 4); }
    void F32(const float& x, std::string_view) { Visto(&x, 4); }
    void F64(const double& x, std::string_view) { Visto(&x, 8); }
    void Testo(const std::string& x, size_t n, std::string_view) { Visto(&x, n); }
    template <size_t N> void Riserva(const std::array<uint8_t, N>& x, std::string_view = {}) {
        Visto(&x, N);
    }
};

struct Campo {
    size_t posto;
    size_t larghezza;
    const void* dove;
};

template <class Record> void ControllaPosti(Record& record, std::initializer_list<Campo> campi) {
    for (const Campo& campo : campi) {
        Cercatore cercatore{.campo = campo.dove};
        Campi(cercatore, record);
        EXPECT_EQ(cercatore.trovato, campo.posto);
        EXPECT_EQ(cercatore.larghezza, campo.larghezza) << "at offset " << campo.posto;
    }
}

// One field in each stretch, and those on both sides of a reserve: what lies between cannot move.
TEST(Records, OffsetsOfAScanLine) {
    ScanLine r;
    ControllaPosti(r, {{0, 2, &r.PreSel},
                       {4, 8, &r.Start},
                       {20, 2, &r.StepMode},
                       {24, 8, &r.Step},
                       {32, 60, &r.FreqTable},
                       {92, 2, &r.MinAtt},
                       {102, 2, &r.LineSwitch[0]},
                       {122, 2, &r.Detector[5]},
                       {124, 2, &r.LineReserved0[0]},
                       {326, 2, &r.LimitOn},
                       {328, 60, &r.Limit},
                       {390, 200, &r.Prompt},
                       {590, 2, &r.RbwId},
                       {594, 2, &r.Antenna[0]},
                       {598, 4, &r.HoldTimeSD},
                       {604, 60, &r.LimitDSD},
                       {664, 8, &r.StepOriginal},
                       {672, 2, &r.LineReserved1[0]},
                       {1196, 4, &r.LineReserved2[99]}});
}

TEST(Records, OffsetsOfAScanRecord) {
    ScanRecord r;
    ControllaPosti(r, {{0, 2, &r.Righe[0].PreSel},
                       {9 * 1200 + 4, 8, &r.Righe[9].Start},
                       {12000, 2, &r.WorstMode},
                       {12006, 60, &r.ScanComment},
                       {12066, 2, &r.GridRow},
                       {12070, 4, &r.ScanReserved0},
                       {12074, 2, &r.ScanReserved1[0]},
                       {12672, 4, &r.ScanReserved2[100]}});
}

TEST(Records, OffsetsOfASetupRecord) {
    SetupRecord r;
    ControllaPosti(r, {{0, 8, &r.GraphStart},
                       {16, 2, &r.GraphFlag},
                       {18, 4, &r.HoldTimeAn},
                       {22, 4, &r.ScaleAn[0]},
                       {36, 2, &r.ParAn},
                       {642, 8, &r.FreqMa},
                       {650, 4, &r.SpanMa},
                       {666, 2, &r.ParMa2},
                       {866, 4, &r.ManualLevel},
                       {1270, 20, &r.BWIFText},
                       {1290, 2, &r.BWIFId},
                       {1300, 2, &r.DetectorAn[0]},
                       {1308, 2, &r.LimitOn[0]},
                       {1868, 60, &r.LimitName[9]},
                       {1928, 606, &r.Riserva1928},
                       {2534, 2, &r.Mode},
                       {2540, 2, &r.PulseLim},
                       {2542, 8, &r.TGLevel},
                       {2550, 2, &r.RFOut},
                       {2552, 8, &r.TGFreq},
                       {2562, 60, &r.FactorName[0]},
                       {2998, 2, &r.UnitId},
                       {3000, 2, &r.AncillaryKind},
                       {3008, 2, &r.InsLossOn},
                       {3010, 600, &r.Riserva3010},
                       {3610, 2, &r.OverwriteWarning},
                       {3616, 2, &r.TableUnitId},
                       {3622, 2, &r.ZoomModeA},
                       {3664, 60, &r.AntennaName},
                       {3822, 4, &r.InsLossRef},
                       {3826, 400, &r.Riserva3826},
                       {4256, 30, &r.FwRelease},
                       {4286, 10, &r.SerialA},
                       {4308, 12, &r.ModelText},
                       {4320, 604, &r.Riserva4320},
                       {4924, 170, &r.Spare}});
}

TEST(Records, OffsetsOfAnEnvRecord) {
    EnvRecord r;
    ControllaPosti(r, {{0, 2, &r.Window1[0]},
                       {10, 54, &r.Window2},
                       {64, 168, &r.LookValues},
                       {232, 2, &r.AutoStart},
                       {236, 2, &r.LinkPort},
                       {238, 200, &r.ScanPanelPath},
                       {638, 200, &r.SweepPath},
                       {838, 4, &r.ExportFlags},
                       {842, 2, &r.ScanTabView},
                       {854, 2, &r.ReportMode2},
                       {856, 2, &r.ReportList[0]},
                       {1054, 4, &r.WaterfallScale[0]},
                       {1062, 434, &r.WaterfallValues},
                       {1496, 4, &r.GraphColors[0]},
                       {1696, 200, &r.PathA},
                       {1896, 200, &r.PathB}});
}

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
