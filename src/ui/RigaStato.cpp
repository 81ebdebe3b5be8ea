#include "ui/RigaStato.h"

#include <QHBoxLayout>

#include "base/Numeri.h"
#include "ui/Moduli.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

constexpr int kParti = 1000;

} // namespace

RigaStato::RigaStato(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FRMStato"));
    freq_ = Nomina(CreaDidascalia(QString(), this), QStringLiteral("LBFreqTrc"),
                   tr("Frequency and level"));
    messaggio_ = Nomina(CreaDidascalia(QString(), this), QStringLiteral("LBStato"), tr("Message"));
    passata_ =
        Nomina(CreaDidascalia(QString(), this), QStringLiteral("LBPassata"), tr("Line and pass"));
    tempo_ = Nomina(CreaDidascalia(QString(), this), QStringLiteral("LBTempo"), tr("Time"));
    barra_ = Nomina(new QProgressBar(this), QStringLiteral("PBSweep"), tr("Progress of the run"));
    barra_->setRange(0, kParti);
    barra_->setTextVisible(false);
    barra_->setFixedWidth(fontMetrics().averageCharWidth() * 34);
    messaggio_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    messaggio_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    freq_->setMinimumWidth(fontMetrics().averageCharWidth() * 28);
    auto* riga = new QHBoxLayout(this);
    riga->setContentsMargins(14, 5, 14, 5);
    riga->setSpacing(14);
    riga->addWidget(freq_);
    riga->addWidget(messaggio_, 1);
    riga->addWidget(passata_);
    riga->addWidget(barra_);
    riga->addWidget(tempo_);
    // One height with the bar and without it.
    setMinimumHeight(fontMetrics().height() + 12);
    CancellaBarre();
}

void RigaStato::MostraFreqLivello(double mhz, double livello, const QString& unita) {
    freq_->setText(
        QStringLiteral("%1    %2 %3").arg(TestoFrequenza(mhz), Q(TestoFisso(livello, 1)), unita));
}

void RigaStato::MostraMarker(const QString& lettura) {
    marker_ = lettura;
    freq_->setText(marker_);
}

void RigaStato::MostraMessaggio(const QString& testo) {
    messaggio_->setText(testo);
    messaggio_->setToolTip(testo);
}

void RigaStato::MostraAvanzamento(const Avanzamento& a) {
    QStringList parti;
    if (!a.nomePassata.empty())
        parti << etichetta_;
    parti << (parti.isEmpty() ? tr("Line %1 of %2") : tr("line %1 of %2"))
                 .arg(a.riga + 1)
                 .arg(a.numRighe);
    if (a.numPassate > 1)
        parti << tr("pass %1 of %2").arg(a.passata + 1).arg(a.numPassate);
    passata_->setText(parti.join(QStringLiteral(" · ")));
    barra_->setValue(static_cast<int>(a.frazione * kParti));
    tempo_->setText(
        a.restanoS < 0
            ? tr("%1 elapsed").arg(TestoDurata(a.trascorsiS))
            : tr("%1 elapsed · %2 left").arg(TestoDurata(a.trascorsiS), TestoDurata(a.restanoS)));
    passata_->show();
    barra_->show();
    tempo_->show();
}

void RigaStato::CancellaBarre() {
    etichetta_.clear();
    passata_->hide();
    barra_->hide();
    barra_->setValue(0);
    tempo_->hide();
}

} // namespace orvane
