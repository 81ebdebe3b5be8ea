// The list of detectors that opens over a cell of the scan grid.
#pragma once

#include <array>

#include <QCheckBox>
#include <QFrame>

#include "records/ScanRecord.h"

namespace orvane {

class SceltaDetector : public QFrame {
    Q_OBJECT
public:
    SceltaDetector(const std::array<int16_t, kNumDetector>& accesi, QWidget* padre);

    /// The state of the line after a change, which may be another than was clicked.
    void Mostra(const std::array<int16_t, kNumDetector>& accesi);
    /// Comes up at this point of the screen, or above it where there is no room; deletes itself.
    void Apri(const QPoint& dove);

Q_SIGNALS:
    void Cambiato(int detector, bool acceso);

private:
    std::array<QCheckBox*, kNumDetector> caselle_{};
};

} // namespace orvane
