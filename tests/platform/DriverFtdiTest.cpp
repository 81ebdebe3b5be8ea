#include <gtest/gtest.h>

#include <numeric>

#include "platform/BusFinto.h"
#include "platform/DriverFtdi.h"
#include "platform/LetturaUsb.h"

namespace orvane {
namespace {

using prova::BusFinto;

class DriverFtdiProva : public testing::Test {
protected:
    DriverFtdiProva() { prova::Bus() = &bus; }
    ~DriverFtdiProva() override {
        driver.reset();
        EXPECT_EQ(bus.Riferimenti(), 0);
        EXPECT_TRUE(bus.aperti.empty());
        EXPECT_TRUE(bus.inVolo.empty());
        prova::Bus() = nullptr;
    }

    void Apri() {
        bus.Aggiungi("FT232R USB UART");
        ASSERT_EQ(driver->Apri("FT232R USB UART", handle), 0U);
    }
    size_t InCoda() {
        size_t quanti = 99;
        EXPECT_EQ(driver->InCoda(handle, quanti), 0U);
        return quanti;
    }
    std::string Leggi(size_t n) {
        std::vector<uint8_t> dove(n);
        size_t letti = 99;
        EXPECT_EQ(driver->Leggi(handle, dove, letti), 0U);
        return {dove.begin(), dove.begin() + static_cast<std::ptrdiff_t>(letti)};
    }

    BusFinto bus;
    SorvegliaLink sorveglia;
    std::unique_ptr<DriverFtdi> driver = std::make_unique<DriverFtdi>(sorveglia);
    HandleUsb handle = kHandleUsbChiuso;
};

TEST_F(DriverFtdiProva, ListsTheDevicesOfTheVendorAlone) {
    bus.Aggiungi("Mouse");
    bus.dispositivi.back().venditore = 0x046D;
    bus.Aggiungi("5520 / 5540");
    bus.Aggiungi("USB <-> Serial");
    bus.dispositivi.back().permesso = false;
    EXPECT_TRUE(driver->Installato());
    uint32_t quanti = 0;
    ASSERT_EQ(driver->ListaNumero(quanti), 0U);
    EXPECT_EQ(quanti, 2U);
    std::string testo;
    EXPECT_EQ(driver->ListaDescrizione(0, testo), 0U);
    EXPECT_EQ(testo, "5520 / 5540");
    EXPECT_NE(driver->ListaDescrizione(1, testo).value(), 0U) << "no permission to ask it";
    EXPECT_NE(driver->ListaDescrizione(2, testo).value(), 0U) << "no such index";
    EXPECT_EQ(testo, "");
    bus.elencabile = false;
    EXPECT_NE(driver->ListaNumero(quanti).value(), 0U);
    EXPECT_EQ(quanti, 0U);
    bus.installato = false; // no call can be made without the library
    DriverFtdi senza(sorveglia);
    EXPECT_FALSE(senza.Installato());
    EXPECT_EQ(senza.ListaNumero(quanti), std::nullopt);
    EXPECT_EQ(senza.ListaDescrizione(0, testo), std::nullopt);
    EXPECT_EQ(senza.Apri("x", handle), std::nullopt);
    EXPECT_EQ(senza.Chiudi(1), std::nullopt);
}

TEST_F(DriverFtdiProva, OpensTheSameDescriptionBeforeOneThatHoldsIt) {
    bus.Aggiungi("Bridge ft232r usb uart rev 2");
    bus.Aggiungi("FT232R USB UART");
    ASSERT_EQ(driver->Apri("FT232R USB UART", handle), 0U);
    EXPECT_EQ(bus.chiamate.front(), "open FT232R USB UART");
    ASSERT_EQ(driver->Apri("FT232R USB uart", handle), 0U);
    EXPECT_EQ(bus.chiamate.back(), "dtr 1 rts 1");
    EXPECT_EQ(
        std::count(bus.chiamate.begin(), bus.chiamate.end(), "open Bridge ft232r usb uart rev 2"),
        1);
    HandleUsb altro = 0;
    bus.Aggiungi("KRV 3360");
    bus.staccato = true; // a device that refuses
    EXPECT_NE(driver->Apri("KRV 3360", altro).value(), 0U);
    EXPECT_EQ(altro, kHandleUsbChiuso);
}

TEST_F(DriverFtdiProva, AnOpeningSetsTheChipAndAClosingLetsItGo) {
    Apri();
    EXPECT_TRUE(sorveglia.senzaAvviso);
    EXPECT_EQ(driver->ImpostaBaud(handle, 115200), 0U);
    EXPECT_EQ(driver->ImpostaCaratteristiche(handle, 8, 0, 0), 0U);
    EXPECT_EQ(driver->ImpostaTrasferimenti(handle, 320, 4096), 0U);
    EXPECT_NE(driver->ImpostaCaratteristiche(handle, 5, 0, 0).value(), 0U);
    EXPECT_EQ(driver->Chiudi(handle), 0U);
    EXPECT_EQ(bus.chiamate, (std::vector<std::string>{"open FT232R USB UART", "latency 2", "flow 0",
                                                      "dtr 1 rts 1", "baud 115200", "line 8 0 0",
                                                      "chunk 4096", "close"}));
    EXPECT_FALSE(sorveglia.senzaAvviso);
    // A handle that was closed, and one of an earlier opening, mean nothing.
    size_t n = 9;
    EXPECT_NE(driver->InCoda(handle, n).value(), 0U);
    const HandleUsb vecchio = handle;
    ASSERT_EQ(driver->Apri("FT232R USB UART", handle), 0U);
    EXPECT_NE(handle, vecchio);
    EXPECT_NE(driver->Chiudi(vecchio).value(), 0U);
    EXPECT_NE(driver->Scrivi(kHandleUsbChiuso, {}, n).value(), 0U);
}

TEST_F(DriverFtdiProva, QueuesWhatComesWithoutTheStatusBytes) {
    Apri();
    EXPECT_EQ(InCoda(), 0U);
    std::string lungo(150, '?');
    std::iota(lungo.begin(), lungo.end(), '\0'); // three packets
    bus.Ricevi("older");
    EXPECT_EQ(driver->Svuota(handle), 0U) << "what the kernel holds too";
    EXPECT_EQ(bus.chiamate.back(), "flush");
    EXPECT_EQ(InCoda(), 0U);
    bus.Ricevi("");
    bus.Ricevi("SFD=OK\r\n");
    bus.Ricevi(lungo);
    EXPECT_EQ(InCoda(), 158U);
    EXPECT_EQ(Leggi(8), "SFD=OK\r\n");
    EXPECT_EQ(Leggi(400), lungo);
    EXPECT_EQ(Leggi(400), "");
}

TEST_F(DriverFtdiProva, BridgesALongSilenceOfItsReaderWithAsManyTransfersAsItIsLent) {
    Apri();
    for (const size_t prestito : {1000u, 3u}) {
        bus.prestito = prestito;
        ASSERT_EQ(driver->Apri("FT232R USB UART", handle), 0U);
        EXPECT_EQ(InCoda(), 0U);
        const size_t inVolo = bus.inVolo.size();
        EXPECT_GE(inVolo, std::min<size_t>(prestito, 100));
        std::string atteso;
        for (int i = 0; i < 100; ++i) {
            bus.Ricevi(std::to_string(i) + ";");
            atteso += std::to_string(i) + ";";
        }
        EXPECT_EQ(Leggi(1000), atteso);
        EXPECT_EQ(bus.inVolo.size(), inVolo) << "and all are out again";
    }
}

TEST_F(DriverFtdiProva, TransfersAreWholePackets) {
    Apri();
    for (const auto& [pacchetto, misura, attesa] :
         {std::array{64U, 320U, 320U}, std::array{64U, 321U, 384U}, std::array{512U, 320U, 512U}}) {
        bus.pacchetto = pacchetto;
        ASSERT_EQ(driver->Apri("FT232R USB UART", handle), 0U);
        EXPECT_EQ(driver->ImpostaTrasferimenti(handle, misura, 4096), 0U);
        ASSERT_FALSE(bus.inVolo.empty());
        EXPECT_EQ(static_cast<unsigned>(bus.inVolo.front()->length), attesa);
    }
}

TEST_F(DriverFtdiProva, WritesAllOrFails) {
    Apri();
    const std::vector<uint8_t> comando = {'#', 'A', 'S', 'B', 'K', '*'};
    size_t scritti = 0;
    EXPECT_EQ(driver->Scrivi(handle, comando, scritti), 0U);
    EXPECT_EQ(scritti, 6U);
    EXPECT_EQ(bus.scritti, comando);
    bus.scrittiAlPiu = 4;
    EXPECT_NE(driver->Scrivi(handle, comando, scritti).value(), 0U);
    EXPECT_EQ(scritti, 4U);
    bus.staccato = true;
    EXPECT_NE(driver->Scrivi(handle, comando, scritti).value(), 0U);
    EXPECT_EQ(scritti, 0U);
}

TEST_F(DriverFtdiProva, APulledDeviceFailsOnceItsBytesAreRead) {
    Apri();
    EXPECT_EQ(InCoda(), 0U);
    bus.Ricevi("last");
    bus.staccato = true;
    EXPECT_EQ(Leggi(100), "last");
    size_t n = 9;
    EXPECT_NE(driver->InCoda(handle, n).value(), 0U);
    EXPECT_EQ(n, 0U);
    EXPECT_NE(driver->Svuota(handle).value(), 0U);
    EXPECT_NE(driver->Chiudi(handle).value(), 0U);
    EXPECT_FALSE(sorveglia.senzaAvviso);
}

TEST_F(DriverFtdiProva, OneTransferThatFailsIsNoEnd) {
    Apri();
    EXPECT_EQ(InCoda(), 0U);
    bus.arrivi.push_back({.grezzi = {}, .stato = LIBUSB_TRANSFER_ERROR});
    bus.Ricevi("on");
    EXPECT_EQ(Leggi(10), "on");
    for (int i = 0; i < 20; ++i)
        bus.arrivi.push_back({.grezzi = {}, .stato = LIBUSB_TRANSFER_ERROR});
    size_t n = 9;
    EXPECT_NE(driver->InCoda(handle, n).value(), 0U) << "one error behind the other is one";
}

} // namespace
} // namespace orvane
