#include "console/Console.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "aiuto/BancoSimulato.h"
#include "base/Testo.h"
#include "console/Archivio.h"
#include "console/Titolo.h"
#include "link/Comandi.h"
#include "link/Protocollo.h"
#include "setup/TabellaScan.h"

namespace orvane {
namespace {

using prova::BancoSimulato;

/// Notes what the modes tell the main window, and serves `TimerTask` as a window would.
struct VistaModi : VistaConsole {
    std::vector<std::string> detto;
    std::string titolo;
    bool timer = false;
    bool terminato = false;

    void MostraTitolo(const std::string& testo) override { titolo = testo; }
    void MostraScheda(Modalita m) override { Nota("tab", m); }
    void DisabilitaMenu() override { detto.push_back("menus off"); }
    void EntraArchivio() override { detto.push_back("archive"); }
    void EntraSweep() override { detto.push_back("sweep"); }
    void EntraModoVivo(Modalita m) override { Nota("live", m); }
    void PulisciQuadro() override {}
    void ChiudiFinestreAusiliarie() override {}
    void AbilitaTimerTask() override { timer = true; }
    void TerminaProcesso() override { terminato = true; }
    void MostraStato(const std::string& testo) override { detto.push_back("status " + testo); }

    bool Detto(const std::string& testo) const {
        return std::find(detto.begin(), detto.end(), testo) != detto.end();
    }

private:
    void Nota(const char* cosa, Modalita m) {
        detto.push_back(cosa + std::string(" ") + std::to_string(static_cast<int>(m)));
    }
};

struct ConsoleTest : testing::Test {
    explicit ConsoleTest(const char* modello = "5520") : banco({.modello = modello}) {}

    /// The main loop: serves the timer until nothing is left to do.
    void Giro() {
        for (int i = 0; i < 50 && vista.timer; ++i) {
            vista.timer = false;
            TimerTask_Timer(console);
        }
    }

    BancoSimulato banco;
    VistaModi vista;
    StatoConsole stato;
    Console console{banco.scrivania, banco.ricevitore, banco.scan, banco.corsa, stato, vista};
};

TEST_F(ConsoleTest, StartsOnTheArchiveWithoutALink) {
    AvviaDati(banco.scrivania, banco.porta.link, banco.scan);
    VisualizzazioneIniziale(console);
    EXPECT_TRUE(vista.Detto("archive"));
    EXPECT_FALSE(banco.porta.Aperta());
    EXPECT_TRUE(banco.simulato.Comandi().empty());
    EXPECT_EQ(banco.porta.link.TipoLink, 1);
    EXPECT_TRUE(banco.ambiente.riquadri.empty());
}

TEST_F(ConsoleTest, ALiveModeIdentifiesTheReceiverAndLeavesItQuiet) {
    VisualizzazioneIniziale(console);
    ClickSSTabMode(console, Modalita::Analyzer);
    EXPECT_TRUE(vista.Detto("live 2"));
    EXPECT_TRUE(banco.porta.Aperta());
    const auto& comandi = banco.simulato.Comandi();
    ASSERT_GE(comandi.size(), 3u);
    EXPECT_EQ(comandi[0], "#ASBK*");
    EXPECT_EQ(comandi[1], "#?IDN*");
    EXPECT_EQ(comandi.back(), "#SCFA -1*");
    EXPECT_TRUE(Contiene(vista.titolo, "Panel: ")) << vista.titolo;
    ClickSSTabMode(console, Modalita::SweepsArchive);
    EXPECT_FALSE(Contiene(vista.titolo, "Panel")) << vista.titolo;
    EXPECT_EQ(comandi.back(), "#SSTP*");
    EXPECT_FALSE(banco.porta.Aperta());
    EXPECT_EQ(stato.modalita, Modalita::SweepsArchive);
}

TEST_F(ConsoleTest, RedoLeadsFromTheArchiveToItsScanTableWithTheOperatorsSetUp) {
    Scrivania& s = banco.scrivania;
    AvviaDati(s, banco.porta.link, banco.scan);
    SweepHeader header{.Setup = SetupDefault()};
    header.Setup.SommaFact = 1;
    ImpostaBanda(header.Scan.Righe[0], TabellaBande()[1], 0);
    ASSERT_TRUE(SalvaHeaderSweep(s, PercorsoKSH("Lamp"), header.Scan, header.Setup));
    VisualizzazioneIniziale(console);
    EXPECT_EQ(stato.archivio.misura.nome, "Lamp");
    EXPECT_EQ(s.setup.SommaFact, 1);
    ASSERT_TRUE(RedoDaMeasureAScanTab(console));
    EXPECT_EQ(stato.modalita, Modalita::Sweep);
    EXPECT_EQ(s.env.ScanPanelPath, "Panels\\Lamp.EST");
    EXPECT_EQ(banco.scan.Righe[0].Stop, header.Scan.Righe[0].Stop);
    EXPECT_EQ(s.setup.SommaFact, 0);
    EXPECT_FALSE(s.NoSaveSetup);
    EXPECT_FALSE(stato.archivio.attivo);
}

TEST_F(ConsoleTest, AnotherTabDuringARetryingStartLeadsThere) {
    banco.simulato.Aggiungi({.tipo = Capriccio::Tipo::Muto});
    VisualizzazioneIniziale(console);
    banco.ambiente.Fra(20, [this] { ClickSSTabMode(console, Modalita::Sweep); });
    ClickSSTabMode(console, Modalita::Analyzer);
    Giro();
    EXPECT_EQ(stato.modalita, Modalita::Sweep);
    EXPECT_FALSE(banco.vista.strisciaVisibile);
    EXPECT_FALSE(banco.porta.Aperta());
}

TEST_F(ConsoleTest, TheExitBoxEndsTheRunFirstAndThenTheProcessOrLeavesItRunning) {
    ImpostaBanda(banco.scan.Righe[0], TabellaBande()[1], 0);
    for (const Risposta risposta : {Risposta::Annulla, Risposta::Ok}) {
        const bool esce = risposta == Risposta::Ok;
        banco.ambiente.riquadri.clear();
        banco.ambiente.risposte = {risposta};
        banco.vista.alPasso = [&, chiesto = false]() mutable {
            if (!std::exchange(chiesto, true))
                ChiediUscita(console);
            TimerTask_Timer(console);
            EXPECT_FALSE(vista.terminato) << "the run is still on the stack";
        };
        stato.modalita = Modalita::Sweep;
        EXPECT_EQ(ClickExecuteSweep(banco.corsa, esce ? "N" : "M"),
                  esce ? EsitoCorsa::Abbandonata : EsitoCorsa::Compiuta);
        EXPECT_EQ(banco.ambiente.riquadri.at(0).testo, "Are You Sure You Want To Exit?");
        EXPECT_EQ(stato.ChiusuraInCorso, esce);
    }
    EXPECT_EQ(banco.simulato.Comandi().back(), "#ASBK*");
    Giro();
    EXPECT_TRUE(vista.terminato);
    EXPECT_FALSE(banco.porta.Aperta());
    EXPECT_EQ(banco.File("Sweep\\N\\N.KSH").size(), 17770u);
}

TEST_F(ConsoleTest, TheAbortInALiveModeLeadsBackToTheArchive) {
    VisualizzazioneIniziale(console);
    ClickSSTabMode(console, Modalita::Analyzer);
    ClickCMBAbort(console);
    Giro();
    EXPECT_EQ(stato.modalita, Modalita::SweepsArchive);
    // The next entry starts afresh.
    ClickSSTabMode(console, Modalita::Analyzer);
    EXPECT_EQ(stato.modalita, Modalita::Analyzer);
}

TEST_F(ConsoleTest, AModeThatCannotStartFallsBackToTheArchive) {
    banco.simulato.Aggiungi({.tipo = Capriccio::Tipo::Scollegato});
    const std::string via = "#?IDN*";
    banco.simulato.Riceve({reinterpret_cast<const uint8_t*>(via.data()), via.size()}, 0);
    ASSERT_TRUE(banco.simulato.Scollegato());
    VisualizzazioneIniziale(console);
    ClickSSTabMode(console, Modalita::Manual);
    EXPECT_EQ(stato.modalita, Modalita::SweepsArchive);
    EXPECT_FALSE(banco.porta.link.PortaNonDisponibile);
    EXPECT_FALSE(vista.Detto("live 3"));
}

TEST_F(ConsoleTest, ClosingWhileASetterRetriesEndsTheProcess) {
    banco.simulato.Aggiungi({.tipo = Capriccio::Tipo::Muto, .comando = "SCFA"});
    banco.ambiente.risposte = {Risposta::Ok};
    banco.ambiente.Fra(20, [this] { ChiediUscita(console); });
    VisualizzazioneIniziale(console);
    ClickSSTabMode(console, Modalita::Analyzer);
    Giro();
    EXPECT_TRUE(vista.terminato);
    EXPECT_FALSE(banco.porta.Aperta());
}

TEST(Titolo, ShowsPanelModelAndLinkWhereTheyBelong) {
    const ParteTitolo parte{.modalita = Modalita::Analyzer,
                            .pannello = "Untitled",
                            .modello = "5520/K6X",
                            .descrizione = " (USB)"};
    const std::string dieci(10, ' ');
    const std::string pieno = ComponiTitolo(parte, "/INFOMOD /INFOCOMUSB");
    EXPECT_TRUE(pieno.starts_with("Orvane Console" + dieci + "Rel. ")) << pieno;
    EXPECT_TRUE(pieno.ends_with(dieci + "Panel: Untitled" + dieci + "5520/K6X (USB)")) << pieno;
    EXPECT_TRUE(ComponiTitolo(parte, "/infomod").ends_with("Panel: Untitled"));
    ParteTitolo archivio = parte;
    archivio.modalita = Modalita::SweepsArchive;
    EXPECT_EQ(ComponiTitolo(archivio, "/INFOMOD").find("Panel"), std::string::npos);
}

} // namespace
} // namespace orvane
