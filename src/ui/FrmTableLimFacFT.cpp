#include "ui/FrmTableLimFacFT.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>

#include "base/Percorsi.h"
#include "records/LimFacRecord.h"
#include "records/Unita.h"
#include "ui/Moduli.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

/// In the unit that was used last.
ContenutoTabella TabellaNuova(TableKind kind, const SetupRecord& setup) {
    return {.kind = kind, .unitId = setup.TableUnitId};
}

} // namespace

FrmTableLimFacFT::FrmTableLimFacFT(Console& console, TableKind kind, std::string daCaricare,
                                   QWidget* padre)
    : QDialog(padre), console_(console), modifica_(TabellaNuova(kind, console.scrivania.setup)),
      daCaricare_(std::move(daCaricare)) {
    setObjectName(QStringLiteral("FrmTableLimFacFT"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 12, 0, 12);
    colonna->setSpacing(10);
    colonna->addLayout(CreaBarraFile());
    if (LimiteOFattore(kind))
        colonna->addLayout(CreaIntestazione());
    colonna->addWidget(CreaFilo(this));
    colonna->addWidget(CreaCentro(), 1);
    colonna->addWidget(CreaFilo(this));
    colonna->addLayout(CreaPiede());
    CollegaGriglia();
    CreaScorciatoie();
    MostraContenuto();
    TornaAllaGriglia();
    griglia_->VaiA(0, 0);
    timerAutoOpen_.setObjectName(QStringLiteral("TimerAutoOpenFT"));
    timerAutoOpen_.setSingleShot(true);
    connect(&timerAutoOpen_, &QTimer::timeout, this, [this] { CaricaDa(daCaricare_); });
    if (!daCaricare_.empty())
        timerAutoOpen_.start(0);
    const int m = fontMetrics().averageCharWidth();
    const QSize posto = screen()->availableSize() * 0.94;
    resize(QSize(m * 150, fontMetrics().height() * 36).boundedTo(posto));
}

QLayout* FrmTableLimFacFT::CreaBarraFile() {
    auto* riga = new QHBoxLayout;
    riga->setContentsMargins(14, 0, 14, 0);
    riga->setSpacing(8);
    const auto pulsante = [&](const char* nome, const QString& testo, const QString& aiuto,
                              void (FrmTableLimFacFT::*cosa)()) {
        auto* p = CreaPulsante(QLatin1String(nome), testo, aiuto, this);
        riga->addWidget(p);
        connect(p, &QPushButton::clicked, this, cosa);
    };
    pulsante("CMBLoadFT", tr("Load…"), tr("Opens a table (Ctrl+O)"), &FrmTableLimFacFT::Carica);
    auto* salva = CreaPulsante(QStringLiteral("CMBSaveFTAs"), tr("Save As…"),
                               tr("Saves the complete rows (Ctrl+S)"), this);
    connect(salva, &QPushButton::clicked, this, [this] { Salva(false); });
    riga->addWidget(salva);
    riga->addSpacing(14);
    pulsante("CMBLoadFromTXTFT", tr("Import Text…"), tr("Adds the points of a text file"),
             &FrmTableLimFacFT::ImportaTesto);
    pulsante("CMBSaveFTAsText", tr("As Text…"), tr("Saves the points as a text file"),
             &FrmTableLimFacFT::SalvaTesto);
    pulsante("CMBSaveFTAsPDF", tr("As PDF…"), tr("Saves the points as pages to print"),
             &FrmTableLimFacFT::SalvaPDF);
    pulsante("CMBSaveFTAsRTF", tr("As RTF…"), tr("Saves the points for a word processor"),
             &FrmTableLimFacFT::SalvaRTF);
    riga->addStretch(1);
    if (LimiteOFattore(modifica_.Contenuto().kind))
        pulsante("CMBStoreCFL", tr("Upload to receiver…"),
                 tr("Stores the table in a memory of the receiver"),
                 &FrmTableLimFacFT::CaricaNelRicevitore);
    else
        AggiungiUnita(*riga);
    return riga;
}

void FrmTableLimFacFT::AggiungiUnita(QHBoxLayout& riga) {
    unita_ = Nomina(new QComboBox(this), QStringLiteral("CBXUMTableLim"), tr("Unit of the levels"),
                    tr("The levels are shown and typed in this unit"));
    for (const VoceUnita& unita : TabellaUnitaGrafico())
        unita_->addItem(Q(unita.testo));
    connect(unita_, &QComboBox::activated, this, &FrmTableLimFacFT::CambiaUnita);
    riga.addSpacing(8);
    riga.addWidget(CreaDidascalia(tr("Unit"), this));
    riga.addWidget(unita_);
}

QLayout* FrmTableLimFacFT::CreaIntestazione() {
    auto* riga = new QHBoxLayout;
    riga->setContentsMargins(14, 0, 14, 0);
    riga->setSpacing(10);
    const TableKind kind = modifica_.Contenuto().kind;
    titolo_ = Nomina(new QLineEdit(this), QStringLiteral("TBTitleFT"), tr("Title"),
                     tr("Title of the table, kept in its file"));
    titolo_->setMaxLength(static_cast<int>(kLarghezzaTitolo));
    connect(titolo_, &QLineEdit::editingFinished, this, &FrmTableLimFacFT::CambiaTitolo);
    connect(titolo_, &QLineEdit::returnPressed, this, &FrmTableLimFacFT::TornaAllaGriglia);
    riga->addWidget(CreaDidascalia(tr("Title"), this));
    riga->addWidget(titolo_, 1);
    AggiungiUnita(*riga);
    if (kind == TableKind::Limite) {
        lineare_ = Nomina(new QCheckBox(tr("Linear frequency axis"), this),
                          QStringLiteral("CHKBoxLimLin"), tr("Linear frequency axis"),
                          tr("The limit is straight on a linear axis between its points, "
                             "otherwise on a logarithmic one"));
        connect(lineare_, &QCheckBox::clicked, this, [this](bool si) {
            Conferma();
            ContenutoTabella c = Copia();
            c.linFreq = si;
            Applica(std::move(c));
        });
        riga->addSpacing(8);
        riga->addWidget(lineare_);
    }
    return riga;
}

QWidget* FrmTableLimFacFT::CreaCentro() {
    auto* centro = new QSplitter(Qt::Horizontal, this);
    centro->setChildrenCollapsible(false);
    auto* sinistra = new QWidget(centro);
    auto* colonna = new QVBoxLayout(sinistra);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(0);
    griglia_ = new TabFreqTable(modifica_, sinistra);
    rimuovi_ = CreaPulsante(QStringLiteral("CMBRemoveRowTab"), tr("Remove Row"),
                            tr("Removes the chosen rows (Ctrl+Del)"), sinistra);
    annulla_ =
        CreaPulsante(QStringLiteral("CMBUndo"), tr("Undo"), tr("One step back (Ctrl+Z)"), sinistra);
    ripristina_ = CreaPulsante(QStringLiteral("CMBRedo"), tr("Redo"), tr("One step forth (Ctrl+Y)"),
                               sinistra);
    connect(rimuovi_, &QPushButton::clicked, this, &FrmTableLimFacFT::RimuoviScelte);
    connect(annulla_, &QPushButton::clicked, this, &FrmTableLimFacFT::Annulla);
    connect(ripristina_, &QPushButton::clicked, this, &FrmTableLimFacFT::Ripristina);
    auto* riga = new QHBoxLayout;
    riga->setContentsMargins(14, 8, 10, 8);
    riga->setSpacing(8);
    riga->addWidget(rimuovi_);
    riga->addStretch(1);
    riga->addWidget(annulla_);
    riga->addWidget(ripristina_);
    colonna->addWidget(griglia_, 1);
    colonna->addWidget(CreaFilo(sinistra));
    colonna->addLayout(riga);
    quadro_ = new QuadroTabella(console_.scrivania.env, centro);
    const int m = fontMetrics().averageCharWidth();
    sinistra->setMinimumWidth(44 * m);
    centro->addWidget(sinistra);
    centro->addWidget(quadro_);
    centro->setStretchFactor(1, 1);
    centro->setSizes({56 * m, 94 * m});
    return centro;
}

QLayout* FrmTableLimFacFT::CreaPiede() {
    auto* riga = new QHBoxLayout;
    riga->setContentsMargins(14, 0, 14, 0);
    stato_ = CreaDidascalia(QString(), this);
    stato_->setObjectName(QStringLiteral("LBStatoFT"));
    auto* esci = CreaPulsante(QStringLiteral("CMBExitFT"), tr("Exit"), tr("Leaves (Esc)"), this);
    connect(esci, &QPushButton::clicked, this, &FrmTableLimFacFT::reject);
    riga->addWidget(stato_, 1);
    riga->addWidget(esci);
    return riga;
}

void FrmTableLimFacFT::CreaScorciatoie() {
    const auto tasti = [this](QKeySequence quali, void (FrmTableLimFacFT::*cosa)()) {
        connect(new QShortcut(quali, this), &QShortcut::activated, this, cosa);
    };
    tasti(QKeySequence(Qt::CTRL | Qt::Key_Z), &FrmTableLimFacFT::Annulla);
    tasti(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), &FrmTableLimFacFT::Ripristina);
    tasti(QKeySequence(Qt::CTRL | Qt::Key_Y), &FrmTableLimFacFT::Ripristina);
    tasti(QKeySequence(Qt::CTRL | Qt::Key_O), &FrmTableLimFacFT::Carica);
    auto* salva = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_S), this);
    connect(salva, &QShortcut::activated, this, [this] { Salva(false); });
}

void FrmTableLimFacFT::CollegaGriglia() {
    ModelloTabella& modello = griglia_->Modello();
    connect(&modello, &ModelloTabella::Modificata, this, &FrmTableLimFacFT::MostraContenuto);
    // The cell closes first: a box over an open one would make it commit again.
    connect(
        &modello, &ModelloTabella::Rifiutata, this,
        [this](int esito) {
            AvvisaModifica(console_.scrivania.ambiente, static_cast<EsitoModifica>(esito),
                           modifica_.Contenuto().kind);
        },
        Qt::QueuedConnection);
    connect(griglia_, &TabFreqTable::RigaCambiata, this, &FrmTableLimFacFT::MostraQuadro);
    connect(griglia_, &TabFreqTable::Copia, this, &FrmTableLimFacFT::CopiaScelte);
    connect(griglia_, &TabFreqTable::Incolla, this, &FrmTableLimFacFT::Incolla);
    connect(griglia_, &TabFreqTable::SvuotaCelle, this, &FrmTableLimFacFT::SvuotaScelte);
    connect(griglia_, &TabFreqTable::RimuoviScelte, this, &FrmTableLimFacFT::RimuoviScelte);
}

void FrmTableLimFacFT::MostraContenuto() {
    const ContenutoTabella& c = modifica_.Contenuto();
    griglia_->Modello().Aggiorna();
    if (titolo_)
        titolo_->setText(Q(c.titolo));
    unita_->setCurrentIndex(c.unitId);
    if (lineare_)
        lineare_->setChecked(c.linFreq);
    annulla_->setEnabled(modifica_.PuoAnnullare());
    ripristina_->setEnabled(modifica_.PuoRipristinare());
    rimuovi_->setEnabled(!c.righe.empty());
    setWindowTitle(Q(TitoloFinestraTabella(c.kind)) + NomeTabella() + QStringLiteral("[*]"));
    setWindowModified(modifica_.DaSalvare());
    Messaggio({});
    MostraQuadro();
}

void FrmTableLimFacFT::MostraQuadro() {
    const QModelIndex qui = griglia_->currentIndex();
    quadro_->Mostra(modifica_.Contenuto(),
                    qui.isValid() ? std::optional(static_cast<size_t>(qui.row())) : std::nullopt);
}

/// Behind the count of the points.
void FrmTableLimFacFT::Messaggio(const QString& testo) {
    const ContenutoTabella& c = modifica_.Contenuto();
    const size_t complete = ControllaRigaCompFreqTab(c);
    const size_t altre = c.righe.size() - complete;
    QStringList pezzi{TestoPunti(complete)};
    if (altre > 0)
        pezzi << (altre == 1 ? tr("1 incomplete row is not saved")
                             : tr("%1 incomplete rows are not saved").arg(altre));
    if (!testo.isEmpty())
        pezzi << testo;
    stato_->setText(pezzi.join(QStringLiteral("  ·  ")));
}

QString FrmTableLimFacFT::NomeTabella() const {
    return percorso_.empty() ? tr("Untitled") : Q(EstraiNomeFile(percorso_));
}

void FrmTableLimFacFT::TornaAllaGriglia() {
    griglia_->setFocus();
}

} // namespace orvane
