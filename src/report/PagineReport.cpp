#include "report/PagineReport.h"

#include <array>

#include "base/PaginaCodici.h"
#include "report/CatturaImmagine.h"
#include "report/LeggiBMP.h"

namespace orvane {
namespace {

constexpr double kCmPerPunto = 2.54 / 72;
constexpr double kLatoLungo = 842.0, kLatoCorto = 595.2; ///< points

/// Pages gather what the layout draws.
TelaPagine TelaCheRaccoglie(std::vector<FoglioReport>& fogli) {
    return {.NuovaPagina =
                [&fogli] {
                    fogli.emplace_back();
                    return static_cast<int>(fogli.size());
                },
            .Testo =
                [&fogli](const TestoPagina& t) {
                    // As the file has it: what its code page lacks is a "?".
                    fogli.back().righe.push_back({t, DaAnsi(InAnsi(t.testo))});
                },
            .Immagine =
                [&fogli](ImmaginePagina quale, const RiquadroPagina& dove) {
                    fogli.back().immagini.push_back({quale, dove});
                }};
}

std::optional<double> RapportoLati(const std::vector<uint8_t>& bmp) {
    const auto pixel = LeggiBMP(bmp);
    return pixel ? std::optional(static_cast<double>(pixel->altezza) / pixel->larghezza)
                 : std::nullopt;
}

} // namespace

PagineReport ComponiPagine(const Scrivania& s, const ReportPronto& report,
                           const OpzioniReport& opzioni, FabbricaQuadri* fabbrica) {
    const RichiestaDocumento r = RichiestaDelReport(s, report, opzioni);
    const bool sdraiato = r.carattere.ReportPaper == kFoglioOrizzontale;
    PagineReport pagine{
        .larghezzaCm = (sdraiato ? kLatoLungo : kLatoCorto) * kCmPerPunto,
        .altezzaCm = (sdraiato ? kLatoCorto : kLatoLungo) * kCmPerPunto,
        .misura = CatturaImmagineMisura(s, report.fonte, fabbrica, FormatoImmagine::Bmp, false)};
    const std::vector<std::string> righe = RigheDelDocumento(report, opzioni);
    ImpaginaReport(TelaCheRaccoglie(pagine.fogli), r, RapportoLati(pagine.misura),
                   [&righe, i = size_t{0}]() mutable {
                       return i < righe.size() ? std::optional(righe[i++]) : std::nullopt;
                   });
    return pagine;
}

} // namespace orvane
