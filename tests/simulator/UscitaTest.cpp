// What leaves the receiver and when: pause, resume, abort, pacing, and the byte link over it.
#include "aiuto/AmbienteProva.h"
#include "simulator/Banco.h"
#include "simulator/FlussoSimulato.h"

namespace orvane::prova {
namespace {

constexpr std::string_view kSweep = "#SSFD 150000;30000000;5000;PQ;1;6;10;OFF;OFF;0*";
constexpr size_t kLungo = 8 + 5971 * 4 + 7;

TEST(Uscita, APauseIsSilentAndLosesNothing) {
    const std::string intero = Banco().Chiedi(kSweep);
    ASSERT_EQ(intero.size(), kLungo);
    Banco banco;
    banco.Manda(kSweep);
    std::string preso = banco.Prendi(1001);
    EXPECT_EQ(banco.Chiedi("#ASPA*"), "");
    banco.ora += 10;
    EXPECT_EQ(banco.Prendi(), "");
    EXPECT_EQ(banco.ricevitore.ProssimoByte(banco.ora), std::nullopt);
    EXPECT_EQ(banco.Chiedi("#?UPP*"), "UPP=0\r\n") << "a paused receiver answers";
    preso += banco.Chiedi("#ASRE*");
    EXPECT_TRUE(preso == intero);
    EXPECT_EQ(banco.Chiedi("#ASPA*#ASRE*#?UPP*"), "UPP=0\r\n") << "nothing runs any more";
}

TEST(Uscita, AReplyBegunInAPauseEndsBeforeTheStreamGoesOn) {
    Banco banco;
    banco.Manda(kSweep);
    const std::string prima = banco.Prendi(1001);
    banco.Manda("#ASPA*#?IDN*");
    EXPECT_EQ(banco.Prendi(3), "IDN");
    banco.Manda("#ASRE*");
    const std::string dopo = banco.Prendi();
    EXPECT_TRUE(dopo.starts_with("=5520-FW - 2.15 12/03/19\r\n"));
    EXPECT_EQ(prima.size() + dopo.size(), kLungo + 26);
}

TEST(Uscita, AnAbortDropsWhatIsUnderWay) {
    for (const auto& [comando, risposta] :
         {std::pair{"#ASBK*", "SBK=OK\r\n"}, std::pair{"#SSTP*", "STP=OK\r\n"}}) {
        Banco banco;
        banco.Manda(kSweep);
        banco.Prendi(500);
        EXPECT_EQ(banco.Chiedi(comando), risposta);
        EXPECT_EQ(banco.Prendi(), "");
        EXPECT_EQ(banco.ricevitore.Tagli(), 1u);
        banco.Manda(kSweep);
        banco.Prendi(500);
        banco.Manda("#ASPA*");
        EXPECT_EQ(banco.Chiedi(comando), risposta) << "from a pause too";
        EXPECT_EQ(banco.Chiedi(kSweep).size(), kLungo);
    }
}

TEST(Uscita, AtFullSpeedASweepCountsAWindow) {
    Banco banco;
    banco.Manda("#SSFD 150000;30000000;10;PQ;1;6;10;OFF;OFF;0*");
    EXPECT_EQ(banco.ricevitore.Pronti(banco.ora), 8u + 65536);
    EXPECT_EQ(banco.Prendi(200000).size(), 200000u) << "but gives what the reader takes";
    EXPECT_EQ(banco.ricevitore.ProssimoByte(banco.ora), banco.ora);
}

TEST(Uscita, TheLineSpeedPacesRepliesAndSweeps) {
    Banco banco("5520,speed=line");
    EXPECT_EQ(banco.Chiedi("#?UPP*"), "");
    EXPECT_EQ(banco.ricevitore.Pronti(banco.ora), 0u);
    const auto primo = banco.ricevitore.ProssimoByte(banco.ora);
    ASSERT_TRUE(primo);
    EXPECT_NEAR(*primo, banco.ora + 1 / 11520.0, 1e-9);
    banco.ora = *primo;
    EXPECT_EQ(banco.Prendi(), "U") << "a byte that is due is there";
    banco.ora += 1;
    EXPECT_EQ(banco.Prendi(), "PP=0\r\n");

    banco.ora += 100; // an idle line saves nothing up
    banco.Manda(kSweep);
    banco.ora += 0.5;
    EXPECT_EQ(banco.Prendi().size(), 5760u);
    banco.ora += 100;
    EXPECT_EQ(banco.Prendi().size(), kLungo - 5760);
    EXPECT_EQ(banco.ricevitore.ProssimoByte(banco.ora), std::nullopt);
}

TEST(Uscita, AReaderThatStopsHoldsThePacedSweepUp) {
    Banco banco("5520,speed=line");
    banco.Manda("#SSFD 150000;30000000;10;PQ;1;6;10;OFF;OFF;0*");
    banco.ora += 1000;
    EXPECT_EQ(banco.Prendi().size(), 8u + 65536);
    banco.ora += 1;
    EXPECT_EQ(banco.Prendi().size(), 11520u);
}

struct LinkSimulato : testing::Test {
    AmbienteProva ambiente;
    RicevitoreSimulato ricevitore{OpzioniSimulatore{}};
    FlussoSimulato flusso{ambiente, ricevitore};

    bool Scrivi(std::string_view testo) {
        return flusso.Scrivi({reinterpret_cast<const uint8_t*>(testo.data()), testo.size()});
    }
    std::string Leggi(size_t quanti) {
        std::string testo(quanti, '\0');
        const auto n = flusso.Leggi({reinterpret_cast<uint8_t*>(testo.data()), quanti});
        testo.resize(n.value_or(0));
        return testo;
    }
};

TEST_F(LinkSimulato, FailsLikeAPulledAdapter) {
    ASSERT_EQ(flusso.Apri(""), EsitoApertura::Aperto);
    ricevitore.Aggiungi({.tipo = Capriccio::Tipo::Scollegato});
    uint8_t byte = 0;
    EXPECT_FALSE(Scrivi("#?UPP*"));
    EXPECT_EQ(flusso.InArrivo(), std::nullopt);
    EXPECT_EQ(flusso.DaSpedire(), std::nullopt);
    EXPECT_EQ(flusso.Leggi({&byte, 1}), std::nullopt);
    EXPECT_EQ(flusso.Apri(""), EsitoApertura::Assente);
    ricevitore.Ricollega();
    EXPECT_EQ(flusso.Apri(""), EsitoApertura::Aperto);
    EXPECT_TRUE(Scrivi("#?UPP*"));
    EXPECT_EQ(Leggi(100), "UPP=0\r\n");
}

} // namespace
} // namespace orvane::prova
