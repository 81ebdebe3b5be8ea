// The layout of documents: no line lost, one head a page, the picture between header and table.
#include "report/CreaFilePDF.h"

#include <cstdio>

#include "DocumentiProva.h"

namespace orvane {
namespace {

struct CreaFilePDFTest : prova::DocumentiProva {
    struct Testo {
        double y; ///< points
        std::string testo;
    };
    struct Immagine {
        double larghezza, altezza, x, y; ///< cm
    };
    struct Pagina {
        std::vector<Testo> testi;
        std::vector<Immagine> immagini; ///< without the logo
        int loghi = 0;
    };

    static std::vector<Pagina> Leggi(const std::string& pdf) {
        std::vector<Pagina> pagine;
        std::vector<double> numeri;
        for (const std::string& riga : Dividi(Sostituisci(pdf, "\r\n", "\n"), '\n')) {
            if (riga.starts_with("/Type /Page\r") || Contiene(riga, "\r/Type /Page\r"))
                pagine.emplace_back();
            if (riga.ends_with(" Td") || riga.ends_with(" cm")) {
                numeri.clear();
                for (const std::string& pezzo : Dividi(riga, ' '))
                    numeri.push_back(std::atof(pezzo.c_str()));
            }
            if (riga.ends_with(") Tj"))
                pagine.back().testi.push_back({numeri[1], riga.substr(1, riga.size() - 5)});
            constexpr double kCm = 72 / 2.54;
            if (riga == "/Img1 Do")
                pagine.back().immagini.push_back(
                    {numeri[0] / kCm, numeri[3] / kCm, numeri[4] / kCm, numeri[5] / kCm});
            if (riga == "/Img2 Do")
                ++pagine.back().loghi;
        }
        return pagine;
    }
    /// The lines of header and table in their order; checks what every page has.
    static std::string Corpo(const std::vector<Pagina>& pagine) {
        std::string corpo;
        for (size_t i = 0; i < pagine.size(); ++i) {
            EXPECT_EQ(pagine[i].testi.front().testo, "pag. " + std::to_string(i + 1));
            EXPECT_EQ(pagine[i].loghi, 1);
            double ultima = 1e9;
            for (size_t k = 1; k < pagine[i].testi.size(); ++k) {
                EXPECT_LT(pagine[i].testi[k].y, ultima);
                ultima = pagine[i].testi[k].y;
                EXPECT_GT(ultima, 1.5 * 72 / 2.54);
                corpo += pagine[i].testi[k].testo + "\r\n";
            }
        }
        return corpo;
    }
};

TEST_F(CreaFilePDFTest, NoLineIsLostAtAPageBreak) {
    const struct {
        int header, righe;
        double ratio;
        int foglio;
        size_t pagine;
    } casi[] = {
        // 68 lines behind the head of a page, 69 where lines run over to it.
        {0, 0, 0, 0, 1},    {0, 68, 0, 0, 1},      {0, 69, 0, 0, 2},   {0, 137, 0, 0, 2},
        {0, 138, 0, 0, 3},  {67, 1, 0, 0, 1},      {68, 0, 0, 0, 1},   {68, 68, 0, 0, 2},
        {69, 68, 0, 0, 2},  {200, 5000, 0, 0, 76}, {0, 0, 0.5, 0, 1},  {0, 1, 0.5, 0, 2},
        {38, 1, 0.5, 0, 2}, {39, 1, 0.5, 0, 3},    {68, 1, 0.5, 0, 3}, {0, 47, 0, 4, 1},
        {0, 48, 0, 4, 2},   {47, 1, 0.5, 4, 3},
    };
    for (const auto& caso : casi) {
        auto r = Chiedi(caso.header, caso.righe, caso.ratio, "r.pdf");
        r.carattere.ReportPaper = caso.foglio;
        const std::string righe = Prendi("Header.TXT") + Prendi("r.TPT");
        ASSERT_EQ(Converti(r), EsitoDocumento::Fatto);
        const auto pagine = Leggi(Prendi("r.pdf"));
        EXPECT_EQ(pagine.size(), caso.pagine) << caso.header << " " << caso.righe;
        EXPECT_EQ(Corpo(pagine), "KRV ZELVAR REPORT: M \\(1\\)\r\n" + righe);
    }
    EXPECT_EQ(s.albero.ElencaFile("", ""), (std::vector<std::string>{"Header.TXT", "r.pdf"}));
}

TEST_F(CreaFilePDFTest, ThePictureLiesBelowTheHeader) {
    const struct {
        int header;
        double ratio;
        int foglio;
        double larghezza, altezza;
        size_t pagina;
    } casi[] = {
        {0, 0.5, 0, 18, 9, 0},       {5, 0.56, 0, 18, 10.08, 0},  {38, 0.5, 0, 18, 9, 0},
        {39, 0.5, 0, 18, 9, 1},      {30, 1, 0, 18, 18, 1},       {10, 1, 0, 18, 18, 0},
        {3, 1.25, 0, 12.4, 15.5, 0}, {2, 0.5, 4, 26.5, 13.25, 0}, {2, 1, 4, 19, 19, 1},
    };
    for (const auto& caso : casi) {
        auto r = Chiedi(caso.header, 1, caso.ratio, "r.pdf");
        r.carattere.ReportPaper = caso.foglio;
        ASSERT_EQ(Converti(r), EsitoDocumento::Fatto);
        const auto pagine = Leggi(Prendi("r.pdf"));
        ASSERT_LT(caso.pagina, pagine.size());
        const Pagina& pagina = pagine[caso.pagina];
        ASSERT_EQ(pagina.immagini.size(), 1u) << caso.header << " " << caso.ratio;
        const Immagine& immagine = pagina.immagini[0];
        EXPECT_NEAR(immagine.larghezza, caso.larghezza, 0.001);
        EXPECT_NEAR(immagine.altezza, caso.altezza, 0.001);
        EXPECT_GE(immagine.y, 0.9);
        const double cima = immagine.y + immagine.altezza;
        EXPECT_LE(cima, (caso.foglio == 4 ? 20.5 : 29) + 0.001);
        if (pagina.testi.size() > 1) {
            EXPECT_LE(cima, pagina.testi.back().y / 72 * 2.54 + 0.001);
        }
        EXPECT_EQ(pagine.back().testi.back().testo, "row 0");
        EXPECT_EQ(pagine.size(), caso.pagina + 2);
    }
}

TEST_F(CreaFilePDFTest, TheOldFileStaysWhenTheNewOneFails) {
    auto r = Chiedi(1, 1, 0.5, "r.PDF");
    Metti("r.PDF", std::string("old"));
    std::filesystem::remove(Host("r.TPT"));
    EXPECT_EQ(Converti(r), EsitoDocumento::TabellaIllegibile);
    EXPECT_EQ(vista.detti, (std::vector<std::string>{"Creating File r.PDF...\rPlease wait", "."}));
    EXPECT_EQ(Prendi("r.PDF"), "old");
    r = Chiedi(1, 1, 0.5, "r.PDF");
    Metti("r.TPI", std::string("BM, but no picture"));
    EXPECT_EQ(Converti(r), EsitoDocumento::SenzaImmagine);
    EXPECT_TRUE(Prendi("r.PDF").starts_with("%PDF-1.3\r\n"));
    r = Chiedi(1, 1, 0, "no such directory/r.pdf");
    EXPECT_EQ(Converti(r), EsitoDocumento::Occupato);
    EXPECT_EQ(ambiente.riquadri.back().testo, r.OutPath.string() + " Is already open");
    r = Chiedi(1, 1, 0, "Untitled.pdf");
    Metti("Untitled.pdf", std::string("old"));
    std::filesystem::remove(r.TablePath);
    EXPECT_EQ(Converti(r), EsitoDocumento::TabellaIllegibile);
    EXPECT_EQ(Prendi("Untitled.pdf"), "old");
    r = Chiedi(1, 1, 0, "r.txt");
    EXPECT_EQ(Converti(r), EsitoDocumento::AltraEstensione);
    EXPECT_TRUE(s.albero.Esiste("r.TPT"));
}

/// What a command prints; empty where it is not installed.
std::string Esegui(const std::string& comando) {
    std::string uscita;
    std::FILE* tubo = popen((comando + " 2>&1").c_str(), "r");
    for (int c; tubo && (c = std::fgetc(tubo)) != EOF;)
        uscita += static_cast<char>(c);
    const bool manca = !tubo || pclose(tubo) == 127 << 8;
    return manca ? std::string() : uscita;
}

TEST_F(CreaFilePDFTest, ReadersFindItsTextAndOnlyTheDocumentedOddities) {
    const std::string file = Host("r.pdf").string();
    if (Esegui("qpdf --version").empty() || Esegui("pdftotext -v").empty())
        GTEST_SKIP() << "qpdf and poppler-utils are not installed";
    auto r = Chiedi(3, 100, 0.5, "r.pdf");
    Metti("r.TPT", Prendi("r.TPT") + InAnsi("[(a) \\ 5 \xC2\xB5V 23 \xC2\xB0"
                                            "C \xC3\xA0\xC3\xB9]\r\n"));
    ASSERT_EQ(Converti(r), EsitoDocumento::Fatto);
    int grandezza = 0, flussi = 0;
    for (const std::string& riga : Dividi(Esegui("qpdf --check " + file), '\n')) {
        if (!riga.starts_with("WARNING") && !riga.starts_with("ERROR"))
            continue;
        // /Size is the last number; the word "stream" of a picture has CR alone behind it.
        const bool size = Contiene(riga, "is not one plus the highest object number");
        const bool solo = Contiene(riga, "stream keyword followed by carriage return only");
        EXPECT_TRUE(size || solo) << riga;
        grandezza += size;
        flussi += solo;
    }
    EXPECT_EQ(grandezza, 1);
    EXPECT_EQ(flussi, 2);
    std::string attese = "KRV ZELVAR REPORT: M (1)\nheader 0\nheader 1\nheader 2\npag. 1\n";
    for (int i = 0; i < 100; ++i)
        attese += "row " + std::to_string(i) + (i == 67 ? "\npag. 2\n" : "\n");
    attese += "[(a) \\ 5 \xC2\xB5V 23 \xC2\xB0"
              "C \xC3\xA0\xC3\xB9]\npag. 3\n";
    std::string lette;
    for (const std::string& riga :
         Dividi(Esegui("pdftotext -layout -nopgbrk -enc UTF-8 " + file + " -"), '\n'))
        if (const std::string testo = Rifila(riga); !testo.empty())
            lette += testo + "\n";
    EXPECT_EQ(lette, attese);
}

} // namespace
} // namespace orvane
