// Tables from text files and pasted columns, and back to text.
#include "ScrivaniaProva.h"
#include "data/ImportaTesto.h"

namespace orvane::prova {
namespace {

using TabelleTestoTest = ProvaDati;

ContenutoTabella Importata(TableKind kind, const std::string& testo,
                           EsitoImporto* esito = nullptr) {
    ContenutoTabella c{.kind = kind};
    const EsitoImporto letto = ImportaTesto(c, testo);
    if (esito)
        *esito = letto;
    return c;
}

TEST(ImportaTesto, ReadsALineInEachOfItsForms) {
    for (const char* riga : {"0.15 66.5", "0,15\t66,5", " 0.15;66.5 ", "0,15:66.5", "0.15    66.5",
                             "0.15 \t 66.5", "1.5e-1;6.65e1", "+0.15;66.5"}) {
        EsitoImporto esito;
        const ContenutoTabella c = Importata(TableKind::Limite, riga, &esito);
        ASSERT_EQ(esito.aggiunti, 1u) << riga;
        EXPECT_EQ(c.righe[0].freqMhz, 0.15) << riga;
        EXPECT_EQ(c.righe[0].livelloCent, 6650) << riga;
    }
}

TEST(ImportaTesto, CountsLinesThatAreNoPoint) {
    // A blank goes before the semicolon, which so stays in the first field.
    for (const char* riga : {"0.15; 66", "0.15", "Limit;66", "0.15;high", "0.15;66;1", "", "0;66",
                             "-1;66", "0.15;400", ";66"}) {
        EsitoImporto esito;
        const ContenutoTabella c =
            Importata(TableKind::Limite, std::string(riga) + "\r\n30;60\r\n", &esito);
        EXPECT_EQ(esito.nonValide, std::vector<size_t>{1}) << riga;
        EXPECT_EQ(c.righe.size(), 1u) << riga;
    }
}

TEST(ImportaTesto, PositionsFollowTheLevel) {
    const ContenutoTabella c =
        Importata(TableKind::FrequenzeMast, "30;40;150;090\r31 40 --- 5\r\n32;40\n33");
    EXPECT_EQ(TestoTabella(c, ""), "\r\n30\t40.00\t150\t090\r\n31\t40.00\t---\t005\r\n"
                                   "32\t40.00\t---\t---\r\n33\t.00\t---\t---\r\n");
    EXPECT_EQ(Importata(TableKind::FrequenzeMast, TestoTabella(c, "")), c);
}

TEST(ImportaTesto, RepeatedFrequenciesAreDroppedInSilence) {
    EsitoImporto esito;
    EXPECT_EQ(Importata(TableKind::Limite, "1;1\n1;2\n1;3\n", &esito).righe.size(), 2u);
    EXPECT_EQ(esito.doppi, 1u);
    EXPECT_EQ(Importata(TableKind::Fattore, "1;1\n1,0;2\n", &esito).righe.size(), 1u);
    EXPECT_EQ(esito.doppi, 1u);
    AmbienteProva ambiente;
    AvvisaImporto(ambiente, esito, TableKind::Fattore);
    EXPECT_TRUE(ambiente.riquadri.empty());
}

TEST(ImportaTesto, AFullTableEndsTheReading) {
    std::string testo = "x\n";
    for (int i = 1; i <= 205; ++i)
        testo += std::to_string(i) + ";1\n";
    EsitoImporto esito;
    const ContenutoTabella c = Importata(TableKind::Frequenze, testo + "y\n", &esito);
    EXPECT_EQ(c.righe.size(), 202u);
    EXPECT_TRUE(esito.piena);
    EXPECT_EQ(esito.nonValide, std::vector<size_t>{1});
    AmbienteProva ambiente;
    AvvisaImporto(ambiente, esito, TableKind::Frequenze);
    ASSERT_EQ(ambiente.riquadri.size(), 2u);
    EXPECT_EQ(ambiente.riquadri[0].testo, "Too many frequencies\rMax 202 frequencies");
    EXPECT_EQ(ambiente.riquadri[1].testo, "Line File: 1.\rNot valid value");
}

TEST(ImportaTesto, ListsFifteenBadLinesAndNoMore) {
    const std::string quindici = "1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15";
    for (const auto& [quante, elenco] :
         {std::pair{1, std::string("1")}, {15, quindici}, {16, quindici + "..."}}) {
        std::string testo;
        for (int i = 0; i < quante; ++i)
            testo += "x\r\n";
        EsitoImporto esito;
        Importata(TableKind::Limite, testo, &esito);
        AmbienteProva ambiente;
        AvvisaImporto(ambiente, esito, TableKind::Limite);
        ASSERT_EQ(ambiente.riquadri.size(), 1u);
        EXPECT_EQ(ambiente.riquadri[0].testo, "Line File: " + elenco + ".\rNot valid value");
    }
}

TEST(IncollaColonne, MakesPointsOfTabsOrSemicolons) {
    ContenutoTabella c{.kind = TableKind::Limite};
    const EsitoImporto esito =
        IncollaColonne(c, "Frequency\tLevel\r\n0,15\t66\r\n\r\n0.5;56,5\r\n30 \t 60\r\n", 0,
                       ColonnaTabella::Frequenza);
    EXPECT_EQ(esito.nonValide, std::vector<size_t>{1}) << "the heading; empty lines do not count";
    ASSERT_EQ(c.righe.size(), 3u);
    EXPECT_EQ(c.righe[1].livelloCent, 5650);
    EXPECT_EQ(c.righe[2].freqMhz, 30);
}

TEST(IncollaColonne, AFurtherColumnGoesIntoTheRowsThatAreThere) {
    ContenutoTabella c = Importata(TableKind::FrequenzeMast, "1;1\n2;2\n3;3\n");
    const EsitoImporto esito =
        IncollaColonne(c, "20\t100\nx\t5\n30\n40\n", 1, ColonnaTabella::Livello);
    EXPECT_EQ(esito.nonValide, (std::vector<size_t>{2, 3, 4}));
    EXPECT_EQ(c.righe[0].livelloCent, 100);
    EXPECT_EQ(c.righe[1].livelloCent, 2000);
    EXPECT_EQ(c.righe[1].mastCm, 100);
    EXPECT_EQ(c.righe[2].livelloCent, 300) << "a bad line leaves its row as it was";
    EXPECT_EQ(c.righe.size(), 3u);
}

TEST_F(TabelleTestoTest, SavesHeaderTitleAndALineAPoint) {
    Metti("Header.TXT", "Laboratory\r\nRoom 1");
    ContenutoTabella c = Importata(TableKind::Limite, "0.15;66\n0.5;-0.5\n");
    c.titolo = "10 \xC2\xB5V limit";
    c.righe.push_back({.livelloCent = int16_t{5}}); // incomplete
    const auto file = Host("out.txt");
    ASSERT_TRUE(SalvaComeTesto(s, file, c));
    EXPECT_EQ(Prendi("out.txt"), "Laboratory\r\nRoom 1\r\n\r\n10 \xB5V limit\r\n"
                                 "0.15\t66.00\r\n0.5\t-.50\r\n");
    EsitoImporto esito;
    const ContenutoTabella ritorno = Importata(TableKind::Limite, *LeggiFileTesto(file), &esito);
    EXPECT_EQ(ritorno.righe, (std::vector(c.righe.begin(), c.righe.begin() + 2)));
    EXPECT_EQ(esito.nonValide, (std::vector<size_t>{1, 2, 3, 4}));
    EXPECT_EQ(TestoTabella({.titolo = "T"}, "a\n"), "a\r\n\r\nT\r\n");
    EXPECT_EQ(TestoTabella({.titolo = "T"}, "a\r\n\r\n"), "a\r\n\r\nT\r\n") << "parted already";
    EXPECT_FALSE(SalvaComeTesto(s, Host("nowhere/out.txt"), c));
    EXPECT_EQ(Riquadro(), "Cannot open file " + Host("nowhere/out.txt").string());
    EXPECT_EQ(LeggiFileTesto(Host("nowhere/out.txt")), std::nullopt);
    EXPECT_EQ(LeggiFileTesto(cartella.Percorso()), std::nullopt);
}

} // namespace
} // namespace orvane::prova
