#include "ui/FinestraReport.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include "base/Numeri.h"
#include "data/ModificaTabella.h"
#include "data/NomiDisco.h"
#include "data/TabelleFrequenza.h"
#include "platform/qt/FabbricaQt.h"
#include "report/RigheReport.h"
#include "ui/AnteprimaReport.h"
#include "ui/AttesaFile.h"
#include "ui/Moduli.h"
#include "ui/SceltaFileReport.h"
#include "ui/Testi.h"

namespace orvane {

FinestraReport::FinestraReport(Scrivania& scrivania, const MisuraAperta& misura, TipoReport tipo,
                               std::span<const GruppoDetector> gruppi, ChiediTabella chiediTabella,
                               QWidget* padre)
    : QDialog(padre), scrivania_(scrivania), misura_(misura),
      setup_(scrivania.setup), fonte_{.misura = misura_, .setup = setup_, .env = scrivania_.env},
      model_(ReportDellaMisura(scrivania.env, tipo, misura)),
      chiediTabella_(std::move(chiediTabella)) {
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    GridReport_ = new GrigliaReportQt(this);
    PBReport_ = Nomina(new QProgressBar(this), QStringLiteral("PBReport"), tr("Progress"));
    PBReport_->hide();
    auto* destra = new QVBoxLayout;
    destra->setSpacing(0);
    destra->addWidget(GridReport_, 1);
    destra->addWidget(PBReport_, 1, Qt::AlignVCenter);
    auto* corpo = new QHBoxLayout;
    corpo->setSpacing(20);
    corpo->addWidget(CreaColonna(gruppi));
    corpo->addLayout(destra, 1);
    nota_ = CreaDidascalia(QString(), this);
    nota_->setObjectName(QStringLiteral("LBNota"));
    nota_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    nota_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* tutto = new QVBoxLayout(this);
    tutto->setContentsMargins(20, 18, 20, 16);
    tutto->setSpacing(14);
    tutto->addLayout(corpo, 1);
    tutto->addLayout(CreaSalvataggi());
    tutto->addLayout(CreaPiede());
    const QSize schermo = screen()->availableSize();
    const int m = fontMetrics().averageCharWidth();
    resize(std::min(120 * m, schermo.width() * 9 / 10),
           std::min(90 * m, schermo.height() * 9 / 10));
}

/// `Form_Activate`, once the window stands.
void FinestraReport::showEvent(QShowEvent* evento) {
    QDialog::showEvent(evento);
    if (!std::exchange(attivata_, true))
        QTimer::singleShot(0, this, &FinestraReport::Compila);
}

void FinestraReport::Compila() {
    if (model_.ReportCompiling)
        return;
    const QPointer<QWidget> fuoco = focusWidget();
    RaccogliRigheRep(model_, fonte_);
    griglia_ = ImpostaGridReport(model_, fonte_, GridReport_->Misura());
    MostraCompilazione(true);
    CompilaReport(griglia_, model_, fonte_, scrivania_.ambiente,
                  [this](size_t fatte, size_t tutte) {
                      PBReport_->setRange(0, static_cast<int>(tutte));
                      PBReport_->setValue(static_cast<int>(fatte));
                  });
    MostraCompilazione(false);
    if (model_.ReportUnloadRequested)
        return QDialog::reject();
    AdattaFinestraReport();
    (fuoco && fuoco->isEnabled() ? fuoco.data() : GridReport_)->setFocus();
}

void FinestraReport::MostraCompilazione(bool si) {
    // Before anything is served: what would fill again is off.
    colonna_->setEnabled(!si);
    for (QPushButton* pulsante : salva_)
        pulsante->setEnabled(!si && !griglia_.tagliata);
    CMBContinue_->setEnabled(!si && !griglia_.tagliata);
    CMBExit_->setText(si ? tr("Cancel") : tr("Exit"));
    GridReport_->Mostra(si ? nullptr : &griglia_);
    GridReport_->setVisible(!si);
    PBReport_->reset();
    PBReport_->setVisible(si);
    setWindowTitle(si ? tr("Compilation report... please wait") : Q(griglia_.didascalia));
    const QString righe =
        griglia_.righe.size() == 1 ? tr("1 row") : tr("%1 rows").arg(griglia_.righe.size());
    nota_->setText(si                             ? QString()
                   : griglia_.tagliata            ? tr("Cut short after %1").arg(righe)
                   : LimitiAttivi(setup_).empty() ? tr("No limit is on: there are no rows")
                                                  : righe);
}

/// As wide as the columns need, as far as the screen allows.
void FinestraReport::AdattaFinestraReport() {
    const QSize schermo = screen()->availableSize();
    const int altri = width() - GridReport_->width();
    const int voluta = altri + GridReport_->LarghezzaColonne();
    const int prima = width();
    resize(std::clamp(voluta, prima, std::max(prima, schermo.width() * 9 / 10)), height());
    // It grows to both sides.
    const QRect tutto = screen()->availableGeometry();
    move(std::clamp(x() - (width() - prima) / 2, tutto.left(),
                    std::max(tutto.left(), tutto.right() - frameGeometry().width())),
         y());
}

void FinestraReport::CambiaMargine() {
    if (model_.ReportCompiling)
        return;
    ScegliMargineReport(scrivania_, model_, S(TBMargin_->text()));
    TBMargin_->setText(Q(TestoDaNumero(model_.ReportMargin)));
    sospeso_->hide();
    Compila();
    TBMargin_->selectAll();
    TBMargin_->setFocus();
}

/// `Change pending`.
void FinestraReport::SegnaMargine(const QString& testo) {
    const auto dB = LeggiNumero(S(testo));
    sospeso_->setVisible(!dB || static_cast<float>(*dB) != model_.ReportMargin);
}

void FinestraReport::Esci() {
    model_.ReportCancelRequested = model_.ReportCompiling;
    if (!model_.ReportCompiling)
        QDialog::reject();
}

void FinestraReport::reject() {
    model_.ReportUnloadRequested = model_.ReportCompiling;
    Esci();
}

void FinestraReport::Salva(FormatoReport formato) {
    const auto file = ChiediFileReport(this, scrivania_, misura_.nome, formato);
    if (!file)
        return;
    AttesaFile attesa(this);
    FabbricaQt fabbrica;
    if (!SalvaReport(scrivania_, Pronto(), OpzioniDaPannello(scrivania_.env), &fabbrica, attesa,
                     *file))
        return; // a box has told
    RicordaFileReport(scrivania_, *file);
    nota_->setText(tr("Written: %1").arg(Q(Utf8DaPath(*file))));
}

void FinestraReport::SalvaFreqTab() {
    bool intera = false;
    const FrequencyTable tabella = TabellaDaGriglia(griglia_, fonte_, intera);
    if (!intera)
        return AvvisaModifica(scrivania_.ambiente, EsitoModifica::Piena, TableKind::Frequenze);
    const auto percorso = chiediTabella_();
    if (percorso && orvane::SalvaFreqTab(scrivania_, FormaFreqTab::Semplice, *percorso, tabella))
        nota_->setText(tr("Written: %1").arg(Q(*percorso)));
}

void FinestraReport::Anteprima() {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    FabbricaQt fabbrica;
    PagineReport pagine =
        ComponiPagine(scrivania_, Pronto(), OpzioniDaPannello(scrivania_.env), &fabbrica);
    QGuiApplication::restoreOverrideCursor();
    AnteprimaReport(std::move(pagine), Q(misura_.nome), this).exec();
}

} // namespace orvane
