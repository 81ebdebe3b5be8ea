#include "ui/PiedeArchivio.h"

#include <QSignalBlocker>
#include <QVBoxLayout>

#include "ui/Moduli.h"

namespace orvane {

PiedeArchivio::PiedeArchivio(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FRMPiedeArchivio"));
    linguette_ = Nomina(new QTabBar(this), QStringLiteral("SSTabPiede"), tr("Pages of the foot"));
    linguette_->setDrawBase(false);
    linguette_->setExpanding(false);
    linguette_->addTab(tr("Highest Peaks"));
    linguette_->addTab(tr("Scan lines"));
    pagine_ = new QStackedWidget(this);
    picchi_ = new PannelloPicchi(pagine_);
    righe_ = new GridScanTab(righeAperte_, setup_, false, pagine_);
    righe_->setObjectName(QStringLiteral("GridRigheMisura"));
    righe_->setAccessibleName(tr("Scan lines of the measure"));
    pagine_->addWidget(picchi_);
    pagine_->addWidget(righe_);
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(0);
    QWidget* testa = picchi_->Testa();
    QSizePolicy tienePosto = testa->sizePolicy();
    tienePosto.setRetainSizeWhenHidden(true);
    testa->setSizePolicy(tienePosto);
    auto* riga = new QHBoxLayout;
    riga->setContentsMargins(8, 7, 10, 7);
    riga->setSpacing(10);
    riga->addWidget(linguette_);
    riga->addWidget(testa, 1);
    colonna->addLayout(riga);
    colonna->addWidget(CreaFilo(this));
    colonna->addWidget(pagine_, 1);
    connect(pagine_, &QStackedWidget::currentChanged, testa,
            [testa](int pagina) { testa->setVisible(pagina == int(Pagina::Picchi)); });
    connect(linguette_, &QTabBar::currentChanged, this, [this](int pagina) {
        pagine_->setCurrentIndex(pagina);
        Q_EMIT PaginaScelta(static_cast<Pagina>(pagina));
    });
}

void PiedeArchivio::PerSweep(bool si) {
    linguette_->setTabText(int(Pagina::Righe), si ? tr("Scan table") : tr("Scan lines"));
}

void PiedeArchivio::MostraPagina(Pagina pagina) {
    const QSignalBlocker zitte(linguette_);
    linguette_->setCurrentIndex(int(pagina));
    pagine_->setCurrentIndex(int(pagina));
}

void PiedeArchivio::MostraRighe(const ScanTable& righe, const SetupRecord& setup) {
    righeAperte_ = righe;
    setup_ = setup;
    righe_->Modello().Aggiorna();
}

} // namespace orvane
