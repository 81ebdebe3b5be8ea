#include "ui/PannelloVerdetto.h"

#include <QFormLayout>

#include "base/Numeri.h"
#include "records/ScanRecord.h"
#include "ui/Moduli.h"
#include "ui/Tema.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

constexpr double kMassimaDb = 99;

Ruolo RuoloDi(Giudizio giudizio) {
    switch (giudizio) {
    case Giudizio::Pass:
        return Ruolo::Bene;
    case Giudizio::Fail:
        return Ruolo::Errore;
    default:
        return Ruolo::Tenue;
    }
}

} // namespace

PannelloVerdetto::PannelloVerdetto(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FRMVerdict"));
    auto* moduli = new QFormLayout(this);
    moduli->setContentsMargins(0, 0, 0, 0);
    moduli->setVerticalSpacing(6);
    moduli->setHorizontalSpacing(14);
    esito_ = Nomina(new QLabel(this), QStringLiteral("LBVerdict"), tr("Verdict"));
    QFont forte = esito_->font();
    forte.setWeight(QFont::DemiBold);
    esito_->setFont(forte);
    moduli->addRow(CreaTitoletto(tr("Verdict"), this), esito_);
    for (size_t slot = 0; slot < detector_.size(); ++slot) {
        const QString numero = QString::number(slot + 1);
        detector_[slot] = Nomina(new QComboBox(this), QStringLiteral("CBXVerdictDetector") + numero,
                                 tr("Detector held against limit %1").arg(numero),
                                 tr("Auto: the detector that the limit's title names"));
        detector_[slot]->addItem(tr("Auto"));
        for (const char* nome : kNomiDetector)
            detector_[slot]->addItem(QLatin1String(nome));
        moduli->addRow(tr("Limit %1").arg(numero), detector_[slot]);
        connect(detector_[slot], &QComboBox::activated, this,
                [this, slot](int d) { Q_EMIT Scelto(int(slot), d); });
    }
    incertezza_ = Nomina(new QLineEdit(this), QStringLiteral("TBMeasUncertainty"),
                         tr("Measurement uncertainty in dB"),
                         tr("Nearer to the limit than this is inconclusive; comma or point"));
    moduli->addRow(tr("Uncertainty dB"), incertezza_);
    connect(incertezza_, &QLineEdit::editingFinished, this, &PannelloVerdetto::Leggi);
}

void PannelloVerdetto::Carica(const SetupRecord& setup) {
    for (size_t slot = 0; slot < detector_.size(); ++slot)
        detector_[slot]->setCurrentIndex(
            std::clamp<int>(setup.VerdictDetector[slot], 0, int(kNumDetector)));
    valore_ = setup.MeasUncertainty;
    incertezza_->setText(Q(TestoDaNumero(valore_)));
}

void PannelloVerdetto::Leggi() {
    const auto letto =
        LeggiNumero(S(incertezza_->text().replace(QLatin1Char(','), QLatin1Char('.')).trimmed()));
    if (!letto || !(*letto >= 0) || *letto > kMassimaDb) {
        Q_EMIT Rifiutata(tr("The uncertainty is a number of dB from 0 to %1").arg(kMassimaDb));
        incertezza_->setText(Q(TestoDaNumero(valore_)));
        return;
    }
    if (static_cast<float>(*letto) == valore_)
        return;
    valore_ = static_cast<float>(*letto);
    Q_EMIT Incertezza(valore_);
}

void PannelloVerdetto::MostraEsito(const Verdetto& verdetto, bool conMisura) {
    esito_->setText(conMisura ? QLatin1String(TestoGiudizio(verdetto.insieme)) : QString());
    ImpostaRuoloTesto(*esito_, RuoloDi(verdetto.insieme));
    QStringList parole;
    for (const VerdettoLimite& v : verdetto.limiti)
        parole << QStringLiteral("%1, %2: %3")
                      .arg(Q(v.limite), QLatin1String(kNomiDetector[size_t(v.detector)]),
                           QLatin1String(TestoGiudizio(v.giudizio)));
    esito_->setToolTip(parole.join(QLatin1Char('\n')));
}

} // namespace orvane
