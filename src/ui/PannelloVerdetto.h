// "Verdict": which detector is held against each limit, and how much the measurement may be out.
#pragma once

#include <array>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include "graph/Verdetto.h"
#include "records/SetupRecord.h"

namespace orvane {

class PannelloVerdetto : public QWidget {
    Q_OBJECT
public:
    explicit PannelloVerdetto(QWidget* padre);
    void Carica(const SetupRecord& setup);
    /// What came out, and with which detectors; `conMisura` false: nothing on show.
    void MostraEsito(const Verdetto& verdetto, bool conMisura);

Q_SIGNALS:
    void Scelto(int slot, int detector); ///< 0 by the limit's title, 1 to 6 a detector
    void Incertezza(float dB);
    /// What was typed is no uncertainty.
    void Rifiutata(const QString& motivo);

private:
    void Leggi();

    std::array<QComboBox*, 2> detector_{};
    QLineEdit* incertezza_;
    QLabel* esito_;
    float valore_ = 0;
};

} // namespace orvane
