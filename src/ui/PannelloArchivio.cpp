#include "ui/PannelloArchivio.h"

#include <algorithm>

#include <QDate>
#include <QFormLayout>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "setup/TabellaScan.h"
#include "ui/Moduli.h"
#include "ui/Tema.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

enum RuoloVoce { Nome = Qt::UserRole, Data, Guasta, Cercabile };

/// "22 Nov" of "dd/mm/yyyy hh:mm:ss"; with the year where it is not this one.
QString DataCorta(const std::string& data) {
    const QDate giorno = QDate::fromString(Q(data).left(10), QStringLiteral("dd/MM/yyyy"));
    if (!giorno.isValid())
        return {};
    const bool quest = giorno.year() == QDate::currentDate().year();
    return QLocale::c().toString(giorno,
                                 quest ? QStringLiteral("d MMM") : QStringLiteral("d MMM yyyy"));
}

/// "yyyymmdd hh:mm:ss", which sorts.
std::string ChiaveData(const std::string& data) {
    return data.size() < 19
               ? std::string()
               : data.substr(6, 4) + data.substr(3, 2) + data.substr(0, 2) + data.substr(10);
}

class DelegatoMisura : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* p, const QStyleOptionViewItem& o, const QModelIndex& i) const override {
        const bool scelta = o.state & QStyle::State_Selected;
        const bool guasta = i.data(Guasta).toBool();
        const QRect riga = o.rect.adjusted(8, 1, -8, -1);
        p->save();
        p->setRenderHint(QPainter::Antialiasing);
        p->setPen(Qt::NoPen);
        if (scelta || o.state & QStyle::State_MouseOver) {
            p->setBrush(Tinta(o.palette, scelta ? Ruolo::Scelta : Ruolo::Sorvolo));
            p->drawRoundedRect(riga, 4, 4);
        }
        QFont piccolo = o.font;
        piccolo.setPointSizeF(piccolo.pointSizeF() * 0.88);
        const QString data = guasta ? QStringLiteral("damaged") : i.data(Data).toString();
        const int largo = QFontMetrics(piccolo).horizontalAdvance(data);
        p->setFont(piccolo);
        p->setPen(Tinta(o.palette, guasta ? Ruolo::Errore : Ruolo::Tenue));
        p->drawText(riga.adjusted(0, 0, -8, 0), Qt::AlignVCenter | Qt::AlignRight, data);
        QFont nome = o.font;
        nome.setWeight(scelta ? QFont::DemiBold : QFont::Normal);
        p->setFont(nome);
        p->setPen(Tinta(o.palette, guasta ? Ruolo::Tenue : Ruolo::Testo));
        const QRect spazio = riga.adjusted(8, 0, -largo - 18, 0);
        p->drawText(
            spazio, Qt::AlignVCenter,
            QFontMetrics(nome).elidedText(i.data(Nome).toString(), Qt::ElideRight, spazio.width()));
        p->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem& o, const QModelIndex&) const override {
        return {o.rect.width(), o.fontMetrics.height() + 12};
    }
};

QListWidgetItem* CreaVoce(const VoceArchivio& misura) {
    auto* voce = new QListWidgetItem;
    voce->setData(Nome, Q(misura.nome));
    voce->setData(Data, DataCorta(misura.ultima));
    voce->setData(Guasta, !misura.leggibile);
    voce->setData(Cercabile, Q(misura.nome + " " + misura.prima + " " + misura.ultima + " ") +
                                 DataCorta(misura.ultima));
    voce->setData(Qt::AccessibleTextRole,
                  Q(misura.nome) + (misura.leggibile ? QString() : QStringLiteral(", damaged")));
    voce->setToolTip(misura.leggibile
                         ? QStringLiteral("%1\n%2 lines, %3 steps, detectors %4")
                               .arg(Q(misura.ultima))
                               .arg(misura.righe)
                               .arg(misura.passi)
                               .arg(Q(misura.detector))
                         : QStringLiteral("The header of this measure is missing or damaged"));
    return voce;
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
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(0);
    colonna->addLayout(testa);
    colonna->addWidget(vuota_);
    colonna->addWidget(lista_, 1);
    colonna->addWidget(CreaFilo(this));
    colonna->addLayout(piede);

    connect(cerca_, &QLineEdit::textChanged, this, &PannelloArchivio::Filtra);
    connect(lista_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* voce) {
        Q_EMIT MisuraScelta(voce ? voce->data(Nome).toString() : QString());
    });
    connect(detector_, &QComboBox::activated, this,
            [this] { Q_EMIT DetectorCambiato(DetectorScelto()); });
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
        lista_->addItem(CreaVoce(misura));
    Filtra(cerca_->text());
    Scegli(scelta);
    return lista_->count();
}

bool PannelloArchivio::Scegli(const std::string& nome) {
    for (int i = 0; i < lista_->count(); ++i)
        if (UgualiSenzaMaiuscole(S(lista_->item(i)->data(Nome).toString()), nome)) {
            lista_->setCurrentRow(i);
            return true;
        }
    return false;
}

std::string PannelloArchivio::Scelta() const {
    const QListWidgetItem* voce = lista_->currentItem();
    return voce ? S(voce->data(Nome).toString()) : std::string();
}

void PannelloArchivio::Filtra(const QString& cercato) {
    int visibili = 0;
    for (int i = 0; i < lista_->count(); ++i) {
        const bool c =
            lista_->item(i)->data(Cercabile).toString().contains(cercato, Qt::CaseInsensitive);
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
    if (misura.nome.empty())
        return dettagli_->clear();
    if (!misura.leggibile)
        return dettagli_->setText(tr("The header of this measure cannot be read."));
    const SetupRecord& setup = misura.header.Setup;
    QStringList righe;
    const size_t linee = RigheInUso(misura.header.Scan.Righe);
    const QString campioni = QString::number(misura.traccia.size());
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
