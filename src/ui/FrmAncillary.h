// `CBXLisn`: what is attached in front of the receiver.
#pragma once

#include "ui/PezziColonna.h"

namespace orvane {

class FrmAncillary : public GruppoColonna {
    Q_OBJECT
public:
    FrmAncillary(ScritturaComuni& scrittura, QWidget* padre);
    void Carica();
    void Blocca(const StatoControllo& perche);

private:
    ScritturaComuni& scrittura_;
    QComboBox* rete_;
};

} // namespace orvane
