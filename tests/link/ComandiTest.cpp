// Every setter: the command as it goes out, the words of its banner, the reply it waits for.
#include <gtest/gtest.h>

#include <functional>

#include "aiuto/BancoLink.h"
#include "link/Comandi.h"

namespace orvane {
namespace {

using namespace prova;

struct Caso {
    std::function<void(Ricevitore&)> imposta;
    const char* comando;
    const char* descrizione;
    const char* risposta;
};

/// The first try stays without an answer for long enough that the banner comes up.
void Prova(const Caso& caso) {
    BancoAperto b;
    b.peer.alComando = [&, volte = 0](const std::string&) mutable {
        if (++volte > 4)
            b.peer.Rispondi(std::string(caso.risposta) + "\r\n");
    };
    b.ambiente.Fra(30, [&] { b.stato.AbbandonaComandi = true; });
    caso.imposta(b.r);
    EXPECT_EQ(b.peer.scritti, Testi(5, caso.comando));
    EXPECT_EQ(b.finestra.fatti.front(), "mostra Error " + std::string(caso.descrizione));
    EXPECT_FALSE(b.stato.AbbandonaComandi) << caso.comando;
}

TEST(Comandi, EachSetterAsItGoesOut) {
    using R = Ricevitore;
    const Caso kCasi[] = {
        {[](R& r) { ImpostaBWIF(r, 22); }, "#SRBW22*", "set BW IF", "RBW=OK"},
        {[](R& r) { ImpostaPreselAn(r, true); }, "#SAPSON*", "set Preselector", "APS=OK"},
        {[](R& r) { ImpostaPreselMa(r, false); }, "#SMPSOFF*", "set Preselector", "MPS=OK"},
        {[](R& r) { ImpostaPreAmpAn(r, true); }, "#SAPAON*", "set Preamplifier", "APA=OK"},
        {[](R& r) { ImpostaPreAmpMa(r, true); }, "#SMPAON*", "set Preamplifier", "MPA=OK"},
        {[](R& r) { ImpostaPulseLim(r, true); }, "#SPLMON*", "set Pulse Limiter", "PLM =OK"},
        {[](R& r) { ImpostaAttAn(r, -1); }, "#SAAT-1*", "set Attenuator", "AAT=OK"},
        {[](R& r) { ImpostaAttMa(r, 20); }, "#SMAT20*", "set Attenuator", "MAT=OK"},
        {[](R& r) { ImpostaMinAtt(r, 50); }, "#STAT50*", "set Min Att", "TAT=OK"},
        {[](R& r) { ImpostaDinamica(r, 120, 145); }, "#SDIS120;145*", "Dynamics - Ref Level",
         "DIS=OK"},
        {[](R& r) { ImpostaVolume(r, 30); }, "#SDMV30*", "Set Volume", "DMV=OK"},
        {[](R& r) { ImpostaRFOut(r, true); }, "#STGSON*", "set RF Out", "TGS =OK"},
        {[](R& r) { ImpostaTracking(r, false); }, "#STGTOFF*", "set Tracking", "TGT =OK"},
        {[](R& r) { ImpostaLivelloTG(r, 80.5); }, "#STGL80.5*", "set Level", "TGL=OK"},
        {[](R& r) { ImpostaFrequenzaTG(r, 10.7); }, "#STGF10700e3*", "set Frequency Tracking",
         "TGF=OK"},
        {[](R& r) { ImpostaHoldTimeAn(r, 0.25); }, "#SAHT0.25*", "set Hold Time", "AHT=OK"},
        {[](R& r) { ImpostaHoldTimeMa(r, 1000); }, "#SMHT1000*", "set Hold Time", "MHT=OK"},
        {[](R& r) { ImpostaDetectorAn(r, 4); }, "#SADT4*", "set Detector", "ADT=OK"},
        {[](R& r) { ImpostaFrequenzaAn(r, 0.15, 30); }, "#SAFF150e3,30000e3*", "set Frequency",
         "AFF=OK"},
        {[](R& r) { ImpostaFrequenzaMa(r, 1000); }, "#SMAF1000000e3*", "set Frequency", "MAF=OK"},
        {[](R& r) { ImpostaFiltroGX2207(r, true); }, "#SIHPON*", "set HP 150 kHz", "IHP=OK"},
        {[](R& r) { ImpostaIngressoGX2207(r, false); }, "#SMODA*", "set input mode GX2207",
         "MOD=OK"},
        {[](R& r) { ImpostaIngressoGX2207(r, true); }, "#SMODH*", "set input mode GX2207",
         "MOD=OK"},
        {[](R& r) { ImpostaTrackingGX2207(r, 2); }, "#SITG 2*", "set Tracking GX2207", "ITG=OK"},
        {ImpostaCondotto, "#S3PRC*", "set conducted", "3PR=OK"},
        {ImpostaRadiato, "#S3PRR*", "set radiated", "3PR=OK"},
        {[](R& r) { ImpostaQDSW3(r, 3); }, "#SUPP3*", "Set KRV QDSW3", "UPP=OK"},
        {[](R& r) { ImpostaLisn(r, 4); }, "#SUPP4*", "Set KRV Lisn", "UPP=OK"},
        {[](R& r) { ImpostaLisn3360(r, 1); }, "#SLSN1*", "Set KRV Lisn", "LSN=OK"},
        {[](R& r) { ImpostaNomeLimite(r, 2, "EN55011"); }, "#SLIC 2,EN55011*", "Set name Limit",
         "LIC=OK"},
        {[](R& r) { ImpostaNomeFattore(r, 3, "LISN"); }, "#SCFE 3,LISN*", "Set name conv factor",
         "CFE=OK"},
        {[](R& r) { ImpostaRigaLimite(r, "0,150e3;66"); }, "#SLIW0,150e3;66*", "Store Limit",
         "LIW=OK"},
        {[](R& r) { ImpostaRigaLimiteSweep(r, "1,5e3;60"); }, "#SLIW1,5e3;60*", "Set Custom Limit",
         "LIW=OK"},
        {[](R& r) { ImpostaRigaFattore(r, "0,1e6;2.5"); }, "#SCFW0,1e6;2.5*", "Store Conv Factor",
         "CFW=OK"},
        {[](R& r) { ImpostaRigaLimiteDSD(r, "0,5e3;60,50"); }, "#SLDW0,5e3;60,50*",
         "Set Custom Limit\rdouble Smart Detector", "LDW=OK"},
        {[](R& r) { ImpostaFineLimite(r, "EN55011"); }, "#SLIEEN55011*", "Set Name Custom Limit",
         "LIE=OK"},
        {[](R& r) { ImpostaMargine(r, -6.1f); }, "#SLIM-6.1*", "Set Margin", "LIM=OK"},
        {[](R& r) { ImpostaRigaTabFreq(r, 7, 30.1); }, "#SSFW 7,30100000*", "Set Frequency Table",
         "SFW=OK"},
        {DisabilitaCF, "#SCFA -1*", "Disabling conv factor", "CFA=OK"},
        {ImpostaBreak, "#SSTP*", "set Break", "STP=OK"},
        {StopSweep, "#SSTP*", "Stop Sweep", "STP=OK"},
        {AbortSweep, "#ASBK*", "Abort Sweep", "SBK=N/A"},
    };
    for (const Caso& caso : kCasi)
        Prova(caso);
}

TEST(Comandi, FrequenciesAreKilohertzWithAnExponent) {
    struct Frequenza {
        double mhz;
        const char* testo;
    };
    for (const Frequenza& f :
         {Frequenza{10.7, "10700e3"}, Frequenza{0.00001, "0.01e3"}, Frequenza{0.000001, "0.001e3"},
          Frequenza{28.1, "28100e3"}, Frequenza{6000.001, "6000001e3"},
          Frequenza{18000, "18000000e3"}, Frequenza{0.1 + 0.2, "300e3"}, Frequenza{0, "0e3"}})
        EXPECT_EQ(FrequenzaHz(f.mhz), f.testo);
}

TEST(Comandi, The18GHzUnitHasAFixedPreselector) {
    BancoAperto b;
    b.r.modello.EstensioneAttiva = true;
    b.r.modello.UnitaEstensione = 2;
    ImpostaPreselAn(b.r, true);
    ImpostaPreselMa(b.r, true);
    EXPECT_EQ(b.peer.scritti, Testi{});
    b.r.modello.UnitaEstensione = 1;
    b.peer.Rispondi("MPS=OK\r\n", 0.01);
    ImpostaPreselMa(b.r, true);
    EXPECT_EQ(b.peer.scritti, Testi{"#SMPSON*"});
}

TEST(Comandi, AmAndFmWhereTheReceiverKnowsThem) {
    using enum Demodulazione;
    struct Forma {
        bool is3360;
        int16_t oem;
        Demodulazione modo;
        const char* comando;
    };
    for (const Forma& forma :
         {Forma{false, 0, Spenta, "#SDMDOFF*"}, Forma{false, 0, Accesa, "#SDMDON*"},
          Forma{false, 0, FM, "#SDMDON*"}, Forma{true, 0, AM, "#SDMDAM*"},
          Forma{true, 0, FM, "#SDMDFM*"}, Forma{false, 3, FM, "#SDMDFM*"},
          Forma{false, 3, Spenta, "#SDMDOFF*"}}) {
        BancoAperto b;
        b.r.modello.Is3360 = forma.is3360;
        b.r.modello.ModelloOEM = forma.oem;
        b.peer.alComando = [&](const std::string&) { b.peer.Rispondi("DMD=OK\r\n"); };
        ImpostaDemodulatore(b.r, forma.modo);
        EXPECT_EQ(b.peer.scritti, Testi{forma.comando});
    }
}

TEST(Comandi, TheInputOfAnOemModelIsSwitchedOnlyWhereItDiffers) {
    BancoAperto b;
    b.r.modello.ModelloOEM = 1;
    b.peer.RispondiDa({{"#?CO6*", "CO6=RAD;30,6000,\r\n"}, {"#SCO6C*", "CO6=N/A\r\n"}});
    ImpostaRadiato(b.r);
    EXPECT_EQ(b.peer.scritti, Testi{"#?CO6*"});
    ImpostaCondotto(b.r);
    EXPECT_EQ(b.peer.scritti, (Testi{"#?CO6*", "#?CO6*", "#SCO6C*"}));
}

TEST(Comandi, RowsOfAnUploadAreSentWithoutADrain) {
    for (const bool riga : {true, false}) {
        BancoAperto b;
        b.peer.Rispondi("LIW=OK LIE=OK\r\n");
        b.ambiente.Fra(10, [&] { b.stato.AbbandonaComandi = true; });
        if (riga)
            ImpostaRigaLimite(b.r, "0,1e3;1");
        else {
            b.peer.RispondiDa({{"#SLIEx*", "LIE=OK\r\n"}});
            ImpostaFineLimite(b.r, "x");
        }
        EXPECT_EQ(b.peer.scritti.size(), 1u);
        EXPECT_EQ(b.porta.ByteInCoda(), 0u);
    }
}

} // namespace
} // namespace orvane
