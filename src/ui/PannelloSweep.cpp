#include "ui/PannelloSweep.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenu>
#include <QStyle>
#include <QVBoxLayout>

#include "base/Numeri.h"
#include "base/Percorsi.h"
#include "base/Testo.h"
#include "data/Panels.h"
#include "setup/ModificaTabella.h"
#include "setup/SceltaBande.h"
#include "ui/Moduli.h"
#include "ui/StileConsole.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

constexpr std::string_view kSenzaNome = "Untitled";

void Vesti(QPushButton* pulsante, const char* ruolo) {
    pulsante->setProperty(kProprietaRuolo, QLatin1String(ruolo));
    pulsante->update();
}

} // namespace

PannelloSweep::PannelloSweep(Scrivania& scrivania, ScanRecord& scan, QWidget* padre)
    : QWidget(padre), scrivania_(scrivania), scan_(scan) {
    setObjectName(QStringLiteral("FRMSweep"));
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(0);
    colonna->addWidget(CreaComandi());
    colonna->addWidget(avvio_ = new SceltaAvvio(this));
    colonna->addWidget(CreaFilo(this));
    griglia_ = new GridScanTab(scan_.Righe, scrivania_.setup, true, this);
    griglia_->setObjectName(QStringLiteral("GridScanTab"));
    griglia_->setMinimumHeight(griglia_->horizontalHeader()->sizeHint().height() +
                               2 * griglia_->verticalHeader()->defaultSectionSize());
    azioni_ = new AzioniScan(*griglia_);
    piede_ = new PiedeScan(*azioni_, this);
    picker_ = new FRMTDScanTab(scrivania_.ambiente, *griglia_, this);
    colonna->addWidget(griglia_, 1);
    colonna->addWidget(piede_);
    CollegaComandi();
    CollegaGriglia();
    MostraCMBPausa(false);
    AbilitaDisabilitaControlli(ControlliDiFase(FaseCorsa::Ferma, true));
}

QWidget* PannelloSweep::CreaComandi() {
    auto* barra = new QWidget(this);
    auto* riga = new QHBoxLayout(barra);
    riga->setContentsMargins(10, 8, 10, 8);
    riga->setSpacing(8);
    esegui_ = CreaPulsante(QStringLiteral("CMBExecuteSweep"), tr("Execute"),
                           tr("Runs the scan table (F5)"), barra);
    esegui_->setShortcut(QKeySequence(Qt::Key_F5));
    esegui_->setMinimumWidth(esegui_->fontMetrics().horizontalAdvance(tr("Execute")) + 40);
    pausa_ = CreaPulsante(QStringLiteral("CMBPauseSweep"), tr("Pause"), tr("Holds the sweep (F6)"),
                          barra);
    tabelle_ = Nomina(new QComboBox(barra), QStringLiteral("CBXScanTab"), tr("Scan table"),
                      tr("Choose a scan table; a new name and Enter keep a copy under it"));
    tabelle_->setEditable(true);
    tabelle_->setInsertPolicy(QComboBox::NoInsert);
    tabelle_->setMinimumContentsLength(11);
    nuova_ = CreaPulsante(QStringLiteral("CMBNewScanTab"), tr("New"),
                          tr("Begins an empty scan table"), barra);
    cancella_ = CreaPulsante(QStringLiteral("CMBDeleteScanTab"), tr("Delete"),
                             tr("Deletes this scan table"), barra);
    banda_ = CreaPulsante(QStringLiteral("CMBAddBanda"), tr("Add band"),
                          tr("Appends the lines of a standard band"), barra);
    CreaBande(banda_);
    misura_ = Nomina(new QLineEdit(Q(kSenzaNome), barra), QStringLiteral("TBMisura"),
                     tr("Measure name"), tr("Name under which the measure is stored"));
    misura_->setMaxLength(60);
    misura_->setMaximumWidth(misura_->fontMetrics().averageCharWidth() * 30);
    misura_->setMinimumWidth(misura_->fontMetrics().averageCharWidth() * 14);
    riga->addWidget(esegui_);
    riga->addWidget(pausa_);
    riga->addSpacing(8);
    riga->addWidget(CreaDidascalia(tr("Scan table"), barra));
    for (QWidget* pezzo : {static_cast<QWidget*>(tabelle_), static_cast<QWidget*>(nuova_),
                           static_cast<QWidget*>(cancella_), static_cast<QWidget*>(banda_)})
        riga->addWidget(pezzo);
    riga->addSpacing(8);
    riga->addWidget(CreaDidascalia(tr("Measure"), barra));
    riga->addWidget(misura_, 1);
    riga->addStretch(1);
    return barra;
}

void PannelloSweep::CreaBande(QPushButton* pulsante) {
    auto* menu = new QMenu(pulsante);
    for (const VoceBanda& banda : TabellaBande()) {
        if (!banda.elencata)
            continue;
        if (banda.startMhz == 0) {
            menu->addSeparator();
            continue;
        }
        menu->addAction(Q(banda.nome), this, [this, &banda] {
            if (AggiungiBanda(scan_.Righe, banda, AncillaryDi(scrivania_.setup)))
                SalvaTabella();
            else
                Rifiuta(tr("A scan table has ten lines at most"));
        });
    }
    pulsante->setMenu(menu);
}

void PannelloSweep::CollegaComandi() {
    connect(esegui_, &QPushButton::clicked, this, &PannelloSweep::Esegui);
    connect(pausa_, &QPushButton::clicked, this, &PannelloSweep::Pausa);
    connect(nuova_, &QPushButton::clicked, this, &PannelloSweep::NuovaTabella);
    connect(cancella_, &QPushButton::clicked, this, &PannelloSweep::CancellaTabella);
    connect(tabelle_, &QComboBox::textActivated, this, &PannelloSweep::ScegliTabella);
    connect(tabelle_->lineEdit(), &QLineEdit::returnPressed, this,
            [this] { ScegliTabella(tabelle_->currentText()); });
    tabelle_->lineEdit()->installEventFilter(this);
}

void PannelloSweep::Carica() {
    ElencaTabelle();
    AggiornaGriglia();
    if (isVisible() && !griglia_->currentIndex().isValid())
        griglia_->VaiAllaCella(0, ColonnaScan::Start);
}

void PannelloSweep::AbilitaDisabilitaControlli(const ControlliFase& controlli) {
    const bool ferma = controlli.fermi;
    esegui_->setText(QLatin1String(controlli.esegui));
    pausa_->setText(QLatin1String(controlli.pausa));
    // A new caption drops the shortcut.
    esegui_->setShortcut(QKeySequence(Qt::Key_F5));
    pausa_->setShortcut(QKeySequence(Qt::Key_F6));
    esegui_->setEnabled(controlli.eseguiVivo);
    pausa_->setEnabled(controlli.pausaViva);
    Vesti(esegui_, ferma ? "accento" : "stop");
    for (QWidget* pezzo : {static_cast<QWidget*>(tabelle_), static_cast<QWidget*>(nuova_),
                           static_cast<QWidget*>(cancella_), static_cast<QWidget*>(banda_),
                           static_cast<QWidget*>(misura_), static_cast<QWidget*>(avvio_),
                           static_cast<QWidget*>(&piede_->Bande())})
        pezzo->setEnabled(ferma);
    ferma_ = ferma;
    griglia_->Modello().ImpostaModificabile(ferma);
    azioni_->Aggiorna();
    picker_->Aggiorna();
    if (ferma)
        RinnovaEsame();
}

std::string PannelloSweep::Misura() const {
    const std::string nome = Rifila(S(misura_->text()));
    return nome.empty() ? std::string(kSenzaNome) : nome;
}

void PannelloSweep::ImpostaMisura(const std::string& nome) {
    misura_->setText(Q(nome));
}

void PannelloSweep::ElencaTabelle() {
    tabelle_->clear();
    for (const auto& file : scrivania_.albero.ElencaFile("Panels\\", "EST"))
        tabelle_->addItem(Q(RimuoviEstensione(file)));
    const QString corrente = Q(EstraiNomeFile(scrivania_.env.ScanPanelPath));
    const int qui = tabelle_->findText(corrente, Qt::MatchFixedString);
    tabelle_->setCurrentIndex(qui);
    if (qui < 0)
        tabelle_->setEditText(corrente);
}

/// A name that is there is loaded; a new one keeps what the grid holds.
void PannelloSweep::ScegliTabella(const QString& testo) {
    const std::string nome = ControllaNomeMisura(Rifila(S(testo)));
    if (nome.empty())
        return ElencaTabelle();
    const std::string percorso = PercorsoPannello(nome, "EST");
    if (UgualiSenzaMaiuscole(percorso, scrivania_.env.ScanPanelPath))
        return ElencaTabelle();
    ScanRecord scelta = scan_;
    if (scrivania_.albero.Esiste(percorso))
        CaricaPanelEST(scrivania_, percorso, scelta);
    Imposta(scelta, nome);
}

void PannelloSweep::Imposta(const ScanRecord& scan, const std::string& nome) {
    scan_ = scan;
    scrivania_.env.ScanPanelPath = PercorsoPannello(nome, "EST");
    SalvaPanelEPN(scrivania_, kPannelloEPN);
    SalvaTabella();
    ElencaTabelle();
}

void PannelloSweep::NuovaTabella() {
    std::string nome;
    for (int i = 1; nome.empty() || scrivania_.albero.Esiste(PercorsoPannello(nome, "EST")); ++i)
        nome = "New table " + TestoIntero(i);
    Imposta({}, nome);
    tabelle_->lineEdit()->selectAll();
    griglia_->VaiAllaCella(0, ColonnaScan::Start);
}

void PannelloSweep::CancellaTabella() {
    const std::string nome = EstraiNomeFile(scrivania_.env.ScanPanelPath);
    if (scrivania_.ambiente.Mostra(DomandaCancella(nome)) != Risposta::Si)
        return;
    scrivania_.albero.Cancella(scrivania_.env.ScanPanelPath);
    const auto restano = scrivania_.albero.ElencaFile("Panels\\", "EST");
    ScanRecord scelta;
    const std::string altra =
        restano.empty() ? std::string(kSenzaNome) : RimuoviEstensione(restano.front());
    if (!restano.empty())
        CaricaPanelEST(scrivania_, PercorsoPannello(altra, "EST"), scelta);
    Imposta(scelta, altra);
}

} // namespace orvane
