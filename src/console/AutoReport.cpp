#include "console/AutoReport.h"

#include <algorithm>
#include <array>

#include "console/AlberoSubMisure.h"
#include "console/Archivio.h"
#include "data/Cartelle.h"
#include "data/NomiDisco.h"
#include "records/ImpostazioniReport.h"
#include "report/RigheReport.h"
#include "report/SalvaReport.h"
#include "report/ScelteReport.h"

namespace orvane {
namespace {

/// By `AutoReportMode` less 1.
constexpr std::array kFormatiAuto = {FormatoReport::Testo, FormatoReport::Pdf, FormatoReport::Rtf};
constexpr std::array kTipiAuto = {TipoReport::UnDetector, TipoReport::DueDetector,
                                  TipoReport::DueDetectorFull};

TipoReport TipoAuto(const EnvRecord& env) {
    const auto tipo = static_cast<size_t>(env.ReportList[voce_report::kTipoAuto]);
    return kTipiAuto[tipo < kTipiAuto.size() ? tipo : 0];
}

/// The measure with a trace of its own, or with the envelope of its passes by this detector.
MisuraAperta ApriPerReport(Scrivania& s, const std::string& nome, const EnvRecord& env) {
    MisuraAperta misura = ApriMisura(s, nome);
    const SetupRecord& run = misura.header.Setup;
    if (!misura.leggibile || !misura.traccia->empty())
        return misura;
    const ContestoNodi contesto = LeggiContestoNodi(s, nome, run.InsLossOn != 0);
    const auto passate = PassateDellaMisura(contesto);
    const auto detector = static_cast<DetectorKind>(
        ReportDellaMisura(env, TipoReport::UnDetector, misura).ReportDetector);
    misura.base = std::string(kBaseInviluppo);
    CaricaInviluppo(s, misura, run, passate, detector);
    return misura;
}

/// Keeps a wait on show, and with it the user's hands off the console.
struct AttesaAuto {
    VistaAttesa& vista;
    AttesaAuto(VistaAttesa& v, const std::filesystem::path& file) : vista(v) {
        vista.MostraAttesa(TestoAttesa(file));
    }
    ~AttesaAuto() { vista.ChiudiAttesa(); }
};

} // namespace

EsitoAutoReport ScriviAutoReport(Scrivania& s, const std::string& nome, FabbricaQuadri* fabbrica,
                                 VistaAttesa& vista) {
    const auto modo = static_cast<size_t>(s.setup.AutoReportMode);
    if (modo == 0 || modo > kFormatiAuto.size())
        return {};
    s.albero.AssicuraCartella(cartella::kReport);
    const std::filesystem::path file =
        s.albero.Host(std::string(cartella::kReport) + NomeReport(nome, kFormatiAuto[modo - 1]));
    EsitoAutoReport esito{.esito = EsitoAuto::Fallito, .file = Utf8DaPath(file)};
    const AttesaAuto attesa(vista, file);
    const MisuraAperta misura = ApriPerReport(s, nome, s.env);
    if (!misura.leggibile)
        return esito;
    const FonteReport fonte{.misura = misura, .setup = misura.header.Setup, .env = s.env};
    ReportModel model = ReportDellaMisura(s.env, TipoAuto(s.env), misura);
    RaccogliRigheRep(model, fonte);
    GrigliaReport griglia = ImpostaGridReport(model, fonte);
    CompilaReport(griglia, model, fonte, s.ambiente);
    esito.righe = griglia.righe.size();
    if (SalvaReport(s, {griglia, model, fonte}, OpzioniDaPannello(s.env), fabbrica, vista, file))
        esito.esito = EsitoAuto::Scritto;
    return esito;
}

} // namespace orvane
