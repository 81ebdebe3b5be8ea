// Table files: lengths, the earlier format, damage, and what loading leaves in a slot.
#include <bit>
#include <cmath>
#include <limits>

#include "ScrivaniaProva.h"
#include "data/ControllaTabelle.h"
#include "data/Interpolazione.h"
#include "data/TabelleFrequenza.h"
#include "data/TabelleLimFac.h"

namespace orvane::prova {
namespace {

using TabelleFileTest = ProvaDati;

LimFacRecord Esempio() {
    LimFacRecord r;
    r.Freq = {150e3f, 30e6f};
    r.Value = {6600, -5600};
    r.LastSegment = 7;
    r.Title = "A title, 10 \xC2\xB5V";
    r.LinFreq = 1;
    r.UnitId = 4;
    return r;
}

std::string Vecchio() {
    const auto byte = ScriviRecord(Esempio());
    return std::string(byte.begin(), byte.begin() + kByteLimFacVecchio);
}

TEST_F(TabelleFileTest, TheFieldsLieWhereTheFormatSays) {
    const auto byte = ScriviRecord(Esempio());
    ASSERT_EQ(byte.size(), 1972u);
    EXPECT_EQ(LeggiLittle<uint32_t>(&byte[4]), std::bit_cast<uint32_t>(30e6f));
    EXPECT_EQ(LeggiLittle<uint16_t>(&byte[808]), 6600);
    EXPECT_EQ(static_cast<int16_t>(LeggiLittle<uint16_t>(&byte[810])), -5600);
    EXPECT_EQ(LeggiLittle<uint16_t>(&byte[1210]), 7);
    EXPECT_EQ(std::string(byte.begin() + 1212, byte.begin() + 1228), "A title, 10 \xB5V  ");
    EXPECT_EQ(LeggiLittle<uint16_t>(&byte[1262]), 1);
    EXPECT_EQ(LeggiLittle<uint16_t>(&byte[1264]), 4);
    EXPECT_EQ(std::vector<uint8_t>(byte.begin() + 1266, byte.end()), std::vector<uint8_t>(706, 0));
}

TEST_F(TabelleFileTest, ASavedTableLoadsAsItWas) {
    TabelleLimFac t;
    t.slot[1] = Esempio();
    ASSERT_TRUE(SalvaLimFac(s, t, "Limits\\X.5SL", 1));
    ASSERT_TRUE(CaricaLimFac(s, t, s.albero.DataRoot() + "Limits\\X.5SL", 2));
    EXPECT_EQ(ScriviRecord(t.slot[2]), ScriviRecord(Esempio()));
    // A bare name lies in the directory of the slot.
    t.slot[3] = Esempio();
    ASSERT_TRUE(SalvaLimFac(s, t, "Y.5SC", 3));
    EXPECT_TRUE(std::filesystem::exists(Host("Factors/Y.5SC")));
    EXPECT_TRUE(CaricaFactorSlot(s, t, "Y", 9));
    EXPECT_EQ(t.slot[9].Title, Esempio().Title);
    EXPECT_TRUE(ambiente.riquadri.empty());
    EXPECT_TRUE(s.avvisi.empty());
}

TEST_F(TabelleFileTest, TheEarlierFormatIsRewrittenAtTheFirstLoad) {
    Metti("Limits/Old.5SL", Vecchio());
    TabelleLimFac t;
    ASSERT_TRUE(CaricaLimFac(s, t, "Limits\\Old.5SL", 1));
    LimFacRecord atteso = Esempio();
    atteso.LinFreq = 0;
    atteso.UnitId = 1;
    atteso.LastSegment = 0;
    const auto byte = ScriviRecord(atteso);
    EXPECT_EQ(Prendi("Limits/Old.5SL"), std::string(byte.begin(), byte.end()));
    EXPECT_EQ(ScriviRecord(t.slot[1]), byte);
    ASSERT_TRUE(CaricaLimFac(s, t, "Limits\\Old.5SL", 2));
    EXPECT_EQ(ScriviRecord(t.slot[2]), byte);
    EXPECT_TRUE(ambiente.riquadri.empty());
}

TEST_F(TabelleFileTest, AFailedRewriteLeavesTheOldFileAndLoadsAllTheSame) {
    Metti("Limits/Old.5SL", Vecchio());
    TabelleLimFac t;
    {
        const DiscoPieno pieno(1000);
        EXPECT_TRUE(CaricaLimFac(s, t, "Limits\\Old.5SL", 1));
    }
    EXPECT_EQ(Riquadro(), "Cannot open file " + s.albero.DataRoot() + "Limits\\Old.5SL");
    EXPECT_EQ(Prendi("Limits/Old.5SL"), Vecchio());
    EXPECT_EQ(t.slot[1].Value[0], 6600);
    EXPECT_EQ(Nomi("Limits"), std::vector<std::string>{"Old.5SL"});
}

TEST_F(TabelleFileTest, OfAnotherLengthTheUserDecides) {
    const std::string intero = [] {
        const auto byte = ScriviRecord(Esempio());
        return std::string(byte.begin(), byte.end());
    }();
    for (const std::string& byte : {std::string(), intero.substr(0, 1971), intero + "x",
                                    intero.substr(0, 1261), std::string(100000, 'x')}) {
        Metti("Limits/X.5SL", byte);
        TabelleLimFac t;
        t.slot[1] = Esempio();
        EXPECT_FALSE(CaricaLimFac(s, t, "Limits\\X.5SL", 1)) << byte.size();
        ASSERT_EQ(ambiente.riquadri.size(), 1u) << byte.size();
        EXPECT_EQ(ambiente.riquadri[0].titolo, "Loading " + s.albero.DataRoot() + "Limits\\X.5SL");
        EXPECT_EQ(ambiente.riquadri[0].pulsanti, Pulsanti::SiNo);
        EXPECT_EQ(Riquadro(), "This file is not as expected\rLOAD it Anyway ?");
        EXPECT_EQ(NumeroPunti(t.slot[1]), 0u) << "no other table under this name";
        EXPECT_EQ(Prendi("Limits/X.5SL"), byte);
    }
}

TEST_F(TabelleFileTest, AnywayLoadsAsFarAsTheFileGoes) {
    const auto intero = ScriviRecord(Esempio());
    Metti("Limits/X.5SL", std::vector<uint8_t>(intero.begin(), intero.begin() + 1000));
    ambiente.risposte = {Risposta::Si};
    TabelleLimFac t;
    EXPECT_TRUE(CaricaLimFac(s, t, "Limits\\X.5SL", 1));
    EXPECT_EQ(t.slot[1].Value[1], -5600);
    EXPECT_EQ(t.slot[1].Title, "");
    EXPECT_EQ(t.slot[1].UnitId, 1);
}

TEST_F(TabelleFileTest, WhereItMayNotBeAskedTheLengthIsRefused) {
    Metti("Factors/X.5SC", "short");
    TabelleLimFac t;
    EXPECT_FALSE(CaricaLimFac(s, t, "Factors\\X.5SC", 3, LunghezzaErrata::Rifiuta));
    ASSERT_EQ(ambiente.riquadri.size(), 1u);
    EXPECT_EQ(ambiente.riquadri[0].pulsanti, Pulsanti::Ok);
    EXPECT_EQ(Riquadro(), "This file is not as expected");
}

TEST_F(TabelleFileTest, NoneAndAbsentFilesLeaveTheSlotUnusedInSilence) {
    Metti("Factors/NONE.5SC", ScriviRecord(Esempio()));
    TabelleLimFac t;
    for (const char* nome : {"NONE", "None", "Absent", "", "..\\Limits\\X", "a/b"}) {
        t.slot[3] = Esempio();
        EXPECT_FALSE(CaricaFactorSlot(s, t, nome, 3)) << nome;
        EXPECT_EQ(NumeroPunti(t.slot[3]), 0u) << nome;
    }
    EXPECT_TRUE(ambiente.riquadri.empty());
    EXPECT_TRUE(s.albero.EsisteCartella("Factors"));
}

TEST_F(TabelleFileTest, DamagedPointsAreRepairedInMemoryOnly) {
    LimFacRecord r = Esempio();
    r.Freq = {3e6f, NAN, 1e6f, -2e6f, std::numeric_limits<float>::infinity(), 2e6f, 1e6f, 0, 9e6f};
    r.Value = {3, 9, 1, 9, 9, 2, 11, 9, 9};
    r.UnitId = 8;
    Metti("Limits/Bad.5SL", ScriviRecord(r));
    const std::string prima = Prendi("Limits/Bad.5SL");
    TabelleLimFac t;
    ASSERT_TRUE(CaricaLimFac(s, t, "Limits\\Bad.5SL", 1));
    const LimFacRecord& letto = t.slot[1];
    ASSERT_EQ(NumeroPunti(letto), 4u);
    for (size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(letto.Freq[i], (std::array{1e6f, 1e6f, 2e6f, 3e6f}[i]));
        EXPECT_EQ(letto.Value[i], (std::array{1, 11, 2, 3}[i]));
    }
    EXPECT_EQ(letto.Freq[8], 0) << "behind the end there is no curve";
    EXPECT_EQ(letto.UnitId, 1);
    EXPECT_EQ(Prendi("Limits/Bad.5SL"), prima);
    EXPECT_EQ(s.avvisi.size(), 1u);
}

TEST_F(TabelleFileTest, WhatStandsBehindTheEndIsNoDamage) {
    LimFacRecord r = Esempio();
    r.Freq[3] = 1e6f;
    r.Freq[4] = 5e6f;
    EXPECT_FALSE(ControllaLimFac(r));
    EXPECT_EQ(ValoreLimite(r, 40e6f), kNessunValore);
    r.Freq.fill(1e6f);
    EXPECT_TRUE(ControllaLimFac(r)) << "the 202nd point has no level";
    EXPECT_EQ(NumeroPunti(r), 201u);
}

TEST_F(TabelleFileTest, AnyBytesMakeAHarmlessTable) {
    for (unsigned seme = 0; seme < 50; ++seme) {
        LimFacRecord r = LeggiLimFac(ByteCasuali(kByteLimFac, seme));
        ControllaLimFac(r);
        for (size_t i = 1; i < NumeroPunti(r); ++i)
            EXPECT_LE(r.Freq[i - 1], r.Freq[i]);
        EXPECT_FALSE(ControllaLimFac(r)) << "one check is enough";
        for (float hz = 1e-30f; hz < 1e30f; hz *= 7) {
            ValoreLimite(r, hz);
            ValoreFattore(r, hz);
        }
    }
}

TEST_F(TabelleFileTest, TheListBeginsWithNone) {
    EXPECT_EQ(CompilaCBXLimits(s), std::vector<std::string>{"NONE"});
    for (const char* nome : {"b.5SL", "A.5sl", "c.5SC", "d.TXT"})
        Metti(std::string("Limits/") + nome, "");
    EXPECT_EQ(CompilaCBXLimits(s), (std::vector<std::string>{"NONE", "A", "b"}));
}

FrequencyTable Frequenze() {
    FrequencyTable t;
    t.Elementi[0] = {.Freq = 0.15, .Level = 6612, .Mast = 150, .Table = 90};
    t.Elementi[1] = {.Freq = 30, .Level = -5, .Mast = kNessunaPosizione, .Table = 0};
    return t;
}

TEST_F(TabelleFileTest, AnAbsentFrequencyTableIsMadeFromTheCurrentContents) {
    FrequencyTable t = Frequenze();
    EXPECT_TRUE(CaricaFreqTab(s, FormaFreqTab::Semplice, "Table\\F.5SF", t));
    EXPECT_TRUE(CaricaFreqTab(s, FormaFreqTab::MastTable, "Mast-Table\\F.FTM", t));
    EXPECT_EQ(std::filesystem::file_size(Host("Table/F.5SF")), 2020u);
    EXPECT_EQ(std::filesystem::file_size(Host("Mast-Table/F.FTM")), 2828u);
    EXPECT_EQ(Prendi("Table/F.5SF").substr(10, 20),
              std::string("\0\0\0\0\0\0\x3E\x40\xFB\xFF\0\0\0\0\0\0\0\0\0\0", 20));
    EXPECT_EQ(Prendi("Mast-Table/F.FTM").substr(14, 14),
              std::string("\0\0\0\0\0\0\x3E\x40\xFB\xFF\xFF\xFF\0\0", 14));
}

TEST_F(TabelleFileTest, TheSimpleFormDropsThePositions) {
    ASSERT_TRUE(SalvaFreqTab(s, FormaFreqTab::Semplice, "Table\\F.5SF", Frequenze()));
    ASSERT_TRUE(SalvaFreqTab(s, FormaFreqTab::MastTable, "Mast-Table\\F.FTM", Frequenze()));
    FrequencyTable semplice;
    FrequencyTable conPosizioni;
    ASSERT_TRUE(CaricaFreqTab(s, FormaFreqTab::Semplice, "Table\\F.5SF", semplice));
    ASSERT_TRUE(CaricaFreqTab(s, FormaFreqTab::MastTable, "Mast-Table\\F.FTM", conPosizioni));
    EXPECT_EQ(semplice.Elementi[0].Freq, 0.15);
    EXPECT_EQ(semplice.Elementi[0].Level, 6612);
    EXPECT_EQ(semplice.Elementi[0].Mast, kNessunaPosizione);
    EXPECT_EQ(conPosizioni.Elementi[0].Mast, 150);
    EXPECT_EQ(conPosizioni.Elementi[0].Table, 90);
}

TEST_F(TabelleFileTest, AFrequencyTableOfAnotherLengthIsAskedAbout) {
    Metti("Table/F.5SF", std::string(2828, '\0')); // the other kind's length
    FrequencyTable t = Frequenze();
    EXPECT_FALSE(CaricaFreqTab(s, FormaFreqTab::Semplice, "Table\\F.5SF", t));
    EXPECT_EQ(Riquadro(), "This file is not as expected\rLOAD it Anyway ?");
    EXPECT_EQ(t.Elementi[0].Freq, 0.15) << "refused, the contents stay";
    ambiente.risposte = {Risposta::Si};
    EXPECT_TRUE(CaricaFreqTab(s, FormaFreqTab::Semplice, "Table\\F.5SF", t));
    EXPECT_EQ(t.Elementi[0].Freq, 0);
}

TEST_F(TabelleFileTest, DamagedFrequenciesAreRepairedInMemoryOnly) {
    FrequencyTable t;
    t.Elementi[0].Freq = 30;
    t.Elementi[1].Freq = -1;
    t.Elementi[2].Freq = NAN;
    t.Elementi[3] = {.Freq = 1, .Level = 4, .Mast = 5, .Table = 6};
    t.Elementi[5].Freq = 3;
    SalvaFreqTab(s, FormaFreqTab::MastTable, "Mast-Table\\F.FTM", t);
    FrequencyTable letta;
    ASSERT_TRUE(CaricaFreqTab(s, FormaFreqTab::MastTable, "Mast-Table\\F.FTM", letta));
    EXPECT_EQ(letta.Elementi[0].Freq, 1);
    EXPECT_EQ(letta.Elementi[0].Mast, 5);
    EXPECT_EQ(letta.Elementi[1].Freq, 30);
    EXPECT_EQ(letta.Elementi[2].Freq, 0);
    EXPECT_EQ(letta.Elementi[5].Freq, 0);
    EXPECT_EQ(s.avvisi.size(), 1u);
}

} // namespace
} // namespace orvane::prova
