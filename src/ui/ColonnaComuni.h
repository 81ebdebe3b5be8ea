// `SSTabComuni`: the column of settings at the right of the picture.
#pragma once

#include <QFileSystemWatcher>
#include <QScrollArea>

#include "ui/FrmAncillary.h"
#include "ui/FrmFrontEnd.h"
#include "ui/FrmGenerator.h"
#include "ui/FrmLivello.h"
#include "ui/FrmTabelle.h"

namespace orvane {

class ColonnaComuni : public QScrollArea {
    Q_OBJECT
public:
    ColonnaComuni(Scrivania& scrivania, QWidget* padre);

    /// Shows the record as it is.
    void Carica();
    /// Follows the receiver that was met last, and the tab; the live mode is the last one entered.
    void Segui(const ReceiverModel& modello, Modalita scheda);
    /// While a run is on (`si` false), what the receiver was told stays as it is, but for filter
    /// and attenuator where `filtroEAtt`.
    void Abilita(bool si, bool filtroEAtt);
    /// The live mode whose lists are shown.
    Modalita ModoVivo() const { return modoVivo_; }

Q_SIGNALS:
    /// The scale of the picture is another one.
    void ScalaCambiata();
    /// The lines of the scan table have other line switches to choose from.
    void AncillaryCambiato();
    /// The user has changed a setting: a `ParComune`. The panel is saved.
    void Cambiato(orvane::ParComune quale);

private:
    void Scritto(ParComune quale);
    void CaricaTabelle();
    void Sorveglia();
    RegoleComuni Regole();

    Scrivania& scrivania_;
    ScritturaComuni scrittura_;
    ReceiverModel modello_;
    Modalita scheda_ = Modalita::SweepsArchive;
    Modalita modoVivo_ = Modalita::Analyzer;
    bool inCorsa_ = false;
    bool filtroEAtt_ = true;
    QFileSystemWatcher file_; ///< tables that come and go
    QWidget* interno_;
    FrmFrontEnd* frontEnd_;
    FrmLivello* livello_;
    FrmTabelle* limiti_;
    FrmTabelle* fattori_;
    FrmAncillary* ancillary_;
    FrmGenerator* generatore_;
};

} // namespace orvane
