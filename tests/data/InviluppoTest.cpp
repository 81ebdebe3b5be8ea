// The highest of several traces: which sample wins, where gaps stay, and what goes to disk.
#include "data/Inviluppo.h"

#include "ScrivaniaProva.h"

namespace orvane::prova {
namespace {

using InviluppoTest = ProvaDati;

CampioneTraccia Punto(double mhz, int16_t picco, int16_t riga, bool stacco = false) {
    CampioneTraccia c{.freqMhz = mhz, .riga = riga, .stacco = stacco};
    c.livello.fill(kNessunLivello);
    c.livello[0] = picco;
    return c;
}

std::shared_ptr<const SweepTrace> Traccia(SweepTrace campioni) {
    return std::make_shared<const SweepTrace>(std::move(campioni));
}

/// "mhz:level/line", with "|" in front of a gap.
std::string Testo(const SweepTrace& traccia) {
    std::string testo;
    for (const CampioneTraccia& c : traccia)
        testo += (c.stacco ? "|" : " ") + std::to_string(static_cast<int>(c.freqMhz + 0.5)) + ":" +
                 std::to_string(c.livello[0]) + "/" + std::to_string(c.riga);
    return testo;
}

TEST_F(InviluppoTest, TheHighestSampleOfEachFrequencyWinsWithItsLine) {
    const auto a = Traccia({Punto(1, 100, 0, true), Punto(2, 100, 0), Punto(3, 100, 0)});
    const auto b = Traccia({Punto(1, 200, 1, true), Punto(2 + 1e-10, 100, 1), Punto(3, -20000, 1)});
    const auto fitta = Traccia({Punto(2, 300, 2, true), Punto(3, 50, 2), Punto(4, 50, 2)});
    const auto lontana = Traccia({Punto(9, 10, 3, true), Punto(10, kNessunLivello, 3)});
    const auto inviluppo = [](std::vector<std::shared_ptr<const SweepTrace>> quali) {
        return Testo(InviluppoTracce(quali, DetectorKind::Peak));
    };
    EXPECT_EQ(inviluppo({}), "");
    EXPECT_EQ(inviluppo({Traccia({})}), "");
    EXPECT_EQ(inviluppo({a}), "|1:100/0 2:100/0 3:100/0");
    // A tie is the earlier trace's; a level that is none never wins.
    EXPECT_EQ(inviluppo({a, b}), "|1:200/1 2:100/0 3:100/0");
    EXPECT_EQ(inviluppo({b, a}), "|1:200/1 2:100/1 3:100/0");
    // The first sample of one trace in the midst of another is no gap.
    EXPECT_EQ(inviluppo({a, fitta}), "|1:100/0 2:300/2 3:100/0 4:50/2");
    EXPECT_EQ(inviluppo({lontana, a}), "|1:100/0 2:100/0 3:100/0|9:10/3 10:-20000/3");
}

TEST_F(InviluppoTest, StoredEnvelopesTellWhichPositionEachStepComesFrom) {
    const auto passi = [](std::initializer_list<int16_t> livelli) {
        std::vector<SampleRecord> record;
        for (const int16_t livello : livelli)
            record.emplace_back().Livello[0] = livello;
        return record;
    };
    std::filesystem::create_directories(Host("Sweep/m/Sub_Measure"));
    const std::string dove = "Sweep\\m\\Sub_Measure\\";
    ASSERT_TRUE(SalvaTraccia(s, dove + "PSM100PST000.RS0", passi({10, 40})));
    ASSERT_TRUE(SalvaTraccia(s, dove + "PST090PSM250.RS0", passi({30, 20, kNessunLivello})));
    const std::vector<std::string> posizioni = {"PSM100PST000", "PST090PSM250"};
    ASSERT_TRUE(SalvaInviluppoPosizioni(s, "m", posizioni, DetectorKind::Peak));
    ScanTable tabella;
    tabella[0].Start = 1;
    tabella[0].Step = 1;
    const auto traccia = CreaTracciaSweep(s, "m", "ENVMEASMT", tabella, DetectorKind::Peak,
                                          {.vista = ViewMode::Inviluppo});
    EXPECT_EQ(Testo(traccia), "|1:30/0 2:40/0 3:-20000/0");
    const std::pair<int, int> attese[] = {{250, 90}, {100, 0}, {250, 90}};
    ASSERT_EQ(traccia.size(), 3u);
    for (size_t i = 0; i < traccia.size(); ++i)
        EXPECT_EQ((std::pair<int, int>(traccia[i].mast, traccia[i].table)), attese[i]) << i;
    EXPECT_FALSE(std::filesystem::exists(Host("Sweep/m/Sub_Measure/ENVMEASMT.RS1")));
    EXPECT_TRUE(ambiente.riquadri.empty());
    std::filesystem::create_directories(Host("Sweep/m/Sub_Measure/POSENVMEASMT.TM0x"));
    std::filesystem::remove(Host("Sweep/m/Sub_Measure/POSENVMEASMT.TM0"));
    std::filesystem::rename(Host("Sweep/m/Sub_Measure/POSENVMEASMT.TM0x"),
                            Host("Sweep/m/Sub_Measure/POSENVMEASMT.TM0"));
    EXPECT_FALSE(SalvaInviluppoPosizioni(s, "m", posizioni, DetectorKind::Peak));
    EXPECT_TRUE(Riquadro().ends_with("Sweep\\m\\Sub_Measure\\POSENVMEASMT.TM0"));
}

} // namespace
} // namespace orvane::prova
