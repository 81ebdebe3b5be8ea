// Pause and resume in the midst of a stream.
#include <gtest/gtest.h>

#include <algorithm>

#include "aiuto/BancoSimulato.h"

namespace orvane {
namespace {

using prova::BancoSimulato;

struct VistaPausa : prova::VistaNota {
    std::vector<std::string> messaggi;
    bool tasti = true;
    bool cmbPausa = false;
    bool cePausa = false; ///< the control was there at some time
    std::function<void()> inPausa;
    std::function<void()> inRiga;

    void MostraFase(FaseCorsa fase) override {
        if (fase == FaseCorsa::Riga && inRiga)
            inRiga();
        if (fase == FaseCorsa::Pausa)
            inPausa();
    }
    void AbilitaTastiCorsa(bool abilitati) override { tasti = abilitati; }
    void MostraCMBPausa(bool visibile) override {
        cmbPausa = visibile;
        cePausa = cePausa || visibile;
    }
    void MostraMessaggioBreve(const std::string& testo, int ms) override {
        messaggi.push_back(testo + " " + std::to_string(ms));
    }
};

struct Banco : BancoSimulato {
    explicit Banco(const char* firmware = "")
        : BancoSimulato({.firmware = firmware, .byteAlSecondo = kByteAlSecondoLinea}) {
        scan.Righe[0] = prova::Banda("B", "P,Q,A");
        scan.Righe[0].HoldTime = 10;
        pausa.alPasso = [this] {
            if (corsaPausa.stato.SweepInCorso && chiesta == 0) {
                chiesta = ambiente.ora;
                ChiediPausa(corsaPausa.stato);
            }
        };
        pausa.inPausa = [this] {
            tastiInPausa = pausa.tasti;
            ambiente.Fra(20, [this] { ChiediPausa(corsaPausa.stato); });
        };
    }
    EsitoCorsa Esegui() { return ClickExecuteSweep(corsaPausa, "M"); }
    /// From the sweep command on, without it.
    std::vector<std::string> Dietro() const {
        const auto& tutti = simulato.Comandi();
        const auto da = std::ranges::find_if(
            tutti, [](const std::string& c) { return c.starts_with("#SSFD"); });
        std::vector<std::string> quali(da + 1, tutti.end());
        std::erase(quali, "#?BAT*");
        return quali;
    }

    VistaPausa pausa;
    Corsa corsaPausa{scrivania, ricevitore, scan, statoCorsa, pausa};
    double chiesta = 0;
    bool tastiInPausa = false;
};

constexpr auto kErrore = Capriccio::Tipo::Errore;

TEST(PausaSweep, LosesNoStepWhateverItTakes) {
    struct {
        const char* nome;
        const char* comando; ///< refused, or unheard...
        int volte;           ///< ...so often
        Capriccio::Tipo come;
        std::vector<std::string> comandi;
    } const casi[] = {
        {"at once", "", 0, kErrore, {"#ASPA*", "#ASRE*", "#?UHT*"}},
        {"unheard", "ASPA", 1, Capriccio::Tipo::Muto, {"#ASPA*", "#ASPA*", "#ASRE*", "#?UHT*"}},
        {"third try", "ASPA", 2, kErrore, {"#ASPA*", "#ASPA*", "#ASPA*", "#ASRE*", "#?UHT*"}},
        {"resume refused", "ASRE", 2, kErrore, {"#ASPA*", "#ASRE*", "#ASRE*", "#ASRE*", "#?UHT*"}},
    };
    Banco senza;
    senza.pausa.alPasso = {};
    ASSERT_EQ(senza.Esegui(), EsitoCorsa::Compiuta);
    const auto attesa = senza.File(PercorsoRS("M", "M", 0));
    ASSERT_EQ(attesa.size(), 5971 * kByteCampione);
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.nome);
        Banco banco;
        if (caso.volte > 0)
            banco.simulato.Aggiungi(
                {.tipo = caso.come, .comando = caso.comando, .volte = caso.volte});
        EXPECT_EQ(banco.Esegui(), EsitoCorsa::Compiuta);
        EXPECT_EQ(banco.Dietro(), caso.comandi);
        EXPECT_EQ(banco.File(PercorsoRS("M", "M", 0)), attesa);
        EXPECT_TRUE(banco.tastiInPausa);
        EXPECT_TRUE(banco.pausa.messaggi.empty());
        EXPECT_TRUE(banco.pausa.cePausa);
        EXPECT_FALSE(banco.pausa.cmbPausa) << "gone with the run";
        EXPECT_EQ(banco.vista.strisce,
                  std::vector<std::string>(std::string_view(caso.comando) == "ASRE" ? 1 : 0,
                                           "Error set Resume Sweep"));
        EXPECT_FALSE(banco.vista.strisciaVisibile);
    }
}

TEST(PausaSweep, FourRefusalsStopTheRun) {
    Banco banco;
    banco.simulato.Aggiungi({.tipo = Capriccio::Tipo::Errore, .comando = "ASPA"});
    EXPECT_EQ(banco.Esegui(), EsitoCorsa::Fermata);
    EXPECT_EQ(banco.Dietro(),
              (std::vector<std::string>{"#ASPA*", "#ASPA*", "#ASPA*", "#ASPA*", "#ASBK*"}));
    EXPECT_EQ(banco.pausa.messaggi, std::vector<std::string>{"Pause Failed 1500"});
    EXPECT_EQ(banco.statoCorsa.motivo, "Pause Failed");
    EXPECT_TRUE(banco.pausa.tasti);
    EXPECT_GT(banco.File(PercorsoRS("M", "M", 0)).size(), 0u);
    EXPECT_EQ(banco.File(PercorsoRS("M", "M", 0)).size() % kByteCampione, 0u);
}

TEST(PausaSweep, AStopInAPauseSendsNoResume) {
    Banco banco;
    double fermata = 0;
    banco.pausa.inPausa = [&] {
        banco.ambiente.Fra(20, [&] {
            fermata = banco.ambiente.ora;
            ChiediStop(banco.statoCorsa);
        });
    };
    EXPECT_EQ(banco.Esegui(), EsitoCorsa::Fermata);
    EXPECT_EQ(banco.Dietro(), (std::vector<std::string>{"#ASPA*", "#ASBK*"}));
    EXPECT_LE(banco.ambiente.ora - fermata, 0.5);
    EXPECT_FALSE(banco.stato.AbbandonaComandi);
}

TEST(PausaSweep, AnAdapterPulledInAPauseEndsTheRun) {
    Banco banco;
    banco.pausa.inPausa = [&] {
        banco.ambiente.Fra(7,
                           [&] { banco.simulato.Aggiungi({.tipo = Capriccio::Tipo::Scollegato}); });
    };
    EXPECT_EQ(banco.Esegui(), EsitoCorsa::GuastoLink);
    EXPECT_EQ(banco.ambiente.riquadri.back().testo, "5520 Time out\rsimulated 5520 not Available");
    EXPECT_LT(banco.ambiente.ora - banco.chiesta, 20);
    EXPECT_EQ(banco.File(PercorsoRS("M", "M", 0)).size(), banco.pausa.passi * kByteCampione);
    EXPECT_EQ(banco.File(PercorsoKSH("M")).size(), 17770u);
}

TEST(PausaSweep, FilterAndAttenuatorGoOutFromThePause) {
    Banco senza;
    senza.pausa.alPasso = {};
    ASSERT_EQ(senza.Esegui(), EsitoCorsa::Compiuta);
    using Cambi = std::vector<CambioInPausa>;
    const auto an = Modalita::Analyzer;
    const auto ma = Modalita::Manual;
    struct {
        const char* nome;
        Cambi cambi;
        double resumeS; ///< behind the changes; 0 in the same moment
        std::vector<std::string> comandi;
    } const casi[] = {
        {"filter", {{ParComune::BWIF, an}}, 5, {"#SRBW2*", "#?RBW *"}},
        {"its other list", {{ParComune::BWIF, ma}}, 5, {"#SRBW1*", "#?RBW *"}},
        {"both, with a resume at once",
         {{ParComune::Attenuatore, an}, {ParComune::BWIF, an}},
         0,
         {"#SAAT20*", "#SRBW2*", "#?RBW *"}},
        {"once for two changes",
         {{ParComune::Attenuatore, an}, {ParComune::Attenuatore, ma}},
         5,
         {"#SMAT20*"}},
        {"nothing else", {{ParComune::MinAtt, an}, {ParComune::Dinamica, an}}, 5, {}},
    };
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.nome);
        Banco banco;
        const auto cambia = [&] {
            banco.scrivania.setup.BWIFId = 1;
            banco.scrivania.setup.Attenuator = 20;
            for (const CambioInPausa& cambio : caso.cambi)
                ChiediCambio(banco.statoCorsa, cambio);
        };
        banco.pausa.inPausa = [&] {
            banco.ambiente.Fra(7, cambia);
            banco.ambiente.Fra(7 + caso.resumeS, [&] { ChiediPausa(banco.statoCorsa); });
        };
        EXPECT_EQ(banco.Esegui(), EsitoCorsa::Compiuta);
        auto attesi = caso.comandi;
        attesi.insert(attesi.begin(), "#ASPA*");
        attesi.insert(attesi.end(), {"#ASRE*", "#?UHT*"});
        EXPECT_EQ(banco.Dietro(), attesi);
        EXPECT_EQ(banco.File(PercorsoRS("M", "M", 0)), senza.File(PercorsoRS("M", "M", 0)));
    }
}

TEST(PausaSweep, ASettingThatIsRefusedDoesNotHoldUpAStop) {
    Banco banco;
    banco.simulato.Aggiungi({.tipo = Capriccio::Tipo::Muto, .comando = "SAAT"});
    double fermata = 0;
    banco.pausa.inPausa = [&] {
        banco.ambiente.Fra(7, [&] {
            ChiediCambio(banco.statoCorsa, {ParComune::Attenuatore, Modalita::Analyzer});
        });
        banco.ambiente.Fra(20.3, [&] {
            fermata = banco.ambiente.ora;
            ChiediStop(banco.statoCorsa);
        });
    };
    EXPECT_EQ(banco.Esegui(), EsitoCorsa::Fermata);
    EXPECT_EQ(banco.vista.strisce, std::vector<std::string>{"Error set Attenuator"});
    EXPECT_FALSE(banco.vista.strisciaVisibile);
    EXPECT_EQ(banco.Dietro().back(), "#ASBK*");
    EXPECT_LE(banco.ambiente.ora - fermata, 0.5);
    EXPECT_FALSE(ChiediCambio(banco.statoCorsa, {})) << "no run is paused";
}

TEST(PausaSweep, APressBetweenTwoPassesHoldsTheNextOne) {
    for (const double riscontroS : {0.0, 2.0}) { // a receiver still at it is no paused one
        SCOPED_TRACE(riscontroS);
        Banco banco;
        banco.simulato.Aggiungi(
            {.tipo = Capriccio::Tipo::Tardi, .comando = "SSFD", .secondi = riscontroS});
        banco.pausa.alPasso = {};
        banco.scrivania.setup.AncillaryKind = 1;
        banco.scan.Righe[0].LineSwitch = {0, 1, 1, 0};
        banco.pausa.inRiga = [&] {
            if (banco.Quanti("#SSFD") == 1)
                ChiediPausa(banco.statoCorsa);
        };
        EXPECT_EQ(banco.Esegui(), EsitoCorsa::Compiuta);
        std::vector<std::string> comandi = banco.Dietro();
        std::erase_if(comandi, [](const std::string& c) { return c.starts_with("#SSFD"); });
        EXPECT_EQ(comandi,
                  (std::vector<std::string>{"#?UHT*", "#SUPP4*", "#ASPA*", "#ASRE*", "#?UHT*"}));
        for (const char* base : {"M-L1", "M-L2"})
            EXPECT_EQ(banco.File(PercorsoRS("M", std::string("Sub_Measure\\") + base, 0)).size(),
                      5971 * kByteCampione);
        EXPECT_EQ(banco.statoCorsa.PausaRichiesta, 0);
    }
}

TEST(PausaSweep, IsOfferedFromTheFirmwareOnThatHasIt) {
    Banco vecchio("2.09");
    vecchio.pausa.alPasso = {};
    EXPECT_EQ(vecchio.Esegui(), EsitoCorsa::Compiuta);
    EXPECT_FALSE(vecchio.pausa.cePausa);
}

} // namespace
} // namespace orvane
