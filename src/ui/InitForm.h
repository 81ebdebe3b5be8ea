// `InitForm`: name and release, while the data is prepared.
#pragma once

#include <QWidget>

namespace orvane {

class InitForm : public QWidget {
    Q_OBJECT
public:
    InitForm();

protected:
    void paintEvent(QPaintEvent* evento) override;
};

/// The program's own picture: a trace with a peak, on a rounded ground.
QIcon IconaProgramma();

} // namespace orvane
