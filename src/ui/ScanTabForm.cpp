#include "ui/ScanTabForm.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QScreen>

#include "ui/StileConsole.h"

namespace orvane {
namespace {

QString Titolo(ColonnaScan colonna, int riga) {
    const bool detector = colonna == ColonnaScan::Detector || colonna == ColonnaScan::HoldTime;
    return QObject::tr("%1 of line %2")
        .arg(detector ? QObject::tr("Detector and Hold Time") : Q(TitoloColonna(colonna)))
        .arg(riga + 1);
}

/// The control that each column is opened for.
constexpr std::pair<ColonnaScan, const char*> kPrimi[] = {
    {ColonnaScan::Step, "CHKAutoStep"},
    {ColonnaScan::Detector, "OPTDetector0"},
    {ColonnaScan::HoldTime, "TBHoldTime"},
    {ColonnaScan::Prompt, "TBMsgBoxIniziale"},
};

/// The text that what is typed over a cell begins.
constexpr std::pair<ColonnaScan, const char*> kDigitabili[] = {
    {ColonnaScan::Step, "TBStep"},
    {ColonnaScan::HoldTime, "TBHoldTime"},
    {ColonnaScan::Prompt, "TBMsgBoxIniziale"},
};

const char* Cerca(std::span<const std::pair<ColonnaScan, const char*>> voci, ColonnaScan colonna) {
    for (const auto& [quale, nome] : voci)
        if (quale == colonna)
            return nome;
    return "";
}

} // namespace

ScanTabForm::ScanTabForm(Ambiente& ambiente, const AlberoDati& albero, ColonnaScan colonna,
                         int riga, int ancillaryKind, ScanLine& linea, QWidget* padre)
    : QDialog(padre), ambiente_(ambiente), linea_(linea),
      modulo_(ApriModulo(albero, colonna, ancillaryKind, linea)), pianta_{.modulo = modulo_,
                                                                          .finestra = this,
                                                                          .colonna =
                                                                              new QVBoxLayout} {
    setObjectName(QStringLiteral("ScanTabForm"));
    setWindowTitle(Titolo(colonna, riga));
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(true);
    pianta_.cambiato = [this](const std::optional<Riquadro>& rifiuto) { Cambiato(rifiuto); };
    pianta_.conferma = [this] { accept(); };
    pianta_.colonna->setContentsMargins(18, 16, 18, 14);
    pianta_.colonna->setSpacing(12);
    CreaRiquadriPasso(pianta_);
    CreaRiquadriDetector(pianta_);
    CreaRiquadriLimiti(pianta_);
    CreaRiquadriRiga(pianta_);
    pianta_.colonna->addLayout(CreaPulsanti());
    // The window is as large as its frames, also when one comes or goes.
    pianta_.colonna->setSizeConstraint(QLayout::SetFixedSize);
    setLayout(pianta_.colonna);
    Specchia();
}

QLayout* ScanTabForm::CreaPulsanti() {
    auto* annulla = CreaPulsante(QStringLiteral("CMBCancel"), tr("Cancel"),
                                 tr("Leaves the line as it was (Escape)"), this);
    auto* bene =
        CreaPulsante(QStringLiteral("CMBOK"), tr("OK"), tr("Keeps the values (Enter)"), this);
    bene->setProperty(kProprietaRuolo, QStringLiteral("accento"));
    bene->setDefault(true);
    connect(annulla, &QPushButton::clicked, this, &QDialog::reject);
    connect(bene, &QPushButton::clicked, this, &QDialog::accept);
    auto* riga = new QHBoxLayout;
    riga->setContentsMargins(0, 4, 0, 0);
    riga->addSpacing(fontMetrics().averageCharWidth() * 14); // room for the title
    riga->addStretch(1);
    riga->addWidget(annulla);
    riga->addWidget(bene);
    return riga;
}

void ScanTabForm::Cambiato(const std::optional<Riquadro>& rifiuto) {
    Specchia();
    if (rifiuto)
        ambiente_.Mostra(*rifiuto);
}

void ScanTabForm::Specchia() {
    const VistaModulo vista = VistaDelModulo(modulo_);
    for (const auto& specchio : pianta_.specchi)
        specchio(vista);
}

QWidget* ScanTabForm::Primo() const {
    const QLatin1String nome(Cerca(kPrimi, modulo_.colonna));
    auto* primo = nome.isEmpty() ? nullptr : findChild<QWidget*>(nome);
    if (primo && primo->isVisible() && primo->isEnabled())
        return primo;
    for (QWidget* w = nextInFocusChain(); w && w != this; w = w->nextInFocusChain())
        if (isAncestorOf(w) && w->isVisible() && w->isEnabled() && w->focusPolicy() & Qt::TabFocus)
            return w;
    return nullptr;
}

void ScanTabForm::ApriVicino(const QRect& cella, const QString& digitato) {
    adjustSize();
    QPoint angolo = cella.bottomLeft();
    if (const QScreen* schermo = parentWidget()->screen()) {
        const QRect spazio = schermo->availableGeometry();
        if (angolo.y() + height() > spazio.bottom())
            angolo.setY(std::max(spazio.top(), cella.top() - height()));
        angolo.setX(std::clamp(angolo.x(), spazio.left(),
                               std::max(spazio.left(), spazio.right() - width())));
    }
    move(angolo);
    open();
    if (!digitato.isEmpty())
        Digita(digitato);
}

/// Begins the entry of the column anew, where it has a text that can be used.
void ScanTabForm::Digita(const QString& digitato) {
    auto* testo = findChild<QWidget*>(QLatin1String(Cerca(kDigitabili, modulo_.colonna)));
    if (!testo || !testo->isEnabled() || !testo->isVisible())
        return;
    testo->setFocus();
    if (auto* riga = qobject_cast<QLineEdit*>(testo)) {
        riga->selectAll();
        riga->insert(digitato);
    } else if (auto* foglio = qobject_cast<QPlainTextEdit*>(testo)) {
        foglio->selectAll();
        foglio->insertPlainText(digitato);
    }
}

void ScanTabForm::showEvent(QShowEvent* evento) {
    QDialog::showEvent(evento);
    if (std::exchange(mostrata_, true))
        return;
    if (QWidget* primo = Primo())
        primo->setFocus(Qt::TabFocusReason);
    // What the line has may be gone from the disk meanwhile.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (const auto rifiuto = ControllaFreqTable(modulo_))
                Cambiato(rifiuto);
        },
        Qt::QueuedConnection);
}

void ScanTabForm::accept() {
    QWidget* aperto = focusWidget();
    if (aperto)
        aperto->clearFocus(); // commits the text that is being typed
    if (const auto rifiuto = ChiudiModulo(modulo_, linea_)) {
        ambiente_.Mostra(*rifiuto);
        return (aperto ? aperto : this)->setFocus();
    }
    QDialog::accept();
}

void ScanTabForm::closeEvent(QCloseEvent* evento) {
    if (isVisible()) {
        evento->ignore();
        accept();
    }
}

} // namespace orvane
