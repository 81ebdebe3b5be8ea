// The change of the display unit: what is refused, and what keeps its place.
#include <gtest/gtest.h>

#include <cmath>

#include "aiuto/AmbienteProva.h"
#include "graph/Scala.h"
#include "graph/UnitaGrafico.h"

namespace orvane {
namespace {

using prova::AmbienteProva;

TEST(UnitaGrafico, EntriesOfSixCharacters) {
    EXPECT_EQ(VoceUnitaGrafico(0), "dBm   ");
    EXPECT_EQ(VoceUnitaGrafico(1), "dB\xC2\xB5V  ");
    EXPECT_EQ(VoceUnitaGrafico(4), "dB\xC2\xB5V/m");
}

TEST(UnitaGrafico, AFieldUnitAsksForAFactor) {
    for (int unitId = 0; unitId < kUnitaGrafico; ++unitId)
        for (const bool acceso : {false, true}) {
            AmbienteProva ambiente;
            SetupRecord setup;
            setup.UnitId = 1;
            setup.FactorOn[6] = acceso;
            const bool buona = unitId < 4 || acceso;
            EXPECT_EQ(CambiaUnita(ambiente, setup, Modalita::Sweep, unitId), buona);
            EXPECT_EQ(setup.UnitId, buona ? unitId : 1);
            ASSERT_EQ(ambiente.riquadri.size(), buona ? 0u : 1u);
            if (!buona) {
                EXPECT_EQ(ambiente.riquadri[0].testo,
                          TabellaUnitaGrafico()[static_cast<size_t>(unitId)].testo +
                              "\r          The selected Unit \r"
                              "Should have an active Conversion Factor");
            }
        }
}

TEST(UnitaGrafico, NotEveryModeShowsEveryUnit) {
    const std::tuple<Modalita, int, bool> casi[] = {{Modalita::Sweep, 7, false},
                                                    {Modalita::Manual, -1, false},
                                                    {Modalita::Click, 4, false},
                                                    {Modalita::Click, 0, true},
                                                    {Modalita::Analyzer, 6, true}};
    for (const auto& [modalita, unitId, buona] : casi) {
        AmbienteProva ambiente;
        SetupRecord setup;
        setup.FactorOn.fill(1);
        EXPECT_EQ(CambiaUnita(ambiente, setup, modalita, unitId), buona) << unitId;
        if (!buona) {
            EXPECT_EQ(ambiente.riquadri.at(0).testo, "Unit not suitable");
        }
    }
}

/// Within half a dB, which the reference level cannot tell; and back to where it was.
TEST(UnitaGrafico, TheTraceKeepsItsPlace) {
    const auto sopra = [](const SetupRecord& setup) {
        const ScalaGrafico s = SetScaleGraph(setup, 1, 2, true, 100, 0);
        return s.alto - 5000 - s.UnitOffset * 100;
    };
    for (int da = 0; da < kUnitaGrafico; ++da)
        for (int a = 0; a < kUnitaGrafico; ++a) {
            AmbienteProva ambiente;
            SetupRecord setup;
            setup.FactorOn[0] = 1;
            setup.UnitId = static_cast<int16_t>(da);
            setup.RefLevel = -7;
            const double prima = sopra(setup);
            ASSERT_TRUE(CambiaUnita(ambiente, setup, Modalita::Analyzer, a));
            EXPECT_LE(std::abs(sopra(setup) - prima), 50) << da << " to " << a;
            CambiaUnita(ambiente, setup, Modalita::Analyzer, da);
            EXPECT_EQ(setup.RefLevel, -7);
        }
}

} // namespace
} // namespace orvane
