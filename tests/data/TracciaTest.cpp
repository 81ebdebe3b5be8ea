// Trace files: whole at every moment, and lines merged by frequency.
#include "ScrivaniaProva.h"
#include "data/Misure.h"

namespace orvane::prova {
namespace {

namespace fs = std::filesystem;

constexpr int16_t kNo = kNessunLivello;

SampleRecord Passo(int16_t peak, int16_t qpeak = kNo) {
    SampleRecord passo;
    passo.Livello[0] = peak;
    passo.Livello[1] = qpeak;
    return passo;
}

struct TracciaTest : ProvaDati {
    ScanTable tabella;

    void Riga(size_t n, double start, double step, const std::vector<SampleRecord>& passi,
              const std::string& base = "m") {
        tabella[n].Start = start;
        tabella[n].Step = step;
        s.albero.AssicuraCartella("Sweep\\m\\Sub_Measure");
        ScrittoreTraccia file;
        ASSERT_TRUE(file.Apri(s, PercorsoRS("m", base, static_cast<int>(n))));
        ASSERT_TRUE(file.Scrivi(passi));
    }
    SweepTrace Crea(DetectorKind d = DetectorKind::Peak) {
        return CreaTracciaSweep(s, "m", "m", tabella, d);
    }
};

TEST_F(TracciaTest, EachWriteIsOnDiskAtOnce) {
    fs::create_directories(Host("Sweep/m"));
    ScrittoreTraccia file;
    EXPECT_FALSE(file.Aperto());
    EXPECT_FALSE(file.Scrivi({}));
    ASSERT_TRUE(file.Apri(s, PercorsoRS("m", "m", 3)));
    ASSERT_TRUE(file.Scrivi({}));
    const std::vector<SampleRecord> passi = {Passo(1234, -5), Passo(kNo)};
    for (size_t volte = 1; volte <= 3; ++volte) {
        ASSERT_TRUE(file.Scrivi(passi));
        EXPECT_EQ(fs::file_size(Host("Sweep/m/m.RS3")), volte * 24);
    }
    EXPECT_EQ(Prendi("Sweep/m/m.RS3").substr(0, 6), "\xD2\x04\xFB\xFF\xE0\xB1");
    file.Chiudi();
    EXPECT_FALSE(file.Aperto());
}

TEST_F(TracciaTest, ATornStepIsCutBeforeMoreIsAppended) {
    Metti("Sweep/m/m.RS0", std::string(12 * 2 + 5, '\1'));
    ScrittoreTraccia file;
    ASSERT_TRUE(file.Apri(s, PercorsoRS("m", "m", 0)));
    ASSERT_TRUE(file.Scrivi(std::vector{Passo(7)}));
    const auto passi = LeggiTraccia(s, PercorsoRS("m", "m", 0));
    ASSERT_EQ(passi.size(), 3u);
    EXPECT_EQ(passi[2].Livello[0], 7);
}

TEST_F(TracciaTest, AFullDiskEndsTheFileAtAWholeStep) {
    fs::create_directories(Host("Sweep/m"));
    ScrittoreTraccia file;
    ASSERT_TRUE(file.Apri(s, PercorsoRS("m", "m", 0)));
    {
        const DiscoPieno pieno(1000);
        EXPECT_FALSE(file.Scrivi(std::vector<SampleRecord>(200, Passo(1))));
    }
    EXPECT_FALSE(file.Aperto());
    EXPECT_FALSE(file.Scrivi(std::vector{Passo(1)})) << "nothing may follow a torn step";
    EXPECT_EQ(LeggiTraccia(s, PercorsoRS("m", "m", 0)).size(), 1000u / 12);
}

TEST_F(TracciaTest, ATraceThatCannotBeMadeIsRefused) {
    ScrittoreTraccia file;
    EXPECT_FALSE(file.Apri(s, PercorsoRS("absent", "m", 0)));
    EXPECT_FALSE(file.Apri(s, "..\\m.RS0"));
}

TEST_F(TracciaTest, PartStepsAndAbsentFilesGiveNothing) {
    EXPECT_TRUE(LeggiTraccia(s, PercorsoRS("m", "m", 0)).empty());
    for (const size_t lunghezza : {0, 11, 12, 23, 24}) {
        Metti("Sweep/m/m.RS0", std::string(lunghezza, '\0'));
        EXPECT_EQ(LeggiTraccia(s, PercorsoRS("m", "m", 0)).size(), lunghezza / 12) << lunghezza;
    }
}

TEST_F(TracciaTest, TheSameFrequencyIsNearerThanAMillihertz) {
    EXPECT_TRUE(StessaFrequenza(0.15, 0.15 + 0.9e-9));
    EXPECT_FALSE(StessaFrequenza(0.15, 0.15 + 1.1e-9));
    EXPECT_TRUE(StessaFrequenza(0.1 + 0.2, 0.3));
    EXPECT_FALSE(StessaFrequenza(18000, 18000.0000025)) << "the finest step there is";
}

TEST_F(TracciaTest, OverlappingLinesGiveOneSampleAFrequency) {
    // Line 0 at 0.1 to 0.5, line 1 at 0.3 to 0.7: the common points differ in their last bits.
    Riga(0, 0.1, 0.1, {Passo(10), Passo(11), Passo(12, 100), Passo(13), Passo(14)});
    Riga(1, 0.3, 0.1, {Passo(9, 900), Passo(13, 901), Passo(20, 902), Passo(21), Passo(22)});
    ASSERT_NE(0.1 + 2 * 0.1, 0.3);
    const SweepTrace t = Crea();
    ASSERT_EQ(t.size(), 7u);
    const std::array<int16_t, 7> peak = {10, 11, 12, 13, 20, 21, 22};
    const std::array<int16_t, 7> riga = {0, 0, 0, 0, 1, 1, 1};
    for (size_t i = 0; i < 7; ++i) {
        EXPECT_EQ(t[i].livello[0], peak[i]) << i;
        EXPECT_EQ(t[i].riga, riga[i]) << i;
        EXPECT_NEAR(t[i].freqMhz, 0.1 + 0.1 * static_cast<double>(i), 1e-9);
    }
    EXPECT_EQ(t[2].livello[1], 100) << "the winner brings all six";
    EXPECT_EQ(t[3].livello[1], kNo) << "a tie leaves the first";
    EXPECT_EQ(t[4].livello[1], 902);
}

TEST_F(TracciaTest, TheSelectedDetectorDecides) {
    Riga(0, 1.0, 0.1, {Passo(50, 1)});
    Riga(1, 1.0, 0.1, {Passo(10, 2)});
    EXPECT_EQ(Crea(DetectorKind::Peak).at(0).livello[0], 50);
    EXPECT_EQ(Crea(DetectorKind::QPeak).at(0).livello[0], 10);
}

TEST_F(TracciaTest, NoValueNeverWinsAndAlwaysYields) {
    Riga(0, 1.0, 0.1, {Passo(kNo), Passo(kNo), Passo(-25000), Passo(-19999)});
    Riga(1, 1.0, 0.1, {Passo(-19999, 5), Passo(kNo, 6), Passo(kNo, 7), Passo(kNo, 8)});
    const SweepTrace t = Crea();
    ASSERT_EQ(t.size(), 4u);
    EXPECT_EQ(t[0].livello[1], 5);
    EXPECT_EQ(t[1].livello[1], kNo) << "neither has one: the first stays";
    EXPECT_EQ(t[2].livello[0], -25000) << "no value is not above no value";
    EXPECT_EQ(t[3].livello[0], -19999);
}

TEST_F(TracciaTest, LinesInAnyOrderComeOutSorted) {
    Riga(0, 30, 1, {Passo(1), Passo(2)});
    Riga(1, 0.15, 0.5, std::vector<SampleRecord>(100, Passo(3)));
    Riga(2, 10, 1, {Passo(4), Passo(5)});
    const SweepTrace t = Crea();
    EXPECT_TRUE(std::is_sorted(t.begin(), t.end(),
                               [](const auto& a, const auto& b) { return a.freqMhz < b.freqMhz; }));
    EXPECT_EQ(t.size(), 104u);
}

TEST_F(TracciaTest, LinesWithoutSamplesOrWithoutAStepAreLeftOut) {
    Riga(0, 1.0, 0.1, {});
    Riga(1, 2.0, 0.1, {Passo(1)});
    Riga(2, 3.0, 0, {Passo(1)});
    Riga(3, 4.0, std::numeric_limits<double>::quiet_NaN(), {Passo(1)});
    tabella[4] = {.Start = 5, .Step = 1}; // no file
    const SweepTrace t = Crea();
    ASSERT_EQ(t.size(), 1u);
    EXPECT_EQ(t[0].riga, 1);
}

TEST_F(TracciaTest, ASubMeasureIsFoundBesideOrBelow) {
    Riga(0, 1.0, 0.1, {Passo(1)}, "m-L1");
    Riga(0, 1.0, 0.1, {Passo(2)}, "Sub_Measure\\W_01");
    EXPECT_EQ(CreaTracciaSweep(s, "m", "m-L1", tabella, DetectorKind::Peak).at(0).livello[0], 1);
    EXPECT_EQ(CreaTracciaSweep(s, "m", "W_01", tabella, DetectorKind::Peak).at(0).livello[0], 2);
    EXPECT_TRUE(CreaTracciaSweep(s, "m", "..\\..\\x", tabella, DetectorKind::Peak).empty());
}

} // namespace
} // namespace orvane::prova
