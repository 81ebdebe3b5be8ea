// The controls of the report windows.
#include <algorithm>

#include <QButtonGroup>
#include <QComboBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "base/Numeri.h"
#include "records/ImpostazioniReport.h"
#include "ui/FinestraReport.h"
#include "ui/Moduli.h"
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

QWidget* FinestraReport::CreaColonna(std::span<const GruppoDetector> gruppi) {
    colonna_ = new QWidget(this);
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
    // On a low screen it scrolls.
    auto* scorre = new QScrollArea(this);
    scorre->setFrameShape(QFrame::NoFrame);
    scorre->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scorre->setWidgetResizable(true);
    scorre->setWidget(colonna_);
    scorre->viewport()->setBackgroundRole(QPalette::Window);
    colonna_->setBackgroundRole(QPalette::Window);
    scorre->setFixedWidth(colonna_->sizeHint().width() +
                          scorre->verticalScrollBar()->sizeHint().width());
    return scorre;
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

/// A button that wants a table that is whole.
QPushButton* FinestraReport::CreaUscita(const char* nome, const QString& testo,
                                        const QString& aiuto, std::function<void()> cosa) {
    QPushButton* pulsante = CreaPulsante(QLatin1String(nome), testo, aiuto, this);
    connect(pulsante, &QPushButton::clicked, this, std::move(cosa));
    salva_.push_back(pulsante);
    return pulsante;
}

QLayout* FinestraReport::CreaSalvataggi() {
    auto* riga = new QHBoxLayout;
    riga->setSpacing(8);
    riga->addWidget(CreaDidascalia(tr("Save as"), this));
    for (const VoceSalva& voce : kSalva)
        riga->addWidget(CreaUscita(voce.nome, tr(voce.testo), Q(TitoloSalvaReport(voce.formato)),
                                   [this, formato = voce.formato] { Salva(formato); }));
    riga->addWidget(CreaUscita("CMBSaveAsFreqTab", tr("Frequency Table…"),
                               tr("The frequencies of the rows, for a further measurement"),
                               [this] { SalvaFreqTab(); }));
    riga->addStretch(1);
    return riga;
}

QLayout* FinestraReport::CreaPiede() {
    CMBContinue_ = CreaPulsante(QStringLiteral("CMBContinue"), tr("Continue"), QString(), this);
    CMBContinue_->hide();
    CMBExit_ = CreaPulsante(QStringLiteral("CMBExit"), tr("Exit"), QString(), this);
    CMBExit_->setProperty(kProprietaRuolo, QStringLiteral("accento"));
    connect(CMBExit_, &QPushButton::clicked, this, &FinestraReport::Esci);
    auto* riga = new QHBoxLayout;
    riga->setSpacing(8);
    riga->addWidget(nota_, 1);
    riga->addWidget(CreaUscita("CMBPreview", tr("Preview…"), tr("The pages of the PDF"),
                               [this] { Anteprima(); }));
    riga->addWidget(CMBContinue_);
    riga->addWidget(CMBExit_);
    return riga;
}

} // namespace orvane
