// Lines that are swept in passes, and the way in and out of a run.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "aiuto/BancoSimulato.h"
#include "data/Incompiute.h"
#include "data/TabelleLimFac.h"
#include "sweep/TracciaRiga.h"

namespace orvane {
namespace {

using prova::BancoSimulato;
using prova::Banda;
using Testi = std::vector<std::string>;

/// Notes what the run says of its passes and of its start.
struct VistaPassate : prova::VistaNota {
    Testi detti;
    std::vector<FaseCorsa> fasi;
    std::function<void(FaseCorsa)> allaFase;

    void MostraFase(FaseCorsa fase) override {
        fasi.push_back(fase);
        if (allaFase)
            allaFase(fase);
    }
    void IniziaPassata(const PassataInCorso& p) override { detti.push_back(p.etichetta); }
    void MostraAttesaTimer(int restano, int totale) override {
        detti.push_back(std::to_string(restano) + "/" + std::to_string(totale));
    }
    void MostraAttesaTrigger(int16_t, int porta) override {
        detti.push_back("port " + std::to_string(porta));
    }
    void NascondiAttesaInizio() override { detti.emplace_back("on"); }
};

struct PassateTest : testing::Test {
    void SetUp() override {
        Metti("B", "P", 0.65);
        banco.scan.Righe[0].HoldTime = 10;
    }
    void Metti(const char* banda, const char* detector, double stopMhz) {
        banco.scan.Righe[0] = Banda(banda, detector);
        banco.scan.Righe[0].Stop = stopMhz;
    }
    EsitoCorsa Esegui() { return ClickExecuteSweep(corsa, "M"); }
    Testi Riquadri() const { return banco.ambiente.Testi(); }
    /// From the first one on that holds `chiave`.
    Testi ComandiDa(std::string_view chiave) const {
        const Testi& tutti = banco.simulato.Comandi();
        return {std::ranges::find_if(
                    tutti, [&](const std::string& c) { return c.find(chiave) != c.npos; }),
                tutti.end()};
    }
    size_t Passi(const std::string& base) const { return banco.Passi("M", base); }

    BancoSimulato banco;
    VistaPassate vista;
    Corsa corsa{banco.scrivania, banco.ricevitore, banco.scan, banco.statoCorsa, vista};
};

TEST_F(PassateTest, ASmartLineRunsThroughBothLinesOfItsNetwork) {
    TabelleLimFac tabelle;
    tabelle.slot[kPrimoLimite].Freq = {150e3f, 30e6f};
    tabelle.slot[kPrimoLimite].Value = {6600, 5600};
    ASSERT_TRUE(SalvaLimFac(banco.scrivania, tabelle, PercorsoLimite("QP"), kPrimoLimite));
    banco.scrivania.setup.AncillaryKind = 1;
    ScanLine& riga = banco.scan.Righe[0];
    riga.LineSwitch = {0, 1, 1, 0};
    riga.Smart = riga.LimitOn = riga.PromptOn = 1;
    riga.Limit = "QP";
    riga.Margin = 6;
    riga.Prompt = "Plug in";
    banco.simulato.Aggiungi({.tipo = Capriccio::Tipo::Testo, .comando = "?UHT", .testo = "UHT=25"});
    ASSERT_EQ(Esegui(), EsitoCorsa::Compiuta);
    const std::string sweep = "#SSFD 150000;650000;5000;SP;10;6;10;OFF;ON;";
    Testi comandi = ComandiDa("#SUPP");
    for (std::string& comando : comandi)
        comando = comando.substr(0, sweep.size());
    EXPECT_EQ(comandi,
              (Testi{"#SUPP0*", "#SLIW0,150e3;66*", "#SLIW1,30000e3;56*", "#SLIEQP*", "#SLIM6*",
                     "#?BAT*", sweep, "#?UHT*", "#SUPP4*", "#?BAT*", sweep, "#?UHT*"}));
    EXPECT_EQ(Riquadri(), (Testi{"Plug in (L1)", "Plug in (L2)"}));
    EXPECT_EQ(vista.detti, (Testi{"1: Line: L1", "1: Line: L2"}));
    EXPECT_EQ(vista.frazione, 1);
    // The second pass was asked for as the first; what the receiver made of it is in the header.
    ScanRecord scan;
    SetupRecord setup;
    ASSERT_TRUE(CaricaHeaderSweep(banco.scrivania, PercorsoKSH("M"), scan, setup));
    EXPECT_EQ(scan.Righe[0].HoldTime, 25);
    EXPECT_EQ(riga.HoldTime, 10);
    for (const char* base : {"M", "Sub_Measure\\M-L1", "Sub_Measure\\M-L2"})
        EXPECT_EQ(Passi(base), 101u) << base;
    EXPECT_EQ(
        CreaTracciaSweep(banco.scrivania, "M", "M-L2", banco.scan.Righe, DetectorKind::Peak).size(),
        101u);
}

TEST_F(PassateTest, AnAntennaIsTurnedByHandAndAStopKeepsThePassBeforeIt) {
    BancoSimulato altro({.modello = "K3X"});
    Corsa suK3X{altro.scrivania, altro.ricevitore, altro.scan, altro.statoCorsa, vista};
    altro.scrivania.setup.AncillaryKind = 3;
    Metti("C", "P", 40);
    altro.scan = banco.scan;
    altro.scan.Righe[0].PreSel = 0;
    altro.scan.Righe[0].Antenna = {1, 1};
    altro.scan.Righe[0].PromptOn = 1;
    altro.scan.Righe[0].Prompt = "Mind";
    // Ahead of the box of the second pass.
    vista.allaFase = [&, misure = 0](FaseCorsa fase) mutable {
        misure += fase == FaseCorsa::Misura;
        if (fase == FaseCorsa::Riga && misure == 1)
            altro.ambiente.Fra(0, [&] { ChiediStop(altro.statoCorsa); });
    };
    EXPECT_EQ(ClickExecuteSweep(suK3X, "M"), EsitoCorsa::Fermata);
    ASSERT_GE(altro.ambiente.riquadri.size(), 2u) << altro.statoCorsa.motivo;
    EXPECT_EQ(altro.ambiente.riquadri[0].testo, "Mind (V)");
    EXPECT_EQ(altro.ambiente.riquadri[1].testo, "Switch antenna to Vertical");
    EXPECT_FALSE(altro.File(PercorsoRS("M", "Sub_Measure\\M-V", 0)).empty());
    EXPECT_FALSE(altro.scrivania.albero.Esiste(PercorsoRS("M", "Sub_Measure\\M-H", 0)));
    EXPECT_FALSE(altro.stato.AbbandonaComandi) << "a Stop is no abort to whatever comes next";

    vista.allaFase = {};
    altro.scrivania.setup.OverwriteWarning = 0;
    altro.ambiente.riquadri.clear();
    EXPECT_EQ(ClickExecuteSweep(suK3X, "M"), EsitoCorsa::Compiuta);
    ASSERT_EQ(altro.ambiente.riquadri.size(), 4u);
    EXPECT_EQ(altro.ambiente.riquadri[2].testo, "Mind (H)");
    EXPECT_EQ(altro.ambiente.riquadri[3].testo, "Switch antenna to Horizontal");
}

TEST_F(PassateTest, AsksForTheUnitThatALineNeeds) {
    banco.scan.Righe[1] = banco.scan.Righe[0];
    banco.scan.Righe[1].Start = 40;
    banco.scan.Righe[1].Stop = 41;
    banco.ambiente.risposte = {Risposta::Si}; // conducted and radiated lines together
    EXPECT_EQ(Esegui(), EsitoCorsa::Fermata) << corsa.stato.motivo;
    EXPECT_EQ(corsa.stato.motivo, "line 2 needs another unit");
    const Testi riquadri = Riquadri();
    ASSERT_EQ(riquadri.size(), 3u);
    EXPECT_TRUE(riquadri[1].starts_with("Switch OFF 5520.\rSwitch ON the extension unit"));
    EXPECT_EQ(Passi("M"), 101u) << "the line before it stands";
}

TEST_F(PassateTest, TheLinesOwnTraceHoldsTheHighestOfItsPasses) {
    TracciaRiga file(banco.scrivania, "M", 0);
    banco.scrivania.albero.AssicuraCartella(CartellaMisura("M"));
    const auto passo = [](int16_t p, int16_t q) {
        SampleRecord s;
        s.Livello[0] = p;
        s.Livello[1] = q;
        return s;
    };
    const std::vector<std::vector<SampleRecord>> passate = {
        {passo(10, 50), passo(20, kNessunLivello)},
        {passo(30, 40), passo(5, 1), passo(7, 7)},
        {passo(1, 60)}};
    const char* nomi[] = {"-L1", "-L2", "-L3"};
    for (size_t i = 0; i < passate.size(); ++i) {
        ASSERT_TRUE(file.IniziaPassata(nomi[i]));
        EXPECT_TRUE(file.Scrivi(passate[i]));
        EXPECT_EQ(Passi("Sub_Measure\\" + file.Base()), passate[i].size()) << "at once";
        EXPECT_TRUE(file.FinePassata());
    }
    const auto propria = LeggiTraccia(banco.scrivania, PercorsoRS("M", "M", 0));
    ASSERT_EQ(propria.size(), 3u);
    EXPECT_EQ(propria[0].Livello, passo(30, 60).Livello);
    EXPECT_EQ(propria[1].Livello, passo(20, 1).Livello);
    EXPECT_EQ(propria[2].Livello, passo(7, 7).Livello);
}

TEST_F(PassateTest, AFullDiskEndsTheRunWithAHeaderAndAFreeReceiver) {
    vista.allaFase = [&](FaseCorsa fase) {
        if (fase == FaseCorsa::Preparazione)
            std::filesystem::create_directories(banco.cartella.Percorso() / "Sweep" / "M");
        if (fase == FaseCorsa::Riga && !banco.scrivania.albero.Esiste(PercorsoRS("M", "M", 0)))
            std::filesystem::create_symlink("/dev/full",
                                            banco.cartella.Percorso() / "Sweep" / "M" / "M.RS0");
    };
    EXPECT_EQ(Esegui(), EsitoCorsa::GuastoFile);
    ASSERT_FALSE(banco.ambiente.riquadri.empty());
    EXPECT_TRUE(banco.ambiente.riquadri.back().testo.starts_with("Cannot save file "));
    EXPECT_EQ(banco.File(PercorsoKSH("M")).size(), 17770u);
    EXPECT_FALSE(MisuraIncompiuta(banco.scrivania.albero, "M"));
    EXPECT_FALSE(banco.porta.Aperta());
}

TEST_F(PassateTest, WaitsForTheClockOrTheUserPort) {
    struct {
        int secondi;
        int16_t modo;
        int prima, dopo; ///< user port, before and after 1 s
        Testi detti;
        double durata;
    } const casi[] = {
        {3, 0, 0, 0, {"3/3", "2/3", "1/3", "on"}, 3},
        {0, 1, 4, 0, {"port 4", "port 0", "on"}, 1},
        {0, 2, 0, 1, {"port 0", "port 1", "on"}, 1},
    };
    for (const auto& caso : casi) {
        ScegliTrigger(corsa.stato, caso.modo);
        if (caso.secondi > 0)
            ScegliTimer(corsa.stato, caso.secondi);
        vista.detti.clear();
        banco.scrivania.setup.OverwriteWarning = 0;
        banco.simulato.ImpostaUserPort(caso.prima);
        double inizio = 0;
        double fine = 0;
        vista.allaFase = [&](FaseCorsa fase) {
            (fase == FaseCorsa::Attesa ? inizio : fine) = banco.ambiente.ora;
            if (fase == FaseCorsa::Preparazione)
                vista.allaFase = {};
            if (fase == FaseCorsa::Attesa)
                banco.ambiente.Fra(1, [&] { banco.simulato.ImpostaUserPort(caso.dopo); });
        };
        EXPECT_EQ(Esegui(), EsitoCorsa::Compiuta);
        vista.detti.pop_back(); // the pass
        vista.detti.erase(std::unique(vista.detti.begin(), vista.detti.end()), vista.detti.end());
        EXPECT_EQ(vista.detti, caso.detti);
        EXPECT_NEAR(fine - inizio, caso.durata, 0.25);
    }
    EXPECT_EQ(corsa.stato.TriggerSweepMode, 2) << "stays chosen";
    ScegliTimer(corsa.stato, 5);
    EXPECT_EQ(corsa.stato.TriggerSweepMode, 0);
}

/// Stop acts in every phase within 0.3 s, also while a command goes unheard.
TEST_F(PassateTest, AStopActsAtOnceInEveryPhase) {
    struct {
        const char* muto; ///< the command that the receiver does not hear
        double dopoS;     ///< of that moment
        bool file;        ///< whether a measure is left
    } const casi[] = {
        {"?IDN", 0.1, false}, {"SDIS", 5, false}, {"?UPP", 1, false},
        {"?BAT", 0.1, true},  {"?UHT", 8, true},
    };
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.muto);
        BancoSimulato altro;
        altro.scan = banco.scan;
        altro.simulato.Aggiungi({.tipo = Capriccio::Tipo::Muto, .comando = caso.muto});
        Corsa una{altro.scrivania, altro.ricevitore, altro.scan, altro.statoCorsa, altro.vista};
        ScegliTrigger(una.stato, std::string_view(caso.muto) == "?UPP" ? 1 : 0);
        double chiesto = 0;
        std::function<void()> guarda = [&] {
            const Testi& comandi = altro.simulato.Comandi();
            if (comandi.empty() || comandi.back().find(caso.muto) == std::string::npos)
                return altro.ambiente.Fra(0.01, guarda);
            altro.ambiente.Fra(caso.dopoS, [&] {
                chiesto = altro.ambiente.ora;
                ChiediStop(una.stato);
            });
        };
        altro.ambiente.Fra(0, guarda);
        EXPECT_EQ(ClickExecuteSweep(una, "M"), EsitoCorsa::Fermata);
        ASSERT_GT(chiesto, 0);
        // 0.2 s more is what the run gives the receiver behind "#ASBK*".
        EXPECT_LE(altro.ambiente.ora - chiesto, 0.55);
        EXPECT_EQ(altro.scrivania.albero.EsisteCartella("Sweep\\M\\"), caso.file);
        EXPECT_TRUE(MisureIncompiute(altro.scrivania.albero).empty());
        EXPECT_EQ(una.stato.motivo, "stopped");
    }
}

TEST_F(PassateTest, AMeasureBearsTheMarkOfItsRunUntilTheEnd) {
    vista.alPasso = [&] {
        EXPECT_EQ(MisureIncompiute(banco.scrivania.albero), Testi{"M"});
        EXPECT_TRUE(ElencaMisure(banco.scrivania)[0].incompiuta);
    };
    ASSERT_EQ(Esegui(), EsitoCorsa::Compiuta);
    EXPECT_TRUE(MisureIncompiute(banco.scrivania.albero).empty());
    EXPECT_TRUE(SegnaCorsa(banco.scrivania.albero, "M"));
    EXPECT_TRUE(MisuraIncompiuta(banco.scrivania.albero, "M"));
    EXPECT_TRUE(TogliSegnoCorsa(banco.scrivania.albero, "M"));
    EXPECT_FALSE(ElencaMisure(banco.scrivania)[0].incompiuta);
}

TEST_F(PassateTest, AMeasureInAnothersHandStaysAsItIs) {
    ASSERT_EQ(Esegui(), EsitoCorsa::Compiuta);
    banco.scrivania.setup.OverwriteWarning = 0;
    banco.scrivania.albero =
        AlberoDati(banco.cartella.Percorso(), {},
                   {.prendi = {}, .presa = [](const std::filesystem::path&) { return true; }});
    ASSERT_TRUE(SegnaCorsa(banco.scrivania.albero, "M"));
    const size_t passi = Passi("M");
    EXPECT_GT(passi, 0u);
    EXPECT_EQ(Esegui(), EsitoCorsa::GuastoFile);
    EXPECT_EQ(corsa.stato.motivo, "Sweep M is being measured by another console");
    EXPECT_EQ(Riquadri().back(), corsa.stato.motivo);
    EXPECT_EQ(Passi("M"), passi);
    EXPECT_TRUE(MisuraInCorso(banco.scrivania.albero, "M")) << "the mark is not this run's";
}

} // namespace
} // namespace orvane
