// The panel of the Sweeps Archive: the list of measures, and what is known of the chosen one.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QWidget>

#include "graph/MisuraAperta.h"
#include "data/Scrivania.h"

namespace orvane {

class PannelloArchivio : public QWidget {
    Q_OBJECT
public:
    PannelloArchivio(const Scrivania& scrivania, QWidget* padre);

    /// `ElencaArchivio`: reads the list again and keeps the choice; how many measures there are.
    int ElencaArchivio();
    /// Chooses a measure by name; false where it is not in the list.
    bool Scegli(const std::string& nome);
    std::string Scelta() const;
    /// Detectors and facts of the measure that was opened.
    void MostraMisura(const MisuraAperta& misura);
    /// -1: all.
    int DetectorScelto() const;

Q_SIGNALS:
    /// Another measure is current; an empty name for none.
    void MisuraScelta(const QString& nome);
    void DetectorCambiato(int detector);

private:
    void CreaAvviso();
    void MostraIncompiute();
    void Accetta();
    void Filtra(const QString& cercato);
    void ScriviDettagli(const MisuraAperta& misura);

    const Scrivania& scrivania_;
    QWidget* avviso_ = nullptr;
    QLabel* testoAvviso_ = nullptr;
    QPushButton* accetta_ = nullptr;
    QLineEdit* cerca_;
    QListWidget* lista_;
    QLabel* vuota_;
    QComboBox* detector_;
    QLabel* dettagli_;
};

} // namespace orvane
