#include "ui/AzioniScan.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>

#include "setup/ModificaTabella.h"
#include "setup/RigheScan.h"
#include "ui/Testi.h"

namespace orvane {

AzioniScan::AzioniScan(GridScanTab& griglia)
    : QObject(&griglia), griglia_(griglia), tabella_(griglia.Modello().Tabella()),
      storia_(tabella_) {
    const auto tasti = [](const char* testo) { return QKeySequence(QLatin1String(testo)); };
    Crea("MNUUndo", tr("&Undo"), {tasti("Ctrl+Z")}, SegnoScan::Annulla, &AzioniScan::Annulla);
    Crea("MNURedo", tr("&Redo"), {tasti("Ctrl+Shift+Z"), tasti("Ctrl+Y")}, SegnoScan::Ripeti,
         &AzioniScan::Ripeti);
    Crea("MNUCut", tr("Cu&t lines"), {tasti("Ctrl+X")}, SegnoScan::Nessuno, &AzioniScan::Taglia);
    Crea("MNUCopy", tr("&Copy lines"), {tasti("Ctrl+C")}, SegnoScan::Nessuno, &AzioniScan::Copia);
    Crea("MNUPaste", tr("&Paste lines"), {tasti("Ctrl+V")}, SegnoScan::Nessuno,
         &AzioniScan::Incolla);
    Crea("MNUDuplicate", tr("&Duplicate lines"), {tasti("Ctrl+D")}, SegnoScan::Duplica,
         &AzioniScan::Duplica);
    Crea("MNUMoveUp", tr("Move &up"), {tasti("Alt+Up")}, SegnoScan::Su, &AzioniScan::Su);
    Crea("MNUMoveDown", tr("Move d&own"), {tasti("Alt+Down")}, SegnoScan::Giu, &AzioniScan::Giu);
    Crea("MNUDeleteLine", tr("De&lete lines"), {tasti("Del")}, SegnoScan::Cancella,
         &AzioniScan::Cancella);
    griglia_.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&griglia_, &QWidget::customContextMenuRequested, this, &AzioniScan::MostraMenu);
    connect(griglia_.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &AzioniScan::Aggiorna);
    connect(&griglia_, &GridScanTab::RigaCorrenteCambiata, this, &AzioniScan::Aggiorna);
    Aggiorna();
}

void AzioniScan::Crea(const char* nome, const QString& testo, const QList<QKeySequence>& tasti,
                      SegnoScan segno, void (AzioniScan::*cosa)()) {
    auto* azione = new QAction(testo, this);
    azione->setObjectName(QLatin1String(nome));
    azione->setShortcuts(tasti);
    azione->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    azione->setToolTip(
        QStringLiteral("%1 (%2)").arg(QString(testo).remove(QLatin1Char('&')),
                                      tasti.constFirst().toString(QKeySequence::NativeText)));
    if (segno != SegnoScan::Nessuno)
        azione->setIcon(IconaScan(segno));
    connect(azione, &QAction::triggered, this, [this, cosa] {
        griglia_.setFocus(); // an open cell is committed first
        (this->*cosa)();
    });
    griglia_.addAction(azione);
}

QAction* AzioniScan::Azione(const char* nome) const {
    return findChild<QAction*>(QLatin1String(nome));
}

void AzioniScan::MostraMenu(const QPoint& dove) {
    QMenu menu(&griglia_);
    menu.setObjectName(QStringLiteral("MNURighe"));
    for (QAction* azione : griglia_.actions()) {
        if (azione->objectName() == QLatin1String("MNUCut") ||
            azione->objectName() == QLatin1String("MNUDuplicate"))
            menu.addSeparator();
        menu.addAction(azione);
    }
    menu.exec(griglia_.viewport()->mapToGlobal(dove));
}

void AzioniScan::Registra() {
    storia_.Registra(tabella_);
    Aggiorna();
}

void AzioniScan::Ricomincia() {
    storia_.Ricomincia(tabella_);
    griglia_.Modello().DimenticaSegni();
    Aggiorna();
}

void AzioniScan::Aggiorna() {
    const bool libera = griglia_.Modello().Modificabile();
    const auto [prima, ultima] = Scelte();
    const bool righe = prima <= ultima;
    const auto inUso = static_cast<int>(RigheInUso(tabella_));
    for (const char* nome : {"MNUCut", "MNUDuplicate", "MNUDeleteLine"})
        Azione(nome)->setEnabled(libera && righe);
    Azione("MNUCopy")->setEnabled(righe);
    Azione("MNUPaste")->setEnabled(libera);
    Azione("MNUUndo")->setEnabled(libera && storia_.PuoAnnullare());
    Azione("MNURedo")->setEnabled(libera && storia_.PuoRipetere());
    Azione("MNUMoveUp")->setEnabled(libera && righe && prima > 0);
    Azione("MNUMoveDown")->setEnabled(libera && righe && ultima + 1 < inUso);
}

std::pair<int, int> AzioniScan::Scelte() const {
    const auto [prima, ultima] = griglia_.RigheScelte();
    if (prima < 0)
        return {0, -1};
    return {prima, std::min(ultima, static_cast<int>(RigheInUso(tabella_)) - 1)};
}

std::span<const ScanLine> AzioniScan::RigheScelte() const {
    const auto [prima, ultima] = Scelte();
    if (ultima < prima)
        return {};
    return std::span(tabella_).subspan(static_cast<size_t>(prima),
                                       static_cast<size_t>(ultima - prima + 1));
}

/// Lines have moved: old marks speak of others now.
void AzioniScan::Fatto(int prima, int ultima) {
    griglia_.Modello().DimenticaSegni();
    griglia_.Modello().Aggiorna();
    griglia_.ScegliRighe(std::max(prima, 0), ultima);
    Q_EMIT Modificata();
}

void AzioniScan::Metti(const std::optional<ScanTable>& tabella) {
    if (!tabella)
        return;
    tabella_ = *tabella;
    const int riga = griglia_.RigheScelte().first;
    Fatto(std::min(riga, static_cast<int>(RigheInUso(tabella_))), -1);
}

void AzioniScan::Annulla() {
    Metti(storia_.Annulla());
}

void AzioniScan::Ripeti() {
    Metti(storia_.Ripeti());
}

void AzioniScan::Copia() {
    if (const auto righe = RigheScelte(); !righe.empty())
        QApplication::clipboard()->setText(Q(TestoDelleRighe(righe)));
}

void AzioniScan::Taglia() {
    Copia();
    Cancella();
}

void AzioniScan::Aggiungi(int dove, std::span<const ScanLine> righe) {
    if (!InserisciRighe(tabella_, static_cast<size_t>(dove), righe))
        return Q_EMIT Rifiutata(tr("A scan table has ten lines at most"));
    Fatto(dove, dove + static_cast<int>(righe.size()) - 1);
}

void AzioniScan::Incolla() {
    const RigheLette lette =
        LeggiRighe(S(QApplication::clipboard()->text()), griglia_.Modello().Ancillary());
    const int riga =
        std::clamp(griglia_.RigheScelte().first, 0, static_cast<int>(RigheInUso(tabella_)));
    if (!lette.righe.empty())
        Aggiungi(riga, lette.righe);
    QStringList errori;
    for (const std::string& errore : lette.errori)
        errori << Q(errore);
    if (lette.righe.empty() && errori.isEmpty())
        errori << tr("The clipboard holds no scan lines");
    if (!errori.isEmpty())
        Q_EMIT Rifiutata(errori.join(QLatin1Char('\r')));
}

void AzioniScan::Duplica() {
    const auto righe = RigheScelte();
    const std::vector<ScanLine> copie(righe.begin(), righe.end());
    if (!copie.empty())
        Aggiungi(Scelte().second + 1, copie);
}

/// The line above the block goes behind it.
void AzioniScan::Su() {
    const auto [prima, ultima] = Scelte();
    if (prima > 0 &&
        SpostaRiga(tabella_, static_cast<size_t>(prima - 1), static_cast<size_t>(ultima)))
        Fatto(prima - 1, ultima - 1);
}

void AzioniScan::Giu() {
    const auto [prima, ultima] = Scelte();
    if (ultima >= prima &&
        SpostaRiga(tabella_, static_cast<size_t>(ultima + 1), static_cast<size_t>(prima)))
        Fatto(prima + 1, ultima + 1);
}

void AzioniScan::Cancella() {
    const auto [prima, ultima] = Scelte();
    for (int riga = ultima; riga >= prima; --riga)
        CancellaRiga(tabella_, static_cast<size_t>(riga));
    if (ultima >= prima)
        Fatto(prima, -1);
}

} // namespace orvane
