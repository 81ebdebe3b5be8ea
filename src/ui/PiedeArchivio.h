// The foot of the picture while a measure is on show: its highest peaks, and its scan lines.
#pragma once

#include <QLabel>
#include <QStackedWidget>
#include <QTabBar>
#include <QWidget>

#include "ui/GridScanTab.h"
#include "ui/PannelloPicchi.h"

namespace orvane {

class PiedeArchivio : public QWidget {
    Q_OBJECT
public:
    explicit PiedeArchivio(QWidget* padre);

    enum class Pagina { Picchi, Righe };
    /// In the Sweep tab the second page is the scan table, which is shown in the place of all this.
    void PerSweep(bool si);
    void MostraPagina(Pagina pagina);
    Pagina Corrente() const { return static_cast<Pagina>(pagine_->currentIndex()); }
    PannelloPicchi& Picchi() { return *picchi_; }
    /// Scan lines of the measure, and the settings that they go with.
    void MostraRighe(const ScanTable& righe, const SetupRecord& setup);

Q_SIGNALS:
    void PaginaScelta(orvane::PiedeArchivio::Pagina pagina);

private:
    QTabBar* linguette_;
    QStackedWidget* pagine_;
    PannelloPicchi* picchi_;
    ScanTable righeAperte_{};
    SetupRecord setup_{};
    GridScanTab* righe_;
};

} // namespace orvane
