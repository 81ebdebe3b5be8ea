// Who answers: the forms of the identification text, and the sequence of questions on the wire.
#include <gtest/gtest.h>

#include "aiuto/BancoLink.h"
#include "base/Testo.h"
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
    const std::pair<bool, const char*> tutti[] = {//
                                                  {m.IsK0X, "K0X "},
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
    std::string segni;
    for (const auto& [vale, nome] : tutti)
        segni += vale ? nome : "";
    return segni;
}

TEST(RiconosciIDN, EachForm) {
    // A reply, the flags that it sets, and the firmware.
    const std::array<const char*, 3> casi[] = {
        {"IDN=3360/00-FW - 1.50 x\r", "3360 00 ha ", "1.50 x"},
        {"IDN=TB05-FW - 2.13 x\r", "fe1 ", "2.13 x"},
        {"IDN=3360/02-FW - 2.13 x\r", "3360 02 ha ", "2.13 x"},
        {"IDN=GX2207-FW - 2.13 x\r", "fe1 ", "2.13 x"},
        // Whatever stands before the form, and whatever follows its line.
        {"?? IDN=5520-FW -   2.13 x  \r\nIDN=VSD3", "", "2.13 x"},
        {"IDN=5520-FW - 2.13 x", "", "2.13 x"},
        {"IDN=5520F-FW -\r", "5520F oem1 ", ""},
        {"IDN=5520F-FW -  \r\n", "5520F oem1 ", ""},
        {"IDN=9999-FW - 2.13 x\r", "", ""},
        {"idn=5520-FW - 2.13 x\r", "", ""},
        {"SBK=OK\r", "", ""}};
    for (const auto& [risposta, segni, firmware] : casi) {
        ReceiverModel modello;
        RiconosciIDN("IDN=3360/03-FW - 1.0 x", modello); // must leave nothing behind
        EXPECT_EQ(RiconosciIDN(risposta, modello), firmware) << risposta;
        EXPECT_EQ(Segni(modello), segni) << risposta;
    }
}

constexpr auto kSweep = Modalita::Sweep;
constexpr auto kAnalyzer = Modalita::Analyzer;
constexpr auto kManual = Modalita::Manual;
constexpr auto kClick = Modalita::Click;

/// The identification, then the questions in the order in which they must come: replies, or the
/// bare name where any will do.
struct Sequenza {
    Modalita modalita;
    int sorgente;
    const char* scambio;
    const char* segni;
    int modo;
    int unita;
    bool estesa;
};

const Sequenza kSequenze[] = {
    {kAnalyzer, 2, "5520-FW - 2.13 x|BCD=Off |MIL|CRA", "", 0, 0, false},
    {kManual, 1, "5520-FW - 1.0 x|BCD=On ", "", 0, 0, true},
    {kSweep, 1, "5520-FW - 1.0 x|BCD=ON;5570", "", 0, 1, true},
    {kSweep, 1, "5520-FW - 1.0 x|BCD=On tb05", "fe2 ", 0, 0, false},
    {kAnalyzer, 1, "GX2207F-FW - 1.0 x|BCD=OFF GX2207", "5520F fe3 ", 0, 0, false},
    {kAnalyzer, 1, "GX2207F-FW - 1.0 x|BCD=ON GX2207", "5520F fe2 ", 0, 0, false},
    // A live mode is told its range, any other asks for it.
    {kManual, 2, "5520/K3X - 1.0 x|BCD=OFF K3X", "ha ", 1, 0, false},
    {kAnalyzer, 1, "5520/K3X - 1.0 x|BCD=ON K3X", "ha ", 2, 0, true},
    {kSweep, 1, "5520/K3X - 1.0 x|BCD=OFF K3X|3PR=RAD", "ha ", 2, 0, true},
    {kSweep, 2, "5520/K0X - 1.0 x|BCD=ON K3X|3PR=CON", "K0X ha ", 1, 0, false},
    {kClick, 2, "5520/K6X - 1.0 x|BCD=OFF K6X|3PR=CON", "K6X ha ", 1, 0, false},
    {kAnalyzer, 1, "60 OEM - 1.0 x|BCD=ON OEM", "60OEM ha ", 2, 0, true},
    {kAnalyzer, 2, "3360/03-FW - 1.0 x", "3360 03 ha ", 2, 0, true},
    {kManual, -7, "3360-FW - 1.0 x", "3360 ha ", 1, 0, false},
    {kSweep, 2, "3360/01-FW - 2.13 x|3PR=CON|CRA", "3360 01 ha ", 1, 0, false},
    {kAnalyzer, 9, "5520F-FW - 1.0 x", "5520F oem1 ", 2, 0, true},
    {kManual, 1, "VSD3 1.0 x", "5520F oem2 ", 1, 0, false},
    {kSweep, 1, "VSD3 1.0 x|LNK=1;1,2;|CO6=RAD", "5520F oem2 ", 2, 0, true},
    {kClick, 1, "T4470K 1.0 x|LNK=1;1,2;|CO6=RAD;40,5000,", "5520F oem3 ", 2, 0, true}};

TEST(Identificazione, AsksInOrderAndConcludes) {
    for (const Sequenza& caso : kSequenze) {
        SCOPED_TRACE(caso.scambio);
        BancoAperto b;
        b.ambiente.Fra(60, [&] { b.stato.AbbandonaComandi = true; });
        Risposte risposte = {{"#?MIL*", "MIL=OK"}, {"#?CRA*", "CRA=N/A"}};
        Testi attese;
        for (const std::string& pezzo : Dividi("IDN=" + std::string(caso.scambio), '|')) {
            attese.push_back("#?" + pezzo.substr(0, 3) + "*");
            if (pezzo.size() > 3)
                risposte[attese.back()] = pezzo;
        }
        Risponde(b, risposte);
        EXPECT_EQ(LeggiModello(b.r, caso.modalita, caso.sorgente), caso.estesa);
        EXPECT_EQ(b.peer.scritti, attese);
        EXPECT_EQ(Segni(b.r.modello), caso.segni);
        EXPECT_EQ(b.r.modello.ModoK3X, caso.modo);
        EXPECT_EQ(b.r.modello.UnitaEstensione, caso.unita);
        EXPECT_EQ(b.r.modello.EstensioneAttiva, caso.estesa);
        EXPECT_EQ(b.finestra.fatti, Testi{});
        EXPECT_FALSE(b.stato.AbbandonaComandi);
        EXPECT_EQ(b.r.caps[1].FMaxMa, ImpostaModelCaps(b.r.modello)[1].FMaxMa);
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
        else
            b.peer.Rispondi(std::string(volte < 4 ? rotte[volte++] : "LNK=1;25,6020;") + "\r\n");
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

TEST(Identificazione, AnAbortInThePauseBeforeTheUnitSendsNothingMore) {
    BancoAperto b;
    Risponde(b, {{"#?IDN*", "IDN=5520-FW - 1.0 x"}, {"#?BCD*", "BCD=ON;5590"}});
    b.ambiente.Fra(0.3, [&] { b.stato.AbbandonaComandi = true; });
    EXPECT_FALSE(LeggiModello(b.r, kSweep, 1));
    EXPECT_EQ(b.peer.scritti, Testi{"#?IDN*"});
    b.stato.AbbandonaComandi = false;
    b.inizio = b.ambiente.ora;
    EXPECT_TRUE(LeggiModello(b.r, kSweep, 1));
    EXPECT_NEAR(b.Trascorsi(), 0.5, 1e-9);
}

} // namespace
} // namespace orvane
