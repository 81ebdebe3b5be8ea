// The aspect bytes: defaults, ranges, and what is left alone.
#include <gtest/gtest.h>

#include <set>

#include "records/Aspetto.h"
#include "records/ColoriGrafico.h"
#include "records/NomiColori.h"

namespace orvane {
namespace {

TEST(Aspetto, ByteEstraneiDannoIDefault) {
    EnvRecord env;
    EXPECT_EQ(LeggiAspetto(env), Aspetto{});
    env.LookValues.fill(0x01); // of a release with a layout of its own
    EXPECT_EQ(LeggiAspetto(env), Aspetto{});
    EXPECT_FALSE(LeggiPostoFinestra(env));
}

TEST(Aspetto, OgniValoreNeiSuoiLimiti) {
    for (const CampoAspetto& c : kCampiAspetto) {
        EnvRecord env;
        ScriviAspetto(env, {});
        for (const int fuori : {c.minimo - 1, c.massimo + 1}) {
            env.LookValues[c.posto] = static_cast<uint8_t>(fuori & 0xff);
            env.LookValues[c.posto + 1] = static_cast<uint8_t>(fuori >> 8 & 0xff);
            EXPECT_EQ(LeggiAspetto(env), Aspetto{}) << c.posto;
        }
        for (const int dentro : {c.minimo, c.massimo}) {
            Aspetto aspetto;
            aspetto.*c.campo = dentro;
            ScriviAspetto(env, aspetto);
            EXPECT_EQ(LeggiAspetto(env), aspetto) << c.posto;
        }
        Aspetto troppo;
        troppo.*c.campo = c.massimo + 1000;
        ScriviAspetto(env, troppo);
        EXPECT_EQ(LeggiAspetto(env).*c.campo, c.massimo);
    }
}

TEST(Aspetto, GliAltriByteRestano) {
    EnvRecord env;
    env.LookValues.fill(0xa5);
    env.Window2.fill(0x5a);
    ScriviAspetto(env, {});
    for (size_t i = 0; i < env.LookValues.size(); ++i)
        if (i < 136 || i >= 160) {
            EXPECT_EQ(env.LookValues[i], 0xa5) << i;
        }
    EXPECT_EQ(env.Window2[0], 0x5a);
}

TEST(Aspetto, PostoDellaFinestra) {
    EnvRecord env;
    ScriviPostoFinestra(env, {-20, 40, 900, 100000});
    EXPECT_EQ(LeggiPostoFinestra(env), (PostoFinestra{-20, 40, 900, 32000}));
    env.Window1[2] = 0;
    EXPECT_FALSE(LeggiPostoFinestra(env));
}

TEST(NomiColori, OgniEntrataUnaVolta) {
    std::multiset<size_t> viste;
    for (const VoceColore& voce : VociColori()) {
        viste.insert(voce.schermo);
        if (voce.stampa != voce.schermo)
            viste.insert(voce.stampa);
    }
    for (size_t i = 0; i < kNumColori; ++i)
        EXPECT_EQ(viste.count(i), 1u) << i;
}

TEST(NomiColori, Codici) {
    EXPECT_EQ(TestoColore(Rgb(1, 0xab, 255)), "#01ABFF");
    EXPECT_EQ(LeggiColore("01abFF"), Rgb(1, 0xab, 255));
    for (const char* storto : {"", "#", "#12345", "#1234567", "12345g", "-12345", "+12345"})
        EXPECT_FALSE(LeggiColore(storto)) << storto;
}

} // namespace
} // namespace orvane
