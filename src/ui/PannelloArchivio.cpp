#include "ui/PannelloArchivio.h"

#include <QFormLayout>
#include <QMenu>
#include <QScrollArea>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>

#include "base/Numeri.h"
#include "data/Cartelle.h"
#include "data/Incompiute.h"
#include "platform/qt/SuperficieQt.h"
#include "records/ColoriGrafico.h"
#include "setup/TabellaScan.h"
#include "ui/IconeScan.h"
#include "ui/Moduli.h"
#include "ui/Tema.h"
#include "ui/Testi.h"
#include "ui/VociArchivio.h"

namespace orvane {
namespace {

constexpr int kRinnovoMs = 300;

} // namespace

PannelloArchivio::PannelloArchivio(const Scrivania& scrivania, QWidget* padre)
    : QWidget(padre), scrivania_(scrivania) {
    setObjectName(QStringLiteral("FRMArchivio"));
    CreaAvviso();
    CreaElenco();
    auto* sopra = new QWidget(this);
    auto* elenco = new QVBoxLayout(sopra);
    elenco->setContentsMargins(0, 0, 0, 0);
    elenco->setSpacing(0);
    auto* testa = new QVBoxLayout;
    testa->setContentsMargins(10, 10, 10, 6);
    testa->addWidget(cerca_);
    elenco->addWidget(avviso_);
    elenco->addLayout(testa);
    elenco->addWidget(vuota_);
    elenco->addWidget(lista_, 1);
    sopra->setMinimumHeight(7 * (fontMetrics().height() + 12));
    auto* divisore = new QSplitter(Qt::Vertical, this);
    divisore->setObjectName(QStringLiteral("SplitArchivio"));
    divisore->setChildrenCollapsible(false);
    divisore->addWidget(sopra);
    divisore->addWidget(CreaDettagli());
    divisore->setStretchFactor(0, 1);
    divisore->setSizes({300, 400});
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->addWidget(divisore);
    rinnovo_.setSingleShot(true);
    rinnovo_.setInterval(kRinnovoMs);
    connect(&rinnovo_, &QTimer::timeout, this, &PannelloArchivio::RinnovoChiesto);
    connect(&file_, &QFileSystemWatcher::directoryChanged, &rinnovo_, qOverload<>(&QTimer::start));
    auto* tasto = new QShortcut(QKeySequence(Qt::Key_F5), this);
    connect(tasto, &QShortcut::activated, this, &PannelloArchivio::RinnovoChiesto);
}

void PannelloArchivio::CreaElenco() {
    cerca_ = Nomina(new QLineEdit(this), QStringLiteral("TBCerca"), tr("Search the archive"));
    cerca_->setPlaceholderText(tr("Search name, date, comment"));
    cerca_->setClearButtonEnabled(true);
    modello_ = new ModelloArchivio(scrivania_, this);
    lista_ = Nomina(new ElencoMisure(this), QStringLiteral("CBXSweepsArchive"), tr("Measures"));
    lista_->setModel(modello_);
    vuota_ = CreaDidascalia(QString(), this);
    vuota_->setWordWrap(true);
    vuota_->setContentsMargins(8, 8, 8, 8);
    connect(cerca_, &QLineEdit::textChanged, modello_, &ModelloArchivio::Filtra);
    connect(modello_, &ModelloArchivio::Rinnovata, this, [this] {
        Scegli(scelta_);
        vuota_->setVisible(modello_->rowCount() == 0);
        vuota_->setText(modello_->Quante() == 0
                            ? tr("No measures yet. Run a scan table in the Sweep tab.")
                            : tr("No measure matches \"%1\".").arg(cerca_->text()));
    });
    connect(lista_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& riga) {
                if (!riga.isValid())
                    return;
                scelta_ = modello_->Nome(riga.row());
                Q_EMIT MisuraScelta(Q(scelta_));
            });
    connect(lista_, &ElencoMisure::Passo, this, &PannelloArchivio::Passo);
    connect(lista_, &ElencoMisure::Cancella, this, [this] {
        if (!scelta_.empty())
            Q_EMIT Chiesta(AzioneMisura::Cancella, Q(scelta_));
    });
    connect(lista_, &ElencoMisure::MenuChiesto, this, &PannelloArchivio::ApriMenu);
}

/// Beneath the list, and scrolled where the window is low.
QWidget* PannelloArchivio::CreaDettagli() {
    auto* area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    auto* dentro = new QWidget(area);
    for (QWidget* fondo : {area->viewport(), dentro})
        fondo->setBackgroundRole(QPalette::Window);
    detector_ = Nomina(new QComboBox(dentro), QStringLiteral("CBXDetectorMeasSweep"),
                       tr("Detector of the shown trace"), tr("Which detectors are drawn"));
    albero_ = Nomina(new AlberoMisura(dentro), QStringLiteral("TreeViewFileSweep"),
                     tr("Traces of the measure"));
    titoloSovrapposte_ = CreaTitoletto(tr("Overlay"), dentro);
    sovrapposte_ = Nomina(new Sovrapposte(dentro), QStringLiteral("LSTOverlay"), tr("Overlay"));
    verdetto_ = new PannelloVerdetto(dentro);
    dettagli_ = new QLabel(dentro);
    dettagli_->setObjectName(QStringLiteral("LBDettagli"));
    dettagli_->setWordWrap(true);
    dettagli_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    ImpostaRuoloTesto(*dettagli_, Ruolo::Tenue);
    accetta_ = CreaPulsante(QStringLiteral("CMBAcceptMeasure"), tr("Accept as it is"),
                            tr("Takes the mark of an incomplete run off this measure"), dentro);
    accetta_->hide();
    auto* colonna = new QVBoxLayout(dentro);
    colonna->setContentsMargins(10, 10, 10, 12);
    colonna->setSpacing(8);
    auto* testa = new QHBoxLayout;
    testa->addWidget(CreaTitoletto(tr("Traces"), dentro), 1);
    testa->addWidget(detector_, 1);
    colonna->addLayout(testa);
    for (QWidget* w : std::initializer_list<QWidget*>{albero_, titoloSovrapposte_, sovrapposte_,
                                                      verdetto_, dettagli_, accetta_})
        colonna->addWidget(w);
    colonna->addStretch(1);
    area->setWidget(dentro);
    connect(accetta_, &QPushButton::clicked, this, &PannelloArchivio::Accetta);
    connect(detector_, &QComboBox::activated, this,
            [this] { Q_EMIT DetectorCambiato(DetectorScelto()); });
    connect(albero_, &AlberoMisura::NodoScelto, this, &PannelloArchivio::NodoScelto);
    connect(sovrapposte_, &Sovrapposte::Accesa, this, &PannelloArchivio::SovrappostaAccesa);
    connect(sovrapposte_, &Sovrapposte::Tolta, this, &PannelloArchivio::SovrappostaTolta);
    return area;
}

/// What stands over the list while a run of the past has not come to its end.
void PannelloArchivio::CreaAvviso() {
    avviso_ = new QWidget(this);
    avviso_->setObjectName(QStringLiteral("FRMIncompiute"));
    auto* segno = new QLabel(avviso_);
    segno->setPixmap(IconaScan(SegnoScan::Avviso).pixmap(QSize(18, 18)));
    testoAvviso_ =
        Nomina(new QLabel(avviso_), QStringLiteral("LBIncompiute"), tr("Incomplete measures"));
    testoAvviso_->setWordWrap(true);
    auto* mostra = CreaPulsante(QStringLiteral("CMBShowIncomplete"), tr("Show"),
                                tr("Opens the first of them"), avviso_);
    auto* riga = new QHBoxLayout(avviso_);
    riga->setContentsMargins(12, 10, 10, 2);
    riga->setSpacing(8);
    riga->addWidget(segno, 0, Qt::AlignTop);
    riga->addWidget(testoAvviso_, 1);
    riga->addWidget(mostra, 0, Qt::AlignTop);
    connect(mostra, &QPushButton::clicked, this, [this] {
        const auto nomi = MisureIncompiute(scrivania_.albero);
        cerca_->clear();
        if (!nomi.empty() && Scegli(nomi.front()))
            Q_EMIT MisuraScelta(Q(nomi.front()));
    });
}

void PannelloArchivio::MostraIncompiute() {
    const QString nomi = NomiIncompiute(scrivania_.albero);
    avviso_->setVisible(!nomi.isEmpty());
    testoAvviso_->setText(tr("Incomplete: %1").arg(nomi));
    testoAvviso_->setToolTip(tr("The run was cut off; what it had swept is there"));
}

void PannelloArchivio::Accetta() {
    TogliSegnoCorsa(scrivania_.albero, mostrata_);
    accetta_->hide();
    Q_EMIT RinnovoChiesto();
}

/// The directory of the measures; while it is not there, the one that it will be made in.
void PannelloArchivio::Sorveglia() {
    for (const std::string_view percorso : {std::string_view(), cartella::kSweep}) {
        const QString dove = QString::fromStdString(scrivania_.albero.Host(percorso).string());
        if (!file_.directories().contains(dove) && QFileInfo::exists(dove))
            file_.addPath(dove);
    }
}

void PannelloArchivio::MostraElenco(const std::vector<std::string>& nomi) {
    Sorveglia();
    modello_->Elenca(nomi);
    MostraIncompiute();
}

bool PannelloArchivio::Scegli(const std::string& nome) {
    const QSignalBlocker zitta(lista_->selectionModel());
    scelta_ = nome;
    const int riga = modello_->Riga(nome);
    lista_->setCurrentIndex(modello_->index(riga));
    // What the silence kept from the list.
    lista_->scrollTo(modello_->index(riga));
    lista_->viewport()->update();
    return riga >= 0;
}

void PannelloArchivio::Passo(int verso) {
    const int qui = lista_->currentIndex().isValid() ? lista_->currentIndex().row() : -1;
    const int nuova = std::clamp(qui + verso, 0, std::max(0, modello_->rowCount() - 1));
    if (nuova != qui && modello_->rowCount() > 0)
        lista_->setCurrentIndex(modello_->index(nuova));
}

/// Of the measure on show: what can be laid over it is asked for; of another: it is laid over.
void PannelloArchivio::ApriMenu(const QModelIndex& riga, const QPoint& dove) {
    const QString nome = riga.data(VoceMisura::Nome).toString();
    const bool altra = !mostrata_.empty() && S(nome) != mostrata_;
    struct VoceMenu {
        AzioneMisura azione;
        QString testo;
    };
    const QString ancora = altra ? QString() : QStringLiteral("…");
    const VoceMenu voci[] = {
        {AzioneMisura::Redo, tr("Open in Sweep")},
        {AzioneMisura::Confronta,
         altra ? tr("Compare with %1").arg(Q(mostrata_)) : tr("Compare With…")},
        {AzioneMisura::Sovrapponi, tr("Overlay") + ancora},
        {AzioneMisura::Cancella, tr("Delete…")},
    };
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("MNUMeasure"));
    for (const VoceMenu& voce : voci) {
        QAction* azione = menu.addAction(voce.testo);
        connect(azione, &QAction::triggered, this,
                [this, nome, quale = voce.azione] { Q_EMIT Chiesta(quale, nome); });
    }
    menu.exec(dove);
}

void PannelloArchivio::MostraMisura(const StatoArchivio& archivio, const RegiaMisura& regia) {
    mostrata_ = archivio.misura.nome;
    const AbilitazioniArchivio abilita = ControllaAbilitazioniArchivio(archivio);
    albero_->Mostra(archivio.albero, archivio.nodo);
    albero_->setVisible(!archivio.albero.empty());
    MostraDetector(archivio);
    detector_->setEnabled(abilita.CBXDetectorMeasSweep && detector_->count() > 2);
    MostraSovrapposte(archivio, regia);
    verdetto_->Carica(scrivania_.setup);
    verdetto_->setVisible(archivio.Mostrata());
    ScriviDettagli(archivio.misura);
}

void PannelloArchivio::MostraDetector(const StatoArchivio& archivio) {
    const QSignalBlocker zitto(detector_);
    detector_->clear();
    detector_->addItem(tr("All"), kTuttiDetector);
    for (size_t d = 0; d < kNumDetector; ++d)
        if (archivio.misura.detector[d])
            detector_->addItem(QLatin1String(kNomiDetector[d]), static_cast<int>(d));
    detector_->setCurrentIndex(std::max(0, detector_->findData(archivio.detector)));
}

void PannelloArchivio::MostraSovrapposte(const StatoArchivio& archivio, const RegiaMisura& regia) {
    using Genere = Sovrapposte::Genere;
    std::vector<Sovrapposte::Voce> voci;
    const auto aggiungi = [&](Genere genere, const std::string& nome, const QString& testo,
                              int32_t colore) {
        voci.push_back({genere, Q(nome), testo, ColoreQt(colore), regia.Accesa(genere, nome)});
    };
    if (archivio.riferimento) {
        const std::string& nome = archivio.riferimento->nome;
        const EnvRecord& env = scrivania_.env;
        aggiungi(Genere::Riferimento, nome, tr("Reference: %1").arg(Q(nome)),
                 env.GraphColors[colore::kDetRefMeas]);
        aggiungi(Genere::Differenza, nome, tr("Difference"), env.GraphColors[colore::kPicchi]);
    }
    for (size_t i = 0; i < archivio.sovrapposte.size(); ++i) {
        const std::string& nome = archivio.sovrapposte[i].nome;
        aggiungi(Genere::Misura, nome, Q(nome), StratoSopra(archivio, i, scrivania_.env).colori[0]);
    }
    sovrapposte_->Mostra(voci);
    sovrapposte_->setVisible(!voci.empty());
    titoloSovrapposte_->setVisible(!voci.empty());
}

int PannelloArchivio::DetectorScelto() const {
    return detector_->currentIndex() < 0 ? kTuttiDetector : detector_->currentData().toInt();
}

void PannelloArchivio::ScriviDettagli(const MisuraAperta& misura) {
    const bool incompiuta =
        !misura.nome.empty() && MisuraIncompiuta(scrivania_.albero, misura.nome);
    accetta_->setVisible(incompiuta);
    if (misura.nome.empty())
        return dettagli_->clear();
    if (!misura.leggibile)
        return dettagli_->setText(tr("The header of this measure cannot be read."));
    const SetupRecord& setup = misura.header.Setup;
    QStringList righe;
    if (incompiuta)
        righe << tr("Incomplete: its run was cut off");
    else if (MisuraInCorso(scrivania_.albero, misura.nome))
        righe << tr("Its run is on");
    const size_t linee = RigheInUso(misura.header.Scan.Righe);
    const QString campioni = QString::number(misura.traccia->size());
    righe << (linee == 1 ? tr("%1 samples in one line").arg(campioni)
                         : tr("%1 samples in %2 lines").arg(campioni).arg(linee));
    if (misura.stopMhz > 0)
        righe << tr("%1 to %2 MHz")
                     .arg(Q(TestoDaNumero(misura.startMhz)), Q(TestoDaNumero(misura.stopMhz)));
    if (!setup.ModelText.empty())
        righe << tr("Receiver %1  FW %2").arg(Q(setup.ModelText), TestoFirmware(setup.FwRelease));
    if (!setup.SerialA.empty())
        righe << tr("S/N %1").arg(Q(setup.SerialA + setup.SerialB));
    dettagli_->setText(righe.join(QLatin1Char('\n')));
}

} // namespace orvane
