// Markers: where they stand, what is read there, and how they are drawn.
#include <gtest/gtest.h>

#include <tuple>

#include "aiuto/SuperficieRegistra.h"
#include "graph/Marcatori.h"

namespace orvane {
namespace {

/// 0.15 MHz and on by 5 kHz, Peak and QPeak; the third sample has no QPeak, the limit ends below
/// the last.
MisuraAperta Misura() {
    MisuraAperta misura{.nome = "M", .base = "M"};
    auto& riga = misura.header.Scan.Righe[0];
    riga.Start = 0.15;
    riga.Step = 0.005;
    misura.detector = {true, true};
    SweepTrace traccia;
    for (int i = 0; i < 4; ++i) {
        CampioneTraccia c{.freqMhz = 0.15 + i * 0.005};
        c.livello.fill(kNessunLivello);
        c.livello[0] = static_cast<int16_t>(5000 + i * 125);
        c.livello[1] = static_cast<int16_t>(i == 2 ? kNessunLivello - 1 : 4800);
        traccia.push_back(c);
    }
    misura.traccia = std::make_shared<SweepTrace>(traccia);
    LimFacRecord& limite = misura.tabelle.slot[kPrimoLimite];
    limite.Freq = {150000, 164000};
    limite.Value = {4800, 4800};
    limite.Title = "Mains, QP";
    LimFacRecord& fattore = misura.tabelle.slot[kPrimoFattore];
    fattore.Freq = {100000, 200000};
    fattore.Value = {1050, 1050};
    return misura;
}

TEST(Marcatori, AFrequencyHasTheDecimalsOfItsStep) {
    using Caso = std::tuple<double, double, const char*>;
    for (const auto& [mhz, passo, testo] :
         {Caso{0.195, 0.005, "0.195"}, Caso{30, 0.005, "30.000"}, Caso{0.1525, 0.0025, "0.1525"},
          Caso{100, 1, "100"}, Caso{100, 0.1 + 0.2, "100.0"}, Caso{0.01, 1, "0.01"},
          Caso{0.0001, 1, "0.000"}, Caso{-0.065, 0.005, "-0.065"}, Caso{1.25, 0, "1.250000"}})
        EXPECT_EQ(DetFormatoVal(mhz, passo), testo);
    MisuraAperta misura = Misura();
    misura.header.Scan.Righe[0].Step = 0.1;
    EXPECT_EQ(PassoTraccia(misura, 0), 0.15) << "a start off the grid";
    misura.header.Scan.Righe[0].StepMode = 1;
    EXPECT_EQ(PassoTraccia(misura, 1), 0.155) << "by table";
}

TEST(Marcatori, TheNearestSampleIsTaken) {
    const MisuraAperta misura = Misura();
    for (const auto& [mhz, indice] :
         {std::pair(0.0, 0u), std::pair(0.152, 0u), std::pair(0.153, 1u), std::pair(9.0, 3u)})
        EXPECT_EQ(CampioneVicino(*misura.traccia, mhz), indice) << mhz;
    EXPECT_EQ(CampioneVicino({{.freqMhz = 1}, {.freqMhz = 2}}, 1.5), 0u);
    EXPECT_FALSE(CampioneVicino({}, 1));
    const auto scala = SetScaleGraph({}, 0.1549, 0.1599, true, 1000, 0);
    EXPECT_EQ(MoveMarker(*misura.traccia, scala, -50), 1u);
    EXPECT_EQ(MoveMarker(*misura.traccia, scala, 5000), 1u) << "0.16 lies nearer, beside the axis";
}

TEST(Marcatori, ReadLevelsFactorsAndDistances) {
    const MisuraAperta misura = Misura();
    SetupRecord setup;
    setup.UnitId = 2;
    setup.LimitOn = {1, 1};
    setup.LimitName[0] = "Mains"; // the other is on without a name
    setup.FactorOn = {1};
    setup.FactorName[0] = "Clamp";
    setup.SommaFact = 1;
    struct Caso {
        size_t indice;
        const char *frequenza, *peak, *qpeak, *distanza;
    };
    for (const Caso& c : {Caso{0, "0.150 MHz", "16.00", "14.00", "0.00"},
                          Caso{2, "0.160 MHz", "18.50", "---", "---"},
                          Caso{3, "0.165 MHz", "19.75", "14.00", "---"}}) {
        const LetturaMarker lettura = LeggiMarker(misura, setup, c.indice);
        EXPECT_EQ(lettura.frequenza, c.frequenza);
        ASSERT_EQ(lettura.livelli.size(), 2u);
        EXPECT_EQ(lettura.livelli[0].testo, c.peak);
        EXPECT_EQ(lettura.livelli[1].testo, c.qpeak);
        ASSERT_EQ(lettura.distanze.size(), 1u);
        EXPECT_EQ(lettura.distanze[0].detector, DetectorKind::QPeak);
        EXPECT_EQ(lettura.distanze[0].testo, c.distanza);
        EXPECT_EQ(lettura.fattori.at(0), std::pair(std::string("Clamp"), std::string("10.50")));
        EXPECT_EQ(lettura.sommaFattori, "10.50");
    }
    setup.VerdictDetector[0] = 1;
    setup.SommaFact = 0;
    EXPECT_EQ(LeggiMarker(misura, setup, 1).distanze[0].testo, "+3.25");
    EXPECT_FALSE(LeggiMarker(misura, setup, 1).sommaFattori);
    const LetturaDelta delta = LeggiDelta(misura, 3, 0);
    EXPECT_EQ(delta.frequenza, "-0.015 MHz");
    EXPECT_EQ(delta.livelli[0].testo, "-3.75");
    EXPECT_EQ(LeggiDelta(misura, 0, 2).livelli[1].testo, "---");
    EXPECT_TRUE(LeggiMarker(misura, setup, 4).livelli.empty() &&
                LeggiDelta(misura, 4, 0).frequenza.empty())
        << "of a longer trace";
}

TEST(Marcatori, AreDrawnWithinTheAxis) {
    const MisuraAperta misura = Misura();
    SetupRecord setup;
    setup.DinamicaId = 1;
    const auto disegna = [&](double start, double stop, size_t indice, int numero) {
        prova::SuperficieRegistra s;
        const auto dove = DisponiGriglia(s, {});
        const auto scala = SetScaleGraph(setup, start, stop, true, dove.larghezza, 0);
        DisegnaMarkerSweep(s, scala, dove, misura, {true, true}, indice, numero, {});
        for (const auto& spezzata : s.spezzate)
            EXPECT_TRUE(spezzata.ritagliata);
        for (const auto& testo : s.testi) {
            const bool destra = testo.ancora == Ancora::DestraAlto;
            const double x = s.Pixel(testo.dove).x - dove.sinistra;
            EXPECT_TRUE(destra ? x <= dove.larghezza : x + 10 <= dove.larghezza);
        }
        return s;
    };
    const auto primo = disegna(0.15, 30, 0, 1);
    ASSERT_EQ(primo.linee.size(), 1u);
    EXPECT_EQ(primo.linee[0].da.x, 0);
    EXPECT_EQ(primo.linee[0].penna.tratto, Tratto::Pieno);
    EXPECT_EQ(primo.spezzate.size(), 2u);
    EXPECT_EQ(primo.testi.at(0).testo, "1");
    const auto delta = disegna(0.1, 0.16, 2, 2);
    EXPECT_EQ(delta.linee.at(0).penna.tratto, Tratto::Tratteggiato);
    EXPECT_EQ(delta.spezzate.size(), 1u) << "no ring without a level";
    EXPECT_EQ(delta.testi.at(0).ancora, Ancora::DestraAlto);
    for (const auto& fuori : {disegna(0.16, 30, 0, 1), disegna(0.15, 30, 99, 1)})
        EXPECT_TRUE(fuori.linee.empty() && fuori.testi.empty() && fuori.spezzate.empty());
}

} // namespace
} // namespace orvane
