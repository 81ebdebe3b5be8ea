// `FRMGenerator`: the tracking generator.
#pragma once

#include <QLineEdit>

#include "ui/PezziColonna.h"

namespace orvane {

class FrmGenerator : public GruppoColonna {
    Q_OBJECT
public:
    FrmGenerator(ScritturaComuni& scrittura, QWidget* padre);
    /// A state that stays as it was is left to the last one shown.
    void Carica(const StatoGeneratore& stato, const ModelCaps& caps);
    void Blocca(const StatoControllo& perche);

private:
    QLineEdit* AggiungiNumero(const char* nome, const QString& testo, const QString& accessibile,
                              const QString& aiuto);
    void Scrivi(QLineEdit* campo, double SetupRecord::*dove, double minimo, double massimo,
                ParComune quale);
    void MostraNumeri();

    ScritturaComuni& scrittura_;
    QCheckBox* rfOut_ = nullptr;
    QCheckBox* tracking_ = nullptr;
    QLineEdit* livello_ = nullptr;
    QLineEdit* frequenza_ = nullptr;
    double minimoMhz_ = 0;
    double massimoMhz_ = 0;
    StatoControllo ultimo_;
};

} // namespace orvane
