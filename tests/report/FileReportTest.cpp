// Header text, sizes of letters and sheets, and rich text.
#include "report/FileReport.h"

#include "DocumentiProva.h"
#include "report/CreaFileRTF.h"

namespace orvane {
namespace {

using FileReportTest = prova::DocumentiProva;

TEST(SpezzaRigaHeader, CutsAtBlanksWithinNinetyCharacters) {
    const std::string a(90, 'a'), accenti = Sostituisci(a, "a", "\xC3\xA0");
    const struct {
        std::string riga;
        std::vector<std::string> pezzi;
    } casi[] = {
        {"", {""}},
        {a, {a}},
        {a + "b", {a, "b"}},
        {a + " b", {a, "b"}},
        {accenti + "b", {accenti, "b"}},
        {"one " + a, {"one", a}},
        {"   " + a, {"   " + a.substr(3), "aaa"}}, // blanks in front are no place to cut
        {a + a + "c", {a, a, "c"}},
    };
    for (const auto& caso : casi)
        EXPECT_EQ(SpezzaRigaHeader(caso.riga), caso.pezzi);
    std::string parole;
    for (int i = 0; i < 40; ++i)
        parole += "word ";
    EXPECT_EQ(SpezzaRigaHeader(parole.substr(0, 199) + "s").size(), 3u);
}

TEST(FileReport, SizesByColumns) {
    const struct {
        int colonne;
        float foglio, tabella;
        int carta;
    } casi[] = {{1, 10, 10, 0}, {6, 10, 10, 0}, {7, 8, 10, 0}, {8, 8, 7, 0}, {9, 8, 4.5f, 4}};
    for (const auto& caso : casi) {
        const auto carattere = DetDimCaratEOrientMeasurePDF(caso.colonne);
        EXPECT_EQ(carattere.ReportFontSize, caso.foglio);
        EXPECT_EQ(carattere.ReportPaper, caso.carta);
        EXPECT_EQ(DetDimCarattereTabella(caso.colonne), caso.tabella);
    }
    EXPECT_EQ(DetCarattereEOrientazione(true, true).ReportPaper, 4);
    EXPECT_EQ(DetCarattereEOrientazione(false, true).ReportFontSize, 8);
    EXPECT_EQ(DetCarattereEOrientazione(false, false).ReportFontSize, 10);
}

TEST_F(FileReportTest, TheHeaderEndsWithAFreeLine) {
    const struct {
        std::string file, testo;
    } casi[] = {
        {"a\r\n\xB0\r\n", "a\n\xC2\xB0\n\n"}, {"a", "a\n\n"}, {"a\r\n\r\n", "a\n\n"}, {"", ""}};
    for (const auto& caso : casi) {
        Metti("Header.TXT", caso.file);
        std::string canale;
        EXPECT_TRUE(StampaFileHeader(Host("Header.TXT"), canale));
        EXPECT_EQ(canale, caso.testo);
    }
    std::string canale = "before\n";
    EXPECT_TRUE(StampaFileHeader(Host("absent"), canale));
    EXPECT_FALSE(StampaFileHeader(cartella.Percorso(), canale));
    EXPECT_EQ(canale, "before\n");
}

TEST_F(FileReportTest, ATriedFileIsAsItWas) {
    std::filesystem::path nuovo = Host("new.pdf"), vecchio = Host("old.pdf");
    Metti("old.pdf", std::string("old"));
    EXPECT_TRUE(ControllaFilePDFAperto(ambiente, nuovo));
    EXPECT_TRUE(ControllaFilePDFAperto(ambiente, vecchio));
    EXPECT_FALSE(std::filesystem::exists(nuovo));
    EXPECT_EQ(Prendi("old.pdf"), "old");
    EXPECT_TRUE(ambiente.riquadri.empty());
}

TEST_F(FileReportTest, RichText) {
    EXPECT_EQ(EscapeRTF("a{b}\\c\t\xC2\xB0\xE2\x82\xAC\xCE\xA9\xF0\x9F\x93\xA1\xFF"),
              "a\\{b\\}\\\\c\\tab \\'b0\\'80\\u937?\\u-10179?\\u-8991??");
    auto r = Chiedi(1, 2, 0.5, "r.rtf");
    r.carattere = {4.5f, kFoglioOrizzontale};
    ASSERT_EQ(Converti(r), EsitoDocumento::Fatto);
    const std::string rtf = Prendi("r.rtf");
    EXPECT_TRUE(rtf.starts_with("{\\rtf1\\ansi\\ansicpg1252"));
    EXPECT_NE(rtf.find("\\landscape\\margl500"), std::string::npos);
    EXPECT_NE(
        rtf.find("\\fs9\r\nKRV ZELVAR REPORT: M (1)\\par\r\n\\par\r\nheader 0\\par\r\n\\par\r\n"
                 "{\\pict\\pngblip\\picw400\\pich200\\picwgoal15024\\pichgoal7512\r\n"
                 "89504e470d0a1a0a0000000d49484452"),
        std::string::npos);
    EXPECT_TRUE(rtf.ends_with("}\\par\\par\r\nrow 0\\par\r\nrow 1\\par\r\n}\r\n"));
    r = Chiedi(1, 0, 0, "r.rtf");
    r.HeaderOn = false;
    ASSERT_EQ(Converti(r), EsitoDocumento::Fatto);
    EXPECT_EQ(Prendi("r.rtf").find("header 0"), std::string::npos);
}

} // namespace
} // namespace orvane
