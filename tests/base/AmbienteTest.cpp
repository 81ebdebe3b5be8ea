// Waits and deadlines, under virtual time.
#include <gtest/gtest.h>

#include "aiuto/AmbienteProva.h"

namespace orvane {
namespace {

using prova::AmbienteProva;

TEST(Attendi, WaitsItsTimeAndServesEventsMeanwhile) {
    AmbienteProva ambiente;
    int serviti = 0;
    for (const double quando : {0.1, 0.2, 0.9})
        ambiente.Fra(quando, [&] { ++serviti; });
    ambiente.linkPronto = [] { return true; };
    const double inizio = ambiente.ora;
    Attendi(ambiente, 0.5);
    EXPECT_DOUBLE_EQ(ambiente.ora, inizio + 0.5) << "bytes from the link do not shorten it";
    EXPECT_EQ(serviti, 2);
    EXPECT_LE(ambiente.giri, 4u);
}

TEST(Scadenza, IsReachedAtItsMomentAndCanBeRenewed) {
    AmbienteProva ambiente;
    Scadenza fine(ambiente, 0.5);
    ambiente.ora += 0.25;
    EXPECT_DOUBLE_EQ(fine.Rimane(), 0.25);
    EXPECT_FALSE(fine.Passata());
    ambiente.ora += 0.25;
    EXPECT_TRUE(fine.Passata());
    ambiente.ora += 1;
    EXPECT_EQ(fine.Rimane(), 0);
    fine.Rinnova(0.5);
    EXPECT_FALSE(fine.Passata());
}

} // namespace
} // namespace orvane
