// What the main window does about its look, its panels and the texts beside them.
#include <QMenuBar>
#include <QSplitter>

#include "base/Percorsi.h"
#include "base/Testo.h"
#include "console/CambioAmbiente.h"
#include "data/Cartelle.h"
#include "data/FileTesto.h"
#include "data/Intestazione.h"
#include "data/Panels.h"
#include "ui/FrmAspect.h"
#include "ui/FrmColors.h"
#include "ui/FrmLoadSave.h"
#include "ui/FrmTesto.h"
#include "ui/MainForm.h"
#include "ui/Tema.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

/// Files that the load and save window offers.
const RichiestaFile kPannelli{
    .cartella = std::string(cartella::kPanels), .estensione = "EAM", .gruppo = "Panels"};
const RichiestaFile kColori{.cartella = "", .estensione = "COL", .gruppo = "Colors"};

/// Entries that wait until a run is over: what they change is in use.
constexpr const char* kVociFerme[] = {"MNUOpenPanel", "MNUSavePanel", "MNUSaveAs", "MNUColors"};

/// Shows a window over the console without stopping what runs beneath.
void Apri(QDialog* finestra) {
    finestra->setAttribute(Qt::WA_DeleteOnClose);
    finestra->open();
}

bool StesseMisure(const Aspetto& a, const Aspetto& b) {
    return a.larghezzaArchivio == b.larghezzaArchivio && a.larghezzaComuni == b.larghezzaComuni &&
           a.altezzaPiede == b.altezzaPiede;
}

int Percento(int parte, int tutto) {
    return tutto > 0 ? (200 * parte + tutto) / (2 * tutto) : 0;
}

} // namespace

void MainForm::ApriFinestra(AzioneMenu azione) {
    switch (azione) {
    case AzioneMenu::Aspetto:
        return ApriFrmAspect();
    case AzioneMenu::Colori:
        return ApriFrmColors();
    case AzioneMenu::ApriPannello:
        return ApriPannello();
    case AzioneMenu::SalvaPannello:
        return SalvaPannello(false);
    case AzioneMenu::SalvaPannelloCome:
        return SalvaPannello(true);
    case AzioneMenu::Intestazione:
        return ApriTesto(std::string(kFileHeader), tr("Header Text"), CaricaHeader(scrivania_));
    case AzioneMenu::Commento:
        return ApriCommento();
    case AzioneMenu::Report1:
    case AzioneMenu::Report2:
    case AzioneMenu::Report2Full:
        return ApriReport(azione);
    default:
        return azione >= AzioneMenu::AutoNessuno ? ScegliAutoReport(azione) : AzioneQuadro(azione);
    }
}

void MainForm::AbilitaVociFerme(bool ferma) {
    for (const char* nome : kVociFerme)
        if (auto* voce = menuBar()->findChild<QAction*>(QLatin1String(nome)))
            voce->setEnabled(ferma);
}

/// The load and save window; empty where the user turned back.
std::optional<std::string> MainForm::ScegliFile(const RichiestaFile& richiesta, bool salva,
                                                const QString& titolo, const std::string& nome) {
    const auto modo = salva ? FrmLoadSave::Modo::Salva : FrmLoadSave::Modo::Carica;
    QWidget* sopra = QApplication::activeModalWidget();
    FrmLoadSave finestra(*console_, richiesta, modo, titolo, sopra ? sopra : this);
    finestra.ImpostaNome(Q(nome));
    if (finestra.exec() != QDialog::Accepted || finestra.Percorso().empty())
        return std::nullopt;
    return finestra.Percorso();
}

void MainForm::ApriFrmAspect() {
    auto* finestra = new FrmAspect(scrivania_, stileFisso_, this);
    connect(finestra, &FrmAspect::Cambiato, this, &MainForm::ApplicaAspetto);
    Apri(finestra);
}

void MainForm::ApriFrmColors() {
    scrivania_.avvisi.clear();
    auto* finestra = new FrmColors(
        scrivania_,
        [this](bool salva) {
            return ScegliFile(kColori, salva, salva ? tr("Save Colors As") : tr("Load Colors"),
                              EstraiNomeFile(kColoriCOL));
        },
        this);
    connect(finestra, &FrmColors::Cambiato, this, &MainForm::ApplicaAspetto);
    connect(finestra, &QDialog::accepted, this, [this, prima = scrivania_.env] {
        if (SeguiAmbiente(*console_, prima))
            MostraPannello();
        else
            MostraAvvisi(scrivania_.avvisi);
    });
    Apri(finestra);
}

/// The record's values on the window: picture, tables, panels, style.
void MainForm::ApplicaAspetto() {
    const Aspetto prima = aspetto_;
    aspetto_ = LeggiAspetto(scrivania_.env);
    quadro_->DrawGrid();
    if (aspetto_.testoTabelle != prima.testoTabelle)
        for (auto* griglia : findChildren<GridScanTab*>())
            griglia->ScalaTesto(aspetto_.testoTabelle);
    if (aspetto_.testoTabelle != prima.testoTabelle)
        piedeArchivio_->Picchi().ScalaTesto(aspetto_.testoTabelle);
    if (isVisible() && !StesseMisure(aspetto_, prima))
        DisponiPannelli();
    if (aspetto_.stile != prima.stile && stileFisso_.isEmpty())
        ApplicaTema(*static_cast<QApplication*>(QApplication::instance()),
                    static_cast<StileChiesto>(aspetto_.stile));
}

/// Only now is it known how much room there is.
void MainForm::showEvent(QShowEvent* evento) {
    QMainWindow::showEvent(evento);
    if (!evento->spontaneous() && !StesseMisure(aspetto_, {}))
        QTimer::singleShot(0, this, &MainForm::DisponiPannelli);
}

void MainForm::DisponiPannelli() {
    auto* centro = findChild<QSplitter*>(QStringLiteral("SplitCentro"));
    auto* conPiede = findChild<QSplitter*>(QStringLiteral("SplitPiede"));
    const int m = fontMetrics().averageCharWidth();
    const int elenco = aspetto_.larghezzaArchivio * m;
    const int comuni = aspetto_.larghezzaComuni * m;
    const int resto = width() - comuni - (archivio_->isHidden() ? 0 : elenco);
    centro->setSizes({elenco, std::max(resto, 40 * m), comuni});
    const int alto = conPiede->height();
    const int piede = alto * aspetto_.altezzaPiede / 100;
    conPiede->setSizes({alto - piede, piede});
}

/// The user has dragged a border: the record follows. What is hidden keeps its value.
void MainForm::SalvaMisurePannelli() {
    auto* conPiede = findChild<QSplitter*>(QStringLiteral("SplitPiede"));
    const int m = std::max(1, fontMetrics().averageCharWidth());
    if (archivio_->isVisible())
        aspetto_.larghezzaArchivio = archivio_->width() / m;
    if (comuni_->isVisible())
        aspetto_.larghezzaComuni = comuni_->width() / m;
    if (conPiede->isVisible())
        aspetto_.altezzaPiede = Percento(conPiede->sizes().constLast(), conPiede->height());
    ScriviAspetto(scrivania_.env, aspetto_);
    aspetto_ = LeggiAspetto(scrivania_.env);
    SalvaPanelEPN(scrivania_, kPannelloEPN);
}

bool MainForm::PannelliLiberi() {
    if (!scrivania_.NoSaveSetup)
        return true;
    stato_->MostraMessaggio(tr("The settings of a measure are being viewed: no panel is kept"));
    return false;
}

void MainForm::ApriPannello() {
    if (!PannelliLiberi())
        return;
    const auto percorso = ScegliFile(kPannelli, false, tr("Load Panels As"),
                                     EstraiNomeFile(scrivania_.env.SetupPanelPath));
    if (!percorso)
        return;
    if (!scrivania_.albero.Esiste(*percorso))
        return stato_->MostraMessaggio(tr("No panel %1").arg(Q(EstraiNomeFile(*percorso))));
    scrivania_.avvisi.clear();
    CaricaPannelloCome(scrivania_, *percorso);
    MostraPannello();
}

void MainForm::SalvaPannello(bool chiedi) {
    if (!PannelliLiberi())
        return;
    const std::string& ora = scrivania_.env.SetupPanelPath;
    std::optional<std::string> percorso = ora;
    if (chiedi || UgualiSenzaMaiuscole(ora, kPannelloEAM))
        percorso = ScegliFile(kPannelli, true, tr("Save Panels As"), EstraiNomeFile(ora));
    if (!percorso)
        return;
    SalvaPannelloCome(scrivania_, *percorso);
    MostraPannello();
}

/// Everything that shows a setting of the panel, or its name.
void MainForm::MostraPannello() {
    Carica();
    if (console_->stato.modalita == Modalita::SweepsArchive)
        RinnovaElenco();
    if (console_->stato.modalita == Modalita::Sweep)
        MostraAsseTabella();
    MostraTitolo(TitoloFinestra(*console_));
    stato_->MostraMessaggio(tr("Panel: %1").arg(Q(EstraiNomeFile(scrivania_.env.SetupPanelPath))));
    MostraAvvisi(scrivania_.avvisi);
}

void MainForm::ApriTesto(const std::string& percorso, const QString& titolo,
                         const std::optional<std::string>& testo) {
    if (testo)
        Apri(new FrmTesto(scrivania_, percorso, titolo, *testo, this));
}

/// Of the open measure, or the one that the next measures begin with.
void MainForm::ApriCommento() {
    const bool aperta = console_->stato.modalita == Modalita::SweepsArchive && InVista().Mostrata();
    const std::string misura = aperta ? InVista().misura.nome : std::string();
    const std::string percorso = PercorsoCommento(misura);
    ApriTesto(percorso, aperta ? tr("Test Comment of %1").arg(Q(misura)) : tr("Test Comment"),
              CaricaTesto(scrivania_, percorso));
}

} // namespace orvane
