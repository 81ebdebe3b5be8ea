// The prompt for a change of unit, and what follows its answer.
#include <gtest/gtest.h>

#include "aiuto/BancoLink.h"
#include "link/Identificazione.h"

namespace orvane {
namespace {

using namespace prova;

TEST(CambioUnita, TheWordsOfThePrompt) {
    using enum UnitaRichiesta;
    const auto accendi = [](const std::string& unita) {
        return "Switch OFF 5520.\rSwitch ON the extension unit (" + unita +
               "),\rwait a couple of seconds, then switch back ON 5520 and click OK.";
    };
    EXPECT_EQ(TestoCambioUnita(Estesa6GHz, "5540"), accendi("5570"));
    EXPECT_EQ(TestoCambioUnita(Estesa18GHz, ""), accendi("5590"));
    EXPECT_EQ(TestoCambioUnita(Estesa, ""), accendi("5540 or 5570"));
    EXPECT_EQ(TestoCambioUnita(SoloRicevitore, "5570"),
              "             Switch OFF 5520 and 5570\rThen switch back ON 5520 only and click OK.");
}

TEST(CambioUnita, OpensAgainAndIdentifiesAnew) {
    BancoAperto b;
    b.r.modello.EstensioneAttiva = true;
    b.r.modello.UnitaEstensione = 1;
    b.peer.RispondiDa({{"#?IDN*", "IDN=5520-FW - 1.0 x\r\n"}, {"#?BCD*", "BCD=OFF\r\n"}});
    EXPECT_TRUE(ChiediCambioUnita(b.r, UnitaRichiesta::SoloRicevitore, Modalita::Sweep, 1));
    EXPECT_EQ(b.peer.aperture.size(), 2u);
    EXPECT_EQ(b.peer.scritti, (Testi{"#?IDN*", "#?BCD*"}));
    EXPECT_EQ(b.Riquadri(), Testi{TestoCambioUnita(UnitaRichiesta::SoloRicevitore, "5570")});
    EXPECT_EQ(b.ambiente.riquadri[0].icona, Icona::Informazione);
    EXPECT_FALSE(b.r.modello.EstensioneAttiva);
}

TEST(CambioUnita, AFailedOpenAsksUntilTheUserCancels) {
    BancoUsb b;
    b.usb.dispositivi = {};
    b.ambiente.risposte = {Risposta::Ok, Risposta::Riprova, Risposta::Annulla};
    EXPECT_FALSE(ChiediCambioUnita(b.r, UnitaRichiesta::Estesa, Modalita::Sweep, 1));
    EXPECT_TRUE(b.stato.AbbandonaComandi);
    ASSERT_EQ(b.ambiente.riquadri.size(), 3u);
    EXPECT_EQ(b.ambiente.riquadri[1].testo, "Cannot find 5520 / 5540\r on the USB bus.");
    EXPECT_EQ(b.ambiente.riquadri[1].pulsanti, Pulsanti::RiprovaAnnulla);
    EXPECT_EQ(b.usb.Quante("lista"), 8u);
    EXPECT_EQ(b.usb.scritti, Testi{});
}

} // namespace
} // namespace orvane
