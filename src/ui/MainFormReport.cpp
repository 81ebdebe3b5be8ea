// Reports of the measure on show, and the one that writes itself.
#include <QMenuBar>

#include "console/AutoReport.h"
#include "data/CaricaSalva.h"
#include "platform/qt/FabbricaQt.h"
#include "records/ImpostazioniReport.h"
#include "report/ScelteReport.h"
#include "ui/AttesaFile.h"
#include "ui/FrmReport.h"
#include "ui/FrmReportDSD.h"
#include "ui/MainForm.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

/// Menus that a report window keeps shut.
constexpr const char* kMenuChiusi[] = {"MNUReport", "MNUOptions", "MNUTools"};

void ApriMenu(const QMenuBar& barra, bool aperti) {
    for (const char* nome : kMenuChiusi)
        barra.findChild<QMenu*>(QLatin1String(nome))->menuAction()->setEnabled(aperti);
}

struct VoceAuto {
    AzioneMenu azione;
    int16_t modo; ///< `AutoReportMode`
};
constexpr VoceAuto kModi[] = {{AzioneMenu::AutoNessuno, 0},
                              {AzioneMenu::AutoTesto, 1},
                              {AzioneMenu::AutoPdf, 2},
                              {AzioneMenu::AutoRtf, 3}};
constexpr VoceAuto kTipi[] = {
    {AzioneMenu::AutoUno, 0}, {AzioneMenu::AutoDue, 1}, {AzioneMenu::AutoDueInteri, 2}};

} // namespace

/// `MNUReport_Click`.
void MainForm::ApriReport(AzioneMenu azione) {
    const StatoArchivio& a = InVista();
    if (!a.Mostrata() || console_->corsa.stato.SweepInCorso)
        return;
    const auto chiedi = [this, nome = a.misura.nome] {
        return ScegliFile(RichiestaTabella(TableKind::Frequenze), true,
                          tr("Save Frequency Table As"), nome);
    };
    FinestraReport* finestra = nullptr;
    if (azione == AzioneMenu::Report1)
        finestra = new FrmReport(scrivania_, a.misura, chiedi, this);
    else
        finestra =
            new FrmReportDSD(scrivania_, a.misura, azione == AzioneMenu::Report2Full, chiedi, this);
    finestra->setAttribute(Qt::WA_DeleteOnClose);
    ApriMenu(*menuBar(), false);
    connect(finestra, &QDialog::finished, this, [this] {
        ApriMenu(*menuBar(), true);
        SegnaMenuReport();
    });
    finestra->open();
}

/// `MNUAutoSaveRep_Click`, and what is written then.
void MainForm::ScegliAutoReport(AzioneMenu azione) {
    for (const VoceAuto& voce : kModi)
        if (voce.azione == azione)
            CambiaPreferenza([&voce](SetupRecord& setup) { setup.AutoReportMode = voce.modo; });
    for (const VoceAuto& voce : kTipi)
        if (voce.azione == azione)
            ScegliVoceReport(scrivania_, voce_report::kTipoAuto, voce.modo);
    const auto inverti = [this](size_t quale) {
        const int16_t ora = scrivania_.env.ReportList[quale];
        ScegliVoceReport(scrivania_, quale, static_cast<int16_t>(ora == 1 ? 0 : 1));
    };
    if (azione == AzioneMenu::AutoIntestazione)
        inverti(voce_report::kIntestazione);
    if (azione == AzioneMenu::AutoRiassunto)
        inverti(voce_report::kRiassunto);
    SegnaMenuReport();
}

/// The marks of the group follow the records.
void MainForm::SegnaMenuReport() {
    const EnvRecord& env = scrivania_.env;
    SegnaAutoReport(*menuBar(), {.modo = scrivania_.setup.AutoReportMode,
                                 .tipo = env.ReportList[voce_report::kTipoAuto],
                                 .intestazione = env.ReportList[voce_report::kIntestazione] != 1,
                                 .riassunto = env.ReportList[voce_report::kRiassunto] == 1});
}

/// Behind a completed run; what the status line says of it, empty for no report.
QString MainForm::AutoReport(const std::string& misura) {
    AttesaFile attesa(this);
    FabbricaQt fabbrica;
    const EsitoAutoReport esito = ScriviAutoReport(scrivania_, misura, &fabbrica, attesa);
    if (esito.esito == EsitoAuto::Spento)
        return {};
    return (esito.esito == EsitoAuto::Scritto ? tr("; report written: %1")
                                              : tr("; report not written: %1"))
        .arg(Q(esito.file));
}

} // namespace orvane
