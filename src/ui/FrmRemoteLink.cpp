#include "ui/FrmRemoteLink.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QVBoxLayout>

#include "base/Numeri.h"
#include "ui/Moduli.h"
#include "ui/StileConsole.h"
#include "ui/Testi.h"

namespace orvane {

FrmRemoteLink::FrmRemoteLink(Scrivania& scrivania, LinkPort& link, CatalogoPorte& catalogo,
                             const QString& fisso, QWidget* padre)
    : QDialog(padre), scrivania_(scrivania), link_(link),
      quadro_(ApriRemoteLink(scrivania, link, catalogo)) {
    setObjectName(QStringLiteral("FrmRemoteLink"));
    setWindowTitle(tr("Remote Link"));
    setModal(true);
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(20, 18, 20, 16);
    colonna->setSpacing(18);
    colonna->addWidget(CreaScelta(fisso));
    auto* pulsanti = new QHBoxLayout;
    auto* predefinito = CreaPulsante(QStringLiteral("CMBDefaultRemoteLinck"), tr("Default"),
                                     tr("USB, and COM 1"), this);
    auto* bene = CreaPulsante(QStringLiteral("CMBOK"), tr("OK"), tr("Keeps the choice"), this);
    bene->setProperty(kProprietaRuolo, QStringLiteral("accento"));
    bene->setDefault(true);
    auto* annulla = CreaPulsante(QStringLiteral("CMBCancel"), tr("Cancel"),
                                 tr("Puts the former choice back"), this);
    pulsanti->addWidget(predefinito);
    pulsanti->addStretch(1);
    pulsanti->addWidget(annulla);
    pulsanti->addWidget(bene);
    colonna->addLayout(pulsanti);
    connect(predefinito, &QPushButton::clicked, this, [this] {
        DefaultRemoteLink(scrivania_, link_);
        Aggiorna();
    });
    connect(bene, &QPushButton::clicked, this, &FrmRemoteLink::accept);
    connect(annulla, &QPushButton::clicked, this, &FrmRemoteLink::reject);
    MostraQuadro();
}

QWidget* FrmRemoteLink::CreaScelta(const QString& fisso) {
    auto* quadro = new QWidget(this);
    auto* modulo = new QFormLayout(quadro);
    modulo->setContentsMargins(0, 0, 0, 0);
    modulo->setHorizontalSpacing(24);
    modulo->setVerticalSpacing(12);
    seriale_ = Nomina(new QRadioButton(tr("Serial"), quadro), QStringLiteral("OptLink0"),
                      tr("Serial link"), tr("A COM port, also one over Bluetooth"));
    usb_ = Nomina(new QRadioButton(tr("USB"), quadro), QStringLiteral("OptLink1"), tr("USB link"),
                  tr("The receiver's own USB port"));
    auto* gruppo = new QButtonGroup(this);
    gruppo->setObjectName(QStringLiteral("OptLink"));
    gruppo->addButton(seriale_, 0);
    gruppo->addButton(usb_, 1);
    auto* tipi = new QHBoxLayout;
    tipi->setSpacing(24);
    tipi->addWidget(seriale_);
    tipi->addWidget(usb_);
    tipi->addStretch(1);
    porte_ = Nomina(new QComboBox(quadro), QStringLiteral("ComboPortDevice"), tr("COM port"),
                    tr("The serial devices of this computer"));
    porte_->setMinimumContentsLength(38);
    modulo->addRow(tr("Link"), tipi);
    modulo->addRow(tr("Port"), porte_);
    if (!fisso.isEmpty()) {
        auto* nota = CreaDidascalia(
            tr("This session was started with the link \"%1\";\nthe choice counts from the next "
               "start on.")
                .arg(fisso),
            quadro);
        nota->setObjectName(QStringLiteral("LBFisso"));
        modulo->addRow(nota);
    }
    connect(gruppo, &QButtonGroup::idClicked, this, [this](int tipo) {
        OptLink(scrivania_, link_, static_cast<int16_t>(tipo));
        Aggiorna();
    });
    connect(porte_, &QComboBox::textActivated, this, [this](const QString& nome) {
        ComboPortDevice(scrivania_, link_, S(nome));
        Aggiorna();
    });
    return quadro;
}

void FrmRemoteLink::MostraQuadro() {
    for (const PortaCom& porta : quadro_.porte)
        porte_->addItem(Q(porta.nome));
    Aggiorna();
}

void FrmRemoteLink::Aggiorna() {
    (link_.TipoLink == 0 ? seriale_ : usb_)->setChecked(true);
    porte_->setEnabled(link_.TipoLink == 0);
    const int qui = TrovaIDComSelezionata(quadro_.porte, link_.NumeroCom);
    // A port that is not there now keeps its number, as plain text.
    porte_->setPlaceholderText(Q(TestoIntero(link_.NumeroCom)));
    porte_->setCurrentIndex(qui);
    Q_EMIT Cambiato();
}

void FrmRemoteLink::accept() {
    ConfermaRemoteLink(scrivania_);
    QDialog::accept();
}

void FrmRemoteLink::reject() {
    RipristinaRemoteLink(scrivania_, link_);
    Q_EMIT Cambiato();
    QDialog::reject();
}

} // namespace orvane
