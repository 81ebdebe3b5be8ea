// Who the receiver says it is, what it answers, and what it remembers.
#include "simulator/Banco.h"

namespace orvane::prova {
namespace {

TEST(Vocabolario, EveryModelHasItsOwnIdentification) {
    // A model and what it says of itself.
    const std::array<const char*, 3> casi[] = {{"5520", "5520-FW -", "OFF"},
                                               {"5520f", "5520F-FW -", "OFF"},
                                               {"VSD3", "VSD3", "OFF"},
                                               {"t4470k", "T4470K", "OFF"},
                                               {"K3X", "5520/K3X -", "OFF;K3X"},
                                               {"K0X", "5520/K0X -", "OFF;K3X"},
                                               {"K6X", "5520/K6X -", "OFF;K6X"},
                                               {"60oem", "60 OEM -", "OFF;OEM"},
                                               {"3360", "3360-FW -", "N/A"},
                                               {"3360/00", "3360/00-FW -", "N/A"},
                                               {"3360/01", "3360/01-FW -", "N/A"},
                                               {"3360/02", "3360/02-FW -", "N/A"},
                                               {"3360/03", "3360/03-FW -", "N/A"},
                                               {"GX2207", "GX2207-FW -", "OFF"},
                                               {"TB05", "TB05-FW -", "OFF"},
                                               {"GX2207F", "GX2207F-FW -", "OFF"},
                                               {"5520+5540", "5520-FW -", "ON;5540"},
                                               {"5520+5570", "5520-FW -", "ON;5570"},
                                               {"5520+5590", "5520-FW -", "ON;5590"},
                                               {"5520+gx2207", "5520-FW -", "ON;GX2207"}};
    EXPECT_EQ(std::size(casi), ModelliSimulati().size());
    for (const auto& [modello, idn, bcd] : casi)
        EXPECT_EQ(Banco(modello).Chiedi("#?IDN*#?BCD*"),
                  "IDN=" + std::string(idn) + " 2.15 12/03/19\r\nBCD=" + bcd + "\r\n");
}

TEST(Vocabolario, TheFirmwareIsWhatWasAskedFor) {
    EXPECT_EQ(Banco("K3X,fw=1.43").Chiedi("#?IDN*"), "IDN=5520/K3X - 1.43 12/03/19\r\n");
    const std::array<const char*, 3> casi[] = {{"5520,fw=1.76", "N/A", "N/A"},
                                               {"5520,fw=1.77", "OK", "N/A"},
                                               {"5520,fw=2.08", "OK", "OK"},
                                               {"3360", "N/A", "OK"}};
    for (const auto& [modello, mil, cra] : casi)
        EXPECT_EQ(Banco(modello).Chiedi("#?MIL*#?CRA*"),
                  std::string("MIL=") + mil + "\r\nCRA=" + cra + "\r\n")
            << modello;
}

TEST(Vocabolario, SettersTakeTheirValuesAndRefuseOthers) {
    // A command and its reply, with the asterisk between them.
    for (const std::string scambio : {"#SRBW13*RBW=ERR",
                                      "#SAPSYES*APS=ERR",
                                      "#SPLMON*PLM =OK",
                                      "#SAAT-1*AAT=OK",
                                      "#SMAT-2*MAT=ERR",
                                      "#STAT50*TAT=OK",
                                      "#STAT51*TAT=ERR",
                                      "#SDIS120;145*DIS=OK",
                                      "#SDIS120;146*DIS=ERR",
                                      "#SDIS140;100*DIS=ERR",
                                      "#SDMDFM*DMD=OK",
                                      "#SDMDSSB*DMD=ERR",
                                      "#STGSON*TGS =OK",
                                      "#STGL-12.5*TGL=OK",
                                      "#SMHT-1*MHT=ERR",
                                      "#SADT6*ADT=ERR",
                                      "#SAFF150e3,30000e3*AFF=OK",
                                      "#SAFF30000e3,150e3*AFF=ERR",
                                      "#SAFF150e3*AFF=ERR",
                                      "#SCFA -1*CFA=OK",
                                      "#SLIC 3,A*SLIC =OK",
                                      "#SCFW0,150e3;1*CFW=OK",
                                      "#SSFW 0,150000*SFW=OK",
                                      "#SXYZ1*XYZ=N/A",
                                      "#?XYZ*XYZ=N/A",
                                      "#S3PRC*3PR=N/A",
                                      "#SIHPON*IHP=N/A",
                                      "#SOFF*OFF=N/A",
                                      "#CHGS*CHGS=N/A"}) {
        const size_t dopo = scambio.find('*') + 1;
        EXPECT_EQ(Banco().Chiedi(scambio.substr(0, dopo)), scambio.substr(dopo) + "\r\n")
            << scambio;
    }
}

TEST(Vocabolario, FrontEndCommandsBelongToTheFrontEnd) {
    Banco banco("GX2207F");
    for (const char* comando : {"#SIHPON*", "#SMODA*", "#SITG 2*"})
        EXPECT_NE(banco.Chiedi(comando).find("=OK"), std::string::npos) << comando;
    EXPECT_NE(banco.Chiedi("#SOFF*").find("GX2207F"), std::string::npos);
    EXPECT_EQ(banco.Chiedi("#CHGS*"), "CHGS=OK\r\n");
    EXPECT_EQ(banco.ricevitore.Valore("MOD"), "A");
    EXPECT_EQ(banco.ricevitore.Valore("ITG"), "2");
}

TEST(Vocabolario, The3360LacksWhatTheConsoleAnswersForIt) {
    Banco banco("3360/01");
    for (const char* comando : {"#?BAT*", "#?MIL*", "#?APS*", "#?CKR*", "#?FSA*", "#SDIS100;100*",
                                "#SPLMON*", "#STGSON*", "#SAPAON*", "#SMPSON*", "#SLIC 1,A*"})
        EXPECT_EQ(banco.Chiedi(comando).substr(3), "=N/A\r\n") << comando;
    EXPECT_EQ(banco.Chiedi("#SRBW3*"), "RBW=OK\r\n");
}

TEST(Vocabolario, QueriesTellWhatSettersLeft) {
    Banco banco;
    const std::pair<const char*, const char*> casi[] = {
        {"#?APS*", "APS=OFF"},
        {"#SAPSON*#?APS*", "APS=ON"},
        {"#SAPS?*#?APS*", "APS=ON"}, // a refused value changes nothing
        {"#?MAT*", "MAT=AUTO;10"},
        {"#STAT20*#?MAT*", "MAT=AUTO;20"},
        {"#SMAT35*#?MAT*", "MAT=MAN;35"},
        {"#SMAF10700e3*#?RBW *", "RBW=AUTO 6"},
        {"#SMAF100e3*#?RBW *", "RBW=AUTO 7"},
        {"#SRBW3*#?RBW *", "RBW=MAN 3"},
        {"#SAHT12.5*#?UHT*", "UHT=12.5"},
        {"#SUPP5*#?UPP*", "UPP=5"},
        {"#?S/N*", "S/N=SIM0000001"}};
    for (const auto& [comandi, risposta] : casi)
        EXPECT_TRUE(banco.Chiedi(comandi).ends_with(std::string(risposta) + "\r\n")) << comandi;
    banco.ricevitore.ImpostaUserPort(9);
    banco.ricevitore.ImpostaBatteria("55", 11.8, true);
    EXPECT_EQ(banco.Chiedi("#?UPP*#?BAT*"), "UPP=9\r\nBAT=55,11.80;1\r\n");
    banco.ricevitore.ImpostaBatteria("LOW", 0, false);
    EXPECT_EQ(banco.Chiedi("#?BAT*"), "BAT=LOW;0\r\n");
}

TEST(Vocabolario, TheInputInChargeIsTold) {
    Banco k6x("K6X");
    EXPECT_EQ(k6x.Chiedi("#?3PR*"), "3PR=CON\r\n");
    EXPECT_EQ(k6x.Chiedi("#S3PRR*"), "3PR=OK\r\n");
    EXPECT_EQ(k6x.Chiedi("#?3PR*"), "3PR=RAD;28,6000,\r\n");
    EXPECT_EQ(k6x.Chiedi("#?BCD*"), "BCD=ON;K6X\r\n");
    EXPECT_EQ(k6x.Chiedi("#?LNK*"), "LNK=N/A\r\n");

    Banco vsd3("VSD3");
    EXPECT_EQ(vsd3.Chiedi("#?CO6*"), "CO6=CND\r\n");
    EXPECT_EQ(vsd3.Chiedi("#SCO6R*#?CO6*"), "CO6=OK\r\nCO6=RAD;25,6020,\r\n");
    EXPECT_EQ(vsd3.Chiedi("#?LNK*"), "LNK=1;25, 6020;(5570)\rLNK=2;6020, 18000;(5570)\r\n");
    EXPECT_EQ(Banco("3360/03").Chiedi("#S3PRR*#?3PR*"), "3PR=OK\r\n3PR=RAD;28,3000,\r\n");
}

TEST(Vocabolario, SixDetectorsAreReadAtTheManualFrequency) {
    Banco banco("5520,seed=3");
    banco.Chiedi("#SMAF10700e3*#SRBW4*#SMAT20*#SMPAON*");
    const CondizioniSpettro condizioni{.rbwHz = 10e3, .attDb = 20, .preAmp = true, .seme = 3};
    std::string attesa = "DET=";
    for (int d = 0; d < 6; ++d) {
        char valore[16];
        std::snprintf(valore, sizeof valore, "%.2f;", LivelloSimulato(10.7, d, condizioni) / 100.0);
        attesa += valore;
    }
    EXPECT_EQ(banco.Chiedi("#?DET*"), attesa + "\r\n");
}

TEST(Vocabolario, UploadsEndInSlots) {
    Banco banco;
    banco.Chiedi("#SLIW0,150e3;66*#SLIW1,500e3;56*");
    EXPECT_EQ(banco.Chiedi("#SLIW1,600e3;56*"), "LIW=OK\r\n") << "a row that comes again";
    EXPECT_EQ(banco.Chiedi("#SLIW3,30e6;60*"), "LIW=ERR\r\n") << "a row out of order";
    banco.Chiedi("#SLIC 4,Ord #7*");
    EXPECT_EQ(banco.ricevitore.Tabella("LIC", 4),
              (std::vector<std::string>{"Ord #7", "150e3;66", "600e3;56"}));
    banco.Chiedi("#SLDW0,1e6;50,40*#SLIEDouble*");
    EXPECT_EQ(banco.ricevitore.Tabella("LIE", 0),
              (std::vector<std::string>{"Double", "1e6;50,40"}));
    banco.Chiedi("#SCFE 2,Gr\xfcn*");
    EXPECT_EQ(banco.ricevitore.Tabella("CFE", 2), (std::vector<std::string>{"Gr\u00FCn"}));
}

TEST(Vocabolario, CommandsMaySplitAnywhereAndGarbageIsSkipped) {
    Banco banco;
    for (const char c : std::string("\r\n*?x#SRBW5*zz*#?RBW *"))
        banco.Manda(std::string_view(&c, 1));
    EXPECT_EQ(banco.Prendi(), "RBW=OK\r\nRBW=MAN 5\r\n");
    EXPECT_EQ(banco.ricevitore.Comandi(), (std::vector<std::string>{"#SRBW5*", "#?RBW *"}));
    EXPECT_EQ(banco.Chiedi("#SRB#?RBW *"), "RBW=MAN 5\r\n") << "a torn command gives way";
    EXPECT_EQ(banco.Chiedi("#" + std::string(5000, 'A') + "*#?RBW *"), "RBW=MAN 5\r\n");
    EXPECT_EQ(banco.Chiedi("#*"), "=N/A\r\n");
}

} // namespace
} // namespace orvane::prova
