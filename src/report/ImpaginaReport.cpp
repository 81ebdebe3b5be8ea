#include "report/ImpaginaReport.h"

#include <algorithm>
#include <cmath>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "report/RigheFile.h"

namespace orvane {
namespace {

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
    Pagine(const TelaPagine& tela, const RichiestaDocumento& r)
        : tela_(tela), r_(r),
          m_(r.carattere.ReportPaper == kFoglioOrizzontale ? kOrizzontale : kVerticale) {}

    void NuovaPagina();
    void StampaRiga(std::string_view riga);
    void StampaImmagine(double ratio);
    /// Whether the next line goes to a new page.
    bool Piena() const { return Altezza(n_ + 1) <= kUltimaRiga; }

private:
    double Altezza(int n) const { return static_cast<double>(m_.Top) - n / kRighePerCm; }

    const TelaPagine& tela_;
    const RichiestaDocumento& r_;
    const Impaginazione& m_;
    int n_ = 0; ///< line on the page
};

void Pagine::NuovaPagina() {
    n_ = 0;
    const int pagina = tela_.NuovaPagina();
    const std::string numero = "pag. " + TestoIntero(pagina);
    tela_.Testo({m_.Right, m_.PageNoY, numero, FontPagina::Numero, kCorpoPagina, true});
    const std::string titolo = "KRV ZELVAR REPORT: " + r_.Title;
    if (pagina == 1 && r_.HeaderOn)
        tela_.Testo({m_.Left, m_.Top, titolo, FontPagina::Righe, kCorpoTitolo});
    tela_.Immagine(ImmaginePagina::Logo, {m_.Right - kLogoDaDestra, m_.Top, kLogoLargo, kLogoAlto});
}

void Pagine::StampaRiga(std::string_view riga) {
    if (Piena())
        NuovaPagina(); // its first line is at the top
    else
        ++n_;
    tela_.Testo({m_.Left, static_cast<float>(Altezza(n_)), riga, FontPagina::Righe,
                 r_.carattere.ReportFontSize});
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
    tela_.Immagine(ImmaginePagina::Misura,
                   {m_.Left, static_cast<float>(Altezza(n_)), static_cast<float>(larghezza),
                    static_cast<float>(altezza)});
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
void StampaTabella(Pagine& pagine, const ProssimaRiga& tabella, bool paginaNuova) {
    while (const auto riga = tabella()) {
        if (paginaNuova)
            pagine.NuovaPagina();
        paginaNuova = false;
        pagine.StampaRiga(Sostituisci(*riga, "\t", " "));
    }
}

} // namespace

void ImpaginaReport(const TelaPagine& tela, const RichiestaDocumento& r,
                    std::optional<double> ratio, const ProssimaRiga& tabella) {
    Pagine pagine(tela, r);
    pagine.NuovaPagina();
    if (r.HeaderOn)
        StampaHeader(pagine, r);
    const bool piena = pagine.Piena();
    if (ratio)
        pagine.StampaImmagine(*ratio);
    StampaTabella(pagine, tabella, ratio.has_value() || piena);
}

} // namespace orvane
