#include "ui/SceltaDetector.h"

#include <QScreen>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace orvane {

SceltaDetector::SceltaDetector(const std::array<int16_t, kNumDetector>& accesi, QWidget* padre)
    : QFrame(padre, Qt::Popup) {
    setObjectName(QStringLiteral("FRMDetector"));
    setAccessibleName(tr("Detectors of the line"));
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(12, 10, 16, 10);
    colonna->setSpacing(6);
    for (size_t d = 0; d < kNumDetector; ++d) {
        auto* casella = new QCheckBox(QStringLiteral("%1  (%2)")
                                          .arg(QLatin1String(kNomiDetector[d]))
                                          .arg(QLatin1Char(kLettereDetector[d])),
                                      this);
        casella->setObjectName(QStringLiteral("OPTDetector%1").arg(d));
        caselle_[d] = casella;
        colonna->addWidget(casella);
        connect(casella, &QCheckBox::toggled, this,
                [this, d](bool acceso) { Q_EMIT Cambiato(static_cast<int>(d), acceso); });
    }
    Mostra(accesi);
}

void SceltaDetector::Mostra(const std::array<int16_t, kNumDetector>& accesi) {
    for (size_t d = 0; d < kNumDetector; ++d) {
        const QSignalBlocker zitto(caselle_[d]);
        caselle_[d]->setChecked(accesi[d] == 1);
    }
}

void SceltaDetector::Apri(const QPoint& dove) {
    adjustSize();
    QPoint angolo = dove;
    if (const QScreen* schermo = parentWidget()->screen()) {
        const QRect spazio = schermo->availableGeometry();
        if (angolo.y() + height() > spazio.bottom())
            angolo.setY(spazio.bottom() - height());
        if (angolo.x() + width() > spazio.right())
            angolo.setX(spazio.right() - width());
    }
    move(angolo);
    show();
    caselle_[0]->setFocus(Qt::PopupFocusReason);
}

} // namespace orvane
