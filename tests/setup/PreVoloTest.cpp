#include "setup/PreVolo.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "setup/CatenaControlli.h"
#include "setup/PreVoloProva.h"

namespace orvane {
namespace {

using Prova = prova::BancoPreVolo;
using enum ColonnaScan;

TEST(PreVolo, FiveLimitsPassAndSixAsk) {
    Prova p("5520");
    for (size_t i = 0; i < 6; ++i) {
        ScanLine& riga = p.Riga(i, 1.0 + static_cast<double>(i), 2.0 + static_cast<double>(i));
        riga.LimitOn = 1;
        riga.Limit = "L" + std::to_string(i);
    }
    p.scan.Righe[5].Limit = "l0"; // the same file
    EXPECT_TRUE(p.Controlla());
    EXPECT_TRUE(p.ambiente.riquadri.empty());
    p.scan.Righe[0].LimitDSDOn = 1;
    p.scan.Righe[0].LimitDSD = "Another";
    EXPECT_FALSE(p.Controlla());
    EXPECT_EQ(p.ambiente.riquadri.back().testo, " More than 5 limits\rProceed anyway?");
    p.ambiente.risposte = {Risposta::Si};
    EXPECT_TRUE(p.Controlla());
}

TEST(PreVolo, TheChainIsWholeAndInOrder) {
    std::vector<int> numeri;
    for (const VoceControllo& voce : CatenaControlli()) {
        EXPECT_TRUE(voce.esamina || voce.agisci) << voce.nome;
        EXPECT_FALSE((voce.correggi || voce.correggiSetup) && !voce.esamina) << voce.nome;
        numeri.push_back(voce.numero);
    }
    EXPECT_TRUE(std::is_sorted(numeri.begin(), numeri.end()));
    numeri.erase(std::unique(numeri.begin(), numeri.end()), numeri.end());
    EXPECT_EQ(numeri.size(), 37u);
}

TEST(PreVolo, ACorrectionIsStoredAndSeenByLaterChecks) {
    // 400 kHz replaces a step of 1 MHz; what the user wrote is kept for the header.
    Prova p("K3X", 30, 300);
    ScanLine& riga = p.scan.Righe[0];
    riga.PreSel = riga.AutoStep = 0;
    riga.Step = 1;
    ASSERT_TRUE(p.Controlla());
    EXPECT_EQ(p.ambiente.riquadri.size(), 1u);
    EXPECT_EQ(riga.Step, 0.4);
    EXPECT_EQ(riga.StepOriginal, 1.0);
    ScanRecord disco;
    ASSERT_TRUE(CaricaPanelEST(p.scrivania, p.scrivania.env.ScanPanelPath, disco));
    EXPECT_EQ(disco.Righe[0].Step, 0.4);

    // Yes selects both lines of the network; a radiated line then loses them again, and stops.
    p.setup.AncillaryKind = 1;
    riga.LineSwitch = {1, 0, 0, 0};
    p.ambiente.risposte = {Risposta::Si};
    EXPECT_FALSE(p.Controlla());
    EXPECT_EQ(p.ambiente.riquadri.back().testo, "L2 KRV not available with this setup");
    EXPECT_EQ(riga.LineSwitch, (std::array<int16_t, 4>{}));
    EXPECT_EQ(p.motivo, "refused: a network on a line that cannot have it");
}

TEST(PreVolo, AnUnusedLineIsSqueezedOutBeforeOthersLook) {
    Prova p("5520+5590", 7000, 8000);
    p.Riga(3, 9000, 9500).PreSel = 0;
    ASSERT_TRUE(p.Controlla());
    EXPECT_EQ(p.scan.Righe[1].Start, 9000);
    EXPECT_EQ(p.scan.Righe[1].PreSel, 1);
    EXPECT_EQ(p.vista.celleErrate, (std::vector<std::pair<int, ColonnaScan>>{{1, PreSel}}));
}

TEST(PreVolo, ANoStopsAtOnceOrGoesOnWithoutTheRepair) {
    Prova p("5520", 0.009, 0.15);
    p.Smart(0, "L").HoldTimeSD = 60;
    p.Curva("L", 4);
    EXPECT_TRUE(p.Controlla());
    EXPECT_EQ(p.ambiente.riquadri.size(), 1u);
    EXPECT_EQ(p.scan.Righe[0].HoldTimeSD, 60);
    p.ambiente.risposte = {Risposta::Si};
    EXPECT_TRUE(p.Controlla());
    EXPECT_EQ(p.scan.Righe[0].HoldTimeSD, 0);

    p.Riga(1, 0.15, 10);
    p.Riga(2, 5, 20);
    p.Riga(3, 20, 20.00001); // would stop later, at its step: earlier words come first
    p.ambiente.riquadri.clear();
    EXPECT_FALSE(p.Controlla());
    ASSERT_EQ(p.ambiente.riquadri.size(), 1u);
    EXPECT_TRUE(p.ambiente.riquadri[0].testo.ends_with("Too small Span"));
    EXPECT_EQ(p.vista.celleErrate.back(), (std::pair<int, ColonnaScan>{3, Stop}));
    p.scan.Righe[3] = {};
    EXPECT_FALSE(p.Controlla());
    EXPECT_EQ(p.motivo, "refused: overlapping lines");
}

TEST(PreVolo, TheSwitchLetsAFrequencyErrorGo) {
    Prova p("5520", 19000, 20000);
    EXPECT_FALSE(p.Controlla());
    p.ambiente.riga = "orvane /NOCONTFREQ sweep";
    const auto trovati = p.Guarda();
    ASSERT_FALSE(trovati.empty());
    EXPECT_EQ(trovati[0].numero, 8);
    EXPECT_FALSE(Rifiuta(trovati[0]));
    EXPECT_FALSE(trovati[0].corretto);
    EXPECT_TRUE(p.Controlla());
}

TEST(PreVolo, TheSetupIsPutRightInSilence) {
    struct {
        const char* modello;
        int16_t rfOut, tracking, pulseLim;
    } casi[] = {{"5520", 1, 1, 0},
                {"3360", 0, 0, 0},
                {"5520F", 0, 0, 0},
                {"GX2207", 1, 1, 1},
                {"T4470K", 1, 0, 0}};
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.modello);
        Prova p(caso.modello);
        p.scan.Righe[0].PreSel = 0;
        p.setup.RFOut = p.setup.TGOn = p.setup.PulseLim = 1;
        p.ambiente.risposte = {Risposta::Ok};
        ASSERT_TRUE(p.Controlla()) << p.motivo;
        EXPECT_EQ(p.setup.RFOut, caso.rfOut);
        EXPECT_EQ(p.setup.TGOn, caso.tracking);
        EXPECT_EQ(p.setup.PulseLim, caso.pulseLim);
    }
    Prova p("GX2207");
    p.setup.RFOut = 1;
    EXPECT_FALSE(p.Controlla()); // Cancel
    EXPECT_EQ(p.setup.TGOn, 0);
}

TEST(PreVolo, AMastTableRunHasRulesOfItsOwn) {
    Prova p("5520");
    p.setup.AncillaryKind = 5;
    const auto batteria = [&](const std::string& livello) {
        p.simulato.Aggiungi({.tipo = Capriccio::Tipo::Testo,
                             .comando = "?BAT",
                             .volte = 1,
                             .testo = "BAT=" + livello + ";0"});
    };
    batteria("19");
    EXPECT_FALSE(p.Controlla());
    EXPECT_EQ(p.ambiente.riquadri.back().testo, "5520 battery low. Do you want to continue?");
    for (const char* livello : {"20", "FULL", "Charging"}) {
        batteria(livello);
        EXPECT_TRUE(p.Controlla()) << livello;
    }
    p.Smart(0, "L");
    p.Curva("L", 4);
    EXPECT_FALSE(p.Controlla());
    EXPECT_EQ(p.ambiente.riquadri.back().testo, "Smart Detector not available with Mast-Table");
    p.Riga(0, 0.15, 1);
    p.Riga(1, 1, 2);
    EXPECT_FALSE(p.Controlla());
    EXPECT_EQ(p.ambiente.riquadri.back().testo, "Mast-Table permits a single line scan-table");
    p.setup.AncillaryKind = 0;
    EXPECT_FALSE(p.Controlla(kSoloControlli));
    EXPECT_EQ(p.motivo, "refused: the checks alone were asked for");
}

TEST(PreVolo, ALookChangesNothingAndGoesToTheEnd) {
    Prova p("5520+5590", 7000, 8000);
    ScanLine& riga = p.scan.Righe[0];
    riga.PreSel = 0;
    riga.MinAtt = 5;
    riga.Detector = *LeggiDetector("P,N");
    p.m.ConRmsAvg = false;
    p.Riga(1, 7500, 8500);
    const size_t comandi = p.simulato.Comandi().size();
    std::vector<int> numeri;
    for (const Riscontro& r : p.Guarda())
        numeri.push_back(r.numero);
    // The filter does not go with Rms-Avg either.
    EXPECT_EQ(numeri, (std::vector<int>{10, 12, 16, 17, 21}));
    EXPECT_EQ(riga.PreSel, 0);
    EXPECT_EQ(p.simulato.Comandi().size(), comandi);
    EXPECT_TRUE(p.ambiente.riquadri.empty());
    EXPECT_FALSE(p.scrivania.albero.Esiste(p.scrivania.env.ScanPanelPath));
}

TEST(PreVolo, NothingIsSentBehindAStop) {
    Prova p("5520");
    p.scan.Righe[0].MinAtt = 5;
    const size_t prima = p.simulato.Comandi().size();
    EXPECT_FALSE(p.Controlla());
    const std::vector<std::string> inviati(p.simulato.Comandi().begin() +
                                               static_cast<std::ptrdiff_t>(prima),
                                           p.simulato.Comandi().end());
    EXPECT_EQ(inviati, (std::vector<std::string>{"#ASBK*", "#?IDN*", "#?BCD*", "#?MIL*", "#?CRA*",
                                                 "#?S/N*"}));
    p.scan.Righe[0].MinAtt = 1;
    EXPECT_TRUE(p.Controlla());
    EXPECT_EQ(p.simulato.Comandi().back(), "#SCFA -1*");
}

} // namespace
} // namespace orvane
