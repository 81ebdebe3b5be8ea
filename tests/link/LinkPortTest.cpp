// The six operations over the serial carriers, plain, Bluetooth and a stream of one's own; and the
// buffer of a sweep, whose bytes keep their order.
#include <gtest/gtest.h>

#include <algorithm>

#include "aiuto/BancoLink.h"

namespace orvane {
namespace {

using namespace prova;

std::string Letto(Porta& porta, size_t n) {
    const auto byte = porta.LeggiPorta(n);
    return {byte.begin(), byte.end()};
}

TEST(PortaCom, AFailureSaysWhyWithoutABox) {
    struct Caso {
        EsitoApertura esito;
        const char* motivo;
    };
    for (const Caso& caso :
         {Caso{EsitoApertura::InUso, "COM Port COM7 in use"},
          Caso{EsitoApertura::Vietato, "COM Port COM7 not Available: permission denied"},
          Caso{EsitoApertura::Assente, "COM Port COM7 not Available: no such device"},
          Caso{EsitoApertura::Guasto, "COM Port COM7 not Available"}}) {
        BancoSeriale b;
        b.peer.esitoApertura = caso.esito;
        EXPECT_FALSE(b.porta.ApriPorta(true));
        EXPECT_TRUE(b.porta.link.PortaNonDisponibile);
        EXPECT_FALSE(b.porta.link.UsbNonDisponibile);
        EXPECT_EQ(b.porta.link.motivo, caso.motivo);
        EXPECT_EQ(b.Riquadri(), Testi{});
        EXPECT_FALSE(b.porta.ScriviPorta("#?IDN*"));
        b.porta.ChiudiPorta();
        EXPECT_FALSE(b.porta.link.PortaNonDisponibile);
        EXPECT_EQ(b.porta.Descrizione(), " (COM7)");
    }
    BancoSeriale b;
    b.porta.link.NumeroCom = 4;
    EXPECT_FALSE(b.porta.ApriPorta(true));
    EXPECT_EQ(b.porta.link.motivo, "COM Port COM4 not Available: no such device");
    EXPECT_EQ(b.peer.aperture, Testi{}) << "a number without a device";
}

TEST(PortaCom, TheSwitchForcesPlainPortsOnly) {
    BancoSeriale b("COMM=12");
    EXPECT_TRUE(b.porta.ApriPorta(true));
    EXPECT_EQ(b.peer.aperture, Testi{"/dev/one"});
    EXPECT_EQ(b.porta.link.NumeroCom, 7);
    b.porta.link.NumeroCom = 9;
    EXPECT_TRUE(b.porta.ApriPorta(true));
    EXPECT_EQ(b.peer.aperture.back(), "/dev/rfcomm0");
}

TEST(PortaCom, WritesTheCodePageAndNothingBehindIt) {
    BancoAperto b;
    EXPECT_TRUE(b.porta.ScriviPorta("#SLIC 1,50 \u00B5V*"));
    EXPECT_EQ(b.peer.scritti, Testi{"#SLIC 1,50 \xB5V*"});
    EXPECT_TRUE(b.porta.ScriviPorta(""));
    EXPECT_EQ(b.peer.scritti.size(), 1u);
}

TEST(PortaCom, ReadsNoMoreThanIsThere) {
    BancoAperto b;
    b.peer.Rispondi("abcdef");
    EXPECT_EQ(b.porta.ByteInCoda(), 6u);
    EXPECT_EQ(Letto(b.porta, 0), "");
    EXPECT_EQ(Letto(b.porta, 4), "abcd");
    EXPECT_EQ(Letto(b.porta, 100), "ef");
    EXPECT_EQ(Letto(b.porta, 100), "");
}

TEST(PortaCom, APulledAdapterReadsAsClosedFromThenOn) {
    BancoAperto b;
    b.peer.Rispondi("abc");
    b.peer.guasto = true;
    EXPECT_EQ(b.porta.ByteInCoda(), 0u);
    b.peer.guasto = false;
    EXPECT_FALSE(b.porta.Aperta());
    EXPECT_EQ(b.porta.ByteInCoda(), 0u);
    EXPECT_EQ(Letto(b.porta, 3), "");
    EXPECT_FALSE(b.porta.ScriviPorta("#?IDN*"));
    EXPECT_EQ(b.porta.Arretrato(), std::nullopt);
    EXPECT_EQ(b.peer.aperture.size(), 1u);
}

TEST(PortaCom, DrainingDropsWhatCameAndWhatWasGathered) {
    BancoAperto b;
    b.peer.Rispondi("old");
    EXPECT_EQ(b.porta.LeggiInAccumulo(2), 2u);
    b.peer.Rispondi("late", 0.2);
    b.porta.SvuotaRicezione();
    EXPECT_EQ(b.porta.accumulo.Quanti(), 0u);
    EXPECT_EQ(b.porta.ByteInCoda(), 0u);
    b.ambiente.ora += 0.3;
    EXPECT_EQ(Letto(b.porta, 10), "late");
}

TEST(PortaBluetooth, AFailedOpenHasItsBox) {
    BancoSeriale b;
    b.porta.link.NumeroCom = 9;
    b.peer.esitoApertura = EsitoApertura::Assente;
    EXPECT_FALSE(b.porta.ApriPorta(false));
    EXPECT_TRUE(b.porta.link.IsBluetooth);
    EXPECT_TRUE(b.porta.link.PortaNonDisponibile);
    EXPECT_EQ(b.Riquadri(), Testi{"COMM PORT 9 not Available"});
    EXPECT_EQ(b.ambiente.riquadri[0].icona, Icona::Nessuna);
    EXPECT_EQ(b.porta.link.motivo, "");
    EXPECT_EQ(b.porta.Descrizione(), " (COM9 Bluetooth)");
}

TEST(PortaBluetooth, AFailedWriteOrReadOpensAgainAndWaits) {
    BancoSeriale b;
    b.porta.link.NumeroCom = 9;
    ASSERT_TRUE(b.porta.ApriPorta(true));
    b.peer.guasto = true;
    const double inizio = b.ambiente.ora;
    EXPECT_FALSE(b.porta.ScriviPorta("#?IDN*"));
    EXPECT_DOUBLE_EQ(b.ambiente.ora, inizio + 0.5);
    EXPECT_EQ(b.porta.ByteInCoda(), 0u);
    EXPECT_EQ(b.peer.aperture.size(), 2u);
    EXPECT_EQ(Letto(b.porta, 5), "");
    EXPECT_DOUBLE_EQ(b.ambiente.ora, inizio + 1.0);
    EXPECT_EQ(b.peer.aperture.size(), 3u);
    b.peer.guasto = false;
    EXPECT_TRUE(b.porta.ScriviPorta("#?IDN*"));
}

TEST(PortaBluetooth, ADeviceThatCameBackIsFoundByALaterTry) {
    BancoSeriale b;
    b.porta.link.NumeroCom = 9;
    ASSERT_TRUE(b.porta.ApriPorta(true));
    b.peer.guasto = true;
    b.peer.esitoApertura = EsitoApertura::Assente;
    EXPECT_FALSE(b.porta.ScriviPorta("#?IDN*"));
    EXPECT_FALSE(b.porta.Aperta());
    b.peer.guasto = false;
    b.peer.esitoApertura = EsitoApertura::Aperto;
    b.peer.Chiudi();
    b.peer.guasto = true;
    b.porta.Arretrato();
    EXPECT_TRUE(b.porta.Aperta());
}

TEST(Porta, ALinkChangedWhileOpenIsClosedFirst) {
    BancoAperto b;
    b.porta.link.TipoLink = 1;
    EXPECT_TRUE(b.porta.ApriPorta(true));
    EXPECT_FALSE(b.peer.Aperto());
    b.porta.link.TipoLink = 0;
    EXPECT_TRUE(b.porta.ApriPorta(true));
    EXPECT_EQ(b.usb.Quante("chiudi"), 1u);
    EXPECT_TRUE(b.peer.Aperto());
}

void Riempi(Accumulo& a, size_t n, uint8_t& prossimo) {
    for (uint8_t& byte : a.Spazio(n))
        byte = prossimo++;
    a.Aggiunti(n);
}

TEST(Accumulo, KeepsTheOrderHoweverItIsFilledAndUsed) {
    Accumulo a;
    uint8_t scritto = 0;
    uint8_t letto = 0;
    for (size_t giro = 0; giro < 2000; ++giro) {
        Riempi(a, 1 + giro * 37 % 211, scritto);
        const size_t uso = std::min(a.Quanti(), giro * 53 % 223);
        for (const uint8_t byte : a.Dati().first(uso))
            ASSERT_EQ(byte, letto++);
        a.Consuma(uso);
    }
    EXPECT_EQ(static_cast<uint8_t>(letto + a.Quanti()), scritto);
}

TEST(Accumulo, AStreamThatIsUsedUpNeedsNoNewMemory) {
    Accumulo a;
    uint8_t scritto = 0;
    Riempi(a, 65536, scritto);
    const uint8_t* memoria = a.Dati().data();
    for (int giro = 0; giro < 1000; ++giro) {
        a.Consuma(a.Quanti() - 5);
        Riempi(a, 60000, scritto);
    }
    EXPECT_EQ(a.Quanti(), 60005u);
    EXPECT_EQ(a.Dati().data(), memoria);
}

} // namespace
} // namespace orvane
