// Columns out of levels against the plain way, sample by sample.
#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "graph/PiramideTraccia.h"

namespace orvane {
namespace {

/// Random levels from 1 to 30 MHz with gaps of both kinds, `doppie` some at equal frequencies.
SweepTrace Casuale(unsigned seme, size_t quanti, bool doppie) {
    std::mt19937 caso(seme);
    const auto uno = [&](unsigned su) { return caso() % su == 0; };
    SweepTrace traccia(quanti);
    for (size_t k = 0; k < quanti; ++k) {
        CampioneTraccia& c = traccia[k];
        c.freqMhz = 1 + 29.0 * static_cast<double>(k) / static_cast<double>(quanti);
        if (doppie && k > 0 && uno(5))
            c.freqMhz = traccia[k - 1].freqMhz;
        c.livello.fill(static_cast<int16_t>(caso() % 9000));
        c.livello[1] = uno(40) ? static_cast<int16_t>(kNessunLivello - uno(2)) : c.livello[0];
        c.stacco = k == 0 || uno(300);
    }
    return traccia;
}

void UgualiVicini(const std::optional<ColonneTraccia::Vicino>& a,
                  const std::optional<ColonneTraccia::Vicino>& b) {
    ASSERT_EQ(a.has_value(), b.has_value());
    if (!a)
        return;
    EXPECT_EQ(a->freqMhz, b->freqMhz);
    EXPECT_EQ(a->livello, b->livello);
    EXPECT_EQ(a->rottura, b->rottura);
}

void Confronta(const SweepTrace& traccia, double start, double stop, int colonne, bool log) {
    SCOPED_TRACE(testing::Message() << traccia.size() << " on " << start << ".." << stop);
    ColonneTraccia attese(start, stop, colonne, log);
    for (const CampioneTraccia& c : traccia) {
        if (c.stacco)
            attese.Interrompi();
        attese.Aggiungi(c.freqMhz, c.livello[1]);
    }
    const auto avute =
        PiramideTraccia(traccia, DetectorKind::QPeak).Colonne(start, stop, colonne, log);
    ASSERT_EQ(avute.Quante(), attese.Quante());
    for (int i = 0; i < attese.Quante(); ++i) {
        const auto& a = attese.Colonna(i);
        const auto& b = avute.Colonna(i);
        ASSERT_EQ(b.vuota, a.vuota) << i;
        if (a.vuota)
            continue;
        ASSERT_TRUE(a.minimo == b.minimo && a.massimo == b.massimo && a.primo == b.primo &&
                    a.ultimo == b.ultimo && a.rottura == b.rottura)
            << i;
    }
    UgualiVicini(attese.Sinistra(), avute.Sinistra());
    UgualiVicini(attese.Destra(), avute.Destra());
}

TEST(Piramide, SameColumnsAsSampleBySample) {
    unsigned seme = 1;
    for (const size_t quanti : {0u, 1u, 15u, 16u, 17u, 256u, 300u, 5000u, 70000u})
        for (const bool log : {true, false}) {
            const SweepTrace traccia = Casuale(++seme, quanti, log);
            for (const auto& [start, stop] : {std::pair{1.0, 30.0},
                                              {0.1, 300.0},
                                              {2.0, 2.5},
                                              {10.0, 10.0001},
                                              {40.0, 50.0},
                                              {0.1, 0.5},
                                              {1.0, 1.0},
                                              {5.0, 4.0}})
                for (const int colonne : {1, 7, 1600})
                    Confronta(traccia, start, stop, colonne, log);
        }
}

TEST(Piramide, TheAxisTakesItsEndsAndOneBesideThem) {
    SweepTrace traccia = Casuale(77, 40, false);
    const double f[] = {2 - 2e-9, 2 - 1e-10, 2, 3, 3 + 1e-10, 3 + 2e-9, 3 + 2e-9};
    traccia.resize(std::size(f));
    for (size_t i = 0; i < traccia.size(); ++i)
        traccia[i].freqMhz = f[i];
    Confronta(traccia, 2, 3, 10, true);
}

TEST(Piramide, FrequenciesThatDoNotRiseGoTheSlowWay) {
    SweepTrace traccia = Casuale(5, 2000, false);
    std::swap(traccia[100], traccia[900]);
    traccia[500].freqMhz = std::numeric_limits<double>::quiet_NaN();
    traccia[700].freqMhz = std::numeric_limits<double>::infinity();
    Confronta(traccia, 2, 20, 300, true);
}

} // namespace
} // namespace orvane
