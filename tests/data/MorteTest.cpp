// A program that is killed while it saves: every file is whole each time, the old one or the new.
#include <csignal>
#include <ctime>

#include <sys/wait.h>
#include <unistd.h>

#include "ScrivaniaProva.h"
#include "base/Numeri.h"
#include "data/Incompiute.h"
#include "data/Panels.h"
#include "data/Rinomine.h"
#include "platform/PresaFile.h"
#include "platform/Sincronizza.h"

namespace orvane::prova {
namespace {

namespace fs = std::filesystem;

constexpr int kMorti = 200;
constexpr unsigned kMassimaVitaUs = 10000; // behind the first save

/// A panel in which every part tells of its generation.
SetupRecord Generazione(int quale) {
    SetupRecord setup = SetupDefault();
    setup.GraphStart = quale;
    setup.Riserva38.fill(static_cast<uint8_t>(quale));
    setup.AntennaName = "generation " + TestoIntero(quale);
    setup.Riserva4320.fill(static_cast<uint8_t>(quale));
    return setup;
}

/// Writes a byte to `pronto` after the first save.
[[noreturn]] void SalvaPerSempre(AmbienteProva& ambiente, const fs::path& radice, int da,
                                 int pronto) {
    Scrivania s{.ambiente = ambiente, .albero = AlberoDati(radice, Sincronizza)};
    for (int quale = da;; ++quale) {
        s.setup = Generazione(quale);
        if (!SalvaPanelEAM(s, kPannelloEAM) || !SalvaPanelEPN(s, kPannelloEPN))
            _exit(1);
        if (quale == da && write(pronto, "!", 1) != 1)
            _exit(2);
    }
}

using MorteTest = ProvaDati;

TEST_F(MorteTest, AKillAtAnyMomentLeavesWholeFiles) {
    std::mt19937 caso(1);
    s.setup = Generazione(0);
    ASSERT_TRUE(SalvaPanelEAM(s, kPannelloEAM));
    ASSERT_TRUE(SalvaPanelEPN(s, kPannelloEPN));
    int ultima = 0;
    for (int morte = 0; morte < kMorti; ++morte) {
        int tubo[2];
        ASSERT_EQ(pipe(tubo), 0);
        const pid_t figlio = fork();
        ASSERT_GE(figlio, 0);
        if (figlio == 0)
            SalvaPerSempre(ambiente, cartella.Percorso(), ultima + 1, tubo[1]);
        close(tubo[1]);
        char segno = 0;
        const auto letti = read(tubo[0], &segno, 1);
        close(tubo[0]);
        const timespec vita{0, static_cast<long>(caso() % kMassimaVitaUs) * 1000};
        nanosleep(&vita, nullptr);
        kill(figlio, SIGKILL);
        int stato = 0;
        waitpid(figlio, &stato, 0);
        ASSERT_TRUE(letti == 1 && WIFSIGNALED(stato)) << "the saving itself failed";
        const std::string eam = Prendi("Panels/Untitled.EAM");
        SetupRecord letto;
        ASSERT_TRUE(LeggiRecord({reinterpret_cast<const uint8_t*>(eam.data()), eam.size()}, letto));
        const int quale = static_cast<int>(letto.GraphStart);
        ASSERT_GT(quale, ultima) << "an older one has come back";
        const auto intero = ScriviRecord(Generazione(quale));
        ASSERT_EQ(eam, std::string(intero.begin(), intero.end())) << "death " << morte;
        ASSERT_EQ(fs::file_size(Host("Panels/Untitled.EPN")), 2096u);
        ultima = quale;
    }
}

TEST_F(MorteTest, TheMarkOfARunTellsAKilledOneFromOneElsewhere) {
    const AlberoDati albero(cartella.Percorso(), Sincronizza, {PrendiFile, FilePreso});
    albero.AssicuraCartella("Sweep\\M");
    int tubo[2];
    ASSERT_EQ(pipe(tubo), 0);
    const pid_t figlio = fork();
    ASSERT_GE(figlio, 0);
    if (figlio == 0) {
        const auto segno = SegnaCorsa(albero, "M");
        if (!segno || !*segno || write(tubo[1], "!", 1) != 1)
            _exit(1);
        while (true)
            pause();
    }
    close(tubo[1]);
    char pronto = 0;
    EXPECT_EQ(read(tubo[0], &pronto, 1), 1);
    close(tubo[0]);
    EXPECT_TRUE(MisuraInCorso(albero, "M"));
    EXPECT_TRUE(MisureIncompiute(albero).empty());
    EXPECT_EQ(albero.Prendi(PercorsoSegnoCorsa("M")), nullptr);
    CatenaRinomine catena(albero);
    EXPECT_FALSE(catena.RinominaMisura("M", "N"));
    kill(figlio, SIGKILL);
    waitpid(figlio, nullptr, 0);
    EXPECT_FALSE(MisuraInCorso(albero, "M"));
    EXPECT_EQ(MisureIncompiute(albero), std::vector<std::string>{"M"});
    {
        const auto segno = SegnaCorsa(albero, "M");
        EXPECT_TRUE(MisuraInCorso(albero, "M")) << "its own";
    }
    EXPECT_TRUE(MisuraIncompiuta(albero, "M")) << "as an empty file of before";
}

} // namespace
} // namespace orvane::prova
