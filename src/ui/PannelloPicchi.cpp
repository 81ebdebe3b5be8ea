#include "ui/PannelloPicchi.h"

#include <algorithm>

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include "records/ImpostazioniReport.h"
#include "ui/Moduli.h"
#include "ui/RigaScelta.h"
#include "ui/StileConsole.h"
#include "ui/Tema.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

constexpr int kOltre = Qt::UserRole; ///< a level above its limit
constexpr int kMargine = 9;

/// Rows between hair lines; what is over its limit in the colour of a fault, and bold.
class DelegatoPicchi : public QStyledItemDelegate {
public:
    DelegatoPicchi(const int& sorvolata, QObject* padre)
        : QStyledItemDelegate(padre), sorvolata_(sorvolata) {}
    void paint(QPainter* p, const QStyleOptionViewItem& o, const QModelIndex& i) const override {
        const bool oltre = i.data(kOltre).toBool();
        p->save();
        if (o.state & QStyle::State_Selected)
            p->fillRect(o.rect, Tinta(o.palette, Ruolo::Scelta));
        else if (i.row() == sorvolata_)
            p->fillRect(o.rect, Tinta(o.palette, Ruolo::Sorvolo));
        if (i.column() == 0)
            SegnaFuoco(*p, o, o.rect);
        p->setPen(Tinta(o.palette, Ruolo::Bordo));
        p->drawLine(o.rect.bottomLeft(), o.rect.bottomRight());
        QFont carattere = o.font;
        carattere.setWeight(oltre ? QFont::Bold : QFont::Normal);
        p->setFont(carattere);
        p->setPen(Tinta(o.palette, oltre             ? Ruolo::Errore
                                   : i.column() == 0 ? Ruolo::Tenue
                                                     : Ruolo::Testo));
        p->drawText(o.rect.adjusted(kMargine, 0, -4, 0), Qt::AlignVCenter, i.data().toString());
        p->restore();
    }

private:
    const int& sorvolata_;
};

/// What is greyed because it is not there yet, with its reason.
QPushButton* CreaSpento(const char* nome, const QString& testo, const QString& motivo,
                        QWidget* padre) {
    QPushButton* pulsante = CreaPulsante(QLatin1String(nome), testo, motivo, padre);
    pulsante->setEnabled(false);
    return pulsante;
}

} // namespace

PannelloPicchi::PannelloPicchi(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FRMHighestPeaks"));
    testa_ = CreaTesta(); // ahead of the table for the Tab key too
    griglia_ =
        Nomina(new QTableWidget(this), QStringLiteral("GridHighestPeaks"), tr("Highest Peaks"));
    griglia_->setFrameShape(QFrame::NoFrame);
    griglia_->setShowGrid(false);
    griglia_->setItemDelegate(new DelegatoPicchi(sorvolata_, griglia_));
    griglia_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    griglia_->setSelectionBehavior(QAbstractItemView::SelectRows);
    griglia_->setSelectionMode(QAbstractItemView::SingleSelection);
    griglia_->setTabKeyNavigation(false);
    griglia_->setMouseTracking(true);
    griglia_->viewport()->installEventFilter(this);
    griglia_->viewport()->setBackgroundRole(QPalette::Window);
    griglia_->verticalHeader()->hide();
    griglia_->horizontalHeader()->setHighlightSections(false);
    griglia_->horizontalHeader()->setSectionsClickable(false);
    griglia_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    griglia_->horizontalHeader()->setMinimumSectionSize(30);
    vuota_ = CreaDidascalia(tr("Not found Peaks"), this);
    vuota_->setObjectName(QStringLiteral("LBNoPeaks"));
    vuota_->setContentsMargins(12, 12, 12, 12);
    vuota_->setAlignment(Qt::AlignTop);
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(0);
    colonna->addWidget(griglia_, 1);
    colonna->addWidget(vuota_, 1);
    connect(griglia_, &QTableWidget::currentCellChanged, this, [this](int riga) {
        if (riga >= 0 && size_t(riga) < tabella_.righe.size())
            Q_EMIT Scelto(tabella_.righe[size_t(riga)].indice);
    });
    // A click on the row that is current already brings the marker back to it.
    connect(griglia_, &QTableWidget::cellClicked, this,
            [this](int riga) { Q_EMIT Scelto(tabella_.righe[size_t(riga)].indice); });
    connect(griglia_, &QTableWidget::cellEntered, this, &PannelloPicchi::Sorvola);
    ScalaTesto(100);
    Mostra({}, false);
}

QWidget* PannelloPicchi::CreaTesta() {
    auto* testa = new QWidget(this);
    righe_ = CreaDidascalia(QString(), testa);
    righe_->setObjectName(QStringLiteral("LBPeaks"));
    quanti_ = Nomina(new QSpinBox(testa), QStringLiteral("TBNumOFPeaks"), tr("Number of peaks"),
                     tr("How many of the highest peaks are listed, 1 to %1").arg(kMaxPicchi));
    quanti_->setRange(1, kMaxPicchi);
    quanti_->setKeyboardTracking(false);
    tabFreq_ = CreaPulsante(QStringLiteral("CMBMakeTabFreq"), tr("Frequency table"),
                            tr("Makes a frequency table from the list"), testa);
    auto* subRange = CreaSpento("CMBMakeTabSubRange", tr("Sub Range"),
                                tr("Sub Range measurements are not part of this release"), testa);
    report_ = CreaPulsante(QStringLiteral("CMBReport"), tr("Report"),
                           tr("Report 1 detector 2 limits"), testa);
    connect(report_, &QPushButton::clicked, this, &PannelloPicchi::ReportChiesto);
    report_->setProperty(kProprietaRuolo, "accento");
    auto* didascalia = CreaDidascalia(tr("Peaks"), testa);
    didascalia->setBuddy(quanti_);
    auto* riga = new QHBoxLayout(testa);
    riga->setContentsMargins(0, 0, 0, 0);
    riga->setSpacing(8);
    riga->addWidget(righe_, 1);
    for (QWidget* w :
         std::initializer_list<QWidget*>{didascalia, quanti_, tabFreq_, subRange, report_})
        riga->addWidget(w);
    connect(quanti_, &QSpinBox::valueChanged, this, &PannelloPicchi::QuantiCambiati);
    connect(tabFreq_, &QPushButton::clicked, this, &PannelloPicchi::TabellaFrequenze);
    return testa;
}

void PannelloPicchi::ImpostaQuanti(int quanti) {
    const QSignalBlocker zitto(quanti_);
    quanti_->setValue(quanti);
}

void PannelloPicchi::ScalaTesto(int percento) {
    QFont carattere = QApplication::font();
    carattere.setPointSizeF(carattere.pointSizeF() * percento / 100);
    griglia_->setFont(carattere);
    griglia_->verticalHeader()->setDefaultSectionSize(QFontMetrics(carattere).height() + 12);
    carattere.setPointSizeF(carattere.pointSizeF() * 0.85);
    carattere.setWeight(QFont::DemiBold);
    griglia_->horizontalHeader()->setFont(carattere);
    DisponiColonne();
}

void PannelloPicchi::Mostra(TabellaPicchi tabella, bool conMisura) {
    const int qui = griglia_->currentRow();
    const bool cEra = qui >= 0 && size_t(qui) < tabella_.righe.size();
    const qulonglong indice = cEra ? tabella_.righe[size_t(qui)].indice : ~0ULL;
    tabella_ = std::move(tabella);
    Riempi();
    const auto quante = int(tabella_.righe.size());
    quanti_->setEnabled(conMisura);
    report_->setEnabled(conMisura);
    tabFreq_->setEnabled(quante > 0);
    righe_->setText(!conMisura ? QString() : quante == 1 ? tr("1 row") : tr("%1 rows").arg(quante));
    griglia_->setVisible(quante > 0);
    vuota_->setVisible(quante == 0);
    vuota_->setText(conMisura ? tr("Not found Peaks") : QString());
    Evidenzia(indice);
}

void PannelloPicchi::Riempi() {
    const QSignalBlocker zitta(griglia_);
    griglia_->clear();
    griglia_->setColumnCount(int(tabella_.titoli.size()) + 1);
    griglia_->setRowCount(int(tabella_.righe.size()));
    griglia_->setHorizontalHeaderItem(0, new QTableWidgetItem(QString()));
    for (size_t t = 0; t < tabella_.titoli.size(); ++t) {
        auto* titolo = new QTableWidgetItem(Q(tabella_.titoli[t].testo));
        titolo->setToolTip(Q(tabella_.titoli[t].aiuto));
        griglia_->setHorizontalHeaderItem(int(t) + 1, titolo);
    }
    for (int r = 0; r < griglia_->rowCount(); ++r) {
        const RigaPicco& riga = tabella_.righe[size_t(r)];
        int colonna = 0;
        const auto scrivi = [&](const QString& testo, bool oltre = false) {
            auto* cella = new QTableWidgetItem(testo);
            cella->setData(kOltre, oltre);
            griglia_->setItem(r, colonna++, cella);
        };
        scrivi(QString::number(r + 1));
        scrivi(Q(riga.frequenza));
        for (const std::string& livello : riga.livelli)
            scrivi(Q(livello));
        for (const auto& c : riga.confronti) {
            scrivi(Q(c.limite));
            scrivi(Q(c.delta), c.oltre);
        }
    }
    DisponiColonne();
}

void PannelloPicchi::DisponiColonne() {
    QHeaderView* testata = griglia_->horizontalHeader();
    if (griglia_->columnCount() == 0)
        return;
    testata->setSectionResizeMode(QHeaderView::Stretch);
    testata->setSectionResizeMode(0, QHeaderView::Fixed);
    testata->resizeSection(0, 2 * kMargine + 3 * griglia_->fontMetrics().averageCharWidth());
}

int PannelloPicchi::Riga(qulonglong indice) const {
    const auto riga = std::ranges::find(tabella_.righe, indice, &RigaPicco::indice);
    return riga == tabella_.righe.end() ? -1 : int(riga - tabella_.righe.begin());
}

void PannelloPicchi::Evidenzia(qulonglong indice) {
    const QSignalBlocker zitta(griglia_);
    const int riga = Riga(indice);
    griglia_->setCurrentCell(riga, riga < 0 ? -1 : 1);
    if (riga < 0)
        griglia_->clearSelection();
    else
        griglia_->selectRow(riga);
    griglia_->viewport()->update();
}

void PannelloPicchi::ShowPictMouseHP(qulonglong indice) {
    Sorvola(Riga(indice));
    if (sorvolata_ >= 0)
        griglia_->scrollTo(griglia_->model()->index(sorvolata_, 0));
}

void PannelloPicchi::Sorvola(int riga) {
    sorvolata_ = riga;
    griglia_->viewport()->update();
}

bool PannelloPicchi::eventFilter(QObject* oggetto, QEvent* evento) {
    if (evento->type() == QEvent::Leave)
        Sorvola(-1);
    return QWidget::eventFilter(oggetto, evento);
}

} // namespace orvane
