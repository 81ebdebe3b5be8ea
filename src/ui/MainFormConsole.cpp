// What the modes and the archive say to the main window.
#include <QMenuBar>
#include <QSignalBlocker>

#include "base/Percorsi.h"
#include "graph/Scala.h"
#include "ui/MainForm.h"
#include "ui/Testi.h"

namespace orvane {
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
    piedeArchivio_->PerSweep(sweep);
    comuni_->setVisible(!vivo);
    AggiornaEtichette();
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
