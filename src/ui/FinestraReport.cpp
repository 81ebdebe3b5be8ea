#include "ui/FinestraReport.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include "base/Numeri.h"
#include "data/ModificaTabella.h"
#include "data/NomiDisco.h"
#include "data/TabelleFrequenza.h"
#include "platform/qt/FabbricaQt.h"
#include "records/ImpostazioniReport.h"
#include "report/RigheReport.h"
#include "ui/AnteprimaReport.h"
#include "ui/AttesaFile.h"
#include "ui/Moduli.h"
#include "ui/SceltaFileReport.h"
#include "ui/StileConsole.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

struct VoceSalva {
    const char* nome;
    const char* testo;
    FormatoReport formato;
};
constexpr VoceSalva kSalva[] = {
    {"CMBSaveAsText", "Text…", FormatoReport::Testo},
    {"CMBSaveAsPDF", "PDF…", FormatoReport::Pdf},
    {"CMBSaveAsRTF", "RTF…", FormatoReport::Rtf},
    {"CMBSaveAsHTML", "HTML…", FormatoReport::Html},
    {"CMBSaveAsCSV", "CSV…", FormatoReport::Csv},
};

/// A group under its heading.
QVBoxLayout* CreaRiquadro(QWidget& riquadro, const QString& titolo) {
    auto* colonna = new QVBoxLayout(&riquadro);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(6);
    colonna->addWidget(CreaTitoletto(titolo, &riquadro));
    return colonna;
}

} // namespace

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
    tutto->addWidget(nota_);
    tutto->addLayout(CreaPulsanti());
    const QSize schermo = screen()->availableSize();
    const int m = fontMetrics().averageCharWidth();
    resize(std::min(120 * m, schermo.width() * 9 / 10),
           std::min(90 * m, schermo.height() * 9 / 10));
}

QWidget* FinestraReport::CreaColonna(std::span<const GruppoDetector> gruppi) {
    colonna_ = new QWidget(this);
    colonna_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    auto* colonna = new QVBoxLayout(colonna_);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(18);
    colonna->addWidget(CreaMargine());
    auto* fila = new QHBoxLayout;
    fila->setSpacing(18);
    for (const GruppoDetector& gruppo : gruppi)
        fila->addWidget(CreaGruppo(gruppo), 0, Qt::AlignTop);
    colonna->addLayout(fila);
    colonna->addWidget(CreaDocumento());
    colonna->addWidget(CreaCsv());
    colonna->addStretch(1);
    return colonna_;
}

/// The detectors that the measure has; the others are off.
QWidget* FinestraReport::CreaGruppo(const GruppoDetector& gruppo) {
    auto* riquadro =
        Nomina(new QWidget(colonna_), QLatin1String(gruppo.riquadro), tr(gruppo.titolo));
    auto* colonna = CreaRiquadro(*riquadro, tr(gruppo.titolo));
    auto* scelta = new QButtonGroup(riquadro);
    for (size_t d = 0; d < kNumDetector; ++d) {
        auto* opzione = new QRadioButton(QLatin1String(kNomiDetector.at(d)), riquadro);
        opzione->setObjectName(QLatin1String(gruppo.opzione) + QString::number(d));
        opzione->setEnabled(misura_.detector[d]);
        if (!misura_.detector[d])
            opzione->setToolTip(tr("Not measured"));
        opzione->setChecked(DetectorReport(model_, gruppo.ruolo) == static_cast<int16_t>(d));
        scelta->addButton(opzione, static_cast<int>(d));
        colonna->addWidget(opzione);
    }
    connect(scelta, &QButtonGroup::idClicked, this, [this, ruolo = gruppo.ruolo](int detector) {
        ScegliDetectorReport(scrivania_, model_, ruolo, static_cast<int16_t>(detector));
        Compila();
    });
    return riquadro;
}

QWidget* FinestraReport::CreaMargine() {
    auto* riquadro = Nomina(new QWidget(colonna_), QStringLiteral("FRMMargin"), tr("Margin"));
    auto* colonna = CreaRiquadro(*riquadro, tr("Margin"));
    TBMargin_ = Nomina(new QLineEdit(Q(TestoDaNumero(model_.ReportMargin)), riquadro),
                       QStringLiteral("TBMargin"), tr("Margin"),
                       tr("dB below the limit from which on a level is reported, -999 to 999; "
                          "Enter applies it"));
    TBMargin_->setMaximumWidth(fontMetrics().averageCharWidth() * 12);
    auto* fila = new QHBoxLayout;
    fila->addWidget(TBMargin_);
    fila->addWidget(CreaDidascalia(tr("dB"), riquadro));
    fila->addStretch(1);
    colonna->addLayout(fila);
    sospeso_ = CreaDidascalia(tr("Enter applies the margin"), riquadro);
    sospeso_->setObjectName(QStringLiteral("LBChangePending"));
    QSizePolicy posto = sospeso_->sizePolicy();
    posto.setRetainSizeWhenHidden(true);
    sospeso_->setSizePolicy(posto);
    sospeso_->hide();
    colonna->addWidget(sospeso_);
    connect(TBMargin_, &QLineEdit::returnPressed, this, &FinestraReport::CambiaMargine);
    connect(TBMargin_, &QLineEdit::textEdited, this, &FinestraReport::SegnaMargine);
    return riquadro;
}

QCheckBox* FinestraReport::CreaScelta(const char* nome, const QString& testo, const QString& aiuto,
                                      size_t voce, bool acceso, int16_t siVale) {
    auto* casella = Nomina(new QCheckBox(testo, colonna_), QLatin1String(nome), testo, aiuto);
    casella->setChecked(acceso);
    connect(casella, &QCheckBox::toggled, this, [this, voce, siVale](bool si) {
        ScegliVoceReport(scrivania_, voce, static_cast<int16_t>(si ? siVale : 1 - siVale));
    });
    return casella;
}

QWidget* FinestraReport::CreaDocumento() {
    const OpzioniReport o = OpzioniDaPannello(scrivania_.env);
    auto* riquadro = new QWidget(colonna_);
    auto* colonna = CreaRiquadro(*riquadro, tr("Document"));
    colonna->addWidget(CreaScelta("CHKHeader", tr("Header text"),
                                  tr("Begins with the text of Report, Header Title"),
                                  voce_report::kIntestazione, o.HeaderOn, 0));
    colonna->addWidget(CreaScelta("CHKSummary", tr("Summary"),
                                  tr("Verdict and worst points ahead of the table"),
                                  voce_report::kRiassunto, o.riassunto, 1));
    colonna->addWidget(CreaScelta("CHKLandscape", tr("Landscape"), tr("PDF on landscape sheets"),
                                  voce_report::kOrizzontale, o.orizzontale, 1));
    return riquadro;
}

QWidget* FinestraReport::CreaCsv() {
    auto* riquadro = new QWidget(colonna_);
    auto* colonna = CreaRiquadro(*riquadro, tr("CSV"));
    const auto aggiungi = [&](const char* nome, const QString& testo, const QStringList& voci,
                              size_t voce) {
        auto* lista = Nomina(new QComboBox(riquadro), QLatin1String(nome), testo, testo);
        lista->addItems(voci);
        lista->setCurrentIndex(
            std::clamp<int>(scrivania_.env.ReportList[voce], 0, static_cast<int>(voci.size()) - 1));
        connect(lista, &QComboBox::activated, this, [this, voce](int scelta) {
            ScegliVoceReport(scrivania_, voce, static_cast<int16_t>(scelta));
        });
        colonna->addWidget(lista);
    };
    aggiungi("CBXSeparator", tr("Separator between the columns"),
             {tr("Comma"), tr("Semicolon"), tr("Tab")}, voce_report::kSeparatoreCsv);
    aggiungi("CBXDecimal", tr("Decimal sign"), {tr("Decimal point"), tr("Decimal comma")},
             voce_report::kDecimaleCsv);
    return riquadro;
}

QLayout* FinestraReport::CreaPulsanti() {
    auto* riga = new QHBoxLayout;
    riga->setSpacing(8);
    riga->addWidget(CreaDidascalia(tr("Save as"), this));
    const auto aggiungi = [&](const char* nome, const QString& testo, const QString& aiuto,
                              auto&& cosa) {
        QPushButton* pulsante = CreaPulsante(QLatin1String(nome), testo, aiuto, this);
        connect(pulsante, &QPushButton::clicked, this, cosa);
        salva_.push_back(pulsante);
        riga->addWidget(pulsante);
    };
    for (const VoceSalva& voce : kSalva)
        aggiungi(voce.nome, tr(voce.testo), Q(TitoloSalvaReport(voce.formato)),
                 [this, formato = voce.formato] { Salva(formato); });
    aggiungi("CMBSaveAsFreqTab", tr("Frequency Table…"),
             tr("The frequencies of the rows, for a further measurement"),
             [this] { SalvaFreqTab(); });
    riga->addStretch(1);
    aggiungi("CMBPreview", tr("Preview…"), tr("The pages of the PDF"), [this] { Anteprima(); });
    CMBContinue_ = CreaPulsante(QStringLiteral("CMBContinue"), tr("Continue"), QString(), this);
    CMBContinue_->hide();
    CMBExit_ = CreaPulsante(QStringLiteral("CMBExit"), tr("Exit"), QString(), this);
    CMBExit_->setProperty(kProprietaRuolo, QStringLiteral("accento"));
    connect(CMBExit_, &QPushButton::clicked, this, &FinestraReport::Esci);
    riga->addWidget(CMBContinue_);
    riga->addWidget(CMBExit_);
    return riga;
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
