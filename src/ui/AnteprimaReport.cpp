#include "ui/AnteprimaReport.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include "ui/Moduli.h"
#include "ui/StileConsole.h"

namespace orvane {
namespace {

constexpr double kPixelPerCm = 96 / 2.54; ///< at 100 %

struct VoceZoom {
    const char* testo;
    double fattore; ///< 0 the whole page, -1 its width
};
constexpr VoceZoom kZoom[] = {{"Whole page", 0}, {"Page width", -1}, {"50 %", 0.5},
                              {"75 %", 0.75},    {"100 %", 1},       {"125 %", 1.25},
                              {"150 %", 1.5},    {"200 %", 2},       {"300 %", 3}};
constexpr int kPrimoFisso = 2;

} // namespace

AnteprimaReport::AnteprimaReport(PagineReport pagine, const QString& misura, QWidget* padre)
    : QDialog(padre), pagine_(std::move(pagine)), foglio_(new FoglioQt(pagine_, this)),
      area_(new QScrollArea(this)) {
    setObjectName(QStringLiteral("FrmAnteprimaReport"));
    setWindowTitle(tr("Preview of %1").arg(misura));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    Nomina(area_, QStringLiteral("AreaFoglio"), tr("Page"));
    area_->setWidget(foglio_);
    area_->setAlignment(Qt::AlignCenter);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setFocusPolicy(Qt::StrongFocus);
    area_->installEventFilter(this);
    area_->viewport()->installEventFilter(this);
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 10, 0, 0);
    colonna->addLayout(CreaBarra());
    colonna->addWidget(CreaFilo(this));
    colonna->addWidget(area_, 1);
    const QSize schermo = screen()->availableSize();
    resize(std::min(900, schermo.width() * 9 / 10), std::min(1000, schermo.height() * 9 / 10));
    Vai(0);
    area_->setFocus();
}

QLayout* AnteprimaReport::CreaBarra() {
    CMBPrima_ = CreaPulsante(QStringLiteral("CMBPreviousPage"), tr("Previous"),
                             tr("Page before (Page Up)"), this);
    CMBDopo_ = CreaPulsante(QStringLiteral("CMBNextPage"), tr("Next"),
                            tr("Page behind (Page Down)"), this);
    LBPagina_ = new QLabel(this);
    LBPagina_->setObjectName(QStringLiteral("LBPage"));
    CBXZoom_ = Nomina(new QComboBox(this), QStringLiteral("CBXZoom"), tr("Zoom"),
                      tr("Size of the page (Ctrl and + or -)"));
    for (const VoceZoom& voce : kZoom)
        CBXZoom_->addItem(tr(voce.testo));
    auto* chiudi = CreaPulsante(QStringLiteral("CMBExit"), tr("Close"), QString(), this);
    chiudi->setProperty(kProprietaRuolo, QStringLiteral("accento"));
    connect(CMBPrima_, &QPushButton::clicked, this, [this] { Vai(pagina_ - 1); });
    connect(CMBDopo_, &QPushButton::clicked, this, [this] { Vai(pagina_ + 1); });
    connect(CBXZoom_, &QComboBox::currentIndexChanged, this, &AnteprimaReport::AggiornaScala);
    connect(chiudi, &QPushButton::clicked, this, &QDialog::accept);
    auto* riga = new QHBoxLayout;
    riga->setContentsMargins(14, 0, 14, 0);
    riga->setSpacing(10);
    for (QWidget* w : std::initializer_list<QWidget*>{CMBPrima_, CMBDopo_, LBPagina_})
        riga->addWidget(w);
    riga->addStretch(1);
    riga->addWidget(CBXZoom_);
    riga->addWidget(chiudi);
    return riga;
}

void AnteprimaReport::Vai(int pagina, bool inFondo) {
    const int quante = static_cast<int>(pagine_.fogli.size());
    pagina_ = std::clamp(pagina, 0, quante - 1);
    foglio_->Mostra(static_cast<size_t>(pagina_));
    LBPagina_->setText(tr("Page %1 of %2").arg(pagina_ + 1).arg(quante));
    CMBPrima_->setEnabled(pagina_ > 0);
    CMBDopo_->setEnabled(pagina_ < quante - 1);
    QScrollBar* barra = area_->verticalScrollBar();
    barra->setValue(inFondo ? barra->maximum() : 0);
}

void AnteprimaReport::Sfoglia(int verso) {
    QScrollBar* barra = area_->verticalScrollBar();
    const int fine = verso > 0 ? barra->maximum() : barra->minimum();
    const int altra = pagina_ + verso;
    if (barra->value() != fine)
        barra->setValue(barra->value() + verso * barra->pageStep());
    else if (altra >= 0 && altra < static_cast<int>(pagine_.fogli.size()))
        Vai(altra, verso < 0);
}

/// From a fitted page to the nearest fixed size on the way.
void AnteprimaReport::Ingrandisci(int verso) {
    const double ora = foglio_->width() / (pagine_.larghezzaCm * kPixelPerCm);
    int nuovo = verso > 0 ? static_cast<int>(std::size(kZoom)) - 1 : kPrimoFisso;
    for (int i = kPrimoFisso; i < static_cast<int>(std::size(kZoom)); ++i) {
        const double fattore = kZoom[i].fattore;
        if (verso > 0 && fattore > ora * 1.05)
            return CBXZoom_->setCurrentIndex(i);
        if (verso < 0 && fattore < ora * 0.95)
            nuovo = i;
    }
    CBXZoom_->setCurrentIndex(nuovo);
}

void AnteprimaReport::AggiornaScala() {
    const double fattore = kZoom[CBXZoom_->currentIndex()].fattore;
    const QSize spazio = area_->size() - QSize(2 * FoglioQt::kBordo + 2, 2 * FoglioQt::kBordo + 2);
    const int barra = area_->verticalScrollBar()->sizeHint().width();
    double scala = fattore * kPixelPerCm;
    if (fattore < 0)
        scala = (spazio.width() - barra) / pagine_.larghezzaCm;
    if (fattore == 0)
        scala = std::min(spazio.width() / pagine_.larghezzaCm, spazio.height() / pagine_.altezzaCm);
    foglio_->Scala(std::max(scala, 2.0));
}

void AnteprimaReport::resizeEvent(QResizeEvent* evento) {
    QDialog::resizeEvent(evento);
    layout()->activate();
    AggiornaScala();
}

void AnteprimaReport::keyPressEvent(QKeyEvent* evento) {
    switch (evento->key()) {
    case Qt::Key_PageDown:
        return Sfoglia(1);
    case Qt::Key_PageUp:
        return Sfoglia(-1);
    case Qt::Key_Home:
        return Vai(0);
    case Qt::Key_End:
        return Vai(static_cast<int>(pagine_.fogli.size()) - 1);
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return Ingrandisci(1);
    case Qt::Key_Minus:
        return Ingrandisci(-1);
    default:
        QDialog::keyPressEvent(evento);
    }
}

/// Pages before the area scrolls by them, and the wheel with Ctrl.
bool AnteprimaReport::eventFilter(QObject* oggetto, QEvent* evento) {
    if (evento->type() == QEvent::KeyPress && oggetto == area_) {
        constexpr int kTasti[] = {Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Home, Qt::Key_End};
        auto* tasto = static_cast<QKeyEvent*>(evento);
        if (std::ranges::find(kTasti, tasto->key()) == std::end(kTasti))
            return false;
        keyPressEvent(tasto);
        return true;
    }
    if (evento->type() != QEvent::Wheel)
        return false;
    auto* rotella = static_cast<QWheelEvent*>(evento);
    const int verso = rotella->angleDelta().y() > 0 ? 1 : -1;
    if (rotella->modifiers() & Qt::ControlModifier)
        Ingrandisci(verso);
    else if (oggetto == area_->viewport() && area_->verticalScrollBar()->maximum() == 0)
        Sfoglia(-verso);
    else
        return false;
    return true;
}

} // namespace orvane
