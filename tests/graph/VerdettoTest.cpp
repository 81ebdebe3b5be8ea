// The verdict: which detector a limit is held against, its edges, and the worst place.
#include <gtest/gtest.h>

#include "graph/Verdetto.h"

namespace orvane {
namespace {

using enum DetectorKind;
constexpr std::array<bool, kNumDetector> kTutti = {true, true, true, true, true, true};

TEST(Verdetto, TheTitleTellsTheDetector) {
    struct Caso {
        const char *titolo, *nome;
        DetectorKind detector;
    };
    for (const Caso& c : {Caso{"CISPR 32 class B, mains port, QP", "", QPeak},
                          Caso{"CISPR 15 lighting, mains port, AV", "", Avg},
                          Caso{"FCC 15.109 class B, radiated, QP/AV>1 GHz, 3 m", "", QPeak},
                          Caso{"Quasi-Peak", "Average", QPeak}, Caso{"", "en 55011 average", Avg},
                          Caso{"CISPR-AV 25", "", CAvg}, Caso{"CISPR AV", "", Avg},
                          Caso{"RMS-AVG", "", RmsAvg}, Caso{"Peaks of AVIATION", "Limit RMS", Rms},
                          Caso{"Level pk", "QP", Peak}, Caso{"MIL", "461", Peak}}) {
        LimFacRecord limite;
        limite.Title = c.titolo;
        EXPECT_EQ(DetectorDelLimite(0, c.nome, limite, kTutti), c.detector) << c.titolo << c.nome;
    }
}

TEST(Verdetto, OneThatWasNotMeasuredGivesWayUpwards) {
    LimFacRecord limite;
    limite.Title = "AV";
    EXPECT_EQ(DetectorDelLimite(2, "", limite, kTutti), QPeak);
    EXPECT_EQ(DetectorDelLimite(0, "", limite, {true, true}), QPeak);
    EXPECT_EQ(DetectorDelLimite(0, "", limite, {true, false, false, false, false, true}), CAvg);
    EXPECT_EQ(DetectorDelLimite(2, "", limite, {true, false, false, true}), Peak);
    EXPECT_EQ(DetectorDelLimite(2, "", limite, {false, false, false, true}), QPeak)
        << "an average says nothing about a quasi-peak limit";
    limite.Title = "";
    EXPECT_EQ(DetectorDelLimite(7, "", limite, {false, false, true, true}), Rms);
}

TEST(Verdetto, ALevelAtTheLimitOrAtTheEdgeOfTheUncertaintyIsClear) {
    using enum Giudizio;
    const auto incertezza = static_cast<double>(3.4f);
    struct Caso {
        double delta, incertezza;
        Giudizio giudizio;
    };
    for (const Caso& c : {Caso{0, 0, Pass}, Caso{0.01, 0, Fail}, Caso{-0.01, -1, Pass},
                          Caso{-3.4, incertezza, Pass}, Caso{-3.39, incertezza, Inconclusive},
                          Caso{0, incertezza, Inconclusive}, Caso{3.39, incertezza, Inconclusive},
                          Caso{3.4, incertezza, Fail}})
        EXPECT_EQ(Giudica(c.delta, c.incertezza), c.giudizio) << c.delta;
    EXPECT_STREQ(TestoGiudizio(Nessuno), "---");
    EXPECT_STREQ(TestoGiudizio(Inconclusive), "INCONCLUSIVE");
}

TEST(Verdetto, TheWorstSampleOfEachLimitDecides) {
    MisuraAperta misura;
    misura.detector = {true, true};
    SweepTrace traccia;
    // Quasi-peak against 50 dB from 2 MHz to 6 MHz; 7 MHz and the sample without level count not.
    for (const int peak : {90, 49, 51, 52, 52, kNessunLivello / 100, 90}) {
        CampioneTraccia c{.freqMhz = static_cast<double>(traccia.size()) + 1};
        c.livello.fill(kNessunLivello);
        c.livello[0] = 9000;
        c.livello[1] = static_cast<int16_t>(peak * 100);
        traccia.push_back(c);
    }
    misura.traccia = std::make_shared<SweepTrace>(traccia);
    LimFacRecord& limite = misura.tabelle.slot[kPrimoLimite];
    limite.Freq = {2e6f, 4.5e6f, 4.5e6f, 7e6f};
    limite.Value = {5000, 5000, 5100, 5100};
    limite.LastSegment = 77;
    SetupRecord setup;
    EXPECT_TRUE(CalcolaVerdetto(misura, setup).limiti.empty());
    setup.LimitOn = {1, 1};
    EXPECT_TRUE(CalcolaVerdetto(misura, setup).limiti.empty()) << "on, but none is named";
    setup.LimitName = {"Mains QP", "Gone"};
    const Verdetto verdetto = CalcolaVerdetto(misura, setup);
    ASSERT_EQ(verdetto.limiti.size(), 2u);
    const VerdettoLimite& v = verdetto.limiti[0];
    EXPECT_EQ(v.detector, QPeak);
    EXPECT_EQ(v.indice, 3u);
    EXPECT_EQ(v.freqMhz, 4);
    EXPECT_DOUBLE_EQ(v.Delta(), 2);
    EXPECT_EQ(v.oltre, 3u);
    EXPECT_EQ(v.giudizio, Giudizio::Fail);
    EXPECT_EQ(verdetto.limiti[1].giudizio, Giudizio::Nessuno) << "an empty curve";
    EXPECT_EQ(verdetto.insieme, Giudizio::Fail);
    // What another line measured at 2 MHz and lost by its peak; 2.5 MHz is no point of the trace.
    SweepTrace coperti(2, traccia[1]);
    coperti[0].livello[1] = 5400;
    coperti[1].freqMhz = 2.5;
    coperti[1].livello[1] = 9000;
    misura.coperti = std::make_shared<SweepTrace>(coperti);
    const VerdettoLimite coperto = CalcolaVerdetto(misura, setup).limiti[0];
    EXPECT_EQ(coperto.indice, 1u);
    EXPECT_DOUBLE_EQ(coperto.Delta(), 4);
    EXPECT_EQ(coperto.oltre, 4u) << "a frequency once";
    misura.coperti = std::make_shared<SweepTrace>();
    setup.MeasUncertainty = 2.5f;
    EXPECT_EQ(CalcolaVerdetto(misura, setup).insieme, Giudizio::Inconclusive);
}

} // namespace
} // namespace orvane
