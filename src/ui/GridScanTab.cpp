#include "ui/GridScanTab.h"

#include <array>

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

#include "setup/ModificaTabella.h"
#include "ui/DelegatoScan.h"
#include "ui/SceltaDetector.h"

namespace orvane {
namespace {

/// Shares of the width, by `ColonnaScan`.
constexpr std::array<int, 12> kQuote = {4, 8, 8, 8, 9, 10, 10, 8, 9, 8, 12, 9};

} // namespace

GridScanTab::GridScanTab(ScanTable& tabella, bool modificabile, QWidget* padre)
    : QTableView(padre), modello_(new ModelloScan(tabella, modificabile, this)) {
    setModel(modello_);
    setItemDelegate(new DelegatoScan(this));
    setAccessibleName(tr("Scan table"));
    setFrameShape(QFrame::NoFrame);
    setShowGrid(false);
    viewport()->setBackgroundRole(QPalette::Window);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::EditKeyPressed);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setMinimumSectionSize(30);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    ScalaTesto(100);
    connect(this, &QTableView::clicked, this, &GridScanTab::ApriCellaScanTab);
    connect(static_cast<DelegatoScan*>(itemDelegate()), &DelegatoScan::Confermata, this,
            &GridScanTab::Avanza, Qt::QueuedConnection);
}

void GridScanTab::ScalaTesto(int percento) {
    QFont carattere = QApplication::font();
    carattere.setPointSizeF(carattere.pointSizeF() * percento / 100);
    setFont(carattere);
    verticalHeader()->setDefaultSectionSize(QFontMetrics(carattere).height() + 14);
    carattere.setPointSizeF(carattere.pointSizeF() * 0.85);
    carattere.setWeight(QFont::DemiBold);
    horizontalHeader()->setFont(carattere);
    DisponiColonne();
}

void GridScanTab::ApriCellaScanTab(const QModelIndex& cella) {
    if (!modello_->Modificabile() || !cella.isValid())
        return;
    if (static_cast<ColonnaScan>(cella.column()) == ColonnaScan::Detector)
        return ApriDetector(cella);
    if (cella.flags() & Qt::ItemIsEditable)
        edit(cella);
}

void GridScanTab::ApriDetector(const QModelIndex& cella) {
    if (!modello_->Modificabile() || !RigaCompleta(modello_->Riga(cella.row())))
        return;
    const auto riga = static_cast<size_t>(cella.row());
    auto* scelta = new SceltaDetector(modello_->Riga(cella.row()).Detector, this);
    connect(scelta, &SceltaDetector::Cambiato, this, [this, scelta, riga](int detector, bool si) {
        ScanLine& linea = modello_->Tabella()[riga];
        CambiaDetector(linea, static_cast<DetectorKind>(detector), si);
        scelta->Mostra(linea.Detector);
        modello_->Aggiorna();
        Q_EMIT modello_->Modificata();
    });
    scelta->Apri(viewport()->mapToGlobal(visualRect(cella).bottomLeft()));
}

/// To the next cell that can be edited, at the end of the row to the first of the next.
void GridScanTab::Avanza() {
    int riga = currentIndex().row();
    int colonna = currentIndex().column();
    for (int passo = 0; passo < modello_->columnCount() * 2; ++passo) {
        if (++colonna >= modello_->columnCount()) {
            colonna = 1;
            ++riga;
        }
        const QModelIndex cella = modello_->index(riga, colonna);
        if (!cella.isValid())
            return;
        const bool detector = static_cast<ColonnaScan>(colonna) == ColonnaScan::Detector &&
                              RigaCompleta(modello_->Riga(riga));
        if (detector || cella.flags() & Qt::ItemIsEditable)
            return setCurrentIndex(cella);
    }
}

void GridScanTab::keyPressEvent(QKeyEvent* evento) {
    const QModelIndex cella = currentIndex();
    if (!modello_->Modificabile() || !cella.isValid())
        return QTableView::keyPressEvent(evento);
    switch (evento->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_F2:
        return ApriCellaScanTab(cella);
    case Qt::Key_Delete:
        CancellaRiga(modello_->Tabella(), static_cast<size_t>(cella.row()));
        modello_->Aggiorna();
        Q_EMIT modello_->Modificata();
        return;
    default:
        QTableView::keyPressEvent(evento);
    }
}

void GridScanTab::resizeEvent(QResizeEvent* evento) {
    QTableView::resizeEvent(evento);
    DisponiColonne();
}

void GridScanTab::DisponiColonne() {
    const int largo = std::max(viewport()->width(), fontMetrics().averageCharWidth() * 96);
    int somma = 0;
    for (const int quota : kQuote)
        somma += quota;
    int usato = 0;
    for (size_t i = 0; i + 1 < kQuote.size(); ++i) {
        const int colonna = largo * kQuote[i] / somma;
        setColumnWidth(static_cast<int>(i), colonna);
        usato += colonna;
    }
    setColumnWidth(static_cast<int>(kQuote.size()) - 1, largo - usato);
}

} // namespace orvane
