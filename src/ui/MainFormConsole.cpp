// What the modes and the archive say to the main window.
#include <QMenuBar>
#include <QSignalBlocker>

#include "base/Percorsi.h"
#include "graph/Scala.h"
#include "ui/MainForm.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

SampleRecord Campione(const CampioneTraccia& c, int detector) {
    SampleRecord campione;
    for (size_t d = 0; d < kNumDetector; ++d)
        if (detector < 0 || static_cast<size_t>(detector) == d)
            campione.Livello[d] = c.livello[d];
    return campione;
}

} // namespace

void MainForm::MostraTitolo(const std::string& titolo) {
    setWindowTitle(Q(titolo));
}

void MainForm::MostraScheda(Modalita modalita) {
    const QSignalBlocker zitte(schede_);
    schede_->setCurrentIndex(static_cast<int>(modalita));
    if (console_->stato.modalita == modalita && console_->ricevitore.porta.Aperta())
        return;
    AggiornaEtichette();
    if (modalita != Modalita::SweepsArchive && modalita != Modalita::Sweep)
        stato_->MostraMessaggio(tr("Looking for the receiver: %1").arg(DescrizioneLink()));
}

void MainForm::DisabilitaMenu() {
    DisabilitaVociModo(*menuBar());
}

void MainForm::MostraPannelli(bool archivio, bool sweep, bool vivo) {
    archivio_->setVisible(archivio);
    pagine_->setCurrentIndex(vivo ? 1 : 0);
    piede_->setCurrentWidget(sweep ? static_cast<QWidget*>(sweep_) : piedeArchivio_);
    comuni_->setVisible(!vivo);
    AggiornaEtichette();
}

void MainForm::EntraArchivio() {
    MostraPannelli(true, false, false);
    AbilitaVociPannello(*menuBar());
    quadro_->ImpostaInvito(tr("No measure is open"));
    if (archivio_->ElencaArchivio() == 0)
        return ApriMisuraScelta({});
    archivio_->Scegli(EstraiNomeFile(scrivania_.env.SweepPath));
    attesa_.stop();
    ApriMisuraScelta(Q(archivio_->Scelta()));
}

void MainForm::EntraSweep() {
    MostraPannelli(false, true, false);
    AbilitaVociPannello(*menuBar());
    misura_ = {};
    quadro_->MostraDetector({true, true, true, true, true, true});
    quadro_->ImpostaInvito(tr("The sweep is drawn here while it runs"));
    sweep_->Carica();
    stato_->CancellaBarre();
    quadro_->IniziaTraccia(0, 0);
    MostraAsseTabella();
}

void MainForm::EntraModoVivo(Modalita modalita) {
    const Ricevitore& r = console_->ricevitore;
    ricevitore_->Mostra(modalita, r.modello, S(DescrizioneLink()), batteria_);
    MostraPannelli(false, false, true);
    stato_->MostraMessaggio({});
}

void MainForm::PulisciQuadro() {
    stato_->NascondiFreqLivello();
    stato_->CancellaBarre();
    stato_->MostraMessaggio({});
    pagine_->setCurrentIndex(0);
    comuni_->setVisible(true);
}

void MainForm::ChiudiFinestreAusiliarie() {}

void MainForm::AbilitaTimerTask() {
    timerTask_.start();
}

void MainForm::TerminaProcesso() {
    QMetaObject::invokeMethod(this, &MainForm::Terminata, Qt::QueuedConnection);
}

void MainForm::MostraStato(const std::string& testo) {
    stato_->MostraMessaggio(Q(testo));
}

void MainForm::ApriMisuraScelta(const QString& nome) {
    misura_ = nome.isEmpty() ? MisuraAperta{} : ApriMisura(scrivania_, S(nome));
    righeAperte_ = misura_.leggibile ? misura_.header.Scan.Righe : ScanTable{};
    righeMisura_->Modello().Aggiorna();
    archivio_->MostraMisura(misura_);
    titoloMisura_->setText(nome.isEmpty() ? QString() : tr("Scan lines of %1").arg(nome));
    quadro_->ImpostaInvito(nome.isEmpty()            ? tr("No measure is open")
                           : !misura_.leggibile      ? tr("%1 cannot be read").arg(nome)
                           : misura_.traccia->empty() ? tr("%1 holds no samples").arg(nome)
                                                     : QString());
    stato_->MostraMessaggio(misura_.leggibile && !misura_.header.Setup.ModelText.empty()
                                ? QStringLiteral("%1 · %2 FW %3")
                                      .arg(nome, Q(misura_.header.Setup.ModelText),
                                           TestoFirmware(misura_.header.Setup.FwRelease))
                                : nome);
    DisegnaMisura(-1);
}

/// All detectors, or the trace merged by one and drawn alone.
void MainForm::DisegnaMisura(int detector) {
    quadro_->IniziaTraccia(misura_.startMhz, misura_.stopMhz);
    quadro_->MostraDetector({true, true, true, true, true, true});
    std::optional<DetectorKind> scelto;
    if (detector >= 0)
        scelto = static_cast<DetectorKind>(detector);
    CaricaTracciaMisura(scrivania_, misura_, misura_.header.Setup, scelto);
    for (const CampioneTraccia& c : *misura_.traccia) {
        if (c.stacco)
            quadro_->InterrompiTraccia();
        quadro_->Aggiungi(c.freqMhz, Campione(c, detector));
    }
}

void MainForm::AggiornaEtichette() {
    const Ricevitore& r = console_->ricevitore;
    const bool archivio = console_->stato.modalita == Modalita::SweepsArchive;
    const bool noto = !r.modello.FwTesto.empty();
    chipModello_->Mostra(
        archivio ? tr("No receiver needed")
        : noto   ? QStringLiteral("%1  FW %2")
                     .arg(Q(NomeModello(r.modello, false)), TestoFirmware(r.modello.FwTesto))
               : QString(),
        !archivio && r.porta.Aperta());
    chipLink_->Mostra(archivio ? QString() : DescrizioneLink());
    chipBatteria_->Mostra(archivio || batteria_.empty() ? QString()
                                                        : tr("Battery %1").arg(Q(batteria_)));
    comuni_->Segui(r.modello, console_->stato.modalita);
    if (auto* voce = menuBar()->findChild<QAction*>(QStringLiteral("MNURemoteLink")))
        voce->setText(tr("Remote Link… (%1)").arg(DescrizioneLink()));
}

QString MainForm::Unita() const {
    const auto unita = static_cast<size_t>(std::clamp<int>(scrivania_.setup.UnitId, 0, 7));
    return Q(TabellaUnitaGrafico()[unita].testo);
}

} // namespace orvane
