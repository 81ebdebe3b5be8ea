#include <gtest/gtest.h>

#include <functional>

#include "records/Unita.h"
#include "setup/PreVoloProva.h"

namespace orvane {
namespace {

using Prova = prova::BancoPreVolo;
using enum ColonnaScan;
using enum EsitoControllo;
using Colonne = std::vector<ColonnaScan>;
using Cambia = std::function<void(Prova&, ScanLine&)>;

struct Gamma {
    double start, stop;
};
constexpr Gamma kBandaB = {0.15, 30};
constexpr Gamma kBandaC = {30, 300};
constexpr Gamma kAlta = {7000, 8000};

/// Findings with words of the check `numero`, in a table of one line on that receiver.
std::vector<Riscontro> Guarda(int numero, const char* modello, Gamma gamma, const Cambia& cambia) {
    Prova p(modello, gamma.start, gamma.stop);
    cambia(p, p.scan.Righe[0]);
    std::vector<Riscontro> trovati = p.Guarda();
    std::erase_if(trovati, [&](const Riscontro& r) {
        return r.numero != numero || r.segnalazione.riquadro.testo.empty();
    });
    return trovati;
}

void Passa(int numero, const char* modello, Gamma gamma, const Cambia& cambia) {
    EXPECT_TRUE(Guarda(numero, modello, gamma, cambia).empty()) << numero << " on " << modello;
}

void Trova(int numero, const char* modello, Gamma gamma, const Cambia& cambia, EsitoControllo esito,
           const Colonne& colonne, const std::string& parole) {
    SCOPED_TRACE(std::to_string(numero) + " on " + modello + ": " + parole);
    const auto trovati = Guarda(numero, modello, gamma, cambia);
    ASSERT_EQ(trovati.size(), 1u);
    const Segnalazione& s = trovati[0].segnalazione;
    EXPECT_EQ(s.riquadro.testo, parole);
    EXPECT_EQ(s.esito, esito);
    EXPECT_EQ(s.riquadro.pulsanti == Pulsanti::Ok, s.esito != Chiede);
    Colonne segnate;
    for (const CellaErrata& cella : s.celle)
        segnate.push_back(cella.colonna);
    EXPECT_EQ(segnate, colonne);
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

TEST(ControlliScan, TheFrontEndOfALine) {
    const std::string fine = " dB.\r         Cannot set Min Att";
    const std::string gamma = " not available for Frequency Range 30-";
    // Told 35, compared with 30.
    Passa(16, "5520", kBandaB, Att(3));
    Trova(16, "5520", kBandaB, Att(4), Ferma, {MinAtt}, "KRV 5520 Max Attenuation is 35" + fine);
    Passa(16, "5520+5540", kBandaC, Att(5));
    Passa(16, "5520+5590", kAlta, Att(4));
    Trova(16, "5520+5590", kAlta, Att(5), Ferma, {MinAtt}, "KRV 5590 Max Attenuation is 40" + fine);
    Passa(16, "GX2207", kBandaB, Att(3));
    Trova(16, "GX2207", kBandaB, Att(2, 1), Ferma, {MinAtt},
          "KRV GX2207 Max Attenuation is 10" + fine);
    Passa(16, "5520+GX2207", kBandaB, Att(1));
    Trova(16, "5520+GX2207", kBandaB, Att(2), Ferma, {MinAtt},
          "KRV GX2207 Max Attenuation is 10" + fine);
    Passa(16, "GX2207F", kBandaB, Att(3));
    Passa(19, "5520+5540", kBandaC, Sel(1, 1));
    Passa(19, "K3X", kBandaB, Sel(1, 1));
    Passa(19, "K3X", kBandaC, Sel(0));
    Trova(19, "K3X", kBandaC, Sel(1), Ferma, {PreSel},
          "Pre Sel" + gamma + "3000 MHz with 5520/K3X");
    Trova(19, "K6X", kBandaC, Sel(0, 1), Ferma, {PreAmp},
          "Pre Amp" + gamma + "6000 MHz with 5520/K6X");
    Trova(19, "5520F", kBandaC, Sel(1, 1), Ferma, {PreAmp, PreSel},
          "Pre Amp and Pre Sel" + gamma + "6000 MHz with 5520/60OEM");
    Trova(19, "60OEM", kBandaC, Sel(1), Ferma, {PreAmp, PreSel},
          "Pre Sel" + gamma + "6000 MHz with OEM");
    Trova(19, "3360/01", kBandaB, Sel(1), Ferma, {PreSel}, "Pre Sel not available with 3360/01");
    Passa(20, "5520+5590", kAlta, Att(2, 1));
    Passa(20, "5520+5570", kBandaC, Att(3, 1));
    Trova(20, "5520+5590", kAlta, Att(3, 1), Ferma, {PreAmp, MinAtt},
          "Pre Amp is OFF when attenuation > 20 dB");
    Trova(21, "5520+5590", kAlta, Sel(0), Corregge, {PreSel}, "Pre Sel not available");
    Passa(22, "5520+5540", {300, 1000}, Sel(0));
    Trova(22, "5520+5540", {900, 1001}, Sel(0), Ferma, {PreSel},
          "Pre Sel always on above 1000 MHz");
    // Without a preselector there it has to be off.
    Passa(22, "K3X", {1000, 3000}, Sel(0));
}

TEST(ControlliScan, TheModelAndWhatIsAttached) {
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
    Trova(
        1, "5520", kBandaB,
        [](Prova& p, ScanLine& r) {
            p.setup.AncillaryKind = 5;
            r.StepMode = 1;
        },
        Ferma, {Step}, scansione);
    Passa(5, "GX2207", kBandaB, ancillary(5, {0, 1, 0, 0}));
    Trova(5, "GX2207", kBandaB, ancillary(2, {0, 1, 0, 0}), Corregge, {Ancillary},
          "GX2207 connected\rAncillary is not available");
    Passa(5, "K3X", kBandaB, ancillary(1, {0, 1, 1, 0}));
    Trova(5, "K3X", kBandaC, ancillary(1, {0, 1, 1, 0}), Corregge, {Ancillary},
          "L2 KRV not available with this setup");
    Passa(6, "3360", kBandaB, ancillary(6, {0, 1, 1, 0}));
    Trova(6, "3360", kBandaC, ancillary(6, {0, 1, 1, 0}), Ferma, {Ancillary},
          "L2 3360 not available with this setup");
    Trova(6, "5520", kBandaB, ancillary(6, {0, 1, 1, 0}), Ferma, {},
          "L2 3360 Available only with KRV3360 connected");
    Trova(
        12, "5520", kBandaB,
        [](Prova& p, ScanLine& r) {
            p.m.ConRmsAvg = false;
            r.Detector = *LeggiDetector("P,N");
        },
        Ferma, {Detector}, "Rms-Avg Detector not available");
    Trova(23, "5520F", kBandaB, generatore(0, 1), Corregge, {}, "Tracking not available");
    Passa(23, "5520F", kBandaB, firmware(1.44f));
    Trova(23, "5520F", kBandaB, firmware(1.43f), Corregge, {Step}, "Step will be set to AUTO");
    Trova(23, "5520F", {0.15, 29.9}, tabella, Corregge, {Detector},
          "Smart detector unnecessary.\r   Detector ON all time long");
    Trova(23, "5520F", kBandaB, tabella, Ferma, {Step}, scansione);
    Trova(
        23, "5520F", kBandaB, [](Prova& p, ScanLine&) { p.setup.InsLossOn = 1; }, Corregge, {},
        "Insertion Loss not available");
    Passa(34, "5520", kBandaB, generatore(1, 1));
    Passa(34, "GX2207", kBandaB, generatore(0, 1));
    Trova(34, "GX2207", kBandaB, generatore(1, 0), Chiede, {},
          "With GX2207 connected RF Out works with Tracking only");
    Trova(34, "5520+GX2207", kBandaB, generatore(0, 1), Corregge, {}, "Tracking not available");
}

TEST(ControlliScan, DetectorsHoldTimesAndLimits) {
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
    Passa(18, "5520", kBandaB, smart("L", 16));
    Trova(18, "5520", kBandaB, smart("L", 17), Ferma, {Detector},
          "Too many points in the limit\rMax 16 points");
    Trova(18, "5520", kBandaB, smart("L", 1), Ferma, {Detector},
          "Too few limit frequencies\rMin 2 different frequencies");
    Trova(18, "5520", kBandaB, smart("L", 1, "Q,A"), Ferma, {Detector}, "Cannot combine the limit");
    Passa(18, "5520", kBandaB, smart(nullptr, 0));
    Passa(24, "5520", {0.15, 1.605}, perdita(0));
    Trova(24, "5520", {0.15, 1.606}, perdita(0), Chiede, {}, avanti);
    Passa(25, "5520", {0.009, 0.15}, perdita(50));
    Passa(25, "5520", {0.009, 0.16}, perdita(0));
    Trova(25, "5520", {0.009, 0.15}, perdita(49), Corregge, {HoldTime},
          "Hold time for Band A cannot be shorter than 50 ms\r"
          "                  Press OK to set it to 50 ms");
    Passa(26, "5520", kBandaB, doppioFirmware(2.13f));
    Trova(26, "5520", kBandaB, doppioFirmware(2.12f), Ferma, {Detector},
          "Double Smart Detector only available for FW >= 2.13");
    Passa(28, "5520", kBandaB, smart("L", 4, "Q,A"));
    Trova(28, "5520", kBandaB, smart(nullptr, 0), Ferma, {Detector},
          "Smart detector must have\ra Limit (enabled)");
    Trova(
        28, "5520", kBandaB, [](Prova& p, ScanLine&) { p.Smart(0, "L", "Q,A"); }, Ferma, {Detector},
        "Smart detector must have\ra Limit (enabled)");
    Trova(
        29, "5520", kBandaB,
        [](Prova& p, ScanLine&) {
            p.Smart(0, "L");
            p.Curva("L", 4).LinFreq = 1;
            p.Salva("L");
        },
        Ferma, {Detector}, "Linear limit not suitable with smart detector");
    Passa(31, "5520", {0.009, 0.15}, fft(50, "Q,A"));
    Trova(31, "5520", {0.009, 0.15}, fft(49, "Q,A"), Chiede, {},
          "Double Smart Detector cannot be done by FFT\r                   Will be set to 50 [ms]\r"
          "                   Press yes to continue");
    Passa(31, "5520", {0.009, 0.15}, fft(49, "Q"));
    Trova(31, "5520", {0.009, 0.15}, fft(50, "Q"), Chiede, {},
          "For FFT Scan Hold time must be < 50 [ms]\r         Press yes if you want to set it");
    Passa(31, "5520", kBandaB, fft(50, "Q"));
    Passa(33, "5520", kBandaB, tenuta(0, "Q"));
    Passa(33, "3360", kBandaB, tenuta(499, "P,R,A"));
    Passa(33, "3360", kBandaB, tenuta(500, "Q"));
    Trova(33, "3360", kBandaB, tenuta(499, "P,Q"), Corregge, {HoldTime}, corto + "500 ms");
    Trova(33, "5520F", kBandaB, tenuta(999, "Q,C"), Corregge, {HoldTime}, corto + "1000 ms");
    Passa(35, "5520", kBandaB, unita(1, 0));
    Passa(35, "5520", kBandaB, unita(6, 4));
    Trova(35, "5520", kBandaB, unita(6, 0), Ferma, {},
          "          The selected Unit dBpT" + senzaFattore);
    Trova(
        35, "5520", kBandaB,
        [](Prova& p, ScanLine&) {
            p.Smart(0, "L");
            p.Curva("L", 4).UnitId = 5;
            p.Salva("L");
        },
        Ferma, {Detector},
        "          The selected Unit " + TabellaUnitaGrafico()[5].testo + senzaFattore);
}

} // namespace
} // namespace orvane
