#include "report/CreaFilePDF.h"

#include <system_error>

#include "data/NomiDisco.h"
#include "report/ImpaginaReport.h"
#include "report/LeggiBMP.h"
#include "report/LogoReport.h"
#include "report/RigheFile.h"
#include "report/clsPDFCreator.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

constexpr int kCentimetri = 3;

void CaricaFont(clsPDFCreator& pdf) {
    pdf.LoadFont("Fnt1", "Times New Roman", 0);
    pdf.LoadFont("Fnt2", "Arial", 2);
    pdf.LoadFont("Fnt3", "Courier New", 2);
    pdf.LoadFontStandard("Fnt4", "Courier New", 3);
}

bool CaricaLogo(clsPDFCreator& pdf, const Scrivania& s) {
    constexpr std::string_view kLogo = "TMP.TPI";
    const bool caricato =
        s.albero.Salva(kLogo, LogoBMP()) && pdf.LoadImgFromBMPFile("Img2", s.albero.Host(kLogo));
    s.albero.Cancella(kLogo);
    if (caricato)
        return true;
    const auto pixel = LeggiBMP(LogoBMP()); // another run took the file away, or there is no room
    return pixel && pdf.LoadImgFromArray("Img2", *pixel);
}

/// Height over width of the picture, once it is in the document; empty where it could not be read.
std::optional<double> CaricaImmagine(clsPDFCreator& pdf, const RichiestaDocumento& r) {
    const auto pixel = LeggiFileBMP(r.ImagePath);
    if (!pixel || !pdf.LoadImgFromArray("Img1", *pixel))
        return std::nullopt;
    return r.Ratio > 0 ? r.Ratio : static_cast<double>(pixel->altezza) / pixel->larghezza;
}

TelaPagine Tela(clsPDFCreator& pdf) {
    return {.NuovaPagina =
                [&pdf] {
                    pdf.EndPage();
                    return pdf.BeginPage();
                },
            .Testo =
                [&pdf](const TestoPagina& t) {
                    pdf.DrawText(t.x, t.y, t.testo, t.font == FontPagina::Numero ? "Fnt1" : "Fnt3",
                                 t.corpo, t.aDestra ? AllineaPdf::Destra : AllineaPdf::Sinistra);
                },
            .Immagine =
                [&pdf](ImmaginePagina quale, const RiquadroPagina& dove) {
                    pdf.DrawImg(quale == ImmaginePagina::Logo ? "Img2" : "Img1", dove.x, dove.y,
                                dove.larghezza, dove.altezza);
                }};
}

EsitoDocumento ScriviDocumento(clsPDFCreator& pdf, const Scrivania& s, const RichiestaDocumento& r,
                               RigheFile& tabella) {
    CaricaFont(pdf);
    const auto ratio = r.ImagePath.empty() ? std::nullopt : CaricaImmagine(pdf, r);
    const bool logo = CaricaLogo(pdf, s);
    ImpaginaReport(Tela(pdf), r, ratio, [&tabella] { return tabella.Prossima(); });
    pdf.EndPage();
    if (!pdf.ClosePDFFile() || !logo)
        return EsitoDocumento::NonScritto;
    if (tabella.Interrotto())
        return EsitoDocumento::TabellaIllegibile;
    return ratio || r.ImagePath.empty() ? EsitoDocumento::Fatto : EsitoDocumento::SenzaImmagine;
}

} // namespace

EsitoDocumento CreaFilePDF(const Scrivania& s, const RichiestaDocumento& r, fs::path percorso) {
    if (!ControllaFilePDFAperto(s.ambiente, percorso))
        return EsitoDocumento::Occupato;
    RigheFile tabella(r.TablePath);
    if (!tabella.Aperto())
        return EsitoDocumento::TabellaIllegibile;
    clsPDFCreator pdf(s.ambiente);
    pdf.ScaleMode(kCentimetri);
    pdf.PaperSize(static_cast<uint8_t>(r.carattere.ReportPaper));
    pdf.Margin(0);
    pdf.EncodeASCII85(false);
    pdf.Title(r.Name.empty() ? Utf8DaPath(r.OutPath.filename()) : r.Name);
    if (!pdf.InitPDFFile(percorso))
        return EsitoDocumento::NonScritto;
    return ScriviDocumento(pdf, s, r, tabella);
}

} // namespace orvane
