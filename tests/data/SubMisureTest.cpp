// Names of sub-measures, their titles, and the list of them.
#include "data/SubMisure.h"

#include "ScrivaniaProva.h"
#include "data/Misure.h"

namespace orvane::prova {
namespace {

using Elenco = std::vector<std::string>;
using SubMisureTest = ProvaDati;

TEST(NomeSubMisuraEstesoTest, TitlesFollowFromTheNames) {
    const std::pair<const char*, const char*> casi[] = {
        // by mast
        {"MEASMT", "Measure"},
        {"measmt.RS0", "Measure"},
        {"ENVMEASMT.RS1", "Envelope"},
        {"POSMEASMT.TM0", ""},
        {"POSENVMEASMT", ""},
        {"PSM100PST045", "Mast: 100 cm   Table: 45 Deg"},
        {"PST045PSM100", "Mast: 100 cm   Table: 45 Deg"},
        {"psm100pst000.RS0", "Mast: 100 cm   Table: 0 Deg"},
        {"MEM400MET359", "Measure Mast: 400 cm   Table: 359 Deg"},
        {"W_01", "Worst: 1"},
        {"W_12.RS0", "Worst: 12"},
        {"MEASMT-W_03", "Measure Worst: 3"},
        {"PSM100PST045-W_02.RS3", "Mast: 100 cm   Table: 45 Deg Worst: 2"},
        {"Motor-L1-W_02", "Motor-L1 Worst: 2"},
        // what only looks like one of them
        {"Motor-L1", "Motor-L1"},
        {"W_1", "W_1"},
        {"W_123", "W_123"},
        {"PSM10PST045", "PSM10PST045"},
        {"PSM100PST0450", "PSM100PST0450"},
        {"PSM100MET045", "PSM100MET045"},
        {"PSM100PSM045", "PSM100PSM045"},
        {"MEM\xC3\xA9", "MEM\xC3\xA9"},
        {"", ""},
        {"-", "-"},
        {"-W_04", "Worst: 4"},
    };
    for (const auto& [file, titolo] : casi)
        EXPECT_EQ(NomeSubMisuraEsteso(file, PrioritaAssi::Mast), titolo) << file;
    EXPECT_EQ(BasePosizione(FaseMastTable::PreScan, 100, 5, PrioritaAssi::Mast), "PSM100PST005");
    EXPECT_EQ(BasePosizione(FaseMastTable::Measure, 90, 0, PrioritaAssi::Table), "MET000MEM090");
    EXPECT_EQ(BaseWorst("", 7) + BaseWorst("MEASMT", 12), "W_07MEASMT-W_12");
    EXPECT_EQ(NomeSubMisuraEsteso("MET000MEM090", PrioritaAssi::Table),
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

TEST_F(SubMisureTest, TheEnvelopeOfASingleOneStandsFirst) {
    Metti("Sweep/m/Sub_Measure/x.TM0", "");
    for (const bool inviluppo : {true, false})
        EXPECT_EQ(ElencaSubMisure(s, inviluppo, "m"), Elenco{""}) << "no envelope of nothing";
    Metti("Sweep/m/Sub_Measure/A.RS0", "");
    EXPECT_EQ(ElencaSubMisure(s, true, "m"), (Elenco{"Envelope", "A"}));
    EXPECT_EQ(ElencaSubMisure(s, true, "m", true), (Elenco{"Difference", "A"}));
    Metti("Sweep/z/Sub_Measure/Z.RS0", "");
    EXPECT_EQ(ElencaSubMisure(s, true, "z"), (Elenco{"Envelope", "Z"}));
    EXPECT_EQ(ElencaSubMisure(s, false, "z", true), Elenco{"Difference"});
}

} // namespace
} // namespace orvane::prova
