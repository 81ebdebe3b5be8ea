// The logs of the traffic: which file, which line, byte for byte.
#include <gtest/gtest.h>

#include "aiuto/BancoLink.h"
#include "link/Comandi.h"
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

TEST(LogTraffico, EachReplyOnceWithItsVerdict) {
    BancoAperto b("/LOGRISPOSTE");
    b.peer.RispondiInFila({"RBW=ERR\r\n", "RBW=", "", " RBW\r=OK \r\n"});
    ImpostaBWIF(b.r, 3);
    EXPECT_EQ(b.File("LOGRISP.TXT"), "\t\tRBW=ERR***\r\n\t\tRBW=***\r\n\t\t***\r\n\t\tRBW =OK\r\n");
}

TEST(LogTraffico, AReplyThatNobodyJudgedStandsBeforeTheNextCommand) {
    BancoAperto b("/LOGCOMRISP");
    b.peer.RispondiDa({{"#?DET*", "DET=1;\r\n"}});
    InviaComando(b.r, 0.3, "#?DET*", true);
    InviaGrezzo(b.r, "#SSTP*");
    InviaGrezzo(b.r, "#ASBK*");
    EXPECT_EQ(b.File("LOGCR.TXT"), "#?DET*\r\n\t\tDET=1;\r\n#SSTP*\r\n#ASBK*\r\n");
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
