#include "report/SalvaReport.h"

#include <array>

#include "base/PaginaCodici.h"
#include "base/Testo.h"
#include "data/FileFuori.h"
#include "data/FileTesto.h"
#include "data/Misure.h"
#include "data/NomiDisco.h"
#include "records/ImpostazioniReport.h"
#include "report/CatturaImmagine.h"
#include "report/LeggiBMP.h"
#include "report/NomeProprio.h"
#include "report/ReportHTML.h"
#include "report/RiassuntoReport.h"
#include "report/RiduciColori.h"
#include "report/RigheReport.h"
#include "report/ScriviBMP.h"
#include "report/TestoReport.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

struct VoceFormato {
    FormatoReport formato;
    const char* estensione;
    const char* titolo;
};
constexpr std::array kFormati = {
    VoceFormato{FormatoReport::Testo, "TXT", "Save As Text"},
    VoceFormato{FormatoReport::Pdf, "PDF", "Save As PDF"},
    VoceFormato{FormatoReport::Rtf, "RTF", "Save As RTF"},
    VoceFormato{FormatoReport::Csv, "CSV", "Save As CSV"},
    VoceFormato{FormatoReport::Html, "HTML", "Save As HTML"},
};
constexpr const char* kEstensioneHtmlCorta = "HTM";
constexpr std::array kSeparatoriCsv = {',', ';', '\t'};

std::string EstensioneDi(const fs::path& percorso) {
    const std::string estensione = percorso.extension().string();
    return estensione.empty() ? estensione : estensione.substr(1);
}

bool Avvisa(const Scrivania& s, const fs::path& percorso) {
    s.ambiente.Mostra({.testo = "Cannot open file " + Utf8DaPath(percorso)});
    return false;
}

bool Scrivi(const fs::path& percorso, const std::string& byte) {
    return SalvaFuori(percorso, {reinterpret_cast<const uint8_t*>(byte.data()), byte.size()});
}

/// The header text in lines, as they stand, and one line end more behind a last line that has
/// text.
std::string TestoHeader(const Scrivania& s, const ReportPronto& report,
                        const OpzioniReport& opzioni) {
    std::string testo;
    const fs::path header = PercorsoHeader(s.albero, report.fonte.misura.nome);
    if (opzioni.HeaderOn && !StampaFileHeader(header, testo))
        s.ambiente.Mostra({.testo = "Failed loading" + Utf8DaPath(header)});
    return testo;
}

std::vector<std::string> Righe(const std::string& testo) {
    if (testo.empty())
        return {};
    std::vector<std::string> righe = Dividi(testo, '\n');
    if (righe.back().empty())
        righe.pop_back();
    return righe;
}

std::vector<std::string> RigheTesto(const ReportPronto& report, const OpzioniReport& opzioni,
                                    const std::vector<std::string>& davanti) {
    const auto riassunto = opzioni.riassunto ? RigheRiassunto(CalcolaRiassunto(report.fonte))
                                             : std::vector<std::string>{};
    return TestoReport(report.griglia, report.model, report.fonte.misura, opzioni.ColumnSeparator,
                       davanti, riassunto);
}

bool ScriviTesto(const std::vector<std::string>& righe, const fs::path& percorso) {
    std::string testo;
    for (const std::string& riga : righe)
        testo += riga + "\r\n";
    return Scrivi(percorso, InAnsi(testo));
}

/// The picture as "TPI": a BMP of few colours, which is how a document holds it. Where it cannot be
/// made the file is empty, and the converter says so.
fs::path SalvaImmagine(const Scrivania& s, const FonteReport& fonte, FabbricaQuadri* fabbrica,
                       const fs::path& documento) {
    const fs::path percorso = NomeProprio(fs::path(documento).replace_extension("TPI"));
    const bool rtf = FormatoReportDaPercorso(documento) == FormatoReport::Rtf;
    const auto bmp = CatturaImmagineMisura(s, fonte, fabbrica, FormatoImmagine::Bmp, rtf);
    if (const auto pixel = LeggiBMP(bmp))
        SalvaFuori(percorso, InBMP(RiduciColori(*pixel)));
    return percorso;
}

/// PDF and RTF: the text beside the target as "TPT", the picture as "TPI", and both through the
/// converter, which takes them away.
bool SalvaDocumento(Scrivania& s, const ReportPronto& report, const OpzioniReport& opzioni,
                    FabbricaQuadri* fabbrica, VistaAttesa& vista, const fs::path& percorso) {
    RichiestaDocumento r = RichiestaDelReport(s, report, opzioni);
    r.TablePath = NomeProprio(fs::path(percorso).replace_extension("TPT"));
    r.OutPath = percorso;
    if (!ScriviTesto(RigheDelDocumento(report, opzioni), r.TablePath)) {
        std::error_code errore;
        fs::remove(r.TablePath, errore);
        return Avvisa(s, percorso);
    }
    if (fabbrica)
        r.ImagePath = SalvaImmagine(s, report.fonte, fabbrica, percorso);
    const EsitoDocumento esito = ConvertiTestoInPDFRTF(s, vista, r);
    if (esito != EsitoDocumento::Fatto && esito != EsitoDocumento::Occupato)
        s.ambiente.Mostra({.testo = TestoEsito(esito, r), .icona = Icona::Esclamazione});
    return esito == EsitoDocumento::Fatto || esito == EsitoDocumento::SenzaImmagine;
}

bool SalvaHtml(Scrivania& s, const ReportPronto& report, const OpzioniReport& opzioni,
               FabbricaQuadri* fabbrica, const fs::path& percorso) {
    const auto png = CatturaImmagineMisura(s, report.fonte, fabbrica, FormatoImmagine::Png, false);
    ParteHtml parte{.intestazione = TestoHeader(s, report, opzioni), .png = png};
    if (opzioni.riassunto)
        parte.riassunto = CalcolaRiassunto(report.fonte);
    return Scrivi(percorso, ReportHtml(report.griglia, report.model, report.fonte.misura, parte)) ||
           Avvisa(s, percorso);
}

} // namespace

std::optional<FormatoReport> FormatoReportDaPercorso(const fs::path& percorso) {
    const std::string estensione = EstensioneDi(percorso);
    if (UgualiSenzaMaiuscole(estensione, kEstensioneHtmlCorta))
        return FormatoReport::Html;
    for (const VoceFormato& voce : kFormati)
        if (UgualiSenzaMaiuscole(estensione, voce.estensione))
            return voce.formato;
    return std::nullopt;
}

std::string TitoloSalvaReport(FormatoReport formato) {
    return kFormati.at(static_cast<size_t>(formato)).titolo;
}

std::string NomeReport(const std::string& misura, FormatoReport formato) {
    return "Report_" + misura + "." + kFormati.at(static_cast<size_t>(formato)).estensione;
}

OpzioniReport OpzioniDaPannello(const EnvRecord& env) {
    const auto voce = [&env](size_t quale) { return env.ReportList.at(quale); };
    const auto separatore = static_cast<size_t>(voce(voce_report::kSeparatoreCsv));
    return {
        .HeaderOn = voce(voce_report::kIntestazione) != 1,
        .riassunto = voce(voce_report::kRiassunto) == 1,
        .orizzontale = voce(voce_report::kOrizzontale) == 1,
        .ColumnSeparator = ColumnSeparator(env.ExportMode),
        .csv = {.separatore = kSeparatoriCsv[separatore < kSeparatoriCsv.size() ? separatore : 0],
                .decimale = voce(voce_report::kDecimaleCsv) == 1 ? ',' : '.'}};
}

fs::path PercorsoHeader(const AlberoDati& albero, const std::string& misura) {
    const std::string suo = CartellaMisura(misura) + std::string(kFileHeader);
    return albero.Host(albero.Esiste(suo) ? suo : std::string(kFileHeader));
}

RichiestaDocumento RichiestaDelReport(const Scrivania& s, const ReportPronto& report,
                                      const OpzioniReport& opzioni) {
    const MisuraAperta& misura = report.fonte.misura;
    const auto colonne = static_cast<int>(report.griglia.colonne.size());
    const bool tante = DetDimCaratEOrientMeasurePDF(colonne).ReportPaper == kFoglioOrizzontale;
    const bool orizzontale = opzioni.orizzontale || (tante && !opzioni.verticale);
    RichiestaDocumento r{.HeaderPath = PercorsoHeader(s.albero, misura.nome),
                         .HeaderOn = opzioni.HeaderOn,
                         .Title = misura.nome,
                         .carattere = DetCarattereEOrientazione(orizzontale, HaDatiMast(misura))};
    r.carattere.ReportFontSize = DetDimCarattereTabella(colonne);
    return r;
}

std::vector<std::string> RigheDelDocumento(const ReportPronto& report,
                                           const OpzioniReport& opzioni) {
    // The header is printed by the layout, ahead of the picture.
    return RigheTesto(report, opzioni, {});
}

bool SalvaReportComTesto(const Scrivania& s, const ReportPronto& report,
                         const OpzioniReport& opzioni, const fs::path& percorso) {
    return ScriviTesto(RigheTesto(report, opzioni, Righe(TestoHeader(s, report, opzioni))),
                       percorso);
}

bool SalvaReport(Scrivania& s, const ReportPronto& report, const OpzioniReport& opzioni,
                 FabbricaQuadri* fabbrica, VistaAttesa& vista, const fs::path& percorso) {
    const auto formato = FormatoReportDaPercorso(percorso);
    if (!formato || report.griglia.tagliata)
        return false;
    switch (*formato) {
    case FormatoReport::Testo:
        return SalvaReportComTesto(s, report, opzioni, percorso) || Avvisa(s, percorso);
    case FormatoReport::Csv:
        return Scrivi(percorso, InAnsi(ReportCsv(report.griglia, opzioni.csv))) ||
               Avvisa(s, percorso);
    case FormatoReport::Html:
        return SalvaHtml(s, report, opzioni, fabbrica, percorso);
    case FormatoReport::Pdf:
    case FormatoReport::Rtf:
        break;
    }
    return SalvaDocumento(s, report, opzioni, fabbrica, vista, percorso);
}

} // namespace orvane
