#include <gtest/gtest.h>

#include "MisuraProva.h"
#include "base/Testo.h"
#include "data/ImportaTesto.h"
#include "data/ScrivaniaProva.h"
#include "report/LeggiBMP.h"
#include "report/LogoReport.h"
#include "report/ReportHTML.h"
#include "report/RiduciColori.h"
#include "report/RigheReport.h"
#include "report/SalvaReport.h"
#include "report/SalvaTabella.h"
#include "report/ScriviBMP.h"
#include "report/TestoReport.h"

namespace orvane {
namespace {

using prova::Campione;
using Righe = std::vector<std::string>;

struct Muta : VistaAttesa {
    void MostraAttesa(const std::string&) override {}
    void ChiudiAttesa() override {}
};

/// Gives the bytes that it was told to.
struct FabbricaFinta : FabbricaQuadri {
    std::vector<uint8_t> byte;
    std::vector<uint8_t> Dipingi(int, int, FormatoImmagine,
                                 const std::function<void(Superficie&)>&) override {
        return byte;
    }
};

struct Documenti : prova::ProvaDati {
    prova::BancoReport banco;
    ReportModel model;
    GrigliaReport griglia;
    Muta muta;

    Documenti() {
        banco.misura.date = {"01/02/2026 10:00:00", "01/02/2026 10:05:00"};
        SetupRecord& run = banco.misura.header.Setup;
        run.SwRelease = "1.0";
        run.ModelText = "5520";
        run.SerialA = "1234567890";
        run.SerialB = "AB";
        banco.Limite(0, "Twelve chars", {{1e6f, 60}, {9e7f, 60}});
        banco.Fattore(0, "Eleven char", {{1e6f, 1}, {9e7f, 1}});
        banco.Traccia({Campione(2.5, 61), Campione(30, 59.5)});
        model.ReportMargin = 1.5f;
        Compila();
    }
    void Compila() {
        const FonteReport fonte = banco.Fonte();
        RaccogliRigheRep(model, fonte);
        griglia = ImpostaGridReport(model, fonte);
        CompilaReport(griglia, model, fonte, ambiente);
    }
    bool Salva(const char* nome, const OpzioniReport& opzioni = {},
               FabbricaQuadri* fabbrica = nullptr) {
        const FonteReport fonte = banco.Fonte();
        return SalvaReport(s, {griglia, model, fonte}, opzioni, fabbrica, muta, Host(nome));
    }
};

TEST_F(Documenti, CanonicalText) {
    Metti("Header.TXT", "Lab \xB0\r\nend");
    ASSERT_TRUE(Salva("a.txt"));
    EXPECT_EQ(Prendi("a.txt"),
              "Lab \xB0\r\nend\r\n\r\n"
              "Motor 01/02/2026 10:00:00 - 01/02/2026 10:05:00\r\n"
              "Rel. SW 1.0\r\n"
              "5520   S/N: 1234567890AB\r\n"
              "Margin: 1.5 dB\r\n"
              "\r\n"
              "Frequency  \tPeak       \tLimit      \tDelta      \tFactor     \t\r\n"
              "           \t           \tTwelve ch..\t           \tEleven char\t\r\n"
              "[MHz]      \t[dB\xB5V]     \t[dB\xB5V]     \t[dB]       \t[dB]       \t\r\n"
              "\r\n"
              " 2.5       \t  61.00    \t  60.00    \t   1.00    \t   1.00    \t\r\n"
              "30         \t  59.50    \t  60.00    \t  -0.50    \t   1.00    \t\r\n");
}

TEST_F(Documenti, EmptyTableHasItsHeadings) {
    banco.Traccia({});
    Compila();
    ASSERT_TRUE(Salva("a.txt", {.HeaderOn = false, .ColumnSeparator = ";"}));
    const std::string testo = Prendi("a.txt");
    EXPECT_TRUE(testo.ends_with("[dB]       ;[dB]       ;\r\n\r\n")) << testo;
}

TEST_F(Documenti, CsvFields) {
    banco.setup.LimitName[0] = "A, \"B\"";
    Compila();
    ASSERT_TRUE(Salva("a.csv", {.csv = {.separatore = ',', .decimale = ','}}));
    EXPECT_EQ(Prendi("a.csv"), "Frequency [MHz],Peak [dB\xB5V],\"Limit A, \"\"B\"\" [dB\xB5V]\","
                               "\"Delta A, \"\"B\"\" [dB]\",Factor Eleven char [dB]\r\n"
                               "\"2,5\",\"61,00\",\"60,00\",\"1,00\",\"1,00\"\r\n"
                               "30,\"59,50\",\"60,00\",\"-0,50\",\"1,00\"\r\n");
}

TEST_F(Documenti, SummaryNamesTheWorstPoint) {
    banco.misura.detector[0] = true;
    banco.setup.MeasUncertainty = 2;
    for (const char* nome : {"a.txt", "a.html"}) {
        ASSERT_TRUE(Salva(nome, {.riassunto = true})) << nome;
        const std::string testo = Prendi(nome);
        for (const char* parte : {"INCONCLUSIVE", "Uncertainty", "2 dB", "2.5", "61.00", "1.00"})
            EXPECT_TRUE(Contiene(testo, parte)) << nome << ": " << parte;
    }
}

TEST_F(Documenti, HtmlEscapesWhatItIsGiven) {
    banco.setup.LimitName[0] = "<b>&'";
    Compila();
    ASSERT_TRUE(Salva("a.html"));
    const std::string testo = Prendi("a.html");
    EXPECT_TRUE(Contiene(testo, "&lt;b&gt;&amp;&#39;"));
    EXPECT_FALSE(Contiene(testo, "<b>"));
    EXPECT_TRUE(Contiene(testo, "<td class=\"over\">1.00</td>"));
    EXPECT_TRUE(Contiene(testo, "<td>-0.50</td>"));
}

TEST(ReportHtml, Base64) {
    for (const auto& [testo, atteso] : {std::pair{"", ""},
                                        {"M", "TQ=="},
                                        {"Ma", "TWE="},
                                        {"Man", "TWFu"},
                                        {"Man\xFF", "TWFu/w=="}}) {
        const std::string_view byte = testo;
        EXPECT_EQ(Base64({reinterpret_cast<const uint8_t*>(byte.data()), byte.size()}), atteso);
    }
}

TEST_F(Documenti, FailedWriteLeavesTheOldFile) {
    for (const char* nome : {"a.txt", "a.csv", "a.html", "a.pdf", "a.rtf"}) {
        Metti(nome, std::string("old"));
        {
            const prova::DiscoPieno pieno(40);
            EXPECT_FALSE(Salva(nome)) << nome;
        }
        EXPECT_EQ(Prendi(nome), "old");
        EXPECT_TRUE(Contiene(Riquadro(), nome));
    }
    EXPECT_EQ(Nomi(""), (Righe{"a.csv", "a.html", "a.pdf", "a.rtf", "a.txt"}));
    griglia.tagliata = true;
    EXPECT_FALSE(Salva("a.txt"));
}

TEST_F(Documenti, APictureThatCannotBeMadeIsTold) {
    FabbricaFinta fabbrica;
    for (const char* nome : {"a.pdf", "a.rtf"}) {
        Metti("a.TPI", LogoBMP()); // another run's
        Metti("a.TPT", std::string("other"));
        Metti("Untitled" + std::string(nome + 1), std::string("other"));
        ASSERT_TRUE(Salva(nome, {}, &fabbrica)) << nome;
        EXPECT_TRUE(Contiene(Riquadro(), "Failed loading"));
        EXPECT_FALSE(Contiene(Prendi(nome), "/Img1")) << nome;
    }
    fabbrica.byte = LogoBMP();
    ASSERT_TRUE(Salva("a.pdf", {}, &fabbrica));
    EXPECT_TRUE(Contiene(Prendi("a.pdf"), "/Img1 Do"));
    EXPECT_EQ(Nomi(""),
              (Righe{"Untitled.pdf", "Untitled.rtf", "a.TPI", "a.TPT", "a.pdf", "a.rtf"}));
    for (const char* nome : {"a.TPT", "Untitled.pdf", "Untitled.rtf"})
        EXPECT_EQ(Prendi(nome), "other");
}

TEST_F(Documenti, ManyColumnsLieOnALandscapeSheet) {
    const std::string alto = "/MediaBox [0 0 595.2 842]", largo = "/MediaBox [0 0 842 595.2]";
    for (size_t i = 1; i < 4; ++i) { // 6, 7, 8 columns, and 9
        ASSERT_TRUE(Salva("a.pdf"));
        EXPECT_TRUE(Contiene(Prendi("a.pdf"), alto)) << i;
        banco.Fattore(i, "F", {});
        Compila();
    }
    for (const auto& [verticale, foglio] : {std::pair{false, largo}, {true, alto}}) {
        ASSERT_TRUE(Salva("a.pdf", {.verticale = verticale}));
        EXPECT_TRUE(Contiene(Prendi("a.pdf"), foglio));
        EXPECT_TRUE(Contiene(Prendi("a.pdf"), "/Fnt3 4.5 Tf"));
    }
}

TEST(RiduciColori, WhatCoversMostStaysAsItIs) {
    PixelPdf pixel{.larghezza = 32, .altezza = 32};
    for (int i = 0; i < 1024; ++i) // 256 greens, and white
        pixel.dati.insert(pixel.dati.end(),
                          {uint8_t(i < 512 ? 0 : 255), uint8_t(i < 512 ? i / 2 : 255),
                           uint8_t(i < 512 ? 0 : 255)});
    for (const bool esatto : {false, true}) {
        if (esatto)
            pixel.dati.at(1) = pixel.dati.at(4) = 255; // one green less
        const PixelPdf ridotto = RiduciColori(pixel);
        ASSERT_EQ(ridotto.dati.size(), 1024u);
        ASSERT_EQ(ridotto.paletta.size(), 768u);
        for (size_t i = 0; i < 1024 * 3; ++i) {
            const uint8_t colore = ridotto.paletta.at(ridotto.dati[i / 3] * size_t{3} + i % 3);
            EXPECT_NEAR(colore, pixel.dati[i], esatto || i >= 512 * 3 ? 0 : 17) << i;
        }
        const auto riletto = LeggiBMP(InBMP(ridotto));
        ASSERT_TRUE(riletto);
        EXPECT_EQ(riletto->dati, ridotto.dati);
        EXPECT_EQ(riletto->paletta, ridotto.paletta);
    }
}

TEST(SalvaReport, FormatByName) {
    EXPECT_EQ(FormatoReportDaPercorso("a.b/x.PdF"), FormatoReport::Pdf);
    EXPECT_EQ(FormatoReportDaPercorso("x.htm"), FormatoReport::Html);
    EXPECT_FALSE(FormatoReportDaPercorso("x.doc"));
    EXPECT_FALSE(FormatoReportDaPercorso("txt"));
    EXPECT_EQ(NomeReport("Motor", FormatoReport::Rtf), "Report_Motor.RTF");
}

TEST_F(Documenti, TableAsDocument) {
    const ContenutoTabella tabella{.kind = TableKind::Frequenze,
                                   .righe = {{.freqMhz = 2.5, .livelloCent = 6100}},
                                   .titolo = "Spots"};
    ASSERT_TRUE(SalvaTabellaCome(s, tabella, "Lamp", Host("a.rtf"), muta));
    const std::string rtf = Prendi("a.rtf");
    for (const char* parte : {"Spots", "2.5", "61.00"})
        EXPECT_TRUE(Contiene(rtf, parte)) << parte;
    EXPECT_EQ(Nomi(""), (Righe{"a.rtf"}));
    ASSERT_TRUE(SalvaTabellaCome(s, tabella, "Lamp", Host("a.txt"), muta));
    EXPECT_EQ(Prendi("a.txt"), TestoTabella(tabella, ""));
}

} // namespace
} // namespace orvane
