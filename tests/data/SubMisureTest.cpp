// Names of sub-measures, their titles, and the list of them.
#include "data/SubMisure.h"

#include "ScrivaniaProva.h"
#include "data/Misure.h"

namespace orvane::prova {
namespace {

using Elenco = std::vector<std::string>;
using SubMisureTest = ProvaDati;

TEST(NomeSubMisuraEstesoTest, TitlesFollowFromTheNames) {
    struct {
        const char* file;
        PrioritaAssi priorita;
        const char* titolo;
    } const casi[] = {
        {"MEASMT", PrioritaAssi::Mast, "Measure"},
        {"measmt.RS0", PrioritaAssi::Mast, "Measure"},
        {"ENVMEASMT.RS1", PrioritaAssi::Mast, "Envelope"},
        {"POSMEASMT.TM0", PrioritaAssi::Mast, ""},
        {"POSENVMEASMT", PrioritaAssi::Mast, ""},
        {"PSM100PST045", PrioritaAssi::Mast, "Mast: 100 cm   Table: 45 Deg"},
        {"PST045PSM100", PrioritaAssi::Mast, "Mast: 100 cm   Table: 45 Deg"},
        {"psm100pst000.RS0", PrioritaAssi::Table, "Table: 0 Deg   Mast: 100 cm"},
        {"MEM400MET359", PrioritaAssi::Mast, "Measure Mast: 400 cm   Table: 359 Deg"},
        {"W_01", PrioritaAssi::Mast, "Worst: 1"},
        {"W_12.RS0", PrioritaAssi::Mast, "Worst: 12"},
        {"MEASMT-W_03", PrioritaAssi::Mast, "Measure Worst: 3"},
        {"PSM100PST045-W_02.RS3", PrioritaAssi::Table, "Table: 45 Deg   Mast: 100 cm Worst: 2"},
        {"Motor-L1-W_02", PrioritaAssi::Mast, "Motor-L1 Worst: 2"},
        // what only looks like one of them
        {"Motor-L1", PrioritaAssi::Mast, "Motor-L1"},
        {"W_1", PrioritaAssi::Mast, "W_1"},
        {"W_123", PrioritaAssi::Mast, "W_123"},
        {"PSM10PST045", PrioritaAssi::Mast, "PSM10PST045"},
        {"PSM100PST0450", PrioritaAssi::Mast, "PSM100PST0450"},
        {"PSM100MET045", PrioritaAssi::Mast, "PSM100MET045"},
        {"PSM100PSM045", PrioritaAssi::Mast, "PSM100PSM045"},
        {"MEM\xC3\xA9", PrioritaAssi::Mast, "MEM\xC3\xA9"},
        {"", PrioritaAssi::Mast, ""},
        {"-", PrioritaAssi::Mast, "-"},
        {"-W_04", PrioritaAssi::Mast, "Worst: 4"},
    };
    for (const auto& caso : casi)
        EXPECT_EQ(NomeSubMisuraEsteso(caso.file, caso.priorita), caso.titolo) << caso.file;
}

TEST(NomeSubMisuraEstesoTest, WrittenNamesReadBack) {
    EXPECT_EQ(BasePosizione(FaseMastTable::PreScan, 100, 5, PrioritaAssi::Mast), "PSM100PST005");
    EXPECT_EQ(BasePosizione(FaseMastTable::Measure, 90, 0, PrioritaAssi::Table), "MET000MEM090");
    EXPECT_EQ(BaseWorst("", 7), "W_07");
    EXPECT_EQ(BaseWorst("MEASMT", 12), "MEASMT-W_12");
    EXPECT_EQ(NomeSubMisuraEsteso(BasePosizione(FaseMastTable::Measure, 90, 0, PrioritaAssi::Table),
                                  PrioritaAssi::Table),
              "Measure Table: 0 Deg   Mast: 90 cm");
}

TEST_F(SubMisureTest, OnlyAFileOfThatNameMakesAMastTableMeasure) {
    EXPECT_FALSE(ControllaMEASMT(s, "m"));
    Metti("Sweep/m/Sub_Measure/ENVMEASMT.RS0", "");
    Metti("Sweep/m/MEASMT.RS0", "beside, not below");
    EXPECT_FALSE(ControllaMEASMT(s, "m"));
    Metti("Sweep/m/sub_measure/MeasMT.rs0", "");
    std::filesystem::rename(Host("Sweep/m/sub_measure/MeasMT.rs0"),
                            Host("Sweep/m/Sub_Measure/MeasMT.rs0"));
    EXPECT_TRUE(ControllaMEASMT(s, "M"));
}

TEST_F(SubMisureTest, EachSubMeasureIsListedOnceWhateverItsLines) {
    for (const char* file : {"b.RS1", "B.rs0", "a.RS9", "W_01.RS3", "c.TM0", "d.RSX", "e.TXT"})
        Metti(std::string("Sweep/m/Sub_Measure/") + file, "");
    Metti("Sweep/m/m.RS0", "the main trace");
    EXPECT_EQ(ElencaSubMisure(s, false, "m"), (Elenco{"a", "B", "W_01"}));
    EXPECT_EQ(ElencaSubMisure(s, true, "m"), (Elenco{"a", "B", "Envelope", "W_01"}));
}

TEST_F(SubMisureTest, WithoutAnyThereIsOneEmptyText) {
    EXPECT_EQ(ElencaSubMisure(s, false, "m"), Elenco{""});
    Metti("Sweep/m/Sub_Measure/x.TM0", "");
    EXPECT_EQ(ElencaSubMisure(s, true, "m"), Elenco{""}) << "no envelope of nothing";
    EXPECT_EQ(ElencaSubMisure(s, true, "m", true), Elenco{""});
}

TEST_F(SubMisureTest, TheEnvelopeOfASingleOneStandsFirst) {
    Metti("Sweep/m/Sub_Measure/A.RS0", "");
    EXPECT_EQ(ElencaSubMisure(s, true, "m"), (Elenco{"Envelope", "A"}));
    EXPECT_EQ(ElencaSubMisure(s, true, "m", true), (Elenco{"Difference", "A"}));
    Metti("Sweep/z/Sub_Measure/Z.RS0", "");
    EXPECT_EQ(ElencaSubMisure(s, true, "z"), (Elenco{"Envelope", "Z"}));
    EXPECT_EQ(ElencaSubMisure(s, false, "z", true), Elenco{"Difference"});
}

} // namespace
} // namespace orvane::prova
