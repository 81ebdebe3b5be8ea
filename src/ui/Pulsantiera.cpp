#include "ui/Pulsantiera.h"

#include "ui/Moduli.h"
#include "ui/StileConsole.h"

namespace orvane {

QHBoxLayout* CreaPulsantiFinali(QDialog& finestra, std::initializer_list<QPushButton*> sinistra,
                                const QString& conferma) {
    auto* riga = new QHBoxLayout;
    for (QPushButton* pulsante : sinistra)
        riga->addWidget(pulsante);
    riga->addStretch(1);
    auto* annulla = CreaPulsante(QStringLiteral("CMBCancel"), QDialog::tr("Cancel"),
                                 QDialog::tr("Puts everything back"), &finestra);
    auto* bene =
        CreaPulsante(QStringLiteral("CMBOK"), conferma, QDialog::tr("Keeps and stores"), &finestra);
    bene->setProperty(kProprietaRuolo, QStringLiteral("accento"));
    bene->setDefault(true);
    riga->addWidget(annulla);
    riga->addWidget(bene);
    QObject::connect(annulla, &QPushButton::clicked, &finestra, &QDialog::reject);
    QObject::connect(bene, &QPushButton::clicked, &finestra, &QDialog::accept);
    return riga;
}

} // namespace orvane
