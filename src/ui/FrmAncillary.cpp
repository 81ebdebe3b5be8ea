#include "ui/FrmAncillary.h"

#include "setup/TipiAncillary.h"

namespace orvane {

FrmAncillary::FrmAncillary(ScritturaComuni& scrittura, QWidget* padre)
    : GruppoColonna(QStringLiteral("FRMLisn"), tr("Ancillary"), padre), scrittura_(scrittura),
      rete_(AggiungiLista("CBXLisn", tr("Network"),
                          tr("What is attached: the lines of the scan table choose among it"))) {
    for (const VoceTipoAncillary& voce : kTipiAncillary) {
        rete_->addItem(tr(voce.testo));
        rete_->setItemData(rete_->count() - 1, tr(voce.aiuto), Qt::ToolTipRole);
    }
    connect(rete_, &QComboBox::activated, this, [this](int tipo) {
        scrittura_.scrivania.setup.AncillaryKind = static_cast<int16_t>(tipo);
        scrittura_.scritto(ParComune::LineSwitch);
    });
}

void FrmAncillary::Carica() {
    rete_->setCurrentIndex(AncillaryDi(scrittura_.scrivania.setup));
    ApplicaStato(rete_, {});
}

void FrmAncillary::Blocca(const StatoControllo& perche) {
    ApplicaStato(rete_, perche);
}

} // namespace orvane
