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
    const std::pair<EsitoApertura, const char*> casi[] = {
        {EsitoApertura::InUso, "COM Port COM7 in use"},
        {EsitoApertura::Vietato, "COM Port COM7 not Available: permission denied"},
        {EsitoApertura::Assente, "COM Port COM7 not Available: no such device"},
        {EsitoApertura::Guasto, "COM Port COM7 not Available"}};
    for (const auto& [esito, motivo] : casi) {
        BancoSeriale b;
        b.peer.esitoApertura = esito;
        EXPECT_FALSE(b.porta.ApriPorta(true));
        EXPECT_TRUE(b.porta.link.PortaNonDisponibile && !b.porta.link.UsbNonDisponibile);
        EXPECT_EQ(b.porta.link.motivo, motivo);
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
    b.ambiente.riga = "COMM=12"; // forces plain ports only
    for (const auto& [numero, aperto] : {std::pair{7, "/dev/one"}, {9, "/dev/rfcomm0"}}) {
        b.porta.link.NumeroCom = numero;
        EXPECT_TRUE(b.porta.ApriPorta(true));
        EXPECT_EQ(b.peer.aperture.back(), aperto);
        EXPECT_EQ(b.porta.link.NumeroCom, numero);
    }
}

TEST(PortaCom, APulledAdapterReadsAsClosedFromThenOn) {
    BancoAperto b;
    b.peer.Rispondi("abcdef");
    EXPECT_EQ(Letto(b.porta, 4) + Letto(b.porta, 100), "abcdef");
    b.peer.Rispondi("abc");
    b.peer.guasto = true;
    EXPECT_EQ(b.porta.ByteInCoda(), 0u);
    b.peer.guasto = false;
    EXPECT_FALSE(b.porta.Aperta() || b.porta.ScriviPorta("#?IDN*"));
    EXPECT_EQ(b.porta.ByteInCoda(), 0u);
    EXPECT_EQ(Letto(b.porta, 3), "");
    EXPECT_EQ(b.porta.Arretrato(), std::nullopt);
    EXPECT_EQ(b.peer.aperture.size(), 1u);
}

TEST(PortaCom, WritesTheCodePageAndDrainsWhatCameAndWasGathered) {
    BancoAperto b;
    EXPECT_TRUE(b.porta.ScriviPorta("#SLIC 1,50 \u00B5V*") && b.porta.ScriviPorta(""));
    EXPECT_EQ(b.peer.scritti, Testi{"#SLIC 1,50 \xB5V*"}) << "in the code page";
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
    EXPECT_FALSE(b.porta.ScriviPorta("#?IDN*"));
    EXPECT_DOUBLE_EQ(b.Trascorsi(), 0.5);
    EXPECT_EQ(b.porta.ByteInCoda(), 0u);
    b.peer.esitoApertura = EsitoApertura::Assente;
    EXPECT_EQ(Letto(b.porta, 5), "");
    EXPECT_DOUBLE_EQ(b.Trascorsi(), 1.0);
    EXPECT_EQ(b.peer.aperture.size(), 3u);
    EXPECT_FALSE(b.porta.Aperta());
    b.peer.esitoApertura = EsitoApertura::Aperto; // it has come back
    b.porta.Arretrato();
    EXPECT_TRUE(b.porta.Aperta());
    b.peer.guasto = false;
    EXPECT_TRUE(b.porta.ScriviPorta("#?IDN*"));
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

TEST(Accumulo, AStreamThatIsUsedUpKeepsItsOrderAndItsMemory) {
    Accumulo a;
    const uint8_t* memoria = nullptr;
    uint8_t scritto = 0, letto = 0;
    for (size_t giro = 0; giro < 100; ++giro) {
        for (uint8_t& byte : a.Spazio(giro == 0 ? 65536 : 6007))
            byte = scritto++;
        a.Aggiunti(giro == 0 ? 65536 : 6007);
        memoria = giro == 0 ? a.Dati().data() : memoria;
        const size_t uso = a.Quanti() - giro % 7;
        for (const uint8_t byte : a.Dati().first(uso))
            ASSERT_EQ(byte, letto++);
        a.Consuma(uso);
    }
    EXPECT_EQ(a.Quanti(), 1u);
    a.Spazio(1);
    EXPECT_EQ(static_cast<uint8_t>(letto + 1), scritto);
    EXPECT_LT(static_cast<size_t>(a.Dati().data() - memoria), 65536u) << "no new memory";
}

} // namespace
} // namespace orvane
