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
    EXPECT_FALSE(file.Aperto() || file.Scrivi({}));
    EXPECT_FALSE(file.Apri(s, PercorsoRS("absent", "m", 0)) || file.Apri(s, "..\\m.RS0"));
    ASSERT_TRUE(file.Apri(s, PercorsoRS("m", "m", 3)));
    for (size_t volte = 1; volte <= 3; ++volte) {
        ASSERT_TRUE(file.Scrivi(std::vector{Passo(1234, -5), Passo(kNo)}));
        EXPECT_EQ(fs::file_size(Host("Sweep/m/m.RS3")), volte * 24);
    }
    EXPECT_EQ(Prendi("Sweep/m/m.RS3").substr(0, 6), "\xD2\x04\xFB\xFF\xE0\xB1");
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

TEST_F(TracciaTest, OverlappingLinesGiveOneSampleAFrequency) {
    // Line 0 at 0.1 to 0.5, line 1 at 0.3 to 0.7: the common points differ in their last bits.
    Riga(0, 0.1, 0.1, {Passo(10), Passo(11), Passo(12, 100), Passo(13), Passo(14)});
    Riga(1, 0.3, 0.1, {Passo(9, 900), Passo(13, 901), Passo(20, 902), Passo(21), Passo(22)});
    ASSERT_NE(0.1 + 2 * 0.1, 0.3);
    EXPECT_EQ(Crea(DetectorKind::QPeak).at(2).livello[0], 9) << "the selected detector decides";
    SweepTrace coperti;
    const SweepTrace t =
        CreaTracciaSweep(s, "m", "m", tabella, DetectorKind::Peak, {.coperti = &coperti});
    ASSERT_EQ(coperti.size(), 2u) << "at 0.5 the winner is higher in both";
    EXPECT_EQ(coperti[0].livello[1], 900);
    EXPECT_EQ(coperti[1].livello[1], 901);
    EXPECT_EQ(coperti[1].livello[0], 13);
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
    ambiente.riga = "orvane /RSCOMP";
    EXPECT_EQ(Crea().size(), 10u) << "on the switch each line keeps its samples";
}

TEST_F(TracciaTest, NoValueNeverWinsAndAlwaysYields) {
    // The later line's frequency is lower by its last bits.
    Riga(0, 0.1 + 0.2, 0.1, {Passo(kNo), Passo(kNo), Passo(-25000), Passo(-19999), Passo(7, 1)});
    Riga(1, 0.3, 0.1, {Passo(-19999, 5), Passo(kNo, 6), Passo(kNo, 7), Passo(kNo, 8), Passo(7, 2)});
    ASSERT_LT(tabella[1].Start, tabella[0].Start);
    const SweepTrace t = Crea();
    ASSERT_EQ(t.size(), 5u);
    EXPECT_EQ(t[0].livello[1], 5);
    EXPECT_EQ(t[1].livello[1], kNo) << "neither has one: the first stays";
    EXPECT_EQ(t[2].livello[0], -25000) << "no value is not above no value";
    EXPECT_EQ(t[3].livello[0], -19999);
    EXPECT_EQ(t[4].livello[1], 1) << "of two that tie the earlier line's stays";
}

TEST_F(TracciaTest, LinesWithoutSamplesOrWithoutAStepAreLeftOut) {
    Riga(0, 1.0, 0.1, {});
    Riga(1, 2.0, 0.1, {Passo(1)});
    Riga(2, 3.0, 0, {Passo(1)});
    Riga(3, 4.0, std::numeric_limits<double>::quiet_NaN(), {Passo(1)});
    tabella[4] = {.Start = 5, .Step = 1}; // no file
    Riga(5, 0, 0.1, {Passo(1)});          // not in use
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

TEST_F(TracciaTest, TenLinesInterleavedComeOutInOneOrder) {
    for (size_t n = 0; n < 10; ++n) {
        const double start = 1 + 0.01 * static_cast<double>((n * 7) % 10);
        Riga(n, start, 0.1, std::vector<SampleRecord>(50, Passo(static_cast<int16_t>(n))));
    }
    const SweepTrace t = Crea();
    ASSERT_EQ(t.size(), 500u);
    for (size_t i = 0; i < t.size(); ++i) {
        EXPECT_NEAR(t[i].freqMhz, 1 + 0.01 * static_cast<double>(i), 1e-9);
        EXPECT_EQ(t[i].livello[0], t[i].riga);
    }
}

TEST_F(TracciaTest, APositionRunsBesideEachStep) {
    s.albero.AssicuraCartella("Sweep\\m\\Sub_Measure");
    ScrittoreConPosizioni file;
    EXPECT_FALSE(file.Aperto());
    ASSERT_TRUE(file.Apri(s, PercorsoRS("m", "m", 2), "Sweep\\m\\m.TM2"));
    const std::vector<PositionRecord> posizioni = {{100, 45}, {-1, 359}};
    ASSERT_TRUE(file.Scrivi(std::vector{Passo(1), Passo(2)}, posizioni));
    EXPECT_EQ(Prendi("Sweep/m/m.TM2"), std::string("\x64\0\x2D\0\xFF\xFF\x67\x01", 8));
    file.Chiudi();
    tabella[2] = {.Start = 1, .Step = 1};
    const SweepTrace t = Crea();
    ASSERT_EQ(t.size(), 2u);
    EXPECT_EQ(t[0].mast, 100);
    EXPECT_EQ(t[0].table, 45);
    EXPECT_EQ(t[1].table, 359);
}

TEST_F(TracciaTest, AfterACrashStepsAndPositionsGoOnTogether) {
    const std::array<size_t, 3> casi[] = {
        {36, 12, 3}, {36, 8, 2}, {41, 11, 2}, {12, 40, 1}, {24, 0, 0}};
    for (const auto& [byteRS, byteTM, insieme] : casi) {
        Metti("Sweep/m/m.RS0", std::string(byteRS, '\1'));
        Metti("Sweep/m/m.TM0", std::string(byteTM, '\1'));
        ScrittoreConPosizioni file;
        ASSERT_TRUE(file.Apri(s, PercorsoRS("m", "m", 0), "Sweep\\m\\m.TM0"));
        ASSERT_TRUE(file.Scrivi(std::vector{Passo(7)}, std::vector<PositionRecord>{{5, 6}}));
        EXPECT_EQ(fs::file_size(Host("Sweep/m/m.RS0")), 12 * (insieme + 1));
        EXPECT_EQ(fs::file_size(Host("Sweep/m/m.TM0")), 4 * (insieme + 1));
    }
}

TEST_F(TracciaTest, ALineEndsWithTheShorterOfItsFiles) {
    Riga(0, 1.0, 0.1, {Passo(1), Passo(2), Passo(3)});
    for (const auto& [byteTM, passi] :
         {std::pair{0u, 0u}, {3u, 0u}, {4u, 1u}, {11u, 2u}, {400u, 3u}}) {
        Metti("Sweep/m/m.TM0", std::string(byteTM, '\1'));
        EXPECT_EQ(Crea().size(), passi) << byteTM;
    }
    fs::remove(Host("Sweep/m/m.TM0"));
    ASSERT_EQ(Crea().size(), 3u);
    EXPECT_EQ(Crea()[0].mast, kNessunaPosizione);
}

TEST_F(TracciaTest, TheViewChoosesThePositions) {
    Riga(0, 1.0, 0.1, {Passo(1)}, "Sub_Measure\\MEASMT");
    const auto mette = [&](const char* nome, char mast) {
        Metti(std::string("Sweep/m/Sub_Measure/") + nome, std::string{mast, 0, 0, 0});
    };
    mette("MEASMT.TM0", 1);
    mette("POSMEASMT.TM0", 2);
    mette("POSENVMEASMT.TM0", 3);
    Metti("Sweep/m/POSMEASMT.TM0", std::string(4, '\x9'));
    const auto mast = [&](ViewMode vista) {
        return CreaTracciaSweep(s, "m", "MEASMT", tabella, DetectorKind::Peak, {.vista = vista})
            .at(0)
            .mast;
    };
    EXPECT_EQ(mast(ViewMode::Normale), 1);
    EXPECT_EQ(mast(ViewMode::MastTable), 2);
    EXPECT_EQ(mast(ViewMode::Inviluppo), 3);
    fs::remove(Host("Sweep/m/Sub_Measure/POSENVMEASMT.TM0"));
    EXPECT_EQ(mast(ViewMode::Inviluppo), kNessunaPosizione);
}

TEST_F(TracciaTest, ALineFromATableTakesItsFrequenciesFromTheCaller) {
    Riga(0, 1.0, 0.1, {Passo(1), Passo(2), Passo(3), Passo(4)});
    Riga(1, 1.5, 1.0, {Passo(9)});
    tabella[0].StepMode = 1;
    tabella[0].FreqTable = "spots";
    Metti("Sweep/m/m.TM0", std::string("\1\0\0\0\2\0\0\0\3\0\0\0\4\0\0\0", 16));
    EXPECT_EQ(Crea().size(), 1u) << "without frequencies the line has no samples";
    std::vector<double> tavola = {2.0, 1.0, 1.5};
    const OpzioniTraccia opzioni{
        .frequenza = [&](const ScanLine& riga, size_t k) -> std::optional<double> {
            EXPECT_EQ(riga.FreqTable, "spots");
            return k < tavola.size() ? std::optional(tavola[k]) : std::nullopt;
        }};
    const auto crea = [&] {
        return CreaTracciaSweep(s, "m", "m", tabella, DetectorKind::Peak, opzioni);
    };
    SweepTrace t = crea();
    ASSERT_EQ(t.size(), 3u) << "no frequency for the fourth step";
    const std::array<std::array<double, 3>, 3> attesi = {{{1.0, 2, 2}, {1.5, 9, -1}, {2.0, 1, 1}}};
    for (size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(t[i].freqMhz, attesi[i][0]);
        EXPECT_EQ(t[i].livello[0], attesi[i][1]);
        EXPECT_EQ(t[i].mast, attesi[i][2]) << "positions go where their step goes";
    }
    tavola = {1.0, std::numeric_limits<double>::quiet_NaN(), 3.0};
    EXPECT_EQ(crea().size(), 2u);
}

TEST_F(TracciaTest, PositionsThatCannotBeWrittenEndBoth) {
    Metti("Sweep/m/m.TM0/x", "a directory in the way");
    ScrittoreConPosizioni file;
    EXPECT_FALSE(file.Apri(s, PercorsoRS("m", "m", 0), "Sweep\\m\\m.TM0"));
    EXPECT_FALSE(file.Aperto());
    EXPECT_FALSE(file.Scrivi(std::vector{Passo(7)}, std::vector<PositionRecord>{{5, 6}}));
    EXPECT_TRUE(LeggiTraccia(s, PercorsoRS("m", "m", 0)).empty());
}

} // namespace
} // namespace orvane::prova
