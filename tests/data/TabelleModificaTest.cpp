// The table editor's rules: order, repeated frequencies, units, positions, and undo.
#include <gtest/gtest.h>

#include "aiuto/AmbienteProva.h"
#include "data/ConversioneTabella.h"
#include "data/Interpolazione.h"
#include "data/ModificaTabella.h"

namespace orvane::prova {
namespace {

using enum EsitoModifica;
using enum ColonnaTabella;

std::vector<double> Frequenze(const ContenutoTabella& c) {
    std::vector<double> mhz;
    for (const RigaTabella& riga : c.righe)
        mhz.push_back(riga.freqMhz.value_or(-1));
    return mhz;
}

/// Types a whole row; where its frequency went.
size_t Batti(ContenutoTabella& c, const std::string& freq, const std::string& livello) {
    size_t riga = c.righe.size();
    EXPECT_EQ(ScriviCella(c, riga, Frequenza, freq), Fatta) << freq;
    EXPECT_EQ(ScriviCella(c, riga, Livello, livello), Fatta) << livello;
    return riga;
}

ContenutoTabella TreRighe(TableKind kind = TableKind::Limite) {
    ContenutoTabella c{.kind = kind};
    Batti(c, "30", "60");
    Batti(c, "0.15", "66");
    Batti(c, "0,5", "56,5");
    return c;
}

TEST(ModificaTabella, ANewFrequencyGoesToItsPlace) {
    ContenutoTabella c = TreRighe();
    EXPECT_EQ(Frequenze(c), (std::vector<double>{0.15, 0.5, 30}));
    EXPECT_EQ(c.righe[1].livelloCent, 5650);
    size_t riga = 0;
    EXPECT_EQ(ScriviCella(c, riga, Frequenza, "5"), Fatta);
    EXPECT_EQ(riga, 1u) << "an edited row moves with its level";
    EXPECT_EQ(Frequenze(c), (std::vector<double>{0.5, 5, 30}));
    EXPECT_EQ(c.righe[1].livelloCent, 6600);
}

TEST(ModificaTabella, InALimitAFrequencyMayStandTwice) {
    ContenutoTabella c = TreRighe();
    EXPECT_EQ(Batti(c, "0.5", "46"), 2u) << "behind its equal, to make a step";
    size_t riga = c.righe.size();
    EXPECT_EQ(ScriviCella(c, riga, Frequenza, "0.5"), TroppeUguali);
    EXPECT_EQ(c.righe.size(), 4u) << "a new row of which nothing is left goes";
    riga = 3;
    EXPECT_EQ(ScriviCella(c, riga, Frequenza, "0.5"), TroppeUguali);
    EXPECT_EQ(c.righe[3].freqMhz, std::nullopt) << "the cell is cleared, its level stays";
    EXPECT_EQ(c.righe[3].livelloCent, 6000);
    EXPECT_EQ(ControllaRigaCompFreqTab(c), 3u);
}

TEST(ModificaTabella, TheRowsOfAStepKeepTheirOrder) {
    ContenutoTabella c = TreRighe();
    Batti(c, "0.5", "46");
    size_t riga = 1;
    EXPECT_EQ(ScriviCella(c, riga, Frequenza, "0.50"), Fatta);
    EXPECT_EQ(riga, 1u);
    EXPECT_EQ(c.righe[1].livelloCent, 5650);
}

TEST(ModificaTabella, ElsewhereAFrequencyStandsOnce) {
    for (const TableKind kind :
         {TableKind::Fattore, TableKind::Frequenze, TableKind::FrequenzeMast}) {
        ContenutoTabella c = TreRighe(kind);
        size_t riga = c.righe.size();
        EXPECT_EQ(ScriviCella(c, riga, Frequenza, "0.5"), GiaPresente);
        EXPECT_EQ(c.righe.size(), 3u);
    }
}

TEST(ModificaTabella, WhatTheFileCannotTellApartIsOneFrequency) {
    ContenutoTabella fattore{.kind = TableKind::Fattore};
    Batti(fattore, "1000", "1");
    size_t riga = 1;
    EXPECT_EQ(ScriviCella(fattore, riga, Frequenza, "1000.00001"), GiaPresente);
    ContenutoTabella frequenze{.kind = TableKind::Frequenze};
    Batti(frequenze, "1000", "1");
    riga = 1;
    EXPECT_EQ(ScriviCella(frequenze, riga, Frequenza, "1000.00001"), Fatta);
}

TEST(ModificaTabella, TextsThatAreNoValueChangeNothing) {
    ContenutoTabella c = TreRighe(TableKind::FrequenzeMast);
    const ContenutoTabella prima = c;
    for (const auto& [colonna, testo] :
         std::vector<std::pair<ColonnaTabella, std::string>>{{Frequenza, "x"},
                                                             {Frequenza, "0"},
                                                             {Frequenza, "-1"},
                                                             {Frequenza, "inf"},
                                                             {Frequenza, "1 2"},
                                                             {Livello, "high"},
                                                             {Livello, "327.68"},
                                                             {Livello, "1e300"},
                                                             {Mast, "1.5"},
                                                             {Mast, "-1"},
                                                             {Table, "1000"},
                                                             {Table, "nan"}}) {
        size_t riga = 1;
        EXPECT_EQ(ScriviCella(c, riga, colonna, testo), NonValida) << testo;
        EXPECT_EQ(c, prima) << testo;
    }
    ContenutoTabella limite = TreRighe();
    size_t riga = 1;
    EXPECT_EQ(ScriviCella(limite, riga, Frequenza, "1e-60"), NonValida) << "0 Hz in the file";
    EXPECT_EQ(ScriviCella(limite, riga, Frequenza, "1e60"), NonValida);
}

TEST(ModificaTabella, CellsShowTheirFormats) {
    ContenutoTabella c{.kind = TableKind::FrequenzeMast};
    size_t riga = 0;
    ScriviCella(c, riga, Frequenza, "30,5");
    EXPECT_EQ(TestoCella(c, 0, Livello), ".00") << "no level is needed to list a frequency";
    EXPECT_EQ(TestoCella(c, 0, Mast), "---");
    for (const auto& [testo, cella] :
         std::vector<std::pair<std::string, std::string>>{{"0.5", ".50"},
                                                          {"-0,25", "-.25"},
                                                          {"66", "66.00"},
                                                          {"-12.345", "-12.35"},
                                                          {"-0.001", ".00"}}) {
        ScriviCella(c, riga, Livello, testo);
        EXPECT_EQ(TestoCella(c, 0, Livello), cella);
    }
    ScriviCella(c, riga, Mast, "5");
    ScriviCella(c, riga, Table, "360");
    EXPECT_EQ(TestoCella(c, 0, Frequenza), "30.5");
    EXPECT_EQ(TestoCella(c, 0, Mast), "005");
    EXPECT_EQ(TestoCella(c, 0, Table), "360");
    ScriviCella(c, riga, Mast, "---");
    EXPECT_EQ(c.righe[0].mastCm, std::nullopt);
    EXPECT_EQ(TestoCella(c, 7, Mast), "");
}

TEST(ModificaTabella, LevelsAreStoredWithoutTheOffsetOfTheirUnit) {
    struct Caso {
        int16_t unitId;
        int16_t cent;
    };
    for (const Caso& caso : {Caso{0, 11700}, Caso{1, 1000}, Caso{2, 4400}, Caso{3, 2700},
                             Caso{4, 1000}, Caso{5, 6150}, Caso{6, 5950}, Caso{7, 11700}}) {
        ContenutoTabella c{.kind = TableKind::Limite, .unitId = caso.unitId};
        Batti(c, "1", "10");
        EXPECT_EQ(c.righe[0].livelloCent, caso.cent) << caso.unitId;
        EXPECT_EQ(TestoCella(c, 0, Livello), "10.00");
    }
    ContenutoTabella c = TreRighe();
    c.unitId = 0;
    EXPECT_EQ(TestoCella(c, 0, Livello), "-41.00") << "the same limit in another unit";
}

TEST(ModificaTabella, AClearedCellLeavesAnIncompleteRowThatIsNotSaved) {
    ContenutoTabella c = TreRighe();
    size_t riga = 0;
    EXPECT_EQ(ScriviCella(c, riga, Frequenza, " "), Fatta);
    EXPECT_EQ(riga, 2u) << "rows without a frequency follow the others";
    EXPECT_EQ(ControllaRigaCompFreqTab(c), 2u);
    EXPECT_EQ(NumeroPunti(InLimFac(c)), 2u);
    EXPECT_EQ(InLimFac(c).Freq[0], 500e3f);
    ScriviCella(c, riga, Livello, "");
    EXPECT_EQ(c.righe.size(), 2u);
}

TEST(ModificaTabella, FullIsWhatTheFileHolds) {
    for (const auto& [kind, capienza] :
         std::vector<std::pair<TableKind, size_t>>{{TableKind::Limite, 201},
                                                   {TableKind::Fattore, 201},
                                                   {TableKind::Frequenze, 202},
                                                   {TableKind::FrequenzeMast, 202}}) {
        ContenutoTabella c{.kind = kind};
        for (size_t i = 0; i < capienza; ++i)
            EXPECT_EQ(InserisciPunto(c, {.freqMhz = 1.0 + double(i), .livelloCent = int16_t{1}}),
                      Fatta);
        EXPECT_EQ(InserisciPunto(c, {.freqMhz = 0.5, .livelloCent = int16_t{1}}), Piena);
        size_t riga = capienza;
        EXPECT_EQ(ScriviCella(c, riga, Frequenza, "0.5"), Piena);
        EXPECT_EQ(c.righe.size(), capienza);
        AmbienteProva ambiente;
        AvvisaModifica(ambiente, Piena, kind);
        EXPECT_EQ(ambiente.riquadri[0].testo,
                  "Too many frequencies\rMax " + std::to_string(capienza) + " frequencies");
        if (capienza == 202) {
            EXPECT_EQ(DaFrequencyTable(InFrequencyTable(c), kind).righe.size(), 202u);
        } else {
            EXPECT_EQ(DaLimFac(InLimFac(c), kind), c);
        }
    }
}

TEST(ModificaTabella, OutcomesHaveTheirBoxes) {
    AmbienteProva ambiente;
    for (const EsitoModifica esito : {Fatta, NonValida, TroppeUguali, GiaPresente})
        AvvisaModifica(ambiente, esito, TableKind::Limite);
    std::vector<std::string> testi;
    for (const Riquadro& riquadro : ambiente.riquadri)
        testi.push_back(riquadro.testo);
    EXPECT_EQ(testi,
              (std::vector<std::string>{"Not valid value", "No more then two frequencies allowed",
                                        "Frequency already present"}));
}

TEST(ModificaTabella, TitlesAndHeadings) {
    EXPECT_EQ(TitoloFinestraTabella(TableKind::Limite), "Limits: ");
    EXPECT_EQ(TitoloFinestraTabella(TableKind::Fattore), "Factors: ");
    EXPECT_EQ(TitoloFinestraTabella(TableKind::Frequenze), "Frequency Table: ");
    EXPECT_EQ(TitoloFinestraTabella(TableKind::FrequenzeMast), "Frequency Mast Table: ");
    const ContenutoTabella limite{.kind = TableKind::Limite, .unitId = 6};
    const ContenutoTabella mast{.kind = TableKind::FrequenzeMast, .unitId = 0};
    EXPECT_EQ(TitoloColonnaTabella(limite, Frequenza), "Frequency MHz");
    EXPECT_EQ(TitoloColonnaTabella(limite, Livello), "Level dBpT");
    EXPECT_EQ(TitoloColonnaTabella(limite, Mast), "");
    EXPECT_EQ(TitoloColonnaTabella(mast, Mast), "Mast cm");
    EXPECT_EQ(TitoloColonnaTabella(mast, Table), "Table Deg");
}

TEST(ModificaTabella, ARecordKeepsWhatWasTyped) {
    ContenutoTabella c{.kind = TableKind::Limite, .titolo = "T", .unitId = 4, .linFreq = true};
    for (const char* mhz : {"0.009", "0.15", "150.123", "230", "999.9", "1000", "6000", "18000"})
        Batti(c, mhz, "43.5");
    const ContenutoTabella ritorno = DaLimFac(InLimFac(c), TableKind::Limite);
    EXPECT_EQ(ritorno, c);
    EXPECT_EQ(TestoCella(ritorno, 2, Frequenza), "150.123");
    EXPECT_EQ(TestoCella(ritorno, 7, Frequenza), "18000");
    ContenutoTabella mast = TreRighe(TableKind::FrequenzeMast);
    mast.righe[1].mastCm = 150;
    mast.righe[1].tableGradi = 0;
    EXPECT_EQ(DaFrequencyTable(InFrequencyTable(mast), TableKind::FrequenzeMast), mast);
}

TEST(ModificaTabella, RemovesRowsAsFarAsThereAreAny) {
    ContenutoTabella c = TreRighe();
    RimuoviRighe(c, 1, 1);
    EXPECT_EQ(Frequenze(c), (std::vector<double>{0.15, 30}));
    RimuoviRighe(c, 1, 50);
    RimuoviRighe(c, 9, 1);
    EXPECT_EQ(Frequenze(c), std::vector<double>{0.15});
}

TEST(ModificaTabella, GoesBackAndForthOverManySteps) {
    ModificaTabella m(TableKind::Limite);
    EXPECT_FALSE(m.Annulla());
    for (int i = 1; i <= 5; ++i) {
        ContenutoTabella c = m.Contenuto();
        Batti(c, std::to_string(i), "10");
        m.Applica(c);
        m.Applica(c); // nothing changed: no step
    }
    EXPECT_TRUE(m.DaSalvare());
    m.SegnaSalvato();
    for (size_t i = 4; i > 1; --i) {
        EXPECT_TRUE(m.Annulla());
        EXPECT_EQ(m.Contenuto().righe.size(), i);
    }
    EXPECT_TRUE(m.DaSalvare());
    while (m.Ripristina())
        ;
    EXPECT_EQ(m.Contenuto().righe.size(), 5u);
    EXPECT_FALSE(m.DaSalvare());
    m.Annulla();
    ContenutoTabella altro = m.Contenuto();
    altro.titolo = "other";
    altro.linFreq = true;
    m.Applica(altro);
    EXPECT_FALSE(m.PuoRipristinare()) << "a new edit ends the way forth";
    EXPECT_TRUE(m.Annulla());
    EXPECT_EQ(m.Contenuto().titolo, "");
}

TEST(ModificaTabella, ALoadedTableHasNothingToUndo) {
    ModificaTabella m(TreRighe());
    EXPECT_FALSE(m.PuoAnnullare());
    EXPECT_FALSE(m.DaSalvare());
}

} // namespace
} // namespace orvane::prova
