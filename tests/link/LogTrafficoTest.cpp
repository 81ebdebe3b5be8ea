// The logs of the traffic: which file, which line, byte for byte.
#include <gtest/gtest.h>

#include "aiuto/BancoLink.h"
#include "link/Comandi.h"
#include "link/Interrogazioni.h"
#include "link/Protocollo.h"

namespace orvane {
namespace {

using namespace prova;

constexpr const char* kSeparatore = "----------------------------\r\n";

void Scambia(BancoSeriale& b) {
    b.porta.ApriPorta(true);
    b.peer.RispondiDa({{"#SRBW3*", "RBW=OK\r\n"}});
    ImpostaBWIF(b.r, 3);
}

TEST(LogTraffico, EachSwitchHasItsFile) {
    struct Caso {
        const char* riga;
        const char* comandi; ///< file with the command
        const char* risposte;
    };
    for (const Caso& caso :
         {Caso{"/LOGCOMANDI", "LOGCOMANDI.TXT", ""}, Caso{"/LOGRISPOSTE", "", "LOGRISP.TXT"},
          Caso{"/LOGCOMRISP", "LOGCR.TXT", "LOGCR.TXT"},
          Caso{"/LOGCOMRISP/LOGRISPOSTE", "LOGCR.TXT", "LOGRISP.TXT"},
          Caso{"/LOGCOMANDI /LOGCOMRISP", "LOGCOMANDI.TXT", "LOGCR.TXT"},
          Caso{"/logcomandi /LOGRISP", "", ""}}) {
        BancoSeriale b(caso.riga);
        Scambia(b);
        for (const std::string file : {"LOGCOMANDI.TXT", "LOGRISP.TXT", "LOGCR.TXT"}) {
            const std::string atteso = std::string(file == caso.comandi ? "#SRBW3*\r\n" : "") +
                                       (file == caso.risposte ? "\t\tRBW=OK\r\n" : "");
            EXPECT_EQ(b.File(file), atteso) << caso.riga << " " << file;
        }
    }
}

TEST(LogTraffico, TheFilesOfAnEarlierRunGoAtTheFirstWrite) {
    BancoSeriale b("/LOGCOMRISP");
    std::ofstream(b.cartella.Percorso() / "LOGCR.TXT") << "old";
    std::ofstream(b.cartella.Percorso() / "LOGRISP.TXT") << "other";
    b.porta.ApriPorta(true);
    EXPECT_EQ(b.File("LOGCR.TXT"), "old");
    Scambia(b);
    Scambia(b);
    EXPECT_EQ(b.File("LOGCR.TXT"), "#SRBW3*\r\n\t\tRBW=OK\r\n#SRBW3*\r\n\t\tRBW=OK\r\n");
    EXPECT_EQ(b.File("LOGRISP.TXT"), "other");
}

TEST(LogTraffico, TimesSeparatorAndLabel) {
    BancoSeriale b("/LOGCOMRISP /TIMELOG");
    b.ambiente.calendario.secondiDelGiorno = 43200.126;
    b.log.etichetta = "M100T090";
    b.stato.SeparaLog = true;
    Scambia(b);
    EXPECT_FALSE(b.stato.SeparaLog);
    EXPECT_EQ(b.File("LOGCR.TXT"), std::string(kSeparatore) + "\t43200.13\t#SRBW3*\r\n"
                                                              "\t\tRBW=OK\t43200.13\tM100T090\r\n");
}

TEST(LogTraffico, TheSeparatorWaitsForALine) {
    BancoSeriale b;
    b.stato.SeparaLog = true;
    Scambia(b);
    EXPECT_TRUE(b.stato.SeparaLog);
}

TEST(LogTraffico, EachReplyOnceWithItsVerdict) {
    BancoAperto b("/LOGRISPOSTE");
    int volte = 0;
    b.peer.alComando = [&](const std::string&) {
        if (++volte == 1)
            b.peer.Rispondi("RBW=ERR\r\n");
        else if (volte == 2)
            b.peer.Rispondi("RBW=");
        else if (volte == 4)
            b.peer.Rispondi(" RBW\r=OK \r\n");
    };
    ImpostaBWIF(b.r, 3);
    EXPECT_EQ(b.File("LOGRISP.TXT"), "\t\tRBW=ERR***\r\n\t\tRBW=***\r\n\t\t***\r\n\t\tRBW =OK\r\n");
}

TEST(LogTraffico, ARepeatedQueryLeavesEachTryInTheLog) {
    BancoAperto b("/LOGCOMRISP");
    int volte = 0;
    b.peer.alComando = [&](const std::string&) {
        b.peer.Rispondi(++volte == 6 ? "MAT=1;20\r\n" : "MAT=?\r\n");
    };
    EXPECT_EQ(LeggiAttenuatore(b.r), 20);
    std::string atteso;
    for (int i = 0; i < 5; ++i)
        atteso += "#?MAT*\r\n\t\tMAT=?***\r\n";
    EXPECT_EQ(b.File("LOGCR.TXT"), atteso + "#?MAT*\r\n\t\tMAT=1;20\r\n");
}

TEST(LogTraffico, AReplyThatNobodyJudgedStandsBeforeTheNextCommand) {
    BancoAperto b("/LOGCOMRISP");
    b.peer.RispondiDa({{"#?DET*", "DET=1;\r\n"}});
    InviaComando(b.r, 0.3, "#?DET*", true);
    InviaGrezzo(b.r, "#SSTP*");
    InviaGrezzo(b.r, "#ASBK*");
    EXPECT_EQ(b.File("LOGCR.TXT"), "#?DET*\r\n\t\tDET=1;\r\n#SSTP*\r\n#ASBK*\r\n");
}

TEST(LogTraffico, TextGoesOutInTheCodePage) {
    BancoAperto b("/LOGCOMANDI");
    InviaGrezzo(b.r, "#SLIC 1,\u00B5V*");
    EXPECT_EQ(b.File("LOGCOMANDI.TXT"), "#SLIC 1,\xB5V*\r\n");
}

TEST(LogTraffico, SweepBytesAsTheyCame) {
    BancoSeriale b("/LOGSWEEP");
    const std::vector<uint8_t> blocco = {0, 13, 10, 255};
    b.log.InizioSweep("#SSFD 1*");
    b.log.BloccoSweep(blocco);
    b.log.InizioSweep("#SSFD 2*");
    EXPECT_EQ(b.File("LOGSWEEP.BIN"),
              std::string("#SSFD 1*\r\n\r\n") + std::string("\0\r\n\xFF", 4) + "#SSFD 2*\r\n\r\n");
    BancoSeriale senza("/LOGCOMRISP");
    senza.log.InizioSweep("#SSFD 1*");
    senza.log.BloccoSweep(blocco);
    EXPECT_EQ(senza.File("LOGSWEEP.BIN"), "");
}

TEST(LogTraffico, ALogThatCannotBeWrittenDisturbsNothing) {
    BancoSeriale b("/LOGCOMRISP");
    std::filesystem::create_directory(b.cartella.Percorso() / "LOGCR.TXT");
    Scambia(b);
    EXPECT_EQ(b.peer.scritti, Testi{"#SRBW3*"});
    EXPECT_FALSE(b.stato.AbbandonaComandi);
}

} // namespace
} // namespace orvane
