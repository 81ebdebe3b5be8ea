// What the PDF writer puts on the disk, byte for byte.
#include "base/Testo.h"
#include "data/ScrivaniaProva.h"
#include "report/Ascii85.h"
#include "report/LeggiBMP.h"
#include "report/LogoReport.h"
#include "report/clsPDFCreator.h"

namespace orvane {
namespace {

struct PDFCreatorTest : prova::ProvaDati {
    clsPDFCreator pdf{ambiente};

    bool Inizia() {
        std::filesystem::path percorso = Host("prova.pdf");
        return pdf.InitPDFFile(percorso);
    }
    std::string Finisci() {
        EXPECT_TRUE(pdf.ClosePDFFile());
        return Prendi("prova.pdf");
    }
    /// What lies between `da` and the next `a`.
    static std::string Fra(const std::string& testo, const std::string& da, const std::string& a) {
        const size_t inizio = testo.find(da);
        if (inizio == std::string::npos)
            return "absent: " + da;
        return testo.substr(inizio + da.size(),
                            testo.find(a, inizio + da.size()) - inizio - da.size());
    }
    /// The operators of a page on which `disegna` drew.
    std::string Pagina(const std::function<void()>& disegna) {
        EXPECT_TRUE(Inizia());
        pdf.LoadFont("F", "Courier New", 0);
        pdf.BeginPage();
        disegna();
        pdf.EndPage();
        return Fra(Finisci(), "stream\r\n", "endstream");
    }
};

TEST_F(PDFCreatorTest, AnEmptyPageByteForByte) {
    pdf.Title("a (b) \\ 5 \xC2\xB5V");
    ASSERT_TRUE(Inizia());
    EXPECT_EQ(pdf.BeginPage(), 1);
    pdf.EndPage();
    const std::string prima =
        "%PDF-1.3\r\n1 0 obj\r\n<<\r/Title (a \\(b\\) \\\\ 5 \xB5V)\r/Author (Orvane Console)\r"
        "/Creator  (Orvane Console)\r/Producer (Orvane Console)\r"
        "/CreationDate (D:20261122120000+01'00')\r>>\r\nendobj\r\n"
        "2 0 obj\r\n<<\r/Type /Catalog\r/Pages 3 0 R\r/PageLayout /OneColumn\r/PageMode /UseNone\r"
        "/Lang (it) \r/ViewerPreferences << /HideToolbar false /DisplayDocTitle true "
        "/HideWindowUI false >>\r>>\r\nendobj\r\n"
        "5 0 obj\r\n<<\r/Type /Page\r/Parent 3 0 R\r/Contents 6 0 R\r>>\r\nendobj\r\n"
        "6 0 obj\r\n<< /Length 7 0 R >>\r\nstream\r\nendstream\r\nendobj\r\n"
        "7 0 obj\r\n0\r\nendobj\r\n"
        "4 0 obj\r\n<<\r/ProcSet [/PDF /Text ]\r>>\r\nendobj\r\n"
        "3 0 obj\r\n<<\r/Type /Pages\r/Count 1\r/MediaBox [0 0 595.2 842]\r"
        "/CropBox [0 0 595.2 842]\r/Kids [5 0 R  ]\r/Resources 4 0 R\r>>\r\nendobj\r\n";
    const std::string tutto = Finisci();
    EXPECT_EQ(tutto.substr(0, prima.size()), prima);
    EXPECT_EQ(tutto.substr(tutto.find("trailer")),
              "trailer\r<<\r/Size 7\r/Info 1 0 R\r/Root 2 0 R\r>>\r\nstartxref\r" +
                  std::to_string(prima.size()) + "\r\n%%EOF\r\r\n");
}

TEST_F(PDFCreatorTest, EveryObjectIsWhereItsTwentyByteLineSays) {
    pdf.Orientation(1);
    pdf.PaperSize(4);
    ASSERT_TRUE(Inizia());
    for (int i = 0; i < 2; ++i) {
        pdf.BeginPage();
        pdf.EndPage();
    }
    const std::string tutto = Finisci();
    EXPECT_TRUE(Contiene(tutto, "/MediaBox [0 0 842 595.2]"));
    EXPECT_TRUE(Contiene(tutto, "/Rotate 90\r"));
    EXPECT_TRUE(Contiene(tutto, "/Size 10\r"));
    const size_t lista = tutto.find("xref\r\n0 11\r\n0000000000 65535 f\r\n");
    ASSERT_NE(lista, std::string::npos);
    for (size_t id = 1; id <= 10; ++id) {
        const std::string riga = tutto.substr(lista + 12 + 20 * id, 20);
        EXPECT_EQ(riga.substr(10), " 00000 n\r\n");
        EXPECT_EQ(tutto.find(std::to_string(id) + " 0 obj\r\n"), std::stoul(riga.substr(0, 10)));
    }
}

TEST_F(PDFCreatorTest, Operators) {
    const auto quadrato = [this](unsigned opzioni) { pdf.Rectangle(0, 0, 1, 1, opzioni); };
    const std::string re = "0 0 1 1 re\r\n";
    const std::array tratti = {3.0f, 1.5f};
    const PuntoPdf origine;
    using namespace tracciato;
    const struct {
        std::function<void()> disegna;
        std::string atteso;
    } casi[] = {
        {[&] { pdf.SetWordSpacing(1.5f), pdf.SetCharSpacing(-0.25f); }, "1.5 Tw\r\n-0.25 Tc\r\n"},
        {[&] { pdf.SetTextHorizontalScaling(80), pdf.SetTextRenderingMode(2); },
         "80 Tz\r\n2 Tr\r\n"},
        {[&] { pdf.SetLineWidth(0.1f), pdf.SetLineCap(1); }, "0.1 w\r\n1 J\r\n"},
        {[&] { pdf.SetLineJoin(2), pdf.SetMiterLimit(4); }, "2 j\r\n4 M\r\n"},
        {[&] { pdf.MoveTo(1, 2), pdf.LineTo(3.0004f, -4.0006f); }, "1 2 m\r\n3 -4.001 l\r\n"},
        {[&] { pdf.SetDash({}), pdf.SetDash(tratti); }, "[ ] 0 d\r\n[3 1.5 ] 0 d\r\n"},
        // Greys from -255 to 0; beyond, red lies in the low byte.
        {[&] { pdf.SetColorStroke(0), pdf.SetColorFill(-255); }, "0 G\r\n1 g\r\n"},
        {[&] { pdf.SetColorStroke(1), pdf.SetColorFill(0x8000FF); },
         "0.004 0 0 RG\r\n1 0 0.502 rg\r\n"},
        {[&] { pdf.SetColorStroke(-256); }, "0 1 1 RG\r\n"},
        {[&] { quadrato(kTraccia), quadrato(kRiempi); }, re + "S\r\n" + re + "f\r\n"},
        {[&] { quadrato(kRiempi | kTraccia), quadrato(0); }, re + "B\r\n" + re + "n\r\n"},
        {[&] { quadrato(kRiempi | kTraccia | kChiudi); }, re + "b\r\n"},
        {[&] { quadrato(kTraccia | kChiudi); }, re + "h\r\nS\r\n"},
        {[&] { pdf.DrawCircle(origine, 10, kTraccia); },
         "10 0 m\r\n10 5.5 5.5 10 0 10 c\r\n-5.5 10 -10 5.5 -10 0 c\r\n"
         "-10 -5.5 -5.5 -10 0 -10 c\r\n5.5 -10 10 -5.5 10 0 c\r\nS\r\n"},
        {[&] { pdf.Arc({.raggioX = 10, .raggioY = 5, .rotazione = 90, .da = 0, .a = 90}); },
         "0 10 m\r\n-2.761 10 -5 5.523 -5 0 c\r\nS\r\n"},
        {[&] { pdf.Rectangle(0, 0, 20, 4, kTraccia, 9); },
         "2 0 m\r\n18 0 l\r\n19.1 0 20 0.9 20 2 c\r\n20 2 l\r\n20 3.1 19.1 4 18 4 c\r\n2 4 l\r\n"
         "0.9 4 0 3.1 0 2 c\r\n0 2 l\r\n0 0.9 0.9 0 2 0 c\r\nS\r\n"},
        {[&] { pdf.ScaleMode(3), pdf.DrawImg("I", 1, 2, 2.54f, 1), pdf.ScaleMode(0); },
         "q\r\n72 0 0 28.346 28.346 56.693 cm\r\n/I Do\r\nQ\r\n"},
        {[&] { pdf.DrawText(1, 2, "a(b)\\ \xC2\xB0\xE2\x82\xAC\xCE\xA9", "F", 10.126f); },
         "BT\r\n/F 10.13 Tf\r\n1 2 Td\r\n(a\\(b\\)\\\\ \xB0\x80?) Tj\r\nET\r\n"},
        {[&] { pdf.DrawText(1, 2, "a", "F", 8, AllineaPdf::Sinistra, 90); },
         "BT\r\n/F 8 Tf\r\n0 1 -1 0 1 2 Tm\r\n(a) Tj\r\nET\r\n"},
        {[&] { pdf.DrawText(100, 2, "ab", "F", 10, AllineaPdf::Destra); },
         "BT\r\n/F 10 Tf\r\n88 2 Td\r\n(ab) Tj\r\nET\r\n"},
        {[&] { pdf.DrawText(100, 2, "ab", "F", 10, AllineaPdf::Centro); },
         "BT\r\n/F 10 Tf\r\n94 2 Td\r\n(ab) Tj\r\nET\r\n"},
    };
    for (const auto& caso : casi)
        EXPECT_EQ(Pagina(caso.disegna), caso.atteso);
}

TEST_F(PDFCreatorTest, WidthsByFamilyScaleAndStretch) {
    EXPECT_FLOAT_EQ(pdf.Length("AVa\xC2\xB5", "Times New Roman", 10), 23.88f);
    EXPECT_FLOAT_EQ(pdf.Length("AVa\xC2\xB5", "arial", 10), 24.46f);
    EXPECT_FLOAT_EQ(pdf.Length("AVa\xC2\xB5", "no such font", 10), 24.46f);
    EXPECT_FLOAT_EQ(pdf.Length("AVa\xC2\xB5", "Courier New", 10), 24.0f);
    EXPECT_FLOAT_EQ(pdf.Length("AB", "SYMBOL", 10), 13.89f);
    pdf.SetTextHorizontalScaling(50);
    pdf.ScaleMode(1);
    EXPECT_FLOAT_EQ(pdf.Length("AVa\xC2\xB5", "Courier New", 30), 0.5f);
    pdf.ScaleMode(4);
    EXPECT_EQ(pdf.Length("A", "Arial", 10), 0);
}

TEST_F(PDFCreatorTest, FontsWithTheirWidths) {
    ASSERT_TRUE(Inizia());
    EXPECT_TRUE(pdf.LoadFont("Fnt1", "Courier New", 2));
    EXPECT_TRUE(pdf.LoadFontStandard("Fnt2", "Courier New", 3));
    pdf.BeginPage();
    EXPECT_FALSE(pdf.LoadFont("Fnt3", "Arial", 0)); // it would lie in the page
    const std::string tutto = Finisci();
    EXPECT_TRUE(Contiene(tutto,
                         "5 0 obj\r\n<< /Type /Font \r/Subtype /TrueType \r/Name /Fnt1\r/BaseFont "
                         "/CourierNew,Italic\r/FirstChar 32\r/LastChar 255\r/FontDescriptor 6 0 R\r"
                         "/Encoding /WinAnsiEncoding\r/Widths [600 600 "));
    EXPECT_TRUE(Contiene(tutto,
                         "7 0 obj\r\n<< /Type /Font \r/Subtype /Type1 \r/Name /Fnt2\r/BaseFont "
                         "/CourierNew,BoldItalic\r/Encoding /WinAnsiEncoding >>\r\nendobj\r\n"));
    EXPECT_TRUE(Contiene(tutto, "/Font <</Fnt1 5 0 R /Fnt2 7 0 R >>\r/ProcSet [/PDF /Text ]\r"));
}

TEST_F(PDFCreatorTest, FormsHaveTheirOwnStream) {
    ASSERT_TRUE(Inizia());
    pdf.StartObject("Box", 100, 50);
    pdf.MoveTo(1, 1);
    pdf.EndObject();
    pdf.BeginPage();
    pdf.DrawObject("Box");
    const std::string tutto = Finisci(); // the page that was left open is finished
    EXPECT_TRUE(
        Contiene(tutto, "/Subtype /Form\r/FormType 1\r/Name /Box\r/BBox [0 0 100 50]\r"
                        "/Matrix [1 0 0 1 0 0]\r/Length 6 0 R >>\r\nstream\r\n1 1 m\r\nendstream"));
    EXPECT_TRUE(Contiene(tutto, "stream\r\n/Box Do\r\nendstream"));
    EXPECT_TRUE(Contiene(tutto, "/XObject <</Box 5 0 R >>"));
}

TEST_F(PDFCreatorTest, ImagesRawAndEncoded) {
    const PixelPdf uno{9, 1, 1, {0x0A, 0x80}, {0, 0, 0, 255, 255, 255}};
    ASSERT_TRUE(Inizia());
    EXPECT_TRUE(pdf.LoadImgFromArray("I", uno));
    pdf.EncodeASCII85(true);
    EXPECT_TRUE(pdf.LoadImgFromArray("J", {.larghezza = 1, .altezza = 1, .dati = {1, 2, 3}}));
    EXPECT_FALSE(pdf.LoadImgFromArray("K", {.larghezza = 2, .altezza = 1, .dati = {1, 2, 3}}));
    pdf.BeginPage();
    pdf.MoveTo(1, 1);
    const std::string tutto = Finisci();
    // A first byte LF would be taken for a part of the line end.
    EXPECT_TRUE(Contiene(tutto,
                         "/ColorSpace [/Indexed /DeviceRGB 1 7 0 R]\r/Length 6 0 R\r>>\r\n"
                         "stream\r\n\n\x80\r\nendstream\r\nendobj\r\n6 0 obj\r\n2\r\nendobj\r\n"
                         "7 0 obj\r\n<< /Filter /ASCII85Decode /Length 10 >>\r\nstream\r\n"));
    EXPECT_TRUE(Contiene(
        tutto, "/Width 1\r/Height 1\r/Filter /ASCII85Decode\r/BitsPerComponent 8\r"
               "/ColorSpace /DeviceRGB\r/Length 9 0 R\r>>\r\nstream\r!<N?~>\r\nendstream"));
    EXPECT_TRUE(Contiene(tutto, "/Filter /ASCII85Decode >>\r\nstream\r\n" + InAscii85("1 1 m\r\n") +
                                    "\r\nendstream"));
    EXPECT_TRUE(Contiene(tutto, "/XObject <</I 5 0 R /J 8 0 R >>"));
}

TEST(Ascii85, GroupsAndTheirEnds) {
    const struct {
        std::string byte, atteso;
    } casi[] = {
        {"", "~>"},          {std::string(4, '\0'), "z~>"},    {"\xFF\xFF\xFF\xFF", "s8W-!~>"},
        {"Man ", "9jqo^~>"}, {std::string(3, '\0'), "!!!!~>"}, {"Man s", "9jqo^Er~>"},
    };
    for (const auto& caso : casi)
        EXPECT_EQ(InAscii85(caso.byte), caso.atteso);
}

/// A BMP of two rows of three pixels, with what a case changes in it.
std::vector<uint8_t> Bmp(std::initializer_list<std::pair<size_t, uint8_t>> diversi) {
    std::vector<uint8_t> byte(54 + 24);
    byte[0] = 'B', byte[1] = 'M', byte[10] = 54, byte[14] = 40, byte[18] = 3, byte[22] = 2;
    byte[26] = 1, byte[28] = 24;
    for (uint8_t i = 0; i < 24; ++i)
        byte[54 + i] = i;
    for (const auto& [dove, valore] : diversi)
        byte[dove] = valore;
    return byte;
}

TEST(LeggiBMP, RowsFromTheTopRedFirst) {
    const auto pixel = LeggiBMP(Bmp({}));
    ASSERT_TRUE(pixel);
    EXPECT_EQ(pixel->dati, (std::vector<uint8_t>{14, 13, 12, 17, 16, 15, 20, 19, 18, //
                                                 2, 1, 0, 5, 4, 3, 8, 7, 6}));
    const auto dallAlto = LeggiBMP(Bmp({{22, 0xFE}, {23, 0xFF}, {24, 0xFF}, {25, 0xFF}}), true);
    ASSERT_TRUE(dallAlto);
    EXPECT_EQ(dallAlto->dati, (std::vector<uint8_t>{1, 4, 7, 13, 16, 19}));
    const auto logo = LeggiBMP(LogoBMP());
    ASSERT_TRUE(logo);
    EXPECT_EQ(logo->paletta.size(), 48u);
    EXPECT_EQ(logo->larghezza, 2 * logo->altezza);
}

TEST(LeggiBMP, WhatLiesAboutItselfIsNoPicture) {
    auto corto = Bmp({});
    corto.pop_back();
    EXPECT_FALSE(LeggiBMP(corto));
    EXPECT_FALSE(LeggiBMP({}));
    constexpr std::pair<size_t, uint8_t> kCasi[] = {{0, 'P'}, {28, 16},   {30, 1},
                                                    {18, 0},  {21, 0x7F}, {25, 0x80},
                                                    {10, 10}, {13, 0xFF}, {17, 0xFF}};
    for (const auto& caso : kCasi)
        EXPECT_FALSE(LeggiBMP(Bmp({caso}))) << caso.first;
}

TEST_F(PDFCreatorTest, FailuresReachTheCaller) {
    EXPECT_FALSE(pdf.ClosePDFFile());
    std::filesystem::path altrove = Host("no such directory/x.pdf");
    EXPECT_FALSE(pdf.InitPDFFile(altrove));
    std::filesystem::path pieno = "/dev/full";
    ASSERT_TRUE(pdf.InitPDFFile(pieno));
    EXPECT_FALSE(pdf.ClosePDFFile());
    std::filesystem::path primo = Host("first.pdf"), secondo = Host("second.pdf");
    ASSERT_TRUE(pdf.InitPDFFile(primo));
    ASSERT_TRUE(pdf.InitPDFFile(secondo)); // which finishes the first
    EXPECT_TRUE(Prendi("first.pdf").ends_with("%%EOF\r\r\n"));
    // The day's time with a further digit, in hexadecimal: 221200000.
    EXPECT_EQ(NomeInventatoPdf(ambiente), "~D2F3E80.pdf");
}

TEST(FormatNumber, RoundsAndDropsZeros) {
    const struct {
        double valore;
        int cifre;
        std::string atteso;
    } casi[] = {
        {0, 3, "0"},     {-0.0001, 3, "0"},   {1.0005, 3, "1"},    {1234.5678, 2, "1234.57"},
        {100, 3, "100"}, {-0.05, 3, "-0.05"}, {0.0 / 0.0, 3, "0"}, {0.999999, 3, "1"},
    };
    for (const auto& caso : casi)
        EXPECT_EQ(FormatNumber(caso.valore, caso.cifre), caso.atteso);
}

} // namespace
} // namespace orvane
