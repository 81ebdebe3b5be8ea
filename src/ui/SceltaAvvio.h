// How a run starts: at once, after so many seconds, or when the user port says so.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QWidget>

#include "sweep/Corsa.h"

namespace orvane {

class SceltaAvvio : public QWidget {
    Q_OBJECT
public:
    explicit SceltaAvvio(QWidget* padre);

    /// Writes the choice into what the next run begins with.
    void Scrivi(StatoCorsa& stato) const;

private:
    int Secondi() const;
    void Segui();

    QCheckBox* timer_;
    QLineEdit* secondi_;
    QCheckBox* trigger_;
    QComboBox* modo_;
};

} // namespace orvane
