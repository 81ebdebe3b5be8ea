// The level settings: unit, reference, vertical range.
#pragma once

#include "ui/PezziColonna.h"

namespace orvane {

class FrmLivello : public GruppoColonna {
    Q_OBJECT
public:
    FrmLivello(ScritturaComuni& scrittura, QWidget* padre);
    void Carica();

private:
    void RiempiRiferimento();

    ScritturaComuni& scrittura_;
    QComboBox* unita_;
    QComboBox* riferimento_;
    QComboBox* dinamica_;
};

} // namespace orvane
