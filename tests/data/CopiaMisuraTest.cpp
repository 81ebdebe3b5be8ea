// A measure from the fast directory to its place.
#include "data/CopiaMisura.h"

#include "ScrivaniaProva.h"

namespace orvane::prova {
namespace {

using CopiaMisuraTest = ProvaDati;

TEST_F(CopiaMisuraTest, TakesTheFilesOfTheMeasureAndLeavesTheRest) {
    const char* copiati[] = {"M.KSH",
                             "M.RS0",
                             "m.rs9",
                             "M.TM0",
                             "ADVMT.AD1",
                             "Sub_Measure/MEASMT.RS0",
                             "Sub_Measure/POSMEASMT.TM0",
                             "Factors/cable.5SC",
                             "Limits/B.5SL"};
    const char* lasciati[] = {"Test Comment.TXT",     "Running.RUN", "M.RSX", "RS0",
                              "Sub_Measure/note.txt", "Other/M.RS0"};
    for (const char* file : copiati)
        Metti(std::string("FAST/Sweep/M/") + file, file);
    for (const char* file : lasciati)
        Metti(std::string("FAST/Sweep/M/") + file, file);
    Metti("Sweep/M/M.RS0", "an older and longer one");
    Metti("Sweep/M/M.RS5", "of the place itself");

    const EsitoCopiaMisura esito = CopiaMisuraFTDaFast(s.albero, "FAST\\", "M");
    EXPECT_TRUE(esito.Riuscita());
    EXPECT_EQ(esito.copiati, std::size(copiati));
    for (const char* file : copiati)
        EXPECT_EQ(Prendi(std::string("Sweep/M/") + file), file);
    for (const char* file : lasciati)
        EXPECT_FALSE(std::filesystem::exists(Host(std::string("Sweep/M/") + file))) << file;
    EXPECT_EQ(Prendi("Sweep/M/M.RS5"), "of the place itself");
    EXPECT_EQ(Prendi("FAST/Sweep/M/M.RS0"), "M.RS0") << "a copy, not a move";
}

TEST_F(CopiaMisuraTest, TellsWhatFailedAndCopiesTheOthers) {
    for (const char* file : {"M.KSH", "M.RS0", "M.TM0", "Limits/B.5SL"})
        Metti(std::string("FAST/Sweep/M/") + file, "new");
    Metti("Sweep/M/M.RS0/in the way", "a directory");
    Metti("Sweep/M/Limits", "a file");
    const EsitoCopiaMisura esito = CopiaMisuraFTDaFast(s.albero, "FAST\\", "M");
    EXPECT_FALSE(esito.Riuscita());
    EXPECT_EQ(esito.falliti,
              (std::vector<std::string>{"Sweep\\M\\M.RS0", "Sweep\\M\\Limits\\B.5SL"}));
    EXPECT_EQ(esito.copiati, 2u);
    EXPECT_EQ(Prendi("Sweep/M/M.KSH"), "new");
    EXPECT_EQ(Prendi("Sweep/M/Limits"), "a file");
    EXPECT_EQ(Nomi("Sweep/M"), (std::vector<std::string>{"Limits", "M.KSH", "M.RS0", "M.TM0"}))
        << "no temporary file stays";
}

TEST_F(CopiaMisuraTest, NothingToCopyIsAFailure) {
    Metti("FAST/Sweep/M/M.KSH", "new");
    const std::pair<const char*, const char*> casi[] = {
        {"FAST\\", "N"}, {"SLOW\\", "M"}, {"FAST\\", ".."}, {"FAST\\", ""}, {"..\\", "M"}};
    for (const auto& [fast, misura] : casi) {
        const EsitoCopiaMisura esito = CopiaMisuraFTDaFast(s.albero, fast, misura);
        EXPECT_EQ(esito.falliti.size(), 1u) << fast << misura;
        EXPECT_EQ(esito.copiati, 0u);
    }
    EXPECT_FALSE(std::filesystem::exists(Host("Sweep")));
}

} // namespace
} // namespace orvane::prova
