// Limits on the grid: their lines, where they are cut, and the places of their names.
#include <gtest/gtest.h>

#include <cmath>

#include "aiuto/SuperficieRegistra.h"
#include "data/Interpolazione.h"
#include "graph/Limiti.h"

namespace orvane {
namespace {

using prova::SuperficieRegistra;

struct PuntoProva {
    float mhz;
    int16_t cent;
};
LimFacRecord Limite(std::initializer_list<PuntoProva> punti, bool lineare = false) {
    LimFacRecord limite;
    size_t i = 0;
    for (const PuntoProva& p : punti) {
        limite.Freq[i] = p.mhz * 1e6f;
        limite.Value[i++] = p.cent;
    }
    limite.LinFreq = lineare;
    return limite;
}
/// 79 dB up to 500 kHz, 73 dB from there to 30 MHz.
LimFacRecord Gradino() {
    return Limite({{0.15f, 7900}, {0.5f, 7900}, {0.5f, 7300}, {30, 7300}});
}
ScalaGrafico Scala(int unitId = 1, bool logaritmica = true) {
    SetupRecord setup;
    setup.DinamicaId = 1;
    setup.RefLevel = -10;
    setup.UnitId = static_cast<int16_t>(unitId);
    return SetScaleGraph(setup, 0.1, 100, logaritmica, 900, 0);
}

TEST(LineeLimite, StraightWithUprightStepsInTheUnitOfThePicture) {
    for (const auto& [unitId, offset] : {std::pair{1, 0}, {0, -10700}, {5, -5150}}) {
        const auto linee = LineeLimite(Gradino(), Scala(unitId));
        ASSERT_EQ(linee.size(), 1u);
        ASSERT_EQ(linee[0].size(), 4u);
        EXPECT_EQ(linee[0][1].x, linee[0][2].x);
        EXPECT_EQ(linee[0][1].y, 7900 + offset);
        EXPECT_EQ(linee[0][2].y, 7300 + offset);
        EXPECT_EQ(std::lround(linee[0][3].x), FreqToX(Scala(unitId), 30))
            << "the last point closes";
    }
}

TEST(LineeLimite, CutWhereAScanLineEnds) {
    struct Caso {
        CampoMhz fra;
        std::vector<double> mhz, cent;
    };
    const Caso casi[] = {{{0.2, 0.3}, {0.2, 0.3}, {7900, 7900}},
                         {{0.01, 0.3}, {0.15, 0.3}, {7900, 7900}},
                         {{0.2, 0.5}, {0.2, 0.5, 0.5}, {7900, 7900, 7300}},
                         {{0.5, 1}, {0.5, 1}, {7300, 7300}}, // the step has been made
                         {{10, 60}, {10, 30}, {7300, 7300}},
                         {{30, 60}, {}, {}}, // from the last point on there is none
                         {{0.01, 0.15}, {}, {}}};
    for (const Caso& caso : casi) {
        SCOPED_TRACE(testing::Message() << caso.fra.start << ".." << caso.fra.stop);
        const auto linee = LineeLimite(Gradino(), Scala(), caso.fra);
        ASSERT_EQ(linee.size(), caso.mhz.empty() ? 0u : 1u);
        for (size_t i = 0; i < caso.mhz.size(); ++i) {
            ASSERT_EQ(linee[0].size(), caso.mhz.size());
            EXPECT_NEAR(linee[0][i].x, *PosizioneX(Scala(), caso.mhz[i]), 1e-4);
            EXPECT_EQ(linee[0][i].y, caso.cent[i]);
        }
    }
    const auto salita = Limite({{1, 4000}, {100, 6000}});
    EXPECT_EQ(LineeLimite(salita, Scala(), CampoMhz{10, 20})[0].front().y, 5000);
}

/// Each point of the drawn line is what the limit says there, on either kind of axis.
TEST(LineeLimite, BentWhereThePictureHasTheOtherAxis) {
    for (const bool lineare : {false, true})
        for (const bool logaritmica : {false, true}) {
            const auto limite = Limite({{1, 3000}, {90, 9000}}, lineare);
            const ScalaGrafico s = Scala(1, logaritmica);
            const auto linee = LineeLimite(limite, s);
            ASSERT_EQ(linee.size(), 1u);
            EXPECT_EQ(linee[0].size() > 100, lineare == logaritmica);
            for (size_t i = 0; i + 1 < linee[0].size(); ++i) {
                const double hz = XToFreq(s, linee[0][i].x) * 1e6;
                EXPECT_NEAR(linee[0][i].y, ValoreLimite(limite, static_cast<float>(hz)), 1);
            }
        }
}

TEST(LineeLimite, WithoutTwoPointsOrAnAxisNothing) {
    EXPECT_TRUE(LineeLimite({}, Scala()).empty());
    EXPECT_TRUE(LineeLimite(Limite({{1, 100}}), Scala()).empty());
    ScalaGrafico senza = Scala();
    senza.XScale = 0;
    EXPECT_TRUE(LineeLimite(Gradino(), senza).empty());
}

TEST(NomiLimiti, InsideTheGridAndApart) {
    SuperficieRegistra superficie;
    const ScalaGrafico s = Scala();
    const RiquadroGriglia dove{.sinistra = 60, .alto = 20, .larghezza = 900, .altezza = 450};
    std::vector<RettangoloTesto> occupati;
    for (int i = 0; i < 40; ++i)
        ScriviNomeLimite(superficie, s, dove, Gradino(), "EN 55011 " + std::to_string(i), 7, 11,
                         occupati);
    EXPECT_GT(occupati.size(), 3u);
    EXPECT_LT(occupati.size(), 40u) << "the rest has no room";
    ASSERT_EQ(superficie.testi.size(), occupati.size());
    for (size_t i = 0; i < occupati.size(); ++i) {
        const RettangoloTesto& r = occupati[i];
        EXPECT_TRUE(r.sinistra > 60 && r.destra < 960 && r.alto > 20 && r.basso < 470);
        EXPECT_NEAR(superficie.Pixel(superficie.testi[i].dove).x, r.sinistra, 1e-6);
        for (size_t k = 0; k < i; ++k) {
            const RettangoloTesto& o = occupati[k];
            EXPECT_TRUE(r.destra < o.sinistra || o.destra < r.sinistra || r.basso <= o.alto ||
                        o.basso <= r.alto);
        }
    }
    const auto alto = Limite({{1, 9000}, {30, 9000}});
    occupati.clear();
    ScriviNomeLimite(superficie, s, dove, alto, "at the frame", 7, 11, occupati);
    EXPECT_TRUE(occupati.empty());
}

} // namespace
} // namespace orvane
