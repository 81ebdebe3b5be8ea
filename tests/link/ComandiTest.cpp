// Every setter as it goes out, and the rules of those that have some.
#include <gtest/gtest.h>

#include <functional>

#include "aiuto/BancoLink.h"
#include "link/Comandi.h"

namespace orvane {
namespace {

using namespace prova;

TEST(Comandi, EachSetterAsItGoesOut) {
    using R = Ricevitore;
    const std::pair<std::function<void(R&)>, const char*> kCasi[] = {
        {[](R& r) { ImpostaBWIF(r, 22); }, "#SRBW22*"},
        {[](R& r) { ImpostaPreselAn(r, true); }, "#SAPSON*"},
        {[](R& r) { ImpostaPreselMa(r, false); }, "#SMPSOFF*"},
        {[](R& r) { ImpostaPreAmpAn(r, true); }, "#SAPAON*"},
        {[](R& r) { ImpostaPreAmpMa(r, true); }, "#SMPAON*"},
        {[](R& r) { ImpostaPulseLim(r, true); }, "#SPLMON*"},
        {[](R& r) { ImpostaAttAn(r, -1); }, "#SAAT-1*"},
        {[](R& r) { ImpostaAttMa(r, 20); }, "#SMAT20*"},
        {[](R& r) { ImpostaMinAtt(r, 50); }, "#STAT50*"},
        {[](R& r) { ImpostaDinamica(r, 120, 145); }, "#SDIS120;145*"},
        {[](R& r) { ImpostaVolume(r, 30); }, "#SDMV30*"},
        {[](R& r) { ImpostaRFOut(r, true); }, "#STGSON*"},
        {[](R& r) { ImpostaTracking(r, false); }, "#STGTOFF*"},
        {[](R& r) { ImpostaLivelloTG(r, 80.5); }, "#STGL80.5*"},
        {[](R& r) { ImpostaFrequenzaTG(r, 10.7); }, "#STGF10700e3*"},
        {[](R& r) { ImpostaHoldTimeAn(r, 0.25); }, "#SAHT0.25*"},
        {[](R& r) { ImpostaHoldTimeMa(r, 1000); }, "#SMHT1000*"},
        {[](R& r) { ImpostaDetectorAn(r, 4); }, "#SADT4*"},
        {[](R& r) { ImpostaFrequenzaAn(r, 0.15, 30); }, "#SAFF150e3,30000e3*"},
        {[](R& r) { ImpostaFrequenzaMa(r, 1000); }, "#SMAF1000000e3*"},
        {[](R& r) { ImpostaFiltroGX2207(r, true); }, "#SIHPON*"},
        {[](R& r) { ImpostaIngressoGX2207(r, false); }, "#SMODA*"},
        {[](R& r) { ImpostaIngressoGX2207(r, true); }, "#SMODH*"},
        {[](R& r) { ImpostaTrackingGX2207(r, 2); }, "#SITG 2*"},
        {ImpostaCondotto, "#S3PRC*"},
        {ImpostaRadiato, "#S3PRR*"},
        {DisabilitaCF, "#SCFA -1*"},
        {ImpostaBreak, "#SSTP*"},
        {StopSweep, "#SSTP*"},
        {AbortSweep, "#ASBK*"}};
    BancoAperto b;
    b.stato.AbbandonaComandi = true; // one try is enough
    Testi attesi;
    for (const auto& [imposta, comando] : kCasi) {
        imposta(b.r);
        attesi.push_back(comando);
    }
    EXPECT_EQ(b.peer.scritti, attesi);
}

TEST(Comandi, ComposedOnesGoOutInOrderUntilTheUserGivesUp) {
    using enum Impostazione;
    BancoAperto b;
    b.peer.RispondiDa({{"#SLIC 2,EN55011*", "SLIC =OK\r\n"},
                       {"#SCFE 3,LISN*", "CFE=OK\r\n"},
                       {"#SCFE CF_Ext*", "CFE=OK\r\n"},
                       {"#SLIW1,5e3;60*", "LIW=OK\r\n"},
                       {"#SCFW0,1e6;2.5*", "CFW=OK\r\n"},
                       {"#SLDW0,5e3;60,50*", "LDW=OK\r\n"},
                       {"#SLIEEN55011*", "LIE=OK\r\n"},
                       {"#SLIM-6.1*", "LIM=OK\r\n"},
                       {"#SSFW 7,30100000*", "SFW=OK\r\n"}});
    const std::vector<ComandoPronto> comandi = {
        {NomeLimite, "2,EN55011"},     {NomeFattore, "3,LISN"},    {FineFattore, "CF_Ext"},
        {RigaLimiteSweep, "1,5e3;60"}, {RigaFattore, "0,1e6;2.5"}, {RigaLimiteDSD, "0,5e3;60,50"},
        {FineLimite, "EN55011"},       {Margine, "-6.1"},          {RigaTabFreq, "7,30100000"}};
    EXPECT_TRUE(InviaInOrdine(b.r, comandi));
    Testi attesi;
    for (const ComandoPronto& c : comandi)
        attesi.push_back(Componi(c.quale, c.argomenti).Comando);
    EXPECT_EQ(b.peer.scritti, attesi);
    b.peer.alComando = [&](const std::string&) { b.stato.AbbandonaComandi = true; };
    b.peer.scritti.clear();
    EXPECT_FALSE(InviaInOrdine(b.r, comandi));
    EXPECT_EQ(b.peer.scritti, Testi{"#SLIC 2,EN55011*"});
}

TEST(Comandi, FrequenciesAreKilohertzWithAnExponent) {
    const std::pair<double, const char*> casi[] = {
        {10.7, "10700e3"},       {0.00001, "0.01e3"},   {0.000001, "0.001e3"}, {28.1, "28100e3"},
        {6000.001, "6000001e3"}, {18000, "18000000e3"}, {0.1 + 0.2, "300e3"},  {0, "0e3"}};
    for (const auto& [mhz, testo] : casi)
        EXPECT_EQ(FrequenzaHz(mhz), testo);
}

TEST(Comandi, The18GHzUnitHasAFixedPreselector) {
    BancoAperto b;
    b.r.modello = {.UnitaEstensione = 2, .EstensioneAttiva = true};
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
    const std::tuple<bool, int16_t, Demodulazione, const char*> casi[] = {
        {false, 0, Spenta, "#SDMDOFF*"}, {false, 0, Accesa, "#SDMDON*"}, {false, 0, FM, "#SDMDON*"},
        {true, 0, AM, "#SDMDAM*"},       {true, 0, FM, "#SDMDFM*"},      {false, 3, FM, "#SDMDFM*"},
        {false, 3, Spenta, "#SDMDOFF*"}};
    for (const auto& [is3360, oem, modo, comando] : casi) {
        BancoAperto b;
        b.r.modello.Is3360 = is3360;
        b.r.modello.ModelloOEM = oem;
        b.peer.RispondiInFila({"DMD=OK\r\n"});
        ImpostaDemodulatore(b.r, modo);
        EXPECT_EQ(b.peer.scritti, Testi{comando});
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

} // namespace
} // namespace orvane
