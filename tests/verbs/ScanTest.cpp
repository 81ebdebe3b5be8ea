// The scan verb: every field of a line by the rules of its window, and whole lines.
#include <map>

#include "aiuto/BancoVerbi.h"
#include "data/Panels.h"
#include "data/TabelleLimFac.h"
#include "setup/CampiRiga.h"

namespace orvane::prova {
namespace {

struct ScanTest : BancoVerbi {
    EsitoVerbo Scan(const std::string& parole, bool json = false) {
        banco.json = json;
        return Esegui("scan|" + parole);
    }
    ScanTable Tabella() {
        ScanRecord scan;
        EXPECT_TRUE(CaricaPanelEST(s, PercorsoPannello("T", "EST"), scan));
        return scan.Righe;
    }
    void SalvaLimite(int16_t lineare) {
        TabelleLimFac tabelle;
        tabelle.slot[1].Freq = {150e3f, 30e6f};
        tabelle.slot[1].LinFreq = lineare;
        ASSERT_TRUE(SalvaLimFac(s, tabelle, PercorsoLimite(lineare ? "Lin" : "Log"), 1));
    }
};

TEST_F(ScanTest, EachOptionWritesItsField) {
    s.setup.AncillaryKind = 1;
    SalvaLimite(0);
    ASSERT_EQ(Scan("add|T|--band|B"), kFatto);
    ASSERT_EQ(Scan("set|T|1|--start|1|--stop|2,5|--rbw|10 kHz|--step|0.01|--steps-between|99"
                   "|--smart|on|--detector|Q,A|--hold|-5|--peak-hold|40000|--margin|-25"
                   "|--limit|Log|--limit-dsd|Log|--min-att|30|--preamp|on|--presel|off"
                   "|--prompt|Turn it|--lines|L2"),
              kFatto)
        << messaggi.str();
    const ScanLine riga = Tabella()[0];
    const std::map<std::string_view, std::string> attesi = {
        {"start", "1"},    {"stop", "2.5"},         {"rbw", "10 kHz"},     {"step", "0.01"},
        {"smart", "ON"},   {"detector", "QA"},      {"hold", "5"},         {"peak-hold", "30000"},
        {"margin", "-19"}, {"limit", "Log"},        {"limit-dsd", "Log"},  {"min-att", "30"},
        {"preamp", "ON"},  {"presel", "OFF"},       {"prompt", "Turn it"}, {"lines", "L2"},
        {"table", "NONE"}, {"steps-between", "49"}, {"auto-step", "OFF"},  {"antenna", "-"}};
    for (const CampoRiga& campo : TabellaCampiRiga()) {
        if (campo.opzione.empty())
            continue;
        EXPECT_EQ(campo.testo(riga), attesi.at(campo.opzione)) << campo.opzione;
    }
    EXPECT_EQ(riga.LimitOn, 1);
    EXPECT_EQ(riga.LimitDSDOn, 1);
    EXPECT_EQ(riga.PromptOn, 1);
    ASSERT_EQ(Scan("show|T", true), kFatto);
    DiceTutte({"\"ancillary\":1", "\"double_smart\":true", "\"peak_hold_ms\":30000", "\"passes\":1",
               "\"lines\":[\"L2\"]", "\"prompt\":\"Turn it\"", "\"margin_db\":-19"});
    // A float is told as it was typed.
    ASSERT_EQ(Scan("add|Short|--band|B"), kFatto);
    ASSERT_EQ(Scan("show|Short", true), kFatto);
    EXPECT_NE(dati.str().find("\"hold_ms\":1.9,"), std::string::npos) << dati.str();
}

TEST_F(ScanTest, WhatTheRulesRefuseChangesNothing) {
    SalvaLimite(1);
    ASSERT_EQ(Scan("add|T|--band|B|--detector|P,Q,A"), kFatto);
    const ScanTable prima = Tabella();
    struct {
        const char* parole;
        EsitoVerbo esito;
        const char* detto; ///< on the terminal or in the box
    } const casi[] = {
        {"set|T|1|--smart|on", kRifiutato, "Smart detector must have\ra Limit (enabled)"},
        {"set|T|1|--smart|on|--limit|Lin", kRifiutato,
         "Linear limit not suitable with smart detector"},
        {"set|T|1|--table|Gone", kRifiutato, "Frequency table Gone  not found"},
        {"set|T|1|--limit|Gone", kGuastoFile, "there is no limit Gone"},
        {"set|T|1|--smart|on|--limit|Lin|--detector|P,Q,A", kUsoErrato, "--detector wants some"},
        {"set|T|1|--detector|P,Q|--ancillary|5", kUsoErrato, "one with a mast"},
        {"set|T|1|--hold|long", kUsoErrato, "--hold wants a number, not \"long\""},
        {"set|T|1|--start|40", kUsoErrato, "--start below --stop"},
        {"set|T|1|--lines|L1", kUsoErrato, "--lines: the ancillary 0"},
        {"set|T|1|--lines|N|--ancillary|6", kUsoErrato, "--lines: the ancillary 6"},
        {"set|T|1|--ancillary|7", kUsoErrato, "0 to 6"},
        {"set|T|2|--hold|1", kUsoErrato, "a line from 1 to 1"},
        {"set|T|1|--band|B", kUsoErrato, "use add or insert"},
        {"move|T|1", kUsoErrato, "a line from 1 to 1"},
        {"copy|T|1|2", kUsoErrato, "too many words"},
        {"insert|Other|1|--band|B", kGuastoFile, "there is no scan table"},
    };
    for (const auto& caso : casi) {
        b.ambiente.riquadri.clear();
        EXPECT_EQ(Scan(caso.parole), caso.esito) << caso.parole;
        std::string detto = messaggi.str();
        for (const Riquadro& riquadro : b.ambiente.riquadri)
            detto += riquadro.testo;
        EXPECT_NE(detto.find(caso.detto), std::string::npos) << caso.parole << ": " << detto;
    }
    EXPECT_TRUE(ConfrontaScanTab(ScanRecord{.Righe = prima}, ScanRecord{.Righe = Tabella()}));
}

TEST_F(ScanTest, LinesComeGoAndChangePlaces) {
    for (const char* parole :
         {"add|T|--band|A+B|--ancillary|1", "insert|T|2|--start|1|--stop|2|--hold|3", "copy|T|1",
          "move|T|4|1", "remove|T|2"})
        ASSERT_EQ(Scan(parole), kFatto) << parole << messaggi.str();
    const ScanTable tabella = Tabella();
    const std::array<double, 4> inizi = {0.15, 0.009, 1, 0};
    for (size_t i = 0; i < inizi.size(); ++i)
        EXPECT_EQ(tabella[i].Start, inizi[i]) << i;
    EXPECT_EQ(tabella[0].LineSwitch, (std::array<int16_t, 4>{0, 1, 1, 0}));
    EXPECT_EQ(tabella[2].HoldTime, 3);
    ASSERT_EQ(Scan("show|T|--ancillary|1"), kFatto);
    EXPECT_EQ(Dividi(Dividi(dati.str(), '\n')[0], '\t').back(), "L1, L2");
    EXPECT_NE(messaggi.str().find(" points"), std::string::npos);
}

} // namespace
} // namespace orvane::prova
