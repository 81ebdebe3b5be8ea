// The verbs that read a stored measure: trace, peaks, verdict, and the options that they share.
#include "aiuto/BancoVerbi.h"
#include "data/Misure.h"
#include "data/TabelleLimFac.h"

namespace orvane::prova {
namespace {

struct MisureVerbiTest : BancoVerbi {
    /// "M": 1 to 5 MHz, Peak and QPeak, with its factor of 10 dB on and the limit "Wide QP" at
    /// 60 dB; a sub-measure "L1" with one step.
    MisureVerbiTest() {
        ScanRecord scan;
        ScanLine& riga = scan.Righe[0];
        riga.Start = 1;
        riga.Stop = 5;
        riga.Step = 1;
        riga.Detector = {1, 1};
        SetupRecord setup;
        setup.UnitId = 4;
        setup.LimitName = {"Wide QP"};
        setup.LimitOn = {1};
        setup.FactorName = {"Loop"};
        setup.FactorOn = {1};
        PreparaCartellaMisura(s, "M");
        EXPECT_TRUE(SalvaHeaderSweep(s, PercorsoKSH("M"), scan, setup));
        Traccia(PercorsoRS("M", "M", 0), {3000, 4990, 3000, 5300, 3000});
        Traccia(PercorsoRS("M", "Sub_Measure\\L1", 0), {1234});
        s.albero.AssicuraCartella("Limits\\");
        s.albero.AssicuraCartella("Factors\\");
        Tabella(PercorsoLimite("Wide QP"), {1e6f, 4.5e6f}, 6000);
        Tabella(PercorsoLimite("Above, all"), {10e6f, 20e6f}, 6000);
        Tabella(PercorsoFattore("Loop"), {1e5f, 9e6f}, 1000);
    }
    void Traccia(const std::string& percorso, const std::vector<int16_t>& peak) {
        std::vector<SampleRecord> passi;
        for (const int16_t livello : peak)
            passi.push_back({{livello, static_cast<int16_t>(livello - 200), kNessunLivello,
                              kNessunLivello, kNessunLivello, kNessunLivello}});
        ScrittoreTraccia scrittore;
        ASSERT_TRUE(scrittore.Apri(s, percorso) && scrittore.Scrivi(passi));
    }
    void Tabella(const std::string& percorso, std::pair<float, float> campo, int16_t valore) {
        TabelleLimFac tabelle;
        LimFacRecord& t = tabelle.slot[1];
        t.Freq = {campo.first, campo.second};
        t.Value = {valore, valore};
        ASSERT_TRUE(SalvaLimFac(s, tabelle, percorso, 1));
    }
};

TEST_F(MisureVerbiTest, PrintWhatTheOptionsPutOnShow) {
    const std::string traccia = "frequency_mhz,level_db,line";
    const std::string picchi = "number,frequency_mhz,level_db";
    struct Caso {
        std::string riga;
        EsitoVerbo esito;
        std::string dati;
    };
    const std::vector<Caso> casi = {
        {"trace|M", kFatto, traccia + "\n1,30.00,1\n2,49.90,1\n3,30.00,1\n4,53.00,1\n5,30.00,1\n"},
        {"trace|M|--sub|L1|--factors|--unit|DBUA/M|--detector|q", kFatto,
         traccia + "\n1,-31.16,1\n"},
        {"trace|M|--sub|L1|--factor|loop|--limit|wide qp|--limit|Above, all", kFatto,
         traccia + ",wide qp,delta_wide qp,\"Above, all\",\"delta_Above, all\"\n"
                   "1,22.34,1,60.00,-37.66,,\n"},
        {"peaks|M", kFatto,
         picchi + ",Wide QP,delta_Wide QP\n1,4,63.00,60.00,3.00\n2,2,59.90,60.00,-0.10\n"},
        {"peaks|M|--detector|Q|--count|1|--limit|none|--factor|NONE", kFatto,
         picchi + "\n1,4,51.00\n"},
        {"peaks|M|--to|3,5|--limit|none|--unit|dBm", kFatto, picchi + "\n1,2,-47.10\n"},
        {"peaks|M|--excursion|99|--limit|none", kFatto, picchi + "\n"},
        {"verdict|M|--factor|none", kFatto,
         "Wide QP\tQPeak\t-9.00 dB\t4 MHz\t51.00 dBµV\t60.00 dBµV\t0 above\tPASS\nPASS\n"},
        {"verdict|M|--uncertainty|1,5|--limit|Wide QP:Q", kRifiutato,
         "Wide QP\tQPeak\t+1.00 dB\t4 MHz\t61.00 dBµV/m\t60.00 dBµV/m\t1 above\tINCONCLUSIVE\n"
         "INCONCLUSIVE\n"},
        {"verdict|M|--limit|Wide QP:Peak|--limit|Above, all|--unit|dBm", kRifiutato,
         "Wide QP\tPeak\t+3.00 dB\t4 MHz\t-44.00 dBm\t-47.00 dBm\t1 above\tFAIL\n"
         "Above, all\tPeak\t---\t---\t---\t---\t0 above\t---\nFAIL\n"},
        {"verdict|M|--limit|NONE", kRifiutato, "---\n"},
    };
    for (const Caso& caso : casi) {
        EXPECT_EQ(Esegui(caso.riga), caso.esito) << caso.riga;
        EXPECT_EQ(dati.str(), caso.dati) << caso.riga << messaggi.str();
    }
    EXPECT_TRUE(Contiene(messaggi.str(), "nothing to compare: no limit is on"));
}

TEST_F(MisureVerbiTest, NameWhatIsWrong) {
    struct Caso {
        std::string riga;
        EsitoVerbo esito;
        std::string perche;
    };
    const std::vector<Caso> casi = {
        {"peaks|M|M", kUsoErrato, "wants one MEASURE"},
        {"peaks|X", kGuastoFile, "there is no measure Sweep\\X\\X.KSH"},
        {"trace|M|--sub|L2", kGuastoFile, "there is no sub-measure L2"},
        {"verdict|M|--limit|Wide QP:Z", kUsoErrato, "unknown detector"},
        {"trace|M|--unit|dB", kUsoErrato, "unknown unit \"dB\""},
        {"verdict|M|--limit|..\\X", kUsoErrato, "\"..\\X\" is no valid name"},
        {"verdict|M|--limit|A|--limit|B|--limit|C", kUsoErrato, "two"},
        {"verdict|M|--limit|A", kGuastoFile, "there is no table Limits\\A.5SL"},
        {"peaks|M|--factor|A", kGuastoFile, "there is no table Factors\\A.5SC"},
        {"verdict|M|--uncertainty|-1", kUsoErrato, "0 to 99"},
        {"peaks|M|--count|1.5", kUsoErrato, "whole number"},
        {"peaks|M|--from|2|--to|1", kUsoErrato, "--from lies above"},
    };
    for (const Caso& caso : casi) {
        EXPECT_EQ(Esegui(caso.riga), caso.esito) << caso.riga;
        EXPECT_TRUE(Contiene(messaggi.str(), caso.perche)) << messaggi.str();
        EXPECT_EQ(dati.str(), "");
    }
    EXPECT_EQ(Esegui("trace|M|--unit|dBuV/m"), kRifiutato);
    EXPECT_TRUE(
        Contiene(b.ambiente.riquadri.back().testo, "Should have an active Conversion Factor"));
}

TEST_F(MisureVerbiTest, ALimitOfTheMeasureThatIsGoneIsNoSilentPass) {
    s.albero.Cancella(PercorsoLimite("Wide QP"));
    EXPECT_EQ(Esegui("verdict|M"), kGuastoFile);
    EXPECT_TRUE(Contiene(messaggi.str(), "no verdict without Wide QP"));
    EXPECT_EQ(dati.str(), "");
    EXPECT_EQ(Esegui("peaks|M|--count|1"), kFatto);
    EXPECT_EQ(dati.str(), "number,frequency_mhz,level_db\n1,4,63.00\n");
    s.albero.Cancella(PercorsoFattore("Loop"));
    EXPECT_EQ(Esegui("peaks|M"), kGuastoFile) << "levels would be wrong";
    EXPECT_EQ(Esegui("trace|M"), kFatto);
}

TEST_F(MisureVerbiTest, PeaksBecomeAFrequencyTable) {
    EXPECT_EQ(Esegui("peaks|M|--save-table|Found"), kFatto);
    EXPECT_EQ(Esegui("table|show|Found"), kFatto);
    EXPECT_EQ(dati.str(), "2\t59.90\n4\t63.00\n");
    b.ambiente.risposte = {Risposta::No};
    EXPECT_EQ(Esegui("peaks|M|--count|1|--save-table|Found"), kRifiutato);
    EXPECT_EQ(Esegui("peaks|M|--excursion|99|--save-table|Other"), kRifiutato);
    EXPECT_EQ(Esegui("table|show|Other"), kGuastoFile);
}

TEST_F(MisureVerbiTest, TellTheSameAsJson) {
    banco.json = true;
    Esegui("trace|M|--sub|L1");
    EXPECT_EQ(dati.str(), "{\"detector\":\"Peak\",\"samples\":[[1,12.34,1]]}\n");
    Esegui("trace|M|--sub|L1|--unit|dBm|--limit|Above, all");
    EXPECT_TRUE(Contiene(dati.str(), "\"samples\":[[1,-94.66,1,null,null]]}"));
    Esegui("peaks|M|--count|1");
    EXPECT_TRUE(Contiene(dati.str(), "\"peaks\":[{\"number\":1,\"frequency_mhz\":4,\"level\":63,"
                                     "\"limits\":[{\"name\":\"Wide QP\",\"level\":60,"));
    Esegui("verdict|M|--limit|Above, all");
    EXPECT_TRUE(Contiene(dati.str(), "\"limit\":null,\"above\":0,\"verdict\":\"---\"}],"
                                     "\"verdict\":\"---\"}\n"));
}

TEST_F(MisureVerbiTest, TheArchiveTellsByItsStatusWhatCameOfIt) {
    struct Caso {
        std::vector<std::string> parole;
        EsitoVerbo esito;
        std::string dati; ///< what must stand in it
        Risposta risposta{};
    };
    const Caso casi[] = {
        {{"list", "--search", "m"}, kFatto, "M\t"},
        {{"list", "--search", "nowhere"}, kFatto, ""},
        {{"show", "M"}, kFatto, "limit: Wide QP\nfactor: Loop\nsub: L1\n"},
        {{"show", "N"}, kGuastoFile, ""},
        {{"show", ".."}, kUsoErrato, ""},
        {{"what"}, kUsoErrato, ""},
        {{"difference", "M", "m"}, kFatto, "frequency_mhz,delta_db,line\n1,0.00,1\n"},
        {{"difference", "M", "M", "--detector", "A"}, kUsoErrato, ""},
        {{"envelope", "M", "--detector", "Q"}, kFatto, "level_db,line\n1,10.34,1\n"},
        {{"envelope", "M", "--factors"}, kFatto, "level_db,line\n1,22.34,1\n"},
        {{"redo", "M", "--name", "T"}, kFatto, "Panels\\T.EST"},
        {{"redo", "M", "--name", "T"}, kRifiutato, "", Risposta::No},
        {{"delete", "M", "N"}, kGuastoFile, ""},
        {{"delete", "M"}, kRifiutato, "", Risposta::Annulla},
        {{"rename", "M", "m"}, kRifiutato, ""},
        {{"rename", "M", "N"}, kFatto, ""},
        {{"delete", "N"}, kFatto, "", Risposta::Ok},
        {{"show", "N"}, kGuastoFile, ""},
    };
    for (const Caso& caso : casi) {
        b.ambiente.risposte.clear();
        if (caso.risposta != Risposta::Ok || caso.parole[0] == "delete")
            b.ambiente.risposte = {caso.risposta, caso.risposta};
        EXPECT_EQ(Esegui("archive", caso.parole), caso.esito) << caso.parole[0] << messaggi.str();
        EXPECT_TRUE(Contiene(dati.str(), caso.dati)) << caso.parole[0] << ": " << dati.str();
    }
    EXPECT_EQ(s.env.SweepPath, "Untitled.EST");
}

} // namespace
} // namespace orvane::prova
