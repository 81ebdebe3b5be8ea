#include "ui/FrmAncillary.h"

#include <array>

namespace orvane {
namespace {

/// By `AncillaryKind`.
struct VoceAncillary {
    const char* testo;
    const char* aiuto;
};
constexpr std::array<VoceAncillary, kMaxAncillaryKind + 1> kAncillary = {{
    {"Nothing", "Nothing is switched; cables are changed by hand"},
    {"L2 KRV", "Two-line network: L1, L2"},
    {"L3 KRV", "Four-line network: N, L1, L2, L3"},
    {"Antenna V/H", "Antenna with two polarisations"},
    {"QDSW3", "Switch box: W, X, Y, Z"},
    {"Mast-Table", "Antenna mast and turntable"},
    {"L2 3360", "The network built into a 3360: L1, L2"},
}};

} // namespace

FrmAncillary::FrmAncillary(ScritturaComuni& scrittura, QWidget* padre)
    : GruppoColonna(QStringLiteral("FRMLisn"), tr("Ancillary"), padre), scrittura_(scrittura),
      rete_(AggiungiLista("CBXLisn", tr("Network"),
                          tr("What is attached: the lines of the scan table choose among it"))) {
    for (const VoceAncillary& voce : kAncillary) {
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
