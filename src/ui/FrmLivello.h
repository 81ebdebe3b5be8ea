// The level settings: unit, reference, vertical range.
#pragma once

#include "link/Identificazione.h"
#include "ui/PezziColonna.h"

namespace orvane {

class FrmLivello : public GruppoColonna {
    Q_OBJECT
public:
    FrmLivello(ScritturaComuni& scrittura, QWidget* padre);
    /// Shows the record; units are checked as the tab asks for it.
    void Carica(Modalita scheda);

private:
    void RiempiRiferimento();

    ScritturaComuni& scrittura_;
    Modalita scheda_ = Modalita::SweepsArchive;
    QComboBox* unita_;
    QComboBox* riferimento_;
    QComboBox* dinamica_;
};

} // namespace orvane
