#include "ui/GrigliaReportQt.h"

#include <algorithm>

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include "platform/qt/SuperficieQt.h"
#include "ui/Moduli.h"
#include "ui/Tema.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

constexpr int kPerPollice = 1440;
constexpr int kDpi = 96; ///< of the widths that the columns were given
constexpr int kMargineCella = 8;
constexpr int kSopraBarra = 4;
constexpr int kSottoTesta = 5;

constexpr int InPixel(int misura) {
    return misura * kDpi / kPerPollice;
}
constexpr int kAltezzaBarra = InPixel(BarraLimite::kAltezza);

/// Headings of two lines, above a hair line.
class TestaReport : public QHeaderView {
public:
    explicit TestaReport(QWidget* padre) : QHeaderView(Qt::Horizontal, padre) {
        setHighlightSections(false);
        setSectionsClickable(false);
        setStretchLastSection(false);
        setMinimumSectionSize(20);
    }
    QSize sizeHint() const override {
        return {QHeaderView::sizeHint().width(),
                2 * fontMetrics().lineSpacing() + kAltezzaBarra + 2 * kSopraBarra + kSottoTesta};
    }

protected:
    void paintSection(QPainter* p, const QRect& r, int sezione) const override {
        p->save();
        p->fillRect(r, palette().color(QPalette::Window));
        p->setPen(Tinta(palette(), Ruolo::Bordo));
        p->drawLine(r.bottomLeft(), r.bottomRight());
        p->setPen(Tinta(palette(), Ruolo::Tenue));
        p->setFont(font());
        p->drawText(r.adjusted(kMargineCella, 0, -2, -kSottoTesta), Qt::AlignBottom | Qt::AlignLeft,
                    model()->headerData(sezione, Qt::Horizontal).toString());
        p->restore();
    }
};

QFont FontNumeri() {
    QFont carattere = QApplication::font();
    carattere.setStyleHint(QFont::SansSerif);
    return carattere;
}

/// Blanks pad numbers to one width: as wide as a digit, they stand under each other.
QString Allineato(const std::string& cella) {
    QString testo = Q(cella);
    const QChar cifra(0x2007);
    for (qsizetype i = 0; i < testo.size() && testo[i] == QLatin1Char(' '); ++i)
        testo[i] = cifra;
    return testo;
}

} // namespace

void ModelloReport::Mostra(const GrigliaReport* griglia) {
    beginResetModel();
    griglia_ = griglia;
    endResetModel();
}

int ModelloReport::rowCount(const QModelIndex& padre) const {
    return padre.isValid() || !griglia_ ? 0 : std::max(1, static_cast<int>(griglia_->righe.size()));
}

int ModelloReport::columnCount(const QModelIndex& padre) const {
    return padre.isValid() || !griglia_ ? 0 : static_cast<int>(griglia_->colonne.size());
}

QVariant ModelloReport::data(const QModelIndex& indice, int ruolo) const {
    const auto riga = static_cast<size_t>(indice.row());
    const auto colonna = static_cast<size_t>(indice.column());
    if (!griglia_ || riga >= griglia_->righe.size())
        return {};
    switch (ruolo) {
    case Qt::DisplayRole:
        return Allineato(griglia_->righe[riga].celle[colonna]);
    case Qt::TextAlignmentRole:
        return int(colonna == 0 ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        return griglia_->tagliata ? QVariant(QColor(Qt::red)) : QVariant();
    default:
        return {};
    }
}

QVariant ModelloReport::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
    if (verso != Qt::Horizontal || !griglia_ || sezione < 0 || sezione >= columnCount())
        return {};
    const ColonnaReport& colonna = griglia_->colonne[static_cast<size_t>(sezione)];
    if (ruolo == Qt::DisplayRole)
        return Q(colonna.intestazione).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    if (ruolo == Qt::ToolTipRole && !colonna.nome.empty())
        return Q(colonna.nome);
    return {};
}

GrigliaReportQt::GrigliaReportQt(QWidget* padre)
    : QTableView(padre), modello_(new ModelloReport(this)) {
    Nomina(this, QStringLiteral("GridReport"), tr("Report"));
    setModel(modello_);
    setFont(FontNumeri());
    setHorizontalHeader(new TestaReport(this));
    setFrameShape(QFrame::NoFrame);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    for (size_t i = 0; i < LBColorLim_.size(); ++i) {
        LBColorLim_[i] = new QFrame(horizontalHeader());
        LBColorLim_[i]->setObjectName(QStringLiteral("LBColorLim%1").arg(i));
        LBColorLim_[i]->setAutoFillBackground(true);
        LBColorLim_[i]->hide();
    }
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] { DisponiBarre(); });
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { DisponiBarre(); });
}

MisuraTesto GrigliaReportQt::Misura() const {
    return [metrica = QFontMetricsF(horizontalHeader()->font())](std::string_view testo) {
        return metrica.horizontalAdvance(Q(testo)) * kPerPollice / kDpi;
    };
}

void GrigliaReportQt::Mostra(const GrigliaReport* griglia) {
    modello_->Mostra(griglia);
    if (!griglia)
        return;
    DisponiColonne();
    DisponiBarre();
}

/// The documented widths, or what heading and first row need in this font.
void GrigliaReportQt::DisponiColonne() {
    const auto& colonne = modello_->Griglia()->colonne;
    const auto& righe = modello_->Griglia()->righe;
    for (size_t i = 0; i < colonne.size(); ++i) {
        const int sezione = static_cast<int>(i);
        int larga = InPixel(colonne[i].larghezza);
        const QString testa =
            modello_->headerData(sezione, Qt::Horizontal, Qt::DisplayRole).toString();
        for (const QString& riga : testa.split(QLatin1Char('\n')))
            larga = std::max(larga, horizontalHeader()->fontMetrics().horizontalAdvance(riga));
        // The last row has the widest number, and frequencies are padded to one width.
        if (!righe.empty())
            larga =
                std::max(larga, fontMetrics().horizontalAdvance(Allineato(righe.back().celle[i])));
        setColumnWidth(sezione, larga + 2 * kMargineCella);
    }
}

void GrigliaReportQt::DisponiBarre() {
    const GrigliaReport* griglia = modello_->Griglia();
    for (size_t slot = 0; slot < LBColorLim_.size(); ++slot) {
        const bool si = griglia && griglia->LBColorLim[slot].visibile;
        LBColorLim_[slot]->setVisible(si);
        if (!si)
            continue;
        const auto colonna = std::ranges::find_if(griglia->colonne, [slot](const ColonnaReport& c) {
            return c.genere == GenereColonna::Limite && c.quale == slot;
        });
        const int sezione = static_cast<int>(colonna - griglia->colonne.begin());
        QPalette tinta;
        tinta.setColor(QPalette::Window, ColoreQt(griglia->LBColorLim[slot].colore));
        LBColorLim_[slot]->setPalette(tinta);
        LBColorLim_[slot]->setGeometry(
            horizontalHeader()->sectionViewportPosition(sezione) + kMargineCella, kSopraBarra,
            std::min(InPixel(BarraLimite::kLarghezza), columnWidth(sezione)), kAltezzaBarra);
    }
}

int GrigliaReportQt::LarghezzaColonne() const {
    return horizontalHeader()->length() + verticalScrollBar()->sizeHint().width() + 2;
}

void GrigliaReportQt::keyPressEvent(QKeyEvent* evento) {
    if (evento->matches(QKeySequence::Copy))
        return Copia();
    QTableView::keyPressEvent(evento);
}

/// The chosen rows, as a spreadsheet takes them.
void GrigliaReportQt::Copia() const {
    QStringList righe;
    for (const QModelIndex& scelta : selectionModel()->selectedRows()) {
        QStringList celle;
        for (int c = 0; c < modello_->columnCount(); ++c)
            celle << scelta.siblingAtColumn(c).data().toString().trimmed();
        righe << celle.join(QLatin1Char('\t'));
    }
    if (!righe.isEmpty())
        QApplication::clipboard()->setText(righe.join(QLatin1Char('\n')));
}

} // namespace orvane
