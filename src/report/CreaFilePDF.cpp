#include "report/CreaFilePDF.h"

#include <algorithm>
#include <cmath>
#include <system_error>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "data/NomiDisco.h"
#include "report/LeggiBMP.h"
#include "report/LogoReport.h"
#include "report/RigheFile.h"
#include "report/clsPDFCreator.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

constexpr int kCentimetri = 3;
constexpr double kRighePerCm = 2.5;
constexpr double kUltimaRiga = 1.5;    ///< cm: a line at this height goes to the next page
constexpr double kPiedeImmagine = 2.0; ///< cm: a picture stays above
constexpr double kBordoImmagine = 2.5; ///< cm: a wide picture ends so far from `Right`
constexpr double kBordoAlta = 5.0;     ///< and a high one is so much lower than `Right`
constexpr float kLogoLargo = 2.0f, kLogoAlto = 1.0f, kLogoDaDestra = 2.5f;
constexpr float kCorpoPagina = 12.0f, kCorpoTitolo = 15.0f; ///< points

/// A sheet, in cm from its lower left corner.
struct Impaginazione {
    int foglio;
    float Right, Left, Top, PageNoY;
    double ImageHeightLimit;
    int righeImmagine; ///< that a picture needs to begin on a page
};
constexpr Impaginazione kVerticale = {kFoglioVerticale, 20.5f, 1.0f, 29.0f, 1.2f, 27.5, 28};
constexpr Impaginazione kOrizzontale = {kFoglioOrizzontale, 29.0f, 1.2f, 20.5f, 1.0f, 19.0, 25};

/// The pages of a document while they fill up.
class Pagine {
public:
    Pagine(clsPDFCreator& pdf, const RichiestaDocumento& r)
        : pdf_(pdf), r_(r),
          m_(r.carattere.ReportPaper == kFoglioOrizzontale ? kOrizzontale : kVerticale) {}

    void NuovaPagina();
    void StampaRiga(std::string_view riga);
    void StampaImmagine(double ratio);
    /// Whether the next line goes to a new page.
    bool Piena() const { return Altezza(n_ + 1) <= kUltimaRiga; }

private:
    double Altezza(int n) const { return static_cast<double>(m_.Top) - n / kRighePerCm; }

    clsPDFCreator& pdf_;
    const RichiestaDocumento& r_;
    const Impaginazione& m_;
    int n_ = 0; ///< line on the page
};

void Pagine::NuovaPagina() {
    pdf_.EndPage();
    n_ = 0;
    const int pagina = pdf_.BeginPage();
    pdf_.DrawText(m_.Right, m_.PageNoY, "pag. " + TestoIntero(pagina), "Fnt1", kCorpoPagina,
                  AllineaPdf::Destra);
    if (pagina == 1 && r_.HeaderOn)
        pdf_.DrawText(m_.Left, m_.Top, "KRV ZELVAR REPORT: " + r_.Title, "Fnt3", kCorpoTitolo);
    pdf_.DrawImg("Img2", m_.Right - kLogoDaDestra, m_.Top, kLogoLargo, kLogoAlto);
}

void Pagine::StampaRiga(std::string_view riga) {
    if (Piena())
        NuovaPagina(); // its first line is at the top
    else
        ++n_;
    pdf_.DrawText(m_.Left, static_cast<float>(Altezza(n_)), riga, "Fnt3",
                  r_.carattere.ReportFontSize);
}

void Pagine::StampaImmagine(double ratio) {
    const double destra = m_.Right;
    double larghezza = destra - kBordoImmagine, altezza = larghezza * ratio;
    if (ratio > 1) {
        altezza = destra - kBordoAlta;
        larghezza = altezza / ratio;
    }
    if (altezza > m_.ImageHeightLimit) {
        larghezza *= m_.ImageHeightLimit / altezza;
        altezza = m_.ImageHeightLimit;
    }
    const int righe = 2 * static_cast<int>(altezza) + (ratio > 1 ? 0 : 2);
    // A picture covers two and a half lines a cm: never fewer, or it would lie on the header.
    const int coperte = static_cast<int>(std::ceil(altezza * kRighePerCm));
    if (Altezza(++n_ + std::max(m_.righeImmagine, coperte)) < kPiedeImmagine)
        NuovaPagina();
    n_ += std::max(righe, coperte);
    pdf_.DrawImg("Img1", m_.Left, static_cast<float>(Altezza(n_)), static_cast<float>(larghezza),
                 static_cast<float>(altezza));
}

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

/// A tab of the header goes to the next eighth character.
std::string SenzaTab(std::string_view riga) {
    std::string testo;
    size_t colonna = 0;
    for (const char c : riga) {
        const size_t blanks = c == '\t' ? 8 - colonna % 8 : 0;
        testo.append(blanks, ' ');
        if (c != '\t')
            testo += c;
        colonna += c == '\t' ? blanks : (c & 0xC0) != 0x80;
    }
    return testo;
}

void StampaHeader(Pagine& pagine, const RichiestaDocumento& r) {
    RigheFile header(r.HeaderPath);
    while (const auto riga = header.Prossima())
        for (const std::string& pezzo : SpezzaRigaHeader(SenzaTab(*riga)))
            pagine.StampaRiga(pezzo);
}

/// Cells have their width already: a tab between them is one blank.
void StampaTabella(Pagine& pagine, RigheFile& tabella, bool paginaNuova) {
    while (const auto riga = tabella.Prossima()) {
        if (paginaNuova)
            pagine.NuovaPagina();
        paginaNuova = false;
        pagine.StampaRiga(Sostituisci(*riga, "\t", " "));
    }
}

EsitoDocumento ScriviDocumento(clsPDFCreator& pdf, const Scrivania& s, const RichiestaDocumento& r,
                               RigheFile& tabella) {
    CaricaFont(pdf);
    const auto ratio = r.ImagePath.empty() ? std::nullopt : CaricaImmagine(pdf, r);
    const bool logo = CaricaLogo(pdf, s);
    Pagine pagine(pdf, r);
    pagine.NuovaPagina();
    if (r.HeaderOn)
        StampaHeader(pagine, r);
    const bool piena = pagine.Piena();
    if (ratio)
        pagine.StampaImmagine(*ratio);
    StampaTabella(pagine, tabella, ratio.has_value() || piena);
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
