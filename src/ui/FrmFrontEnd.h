// The front-end settings: filter, attenuation, preselector, preamplifier, pulse limiter, and the
// inputs of a GX2207 where one is attached.
#pragma once

#include "ui/PezziColonna.h"

namespace orvane {

class FrmFrontEnd : public GruppoColonna {
    Q_OBJECT
public:
    FrmFrontEnd(ScritturaComuni& scrittura, QWidget* padre);
    void Carica(const RegoleComuni& regole);
    /// While a run is on, nothing here changes but filter and attenuator, where `filtroEAtt`.
    void Blocca(const StatoControllo& perche, bool filtroEAtt);

private:
    void CreaListe();
    void CreaCaselle();
    void CaricaListe();

    ScritturaComuni& scrittura_;
    RegoleComuni regole_; ///< as shown
    QComboBox* filtro_ = nullptr;
    QComboBox* attenuatore_ = nullptr;
    QComboBox* minAtt_ = nullptr;
    QCheckBox* preselettore_ = nullptr;
    QCheckBox* preAmp_ = nullptr;
    QCheckBox* pulseLim_ = nullptr;
    QCheckBox* antenna_ = nullptr;
    QCheckBox* passaAlto_ = nullptr;
    QCheckBox* altaImpedenza_ = nullptr;
};

} // namespace orvane
