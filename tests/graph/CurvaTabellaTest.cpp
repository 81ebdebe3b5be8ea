// The picture of a table that is edited: its axis, its line, its marks.
#include <gtest/gtest.h>

#include "aiuto/SuperficieRegistra.h"
#include "graph/CurvaTabella.h"
#include "records/ColoriGrafico.h"

namespace orvane {
namespace {

using prova::SuperficieRegistra;

ContenutoTabella Tabella(TableKind kind) {
    return {.kind = kind,
            .righe = {{.freqMhz = 1, .livelloCent = 6000},
                      {.freqMhz = 10, .livelloCent = 6000},
                      {.freqMhz = 10, .livelloCent = 5000},
                      {.freqMhz = 100, .livelloCent = 5000},
                      {.freqMhz = 200}}};
}

TEST(CurvaTabella, TheAxisHoldsTheCompleteRowsInTheirUnit) {
    ContenutoTabella c = Tabella(TableKind::Limite);
    ScalaGrafico s = ScalaTabella(c, 600);
    EXPECT_TRUE(s.logaritmica);
    EXPECT_EQ(s.start, 1);
    EXPECT_EQ(s.stop, 100);
    EXPECT_LE(s.basso, 5000 - 1000);
    EXPECT_GE(s.alto, 6000 + 1000);
    c.unitId = 0;
    EXPECT_DOUBLE_EQ(ScalaTabella(c, 600).alto, s.alto - 11000 + 0) << "-107 dB, in whole tens";
    c.linFreq = true;
    EXPECT_FALSE(ScalaTabella(c, 600).logaritmica);
    c.kind = TableKind::Fattore;
    EXPECT_TRUE(ScalaTabella(c, 600).logaritmica);
    for (const size_t righe : {0u, 1u}) {
        c.righe.resize(righe);
        s = ScalaTabella(c, 600);
        EXPECT_TRUE(AsseValido(s.start, s.stop, s.logaritmica)) << righe;
    }
}

TEST(CurvaTabella, ALimitIsStraightBetweenItsPointsAndStepsUpright) {
    const ContenutoTabella c = Tabella(TableKind::Limite);
    const auto linea = LineaTabella(c, ScalaTabella(c, 600));
    ASSERT_EQ(linea.size(), 4u);
    EXPECT_NEAR(linea[1].x, 300, 1e-9);
    EXPECT_EQ(linea[1].x, linea[2].x);
    EXPECT_EQ(linea[1].y, 6000);
    EXPECT_EQ(linea[2].y, 5000);
    EXPECT_NEAR(linea[3].x, 600, 1e-9);
}

TEST(CurvaTabella, AFactorIsStraightOnALinearAxisAndBentOnThisOne) {
    ContenutoTabella c{
        .kind = TableKind::Fattore,
        .righe = {{.freqMhz = 1, .livelloCent = 0}, {.freqMhz = 100, .livelloCent = 1000}}};
    const ScalaGrafico s = ScalaTabella(c, 600);
    const auto linea = LineaTabella(c, s);
    ASSERT_GT(linea.size(), 10u);
    for (const Punto& p : linea)
        EXPECT_NEAR(p.y, (XToFreq(s, p.x) - 1) / 99 * 1000, 1e-6);
}

TEST(CurvaTabella, FrequencyTablesHaveATickARow) {
    EnvRecord env;
    for (size_t i = 0; i < env.GraphColors.size(); ++i)
        env.GraphColors[i] = static_cast<int32_t>(i);
    const ContenutoTabella c = Tabella(TableKind::Frequenze);
    SuperficieRegistra superficie;
    const RiquadroGriglia dove{.sinistra = 50, .alto = 10, .larghezza = 600, .altezza = 300};
    const ScalaGrafico s = ScalaTabella(c, 600);
    DisegnaTabella(superficie, s, dove, c, {}, env, 1);
    EXPECT_TRUE(superficie.spezzate.empty());
    ASSERT_EQ(superficie.linee.size(), 4u);
    EXPECT_EQ(superficie.linee[0].da.y, s.basso);
    EXPECT_EQ(superficie.rettangoli.size(), 4u);
    // The current row across the grid; one beyond the table, and one outside the axis, not at all.
    for (const auto& [riga, quante] : {std::pair{3u, 5u}, {4u, 4u}, {9u, 4u}}) {
        SuperficieRegistra altra;
        DisegnaTabella(altra, s, dove, c, riga, env, 1);
        EXPECT_EQ(altra.linee.size(), quante) << riga;
    }
}

} // namespace
} // namespace orvane
