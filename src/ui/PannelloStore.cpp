#include "ui/PannelloStore.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/Moduli.h"
#include "ui/StileConsole.h"
#include "ui/Testi.h"

namespace orvane {

PannelloStore::PannelloStore(Console& console, ContenutoTabella tabella, const QString& nome,
                             QWidget* padre)
    : QWidget(padre), console_(console), tabella_(std::move(tabella)) {
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(14);
    colonna->addWidget(CreaModulo(nome));
    avanzamento_ = Nomina(new QProgressBar(this), QStringLiteral("PBStoreCFLOn5520"),
                          tr("Progress of the upload"));
    avanzamento_->setTextVisible(false);
    QSizePolicy tieneIlPosto = avanzamento_->sizePolicy();
    tieneIlPosto.setRetainSizeWhenHidden(true);
    avanzamento_->setSizePolicy(tieneIlPosto);
    esito_ = CreaDidascalia(TestoPunti(ControllaRigaCompFreqTab(tabella_)), this);
    esito_->setObjectName(QStringLiteral("LBEsito"));
    colonna->addWidget(avanzamento_);
    colonna->addWidget(esito_);
    colonna->addLayout(CreaPulsanti());
    MostraFase(false);
    nome_->setFocus();
}

QWidget* PannelloStore::CreaModulo(const QString& nome) {
    auto* quadro = new QWidget(this);
    auto* modulo = new QFormLayout(quadro);
    modulo->setContentsMargins(0, 0, 0, 0);
    modulo->setHorizontalSpacing(24);
    modulo->setVerticalSpacing(12);
    nome_ = Nomina(new QLineEdit(nome, quadro), QStringLiteral("TBNameStoreCFL"),
                   tr("Name in the receiver"), tr("The receiver keeps ten characters of a name"));
    nome_->setMinimumWidth(fontMetrics().averageCharWidth() * 36);
    nome_->selectAll();
    posizione_ = Nomina(new QComboBox(quadro), QStringLiteral("CBXPositionCFL"),
                        tr("Position in the receiver"),
                        tr("What the receiver holds at this position is replaced"));
    for (int i = 1; i <= kMaxPosizioni; ++i)
        posizione_->addItem(QString::number(i));
    modulo->addRow(tr("Name"), nome_);
    modulo->addRow(tr("Position"), posizione_);
    return quadro;
}

QLayout* PannelloStore::CreaPulsanti() {
    ferma_ = CreaPulsante(QStringLiteral("CMBStop"), tr("Stop"), tr("Ends the upload (Esc)"), this);
    ferma_->setProperty(kProprietaRuolo, QStringLiteral("stop"));
    esci_ = CreaPulsante(QStringLiteral("CMBExit"), tr("Close"), {}, this);
    avvia_ = CreaPulsante(QStringLiteral("CmdSave"), tr("Upload"),
                          tr("Sends the table to the receiver"), this);
    avvia_->setProperty(kProprietaRuolo, QStringLiteral("accento"));
    avvia_->setDefault(true);
    connect(ferma_, &QPushButton::clicked, this, &PannelloStore::Ferma);
    connect(esci_, &QPushButton::clicked, this, &PannelloStore::Chiudi);
    connect(avvia_, &QPushButton::clicked, this, &PannelloStore::Avvia);
    auto* riga = new QHBoxLayout;
    riga->addStretch(1);
    riga->addWidget(ferma_);
    riga->addWidget(esci_);
    riga->addWidget(avvia_);
    return riga;
}

void PannelloStore::MostraFase(bool inCorso) {
    inCorso_ = inCorso;
    for (QWidget* pezzo : {static_cast<QWidget*>(nome_), static_cast<QWidget*>(posizione_),
                           static_cast<QWidget*>(avvia_), static_cast<QWidget*>(esci_)})
        pezzo->setEnabled(!inCorso);
    ferma_->setVisible(inCorso);
    avanzamento_->setVisible(inCorso);
}

void PannelloStore::Avvia() {
    if (inCorso_)
        return;
    avanzamento_->setValue(0);
    MostraFase(true);
    ferma_->setFocus();
    esito_->setText(tr("Uploading"));
    const EsitoCaricamento esito =
        MemorizzaTabella(console_, *this, tabella_, S(nome_->text()), posizione_->currentIndex());
    MostraFase(false);
    nome_->setFocus();
    esito_->setText(Parole(esito));
    if (esito == EsitoCaricamento::Memorizzato)
        Q_EMIT Memorizzata();
}

void PannelloStore::Ferma() {
    FermaMemorizzazione(console_);
    esito_->setText(tr("Stopping"));
}

QString PannelloStore::Parole(EsitoCaricamento esito) const {
    switch (esito) {
    case EsitoCaricamento::Memorizzato:
        return tr("Stored");
    case EsitoCaricamento::Rifiutato:
        return tr("Not sent");
    case EsitoCaricamento::NonAperto: {
        const QString motivo = Q(console_.ricevitore.porta.link.motivo);
        return motivo.isEmpty() ? tr("The link cannot be opened") : motivo;
    }
    case EsitoCaricamento::NonRisponde:
        return tr("The receiver did not answer");
    case EsitoCaricamento::Abbandonato:
        break;
    }
    return tr("Stopped: nothing was stored under this name");
}

void PannelloStore::ImpostaAvanzamento(size_t fatti, size_t totale) {
    avanzamento_->setRange(0, static_cast<int>(totale));
    avanzamento_->setValue(static_cast<int>(fatti));
}

void PannelloStore::NascondiAvanzamento() {
    avanzamento_->hide();
}

} // namespace orvane
