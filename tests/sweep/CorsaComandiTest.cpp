// What a run says to the receiver, line by line: it is what is composed without a run.
#include <gtest/gtest.h>

#include <algorithm>

#include "aiuto/BancoSimulato.h"
#include "data/TabelleFrequenza.h"
#include "data/TabelleLimFac.h"
#include "link/Identificazione.h"
#include "setup/ComandiScan.h"
#include "setup/FattoriSweep.h"
#include "setup/FrontEndSweep.h"
#include "setup/ListaFrequenze.h"

namespace orvane {
namespace {

using prova::BancoSimulato;
using prova::Banda;
using Testi = std::vector<std::string>;

void Salva(BancoSimulato& banco, const std::string& percorso, int slot,
           const std::vector<std::pair<float, int16_t>>& punti) {
    TabelleLimFac tabelle;
    for (size_t i = 0; i < punti.size(); ++i)
        std::tie(tabelle.slot[static_cast<size_t>(slot)].Freq[i],
                 tabelle.slot[static_cast<size_t>(slot)].Value[i]) = punti[i];
    ASSERT_TRUE(SalvaLimFac(banco.scrivania, tabelle, percorso, slot));
}

/// Plain, Smart, Double Smart, by a frequency table, and Smart again.
void MettiCinqueRighe(BancoSimulato& banco) {
    Salva(banco, PercorsoLimite("QP"), kPrimoLimite, {{150e3f, 6600}, {30e6f, 5600}});
    Salva(banco, PercorsoLimite("AV"), kPrimoLimite, {{150e3f, 5600}, {30e6f, 4600}});
    FrequencyTable tabella;
    tabella.Elementi[0].Freq = 1;
    tabella.Elementi[1].Freq = 2;
    ASSERT_TRUE(
        SalvaFreqTab(banco.scrivania, FormaFreqTab::Semplice, PercorsoFreqTab("Spots"), tabella));
    auto& righe = banco.scan.Righe;
    righe[0] = Banda("B", "P,Q");
    righe[1] = Banda("B", "Q");
    righe[1].Smart = righe[1].LimitOn = 1;
    righe[1].Limit = "QP";
    righe[1].Margin = 6;
    righe[2] = righe[1];
    righe[2].Detector = *LeggiDetector("Q,A");
    righe[2].LimitDSDOn = 1;
    righe[2].LimitDSD = "AV";
    righe[2].HoldTimeSD = 100;
    righe[3] = Banda("B", "P");
    righe[3].StepMode = 1;
    righe[3].FreqTable = "Spots";
    righe[3].NumStepFT = 2;
    righe[4] = righe[2];
    righe[4].Margin = 0;
    for (size_t i = 0; i < 5; ++i)
        righe[i].Stop = 3;
}

/// Without what only asks, and without what begins a run and reads it.
Testi SoloImpostazioni(const Testi& comandi) {
    Testi rimasti;
    std::copy_if(comandi.begin(), comandi.end(), std::back_inserter(rimasti),
                 [](const std::string& c) { return c[1] != '?' && c != "#ASBK*"; });
    return rimasti;
}

Testi Composti(BancoSimulato& banco) {
    const ScanComposto scan =
        ComponiScan(banco.scrivania, banco.ricevitore.modello, banco.scan.Righe);
    EXPECT_TRUE(scan.intero);
    Testi comandi = scan.corsa;
    for (const PassataComposta& passata : scan.passate)
        comandi.insert(comandi.end(), passata.comandi.begin(), passata.comandi.end());
    return SoloImpostazioni(comandi);
}

TEST(CorsaComandiTest, EachLineGetsItsLimitMarginAndListAheadOfItsCommand) {
    BancoSimulato banco;
    MettiCinqueRighe(banco);
    banco.scrivania.setup.RFOut = 1;
    banco.ambiente.risposte = {Risposta::Si}; // the lines overlap
    ASSERT_EQ(ClickExecuteSweep(banco.corsa, "M"), EsitoCorsa::Compiuta);
    const Testi mandati = SoloImpostazioni(banco.simulato.Comandi());
    const Testi attesi = {"#SCFA -1*",
                          "#SDIS80;65*",
                          "#SPLMOFF*",
                          "#STGSON*",
                          "#STGL0*",
                          "#STGTOFF*",
                          "#STGF0e3*",
                          "#SSFD 150000;3000000;5000;PQ;1.9;6;10;OFF;ON;0*",
                          "#SLIW0,150e3;66*",
                          "#SLIW1,30000e3;56*",
                          "#SLIEQP*",
                          "#SLIM6*",
                          "#SSFD 150000;3000000;5000;SQ;1.9;6;10;OFF;ON;0*",
                          "#SLDW0,150e3;66,56*",
                          "#SLDW1,30000e3;56,46*",
                          "#SLIEQP*",
                          "#SSFD 150000;3000000;5000;SQA;1.9;6;10;OFF;ON;100*",
                          "#SSFW 0,150000*",
                          "#SSFW 1,575000*",
                          "#SSFW 2,1000000*",
                          "#SSFW 3,1500000*",
                          "#SSFW 4,2000000*",
                          "#SSFW 5,2500000*",
                          "#SSFW 6,3000000*",
                          "#SSFD 150000;3000000;0;P;1.9;6;10;OFF;ON;0*",
                          "#SLIM0*",
                          "#SSFD 150000;3000000;5000;SQA;1.9;6;10;OFF;ON;100*"};
    EXPECT_EQ(mandati, attesi);
    EXPECT_EQ(Composti(banco), attesi);

    // The steps of a table are stored as they came, and found again at its frequencies.
    EXPECT_EQ(banco.File(PercorsoRS("M", "M", 3)).size(), 7 * kByteCampione);
    ScanTable sola{};
    sola[3] = banco.scan.Righe[3];
    const SweepTrace traccia =
        CreaTracciaSweep(banco.scrivania, "M", "M", sola, DetectorKind::Peak,
                         {.frequenza = FrequenzeDaTabella(banco.scrivania.albero)});
    ASSERT_EQ(traccia.size(), 7u);
    EXPECT_EQ(traccia[1].freqMhz, 0.575);
    EXPECT_EQ(traccia[6].freqMhz, 3);
}

TEST(CorsaComandiTest, EveryModelIsToldWhatIsComposedForIt) {
    struct {
        const char* modello;
        const char* comando; ///< of the line
    } const casi[] = {
        {"5520+5590", "#SSFD 6001000000;7000000000;1000000;P;10;9;10;OFF;OFF;0*"},
        {"K3X", "#SSFD 150000;3000000;5000;P;10;6;10;OFF;ON;0*"},
        {"3360/01", "#SSFD 150000;3000000;5000;P;10;6;10;OFF;OFF;0*"},
        {"5520F", "#SSFDS 150000;3000000;10000;P;10;6;10;OFF;ON;0*"},
        {"5520+GX2207", "#SSFD 150000;3000000;5000;P;10;6;10;OFF;ON;0*"},
        {"GX2207F", "#SSFD 150000;3000000;5000;P;10;6;10;OFF;ON;0*"},
        {"GX2207", "#SSFD 150000;3000000;5000;P;10;6;10;OFF;ON;0*"},
    };
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.modello);
        BancoSimulato banco({.modello = caso.modello});
        ScanLine& riga = banco.scan.Righe[0] = Banda("B", "P");
        riga.Stop = 3;
        riga.HoldTime = 10;
        riga.PreSel = std::string_view(caso.modello) != "3360/01";
        if (std::string_view(caso.modello) == "5520F") {
            riga.AutoStep = 0;
            riga.Step = 0.01;
        }
        if (std::string_view(caso.modello) == "5520+5590")
            riga = {.PreSel = 1,
                    .Start = 6001,
                    .Stop = 7000,
                    .Step = 1,
                    .MinAtt = 1,
                    .HoldTime = 10,
                    .Detector = {1}};
        ASSERT_EQ(ClickExecuteSweep(banco.corsa, "M"), EsitoCorsa::Compiuta);
        const Testi mandati = SoloImpostazioni(banco.simulato.Comandi());
        EXPECT_EQ(mandati.back(), caso.comando);
        EXPECT_EQ(mandati, Composti(banco));
    }
}

TEST(CorsaComandiTest, ALineThatCannotBeSentEndsTheRun) {
    ScanLine senzaTabella = Banda("B", "P"), senzaLimite = senzaTabella;
    senzaTabella.FreqTable = senzaLimite.Limit = "None";
    senzaTabella.StepMode = senzaLimite.Smart = senzaLimite.LimitOn = 1;
    for (const auto& [riga, parole] :
         {std::pair{senzaTabella, "Frequency table None  NOT FOUND"},
          {senzaLimite, "Too few limit frequencies\rMin 2 different frequencies"}}) {
        SCOPED_TRACE(parole);
        BancoSimulato banco;
        banco.scan.Righe[0] = riga;
        // Whether a check finds it or the run: no sweep begins.
        EXPECT_NE(ClickExecuteSweep(banco.corsa, "M"), EsitoCorsa::Compiuta);
        ASSERT_FALSE(banco.ambiente.riquadri.empty());
        EXPECT_EQ(banco.Quanti("#SSFD"), 0u);
        const ScanComposto scan =
            ComponiScan(banco.scrivania, banco.ricevitore.modello, banco.scan.Righe);
        EXPECT_FALSE(scan.intero);
        ASSERT_EQ(scan.obiezioni.size(), 1u);
        EXPECT_EQ(scan.obiezioni[0].testo, parole);
    }
}

TEST(CorsaComandiTest, FactorsGoIntoTheReceiverOrTheRunIsRefused) {
    BancoSimulato banco;
    Salva(banco, PercorsoFattore("Cable"), kPrimoFattore, {{9e3f, 10}, {1e9f, 210}});
    banco.scrivania.setup.FactorName[2] = "Cable";
    banco.scrivania.setup.FactorOn[2] = 1;
    ASSERT_TRUE(banco.porta.ApriPorta(true));
    ASSERT_TRUE(ImpostaCFSweep(banco.ricevitore, banco.scrivania));
    EXPECT_EQ(banco.simulato.Comandi(),
              (Testi{"#SCFA -1*", "#SCFW0,9e3;0.1*", "#SCFW1,1000e6;2.1*", "#SCFE CF_Ext*"}));
    EXPECT_EQ(banco.simulato.Tabella("CFE", 0), (Testi{"CF_Ext", "9e3;0.1", "1000e6;2.1"}));
    banco.simulato.Aggiungi({.tipo = Capriccio::Tipo::Rifiuto, .comando = "SCFW1"});
    EXPECT_FALSE(ImpostaCFSweep(banco.ricevitore, banco.scrivania));
    ASSERT_EQ(banco.ambiente.riquadri.size(), 1u);
    EXPECT_EQ(banco.ambiente.riquadri[0].testo, "Could not store\rConversion Factor");
    EXPECT_EQ(banco.simulato.Comandi().back(), "#SCFW1,1000e6;2.1*") << "and no name behind it";
}

TEST(CorsaComandiTest, TheFastFrontEndGoesToFFTForAnFFTLineOnly) {
    BancoSimulato banco({.modello = "GX2207F"});
    ASSERT_TRUE(banco.porta.ApriPorta(true));
    LeggiModello(banco.ricevitore, Modalita::Sweep, 1);
    struct {
        const char* banda;
        const char* comando;
        const char* errore;
    } const casi[] = {{"A", "#SOFF*", "Error Set FFT"}, {"B", "#CHGS*", "Error Set Swept"}};
    for (const auto& caso : casi) {
        ScanTable tabella{};
        tabella[0] = Banda(caso.banda, "P");
        banco.simulato.DimenticaComandi();
        banco.simulato.Scorda();
        EXPECT_TRUE(ControllaGX2207FFTSwept(banco.ricevitore, tabella));
        const Testi comandi = banco.simulato.Comandi();
        ASSERT_GE(comandi.size(), 2u);
        EXPECT_EQ(comandi[0], caso.comando);
        EXPECT_EQ(comandi[1], "#?IDN*") << "who it is now";
        banco.simulato.Aggiungi({.tipo = Capriccio::Tipo::Muto, .comando = caso.comando});
        EXPECT_FALSE(ControllaGX2207FFTSwept(banco.ricevitore, tabella));
        EXPECT_EQ(banco.ambiente.riquadri.back().testo, caso.errore);
    }
    banco.ricevitore.modello.TipoFrontEnd = 2;
    banco.simulato.DimenticaComandi();
    EXPECT_TRUE(ControllaGX2207FFTSwept(banco.ricevitore, {}));
    EXPECT_TRUE(banco.simulato.Comandi().empty());
}

} // namespace
} // namespace orvane
