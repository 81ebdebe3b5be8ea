// What the grid is told while a table is edited.
#include <gtest/gtest.h>

#include "aiuto/CartellaProva.h"
#include "setup/EsameTabella.h"
#include "setup/ModificaTabella.h"

namespace orvane {
namespace {

struct Tavolo {
    ScanTable tabella{};
    ReceiverModel modello{};
    std::array<ModelCaps, 2> caps{};
    SetupRecord setup{};
    prova::CartellaProva cartella{};
    AlberoDati albero{cartella.Percorso()};

    Segnalazioni Esamina() const {
        return EsaminaTabella({.tabella = tabella,
                               .modello = modello,
                               .caps = caps,
                               .setup = setup,
                               .albero = albero});
    }
    void Banda(const char* nome) {
        AggiungiBanda(tabella, TabellaBande()[static_cast<size_t>(TrovaBanda(nome))], 0);
    }
};

TEST(EsameTabella, TakesEveryOptionForGrantedUntilTheReceiverWasAsked) {
    Tavolo t;
    EXPECT_TRUE(t.Esamina().empty());
    t.Banda("B");
    t.tabella[0].Detector = {0, 0, 0, 0, 1, 0};
    EXPECT_TRUE(t.Esamina().empty());
    t.modello.FwTesto = "2.15";
    t.modello.FwVersione = 2.15f;
    const Segnalazioni trovate = t.Esamina();
    ASSERT_EQ(trovate.size(), 1u);
    EXPECT_EQ(trovate[0].riquadro.testo, "Rms-Avg Detector not available");
}

TEST(EsameTabella, HasWordsForEachFindingAndNoCheckStopsTwice) {
    Tavolo t;
    t.setup.AncillaryKind = 1;
    for (const char* banda : {"B", "B", "C+D"})
        t.Banda(banda);
    t.tabella[0].RbwId = 0;
    t.tabella[2].LineSwitch = {0, 1, 1, 0};
    const Segnalazioni trovate = t.Esamina();
    ASSERT_GE(trovate.size(), 3u);
    size_t dellaRete = 0;
    for (const Segnalazione& una : trovate) {
        EXPECT_FALSE(una.riquadro.testo.empty());
        dellaRete += una.celle == std::vector<CellaErrata>{{2, ColonnaScan::Ancillary}};
    }
    EXPECT_EQ(dellaRete, 1u);
}

} // namespace
} // namespace orvane
