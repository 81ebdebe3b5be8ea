#include "ui/PiedeScan.h"

#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/Moduli.h"

namespace orvane {
namespace {

struct PulsanteAzione {
    const char* nome;
    const char* azione;
};
constexpr PulsanteAzione kPulsanti[] = {
    {"CMBUndo", "MNUUndo"},           {"CMBRedo", "MNURedo"},
    {"CMBMoveUp", "MNUMoveUp"},       {"CMBMoveDown", "MNUMoveDown"},
    {"CMBDuplicate", "MNUDuplicate"}, {"CMBDeleteLine", "MNUDeleteLine"},
};

QToolButton* CreaPulsanteAzione(const PulsanteAzione& voce, const AzioniScan& azioni,
                                QWidget* padre) {
    auto* pulsante = new QToolButton(padre);
    pulsante->setObjectName(QLatin1String(voce.nome));
    pulsante->setDefaultAction(azioni.Azione(voce.azione));
    pulsante->setAccessibleName(azioni.Azione(voce.azione)->toolTip());
    pulsante->setIconSize({15, 15});
    pulsante->setFixedSize(28, 26);
    pulsante->setFocusPolicy(Qt::TabFocus);
    return pulsante;
}

} // namespace

PiedeScan::PiedeScan(const AzioniScan& azioni, QWidget* padre) : QWidget(padre) {
    riscontri_ = new ElencoRiscontri(this);
    bande_ = CreaPulsante(QStringLiteral("CMBBande"), tr("Bands…"),
                          tr("Sets, inserts and removes standard bands (Ctrl+B)"), this);
    bande_->setShortcut(QKeySequence(QStringLiteral("Ctrl+B")));
    riga_ = CreaDidascalia(QString(), this);
    riga_->setObjectName(QStringLiteral("LBStimaRiga"));
    riassunto_ = new QLabel(this);
    riassunto_->setObjectName(QStringLiteral("LBRiassunto"));
    for (QLabel* scritta : {riga_, riassunto_})
        scritta->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    riga_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* barra = new QHBoxLayout;
    barra->setContentsMargins(10, 5, 12, 5);
    barra->setSpacing(4);
    for (const PulsanteAzione& voce : kPulsanti)
        barra->addWidget(CreaPulsanteAzione(voce, azioni, this));
    barra->addSpacing(6);
    barra->addWidget(bande_);
    barra->addWidget(riga_, 1);
    barra->addSpacing(14);
    barra->addWidget(riassunto_);
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(0);
    colonna->addWidget(CreaFilo(this));
    auto* elenco = new QHBoxLayout;
    elenco->setContentsMargins(6, 0, 0, 0);
    elenco->addWidget(riscontri_);
    colonna->addLayout(elenco);
    colonna->addLayout(barra);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void PiedeScan::MostraStima(const QString& tabella, const QString& riga) {
    riassunto_->setText(tabella);
    testoRiga_ = riga;
    ScriviRiga();
}

void PiedeScan::ScriviRiga() {
    layout()->activate();
    riga_->setText(riga_->fontMetrics().elidedText(testoRiga_, Qt::ElideRight, riga_->width()));
    riga_->setToolTip(testoRiga_);
}

void PiedeScan::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    ScriviRiga();
}

} // namespace orvane
