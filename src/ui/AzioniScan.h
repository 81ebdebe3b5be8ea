// What can be done to whole lines of the scan grid, by key, button and menu; undo and redo.
#pragma once

#include <QAction>
#include <QObject>

#include "setup/StoriaScan.h"
#include "ui/GridScanTab.h"
#include "ui/IconeScan.h"

namespace orvane {

class AzioniScan : public QObject {
    Q_OBJECT
public:
    /// The actions become the grid's: keys work while it or an editor in it has the focus.
    explicit AzioniScan(GridScanTab& griglia);

    /// Notes the table as it is now, as a step for undo where it is another one.
    void Registra();
    /// Another table is on the desk.
    void Ricomincia();
    /// Which actions can do something now.
    void Aggiorna();
    QAction* Azione(const char* nome) const;

Q_SIGNALS:
    /// The table was changed: it is to be saved and shown.
    void Modificata();
    /// Why an action did nothing, or not all.
    void Rifiutata(const QString& testo);

private:
    void Crea(const char* nome, const QString& testo, const QList<QKeySequence>& tasti,
              SegnoScan segno, void (AzioniScan::*cosa)());
    void MostraMenu(const QPoint& dove);
    /// Rows of the selection that are in use; {0, -1} for none.
    std::pair<int, int> Scelte() const;
    std::span<const ScanLine> RigheScelte() const;
    void Metti(const std::optional<ScanTable>& tabella);
    void Fatto(int prima, int ultima);
    void Aggiungi(int dove, std::span<const ScanLine> righe);

    void Annulla();
    void Ripeti();
    void Taglia();
    void Copia();
    void Incolla();
    void Duplica();
    void Su();
    void Giu();
    void Cancella();

    GridScanTab& griglia_;
    ScanTable& tabella_;
    StoriaScan storia_;
};

} // namespace orvane
