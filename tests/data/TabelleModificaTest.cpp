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

TEST(ModificaTabella, InALimitAFrequencyMayStandTwiceElsewhereOnce) {
    ContenutoTabella c = TreRighe();
    EXPECT_EQ(Batti(c, "0.5", "46"), 2u) << "behind its equal, to make a step";
    size_t riga = 1;
    EXPECT_EQ(ScriviCella(c, riga, Frequenza, "0.50"), Fatta);
    EXPECT_EQ(riga, 1u) << "the rows of a step keep their order";
    riga = c.righe.size();
    EXPECT_EQ(ScriviCella(c, riga, Frequenza, "0.5"), TroppeUguali);
    EXPECT_EQ(c.righe.size(), 4u) << "a new row of which nothing is left goes";
    riga = 3;
    EXPECT_EQ(ScriviCella(c, riga, Frequenza, "0.5"), TroppeUguali);
    EXPECT_EQ(c.righe[3].freqMhz, std::nullopt) << "the cell is cleared, its level stays";
    EXPECT_EQ(c.righe[3].livelloCent, 6000);
    EXPECT_EQ(ControllaRigaCompFreqTab(c), 3u);
    for (const TableKind kind : {TableKind::Fattore, TableKind::Frequenze}) {
        ContenutoTabella altra = TreRighe(kind);
        EXPECT_EQ(ScriviCella(altra, riga = 3, Frequenza, "0.5"), GiaPresente);
        EXPECT_EQ(altra.righe.size(), 3u);
    }
    RimuoviRighe(c, 1, 50);
    RimuoviRighe(c, 9, 1);
    EXPECT_EQ(Frequenze(c), std::vector<double>{0.15});
}

TEST(ModificaTabella, WhatTheFileCannotTellApartIsOneFrequency) {
    for (const auto& [kind, esito] :
         {std::pair{TableKind::Fattore, GiaPresente}, {TableKind::Frequenze, Fatta}}) {
        ContenutoTabella c{.kind = kind};
        Batti(c, "1000", "1");
        size_t riga = 1;
        EXPECT_EQ(ScriviCella(c, riga, Frequenza, "1000.00001"), esito);
    }
}

TEST(ModificaTabella, TextsThatAreNoValueChangeNothing) {
    ContenutoTabella c = TreRighe(TableKind::FrequenzeMast);
    const ContenutoTabella prima = c;
    const std::pair<ColonnaTabella, const char*> casi[] = {
        {Frequenza, "x"},   {Frequenza, "0"},  {Frequenza, "-1"},   {Frequenza, "inf"},
        {Frequenza, "1 2"}, {Livello, "high"}, {Livello, "327.68"}, {Livello, "1e300"},
        {Mast, "1.5"},      {Mast, "-1"},      {Table, "1000"},     {Table, "nan"}};
    for (const auto& [colonna, testo] : casi) {
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
    for (const auto& [testo, cella] : {std::pair{"0.5", ".50"},
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
    const std::array<int16_t, 8> attesi = {11700, 1000, 4400, 2700, 1000, 6150, 5950, 11700};
    for (size_t unita = 0; unita < attesi.size(); ++unita) {
        ContenutoTabella c{.kind = TableKind::Limite, .unitId = static_cast<int16_t>(unita)};
        Batti(c, "1", "10");
        EXPECT_EQ(c.righe[0].livelloCent, attesi[unita]) << unita;
        EXPECT_EQ(TestoCella(c, 0, Livello), "10.00");
    }
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
         {std::pair{TableKind::Limite, 201u}, {TableKind::Frequenze, 202u}}) {
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
        const bool frequenze = capienza == 202;
        EXPECT_EQ(
            (frequenze ? DaFrequencyTable(InFrequencyTable(c), kind) : DaLimFac(InLimFac(c), kind))
                .righe.size(),
            capienza);
    }
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

TEST(ModificaTabella, HeadingsNameTheUnit) {
    const ContenutoTabella limite{.kind = TableKind::Limite, .unitId = 6};
    const ContenutoTabella mast{.kind = TableKind::FrequenzeMast, .unitId = 0};
    EXPECT_EQ(TitoloColonnaTabella(limite, Frequenza), "Frequency MHz");
    EXPECT_EQ(TitoloColonnaTabella(limite, Livello), "Level dBpT");
    EXPECT_EQ(TitoloColonnaTabella(limite, Mast), "");
    EXPECT_EQ(TitoloColonnaTabella(mast, Mast) + TitoloColonnaTabella(mast, Table),
              "Mast cmTable Deg");
    EXPECT_EQ(TitoloFinestraTabella(TableKind::FrequenzeMast), "Frequency Mast Table: ");
}

} // namespace
} // namespace orvane::prova
