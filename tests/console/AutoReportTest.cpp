// The report that writes itself: where, as what, of which trace, and what happens when it cannot.
#include "console/AutoReport.h"

#include <gtest/gtest.h>

#include "console/Archivio.h"
#include "data/FileTabelle.h"
#include "data/Panels.h"
#include "data/ScrivaniaProva.h"
#include "records/ImpostazioniReport.h"

namespace orvane::prova {
namespace {

struct NessunaAttesa : VistaAttesa {
    int aperta = 0;
    void MostraAttesa(const std::string&) override { aperta = 1; }
    void ChiudiAttesa() override { aperta = 0; }
};

struct AutoReportTest : ProvaDati {
    NessunaAttesa attesa;

    AutoReportTest() {
        s.setup = SetupDefault();
        ImpostaColoriDefault(s.env);
    }
    /// Two points of Average over a limit of 0 dB, in the trace file of this base.
    void Misura(const std::string& nome, const std::string& base) {
        SweepHeader header{.Setup = SetupDefault()};
        header.Setup.LimitName[0] = "Zero";
        header.Setup.LimitOn[0] = 1;
        ScanLine& riga = header.Scan.Righe[0];
        riga.Start = riga.Step = 1;
        riga.Stop = 2;
        riga.Detector = {0, 0, 0, 1};
        SalvaHeaderSweep(s, PercorsoKSH(nome), header.Scan, header.Setup);
        ContenutoTabella zero{.kind = TableKind::Limite};
        InserisciPunto(zero, {.freqMhz = 0.5, .livelloCent = 0});
        InserisciPunto(zero, {.freqMhz = 9, .livelloCent = 0});
        ASSERT_TRUE(SalvaTabella(s, zero, "Limits\\Zero.5SL"));
        std::vector<SampleRecord> passi(2);
        for (SampleRecord& passo : passi)
            passo.Livello[3] = 1000;
        const std::string dove = base == nome ? CartellaMisura(nome) : CartellaSubMisure(nome);
        s.albero.AssicuraCartella(dove);
        ASSERT_TRUE(SalvaTraccia(s, dove + base + ".RS0", passi));
    }
    EsitoAutoReport Scrivi(const std::string& nome, int16_t modo) {
        s.setup.AutoReportMode = modo;
        return ScriviAutoReport(s, nome, nullptr, attesa);
    }
};

TEST_F(AutoReportTest, WritesWhatThePanelWantsIntoReport) {
    Misura("Plain", "Plain");
    Misura("Passes", "Passes-L1");
    EXPECT_EQ(Scrivi("Plain", 0).esito, EsitoAuto::Spento);
    EXPECT_FALSE(s.albero.EsisteCartella("Report"));
    struct Caso {
        const char* misura;
        int16_t modo;
        int16_t tipo;
        const char* file;
    };
    for (const Caso& caso :
         {Caso{"Plain", 1, 0, "Report\\Report_Plain.TXT"},
          Caso{"Plain", 2, 1, "Report\\Report_Plain.PDF"},
          Caso{"Plain", 3, 2, "Report\\Report_Plain.RTF"},
          // The panel's detector was not measured: the one that was takes its place.
          Caso{"Passes", 1, 0, "Report\\Report_Passes.TXT"}}) {
        s.env.ReportList[voce_report::kTipoAuto] = caso.tipo;
        const EsitoAutoReport esito = Scrivi(caso.misura, caso.modo);
        EXPECT_EQ(esito.esito, EsitoAuto::Scritto) << caso.file;
        EXPECT_EQ(esito.righe, 2u) << caso.file;
        EXPECT_TRUE(s.albero.Esiste(caso.file)) << caso.file;
        EXPECT_EQ(attesa.aperta, 0);
    }
    EXPECT_TRUE(ambiente.riquadri.empty());
}

TEST_F(AutoReportTest, AFailureIsToldAndNamesTheFile) {
    Misura("Plain", "Plain");
    s.albero.AssicuraCartella("Report\\Report_Plain.TXT");
    const EsitoAutoReport esito = Scrivi("Plain", 1);
    EXPECT_EQ(esito.esito, EsitoAuto::Fallito);
    EXPECT_TRUE(esito.file.ends_with("Report_Plain.TXT"));
    EXPECT_EQ(ambiente.riquadri.size(), 1u);
    EXPECT_EQ(Scrivi("Absent", 1).esito, EsitoAuto::Fallito);
}

} // namespace
} // namespace orvane::prova
