// What the grid, its foot and its windows do to the scan table: save, undo, examine, estimate.
#include <QKeyEvent>

#include "base/Percorsi.h"
#include "data/Panels.h"
#include "setup/CommutatoriSweep.h"
#include "setup/ModificaTabella.h"
#include "setup/StimaDurata.h"
#include "setup/TastiScan.h"
#include "ui/PannelloSweep.h"
#include "ui/ScanTabForm.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

constexpr int kAttesaEsameMs = 150;

/// Detector and Hold Time open the same frames.
bool StessiRiquadri(ColonnaScan a, ColonnaScan b) {
    for (size_t c = 0; c < kNumCornici; ++c)
        if (ApreCornice(a, static_cast<Cornice>(c)) && ApreCornice(b, static_cast<Cornice>(c)))
            return true;
    return false;
}

} // namespace

void PannelloSweep::CollegaGriglia() {
    attesaEsame_.setSingleShot(true);
    attesaEsame_.setInterval(kAttesaEsameMs);
    connect(&attesaEsame_, &QTimer::timeout, this, &PannelloSweep::Esamina);
    connect(&griglia_->Modello(), &ModelloScan::Modificata, this, &PannelloSweep::SalvaTabella);
    connect(azioni_, &AzioniScan::Modificata, this, &PannelloSweep::SalvaTabella);
    connect(azioni_, &AzioniScan::Rifiutata, this, &PannelloSweep::Rifiuta);
    connect(picker_, &FRMTDScanTab::Modificata, this, [this] {
        griglia_->Modello().DimenticaSegni();
        SalvaTabella();
    });
    connect(griglia_, &GridScanTab::ModuloChiesto, this, &PannelloSweep::ApriModulo);
    connect(griglia_, &GridScanTab::RigaCorrenteCambiata, this, &PannelloSweep::ScriviStima);
    connect(&piede_->Bande(), &QPushButton::clicked, this, &PannelloSweep::ApriBande);
    connect(&piede_->Riscontri(), &ElencoRiscontri::Scelto, griglia_, &GridScanTab::VaiAllaCella);
}

void PannelloSweep::AggiornaGriglia() {
    griglia_->Modello().Aggiorna();
    if (nomeStoria_ != scrivania_.env.ScanPanelPath) {
        nomeStoria_ = scrivania_.env.ScanPanelPath;
        azioni_->Ricomincia();
    }
    azioni_->Registra();
    picker_->ImpostaTabella(EstraiNomeFile(nomeStoria_));
    picker_->Aggiorna();
    ScriviStima();
    RinnovaEsame();
}

void PannelloSweep::CambiaAncillary() {
    SelLineParaSweep(scan_.Righe, scrivania_.setup);
    SalvaTabella();
}

void PannelloSweep::EvidenziaCella(int riga, ColonnaScan colonna, bool errata) {
    griglia_->Modello().EvidenziaErrore(riga, colonna, errata);
}

void PannelloSweep::SalvaTabella() {
    SalvaPanelEST(scrivania_, scrivania_.env.ScanPanelPath, scan_);
    AggiornaGriglia();
    Q_EMIT TabellaCambiata();
}

void PannelloSweep::ApriModulo(const QModelIndex& cella, const QString& digitato) {
    auto* modulo = new ScanTabForm(scrivania_.ambiente, scrivania_.albero,
                                   static_cast<ColonnaScan>(cella.column()), cella.row(),
                                   griglia_->Modello().Ancillary(),
                                   scan_.Righe[static_cast<size_t>(cella.row())], griglia_);
    connect(modulo, &QDialog::accepted, this,
            [this, quale = QPersistentModelIndex(cella)] { ModuloChiuso(quale); });
    connect(modulo, &QDialog::finished, griglia_, qOverload<>(&QWidget::setFocus));
    const QRect dove = griglia_->visualRect(cella);
    modulo->ApriVicino(QRect(griglia_->viewport()->mapToGlobal(dove.topLeft()), dove.size()),
                       digitato);
}

/// The line has its new values: the marks of what the window showed are old, and the next cell is
/// wanted.
void PannelloSweep::ModuloChiuso(const QModelIndex& cella) {
    AggiornaRigaScanTab(scan_.Righe, static_cast<size_t>(cella.row()),
                        griglia_->Modello().Ancillary());
    for (int c = 0; c < griglia_->Modello().columnCount(); ++c)
        if (StessiRiquadri(static_cast<ColonnaScan>(c), static_cast<ColonnaScan>(cella.column())))
            griglia_->Modello().DimenticaSegno(cella.row(), static_cast<ColonnaScan>(c));
    SalvaTabella();
    griglia_->setFocus();
    griglia_->Avanza();
}

void PannelloSweep::ApriBande() {
    if (!picker_->isVisible()) {
        picker_->adjustSize();
        // Above the grid: the row that it works on stays in sight.
        const QPoint angolo = mapToGlobal(QPoint(0, 0));
        picker_->move(angolo.x() + 10, std::max(0, angolo.y() - picker_->height() - 40));
    }
    picker_->show();
    picker_->raise();
    picker_->activateWindow();
}

void PannelloSweep::RinnovaEsame() {
    attesaEsame_.start();
}

/// A run marks its own cells; what the look before it found would be in the way.
void PannelloSweep::Esamina() {
    if (!ferma_ || !esame_)
        return;
    const Segnalazioni riscontri = esame_();
    griglia_->Modello().MostraRiscontri(riscontri);
    piede_->Riscontri().Mostra(riscontri);
}

void PannelloSweep::Rifiuta(const QString& testo) {
    scrivania_.ambiente.Mostra({.testo = S(testo), .icona = Icona::Esclamazione});
}

void PannelloSweep::ScriviStima() {
    const int kind = griglia_->Modello().Ancillary();
    const size_t righe = RigheInUso(scan_.Righe);
    if (righe == 0)
        return piede_->MostraStima(tr("Type a start and a stop frequency, or add a band"), {});
    const auto testo = [&](const ScanTable& tabella) {
        return Q(TestoStima(StimaTabella(scrivania_.albero, tabella, kind), kind));
    };
    const auto corrente = static_cast<size_t>(std::max(griglia_->currentIndex().row(), 0));
    QString dellaRiga;
    if (righe > 1 && corrente < righe) {
        ScanTable una;
        una[0] = scan_.Righe[corrente];
        dellaRiga = tr("Line %1: %2").arg(corrente + 1).arg(testo(una));
    }
    piede_->MostraStima(testo(scan_.Righe), dellaRiga);
}

/// Delete in `CBXScanTab`, where the whole name is chosen, asks for the panel; elsewhere it edits
/// the name.
bool PannelloSweep::eventFilter(QObject* oggetto, QEvent* evento) {
    const auto* testo = qobject_cast<QLineEdit*>(oggetto);
    if (!testo || evento->type() != QEvent::KeyPress ||
        static_cast<QKeyEvent*>(evento)->key() != Qt::Key_Delete ||
        testo->selectedText() != testo->text())
        return QWidget::eventFilter(oggetto, evento);
    const DecisioneTasto decisione =
        KeyDownCellaScanTab(EditoreScan::CBXScanTab, TastoScan::Canc, false, false);
    if (decisione.azione == AzioneTasto::ChiediCancella)
        CancellaTabella();
    return true;
}

} // namespace orvane
