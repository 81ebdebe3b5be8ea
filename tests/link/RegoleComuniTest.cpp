// The rules that tie the settings together, and the order in which they go out.
#include <gtest/gtest.h>

#include "aiuto/BancoLink.h"
#include "link/ElencoAtt.h"
#include "link/ImpLocali.h"

namespace orvane {
namespace {

using namespace prova;
using enum Modalita;

struct VistaComuniNota : VistaComuni {
    Testi detti;
    void MostraComuni() override { detti.push_back("comuni"); }
    void RidisegnaScala() override { detti.push_back("scala"); }
    void MostraFiltro(const FiltroMostrato& filtro) override { detti.push_back(filtro.didascalia); }
    void RiempiLineSwitch() override { detti.push_back("switch"); }
    void InviaLineSwitch() override { detti.push_back("invia switch"); }
};

/// A receiver that accepts every setter; queries by table.
struct BancoComuni : BancoAperto {
    explicit BancoComuni(ReceiverModel modello, std::map<std::string, std::string> domande = {}) {
        r.modello = std::move(modello);
        r.caps = ImpostaModelCaps(r.modello);
        domande.emplace("#?RBW *", "RBW=MAN 6\r\n");
        peer.alComando = [this, domande](const std::string& comando) {
            const auto voce = domande.find(comando);
            peer.Rispondi(voce != domande.end() ? voce->second : comando.substr(2, 3) + " =OK\r\n");
        };
    }
    SetupRecord setup;
    VistaComuniNota vista;
    ComuniVivi c{r, setup, vista};
};

const ReceiverModel kBasso = {.HaK3XK6X = true, .ModoK3X = 1};
const ReceiverModel kAlto = {.HaK3XK6X = true, .ModoK3X = 2, .EstensioneAttiva = true};

TEST(RegoleComuni, WhatAModelHasEnabled) {
    const struct {
        ReceiverModel modello;
        bool preselettore, preAmp, pulseLimiter;
    } casi[] = {{{}, true, true, true},
                {{.UnitaEstensione = 1, .EstensioneAttiva = true}, true, true, true},
                {{.UnitaEstensione = 2, .EstensioneAttiva = true}, false, true, true},
                {{.TipoFrontEnd = 1}, false, true, true},
                {kBasso, true, true, true},
                {kAlto, false, false, false},
                {{.Is3360 = true, .ModoK3X = 2}, false, false, false},
                {{.ModelloOEM = 1, .ModoK3X = 1}, true, true, true}};
    for (const auto& caso : casi) {
        const RegoleComuni regole = DeterminaRegoleComuni({}, caso.modello, {});
        EXPECT_EQ(regole.preselettore.abilitato, caso.preselettore);
        EXPECT_EQ(regole.preAmp.abilitato, caso.preAmp);
        EXPECT_EQ(regole.pulseLimiter.abilitato, caso.pulseLimiter);
        EXPECT_EQ(regole.preselettore.perche.empty(), caso.preselettore);
    }
}

TEST(RegoleComuni, TheGeneratorByTabAndModel) {
    const struct {
        ReceiverModel modello;
        Modalita scheda;
        bool abilitato, invariato, spento;
    } casi[] = {{{}, SweepsArchive, false, false, false},
                {{}, Click, false, false, false},
                {{.Is3360 = true}, Sweep, true, false, false},
                {{.Is3360 = true}, Analyzer, false, false, true},
                {{.TipoFrontEnd = 1}, Manual, true, true, false},
                {{.TipoFrontEnd = 3}, Manual, false, false, true},
                {{.ModelloOEM = 3, .TipoFrontEnd = 3}, Manual, true, false, false},
                {kAlto, Analyzer, true, false, false},
                {{}, Analyzer, true, false, false}};
    for (const auto& caso : casi) {
        const StatoGeneratore g = ControllaImpGen(caso.modello, caso.scheda);
        EXPECT_EQ(g.stato.abilitato, caso.abilitato);
        EXPECT_EQ(g.invariato, caso.invariato);
        EXPECT_EQ(g.spento, caso.spento);
    }
}

TEST(RegoleComuni, StoredValuesAreLimitedToTheLists) {
    SetupRecord setup;
    setup.BWIFText = "10 Hz Mil";
    setup.BWIFId = 11;
    setup.Attenuator = 50;
    setup.MinAtt = 5;
    setup.RFOut = setup.TGOn = 1;
    ControllaParComuni(setup, {.Is3360 = true}, {.scheda = Analyzer});
    EXPECT_EQ(setup.BWIFText, "9 kHz CISPR");
    EXPECT_EQ(setup.BWIFId, 5);
    EXPECT_EQ(setup.Attenuator, 35);
    EXPECT_EQ(kMinAttDb[static_cast<size_t>(setup.MinAtt)], 10);
    EXPECT_EQ(setup.RFOut + setup.TGOn, 0);
}

TEST(RegoleComuni, ACoupledFilterTakesThePlaceOfTheChosenOne) {
    SetupRecord setup;
    setup.GraphStart = 1;
    setup.GraphStop = 4;
    setup.BWIFText = "300 kHz";
    EXPECT_EQ(ControllaParComuni(setup, {}, {}).rigaFiltro, 0u);
    setup.Coupled = 1;
    ControllaParComuni(setup, {}, {});
    EXPECT_EQ(setup.BWIFText, "30 kHz");
    setup.BWIFText = "300 kHz";
    ControllaParComuni(setup, {}, {.filtri = {.modalita = Manual}});
    EXPECT_EQ(setup.BWIFText, "300 kHz");
}

TEST(RegoleComuni, ThePreselectorIsReadBackWhereThereIsOneToSwitch) {
    for (const auto& [risposta, atteso] : {std::pair("APS=on\r\n", 1), {"APS=OFF\r\n", 0}}) {
        BancoComuni b({}, {{"#?APS*", risposta}});
        b.setup.PreSel = 1 - atteso;
        ControllaPreSelAn(b.c);
        EXPECT_EQ(b.setup.PreSel, atteso);
    }
    for (const ReceiverModel& modello :
         {ReceiverModel{.UnitaEstensione = 2, .EstensioneAttiva = true},
          ReceiverModel{.TipoFrontEnd = 1}, kAlto}) {
        BancoComuni b(modello);
        ControllaPreSelAn(b.c);
        EXPECT_EQ(b.peer.scritti, Testi{});
    }
}

TEST(LimitiFrequenza, TheBorderOfTheRanges) {
    using enum GammaK3X;
    const struct {
        ReceiverModel modello;
        CampoFrequenza voluto;
        std::optional<GammaK3X> passaggio;
    } casi[] = {{kBasso, {0.15, 30.1}, {}}, {kBasso, {0.15, 30.100001}, Radiata},
                {kAlto, {28, 1000}, {}},    {kAlto, {27.999999, 1000}, Condotta},
                {{}, {0.15, 1000}, {}},     {{.Is3360 = true, .ModoK3X = 1}, {40, 40}, Radiata}};
    for (const auto& caso : casi)
        EXPECT_EQ(PassaggioGamma(caso.modello, caso.voluto), caso.passaggio);
    const ModelCaps caps = ImpostaModelCaps({.UnitaEstensione = 1, .EstensioneAttiva = true})[0];
    EXPECT_EQ(DeterminaLimFStartFStopAn5570(caps, {0.15, 9000}), (CampoFrequenza{28, 6000}));
}

TEST(LimitiFrequenza, WithoutOkTheFrequencyStays) {
    BancoComuni b(kBasso);
    b.setup.FreqMa = 10;
    ImpLocaliFrequenzaMa(b.c, 100);
    EXPECT_EQ(b.Riquadri(), Testi{"Switch to radiated"});
    EXPECT_EQ(b.setup.FreqMa, 10);
    EXPECT_EQ(b.peer.scritti, Testi{});
}

TEST(LimitiFrequenza, OkSwitchesTheReceiverAndMeetsItAnew) {
    BancoComuni b(kAlto, {{"#?IDN*", "IDN=5520/K3X - 1.0 x\r\n"}, {"#?BCD*", "BCD=OFF;K3X\r\n"}});
    b.ambiente.risposte = {Risposta::Ok};
    ImpLocaliFreqStartStopAn(b.c, {.startMhz = 0.15, .stopMhz = 100});
    EXPECT_EQ(b.Riquadri(), Testi{"Switch to conducted"});
    EXPECT_EQ(b.peer.scritti,
              (Testi{"#SSTP*", "#S3PRC*", "#?IDN*", "#?BCD*", "#SAFF150e3,30100e3*"}));
    EXPECT_EQ(b.r.modello.ModoK3X, 1);
    EXPECT_EQ(b.setup.GraphStop, 30.1);
    EXPECT_EQ(b.vista.detti, (Testi{"switch", "scala"}));
}

TEST(RegoleComuni, WithAReceiverBehindThem) {
    BancoComuni b({}, {{"#?APS*", "APS=ON\r\n"}});
    b.setup.GraphStart = 0.15;
    b.setup.GraphStop = 9000;
    b.setup.Coupled = 1;
    EXPECT_TRUE(ControllaParComuni(b.c, {.scheda = Analyzer}).filtroCoupled);
    EXPECT_EQ(b.peer.scritti, Testi{"#?APS*"});
    EXPECT_EQ(b.setup.PreSel, 1);
    EXPECT_EQ(b.setup.GraphStop, 30.1);
    EXPECT_EQ(b.setup.BWIFText, "300 kHz"); // of a span of 29.95 MHz
    EXPECT_EQ(b.vista.detti, Testi{"comuni"});

    BancoComuni nuovo(kAlto);
    ControllaParComuni(nuovo.c, {.scheda = Manual, .filtri = {.modalita = Manual}});
    EXPECT_EQ(nuovo.setup.FreqMa, 28);
    EXPECT_EQ(nuovo.Riquadri(), Testi{});
}

TEST(ImpLocali, EverySettingGoesOutInItsOrder) {
    BancoComuni b({});
    b.setup.GraphStart = 0.15;
    b.setup.GraphStop = 30;
    b.setup.BWIFText = "9 kHz CISPR";
    b.setup.Attenuator = kAttAuto;
    b.setup.DinamicaId = 6;
    b.setup.RefLevel = 100;
    b.setup.PreAmp = b.setup.RFOut = 1;
    b.setup.TGLevel = 80;
    b.setup.TGFreq = 10;
    InviaParComuni(b.c, Analyzer);
    EXPECT_EQ(b.peer.scritti,
              (Testi{"#SAFF150e3,30000e3*", "#SRBW6*", "#?RBW *", "#SAAT-1*", "#STAT0*",
                     "#SDIS120;120*", "#SAPSOFF*", "#SAPAON*", "#SPLMOFF*", "#STGSON*", "#STGL80*",
                     "#STGF10000e3*", "#STGTOFF*"}));
    EXPECT_EQ(b.vista.detti, (Testi{"invia switch", "BW IF 9 kHz CISPR"}));
}

TEST(ImpLocali, AFrontEndHasItsInputsAndNoPreselector) {
    BancoComuni b({.Is5520F = true, .TipoFrontEnd = 3});
    b.setup.FreqMa = 10;
    b.setup.RFOut = b.setup.AltaImpedenza = 1;
    InviaParComuni(b.c, Manual);
    EXPECT_EQ(b.peer.scritti,
              (Testi{"#SMODH*", "#SIHPOFF*", "#SMAF10000e3*", "#SRBW0*", "#?RBW *", "#SMAT0*",
                     "#STAT0*", "#SDIS80;65*", "#SMPAOFF*", "#SPLMOFF*", "#STGSON*", "#SITG 1*"}));
}

TEST(ImpLocali, AFilterIdThatIsNoNumberIsAskedAgain) {
    BancoComuni b({});
    int volte = 0;
    b.peer.alComando = [&](const std::string& comando) {
        const bool domanda = comando == "#?RBW *";
        b.peer.Rispondi(!domanda ? "RBW=OK\r\n" : ++volte < 3 ? "RBW=MAN x\r\n" : "RBW=MAN 7\r\n");
    };
    ImpLocaliBWIFAn(b.c, 6);
    EXPECT_EQ(b.peer.scritti, (Testi{"#SRBW7*", "#?RBW *", "#?RBW *", "#?RBW *"}));
    EXPECT_EQ(b.vista.detti, Testi{"BW IF 200 Hz CISPR"});
    EXPECT_EQ(b.setup.BWIFText, "200 Hz CISPR");
}

TEST(ImpLocali, GivingUpDuringAFilterChangeClearsTheBanner) {
    BancoComuni b({});
    b.peer.alComando = {};
    b.ambiente.Fra(20, [&] { b.stato.AbbandonaComandi = true; });
    ImpLocaliBWIFMa(b.c, 99);
    EXPECT_EQ(b.setup.BWIFText, "200 Hz CISPR");
    EXPECT_EQ(b.finestra.Quanti("mostra Error set BW IF"), 1u);
    EXPECT_TRUE(b.stato.striscia.empty());
    EXPECT_EQ(b.vista.detti, Testi{});
    InviaParComuni(b.c, Manual);
    EXPECT_EQ(b.peer.scritti.back(), "#SRBW7*");
}

TEST(ImpLocali, EachSendsItsOneCommandAndRedraws) {
    const struct {
        void (*imposta)(ComuniVivi&);
        const char* comando;
        const char* detto;
    } casi[] = {
        {[](ComuniVivi& c) { ImpLocaliAttAn(c, 15); }, "#SAAT15*", "scala"},
        {[](ComuniVivi& c) { ImpLocaliAttMa(c, kAttAuto); }, "#SMAT-1*", "scala"},
        {[](ComuniVivi& c) { ImpLocaliMinAttMa(c, 3); }, "#STAT30*", "comuni"},
        {[](ComuniVivi& c) { ImpLocaliRLDynAn(c, 1, 90); }, "#SDIS100;90*", "scala"},
        {[](ComuniVivi& c) { ImpLocaliPreselMa(c, true); }, "#SMPSON*", "comuni"},
        {[](ComuniVivi& c) { ImpLocaliPreAmpMa(c, true); }, "#SMPAON*", "comuni"},
        {[](ComuniVivi& c) { ImpLocaliPulseLimAn(c, true); }, "#SPLMON*", "comuni"},
        {[](ComuniVivi& c) { ImpLocaliRFOutMa(c, true); }, "#STGSON*", "comuni"},
        {[](ComuniVivi& c) { ImpLocaliTrackingAn(c, true); }, "#STGTON*", "comuni"},
        {[](ComuniVivi& c) { ImpLocaliLivelloAn(c, 0.5); }, "#STGL0.5*", "comuni"},
        {[](ComuniVivi& c) { ImpLocaliTGFreqenzaMa(c, 1); }, "#STGF1000e3*", "comuni"},
        {[](ComuniVivi& c) { ImpLocaliFiltroGX2207An(c, true); }, "#SIHPON*", "comuni"},
        {[](ComuniVivi& c) { ImpLocaliAntennaGX2207An(c, true, false); }, "#SMODA*", "comuni"},
        {[](ComuniVivi& c) { ImpLocaliFrequenzaMa(c, 0); }, "#SMAF0.01e3*", "comuni"},
    };
    for (const auto& caso : casi) {
        BancoComuni b({});
        caso.imposta(b.c);
        EXPECT_EQ(b.peer.scritti, Testi{caso.comando});
        EXPECT_EQ(b.vista.detti, Testi{caso.detto}) << caso.comando;
    }
    BancoComuni senza({.Is3360 = true});
    ImpLocaliTrackingAn(senza.c, true);
    EXPECT_EQ(senza.peer.scritti, Testi{});
}

} // namespace
} // namespace orvane
