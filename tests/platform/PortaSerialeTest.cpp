#include <gtest/gtest.h>

#include <cerrno>
#include <fstream>

#include <fcntl.h>
#include <sys/stat.h>
#include <termios.h>

#include "aiuto/CartellaProva.h"
#include "platform/Linea.h"

namespace orvane {
namespace {

using prova::Byte;
using prova::CartellaProva;
using prova::Linea;

constexpr uid_t kNessuno = 65534;

/// The line as a terminal session with a slow device would have left it.
void LasciaComeTerminale(const std::string& percorso) {
    const int linea = open(percorso.c_str(), O_RDWR | O_NOCTTY);
    termios modi = {};
    ASSERT_EQ(tcgetattr(linea, &modi), 0);
    modi.c_iflag |= ICRNL | IXON | IXOFF | ISTRIP;
    modi.c_oflag |= OPOST | ONLCR;
    modi.c_lflag |= ICANON | ECHO | ISIG;
    modi.c_cflag |= CSTOPB | CRTSCTS;
    modi.c_cc[VMIN] = 1;
    cfsetispeed(&modi, B9600);
    cfsetospeed(&modi, B9600);
    ASSERT_EQ(tcsetattr(linea, TCSANOW, &modi), 0);
    close(linea);
}

TEST(PortaSeriale, SetsTheLineWhateverItWasBefore) {
    Linea l;
    LasciaComeTerminale(l.pseudo.Percorso());
    ASSERT_EQ(l.Apri(), EsitoApertura::Aperto);
    termios modi = {};
    ASSERT_EQ(tcgetattr(l.sorveglia.descrittore, &modi), 0);
    EXPECT_EQ(cfgetispeed(&modi), speed_t{B115200});
    EXPECT_EQ(cfgetospeed(&modi), speed_t{B115200});
    EXPECT_EQ(modi.c_cflag & (CSIZE | PARENB | CSTOPB | CRTSCTS), tcflag_t{CS8});
    EXPECT_EQ(modi.c_cflag & (CLOCAL | CREAD), tcflag_t{CLOCAL | CREAD});
    EXPECT_EQ(modi.c_iflag & (ICRNL | INLCR | IGNCR | IXON | IXOFF | ISTRIP | BRKINT), 0U);
    EXPECT_EQ(modi.c_oflag & OPOST, 0U);
    EXPECT_EQ(modi.c_lflag & (ICANON | ECHO | ISIG | IEXTEN), 0U);
    EXPECT_EQ(modi.c_cc[VMIN] + modi.c_cc[VTIME], 0);
}

TEST(PortaSeriale, TellsWhyItCannotOpen) {
    CartellaProva cartella;
    const auto file = cartella.Percorso() / "file";
    std::ofstream(file) << "no device";
    SorvegliaLink sorveglia;
    PortaSeriale porta(sorveglia);
    for (const std::string& percorso : {(cartella.Percorso() / "nothing").string(), std::string()})
        EXPECT_EQ(porta.Apri(percorso), EsitoApertura::Assente);
    for (const std::string& percorso :
         {file.string(), cartella.Percorso().string(), std::string("/dev/null")})
        EXPECT_EQ(porta.Apri(percorso), EsitoApertura::Guasto);
    EXPECT_FALSE(porta.Aperto());
    EXPECT_EQ(sorveglia.descrittore, -1);
    Linea l;
    ASSERT_EQ(chmod(l.pseudo.Percorso().c_str(), 0), 0);
    // Everything is permitted to root, so ask as nobody.
    const int esito = prova::EsitoAltrove([&] {
        const bool lasciato = geteuid() != 0 || setuid(kNessuno) == 0;
        return lasciato ? static_cast<int>(l.Apri()) : -1;
    });
    EXPECT_EQ(esito, static_cast<int>(EsitoApertura::Vietato));
}

TEST(PortaSeriale, HoldsTheDeviceForItselfAlone) {
    Linea l;
    ASSERT_EQ(l.Apri(), EsitoApertura::Aperto);
    SorvegliaLink sorveglia;
    PortaSeriale seconda(sorveglia);
    EXPECT_EQ(seconda.Apri(l.pseudo.Percorso()), EsitoApertura::InUso);
    EXPECT_EQ(sorveglia.descrittore, -1);
    // The refused ones have taken nothing from the first.
    ASSERT_TRUE(l.porta.Scrivi(Byte("#SVER*")));
    EXPECT_EQ(l.ArrivatiAlPadrone(6), Byte("#SVER*"));
    l.porta.Chiudi();
    EXPECT_EQ(seconda.Apri(l.pseudo.Percorso()), EsitoApertura::Aperto);
}

TEST(PortaSeriale, KeepsOutProgramsThatAskForNoLock) {
    Linea l;
    ASSERT_EQ(chmod(l.pseudo.Percorso().c_str(), 0666), 0);
    const auto apriComeNessuno = [&] {
        return prova::EsitoAltrove([&] {
            if (geteuid() == 0 && setuid(kNessuno) != 0)
                return -1;
            return open(l.pseudo.Percorso().c_str(), O_RDWR | O_NOCTTY) >= 0 ? 0 : errno;
        });
    };
    ASSERT_EQ(l.Apri(), EsitoApertura::Aperto);
    EXPECT_EQ(apriComeNessuno(), EBUSY);
    l.porta.Chiudi();
    EXPECT_EQ(apriComeNessuno(), 0);
}

TEST(PortaSeriale, CountsReadsAndDropsWhatWaits) {
    Linea l;
    // What lay on the line before is nobody's reply.
    ASSERT_EQ(l.pseudo.Scrivi(Byte("stale")), 5U);
    ASSERT_EQ(l.Apri(), EsitoApertura::Aperto);
    EXPECT_EQ(l.porta.InArrivo(), 0U);
    std::vector<uint8_t> dove(8);
    EXPECT_EQ(l.porta.Leggi(dove), 0U);
    ASSERT_EQ(l.pseudo.Scrivi(Byte("SFD=OK\r\n")), 8U);
    EXPECT_EQ(l.ArrivatiAllaPorta(3), Byte("SFD"));
    EXPECT_EQ(l.porta.InArrivo(), 5U);
    l.porta.Scarta();
    EXPECT_EQ(l.porta.InArrivo(), 0U);
}

TEST(PortaSeriale, AVanishedDeviceFailsInsteadOfBeingSilent) {
    Linea l;
    ASSERT_EQ(l.Apri(), EsitoApertura::Aperto);
    ASSERT_EQ(l.porta.InArrivo(), 0U);
    l.pseudo.Stacca();
    std::vector<uint8_t> dove(8);
    EXPECT_EQ(l.porta.InArrivo(), std::nullopt);
    EXPECT_EQ(l.porta.Leggi(dove), std::nullopt);
    EXPECT_EQ(l.porta.DaSpedire(), std::nullopt);
    EXPECT_FALSE(l.porta.Scrivi(Byte("#ASBK*")));
    EXPECT_TRUE(l.porta.Aperto());
    EXPECT_EQ(l.Apri(), EsitoApertura::Assente);
    EXPECT_FALSE(l.porta.Aperto());
    EXPECT_EQ(l.sorveglia.descrittore, -1);
    EXPECT_EQ(l.porta.Leggi(dove), std::nullopt) << "nor does a closed one read";
    EXPECT_FALSE(l.porta.Scrivi({}));
}

TEST(PortaSeriale, GivesUpOnALineThatTakesNothing) {
    Linea l;
    ASSERT_EQ(l.Apri(), EsitoApertura::Aperto);
    EXPECT_FALSE(l.porta.Scrivi(std::vector<uint8_t>(1U << 20, 'x')));
    EXPECT_TRUE(l.porta.Aperto());
}

TEST(PseudoTerminale, StaysUpBetweenTwoClientsAndWritesOnlyWhatFits) {
    Linea l;
    ASSERT_FALSE(l.pseudo.Percorso().empty());
    ASSERT_EQ(l.Apri(), EsitoApertura::Aperto);
    l.porta.Chiudi();
    std::vector<uint8_t> dove(8);
    EXPECT_EQ(l.pseudo.Leggi(dove), 0U);
    ASSERT_EQ(l.Apri(), EsitoApertura::Aperto);
    ASSERT_TRUE(l.porta.Scrivi(Byte("#")));
    EXPECT_EQ(l.ArrivatiAlPadrone(1), Byte("#"));
    size_t andati = 0;
    for (const std::vector<uint8_t> blocco(4096, 'y'); andati < (1U << 22);) {
        const size_t n = l.pseudo.Scrivi(blocco);
        andati += n;
        if (n == 0)
            break;
    }
    EXPECT_GT(andati, 0U);
    EXPECT_LT(andati, 1U << 22);
    l.pseudo.Stacca();
    EXPECT_EQ(l.pseudo.Scrivi(Byte("x")), 0U);
    EXPECT_EQ(l.pseudo.Leggi(dove), 0U);
}

} // namespace
} // namespace orvane
