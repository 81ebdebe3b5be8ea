// The six operations over the USB driver: finding the device, opening, draining, closing.
#include <gtest/gtest.h>

#include "aiuto/BancoLink.h"

namespace orvane {
namespace {

using namespace prova;

TEST(PortaUsb, OpensInTheDocumentedOrder) {
    BancoUsb b;
    EXPECT_TRUE(b.porta.ApriPorta(true));
    EXPECT_EQ(b.usb.chiamate, (Testi{"chiudi niente", "lista", "apri 5520 / 5540", "baud 115200",
                                     "formato 800", "trasferimenti 320 4096"}));
    EXPECT_FALSE(b.porta.Seriale());
    EXPECT_EQ(b.porta.Descrizione(), " (USB)");
    EXPECT_TRUE(b.porta.ChiudiPorta());
    EXPECT_EQ(b.usb.chiamate.back(), "chiudi");
    EXPECT_FALSE(b.porta.ChiudiPorta());
    EXPECT_FALSE(b.porta.link.UsbNonDisponibile);
}

TEST(PortaUsb, TheFirstDeviceThatHoldsANameWins) {
    const std::pair<Testi, const char*> casi[] = {
        {{"Mouse", "krv 3360", "5520 / 5540"}, "apri KRV 3360"},
        {{"My usb <-> serial cable"}, "apri USB <-> Serial"},
        {{"FT232R USB UART of a 5520 / 5540"}, "apri 5520 / 5540"},
        {{"FT232r usb uart"}, "apri FT232R USB UART"},
        {{"KRV 3360", "oem vsd3"}, "apri OEM VSD3"}};
    for (const auto& [dispositivi, aperto] : casi) {
        BancoUsb b;
        b.usb.dispositivi = dispositivi;
        if (dispositivi.back() == "oem vsd3")
            b.porta.nomiUsb = NomiUsb::Oem();
        EXPECT_TRUE(b.porta.ApriPorta(true));
        EXPECT_EQ(b.usb.Quante(aperto), 1u) << aperto;
    }
}

TEST(PortaUsb, NothingFoundAfterFourAttempts) {
    const std::string dopoNul = std::string("Scope") + '\0' + "rest";
    const std::string testo = "Cannot find 5520 / 5540\r on the USB bus.\r";
    for (const bool altri : {false, true}) {
        BancoUsb b;
        b.usb.dispositivi = altri ? Testi{dopoNul, "Printer"} : Testi{};
        EXPECT_FALSE(b.porta.ApriPorta(true));
        EXPECT_EQ(b.usb.Quante("lista"), 4u);
        EXPECT_EQ(b.Trascorsi(), 0);
        EXPECT_EQ(b.Riquadri(), Testi{testo + (altri ? "(Found a device named ''Scope'')" : "")});
        EXPECT_TRUE(b.porta.link.UsbNonDisponibile);
    }
    BancoUsb b;
    b.usb.dispositivi = {};
    EXPECT_FALSE(b.porta.ApriPorta(false));
    EXPECT_EQ(b.Riquadri(), Testi{});
    EXPECT_EQ(b.porta.link.motivo, "Cannot find 5520 / 5540  on the USB bus.");
}

TEST(PortaUsb, ADeviceThatCannotBeOpenedOrSetUp) {
    for (uint32_t DriverUsbProva::*quale :
         {&DriverUsbProva::statoApri, &DriverUsbProva::statoBaud, &DriverUsbProva::statoFormato}) {
        BancoUsb b;
        b.usb.*quale = 3;
        EXPECT_FALSE(b.porta.ApriPorta(true));
        EXPECT_EQ(b.Riquadri(), Testi{"Cannot open USB 5520 / 5540"});
        EXPECT_TRUE(b.porta.link.UsbNonDisponibile);
        EXPECT_FALSE(b.porta.Aperta());
        EXPECT_EQ(b.usb.chiamate.back(), "chiudi") << "the handle is let go";
    }
}

TEST(PortaUsb, ADriverThatCannotBeCalledIsToldOnceAndAnAbsentOneNever) {
    for (const bool installato : {true, false}) {
        BancoUsb b;
        b.usb.chiamabile = false;
        b.usb.installato = installato;
        EXPECT_FALSE(b.porta.ApriPorta(true) || b.porta.ApriPorta(true) || b.porta.ChiudiPorta());
        EXPECT_EQ(b.porta.link.UsbNonDisponibile, installato);
        EXPECT_EQ(b.porta.link.DriverUsbSegnalato, installato);
        EXPECT_EQ(b.Riquadri(),
                  installato ? Testi{"Impossible to find FTD2XX.dll\rPlease install USB Driver"}
                             : Testi{});
    }
}

TEST(PortaUsb, ASendOnAClosedLinkOpensItSilently) {
    BancoUsb b;
    EXPECT_TRUE(b.porta.ScriviPorta("#?IDN*"));
    EXPECT_EQ(b.usb.scritti, Testi{"#?IDN*"});
    b.porta.ChiudiPorta();
    b.usb.dispositivi = {};
    EXPECT_FALSE(b.porta.ScriviPorta("#?IDN*"));
    EXPECT_EQ(b.Riquadri(), Testi{});
    EXPECT_EQ(b.usb.scritti.size(), 1u);
}

TEST(PortaUsb, AReadThatSucceedsGivesAllThatWasAskedFor) {
    BancoUsb b;
    b.porta.ApriPorta(true);
    b.usb.Rispondi("abc");
    EXPECT_EQ(b.porta.ByteInCoda(), 3u);
    b.usb.lettiDichiarati = 1;
    EXPECT_EQ(b.porta.LeggiPorta(5), (std::vector<uint8_t>{'a', 'b', 'c', 0, 0}));
    b.usb.Rispondi("xyz");
    EXPECT_EQ(b.porta.LeggiInAccumulo(3), 1u) << "a stream must not be padded";
    b.usb.statoLeggi = 2;
    b.usb.Rispondi("abc");
    EXPECT_EQ(b.porta.LeggiPorta(3).size(), 0u);
    EXPECT_EQ(b.porta.LeggiInAccumulo(3), 0u);
    b.usb.statoCoda = 2;
    b.usb.Rispondi("abc");
    EXPECT_EQ(b.porta.ByteInCoda(), 0u);
    EXPECT_EQ(b.porta.LeggiPorta(0).size(), 0u);
}

TEST(SvuotaUsb, EndsFiftyMillisecondsAfterTheReceiverFellSilent) {
    BancoUsb b;
    b.porta.ApriPorta(true);
    for (int i = 0; i < 10; ++i)
        b.usb.Rispondi("data", 0.03 * i);
    b.porta.SvuotaRicezione();
    EXPECT_NEAR(b.Trascorsi(), 0.27 + 0.05, 1e-9);
    EXPECT_EQ(b.usb.Quante("svuota"), 10u);
    EXPECT_EQ(b.porta.ByteInCoda(), 0u);
}

TEST(SvuotaUsb, LeavesWhenTheUserGivesUpOrThePurgeFails) {
    BancoUsb b;
    b.porta.ApriPorta(true);
    for (int i = 0; i < 100; ++i)
        b.usb.Rispondi("data", 0.03 * i);
    b.ambiente.Fra(0.1, [&] { b.stato.AbbandonaComandi = true; });
    b.porta.SvuotaRicezione();
    EXPECT_NEAR(b.Trascorsi(), 0.1, 0.031);
    b.stato.AbbandonaComandi = false;
    b.usb.statoSvuota = 1;
    b.inizio = b.ambiente.ora += 0.05;
    b.porta.SvuotaRicezione();
    EXPECT_EQ(b.Trascorsi(), 0);
}

} // namespace
} // namespace orvane
