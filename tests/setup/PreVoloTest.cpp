#include "setup/PreVolo.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "aiuto/BancoSimulato.h"
#include "data/TabelleLimFac.h"
#include "records/Unita.h"
#include "setup/CatenaControlli.h"
#include "setup/TabellaScan.h"

namespace orvane {
namespace {

using prova::BancoSimulato;
using enum ColonnaScan;
using enum EsitoControllo;
using Colonne = std::vector<ColonnaScan>;

/// A bench with a table of one line, and the receiver identified.
struct Prova : BancoSimulato {
    explicit Prova(const char* modello, double start = 0.15, double stop = 30)
        : BancoSimulato({.modello = modello}) {
        std::string motivo;
        EXPECT_TRUE(RiconosciRicevitore(ricevitore, motivo)) << motivo;
        Riga(0, start, stop);
    }
    ScanLine& Riga(size_t i, double start, double stop) {
        ScanLine& riga = scan.Righe[i];
        ImpostaLineaDefault(riga, 0);
        riga.Start = start;
        riga.Stop = stop;
        riga.RbwId = DetRBWDefault(start, stop);
        riga.Step = DetStepAutoDaRBW(riga.RbwId, riga);
        return riga;
    }
    ScanLine& Smart(size_t i, const char* limite, const char* detector = "Q") {
        ScanLine& riga = scan.Righe[i];
        riga.Smart = 1;
        riga.Detector = *LeggiDetector(detector);
        riga.LimitOn = limite ? 1 : 0;
        riga.Limit = limite ? limite : "NONE";
        return riga;
    }
    /// A limit or factor of so many points, by the slot's kind.
    LimFacRecord& Curva(const char* nome, int punti, int slot = kPrimoLimite) {
        TabelleLimFac tabelle;
        tabella = {};
        for (size_t i = 0; i < static_cast<size_t>(punti); ++i)
            tabella.Freq[i] = 9e3f * static_cast<float>(i + 1);
        return Salva(nome, slot);
    }
    LimFacRecord& Salva(const char* nome, int slot = kPrimoLimite) {
        TabelleLimFac tabelle;
        tabelle.slot[static_cast<size_t>(slot)] = tabella;
        EXPECT_TRUE(SalvaLimFac(scrivania, tabelle,
                                slot == kPrimoLimite ? PercorsoLimite(nome) : PercorsoFattore(nome),
                                slot));
        return tabella;
    }
    std::vector<Riscontro> Guarda(const Rispondi& rispondi = {}) {
        return EsaminaScan({.tabella = scan.Righe,
                            .modello = ricevitore.modello,
                            .caps = ricevitore.caps,
                            .setup = scrivania.setup,
                            .albero = scrivania.albero,
                            .rigaComando = ambiente.RigaComando()},
                           rispondi);
    }
    bool Controlla(int runKind = 0) {
        PreVolo volo{.scrivania = scrivania,
                     .ricevitore = ricevitore,
                     .scan = scan,
                     .vista = vista,
                     .misura = "M",
                     .motivo = {},
                     .runKind = runKind};
        const bool bene = ControlliSweep(volo);
        motivo = volo.motivo;
        return bene;
    }
    SetupRecord& setup = scrivania.setup;
    ReceiverModel& m = ricevitore.modello;
    LimFacRecord tabella;
    std::string motivo;
};

/// What the check `numero` finds in a table of one line; without `parole` nothing.
struct Caso {
    int numero;
    const char* modello;
    double start, stop;
    std::function<void(Prova&, ScanLine&)> cambia;
    std::string parole = {};
    EsitoControllo esito = Ferma;
    Colonne colonne = {};
};

void Verifica(const Caso& caso) {
    Prova p(caso.modello, caso.start, caso.stop);
    SCOPED_TRACE(std::to_string(caso.numero) + " on " + caso.modello + ": " + caso.parole);
    caso.cambia(p, p.scan.Righe[0]);
    std::vector<Riscontro> trovati = p.Guarda();
    std::erase_if(trovati, [&](const Riscontro& r) {
        return r.numero != caso.numero || r.segnalazione.riquadro.testo.empty();
    });
    ASSERT_EQ(trovati.size(), caso.parole.empty() ? 0u : 1u);
    if (trovati.empty())
        return;
    const Segnalazione& s = trovati[0].segnalazione;
    EXPECT_EQ(s.riquadro.testo, caso.parole);
    EXPECT_EQ(s.esito, caso.esito);
    EXPECT_EQ(s.riquadro.pulsanti == Pulsanti::Ok, s.esito != Chiede);
    Colonne colonne;
    for (const CellaErrata& cella : s.celle)
        colonne.push_back(cella.colonna);
    EXPECT_EQ(colonne, caso.colonne);
}

auto Att(int16_t id, int16_t preAmp = 0) {
    return [=](Prova&, ScanLine& r) {
        r.MinAtt = id;
        r.PreAmp = preAmp;
    };
}
auto Sel(int16_t preSel, int16_t preAmp = 0) {
    return [=](Prova&, ScanLine& r) {
        r.PreSel = preSel;
        r.PreAmp = preAmp;
    };
}
const auto kNiente = [](Prova&, ScanLine&) {};

TEST(PreVolo, TheFrontEndOfALine) {
    const std::string fine = " dB.\r         Cannot set Min Att";
    const std::string gamma = " not available for Frequency Range 30-";
    const Caso casi[] = {
        // Told 35, compared with 30.
        {16, "5520", 0.15, 30, Att(3)},
        {16, "5520", 0.15, 30, Att(4), "KRV 5520 Max Attenuation is 35" + fine, Ferma, {MinAtt}},
        {16, "5520+5540", 30, 300, Att(5)},
        {16, "5520+5590", 7000, 8000, Att(4)},
        {16,
         "5520+5590",
         7000,
         8000,
         Att(5),
         "KRV 5590 Max Attenuation is 40" + fine,
         Ferma,
         {MinAtt}},
        {16, "GX2207", 0.15, 30, Att(3)},
        {16,
         "GX2207",
         0.15,
         30,
         Att(2, 1),
         "KRV GX2207 Max Attenuation is 10" + fine,
         Ferma,
         {MinAtt}},
        {16, "5520+GX2207", 0.15, 30, Att(1)},
        {16,
         "5520+GX2207",
         0.15,
         30,
         Att(2),
         "KRV GX2207 Max Attenuation is 10" + fine,
         Ferma,
         {MinAtt}},
        {16, "GX2207F", 0.15, 30, Att(3)},
        {19, "5520+5540", 30, 300, Sel(1, 1)},
        {19, "K3X", 0.15, 30, Sel(1, 1)},
        {19, "K3X", 30, 300, Sel(0)},
        {19, "K3X", 30, 300, Sel(1), "Pre Sel" + gamma + "3000 MHz with 5520/K3X", Ferma, {PreSel}},
        {19,
         "K6X",
         30,
         300,
         Sel(0, 1),
         "Pre Amp" + gamma + "6000 MHz with 5520/K6X",
         Ferma,
         {PreAmp}},
        {19,
         "5520F",
         30,
         300,
         Sel(1, 1),
         "Pre Amp and Pre Sel" + gamma + "6000 MHz with 5520/60OEM",
         Ferma,
         {PreAmp, PreSel}},
        {19,
         "60OEM",
         30,
         300,
         Sel(1),
         "Pre Sel" + gamma + "6000 MHz with OEM",
         Ferma,
         {PreAmp, PreSel}},
        {19, "3360/01", 0.15, 30, Sel(1), "Pre Sel not available with 3360/01", Ferma, {PreSel}},
        {20, "5520+5590", 7000, 8000, Att(2, 1)},
        {20, "5520+5570", 30, 300, Att(3, 1)},
        {20,
         "5520+5590",
         7000,
         8000,
         Att(3, 1),
         "Pre Amp is OFF when attenuation > 20 dB",
         Ferma,
         {PreAmp, MinAtt}},
        {21, "5520+5590", 7000, 8000, Sel(0), "Pre Sel not available", Corregge, {PreSel}},
        {22, "5520+5540", 300, 1000, Sel(0)},
        {22, "5520+5540", 900, 1001, Sel(0), "Pre Sel always on above 1000 MHz", Ferma, {PreSel}},
        // Without a preselector there it has to be off.
        {22, "K3X", 1000, 3000, Sel(0)},
    };
    for (const Caso& caso : casi)
        Verifica(caso);
}

TEST(PreVolo, TheModelAndWhatIsAttached) {
    const auto ancillary = [](int16_t kind, std::array<int16_t, 4> linee) {
        return [=](Prova& p, ScanLine& r) {
            p.setup.AncillaryKind = kind;
            r.LineSwitch = linee;
        };
    };
    const auto generatore = [](int16_t rfOut, int16_t tracking) {
        return [=](Prova& p, ScanLine&) {
            p.setup.RFOut = rfOut;
            p.setup.TGOn = tracking;
        };
    };
    const auto firmware = [](float versione) {
        return [=](Prova& p, ScanLine& r) {
            p.m.FwVersione = versione;
            r.AutoStep = 0;
            r.Step = 0.01;
        };
    };
    const auto tabella = [](Prova&, ScanLine& r) { r.StepMode = r.Smart = 1; };
    const std::string scansione = "Cannot scan through frequency table";
    const Caso casi[] = {
        {1,
         "5520",
         0.15,
         30,
         [](Prova& p, ScanLine& r) {
             p.setup.AncillaryKind = 5;
             r.StepMode = 1;
         },
         scansione,
         Ferma,
         {Step}},
        {5, "GX2207", 0.15, 30, ancillary(5, {0, 1, 0, 0})},
        {5,
         "GX2207",
         0.15,
         30,
         ancillary(2, {0, 1, 0, 0}),
         "GX2207 connected\rAncillary is not available",
         Corregge,
         {Ancillary}},
        {5, "K3X", 0.15, 30, ancillary(1, {0, 1, 1, 0})},
        {5,
         "K3X",
         30,
         300,
         ancillary(1, {0, 1, 1, 0}),
         "L2 KRV not available with this setup",
         Corregge,
         {Ancillary}},
        {6, "3360", 0.15, 30, ancillary(6, {0, 1, 1, 0})},
        {6,
         "3360",
         30,
         300,
         ancillary(6, {0, 1, 1, 0}),
         "L2 3360 not available with this setup",
         Ferma,
         {Ancillary}},
        {6, "5520", 0.15, 30, ancillary(6, {0, 1, 1, 0}),
         "L2 3360 Available only with KRV3360 connected"},
        {12,
         "5520",
         0.15,
         30,
         [](Prova& p, ScanLine& r) {
             p.m.ConRmsAvg = false;
             r.Detector = *LeggiDetector("P,N");
         },
         "Rms-Avg Detector not available",
         Ferma,
         {Detector}},
        {23, "5520F", 0.15, 30, generatore(0, 1), "Tracking not available", Corregge},
        {23, "5520F", 0.15, 30, firmware(1.44f)},
        {23, "5520F", 0.15, 30, firmware(1.43f), "Step will be set to AUTO", Corregge, {Step}},
        {23,
         "5520F",
         0.15,
         29.9,
         tabella,
         "Smart detector unnecessary.\r   Detector ON all time long",
         Corregge,
         {Detector}},
        {23, "5520F", 0.15, 30, tabella, scansione, Ferma, {Step}},
        {23, "5520F", 0.15, 30, [](Prova& p, ScanLine&) { p.setup.InsLossOn = 1; },
         "Insertion Loss not available", Corregge},
        {34, "5520", 0.15, 30, generatore(1, 1)},
        {34, "GX2207", 0.15, 30, generatore(0, 1)},
        {34, "GX2207", 0.15, 30, generatore(1, 0),
         "With GX2207 connected RF Out works with Tracking only", Chiede},
        {34, "5520+GX2207", 0.15, 30, generatore(0, 1), "Tracking not available", Corregge},
    };
    for (const Caso& caso : casi)
        Verifica(caso);
}

TEST(PreVolo, DetectorsHoldTimesAndLimits) {
    const auto smart = [](const char* limite, int punti, const char* detector = "Q") {
        return [=](Prova& p, ScanLine& r) {
            p.Smart(0, limite, detector);
            r.LimitDSDOn = r.LimitOn;
            r.LimitDSD = r.Limit;
            if (limite)
                p.Curva(limite, punti);
        };
    };
    const auto tenuta = [](float ms, const char* detector) {
        return [=](Prova&, ScanLine& r) {
            r.HoldTime = ms;
            r.Detector = *LeggiDetector(detector);
        };
    };
    const auto perdita = [](float ms) {
        return [=](Prova& p, ScanLine& r) {
            p.setup.InsLossOn = 1;
            r.HoldTime = ms;
        };
    };
    const auto doppioFirmware = [](float versione) {
        return [=](Prova& p, ScanLine&) {
            p.Smart(0, "L", "Q,A");
            p.m.FwVersione = versione;
        };
    };
    const auto fft = [](float ms, const char* detector) {
        return [=](Prova& p, ScanLine& r) {
            p.Smart(0, "L", detector);
            r.HoldTimeSD = ms;
        };
    };
    const auto unita = [](int16_t id, int punti) {
        return [=](Prova& p, ScanLine&) {
            p.setup.UnitId = id;
            p.setup.FactorOn[2] = 1;
            p.setup.FactorName[2] = "F";
            p.Curva("F", punti, kPrimoFattore);
        };
    };
    const std::string avanti = "WARNING: INSERTION LOSS Function Active\r"
                               "       Would you like to proceed anyway ?";
    const std::string corto = "Too short Hold Time (Required 2000 ms)\r"
                              "       Hold Time will be set to ";
    const std::string senzaFattore = "\rShould have an active Conversion Factor";
    const Caso casi[] = {
        {18, "5520", 0.15, 30, smart("L", 16)},
        {18,
         "5520",
         0.15,
         30,
         smart("L", 17),
         "Too many points in the limit\rMax 16 points",
         Ferma,
         {Detector}},
        {18,
         "5520",
         0.15,
         30,
         smart("L", 1),
         "Too few limit frequencies\rMin 2 different frequencies",
         Ferma,
         {Detector}},
        {18, "5520", 0.15, 30, smart("L", 1, "Q,A"), "Cannot combine the limit", Ferma, {Detector}},
        {18, "5520", 0.15, 30, smart(nullptr, 0)},
        {24, "5520", 0.15, 1.605, perdita(0)},
        {24, "5520", 0.15, 1.606, perdita(0), avanti, Chiede},
        {25, "5520", 0.009, 0.15, perdita(50)},
        {25, "5520", 0.009, 0.16, perdita(0)},
        {25,
         "5520",
         0.009,
         0.15,
         perdita(49),
         "Hold time for Band A cannot be shorter than 50 ms\r"
         "                  Press OK to set it to 50 ms",
         Corregge,
         {HoldTime}},
        {26, "5520", 0.15, 30, doppioFirmware(2.13f)},
        {26,
         "5520",
         0.15,
         30,
         doppioFirmware(2.12f),
         "Double Smart Detector only available for FW >= 2.13",
         Ferma,
         {Detector}},
        {28, "5520", 0.15, 30, smart("L", 4, "Q,A")},
        {28,
         "5520",
         0.15,
         30,
         smart(nullptr, 0),
         "Smart detector must have\ra Limit (enabled)",
         Ferma,
         {Detector}},
        {28,
         "5520",
         0.15,
         30,
         [](Prova& p, ScanLine&) { p.Smart(0, "L", "Q,A"); },
         "Smart detector must have\ra Limit (enabled)",
         Ferma,
         {Detector}},
        {29,
         "5520",
         0.15,
         30,
         [](Prova& p, ScanLine&) {
             p.Smart(0, "L");
             p.Curva("L", 4).LinFreq = 1;
             p.Salva("L");
         },
         "Linear limit not suitable with smart detector",
         Ferma,
         {Detector}},
        {31, "5520", 0.009, 0.15, fft(50, "Q,A")},
        {31, "5520", 0.009, 0.15, fft(49, "Q,A"),
         "Double Smart Detector cannot be done by FFT\r                   Will be set to 50 [ms]\r"
         "                   Press yes to continue",
         Chiede},
        {31, "5520", 0.009, 0.15, fft(49, "Q")},
        {31, "5520", 0.009, 0.15, fft(50, "Q"),
         "For FFT Scan Hold time must be < 50 [ms]\r         Press yes if you want to set it",
         Chiede},
        {31, "5520", 0.15, 30, fft(50, "Q")},
        {33, "5520", 0.15, 30, tenuta(0, "Q")},
        {33, "3360", 0.15, 30, tenuta(499, "P,R,A")},
        {33, "3360", 0.15, 30, tenuta(500, "Q")},
        {33, "3360", 0.15, 30, tenuta(499, "P,Q"), corto + "500 ms", Corregge, {HoldTime}},
        {33, "5520F", 0.15, 30, tenuta(999, "Q,C"), corto + "1000 ms", Corregge, {HoldTime}},
        {35, "5520", 0.15, 30, unita(1, 0)},
        {35, "5520", 0.15, 30, unita(6, 4)},
        {35, "5520", 0.15, 30, unita(6, 0), "          The selected Unit dBpT" + senzaFattore},
        {35,
         "5520",
         0.15,
         30,
         [](Prova& p, ScanLine&) {
             p.Smart(0, "L");
             p.Curva("L", 4).UnitId = 5;
             p.Salva("L");
         },
         "          The selected Unit " + TabellaUnitaGrafico()[5].testo + senzaFattore,
         Ferma,
         {Detector}},
    };
    for (const Caso& caso : casi)
        Verifica(caso);
}

TEST(PreVolo, FiveLimitsPassAndSixAsk) {
    Prova p("5520");
    for (size_t i = 0; i < 6; ++i) {
        ScanLine& riga = p.Riga(i, 1.0 + static_cast<double>(i), 2.0 + static_cast<double>(i));
        riga.LimitOn = 1;
        riga.Limit = "L" + std::to_string(i);
    }
    p.scan.Righe[5].Limit = "l0"; // the same file
    EXPECT_TRUE(p.Controlla());
    EXPECT_TRUE(p.ambiente.riquadri.empty());
    p.scan.Righe[0].LimitDSDOn = 1;
    p.scan.Righe[0].LimitDSD = "Another";
    EXPECT_FALSE(p.Controlla());
    EXPECT_EQ(p.ambiente.riquadri.back().testo, " More than 5 limits\rProceed anyway?");
    p.ambiente.risposte = {Risposta::Si};
    EXPECT_TRUE(p.Controlla());
}

TEST(PreVolo, TheChainIsWholeAndInOrder) {
    std::vector<int> numeri;
    for (const VoceControllo& voce : CatenaControlli()) {
        EXPECT_TRUE(voce.esamina || voce.agisci) << voce.nome;
        EXPECT_FALSE((voce.correggi || voce.correggiSetup) && !voce.esamina) << voce.nome;
        numeri.push_back(voce.numero);
    }
    EXPECT_TRUE(std::is_sorted(numeri.begin(), numeri.end()));
    numeri.erase(std::unique(numeri.begin(), numeri.end()), numeri.end());
    EXPECT_EQ(numeri.size(), 37u);
}

TEST(PreVolo, ACorrectionIsStoredAndSeenByLaterChecks) {
    // 400 kHz replaces a step of 1 MHz; what the user wrote is kept for the header.
    Prova p("K3X", 30, 300);
    ScanLine& riga = p.scan.Righe[0];
    riga.PreSel = riga.AutoStep = 0;
    riga.Step = 1;
    ASSERT_TRUE(p.Controlla());
    EXPECT_EQ(p.ambiente.riquadri.size(), 1u);
    EXPECT_EQ(riga.Step, 0.4);
    EXPECT_EQ(riga.StepOriginal, 1.0);
    ScanRecord disco;
    ASSERT_TRUE(CaricaPanelEST(p.scrivania, p.scrivania.env.ScanPanelPath, disco));
    EXPECT_EQ(disco.Righe[0].Step, 0.4);

    // Yes selects both lines of the network; a radiated line then loses them again, and stops.
    p.setup.AncillaryKind = 1;
    riga.LineSwitch = {1, 0, 0, 0};
    p.ambiente.risposte = {Risposta::Si};
    EXPECT_FALSE(p.Controlla());
    EXPECT_EQ(p.ambiente.riquadri.back().testo, "L2 KRV not available with this setup");
    EXPECT_EQ(riga.LineSwitch, (std::array<int16_t, 4>{}));
    EXPECT_EQ(p.motivo, "refused: a network on a line that cannot have it");
}

TEST(PreVolo, AnUnusedLineIsSqueezedOutBeforeOthersLook) {
    Prova p("5520+5590", 7000, 8000);
    p.Riga(3, 9000, 9500).PreSel = 0;
    ASSERT_TRUE(p.Controlla());
    EXPECT_EQ(p.scan.Righe[1].Start, 9000);
    EXPECT_EQ(p.scan.Righe[1].PreSel, 1);
    EXPECT_EQ(p.vista.celleErrate, (std::vector<std::pair<int, ColonnaScan>>{{1, PreSel}}));
}

TEST(PreVolo, ANoStopsAtOnceOrGoesOnWithoutTheRepair) {
    Prova p("5520", 0.009, 0.15);
    p.Smart(0, "L").HoldTimeSD = 60;
    p.Curva("L", 4);
    EXPECT_TRUE(p.Controlla());
    EXPECT_EQ(p.ambiente.riquadri.size(), 1u);
    EXPECT_EQ(p.scan.Righe[0].HoldTimeSD, 60);
    p.ambiente.risposte = {Risposta::Si};
    EXPECT_TRUE(p.Controlla());
    EXPECT_EQ(p.scan.Righe[0].HoldTimeSD, 0);

    p.Riga(1, 0.15, 10);
    p.Riga(2, 5, 20);
    p.Riga(3, 20, 20.00001); // would stop later, at its step: earlier words come first
    p.ambiente.riquadri.clear();
    EXPECT_FALSE(p.Controlla());
    ASSERT_EQ(p.ambiente.riquadri.size(), 1u);
    EXPECT_TRUE(p.ambiente.riquadri[0].testo.ends_with("Too small Span"));
    EXPECT_EQ(p.vista.celleErrate.back(), (std::pair<int, ColonnaScan>{3, Stop}));
    p.scan.Righe[3] = {};
    EXPECT_FALSE(p.Controlla());
    EXPECT_EQ(p.motivo, "refused: overlapping lines");
}

TEST(PreVolo, TheSwitchLetsAFrequencyErrorGo) {
    Prova p("5520", 19000, 20000);
    EXPECT_FALSE(p.Controlla());
    p.ambiente.riga = "orvane /NOCONTFREQ sweep";
    const auto trovati = p.Guarda();
    ASSERT_FALSE(trovati.empty());
    EXPECT_EQ(trovati[0].numero, 8);
    EXPECT_FALSE(Rifiuta(trovati[0]));
    EXPECT_FALSE(trovati[0].corretto);
    EXPECT_TRUE(p.Controlla());
}

TEST(PreVolo, TheSetupIsPutRightInSilence) {
    struct {
        const char* modello;
        int16_t rfOut, tracking, pulseLim;
    } casi[] = {{"5520", 1, 1, 0},
                {"3360", 0, 0, 0},
                {"5520F", 0, 0, 0},
                {"GX2207", 1, 1, 1},
                {"T4470K", 1, 0, 0}};
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.modello);
        Prova p(caso.modello);
        p.scan.Righe[0].PreSel = 0;
        p.setup.RFOut = p.setup.TGOn = p.setup.PulseLim = 1;
        p.ambiente.risposte = {Risposta::Ok};
        ASSERT_TRUE(p.Controlla()) << p.motivo;
        EXPECT_EQ(p.setup.RFOut, caso.rfOut);
        EXPECT_EQ(p.setup.TGOn, caso.tracking);
        EXPECT_EQ(p.setup.PulseLim, caso.pulseLim);
    }
    Prova p("GX2207");
    p.setup.RFOut = 1;
    EXPECT_FALSE(p.Controlla()); // Cancel
    EXPECT_EQ(p.setup.TGOn, 0);
}

TEST(PreVolo, AMastTableRunHasRulesOfItsOwn) {
    Prova p("5520");
    p.setup.AncillaryKind = 5;
    p.simulato.Memoria().batteria.livello = "15";
    EXPECT_FALSE(p.Controlla());
    EXPECT_EQ(p.ambiente.riquadri.back().testo, "5520 battery low. Do you want to continue?");
    for (const char* livello : {"20", "FULL", "Charging"}) {
        p.simulato.Memoria().batteria.livello = livello;
        EXPECT_TRUE(p.Controlla()) << livello;
    }
    p.Smart(0, "L");
    p.Curva("L", 4);
    EXPECT_FALSE(p.Controlla());
    EXPECT_EQ(p.ambiente.riquadri.back().testo, "Smart Detector not available with Mast-Table");
    p.Riga(0, 0.15, 1);
    p.Riga(1, 1, 2);
    EXPECT_FALSE(p.Controlla());
    EXPECT_EQ(p.ambiente.riquadri.back().testo, "Mast-Table permits a single line scan-table");
    p.setup.AncillaryKind = 0;
    EXPECT_FALSE(p.Controlla(kSoloControlli));
    EXPECT_EQ(p.motivo, "refused: the checks alone were asked for");
}

TEST(PreVolo, ALookChangesNothingAndGoesToTheEnd) {
    Prova p("5520+5590", 7000, 8000);
    ScanLine& riga = p.scan.Righe[0];
    riga.PreSel = 0;
    riga.MinAtt = 5;
    riga.Detector = *LeggiDetector("P,N");
    p.m.ConRmsAvg = false;
    p.Riga(1, 7500, 8500);
    const size_t comandi = p.simulato.Comandi().size();
    std::vector<int> numeri;
    for (const Riscontro& r : p.Guarda())
        numeri.push_back(r.numero);
    // The filter does not go with Rms-Avg either.
    EXPECT_EQ(numeri, (std::vector<int>{10, 12, 16, 17, 21}));
    EXPECT_EQ(riga.PreSel, 0);
    EXPECT_EQ(p.simulato.Comandi().size(), comandi);
    EXPECT_TRUE(p.ambiente.riquadri.empty());
    EXPECT_FALSE(p.scrivania.albero.Esiste(p.scrivania.env.ScanPanelPath));
}

TEST(PreVolo, NothingIsSentBehindAStop) {
    Prova p("5520");
    p.scan.Righe[0].MinAtt = 5;
    const size_t prima = p.simulato.Comandi().size();
    EXPECT_FALSE(p.Controlla());
    const std::vector<std::string> inviati(p.simulato.Comandi().begin() +
                                               static_cast<std::ptrdiff_t>(prima),
                                           p.simulato.Comandi().end());
    EXPECT_EQ(inviati, (std::vector<std::string>{"#ASBK*", "#?IDN*", "#?BCD*", "#?MIL*", "#?CRA*",
                                                 "#?S/N*"}));
    p.scan.Righe[0].MinAtt = 1;
    EXPECT_TRUE(p.Controlla());
    EXPECT_EQ(p.simulato.Comandi().back(), "#SCFA -1*");
}

} // namespace
} // namespace orvane
