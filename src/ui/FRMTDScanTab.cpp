#include "ui/FRMTDScanTab.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include "base/Numeri.h"
#include "setup/ModificaTabella.h"
#include "setup/SceltaBande.h"
#include "ui/Moduli.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

QString SpanDellaBanda(const VoceBanda& banda) {
    return QStringLiteral("%1 – %2 MHz, %3")
        .arg(Q(TestoDaNumero(banda.startMhz)), Q(TestoDaNumero(banda.stopMhz)),
             Q(TabellaRbw()[static_cast<size_t>(banda.rbwId)].testo));
}

/// The lines that a band brings, one a line.
QString RigheDellaBanda(int banda) {
    const auto tabella = TabellaBande();
    if (banda < 0 || tabella[static_cast<size_t>(banda)].startMhz == 0)
        return {};
    const VoceBanda& voce = tabella[static_cast<size_t>(banda)];
    QStringList righe{SpanDellaBanda(voce)};
    for (const int seguente : voce.seguenti)
        if (seguente >= 0)
            righe << SpanDellaBanda(tabella[static_cast<size_t>(seguente)]);
    return righe.join(QLatin1Char('\n'));
}

} // namespace

FRMTDScanTab::FRMTDScanTab(Ambiente& ambiente, GridScanTab& griglia, QWidget* padre)
    : QDialog(padre, Qt::Tool), ambiente_(ambiente), griglia_(griglia) {
    setObjectName(QStringLiteral("FRMTDScanTab"));
    setWindowTitle(tr("Bands"));
    CreaBande();
    righe_ = CreaDidascalia(QString(), this);
    righe_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    righe_->setMinimumHeight(righe_->fontMetrics().lineSpacing() * 4);
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(18, 16, 18, 16);
    colonna->setSpacing(8);
    auto* titolo = CreaDidascalia(tr("&Band"), this);
    titolo->setBuddy(bande_);
    colonna->addWidget(titolo);
    colonna->addWidget(bande_);
    colonna->addWidget(righe_);
    imposta_ = CreaComando("CMBSet", &FRMTDScanTab::Imposta);
    inserisci_ = CreaComando("CMBInsert", &FRMTDScanTab::Inserisci);
    togli_ = CreaComando("CMBRemove", &FRMTDScanTab::Togli);
    svuota_ = CreaComando("CMBClearTab", &FRMTDScanTab::Svuota);
    for (QPushButton* pulsante : {imposta_, inserisci_, togli_, svuota_})
        colonna->addWidget(pulsante);
    imposta_->setDefault(true);
    // The longest caption, so that the window does not change its width with the band.
    setMinimumWidth(fontMetrics().averageCharWidth() * 56);
    connect(&griglia_, &GridScanTab::RigaCorrenteCambiata, this, &FRMTDScanTab::Aggiorna);
    Aggiorna();
}

void FRMTDScanTab::CreaBande() {
    bande_ = Nomina(new QComboBox(this), QStringLiteral("CBXBanda"), tr("Band"),
                    tr("Choose with the arrow keys, or type a name"));
    bande_->setEditable(true);
    bande_->setInsertPolicy(QComboBox::NoInsert);
    bande_->setMaxVisibleItems(30);
    auto* voci = qobject_cast<QStandardItemModel*>(bande_->model());
    int indice = 0;
    for (const VoceBanda& banda : TabellaBande()) {
        if (banda.elencata) {
            bande_->addItem(Q(banda.nome), indice);
            voci->item(bande_->count() - 1)->setEnabled(banda.startMhz != 0);
        }
        ++indice;
    }
    bande_->installEventFilter(this);
    bande_->lineEdit()->installEventFilter(this);
    connect(bande_, &QComboBox::currentIndexChanged, this, &FRMTDScanTab::Aggiorna);
    connect(bande_->lineEdit(), &QLineEdit::textEdited, this, &FRMTDScanTab::ScriviBanda);
}

QPushButton* FRMTDScanTab::CreaComando(const char* nome, void (FRMTDScanTab::*cosa)()) {
    auto* pulsante = CreaPulsante(QLatin1String(nome), QString(), QString(), this);
    connect(pulsante, &QPushButton::clicked, this, cosa);
    return pulsante;
}

/// Of the text, which may be none's name while it is typed.
int FRMTDScanTab::Banda() const {
    return TrovaBanda(S(bande_->currentText()));
}

size_t FRMTDScanTab::Riga() const {
    return static_cast<size_t>(std::max(griglia_.currentIndex().row(), 0));
}

void FRMTDScanTab::ScriviBanda() {
    QLineEdit* testo = bande_->lineEdit();
    const QString giusto = Q(NomeBandaDigitato(S(testo->text())));
    if (giusto != testo->text()) {
        const int posto = testo->cursorPosition();
        testo->setText(giusto);
        testo->setCursorPosition(posto);
    }
    Aggiorna();
}

void FRMTDScanTab::Aggiorna() {
    const VistaBande vista = VistaDelleBande(griglia_.Modello().Tabella(), Banda(), Riga());
    const bool libera = griglia_.Modello().Modificabile();
    const auto mostra = [libera](QPushButton& pulsante, const PulsanteBanda& stato) {
        pulsante.setText(Q(stato.didascalia));
        pulsante.setAccessibleName(pulsante.text());
        pulsante.setEnabled(libera && stato.attivo);
    };
    mostra(*imposta_, vista.CMBSet);
    mostra(*inserisci_, vista.CMBInsert);
    mostra(*togli_, vista.CMBRemove);
    mostra(*svuota_, vista.CMBClearTab);
    righe_->setText(RigheDellaBanda(Banda()));
}

void FRMTDScanTab::showEvent(QShowEvent* evento) {
    QDialog::showEvent(evento);
    bande_->setFocus();
    bande_->lineEdit()->selectAll();
}

bool FRMTDScanTab::eventFilter(QObject* oggetto, QEvent* evento) {
    if (evento->type() != QEvent::KeyPress)
        return QDialog::eventFilter(oggetto, evento);
    const int tasto = static_cast<QKeyEvent*>(evento)->key();
    if (tasto != Qt::Key_Up && tasto != Qt::Key_Down)
        return QDialog::eventFilter(oggetto, evento);
    const int vicina = BandaVicina(Banda(), tasto == Qt::Key_Up ? -1 : 1);
    bande_->setCurrentIndex(bande_->findData(vicina));
    return true;
}

void FRMTDScanTab::Imposta() {
    if (ImpostaBandaInRiga(griglia_.Modello().Tabella(), Riga(), Banda(),
                           griglia_.Modello().Ancillary()))
        Q_EMIT Modificata();
}

void FRMTDScanTab::Inserisci() {
    if (InserisciBanda(griglia_.Modello().Tabella(), Riga(), Banda(),
                       griglia_.Modello().Ancillary()))
        Q_EMIT Modificata();
}

void FRMTDScanTab::Togli() {
    CancellaRiga(griglia_.Modello().Tabella(), Riga());
    Q_EMIT Modificata();
}

void FRMTDScanTab::Svuota() {
    if (ambiente_.Mostra(DomandaCancella(nomeTabella_)) != Risposta::Si)
        return;
    griglia_.Modello().Tabella() = {};
    Q_EMIT Modificata();
}

} // namespace orvane
