// The panel of the Sweep tab: scan table, measure name, Execute.
#pragma once

#include <functional>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include "data/Scrivania.h"
#include "setup/Controlli.h"
#include "ui/AzioniScan.h"
#include "ui/FRMTDScanTab.h"
#include "ui/FasiCorsa.h"
#include "ui/PiedeScan.h"
#include "ui/SceltaAvvio.h"

namespace orvane {

class PannelloSweep : public QWidget {
    Q_OBJECT
public:
    PannelloSweep(Scrivania& scrivania, ScanRecord& scan, QWidget* padre);

    /// What looks at the table after each edit, a moment later.
    void ImpostaEsame(std::function<Segnalazioni()> esame) { esame_ = std::move(esame); }
    /// What the checks know beside the table is new: the receiver, a setting, a limit.
    void RinnovaEsame();

    /// Shows the records as they are: names of the scan tables, current one, grid.
    void Carica();
    /// The table or the ancillary of the set-up has changed.
    void AggiornaGriglia();
    /// The user has attached something else: the lines choose among it what a new line would, and
    /// keep what they have chosen of it. It can be undone.
    void CambiaAncillary();
    void EvidenziaCella(int riga, ColonnaScan colonna, bool errata);
    void AbilitaDisabilitaControlli(const ControlliFase& controlli);
    /// `ControllaVisCMBPausa`.
    void MostraCMBPausa(bool visibile) { pausa_->setVisible(visibile); }
    const SceltaAvvio& Avvio() const { return *avvio_; }
    std::string Misura() const;
    void ImpostaMisura(const std::string& nome);

Q_SIGNALS:
    /// `CMBExecuteSweep`.
    void Esegui();
    /// `CMBPauseSweep`, with either caption.
    void Pausa();
    /// Other lines than before: the axis follows them.
    void TabellaCambiata();

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    QWidget* CreaComandi();
    void CreaBande(QPushButton* pulsante);
    void CollegaComandi();
    void CollegaGriglia();
    void ApriModulo(const QModelIndex& cella, const QString& digitato);
    void ModuloChiuso(const QModelIndex& cella);
    void ApriBande();
    void Esamina();
    void Rifiuta(const QString& testo);
    void SalvaTabella();
    void ElencaTabelle();
    void ScegliTabella(const QString& nome);
    void NuovaTabella();
    void CancellaTabella();
    void ScriviStima();
    void Imposta(const ScanRecord& scan, const std::string& nome);

    Scrivania& scrivania_;
    ScanRecord& scan_;
    QPushButton* esegui_ = nullptr;
    QPushButton* pausa_ = nullptr;
    SceltaAvvio* avvio_ = nullptr;
    QComboBox* tabelle_ = nullptr;
    QPushButton* nuova_ = nullptr;
    QPushButton* cancella_ = nullptr;
    QPushButton* banda_ = nullptr;
    QLineEdit* misura_ = nullptr;
    GridScanTab* griglia_ = nullptr;
    AzioniScan* azioni_ = nullptr;
    PiedeScan* piede_ = nullptr;
    FRMTDScanTab* picker_ = nullptr;
    std::function<Segnalazioni()> esame_;
    QTimer attesaEsame_;     ///< gathers quick edits
    std::string nomeStoria_; ///< the panel that the steps of undo belong to
    bool ferma_ = true;      ///< no run is on
};

} // namespace orvane
