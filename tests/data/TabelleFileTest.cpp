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
    for (const auto& [posto, valore] :
         {std::pair{808, 6600}, {810, -5600}, {1210, 7}, {1262, 1}, {1264, 4}})
        EXPECT_EQ(static_cast<int16_t>(LeggiLittle<uint16_t>(&byte[static_cast<size_t>(posto)])),
                  valore);
    EXPECT_EQ(std::string(byte.begin() + 1212, byte.begin() + 1228), "A title, 10 \xB5V  ");
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
    LimFacRecord atteso = Esempio();
    atteso.LinFreq = atteso.LastSegment = 0;
    atteso.UnitId = 1;
    const auto byte = ScriviRecord(atteso);
    TabelleLimFac t;
    {
        const DiscoPieno pieno(1000);
        EXPECT_TRUE(CaricaLimFac(s, t, "Limits\\Old.5SL", 1)) << "loaded all the same";
    }
    EXPECT_EQ(Riquadro(), "Cannot open file " + s.albero.DataRoot() + "Limits\\Old.5SL");
    EXPECT_EQ(Prendi("Limits/Old.5SL"), Vecchio());
    EXPECT_EQ(t.slot[1].Value[0], 6600);
    for (const size_t slot : {1u, 2u}) {
        ASSERT_TRUE(CaricaLimFac(s, t, "Limits\\Old.5SL", static_cast<int>(slot)));
        EXPECT_EQ(Prendi("Limits/Old.5SL"), std::string(byte.begin(), byte.end()));
        EXPECT_EQ(ScriviRecord(t.slot[slot]), byte);
    }
    EXPECT_EQ(Nomi("Limits"), std::vector<std::string>{"Old.5SL"});
}

TEST_F(TabelleFileTest, OfAnotherLengthTheUserDecides) {
    const auto record = ScriviRecord(Esempio());
    const std::string intero(record.begin(), record.end());
    TabelleLimFac t;
    for (const std::string& byte : {std::string(), intero.substr(0, 1971), intero + "x",
                                    intero.substr(0, 1261), std::string(100000, 'x')}) {
        Metti("Limits/X.5SL", byte);
        t.slot[1] = Esempio();
        EXPECT_FALSE(CaricaLimFac(s, t, "Limits\\X.5SL", 1)) << byte.size();
        EXPECT_EQ(ambiente.riquadri.back().titolo,
                  "Loading " + s.albero.DataRoot() + "Limits\\X.5SL");
        EXPECT_EQ(Riquadro(), "This file is not as expected\rLOAD it Anyway ?");
        EXPECT_EQ(NumeroPunti(t.slot[1]), 0u) << "no other table under this name";
        EXPECT_EQ(Prendi("Limits/X.5SL"), byte);
    }
    EXPECT_FALSE(CaricaLimFac(s, t, "Limits\\X.5SL", 1, LunghezzaErrata::Rifiuta));
    EXPECT_EQ(Riquadro(), "This file is not as expected") << "where it may not be asked";
    Metti("Limits/X.5SL", intero.substr(0, 1000));
    ambiente.risposte = {Risposta::Si, Risposta::No, Risposta::Si};
    EXPECT_TRUE(CaricaLimFac(s, t, "Limits\\X.5SL", 1));
    EXPECT_EQ(t.slot[1].Value[1], -5600) << "as far as the file goes";
    EXPECT_EQ(t.slot[1].Title, "");
    EXPECT_EQ(t.slot[1].UnitId, 1);
    Metti("Table/F.5SF", std::string(2828, '\0')); // the other kind's length
    FrequencyTable f;
    f.Elementi[0].Freq = 0.15;
    EXPECT_FALSE(CaricaFreqTab(s, FormaFreqTab::Semplice, "Table\\F.5SF", f));
    EXPECT_EQ(f.Elementi[0].Freq, 0.15) << "refused, the contents stay";
    EXPECT_TRUE(CaricaFreqTab(s, FormaFreqTab::Semplice, "Table\\F.5SF", f));
    EXPECT_EQ(f.Elementi[0].Freq, 0);
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
    LimFacRecord atteso;
    atteso.Freq = {1e6f, 1e6f, 2e6f, 3e6f}; // behind the end there is no curve
    EXPECT_EQ(t.slot[1].Freq, atteso.Freq);
    for (size_t i = 0; i < 4; ++i)
        EXPECT_EQ(t.slot[1].Value[i], (std::array{1, 11, 2, 3}[i]));
    EXPECT_EQ(t.slot[1].UnitId, 1);
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
    EXPECT_EQ(CompilaCBXLimits(s.albero), std::vector<std::string>{"NONE"});
    for (const char* nome : {"b.5SL", "A.5sl", "c.5SC", "d.TXT"})
        Metti(std::string("Limits/") + nome, "");
    EXPECT_EQ(CompilaCBXLimits(s.albero), (std::vector<std::string>{"NONE", "A", "b"}));
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
    FrequencyTable letta;
    ASSERT_TRUE(CaricaFreqTab(s, FormaFreqTab::MastTable, "Mast-Table\\F.FTM", letta));
    EXPECT_EQ(letta.Elementi[0].Table, 90);
    ASSERT_TRUE(CaricaFreqTab(s, FormaFreqTab::Semplice, "Table\\F.5SF", letta));
    EXPECT_EQ(letta.Elementi[0].Level, 6612);
    EXPECT_EQ(letta.Elementi[0].Mast, kNessunaPosizione) << "dropped by the simple form";
}

TEST_F(TabelleFileTest, DamagedFrequenciesAreRepairedInMemoryOnly) {
    FrequencyTable t;
    for (const auto& [i, freq] : {std::pair{0, 30.0}, {1, -1.0}, {2, double(NAN)}, {5, 3.0}})
        t.Elementi[static_cast<size_t>(i)].Freq = freq;
    t.Elementi[3] = {.Freq = 1, .Level = 4, .Mast = 5, .Table = 6};
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
