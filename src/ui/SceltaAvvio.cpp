#include "ui/SceltaAvvio.h"

#include <algorithm>
#include <cmath>

#include <QHBoxLayout>

#include "base/Numeri.h"
#include "ui/Moduli.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

constexpr int kSecondi = 10;
constexpr double kSecondiMassimi = 24 * 3600;

} // namespace

SceltaAvvio::SceltaAvvio(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FRMAvvio"));
    timer_ = Nomina(new QCheckBox(tr("Timer"), this), QStringLiteral("ChkTimerSweep"),
                    tr("Start after a time"), tr("The sweep starts after so many seconds"));
    secondi_ =
        Nomina(new QLineEdit(QString::number(kSecondi), this), QStringLiteral("TBTimerSweep"),
               tr("Seconds to the start"), tr("Seconds from Execute to the start"));
    secondi_->setMaximumWidth(secondi_->fontMetrics().averageCharWidth() * 9);
    connect(secondi_, &QLineEdit::editingFinished, this,
            [this] { secondi_->setText(QString::number(Secondi())); });
    trigger_ = Nomina(new QCheckBox(tr("Trigger"), this), QStringLiteral("ChkTriggerSweep"),
                      tr("Start by the user port"),
                      tr("The sweep starts when the receiver's user port says so"));
    modo_ = Nomina(new QComboBox(this), QStringLiteral("CBXTriggerSweep"), tr("User port"),
                   tr("What the user port must read for the start"));
    modo_->addItem(tr("User port is 0"), 1);
    modo_->addItem(tr("User port is not 0"), 2);
    auto* riga = new QHBoxLayout(this);
    riga->setContentsMargins(10, 0, 10, 8);
    riga->setSpacing(8);
    riga->addWidget(CreaDidascalia(tr("Start by"), this));
    riga->addWidget(timer_);
    riga->addWidget(secondi_);
    riga->addWidget(CreaDidascalia(tr("s"), this));
    riga->addSpacing(8);
    riga->addWidget(trigger_);
    riga->addWidget(modo_);
    riga->addStretch(1);
    // Not a button group: both may be off.
    connect(timer_, &QCheckBox::toggled, this, [this](bool si) {
        if (si)
            trigger_->setChecked(false);
        Segui();
    });
    connect(trigger_, &QCheckBox::toggled, this, [this](bool si) {
        if (si)
            timer_->setChecked(false);
        Segui();
    });
    Segui();
}

void SceltaAvvio::Scrivi(StatoCorsa& stato) const {
    ScegliTimer(stato, timer_->isChecked() ? Secondi() : 0);
    ScegliTrigger(stato,
                  static_cast<int16_t>(trigger_->isChecked() ? modo_->currentData().toInt() : 0));
}

/// Whole seconds, 1 to a day, whatever was typed.
int SceltaAvvio::Secondi() const {
    const double letti = LeggiNumero(S(secondi_->text())).value_or(kSecondi);
    return static_cast<int>(std::clamp(std::round(letti), 1.0, kSecondiMassimi));
}

void SceltaAvvio::Segui() {
    secondi_->setEnabled(timer_->isChecked());
    modo_->setEnabled(trigger_->isChecked());
}

} // namespace orvane
