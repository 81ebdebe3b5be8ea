#include "sweep/Corsa.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "aiuto/BancoSimulato.h"
#include "sweep/FlussoSweep.h"

namespace orvane {
namespace {

using prova::BancoSimulato;
using prova::Banda;

struct CorsaTest : testing::Test {
    void SetUp() override {
        banco.scan.Righe[0] = Banda("B", "P,Q");
        banco.scan.Righe[0].Stop = 0.65;
    }
    EsitoCorsa Esegui(const char* misura = "M") { return ClickExecuteSweep(banco.corsa, misura); }
    size_t PassiSuDisco(int riga = 0) const { return banco.Passi("M", "M", riga); }
    void Capriccia(Capriccio capriccio) { banco.simulato.Aggiungi(capriccio); }

    BancoSimulato banco;
};

TEST_F(CorsaTest, GoesFromReceiverToDisk) {
    banco.scan.Righe[1] = Banda("B", "A");
    banco.scan.Righe[1].Start = 1;
    banco.scan.Righe[1].Stop = 1.5;
    ASSERT_EQ(Esegui(), EsitoCorsa::Compiuta);
    EXPECT_EQ(PassiSuDisco(0), 101u);
    EXPECT_EQ(PassiSuDisco(1), 101u);
    EXPECT_EQ(banco.vista.passi, 202u);
    EXPECT_EQ(banco.vista.frazione, 1.0);
    EXPECT_FALSE(banco.porta.Aperta());

    // The file holds what the receiver sent, and nothing for the detectors not in use.
    const auto traccia = LeggiTraccia(banco.scrivania, PercorsoRS("M", "M", 0));
    ASSERT_EQ(traccia.size(), 101u);
    const CondizioniSpettro condizioni{.rbwHz = 9000, .attDb = 10};
    EXPECT_EQ(traccia[40].Livello[0], LivelloSimulato(0.35, 0, condizioni));
    EXPECT_EQ(traccia[40].Livello[1], LivelloSimulato(0.35, 1, condizioni));
    EXPECT_EQ(traccia[40].Livello[2], kNessunLivello);

    ScanRecord scan;
    SetupRecord setup;
    EXPECT_EQ(banco.File(PercorsoKSH("M")).size(), 17770u);
    ASSERT_TRUE(CaricaHeaderSweep(banco.scrivania, PercorsoKSH("M"), scan, setup));
    EXPECT_EQ(scan.Righe[1].Start, 1.0);
    EXPECT_EQ(setup.ModelText, "5520");
    EXPECT_TRUE(setup.FwRelease.starts_with("2.")) << setup.FwRelease;
}

TEST_F(CorsaTest, SpeaksToTheReceiverInTheFixedOrder) {
    ASSERT_EQ(Esegui(), EsitoCorsa::Compiuta);
    const std::vector<std::string> attesi = {
        "#ASBK*",    "#?IDN*",      "#?BCD*",
        "#?MIL*",    "#?CRA*",      "#?S/N*",
        "#SCFA -1*", "#SDIS80;65*", "#SPLMOFF*",
        "#STGSOFF*", "#STGL0*",     "#STGTOFF*",
        "#STGF0e3*", "#?BAT*",      "#SSFD 150000;650000;5000;PQ;1.9;6;10;OFF;ON;0*",
        "#?UHT*"};
    EXPECT_EQ(banco.simulato.Comandi(), attesi);
}

TEST(CorsaFermata, KeepsWhatHasArrivedAndTellsTheReceiver) {
    BancoSimulato banco({.byteAlSecondo = kByteAlSecondoLinea});
    banco.scan.Righe[0] = Banda("B", "P,Q");
    banco.vista.alPasso = [&] { ChiediStop(banco.statoCorsa); };
    EXPECT_EQ(ClickExecuteSweep(banco.corsa, "M"), EsitoCorsa::Fermata);
    const auto PassiSuDisco = [&] { return banco.Passi("M", "M"); };
    EXPECT_EQ(PassiSuDisco(), banco.vista.passi);
    EXPECT_GT(PassiSuDisco(), 0u);
    EXPECT_LT(PassiSuDisco(), 5971u);
    const auto& comandi = banco.simulato.Comandi();
    EXPECT_EQ(comandi[comandi.size() - 2], "#ASBK*");
    EXPECT_EQ(comandi.back(), "#?BAT*");
    EXPECT_EQ(banco.File(PercorsoKSH("M")).size(), 17770u);
    EXPECT_FALSE(banco.statoCorsa.SweepInCorso);
    EXPECT_EQ(banco.statoCorsa.fase, FaseCorsa::Ferma);
    // The same bench runs on.
    banco.vista.alPasso = {};
    banco.scrivania.setup.OverwriteWarning = 0;
    EXPECT_EQ(ClickExecuteSweep(banco.corsa, "M"), EsitoCorsa::Compiuta);
    EXPECT_EQ(PassiSuDisco(), 5971u);
}

TEST_F(CorsaTest, AnOlderMeasureStandsUntilTheNewOneHasBegun) {
    ASSERT_EQ(Esegui(), EsitoCorsa::Compiuta);
    const auto header = banco.File(PercorsoKSH("M"));
    banco.scrivania.setup.OverwriteWarning = 0;
    banco.scan.Righe[0].Stop = 1.15;
    Capriccia({.tipo = Capriccio::Tipo::Rifiuto, .comando = "SPLM"});
    banco.ambiente.Fra(30, [this] { banco.stato.AbbandonaComandi = true; });
    EXPECT_EQ(Esegui(), EsitoCorsa::Abbandonata);
    EXPECT_EQ(banco.File(PercorsoKSH("M")), header);
    EXPECT_EQ(PassiSuDisco(), 101u);
}

TEST_F(CorsaTest, TrackingIsSetOnceMoreBeforeEachLine) {
    banco.scrivania.setup.TGOn = 1;
    banco.scan.Righe[1] = Banda("B", "A");
    banco.scan.Righe[1].Start = 1;
    ASSERT_EQ(Esegui(), EsitoCorsa::Compiuta);
    EXPECT_EQ(banco.Quanti("#STGTON*"), 3u);
    const auto& comandi = banco.simulato.Comandi();
    for (size_t i = 1; i < comandi.size(); ++i) {
        if (comandi[i].starts_with("#SSFD")) {
            EXPECT_EQ(comandi[i - 1], "#STGTON*");
        }
    }
}

/// A line on which bytes go on for ever once the sweep has been asked for: `coda` again and again.
struct LineaLoquace : FlussoSimulato {
    LineaLoquace(prova::AmbienteProva& ambiente, RicevitoreSimulato& simulato, std::string continua)
        : FlussoSimulato(ambiente, simulato), orologio(ambiente), coda(std::move(continua)) {
        ambiente.linkPronto = [this] { return InArrivo().value_or(0) > 0; };
    }
    bool Scrivi(std::span<const uint8_t> dati) override {
        if (std::string_view(reinterpret_cast<const char*>(dati.data()), dati.size())
                .starts_with("#SSFD"))
            parla = true;
        return FlussoSimulato::Scrivi(dati);
    }
    std::optional<size_t> InArrivo() override {
        const auto veri = FlussoSimulato::InArrivo();
        return veri == 0u && parla ? coda.size() : veri;
    }
    std::optional<size_t> Leggi(std::span<uint8_t> dove) override {
        if (FlussoSimulato::InArrivo() != 0u || !parla)
            return FlussoSimulato::Leggi(dove);
        orologio.ora += 0.001; // as a line takes its time
        const size_t quanti = std::min(coda.size(), dove.size());
        std::copy_n(coda.begin(), quanti, dove.begin());
        return quanti;
    }
    prova::AmbienteProva& orologio;
    std::string coda;
    bool parla = false;
};

TEST_F(CorsaTest, AReceiverThatNeverFallsSilentDoesNotHoldTheRun) {
    LineaLoquace linea(banco.ambiente, banco.simulato, std::string(500, 'x'));
    banco.porta.fisso->flusso = &linea;
    // Behind the end mark: what the line holds is complete, and the user can leave the drain.
    banco.ambiente.Fra(4, [this] { banco.stato.AbbandonaComandi = true; });
    EXPECT_EQ(Esegui(), EsitoCorsa::Abbandonata);
    EXPECT_EQ(PassiSuDisco(), 101u);
    EXPECT_LT(banco.ambiente.ora, 1010);
}

TEST_F(CorsaTest, AStreamThatBringsFarTooManyStepsEndsTheRun) {
    Capriccia({.tipo = Capriccio::Tipo::Muto, .comando = "SSFD"});
    LineaLoquace linea(banco.ambiente, banco.simulato, "SFD=OK\r\n" + std::string(2000, 'x'));
    banco.porta.fisso->flusso = &linea;
    EXPECT_EQ(Esegui(), EsitoCorsa::GuastoLink);
    EXPECT_GT(PassiSuDisco(), 1000u);
    EXPECT_LT(PassiSuDisco(), 3000u);
    EXPECT_EQ(banco.simulato.Comandi().back(), "#ASBK*");
}

TEST_F(CorsaTest, TellsItsDurationOnlyWhereTheCommandLineAsksForIt) {
    ASSERT_EQ(Esegui("quiet"), EsitoCorsa::Compiuta);
    EXPECT_TRUE(banco.ambiente.riquadri.empty());
    banco.ambiente.riga = "/VISTIMESWEEP";
    ASSERT_EQ(Esegui("told"), EsitoCorsa::Compiuta);
    ASSERT_EQ(banco.ambiente.riquadri.size(), 1u);
    EXPECT_TRUE(banco.ambiente.riquadri[0].testo.starts_with("Elapsed time "));
    EXPECT_TRUE(banco.ambiente.riquadri[0].testo.ends_with(" s"));
}

TEST_F(CorsaTest, ASecondClickInARunIsTheStop) {
    banco.scan.Righe[0].Stop = 30;
    banco.vista.alPasso = [this] { ClickExecuteSweep(banco.corsa, "M"); };
    EXPECT_EQ(Esegui(), EsitoCorsa::Fermata);
}

long Aperti() {
    const std::filesystem::directory_iterator cartella("/proc/self/fd");
    return std::distance(begin(cartella), end(cartella));
}

TEST_F(CorsaTest, EndsAsToldWhateverTheReceiverDoesAndLeavesNothingOpen) {
    using enum Capriccio::Tipo;
    struct Caso {
        const char* nome;
        Capriccio capriccio;
        EsitoCorsa esito;
        const char* parole; ///< in a box or in the banner
    };
    const Caso casi[] = {
        {"whole", {.tipo = Testo, .comando = "?UHT", .testo = "UHT=25"}, EsitoCorsa::Compiuta, ""},
        {"stop", {}, EsitoCorsa::Fermata, ""},
        {"refused",
         {.tipo = Errore, .comando = "SSFD", .numero = 5},
         EsitoCorsa::GuastoLink,
         "Error set RBW"},
        {"no acknowledgement",
         {.tipo = Muto, .comando = "SSFD"},
         EsitoCorsa::GuastoLink,
         "5520 Time out"},
        {"silent in mid-sample",
         {.tipo = StreamMuto, .numero = 41},
         EsitoCorsa::GuastoLink,
         "5520 Time out"},
        {"line gone", {.tipo = Scollegato, .numero = 102}, EsitoCorsa::GuastoLink, "5520 Time out"},
    };
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.nome);
        const bool ferma = caso.esito == EsitoCorsa::Fermata;
        BancoSimulato altro({.byteAlSecondo = ferma ? kByteAlSecondoLinea : 0});
        altro.scan = banco.scan;
        if (ferma)
            altro.vista.alPasso = [&] { ChiediStop(altro.statoCorsa); };
        else
            altro.simulato.Aggiungi(caso.capriccio);
        const long prima = Aperti();
        EXPECT_EQ(ClickExecuteSweep(altro.corsa, "M"), caso.esito);
        EXPECT_EQ(Aperti(), prima);
        std::string detto;
        for (const std::string& testo : altro.ambiente.Testi())
            detto += testo + "\n";
        for (const auto& striscia : altro.vista.strisce)
            detto += striscia + "\n";
        EXPECT_NE(detto.find(caso.parole), std::string::npos) << detto;
        EXPECT_EQ(altro.File(PercorsoKSH("M")).size(), 17770u);
        EXPECT_EQ(altro.File(PercorsoRS("M", "M", 0)).size(), altro.vista.passi * kByteCampione);
        EXPECT_FALSE(altro.porta.Aperta());
    }
}

TEST_F(CorsaTest, ALineThatIsGoneIsToldAtOnce) {
    Capriccia({.tipo = Capriccio::Tipo::Scollegato, .numero = 102});
    EXPECT_EQ(Esegui(), EsitoCorsa::GuastoLink);
    EXPECT_LT(banco.ambiente.ora, 1003); // and not when the time for a reply has passed
}

TEST_F(CorsaTest, TheAbortEndsARunThatWaitsForASetter) {
    Capriccia({.tipo = Capriccio::Tipo::Rifiuto, .comando = "SDIS"});
    banco.ambiente.Fra(30, [this] { banco.stato.AbbandonaComandi = true; });
    EXPECT_EQ(Esegui(), EsitoCorsa::Abbandonata);
    EXPECT_EQ(banco.vista.strisce.size(), 1u);
    EXPECT_FALSE(banco.vista.strisciaVisibile);
    EXPECT_FALSE(banco.scrivania.albero.EsisteCartella(CartellaMisura("M")));
    banco.simulato.Scorda();
    EXPECT_EQ(Esegui(), EsitoCorsa::Compiuta) << "the next run begins anew";
}

TEST_F(CorsaTest, ChecksRefuseBeforeAnythingIsWritten) {
    banco.scan.Righe[0].Stop = banco.scan.Righe[0].Start;
    EXPECT_EQ(Esegui(), EsitoCorsa::Rifiutata);
    ASSERT_EQ(banco.ambiente.riquadri.size(), 1u);
    EXPECT_NE(banco.ambiente.riquadri[0].testo.find("Start/Stop Frequency Error"),
              std::string::npos);
    EXPECT_FALSE(banco.vista.celleErrate.empty());
    EXPECT_FALSE(banco.scrivania.albero.EsisteCartella("Sweep\\"));
    BancoSimulato vuoto;
    EXPECT_EQ(ClickExecuteSweep(vuoto.corsa, "M"), EsitoCorsa::Rifiutata);
}

TEST_F(CorsaTest, AFileThatCannotBeWrittenStopsTheRun) {
    // A directory stands where the header belongs.
    std::filesystem::create_directories(banco.cartella.Percorso() / "Sweep");
    std::ofstream(banco.cartella.Percorso() / "Sweep" / "M").put('x');
    EXPECT_EQ(Esegui(), EsitoCorsa::GuastoFile);
    ASSERT_FALSE(banco.ambiente.riquadri.empty());
    EXPECT_TRUE(banco.ambiente.riquadri[0].testo.starts_with("Cannot open file "));
    EXPECT_FALSE(banco.statoCorsa.SweepInCorso);
}

TEST(Corsa5520F, AFastFrontEndThatSendsNoHeaderIsAskedAgainThreeTimes) {
    BancoSimulato banco({.modello = "GX2207F"});
    banco.scan.Righe[0] = Banda("B", "P");
    banco.simulato.Aggiungi({.tipo = Capriccio::Tipo::StreamMuto, .numero = 0});
    EXPECT_EQ(ClickExecuteSweep(banco.corsa, "M"), EsitoCorsa::GuastoLink);
    EXPECT_EQ(banco.Quanti("#SSFD"), 4u);
    EXPECT_EQ(banco.ambiente.riquadri.back().testo, "5520 Time out");
}

TEST(Corsa5520F, TakesTheStepThatTheReceiverAnnounces) {
    BancoSimulato banco({.modello = "5520F"});
    banco.scan.Righe[0] = Banda("B", "P");
    banco.scan.Righe[0].Stop = 1.15;
    ASSERT_EQ(ClickExecuteSweep(banco.corsa, "M"), EsitoCorsa::Compiuta);
    ScanRecord scan;
    SetupRecord setup;
    ASSERT_TRUE(CaricaHeaderSweep(banco.scrivania, PercorsoKSH("M"), scan, setup));
    const auto byte = banco.File(PercorsoRS("M", "M", 0)).size();
    EXPECT_EQ(static_cast<long long>(byte / kByteCampione), PassiDellaRiga(scan.Righe[0]));
    EXPECT_EQ(banco.vista.frazione, 1.0);
    // The table that the user set up is as it was.
    EXPECT_EQ(banco.scan.Righe[0].Step, 0.005);
}

} // namespace
} // namespace orvane
