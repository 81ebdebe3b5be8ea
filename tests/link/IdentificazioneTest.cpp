// Who answers: the forms of the identification text, and the sequence of questions on the wire.
#include <gtest/gtest.h>

#include "aiuto/BancoLink.h"
#include "link/Identificazione.h"
#include "link/Protocollo.h"

namespace orvane {
namespace {

using namespace prova;

using Risposte = std::map<std::string, std::string>;

/// Answers by command, each line ended; a command that is not there stays without one.
void Risponde(BancoSeriale& b, const Risposte& risposte) {
    Risposte righe;
    for (const auto& [comando, risposta] : risposte)
        righe[comando] = risposta + "\r\n";
    b.peer.RispondiDa(righe);
}

/// The flags that an identification text may set, as a word.
std::string Segni(const ReceiverModel& m) {
    std::string segni;
    const std::pair<bool, const char*> tutti[] = {{m.IsK0X, "K0X "},
                                                  {m.Is5520F, "5520F "},
                                                  {m.Is3360, "3360 "},
                                                  {m.Is3360_00, "00 "},
                                                  {m.Is3360_01, "01 "},
                                                  {m.Is3360_02, "02 "},
                                                  {m.Is3360_03, "03 "},
                                                  {m.IsK6X, "K6X "},
                                                  {m.Is60OEM, "60OEM "},
                                                  {m.HaK3XK6X, "ha "},
                                                  {m.ModelloOEM == 1, "oem1 "},
                                                  {m.ModelloOEM == 2, "oem2 "},
                                                  {m.ModelloOEM == 3, "oem3 "},
                                                  {m.TipoFrontEnd == 1, "fe1 "},
                                                  {m.TipoFrontEnd == 2, "fe2 "},
                                                  {m.TipoFrontEnd == 3, "fe3 "}};
    for (const auto& [vale, nome] : tutti)
        segni += vale ? nome : "";
    return segni;
}

TEST(RiconosciIDN, EachForm) {
    struct Caso {
        const char* risposta;
        const char* segni;
        const char* firmware;
    };
    for (const Caso& caso :
         {Caso{"IDN=5520-FW - 2.13 10/01/19\r", "", "2.13 10/01/19"},
          Caso{"IDN=5520/K3X - 2.13 x\r", "", "2.13 x"},
          Caso{"IDN=5520/K0X - 2.13 x\r", "K0X ", "2.13 x"},
          Caso{"IDN=5520F-FW - 1.9\r", "5520F oem1 ", "1.9"},
          Caso{"IDN=VSD3 1.9 x\r", "5520F oem2 ", "1.9 x"},
          Caso{"IDN=T4470K 1.9 x\r", "5520F oem3 ", "1.9 x"},
          Caso{"IDN=3360/00-FW - 1.50 x\r", "3360 00 ha ", "1.50 x"},
          Caso{"IDN=3360/01-FW - 1.50 x\r", "3360 01 ha ", "1.50 x"},
          Caso{"IDN=3360/02-FW - 1.50 x\r", "3360 02 ha ", "1.50 x"},
          Caso{"IDN=3360/03-FW - 1.50 x\r", "3360 03 ha ", "1.50 x"},
          Caso{"IDN=3360-FW - 1.50 x\r", "3360 ha ", "1.50 x"},
          Caso{"IDN=5520/K6X - 2.13 x\r", "K6X ha ", "2.13 x"},
          Caso{"IDN=60 OEM - 2.13 x\r", "60OEM ha ", "2.13 x"},
          Caso{"IDN=GX2207-FW - 2.13 x\r", "fe1 ", "2.13 x"},
          Caso{"IDN=TB05-FW - 2.13 x\r", "fe1 ", "2.13 x"},
          Caso{"IDN=GX2207F-FW - 2.13 x\r", "5520F fe3 ", "2.13 x"},
          // Whatever stands before the form, and whatever follows its line.
          Caso{"?? IDN=5520-FW -   2.13 x  \r\nIDN=VSD3", "", "2.13 x"},
          Caso{"IDN=5520-FW - 2.13 x", "", "2.13 x"}, Caso{"IDN=5520F-FW -\r", "5520F oem1 ", ""},
          Caso{"IDN=5520F-FW -  \r\n", "5520F oem1 ", ""}, Caso{"IDN=9999-FW - 2.13 x\r", "", ""},
          Caso{"idn=5520-FW - 2.13 x\r", "", ""}, Caso{"SBK=OK\r", "", ""}, Caso{"", "", ""}}) {
        ReceiverModel modello;
        RiconosciIDN("IDN=3360/03-FW - 1.0 x", modello); // must leave nothing behind
        EXPECT_EQ(RiconosciIDN(caso.risposta, modello), caso.firmware) << caso.risposta;
        EXPECT_EQ(Segni(modello), caso.segni) << caso.risposta;
    }
}

TEST(VersioneFirmware, TheNumberBeforeTheFirstBlank) {
    EXPECT_EQ(VersioneFirmware("2.08 x"), firmware::kRmsAvg);
    EXPECT_EQ(VersioneFirmware("2,092 x"), firmware::kPausaBatteria);
    EXPECT_EQ(VersioneFirmware("2.13"), 0);
    EXPECT_EQ(VersioneFirmware(" 2.13 x"), 0);
    EXPECT_EQ(VersioneFirmware("---"), 0);
    EXPECT_EQ(VersioneFirmware("v2 x"), 0);
    EXPECT_EQ(VersioneFirmware(""), 0);
}

struct Sequenza {
    const char* nome;
    Modalita modalita;
    int sorgente;
    Risposte risposte;
    Testi domande; ///< behind `#?IDN*`
    const char* segni;
    int modo;
    int unita;
    bool estesa;
};

void PrintTo(const Sequenza& s, std::ostream* dove) {
    *dove << s.nome;
}

class IdentificazioneModelli : public testing::TestWithParam<Sequenza> {};

TEST_P(IdentificazioneModelli, AsksInOrderAndConcludes) {
    const Sequenza& caso = GetParam();
    BancoAperto b;
    b.ambiente.Fra(60, [&] { b.stato.AbbandonaComandi = true; });
    Risposte risposte = caso.risposte;
    risposte.insert({"#?MIL*", "MIL=OK"});
    risposte.insert({"#?CRA*", "CRA=N/A"});
    Risponde(b, risposte);
    EXPECT_EQ(LeggiModello(b.r, caso.modalita, caso.sorgente), caso.estesa);
    Testi attese = caso.domande;
    attese.insert(attese.begin(), "#?IDN*");
    EXPECT_EQ(b.peer.scritti, attese);
    EXPECT_EQ(Segni(b.r.modello), caso.segni);
    EXPECT_EQ(b.r.modello.ModoK3X, caso.modo);
    EXPECT_EQ(b.r.modello.UnitaEstensione, caso.unita);
    EXPECT_EQ(b.r.modello.EstensioneAttiva, caso.estesa);
    EXPECT_EQ(b.finestra.fatti, Testi{});
    EXPECT_FALSE(b.stato.AbbandonaComandi);
    EXPECT_EQ(b.r.caps[1].FMaxMa, ImpostaModelCaps(b.r.modello)[1].FMaxMa);
}

constexpr auto kSweep = Modalita::Sweep;
constexpr auto kAnalyzer = Modalita::Analyzer;
constexpr auto kManual = Modalita::Manual;

const Sequenza kSequenze[] = {
    {"plain",
     kAnalyzer,
     2,
     {{"#?IDN*", "IDN=5520-FW - 2.13 x"}, {"#?BCD*", "BCD=Off "}},
     {"#?BCD*", "#?MIL*", "#?CRA*"},
     "",
     0,
     0,
     false},
    {"old firmware",
     kSweep,
     1,
     {{"#?IDN*", "IDN=5520-FW - 1.76 x"}, {"#?BCD*", "BCD=OFF"}},
     {"#?BCD*"},
     "",
     0,
     0,
     false},
    {"firmware with MIL alone",
     kSweep,
     1,
     {{"#?IDN*", "IDN=5520-FW - 1.77 x"}, {"#?BCD*", "BCD=OFF"}},
     {"#?BCD*", "#?MIL*"},
     "",
     0,
     0,
     false},
    {"5540",
     kManual,
     1,
     {{"#?IDN*", "IDN=5520-FW - 1.0 x"}, {"#?BCD*", "BCD=On "}},
     {"#?BCD*"},
     "",
     0,
     0,
     true},
    {"5570",
     kSweep,
     1,
     {{"#?IDN*", "IDN=5520-FW - 1.0 x"}, {"#?BCD*", "BCD=ON;5570"}},
     {"#?BCD*"},
     "",
     0,
     1,
     true},
    {"5590",
     kSweep,
     1,
     {{"#?IDN*", "IDN=5520-FW - 1.0 x"}, {"#?BCD*", "BCD=ON;5590"}},
     {"#?BCD*"},
     "",
     0,
     2,
     true},
    {"front-end switched in",
     kSweep,
     1,
     {{"#?IDN*", "IDN=5520-FW - 1.0 x"}, {"#?BCD*", "BCD=On tb05"}},
     {"#?BCD*"},
     "fe2 ",
     0,
     0,
     false},
    {"front-end alone",
     kAnalyzer,
     1,
     {{"#?IDN*", "IDN=GX2207-FW - 1.0 x"}, {"#?BCD*", "BCD=OFF"}},
     {"#?BCD*"},
     "fe1 ",
     0,
     0,
     false},
    {"fast front-end",
     kAnalyzer,
     1,
     {{"#?IDN*", "IDN=GX2207F-FW - 1.0 x"}, {"#?BCD*", "BCD=OFF GX2207"}},
     {"#?BCD*"},
     "5520F fe3 ",
     0,
     0,
     false},
    {"fast front-end switched in",
     kAnalyzer,
     1,
     {{"#?IDN*", "IDN=GX2207F-FW - 1.0 x"}, {"#?BCD*", "BCD=ON GX2207"}},
     {"#?BCD*"},
     "5520F fe2 ",
     0,
     0,
     false},
    {"K3X low, live",
     kManual,
     2,
     {{"#?IDN*", "IDN=5520/K3X - 1.0 x"}, {"#?BCD*", "BCD=OFF K3X"}},
     {"#?BCD*"},
     "ha ",
     1,
     0,
     false},
    {"K3X high, live",
     kAnalyzer,
     1,
     {{"#?IDN*", "IDN=5520/K3X - 1.0 x"}, {"#?BCD*", "BCD=ON K3X"}},
     {"#?BCD*"},
     "ha ",
     2,
     0,
     true},
    {"K3X, radiated",
     kSweep,
     1,
     {{"#?IDN*", "IDN=5520/K3X - 1.0 x"}, {"#?BCD*", "BCD=OFF K3X"}, {"#?3PR*", "3PR=RAD"}},
     {"#?BCD*", "#?3PR*"},
     "ha ",
     2,
     0,
     true},
    {"K0X, conducted",
     kSweep,
     2,
     {{"#?IDN*", "IDN=5520/K0X - 1.0 x"}, {"#?BCD*", "BCD=ON K3X"}, {"#?3PR*", "3PR=CON"}},
     {"#?BCD*", "#?3PR*"},
     "K0X ha ",
     1,
     0,
     false},
    {"K6X",
     Modalita::Click,
     2,
     {{"#?IDN*", "IDN=5520/K6X - 1.0 x"}, {"#?BCD*", "BCD=OFF K6X"}, {"#?3PR*", "3PR=CON"}},
     {"#?BCD*", "#?3PR*"},
     "K6X ha ",
     1,
     0,
     false},
    {"60 OEM",
     kAnalyzer,
     1,
     {{"#?IDN*", "IDN=60 OEM - 1.0 x"}, {"#?BCD*", "BCD=ON OEM"}},
     {"#?BCD*"},
     "60OEM ha ",
     2,
     0,
     true},
    {"3360, live",
     kAnalyzer,
     2,
     {{"#?IDN*", "IDN=3360/03-FW - 1.0 x"}},
     {},
     "3360 03 ha ",
     2,
     0,
     true},
    {"3360, live, range out of bounds",
     kManual,
     -7,
     {{"#?IDN*", "IDN=3360-FW - 1.0 x"}},
     {},
     "3360 ha ",
     1,
     0,
     false},
    {"3360, own range, new firmware",
     kSweep,
     2,
     {{"#?IDN*", "IDN=3360/01-FW - 2.13 x"}, {"#?3PR*", "3PR=CON"}},
     {"#?3PR*", "#?CRA*"},
     "3360 01 ha ",
     1,
     0,
     false},
    {"5520F, live",
     kAnalyzer,
     9,
     {{"#?IDN*", "IDN=5520F-FW - 1.0 x"}},
     {},
     "5520F oem1 ",
     2,
     0,
     true},
    {"5520F, own range",
     kSweep,
     2,
     {{"#?IDN*", "IDN=5520F-FW - 1.0 x"}, {"#?CO6*", "CO6=CND"}},
     {"#?CO6*"},
     "5520F oem1 ",
     1,
     0,
     false},
    {"VSD3, live", kManual, 1, {{"#?IDN*", "IDN=VSD3 1.0 x"}}, {}, "5520F oem2 ", 1, 0, false},
    {"VSD3, radiated",
     kSweep,
     1,
     {{"#?IDN*", "IDN=VSD3 1.0 x"}, {"#?LNK*", "LNK=1;1,2;"}, {"#?CO6*", "CO6=RAD"}},
     {"#?LNK*", "#?CO6*"},
     "5520F oem2 ",
     2,
     0,
     true},
    {"T4470K, radiated",
     Modalita::Click,
     1,
     {{"#?IDN*", "IDN=T4470K 1.0 x"}, {"#?LNK*", "LNK=1;1,2;"}, {"#?CO6*", "CO6=RAD;40,5000,"}},
     {"#?LNK*", "#?CO6*"},
     "5520F oem3 ",
     2,
     0,
     true},
};

INSTANTIATE_TEST_SUITE_P(Tutti, IdentificazioneModelli, testing::ValuesIn(kSequenze));

TEST(Identificazione, MilAndRmsAvgByFirmware) {
    struct Caso {
        const char* firmware;
        bool mil;
        bool rmsAvg;
    };
    for (const Caso& caso :
         {Caso{"1.76 x", false, true}, Caso{"1.77 x", true, true}, Caso{"2.07 x", true, true},
          Caso{"2.08 x", true, false}, Caso{"2.13", false, true}}) {
        BancoAperto b;
        Risponde(b, {{"#?IDN*", std::string("IDN=5520-FW - ") + caso.firmware},
                     {"#?BCD*", "BCD=OFF"},
                     {"#?MIL*", "MIL=OK"},
                     {"#?CRA*", "CRA=N/A"}});
        LeggiModello(b.r, kSweep, 1);
        EXPECT_EQ(b.r.modello.ConFiltriMil, caso.mil) << caso.firmware;
        EXPECT_EQ(b.r.modello.ConRmsAvg, caso.rmsAvg) << caso.firmware;
        EXPECT_EQ(b.r.modello.FwTesto, caso.firmware);
    }
}

TEST(Identificazione, TheLinkTextIsNotWhatItSays) {
    BancoAperto b;
    Risposte risposte = {{"#?IDN*", "IDN=VSD3 1.0 x"},
                         {"#?LNK*", "LNK=1;100,200;(5570)"},
                         {"#?CO6*", "CO6=RAD;-1,-1,"}};
    Risponde(b, risposte);
    EXPECT_TRUE(LeggiModello(b.r, kSweep, 1));
    EXPECT_EQ(b.r.modello.FMinLink, 25);
    EXPECT_EQ(b.r.modello.FMaxLink, 6020);
    EXPECT_EQ(b.r.caps[0].FMinScan, 25);
    EXPECT_EQ(b.r.caps[0].FMaxScan, 6020);
    risposte["#?CO6*"] = "CO6=RAD;40,5000,";
    Risponde(b, risposte);
    LeggiModello(b.r, kSweep, 1);
    EXPECT_EQ(b.r.caps[0].FMinScan, 40);
    EXPECT_EQ(b.r.caps[0].FMaxScan, 5000);
    LeggiModello(b.r, kAnalyzer, 2);
    EXPECT_EQ(b.r.modello.FMinLink, -1) << "a live mode does not ask";
    EXPECT_EQ(b.r.caps[0].FMinAn, 30);
    EXPECT_EQ(b.r.caps[0].FMaxAn, 6000);
}

TEST(Identificazione, ADamagedLinkTextIsAskedForAgain) {
    BancoAperto b;
    b.peer.alComando = [&, volte = 0](const std::string& comando) mutable {
        const char* rotte[] = {"LNK=1", "LNK=1;25", "LNK=1;25,6020", "LNK=1,25;6020;"};
        if (comando == "#?IDN*")
            b.peer.Rispondi("IDN=VSD3 1.0 x\r\n");
        else if (comando == "#?CO6*")
            b.peer.Rispondi("CO6=CND\r\n");
        else if (volte < 4)
            b.peer.Rispondi(std::string(rotte[volte++]) + "\r\n");
        else
            b.peer.Rispondi("LNK=1;25,6020;\r\n");
    };
    EXPECT_FALSE(LeggiModello(b.r, kSweep, 1));
    EXPECT_EQ(b.peer.scritti,
              (Testi{"#?IDN*", "#?LNK*", "#?LNK*", "#?LNK*", "#?LNK*", "#?LNK*", "#?CO6*"}));
    EXPECT_EQ(b.finestra.fatti, (Testi{"mostra Error Read Link", "nascondi"}));
}

TEST(LeggiFirmware, TwoSilentRetriesThenTheBannerStays) {
    for (const char* risposta : {"", "SBK=OK\r\n", "IDN=5520F-FW -\r\n"}) {
        BancoAperto b;
        b.r.modello.Is3360 = b.r.modello.HaK3XK6X = true;
        b.peer.alComando = [&](const std::string&) { b.peer.Rispondi(risposta); };
        EXPECT_EQ(LeggiFirmware(b.r), "---");
        EXPECT_EQ(b.peer.scritti, Testi(3, "#?IDN*"));
        EXPECT_EQ(b.finestra.fatti, Testi{"mostra Error Reading FW"});
        EXPECT_EQ(Segni(b.r.modello), "");
        EXPECT_EQ(b.r.modello.FwTesto, "---");
        EXPECT_EQ(b.r.modello.FwVersione, 0);
    }
}

TEST(LeggiFirmware, ALateAnswerStillCounts) {
    BancoAperto b;
    b.peer.alComando = [&, volte = 0](const std::string&) mutable {
        const char* risposte[] = {"", "SBK=OK\r\n", "IDN=5520-FW - 2.13 x\r\n"};
        b.peer.Rispondi(risposte[volte++]);
    };
    EXPECT_EQ(LeggiFirmware(b.r), "2.13 x");
    EXPECT_EQ(b.finestra.fatti, Testi{});
}

TEST(Identificazione, AnUnknownReceiverIsTakenForAPlainOne) {
    BancoAperto b;
    Risponde(b, {{"#?IDN*", "IDN=9999"}, {"#?BCD*", "BCD=ON;5570"}});
    EXPECT_TRUE(LeggiModello(b.r, kSweep, 1));
    EXPECT_EQ(b.peer.scritti, (Testi{"#?IDN*", "#?IDN*", "#?IDN*", "#?BCD*"}));
    EXPECT_EQ(b.r.modello.FwTesto, "---");
    EXPECT_EQ(NomeModello(b.r.modello, false), "5570");
}

TEST(Identificazione, HalfASecondBeforeTheUnitIsAskedFor) {
    BancoAperto b;
    Risponde(b, {{"#?IDN*", "IDN=5520-FW - 1.0 x"}, {"#?BCD*", "BCD=OFF"}});
    const double inizio = b.ambiente.ora;
    LeggiModello(b.r, kSweep, 1);
    EXPECT_NEAR(b.ambiente.ora - inizio, 0.5, 1e-9);
}

TEST(Identificazione, AnAnswerThatIsNeitherOnNorOffIsAskedForAgain) {
    BancoAperto b;
    b.peer.alComando = [&, volte = 0](const std::string& comando) mutable {
        if (comando == "#?IDN*")
            b.peer.Rispondi("IDN=5520-FW - 1.0 x\r\n");
        else
            b.peer.Rispondi(++volte < 3 ? "BCD=5590\r\n" : "BCD=OFF\r\n");
    };
    EXPECT_FALSE(LeggiModello(b.r, kSweep, 1));
    EXPECT_EQ(b.peer.scritti.size(), 4u);
    EXPECT_EQ(b.r.modello.UnitaEstensione, 0);
}

TEST(Identificazione, TheUserGivesUpAnywhere) {
    const Risposte tutte = {{"#?IDN*", "IDN=5520/K3X - 2.13 x"},
                            {"#?BCD*", "BCD=ON K3X"},
                            {"#?3PR*", "3PR=RAD"},
                            {"#?MIL*", "MIL=OK"}};
    for (const char* muta : {"#?IDN*", "#?BCD*", "#?3PR*", "#?MIL*", "#?CRA*"}) {
        BancoAperto b;
        Risposte risposte = tutte;
        risposte.erase(muta);
        Risponde(b, risposte);
        b.ambiente.Fra(muta == std::string("#?IDN*") ? 1.0 : 8.0,
                       [&] { b.stato.AbbandonaComandi = true; });
        LeggiModello(b.r, kSweep, 1);
        EXPECT_TRUE(b.stato.AbbandonaComandi);
        EXPECT_TRUE(b.peer.scritti.back() == muta || b.peer.scritti.back() == "#SSTP*") << muta;
        EXPECT_EQ(b.stato.striscia, "") << muta;
    }
}

TEST(Identificazione, AnAbortInThePauseBeforeTheUnitSendsNothingMore) {
    BancoAperto b;
    Risponde(b, {{"#?IDN*", "IDN=5520-FW - 1.0 x"}, {"#?BCD*", "BCD=ON;5590"}});
    b.ambiente.Fra(0.3, [&] { b.stato.AbbandonaComandi = true; });
    EXPECT_FALSE(LeggiModello(b.r, kSweep, 1));
    EXPECT_EQ(b.peer.scritti, Testi{"#?IDN*"});
}

TEST(CambioUnita, TheWordsOfThePrompt) {
    using enum UnitaRichiesta;
    EXPECT_EQ(TestoCambioUnita(Estesa6GHz, "5540"),
              "Switch OFF 5520.\rSwitch ON the extension unit (5570),\rwait a couple of seconds, "
              "then switch back ON 5520 and click OK.");
    EXPECT_EQ(TestoCambioUnita(Estesa18GHz, ""),
              "Switch OFF 5520.\rSwitch ON the extension unit (5590),\rwait a couple of seconds, "
              "then switch back ON 5520 and click OK.");
    EXPECT_EQ(TestoCambioUnita(Estesa, ""),
              "Switch OFF 5520.\rSwitch ON the extension unit (5540 or 5570),\rwait a couple of "
              "seconds, then switch back ON 5520 and click OK.");
    EXPECT_EQ(TestoCambioUnita(SoloRicevitore, "5570"),
              "             Switch OFF 5520 and 5570\rThen switch back ON 5520 only and click OK.");
}

TEST(CambioUnita, OpensAgainAndIdentifiesAnew) {
    BancoAperto b;
    b.r.modello.EstensioneAttiva = true;
    b.r.modello.UnitaEstensione = 1;
    Risponde(b, {{"#?IDN*", "IDN=5520-FW - 1.0 x"}, {"#?BCD*", "BCD=OFF"}});
    EXPECT_TRUE(ChiediCambioUnita(b.r, UnitaRichiesta::SoloRicevitore, kSweep, 1));
    EXPECT_EQ(b.peer.aperture.size(), 2u);
    EXPECT_EQ(b.peer.scritti, (Testi{"#?IDN*", "#?BCD*"}));
    EXPECT_EQ(b.Riquadri(), Testi{TestoCambioUnita(UnitaRichiesta::SoloRicevitore, "5570")});
    EXPECT_EQ(b.ambiente.riquadri[0].icona, Icona::Informazione);
    EXPECT_FALSE(b.r.modello.EstensioneAttiva);
}

TEST(CambioUnita, AFailedOpenAsksUntilTheUserCancels) {
    BancoUsb b;
    b.usb.dispositivi = {};
    b.ambiente.risposte = {Risposta::Ok, Risposta::Riprova, Risposta::Annulla};
    EXPECT_FALSE(ChiediCambioUnita(b.r, UnitaRichiesta::Estesa, kSweep, 1));
    EXPECT_TRUE(b.stato.AbbandonaComandi);
    ASSERT_EQ(b.ambiente.riquadri.size(), 3u);
    EXPECT_EQ(b.ambiente.riquadri[1].testo, "Cannot find 5520 / 5540\r on the USB bus.");
    EXPECT_EQ(b.ambiente.riquadri[1].pulsanti, Pulsanti::RiprovaAnnulla);
    EXPECT_EQ(b.usb.Quante("lista"), 8u);
    EXPECT_EQ(b.usb.scritti, Testi{});
}

} // namespace
} // namespace orvane
