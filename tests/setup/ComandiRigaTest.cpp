// Frequency lists, limits, factors, networks and front-end: what is composed for the receiver.
#include <gtest/gtest.h>

#include <filesystem>

#include "aiuto/AmbienteProva.h"
#include "aiuto/CartellaProva.h"
#include "data/TabelleFrequenza.h"
#include "data/TabelleLimFac.h"
#include "setup/ComandoSweep.h"
#include "setup/CommutatoriSweep.h"
#include "setup/FattoriSweep.h"
#include "setup/FrontEndSweep.h"
#include "setup/LimitiSweep.h"
#include "setup/ListaFrequenze.h"
#include "setup/TabellaScan.h"

namespace orvane {
namespace {

using Testi = std::vector<std::string>;

Testi InTesti(const std::vector<ComandoPronto>& comandi) {
    Testi testi;
    for (const ComandoPronto& c : comandi)
        testi.push_back(Componi(c.quale, c.argomenti).Comando);
    return testi;
}

struct Punto {
    float hz;
    int16_t livello;
};

LimFacRecord Curva(const std::vector<Punto>& punti) {
    LimFacRecord curva;
    for (size_t i = 0; i < punti.size(); ++i) {
        curva.Freq[i] = punti[i].hz;
        curva.Value[i] = punti[i].livello;
    }
    return curva;
}

struct ComandiRigaTest : testing::Test {
    void Limite(const char* nome, const std::vector<Punto>& punti) {
        tabelle.slot[kPrimoLimite] = Curva(punti);
        ASSERT_TRUE(SalvaLimFac(s, tabelle, PercorsoLimite(nome), kPrimoLimite));
    }
    void Fattore(const char* nome, const std::vector<Punto>& punti) {
        tabelle.slot[kPrimoFattore] = Curva(punti);
        ASSERT_TRUE(SalvaLimFac(s, tabelle, PercorsoFattore(nome), kPrimoFattore));
    }

    prova::CartellaProva cartella;
    prova::AmbienteProva ambiente;
    Scrivania s{.ambiente = ambiente, .albero = AlberoDati(cartella.Percorso())};
    TabelleLimFac tabelle;
};

TEST(ListaFrequenzeTest, StepsLieBetweenTheTablesFrequenciesAndTheLinesEnds) {
    struct {
        const char* nome;
        std::vector<double> tabella;
        double start, stop;
        int16_t passi;
        std::vector<double> attese;
    } const casi[] = {
        {"no steps: the table's own", {1, 2, 5, 40}, 1.5, 30, 0, {2, 5}},
        {"one step: the ends too", {2, 5}, 1, 30, 1, {1, 2, 5, 30}},
        {"one frequency", {5}, 1, 30, 1, {1, 5, 30}},
        {"one frequency without steps", {5}, 1, 30, 0, {5}},
        {"ends that are in the table", {1, 3}, 1, 3, 2, {1, 2, 3}},
        {"two steps", {2, 4}, 1, 6, 2, {1, 1.5, 2, 3, 4, 5, 6}},
        {"nearer than a hertz", {2, 2.0000009, 3}, 2, 3, 0, {2, 3}},
        {"a hertz apart", {0.15, 0.150001, 0.150002}, 0.1, 1, 0, {0.15, 0.150001, 0.150002}},
        {"the line between two frequencies", {1, 100}, 10, 20, 2, {10, 15, 20}},
        {"an empty table", {}, 1, 30, 9, {}},
        {"a count from a damaged file", {1, 2}, 1, 2, -3, {1, 2}},
    };
    for (const auto& caso : casi) {
        FrequencyTable tabella;
        for (size_t i = 0; i < caso.tabella.size(); ++i)
            tabella.Elementi[i].Freq = caso.tabella[i];
        const ScanLine riga{.Start = caso.start, .Stop = caso.stop, .NumStepFT = caso.passi};
        EXPECT_EQ(CreaElencoFreqTab(tabella, riga), caso.attese) << caso.nome;
    }
}

TEST_F(ComandiRigaTest, ALineByATableSendsItsListOrSaysWhyNot) {
    ScanLine riga{.Start = 1, .Stop = 30, .StepMode = 1, .Step = 0.005, .FreqTable = "Spots"};
    riga.Detector = {1};
    riga.RbwId = 2;
    const auto Prepara = [&] { return PreparaComandoSweep(s, {}, riga); };
    EXPECT_EQ(Prepara().testo, "---");
    EXPECT_EQ(Prepara().obiezione.testo, "Frequency table Spots  NOT FOUND");
    EXPECT_FALSE(s.albero.Esiste("Table\\Spots.5SF")) << "looking for it does not make it";

    FrequencyTable tabella;
    tabella.Elementi[0].Freq = 13.56;
    ASSERT_TRUE(SalvaFreqTab(s, FormaFreqTab::Semplice, PercorsoFreqTab("Spots"), tabella));
    EXPECT_EQ(Prepara().testo, "---");
    EXPECT_EQ(Prepara().obiezione.testo, "Too few table frequencies or too few Steps");
    EXPECT_EQ(InTesti(Prepara().elenco), Testi{"#SSFW 0,13560000*"});

    riga.NumStepFT = 1;
    EXPECT_EQ(Prepara().testo, "#SSFD 1000000;30000000;0;P;0;6;0;OFF;OFF;0*");
    EXPECT_EQ(InTesti(Prepara().elenco),
              (Testi{"#SSFW 0,1000000*", "#SSFW 1,13560000*", "#SSFW 2,30000000*"}));

    // Room for 202, both ends of the line among them.
    for (const auto& [frequenze, troppe] : {std::pair{200, false}, {201, true}}) {
        for (int i = 0; i < frequenze; ++i)
            tabella.Elementi[static_cast<size_t>(i)].Freq = 2 + 0.1 * i;
        ASSERT_TRUE(SalvaFreqTab(s, FormaFreqTab::Semplice, PercorsoFreqTab("Spots"), tabella));
        EXPECT_EQ(Prepara().testo == "---", troppe);
        EXPECT_EQ(Prepara().elenco.size(), troppe ? 0u : 202u);
        EXPECT_EQ(Prepara().obiezione.testo.starts_with("Too many frequencies.\rReduce"), troppe);
    }

    // A file of another length is asked about; the careful answer leaves no list.
    std::filesystem::resize_file(cartella.Percorso() / "Table" / "Spots.5SF", 20);
    EXPECT_EQ(Prepara().testo, "NO_FREQ");
    EXPECT_FALSE(ambiente.riquadri.empty());
    EXPECT_TRUE(Prepara().obiezione.testo.empty()) << "a box has said so already";
}

TEST_F(ComandiRigaTest, LimitsOfOneAndOfTwoSmartDetectors) {
    Limite("QP", {{150e3f, 6600}, {500e3f, 5600}, {500e3f, 6000}, {1e9f, 6000}});
    Limite("AV", {{150e3f, 5600}, {30e6f, 4650}});
    Limite("Far", {{2e9f, 5600}, {3e9f, 5600}});
    Limite("One", {{2e9f, 5600}});
    std::vector<Punto> molti;
    for (int i = 0; i < 17; ++i)
        molti.push_back({1e6f * static_cast<float>(i + 1), 100});
    Limite("Many", molti);
    EXPECT_EQ(InTesti(ComponiLimite(s.albero, {.limite = "QP"}).comandi),
              (Testi{"#SLIW0,150e3;66*", "#SLIW1,500e3;56*", "#SLIW2,500e3;60*",
                     "#SLIW3,1000e6;60*", "#SLIEQP*"}));
    EXPECT_EQ(InTesti(ComponiLimite(s.albero, {.limite = "QP", .dsd = "AV"}).comandi),
              (Testi{"#SLDW0,150e3;66,56*", "#SLDW1,500e3;56,53.84*", "#SLDW2,500e3;60,53.84*",
                     "#SLDW3,30000e3;60,46.5*", "#SLIEQP*"}));
    struct {
        NomiLimite nomi;
        const char* parole;
    } const rifiutati[] = {
        {{.limite = "Many"}, "Too many points in the limit\rMax 16 points"},
        {{.limite = "One"}, "Too few limit frequencies\rMin 2 different frequencies"},
        {{.limite = "Absent"}, "Too few limit frequencies\rMin 2 different frequencies"},
        {{.limite = "QP", .dsd = "Far"}, "Cannot combine the limit"},
    };
    for (const auto& caso : rifiutati) {
        const LimiteComposto composto = ComponiLimite(s.albero, caso.nomi);
        EXPECT_TRUE(composto.comandi.empty());
        EXPECT_EQ(composto.obiezione.testo, caso.parole);
    }
}

TEST(LimitiSweepTest, LimitAndMarginOnlyWhereTheReceiverHasOthers) {
    ScanLine riga{.Margin = 6, .Smart = 1, .Detector = {1, 1}, .LimitOn = 1, .Limit = "QP"};
    LimiteRicevitore ha;
    EXPECT_EQ(DetImpostazioneLimite(riga, ha), (NomiLimite{.limite = "QP"}));
    EXPECT_EQ(DetImpostazioneMargine(riga, ha), 6.0f);
    ha = {.nomi = {.limite = "QP"}, .margine = 6.0f};
    EXPECT_EQ(DetImpostazioneLimite(riga, ha), std::nullopt);
    EXPECT_EQ(DetImpostazioneMargine(riga, ha), std::nullopt);
    riga.LimitDSDOn = 1;
    riga.LimitDSD = "AV";
    riga.Margin = 0;
    EXPECT_EQ(DetImpostazioneLimite(riga, ha), (NomiLimite{.limite = "QP", .dsd = "AV"}));
    EXPECT_EQ(DetImpostazioneMargine(riga, ha), 0.0f) << "the margin of the line before goes";
    riga.Detector = {0, 1};
    EXPECT_EQ(DetImpostazioneLimite(riga, ha), std::nullopt) << "one detector wants one limit";
    riga.Smart = 0;
    riga.Limit = "Other";
    EXPECT_EQ(DetImpostazioneLimite(riga, ha), std::nullopt);
    EXPECT_EQ(DetImpostazioneMargine(riga, ha), std::nullopt);
}

TEST_F(ComandiRigaTest, FactorsInUseBecomeOneTable) {
    Fattore("Cable", {{9e3f, 10}, {30e6f, 210}});
    Fattore("Probe", {{10e6f, 1000}, {20e6f, 1000}});
    s.setup.FactorName = {"Cable", "NONE", "Probe", "", "Cable"};
    s.setup.FactorOn = {1, 1, 1, 1, 0};
    const auto fattori = FattoriInUso(s.albero, s.setup);
    ASSERT_EQ(fattori.size(), 2u);
    const auto punti = UnisciFattori(fattori);
    // At its last point a factor still counts; beyond it no more.
    EXPECT_EQ(punti,
              (std::vector<PuntoFattore>{{9e3f, 10}, {10e6f, 1077}, {20e6f, 1143}, {30e6f, 210}}));
    EXPECT_EQ(InTesti(ComponiCFSweep(punti)),
              (Testi{"#SCFW0,9e3;0.1*", "#SCFW1,10000e3;10.77*", "#SCFW2,20000e3;11.43*",
                     "#SCFW3,30000e3;2.1*", "#SCFE CF_Ext*"}));
    EXPECT_TRUE(ObiezioneAiFattori(fattori, punti.size()).testo.empty());
    EXPECT_TRUE(ObiezioneAiFattori({}, 0).testo.empty());
    EXPECT_EQ(ObiezioneAiFattori(fattori, 1).testo,
              "Too few factor frequencies\rMin 2 different frequencies");
    EXPECT_TRUE(ObiezioneAiFattori(fattori, 499).testo.empty());
    EXPECT_EQ(ObiezioneAiFattori(fattori, 500).testo, "Too many frequencies\rMax 499 frequencies");
}

TEST(ImpostazioniCorsaTest, FollowTheSetUpAndTheGeneratorsPresence) {
    SetupRecord setup{.RefLevel = 80, .PulseLim = 1, .TGLevel = -10.5, .RFOut = 1, .TGFreq = 10.7};
    setup.TGOn = 1;
    EXPECT_EQ(
        InTesti(ComponiImpostazioniCorsa({}, setup)),
        (Testi{"#SDIS80;80*", "#SPLMON*", "#STGSON*", "#STGL-10.5*", "#STGTON*", "#STGF10700e3*"}));
    EXPECT_EQ(InTesti(ComponiImpostazioniCorsa({.Is5520F = true}, setup)),
              (Testi{"#SDIS80;80*", "#SPLMON*", "#STGSON*"}));
}

TEST(CommutatoriTest, CodesOfNetworksByKindAndLine) {
    const int attesi[7][4] = {{-1, -1, -1, -1}, {-1, 0, 4, -1},   {0, 1, 2, 3}, {-1, -1, -1, -1},
                              {0, 1, 2, 3},     {-1, -1, -1, -1}, {0, 1, 2, 0}};
    for (int kind = 0; kind < 7; ++kind)
        for (int linea = 0; linea < 4; ++linea)
            EXPECT_EQ(GetLisnCode(kind, linea), attesi[kind][linea]) << kind << " " << linea;
}

TEST(CommutatoriTest, WhatAPassAsksFor) {
    struct {
        int kind;
        std::vector<std::string> passate; ///< text, then what goes out or what the operator reads
    } const casi[] = {
        {0, {"-L1", "Connect Line L1", "-L3", "Connect Line L3"}},
        {1, {"-L1", "#SUPP0*", "-L3", ""}},
        {2, {"-L1", "#SUPP1*", "-L3", "#SUPP3*"}},
        {3, {"-V", "Switch antenna to Vertical", "-H", "Switch antenna to Horizontal"}},
        {4, {"-X", "#SUPP1*", "-Z", "#SUPP3*"}},
        {5, {"", ""}},
        {6, {"-L1", "#SLSN1*", "-L3", "#SLSN0*"}},
    };
    ScanLine riga;
    riga.LineSwitch = {0, 1, 0, 1};
    riga.Antenna = {1, 1};
    for (const auto& caso : casi) {
        std::vector<std::string> avute;
        for (const PassataSweep& passata : PassateDellaRiga(riga, caso.kind)) {
            const Commutazione c = ComponiCommutazione(riga, caso.kind, passata);
            avute.push_back(c.testo);
            avute.push_back(c.comando ? Componi(c.comando->quale, c.comando->argomenti).Comando
                                      : c.riquadro.testo);
        }
        EXPECT_EQ(avute, caso.passate) << caso.kind;
    }
    EXPECT_EQ(PassateDellaRiga({}, 2), std::vector<PassataSweep>(1)) << "one plain pass";
    EXPECT_EQ(ComponiKRVLisn(riga, 2, 0).comando, std::nullopt) << "a line that is not selected";
}

TEST_F(ComandiRigaTest, TheFrontEndsOptionsNeedTheUnit) {
    s.setup.FiltroHP150 = s.setup.AltaImpedenza = s.setup.RFOut = 1;
    ReceiverModel modello;
    modello.TipoFrontEnd = 1;
    ControllaFiltroAntennaGX2207(modello, s);
    EXPECT_TRUE(ambiente.riquadri.empty());
    EXPECT_EQ(InTesti(ComponiFiltroAntennaGX2207(modello, s.setup)),
              (Testi{"#SIHPON*", "#SMODH*", "#SITG 1*"}));
    ControllaFiltroAntennaGX2207({}, s);
    ASSERT_EQ(ambiente.riquadri.size(), 2u);
    EXPECT_EQ(ambiente.riquadri[0].testo, "HP 150 kHz available only with GX2207 connected");
    EXPECT_EQ(ambiente.riquadri[1].testo, "HiZ receiver available only with GX2207 connected");
    EXPECT_EQ(InTesti(ComponiFiltroAntennaGX2207(modello, s.setup)),
              (Testi{"#SIHPOFF*", "#SMODA*", "#SITG 2*"}));
    EXPECT_TRUE(ComponiFiltroAntennaGX2207({}, s.setup).empty());
}

} // namespace
} // namespace orvane
