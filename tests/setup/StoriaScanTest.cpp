// Undo, whole lines, the clipboard, and the band picker.
#include "setup/StoriaScan.h"

#include <gtest/gtest.h>

#include "setup/ModificaTabella.h"
#include "setup/RigheScan.h"
#include "setup/SceltaBande.h"

namespace orvane {
namespace {

/// Lines that start at these frequencies.
ScanTable Tabella(std::initializer_list<double> start) {
    ScanTable tabella{};
    size_t i = 0;
    for (const double mhz : start)
        tabella[i++] = {.Start = mhz, .Stop = mhz + 0.5, .Detector = {1}};
    return tabella;
}

std::vector<double> Inizi(const ScanTable& tabella) {
    std::vector<double> inizi;
    for (const ScanLine& riga : tabella)
        if (riga.Start != 0)
            inizi.push_back(riga.Start);
    return inizi;
}
using Mhz = std::vector<double>;

TEST(StoriaScanTest, StepsBackAndForth) {
    ScanTable tabella = Tabella({1});
    StoriaScan storia(tabella);
    tabella[0].StepOriginal = 0.1;
    EXPECT_FALSE(storia.Registra(tabella)) << "a run's own figure is no edit";
    for (const double mhz : {2.0, 3.0}) {
        tabella[0].Start = mhz;
        EXPECT_TRUE(storia.Registra(tabella));
        EXPECT_FALSE(storia.Registra(tabella));
    }
    EXPECT_EQ(Inizi(*storia.Annulla()), Mhz{2});
    EXPECT_EQ(Inizi(*storia.Annulla()), Mhz{1});
    EXPECT_FALSE(storia.Annulla());
    EXPECT_EQ(Inizi(*storia.Ripeti()), Mhz{2});
    EXPECT_TRUE(storia.Registra(Tabella({7}))) << "what was undone is forgotten";
    EXPECT_FALSE(storia.PuoRipetere());
    EXPECT_EQ(Inizi(*storia.Annulla()), Mhz{2});
    storia.Ricomincia(Tabella({9}));
    EXPECT_FALSE(storia.PuoAnnullare() || storia.PuoRipetere());
    for (size_t i = 0; i <= kMaxPassiStoria; ++i)
        storia.Registra(Tabella({static_cast<double>(i + 10)}));
    size_t passi = 0;
    while (storia.Annulla())
        ++passi;
    EXPECT_EQ(passi, kMaxPassiStoria);
}

TEST(RigheScanTest, MoveDuplicateAndInsert) {
    ScanTable tabella = Tabella({1, 2, 3});
    EXPECT_TRUE(SpostaRiga(tabella, 0, 2));
    EXPECT_EQ(Inizi(tabella), (Mhz{2, 3, 1}));
    EXPECT_TRUE(SpostaRiga(tabella, 2, 1));
    EXPECT_EQ(Inizi(tabella), (Mhz{2, 1, 3}));
    EXPECT_FALSE(SpostaRiga(tabella, 0, 3));
    EXPECT_TRUE(DuplicaRiga(tabella, 1));
    EXPECT_EQ(Inizi(tabella), (Mhz{2, 1, 1, 3}));
    const ScanTable molte = Tabella({11, 12, 13, 14, 15, 16});
    const std::span<const ScanLine> sei(molte.data(), 6);
    EXPECT_TRUE(InserisciRighe(tabella, 1, sei));
    EXPECT_EQ(Inizi(tabella), (Mhz{2, 11, 12, 13, 14, 15, 16, 1, 1, 3}));
    EXPECT_FALSE(DuplicaRiga(tabella, 0));
    EXPECT_EQ(Inizi(tabella).size(), 10u);
    EXPECT_TRUE(InserisciRighe(tabella, 0, {}));
}

TEST(RigheScanTest, TextAndBack) {
    ScanTable tabella = Tabella({1, 2});
    ImpostaBanda(tabella[0], TabellaBande()[24], 2);
    tabella[0].Prompt = "Turn\tit\r\nback\\now";
    tabella[0].PromptOn = 0;
    tabella[0].Limit = "EN 55011 \xC2\xB5";
    tabella[0].Antenna = {0, 1};
    ImpostaLineaDefault(tabella[1], 0);
    tabella[1].Smart = 1;
    tabella[1].Detector = {0, 1, 0, 1};
    tabella[1].StepMode = 1;
    tabella[1].FreqTable = "Spots";
    tabella[1].Step = 0.005;
    tabella[1].RbwId = 2;
    tabella[1].Margin = -3.5f;
    const std::string testo = TestoDelleRighe(std::span(tabella).first(2));
    const RigheLette lette = LeggiRighe(testo, 2);
    EXPECT_TRUE(lette.errori.empty());
    ASSERT_EQ(lette.righe.size(), 2u);
    EXPECT_EQ(lette.righe[0].Prompt, tabella[0].Prompt);
    EXPECT_EQ(lette.righe[0].Limit, tabella[0].Limit);
    EXPECT_EQ(lette.righe[0].LimitOn, 0);
    EXPECT_EQ(lette.righe[1].Step, tabella[1].Step);
    EXPECT_EQ(TestoDelleRighe(lette.righe), testo);
}

TEST(RigheScanTest, WhatASpreadsheetMayBring) {
    const RigheLette lette = LeggiRighe("Stop [MHz]\tColour\tstart [mhz]\tDetector\r\n"
                                        "30\tred\t0,15\tPQA\r\n"
                                        "\r\n"
                                        "30\tred\tmuch\tP\r\n"
                                        "300\t\t30\tPQRANC\r\n",
                                        1);
    ASSERT_EQ(lette.righe.size(), 2u);
    EXPECT_EQ(TestoCella(lette.righe[0], ColonnaScan::Detector, 1), "P Q A ");
    EXPECT_EQ(lette.righe[0].RbwId, 2) << "a missing column is the default of the span";
    EXPECT_EQ(lette.righe[0].Step, 0.005);
    EXPECT_EQ(TestoCella(lette.righe[1], ColonnaScan::Detector, 1), "P ");
    ASSERT_EQ(lette.errori.size(), 2u);
    EXPECT_EQ(lette.errori[0], "row 4: no line without Start [MHz]");
    EXPECT_EQ(lette.errori[1].substr(0, 21), "row 5: Detector wants");
    EXPECT_EQ(LeggiRighe("0.15\t30", 0).righe.size(), 1u) << "without headings, in order";
    std::string molte;
    for (int i = 0; i < 12; ++i)
        molte += "1\t2\n";
    EXPECT_EQ(LeggiRighe(molte, 0).righe.size(), kMaxScanLine);
    for (const char* cattivo : {"", "\t\t\n", "\\", "Limit\n\\x\t\\", "\xFF\xFE"})
        EXPECT_TRUE(LeggiRighe(cattivo, 0).righe.empty()) << cattivo;
}

TEST(SceltaBandeTest, ButtonsAndWhatTheyDo) {
    constexpr int kC = 3, kCDE = 8, kSeparatore = 9, kTutta = 11;
    ScanTable tabella = Tabella({1, 2, 3});
    VistaBande vista = VistaDelleBande(tabella, kCDE, 1);
    EXPECT_EQ(vista.CMBSet.didascalia, "Set band C+D+E to row 2");
    EXPECT_EQ(vista.CMBInsert.didascalia, "Insert band C+D+E before row 2");
    EXPECT_EQ(vista.CMBRemove.didascalia, "Remove row 2");
    EXPECT_TRUE(vista.CMBSet.attivo && vista.CMBInsert.attivo && vista.CMBRemove.attivo);
    vista = VistaDelleBande(tabella, kSeparatore, 3);
    EXPECT_FALSE(vista.CMBSet.attivo || vista.CMBInsert.attivo || vista.CMBRemove.attivo);

    EXPECT_TRUE(ImpostaBandaInRiga(tabella, 1, kCDE, 0));
    EXPECT_EQ(Inizi(tabella), (Mhz{1, 30, 1000, 3})) << "the rest goes down by one";
    EXPECT_TRUE(InserisciBanda(tabella, 0, kCDE, 0));
    EXPECT_EQ(Inizi(tabella), (Mhz{30, 1000, 1, 30, 1000, 3}));
    EXPECT_TRUE(ImpostaBandaInRiga(tabella, 9, kTutta, 0)) << "behind the last one";
    EXPECT_EQ(Inizi(tabella).size(), 10u);
    vista = VistaDelleBande(tabella, kC, 0);
    EXPECT_TRUE(vista.CMBSet.attivo);
    EXPECT_FALSE(vista.CMBInsert.attivo);
    EXPECT_FALSE(VistaDelleBande(tabella, kCDE, 0).CMBSet.attivo);
    EXPECT_FALSE(ImpostaBandaInRiga(tabella, 0, kCDE, 0));
    EXPECT_FALSE(InserisciBanda(tabella, 0, kC, 0));
    EXPECT_FALSE(ImpostaBandaInRiga(tabella, 0, kSeparatore, 0));
    EXPECT_EQ(DomandaCancella("Supply").testo, "Are you sure you want to delete Supply ?");
}

TEST(SceltaBandeTest, ArrowsAndTypedNames) {
    EXPECT_EQ(BandaVicina(8, 1), 10);
    EXPECT_EQ(BandaVicina(10, -1), 8);
    EXPECT_EQ(BandaVicina(22, 1), 24);
    EXPECT_EQ(BandaVicina(24, 1), 24) << "the hidden one stays hidden";
    EXPECT_EQ(BandaVicina(0, -1), 0);
    EXPECT_EQ(BandaVicina(-1, 1), 0);
    EXPECT_EQ(NomeBandaDigitato("c+d+e"), "C+D+E");
    EXPECT_EQ(NomeBandaDigitato("abcdefgh"), "ABCDEFGH");
    EXPECT_EQ(NomeBandaDigitato("30mhz_to_"), "30mhz_to_");
}

TEST(ModificaTabellaTest, ARowFillsUpOnce) {
    ScanTable tabella{};
    tabella[0].Start = 0.15;
    EXPECT_EQ(AggiornaRigaScanTab(tabella, 0, 3), 0u);
    tabella[0].Stop = 30;
    EXPECT_EQ(AggiornaRigaScanTab(tabella, 0, 3), 1u);
    EXPECT_EQ(tabella[0].Step, 0.005);
    EXPECT_EQ(TestoCella(tabella[0], ColonnaScan::Ancillary, 3), "V , H ");
    tabella[0].HoldTime = 7;
    EXPECT_EQ(AggiornaRigaScanTab(tabella, 0, 3), 1u);
    EXPECT_EQ(tabella[0].HoldTime, 7) << "a filled row is left alone";
}

} // namespace
} // namespace orvane
