// The archive without its window: what opening a measure changes and what it leaves alone, its
// tree, and the ways out.
#include "console/Archivio.h"

#include <gtest/gtest.h>

#include "data/Panels.h"
#include "data/ScrivaniaProva.h"

namespace orvane::prova {
namespace {

struct ArchivioTest : ProvaDati {
    StatoArchivio a;

    ArchivioTest() {
        s.setup = SetupDefault();
        s.setup.OrderForDate = 0;
        SalvaPanelEAM(s, kPannelloEAM);
        ImpostaColoriDefault(s.env);
    }
    /// A measure of one line, 1 to 3 MHz, whose Peak rises by 1 dB from `livello`.
    SweepHeader Misura(const std::string& nome, int16_t livello = 1000) {
        SweepHeader header{.Setup = SetupDefault()};
        header.Setup.UnitId = 0;
        header.Setup.SommaFact = 1;
        header.Setup.ModelText = "5520";
        ScanLine& riga = header.Scan.Righe[0];
        riga.Start = riga.Step = 1;
        riga.Stop = 3;
        riga.Detector = {1, 0, 0, 1};
        SalvaHeaderSweep(s, PercorsoKSH(nome), header.Scan, header.Setup);
        Traccia(nome, nome, livello);
        return header;
    }
    void Traccia(const std::string& misura, const std::string& base, int16_t livello) {
        std::vector<SampleRecord> passi(3);
        for (size_t k = 0; k < passi.size(); ++k)
            passi[k].Livello[0] = static_cast<int16_t>(livello + 100 * static_cast<int>(k));
        const std::string dove =
            base == misura ? CartellaMisura(misura) : CartellaSubMisure(misura);
        s.albero.AssicuraCartella(dove);
        ASSERT_TRUE(SalvaTraccia(s, dove + base + ".RS0", passi));
    }
    int Primo() const {
        return a.misura.traccia->empty() ? -1 : a.misura.traccia->front().livello[0];
    }
    SetupRecord SuDisco() {
        Scrivania altra{.ambiente = ambiente, .albero = s.albero};
        CaricaPanelEAM(altra, kPannelloEAM);
        return altra.setup;
    }
};

TEST_F(ArchivioTest, AnEmptyArchiveIsABlankViewOfUntitled) {
    s.env.SweepPath = "Sweep\\Gone\\Gone.KSH";
    AttivaSweepsArchive(s, a);
    EXPECT_EQ(s.env.SweepPath, "Untitled.EST");
    EXPECT_FALSE(a.Mostrata());
    EXPECT_EQ(ControllaAbilitazioniArchivio(a), AbilitazioniArchivio{});
    EXPECT_FALSE(ClickTreeViewFileSweep(s, a, 0));
    EXPECT_EQ(MisuraAccanto(a, 1), "");
    EXPECT_TRUE(ambiente.riquadri.empty());
}

TEST_F(ArchivioTest, AMeasureBringsItsSetUpButForTheFieldsOfTheView) {
    Misura("Lamp");
    s.setup.UnitId = 3;
    s.setup.RefLevel = 20;
    s.setup.LimitOn[1] = 1;
    s.setup.VerdictDetector = {2, 0};
    s.setup.Riserva3826[399] = 9;
    const auto operatore = ScriviRecord(s.setup);
    AttivaSweepsArchive(s, a);
    EXPECT_TRUE(s.NoSaveSetup);
    EXPECT_EQ(a.misura.nome, "Lamp");
    EXPECT_EQ(s.env.SweepPath, "Sweep\\Lamp\\Lamp.KSH");
    EXPECT_EQ(s.setup.SommaFact, 1);
    EXPECT_EQ(s.setup.ModelText, "5520");
    EXPECT_EQ(s.setup.UnitId, 3);
    EXPECT_EQ(s.setup.RefLevel, 20);
    EXPECT_EQ(s.setup.LimitOn[1], 1);
    EXPECT_EQ(s.setup.VerdictDetector[0], 2);
    EXPECT_EQ(s.setup.Riserva3826[399], 9);
    EXPECT_EQ(a.misura.header.Setup.UnitId, 0);
    // A change in the view stays while other measures are opened, and ends with the view.
    Misura("Motor");
    s.setup.RefLevel = 50;
    VisualizzaDatiSweepata(s, a, "Motor");
    EXPECT_EQ(s.setup.RefLevel, 50);
    EXPECT_EQ(SuDisco().RefLevel, 0);
    LasciaSweepsArchive(s, a);
    EXPECT_FALSE(s.NoSaveSetup);
    EXPECT_EQ(ScriviRecord(s.setup), operatore);
    EXPECT_EQ(SuDisco().RefLevel, 20);
}

TEST_F(ArchivioTest, AChangeOfUnitReadsTheTraceAgainButNotTheHeader) {
    Misura("Lamp");
    AttivaSweepsArchive(s, a);
    EXPECT_EQ(Primo(), 1000);
    std::filesystem::remove(Host("Sweep/Lamp/Lamp.KSH"));
    Traccia("Lamp", "Lamp", 2000);
    ASSERT_TRUE(CambiaUnitaArchivio(s, a, 2));
    EXPECT_EQ(Primo(), 2000);
    EXPECT_EQ(a.misura.nome, "Lamp");
    // A field unit without a factor keeps the picture as it is.
    Traccia("Lamp", "Lamp", 3000);
    EXPECT_FALSE(CambiaUnitaArchivio(s, a, 4));
    EXPECT_EQ(Primo(), 2000);
}

TEST_F(ArchivioTest, AMeasureWithoutHeaderLeadsOnInTheDirectionOfTheWalk) {
    for (const char* nome : {"A", "B", "C"})
        Misura(nome);
    AttivaSweepsArchive(s, a);
    std::filesystem::remove(Host("Sweep/B/B.KSH"));
    const auto oltre = VisualizzaDatiSweepata(s, a, MisuraAccanto(a, 1));
    EXPECT_EQ(oltre.mostrata, "C");
    EXPECT_TRUE(oltre.elencoCambiato);
    EXPECT_EQ(VisualizzaDatiSweepata(s, a, MisuraAccanto(a, -1)).mostrata, "A");
    std::filesystem::remove_all(Host("Sweep/C"));
    EXPECT_EQ(VisualizzaDatiSweepata(s, a, "C").mostrata, "A");
    EXPECT_EQ(a.elenco, (std::vector<std::string>{"A", "B"}));
    EXPECT_TRUE(ambiente.riquadri.empty());
    Metti("Sweep/B/B.KSH", "torn");
    EXPECT_FALSE(VisualizzaDatiSweepata(s, a, "B").elencoCambiato);
    EXPECT_TRUE(Riquadro().starts_with("Failed loading"));
    EXPECT_FALSE(a.Mostrata());
    EXPECT_EQ(a.misura.nome, "B");
}

TEST_F(ArchivioTest, AMeasureThatAnotherProgramDeletesGivesWayToItsNeighbour) {
    for (const char* nome : {"A", "B", "C"})
        Misura(nome);
    // The panel cannot be written, which says nothing at any measure.
    std::filesystem::create_directories(Host("Panels/Untitled.EPN"));
    AttivaSweepsArchive(s, a);
    VisualizzaDatiSweepata(s, a, "B");
    std::filesystem::remove_all(Host("Sweep/A"));
    EXPECT_EQ(RinnovaArchivio(s, a).mostrata, "B");
    Misura("A");
    std::filesystem::remove_all(Host("Sweep/B"));
    EXPECT_EQ(RinnovaArchivio(s, a).mostrata, "C");
    EXPECT_EQ(a.elenco, (std::vector<std::string>{"A", "C"}));
    EXPECT_EQ(VisualizzaDatiSweepata(s, a, "never").mostrata, "A");
    EXPECT_TRUE(ambiente.riquadri.empty());
}

std::string Albero(const StatoArchivio& a) {
    std::string testo;
    for (const NodoSubMisura& n : a.albero) {
        const FileDaNodo file = NomeFileDaNodo(a.contesto, n);
        testo += std::string(static_cast<size_t>(n.profondita), '.') + n.testo + "=" + file.base +
                 (file.base.empty() ? "" : "/" + std::to_string(static_cast<int>(file.vista))) +
                 "\n";
    }
    return testo;
}

TEST_F(ArchivioTest, TheTreeOfAMeasureWithPassesHasTheirEnvelope) {
    Misura("Lamp", 1000);
    Traccia("Lamp", "Lamp-L1", 1000);
    Traccia("Lamp", "Lamp-N", 1500);
    Traccia("Lamp", "W_02", 300);
    Traccia("Lamp", "Lamp-L1-W_01", 400);
    AttivaSweepsArchive(s, a);
    EXPECT_EQ(Albero(a), "Lamp=Lamp/1\n"
                         ".Worst: 2=W_02/1\n"
                         ".Envelope=Envelope/1\n"
                         ".L1=Lamp-L1-W_01/1\n"
                         "..Worst: 1=Lamp-L1-W_01/1\n"
                         ".N=Lamp-N/1\n");
    ASSERT_TRUE(ClickTreeViewFileSweep(s, a, 2));
    EXPECT_EQ(Primo(), 1500);
    EXPECT_FALSE(std::filesystem::exists(Host("Sweep/Lamp/Sub_Measure/ENVMEASMT.RS0")));
    ASSERT_TRUE(ClickTreeViewFileSweep(s, a, 1));
    EXPECT_EQ(Primo(), 300);
    a.ViewWorstMode = 2;
    EXPECT_EQ(TitoloArchivio(a), "Lamp Worst: 2");
    a.ViewWorstMode = 0;
    EXPECT_EQ(TitoloArchivio(a), "Lamp");
    // The passes keep their names when the measure gets another.
    ASSERT_TRUE(RinominaMisura(s, "Lamp", "Older"));
    VisualizzaDatiSweepata(s, a, "Older");
    EXPECT_EQ(a.albero[0].testo + a.albero.back().testo, "OlderN");
}

TEST_F(ArchivioTest, AMastTableMeasureIsGroupedAndKeepsItsEnvelope) {
    Misura("Horn");
    for (const auto& [base, livello] :
         {std::pair{"PST000PSM100", 100}, {"PST090PSM100", 900}, {"MET090MEM120", 500}})
        Traccia("Horn", base, static_cast<int16_t>(livello));
    Traccia("Horn", "MEASMT", 700);
    AttivaSweepsArchive(s, a);
    EXPECT_EQ(Albero(a), "Pre Scan=\n"
                         ".Table: 0 Deg   Mast: 100 cm=PST000PSM100/1\n"
                         ".Table: 90 Deg   Mast: 100 cm=PST090PSM100/1\n"
                         "Measure=MEASMT/2\n"
                         ".Table: 90 Deg   Mast: 120 cm=MET090MEM120/1\n"
                         "Envelope=\n"
                         ".Pre Scan Envelope=ENVMEASMT/3\n");
    EXPECT_EQ(Primo(), 700);
    EXPECT_TRUE(ControllaAbilitazioniArchivio(a).CBXDetectorMeasSweep);
    EXPECT_FALSE(ClickTreeViewFileSweep(s, a, 0));
    ASSERT_TRUE(ClickTreeViewFileSweep(s, a, 6));
    EXPECT_EQ(Primo(), 900);
    EXPECT_EQ(a.misura.traccia->front().table, 90);
    EXPECT_FALSE(ControllaAbilitazioniArchivio(a).CBXDetectorMeasSweep);
    EXPECT_TRUE(ControllaAbilitazioniArchivio(a).CHKLock);
    EXPECT_TRUE(std::filesystem::exists(Host("Sweep/Horn/Sub_Measure/ENVMEASMT.RS0")));
    EXPECT_EQ(NomeFileDaNodo(a.contesto, {.testo = "M. 120 T. 5"}).base, "MET005MEM120");
    EXPECT_EQ(NomeFileDaNodo(a.contesto, {.testo = "Measure Envelope"}),
              (FileDaNodo{"ENVMEASMT", ViewMode::Inviluppo}));
}

TEST_F(ArchivioTest, AReferenceMustBeComparableAndFollowsDetectorAndNode) {
    Misura("A", 1000);
    Misura("B", 400);
    SweepHeader altra = Misura("C");
    altra.Scan.Righe[0].PreAmp = 1;
    SalvaHeaderSweep(s, PercorsoKSH("C"), altra.Scan, altra.Setup);
    Traccia("A", "A-L1", 900);
    Traccia("B", "B-L1", 200);
    AttivaSweepsArchive(s, a);
    EXPECT_FALSE(ScegliRiferimento(s, a, "C"));
    EXPECT_EQ(Riquadro(), "Measure not comparable");
    EXPECT_FALSE(a.riferimento);
    EXPECT_TRUE(SovrapponiMisura(s, a, "C"));
    EXPECT_FALSE(SovrapponiMisura(s, a, "a"));
    ASSERT_TRUE(ScegliRiferimento(s, a, "B"));
    EXPECT_EQ(a.differenza.at(0).livello[0], 600);
    ASSERT_TRUE(ClickTreeViewFileSweep(s, a, 1));
    EXPECT_EQ(a.differenza.at(0).livello[0], 700);
    EXPECT_TRUE(ScegliDetectorArchivio(s, a, 3));
    EXPECT_FALSE(ScegliDetectorArchivio(s, a, 1));
    VisualizzaDatiSweepata(s, a, "C");
    EXPECT_FALSE(a.riferimento);
    EXPECT_TRUE(a.sovrapposte.empty());
}

TEST_F(ArchivioTest, DeletingShowsTheNeighbourAndAtLastNothing) {
    for (const char* nome : {"A", "B"})
        Misura(nome);
    AttivaSweepsArchive(s, a);
    EXPECT_FALSE(EliminaMisura(s, a, "A"));
    EXPECT_EQ(a.misura.nome, "A");
    ambiente.risposte = {Risposta::Ok, Risposta::Ok};
    EXPECT_EQ(EliminaMisura(s, a, "A").value_or(EsitoMostra{}).mostrata, "B");
    EXPECT_EQ(s.env.SweepPath, "Sweep\\B\\B.KSH");
    EXPECT_EQ(EliminaMisura(s, a, "B").value_or(EsitoMostra{"?"}).mostrata, "");
    EXPECT_EQ(s.env.SweepPath, "Untitled.EST");
}

TEST_F(ArchivioTest, RedoStoresTheTableUnderAFreeName) {
    const SweepHeader header = Misura("Lamp");
    ScanRecord scan;
    EXPECT_EQ(RedoTabella(s, header.Scan, "Lamp", scan), "Panels\\Lamp.EST");
    EXPECT_EQ(s.env.ScanPanelPath, "Panels\\Lamp.EST");
    EXPECT_TRUE(ConfrontaScanTab(scan, header.Scan));
    scan = {};
    EXPECT_FALSE(RedoTabella(s, header.Scan, "lamp", scan)); // No, and No again
    EXPECT_EQ(scan.Righe[0].Start, 0);
    ambiente.risposte = {Risposta::Si};
    EXPECT_EQ(RedoTabella(s, header.Scan, "lamp", scan), "Panels\\lamp_000.EST");
    EXPECT_EQ(ambiente.riquadri.back().testo,
              "Scan Table lamp already exists.\rRename in lamp_000?");
}

} // namespace
} // namespace orvane::prova
