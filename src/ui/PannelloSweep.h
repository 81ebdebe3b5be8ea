// The panel of the Sweep tab: scan table, measure name, Execute.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

#include "data/Scrivania.h"
#include "sweep/Corsa.h"
#include "ui/GridScanTab.h"

namespace orvane {

class PannelloSweep : public QWidget {
    Q_OBJECT
public:
    PannelloSweep(Scrivania& scrivania, ScanRecord& scan, QWidget* padre);

    /// Shows the records as they are: names of the scan tables, current one, grid.
    void Carica();
    void AggiornaGriglia();
    void EvidenziaCella(int riga, ColonnaScan colonna, bool errata);
    void MostraFase(FaseCorsa fase);
    std::string Misura() const;
    void ImpostaMisura(const std::string& nome);

Q_SIGNALS:
    /// `CMBExecuteSweep`.
    void Esegui();
    /// Other lines than before: the axis follows them.
    void TabellaCambiata();

private:
    QWidget* CreaComandi();
    void CreaBande(QPushButton* pulsante);
    void CollegaComandi();
    void SalvaTabella();
    void ElencaTabelle();
    void ScegliTabella(const QString& nome);
    void NuovaTabella();
    void CancellaTabella();
    void ScriviRiassunto();
    void Imposta(const ScanRecord& scan, const std::string& nome);

    Scrivania& scrivania_;
    ScanRecord& scan_;
    QPushButton* esegui_ = nullptr;
    QPushButton* pausa_ = nullptr;
    QComboBox* tabelle_ = nullptr;
    QPushButton* nuova_ = nullptr;
    QPushButton* cancella_ = nullptr;
    QPushButton* banda_ = nullptr;
    QLineEdit* misura_ = nullptr;
    QLabel* riassunto_ = nullptr;
    GridScanTab* griglia_ = nullptr;
};

} // namespace orvane
