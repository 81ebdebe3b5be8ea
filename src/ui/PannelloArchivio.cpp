#include "ui/PannelloArchivio.h"

#include <algorithm>

#include <QFormLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "data/Incompiute.h"
#include "setup/TabellaScan.h"
#include "ui/IconeScan.h"
#include "ui/Moduli.h"
#include "ui/Tema.h"
#include "ui/Testi.h"
#include "ui/VociArchivio.h"

namespace orvane {
namespace {

/// "yyyymmdd hh:mm:ss", which sorts.
std::string ChiaveData(const std::string& data) {
    return data.size() < 19
               ? std::string()
               : data.substr(6, 4) + data.substr(3, 2) + data.substr(0, 2) + data.substr(10);
}

} // namespace

PannelloArchivio::PannelloArchivio(const Scrivania& scrivania, QWidget* padre)
    : QWidget(padre), scrivania_(scrivania) {
    setObjectName(QStringLiteral("FRMArchivio"));
    cerca_ = Nomina(new QLineEdit(this), QStringLiteral("TBCerca"), tr("Search the archive"));
    cerca_->setPlaceholderText(tr("Search name or date"));
    cerca_->setClearButtonEnabled(true);
    lista_ = Nomina(new QListWidget(this), QStringLiteral("CBXSweepsArchive"), tr("Measures"));
    lista_->setFrameShape(QFrame::NoFrame);
    lista_->setItemDelegate(new DelegatoMisura(lista_));
    lista_->setMouseTracking(true);
    lista_->viewport()->setBackgroundRole(QPalette::Window);
    lista_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    CreaAvviso();
    vuota_ = CreaDidascalia(QString(), this);
    vuota_->setWordWrap(true);
    vuota_->setContentsMargins(8, 8, 8, 8);
    detector_ = Nomina(new QComboBox(this), QStringLiteral("CBXDetectorMeasSweep"),
                       tr("Detector of the shown trace"), tr("Which detectors are drawn"));
    dettagli_ = new QLabel(this);
    dettagli_->setObjectName(QStringLiteral("LBDettagli"));
    dettagli_->setWordWrap(true);
    dettagli_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    ImpostaRuoloTesto(*dettagli_, Ruolo::Tenue);

    auto* testa = new QVBoxLayout;
    testa->setContentsMargins(10, 10, 10, 6);
    testa->addWidget(cerca_);
    auto* piede = new QFormLayout;
    piede->setContentsMargins(10, 8, 10, 12);
    piede->setVerticalSpacing(8);
    piede->setHorizontalSpacing(14);
    piede->addRow(CreaTitoletto(tr("Traces"), this));
    piede->addRow(tr("Detector"), detector_);
    piede->addRow(dettagli_);
    accetta_ = CreaPulsante(QStringLiteral("CMBAcceptMeasure"), tr("Accept as it is"),
                            tr("Takes the mark of an incomplete run off this measure"), this);
    piede->addRow(accetta_);
    accetta_->hide();
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(0);
    colonna->addWidget(avviso_);
    colonna->addLayout(testa);
    colonna->addWidget(vuota_);
    colonna->addWidget(lista_, 1);
    colonna->addWidget(CreaFilo(this));
    colonna->addLayout(piede);

    connect(cerca_, &QLineEdit::textChanged, this, &PannelloArchivio::Filtra);
    connect(lista_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* voce) {
        Q_EMIT MisuraScelta(voce ? voce->data(VoceMisura::Nome).toString() : QString());
    });
    connect(accetta_, &QPushButton::clicked, this, &PannelloArchivio::Accetta);
    connect(detector_, &QComboBox::activated, this,
            [this] { Q_EMIT DetectorCambiato(DetectorScelto()); });
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
        if (!nomi.empty())
            Scegli(nomi.front());
    });
}

void PannelloArchivio::MostraIncompiute() {
    const QString nomi = NomiIncompiute(scrivania_.albero);
    avviso_->setVisible(!nomi.isEmpty());
    testoAvviso_->setText(
        tr("Incomplete: %1. The run was cut off; what it had swept is there.").arg(nomi));
}

void PannelloArchivio::Accetta() {
    TogliSegnoCorsa(scrivania_.albero, Scelta());
    accetta_->hide();
    ElencaArchivio();
}

int PannelloArchivio::ElencaArchivio() {
    const QSignalBlocker zitta(lista_);
    const std::string scelta = Scelta();
    auto misure = ElencaMisure(scrivania_);
    if (scrivania_.setup.OrderForDate != 0)
        std::stable_sort(misure.begin(), misure.end(), [](const auto& a, const auto& b) {
            return ChiaveData(a.ultima) > ChiaveData(b.ultima);
        });
    lista_->clear();
    for (const auto& misura : misure)
        lista_->addItem(CreaVoceMisura(misura));
    MostraIncompiute();
    Filtra(cerca_->text());
    Scegli(scelta);
    return lista_->count();
}

bool PannelloArchivio::Scegli(const std::string& nome) {
    for (int i = 0; i < lista_->count(); ++i)
        if (UgualiSenzaMaiuscole(S(lista_->item(i)->data(VoceMisura::Nome).toString()), nome)) {
            lista_->setCurrentRow(i);
            return true;
        }
    return false;
}

std::string PannelloArchivio::Scelta() const {
    const QListWidgetItem* voce = lista_->currentItem();
    return voce ? S(voce->data(VoceMisura::Nome).toString()) : std::string();
}

void PannelloArchivio::Filtra(const QString& cercato) {
    int visibili = 0;
    for (int i = 0; i < lista_->count(); ++i) {
        const bool c = lista_->item(i)
                           ->data(VoceMisura::Cercabile)
                           .toString()
                           .contains(cercato, Qt::CaseInsensitive);
        lista_->item(i)->setHidden(!c);
        visibili += c;
    }
    vuota_->setVisible(visibili == 0);
    vuota_->setText(lista_->count() == 0 ? tr("No measures yet. Run a scan table in the Sweep tab.")
                                         : tr("No measure matches \"%1\".").arg(cercato));
}

void PannelloArchivio::MostraMisura(const MisuraAperta& misura) {
    const QSignalBlocker zitto(detector_);
    detector_->clear();
    detector_->addItem(tr("All"), -1);
    for (size_t d = 0; d < kNumDetector; ++d)
        if (misura.detector[d])
            detector_->addItem(QLatin1String(kNomiDetector[d]), static_cast<int>(d));
    detector_->setEnabled(misura.leggibile && detector_->count() > 2);
    ScriviDettagli(misura);
}

int PannelloArchivio::DetectorScelto() const {
    return detector_->currentIndex() < 0 ? -1 : detector_->currentData().toInt();
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
