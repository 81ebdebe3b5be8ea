// What the settings window of a scan line shows and decides, its fields as text, and the keys.
#include "setup/ModuloScan.h"

#include <gtest/gtest.h>

#include "aiuto/CartellaProva.h"
#include "records/FreqTableRecord.h"
#include "records/LimFacRecord.h"
#include "setup/CampiRiga.h"
#include "setup/ModificaTabella.h"
#include "setup/TastiScan.h"

namespace orvane::prova {
namespace {

using enum Cornice;

struct ModuloScanTest : ::testing::Test {
    CartellaProva cartella;
    AlberoDati albero{cartella.Percorso()};

    ModuloScanTest() {
        albero.AssicuraCartella("Limits\\");
        albero.AssicuraCartella("Table\\");
        for (const int16_t lineare : {0, 1}) {
            LimFacRecord limite{.LinFreq = lineare};
            limite.Freq = {150e3f, 30e6f};
            const auto byte = ScriviRecord(limite);
            EXPECT_TRUE(albero.Salva(lineare ? "Limits\\Lin.5SL" : "Limits\\Log.5SL", byte));
        }
        EXPECT_TRUE(albero.Salva("Table\\Spots.5SF", ScriviRecord(FreqTable5SF{})));
    }
    ModuloScan Apri(ColonnaScan colonna, int kind, const ScanLine& riga) {
        return ApriModulo(albero, colonna, kind, riga);
    }
    static std::string Visibili(const VistaModulo& vista) {
        std::string lettere;
        for (size_t i = 0; i < kNumCornici; ++i)
            lettere += vista.cornici[i].visibile ? static_cast<char>('a' + i) : '.';
        return lettere;
    }
};

TEST_F(ModuloScanTest, EachColumnOpensItsFrames) {
    const ScanLine semplice{.Detector = {1}};
    const ScanLine smart{.Smart = 1, .Detector = {1}};
    const ScanLine tabella{.StepMode = 1, .Detector = {1}};
    const ScanLine fermo{.Detector = {1}, .LimitOn = 1, .Limit = "Lin"};
    struct {
        ColonnaScan colonna;
        int kind;
        ScanLine riga;
        const char* cornici; ///< a FRMStep to k FRMAncillary
    } const casi[] = {
        {ColonnaScan::Step, 0, semplice, "ab........."},
        {ColonnaScan::Step, 0, tabella, "..c........"},
        {ColonnaScan::Detector, 0, semplice, "...de.g...."},
        {ColonnaScan::HoldTime, 0, smart, "...defghi.."},
        {ColonnaScan::Detector, 0, fermo, "...de.gh..."}, // or nobody could change it
        {ColonnaScan::Detector, 5, semplice, "...de......"},
        {ColonnaScan::Detector, 5, smart, "...defghi.."},
        {ColonnaScan::Prompt, 0, semplice, ".........j."},
        {ColonnaScan::Ancillary, 1, semplice, "..........k"},
        {ColonnaScan::Rbw, 0, semplice, "..........."},
    };
    for (const auto& caso : casi) {
        const VistaModulo vista = VistaDelModulo(Apri(caso.colonna, caso.kind, caso.riga));
        EXPECT_EQ(Visibili(vista), caso.cornici) << static_cast<int>(caso.colonna);
    }
    const VistaModulo mast = VistaDelModulo(Apri(ColonnaScan::Detector, 5, smart));
    EXPECT_TRUE(mast.CHKSmart.visibile && mast.CHKSmart.avviso && mast.Di(FRMMargin).avviso);
    EXPECT_FALSE(VistaDelModulo(Apri(ColonnaScan::Detector, 5, semplice)).CHKSmart.visibile);
    EXPECT_FALSE(VistaDelModulo(Apri(ColonnaScan::Detector, 0, fermo)).CHKSmart.abilitato);
    EXPECT_EQ(ApriCellaScanTab(ColonnaScan::Ancillary, 0, 5), AperturaCella::Finestra);
    EXPECT_EQ(ApriCellaScanTab(ColonnaScan::Ancillary, 1, 5), AperturaCella::Ridisegna);
}

TEST_F(ModuloScanTest, CaptionsFollowTheLine) {
    const ScanLine automatica{.AutoStep = 1, .Detector = {1}, .RbwId = 2};
    const VistaModulo passo = VistaDelModulo(Apri(ColonnaScan::Step, 0, automatica));
    EXPECT_EQ(passo.Di(FRMStep).titolo, "Step 5 kHz");
    EXPECT_EQ(passo.testoStep, "5");
    EXPECT_FALSE(passo.TBStep.abilitato);

    ModuloScan modulo = Apri(ColonnaScan::Detector, 0, {.Smart = 1, .Detector = {0, 1}});
    VistaModulo vista = VistaDelModulo(modulo);
    EXPECT_EQ(vista.Di(FRMHoldTime).titolo, "Hold Time (ms)");
    EXPECT_EQ(vista.Di(FRMHoldTimeSD).titolo, "Peak Scan Hold Time (ms)");
    EXPECT_TRUE(vista.TBMargin.abilitato && vista.CHKLimits.avviso);
    EXPECT_FALSE(vista.CHKLimitsDSD.abilitato || vista.CHKLimitsDSD.avviso);
    EXPECT_FALSE(ScegliDetector(modulo, DetectorKind::Avg, true));
    vista = VistaDelModulo(modulo);
    EXPECT_EQ(vista.Di(FRMHoldTime).titolo, "Hold Time QPeak (ms)");
    EXPECT_EQ(vista.Di(FRMHoldTimeSD).titolo, "Hold Time Avg (ms)");
    EXPECT_EQ(vista.Di(FRMCustomLimits).titolo, "Limits QPeak");
    EXPECT_EQ(vista.Di(FRMCustomLimitsDSD).titolo, "Limits Avg");
    EXPECT_TRUE(vista.ComboBoxLimitsDSD.abilitato && vista.ComboBoxLimitsDSD.avviso);
}

TEST(RegoleRigaTest, DetectorsThatGoTogether) {
    using enum DetectorKind;
    struct {
        const char* lettere;
        int16_t smart;
        int kind;
        DetectorKind quale;
        bool acceso;
        const char* dopo;
    } const casi[] = {
        {"P", 0, 0, Peak, false, "P"},     {"PQ", 0, 0, Peak, false, "Q"},
        {"PQ", 0, 0, CAvg, true, "PQC"},   {"PQA", 0, 0, Rms, true, "R"},
        {"PQA", 0, 0, QPeak, true, "PQA"}, {"Q", 1, 0, Avg, true, "QA"},
        {"QA", 1, 0, Peak, true, "P"},     {"P", 0, 5, Avg, true, "A"},
    };
    for (const auto& caso : casi) {
        ScanLine riga{.Smart = caso.smart, .Detector = *LeggiDetector(caso.lettere)};
        CambiaDetector(riga, caso.quale, caso.acceso, caso.kind);
        EXPECT_EQ(LettereDetector(riga), caso.dopo) << caso.lettere << " kind " << caso.kind;
    }
    ScanLine riga{.Detector = {0, 1, 0, 1}};
    EXPECT_FALSE(ControllaCondizioniDSDScanTab(riga)) << "two detectors without Smart";
    ModificaSmart(riga, true);
    EXPECT_EQ(LettereDetector(riga), "Q");
    EXPECT_FALSE(ControllaCondizioniDSDScanTab(riga));
    riga.Detector[3] = 1;
    EXPECT_TRUE(ControllaCondizioniDSDScanTab(riga)) << "Smart is the third";
    ScanLine nessuno;
    ModificaSmart(nessuno, true);
    EXPECT_EQ(LettereDetector(nessuno), "P");
}

TEST(RegoleRigaTest, FieldsAreHeldToTheirRanges) {
    struct {
        const char* opzione;
        const char* testo;
        const char* dopo; ///< null: refused, and the line as it was
    } const casi[] = {
        {"margin", "-25", "-19"},       {"margin", "19,5", "19"},
        {"margin", "x", nullptr},       {"hold", "-5", "5"},
        {"hold", "30001", "30000"},     {"hold", "lowest", "0"},
        {"peak-hold", "-1e9", "30000"}, {"steps-between", "-50", "49"},
        {"step", "0", nullptr},         {"step", "0.005", "0.005"},
        {"start", "0", nullptr},        {"rbw", "1khzmil", "1 kHz Mil"},
        {"rbw", "----", nullptr},       {"min-att", "15", nullptr},
        {"min-att", "40", "40"},        {"smart", "maybe", nullptr},
        {"detector", "PQX", nullptr},   {"detector", "P,C-Avg", "PC"},
        {"lines", "l1, Z", "L1,L3"},    {"lines", "-", "-"},
        {"lines", "L4", nullptr},       {"antenna", "H", "H"},
        {"limit", "none", "NONE"},      {"limit", "Class B", "Class B"},
    };
    for (const auto& caso : casi) {
        for (const CampoRiga& campo : TabellaCampiRiga()) {
            if (campo.opzione != caso.opzione)
                continue;
            ScanLine riga{.Start = 1, .Step = 0.1, .Detector = {1}};
            const std::string prima = campo.testo(riga);
            EXPECT_EQ(campo.leggi(riga, caso.testo, 0), caso.dopo != nullptr) << caso.opzione;
            EXPECT_EQ(campo.testo(riga), caso.dopo ? caso.dopo : prima) << caso.testo;
        }
    }
    ScanLine riga;
    ModificaPrompt(riga, std::string(199, 'x') + "\xC3\xA9\xC3\xA9");
    EXPECT_EQ(riga.Prompt, std::string(199, 'x') + "\xC3\xA9") << "two hundred characters, whole";
    ModificaStep(riga, "2,5", UnitaPasso::Hz);
    EXPECT_EQ(riga.Step, 2.5e-06);
    for (const int kind : {1, 6}) {
        riga.LineSwitch = {1, 0, 0, 1};
        ModificaAncillary(riga, kind, 1, true);
        EXPECT_EQ(riga.LineSwitch, (std::array<int16_t, 4>{0, 0, 1, 0}));
    }
}

TEST_F(ModuloScanTest, ATypedPromptIsShown) {
    struct {
        ScanLine riga;
        const char* testo;
        int16_t acceso;
    } const casi[] = {
        {{}, "P", 1},
        {{.Prompt = "Plug in"}, "Plug in t", 1}, // the tick had been taken back
        {{.PromptOn = 1, .Prompt = "P"}, "", 0},
    };
    for (const auto& caso : casi) {
        ModuloScan modulo = Apri(ColonnaScan::Prompt, 0, caso.riga);
        ScriviPrompt(modulo, caso.testo);
        EXPECT_EQ(modulo.riga.PromptOn, caso.acceso) << caso.testo;
        EXPECT_EQ(modulo.riga.Prompt, caso.testo);
    }
}

TEST_F(ModuloScanTest, ASmartLineTakesNoLinearLimit) {
    const ScanLine smart{.Smart = 1,
                         .Detector = {0, 1, 0, 1},
                         .LimitOn = 1,
                         .Limit = "Log",
                         .LimitDSDOn = 1,
                         .LimitDSD = "Log"};
    ModuloScan modulo = Apri(ColonnaScan::Detector, 0, smart);
    const auto riquadro = ScegliLimite(modulo, CoppiaLimite::DSD, "Lin");
    ASSERT_TRUE(riquadro);
    EXPECT_EQ(riquadro->testo, "Linear limit not suitable with smart detector");
    EXPECT_EQ(modulo.riga.LimitDSD, "Log");
    EXPECT_EQ(modulo.riga.LimitDSDOn, 0);
    EXPECT_FALSE(AccendiLimite(modulo, CoppiaLimite::DSD, true));

    ModuloScan senza = Apri(ColonnaScan::Detector, 0, {.Detector = {1}});
    EXPECT_FALSE(ScegliLimite(senza, CoppiaLimite::Prima, "Lin"));
    EXPECT_FALSE(AccendiLimite(senza, CoppiaLimite::Prima, true));
    EXPECT_TRUE(ScegliSmart(senza, true));
    EXPECT_EQ(senza.riga.Smart, 0);
}

TEST_F(ModuloScanTest, TheWindowClosesOnceSmartHasItsLimits) {
    struct {
        ScanLine riga;
        ColonnaScan colonna;
        bool chiude;
    } const casi[] = {
        {{.Smart = 1, .Detector = {1}, .LimitOn = 1, .Limit = "NONE"},
         ColonnaScan::Detector,
         false},
        {{.Smart = 1, .Detector = {1}, .LimitOn = 0, .Limit = "Log"}, ColonnaScan::HoldTime, false},
        {{.Smart = 1, .Detector = {1}, .LimitOn = 1, .Limit = "Log"}, ColonnaScan::Detector, true},
        {{.Smart = 1, .Detector = {1, 1}, .LimitOn = 1, .Limit = "Log"},
         ColonnaScan::Detector,
         false},
        {{.Smart = 0, .Detector = {1}}, ColonnaScan::Detector, true},
        {{.Smart = 1, .Detector = {1}}, ColonnaScan::Prompt, true}, // no limit can be chosen there
    };
    for (const auto& caso : casi) {
        ScanLine tabella;
        const auto riquadro = ChiudiModulo(Apri(caso.colonna, 0, caso.riga), tabella);
        EXPECT_EQ(riquadro ? riquadro->testo : "",
                  caso.chiude ? "" : "Smart detector must have\ra Limit (enabled)");
        EXPECT_EQ(tabella.Smart, caso.chiude ? caso.riga.Smart : 0);
    }
}

TEST_F(ModuloScanTest, AFrequencyTableThatIsGone) {
    ModuloScan modulo = Apri(ColonnaScan::Step, 0, {.StepMode = 1, .FreqTable = "Gone"});
    const auto riquadro = ControllaFreqTable(modulo);
    ASSERT_TRUE(riquadro);
    EXPECT_EQ(riquadro->testo, "Frequency table Gone  not found");
    EXPECT_EQ(modulo.riga.FreqTable, "NONE");
    EXPECT_FALSE(ControllaFreqTable(modulo)) << "told once";
    EXPECT_FALSE(ScegliFreqTable(modulo, "Spots"));
    EXPECT_EQ(ElencoFreqTable(albero), (std::vector<std::string>{"NONE", "Spots"}));
}

TEST(TastiScanTest, WhatAKeyDoes) {
    using enum TastoScan;
    using enum EditoreScan;
    using enum AzioneTasto;
    struct {
        EditoreScan editore;
        TastoScan tasto;
        bool maiuscole, vuoto;
        DecisioneTasto decisione;
    } const casi[] = {
        {TBCella, Invio, false, false, {ConfermaAvanti}},
        {TBCella, Destra, false, false, {Lascia}},
        {TBCella, Destra, true, false, {ConfermaSposta, 0, 1}},
        {TBCella, Su, false, true, {ConfermaSposta, -1, 0}},
        {TBCella, PaginaGiu, false, true, {Lascia}},
        {CBXCella, PaginaGiu, false, false, {Pagina, 1, 0}},
        {CBXCella, Giu, true, true, {Lascia}},
        {CBXCella, Esc, false, false, {Chiudi}},
        {CBXCella, Canc, false, false, {Lascia}},
        {CBXScanTab, Canc, false, false, {ChiediCancella}},
    };
    for (const auto& caso : casi)
        EXPECT_EQ(KeyDownCellaScanTab(caso.editore, caso.tasto, caso.maiuscole, caso.vuoto),
                  caso.decisione)
            << static_cast<int>(caso.tasto);
    EXPECT_EQ(CellaSeguente(0, ColonnaScan::Ancillary, 2), (PostoScan{1, ColonnaScan::Start}));
    EXPECT_EQ(CellaSeguente(1, ColonnaScan::Ancillary, 2),
              (PostoScan{2, ColonnaScan::Start, true}));
    EXPECT_EQ(CellaSeguente(1, ColonnaScan::PreSel, 2), (PostoScan{1, ColonnaScan::Prompt}));
}

} // namespace
} // namespace orvane::prova
