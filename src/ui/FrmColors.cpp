#include "ui/FrmColors.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "data/Panels.h"
#include "ui/Moduli.h"
#include "ui/Pulsantiera.h"
#include "ui/Tema.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

constexpr int kColonnaNome = 0;
constexpr int kColonnaSchermo = 1;
constexpr int kColonnaStampa = 2;
constexpr int kRuoloEntrata = Qt::UserRole;
constexpr int kRuoloTitolo = Qt::UserRole + 1;

/// A swatch with its code; headings and names as text.
class DelegatoColore : public QStyledItemDelegate {
public:
    DelegatoColore(const EnvRecord& env, QObject* padre) : QStyledItemDelegate(padre), env_(env) {}

    void paint(QPainter* p, const QStyleOptionViewItem& o, const QModelIndex& i) const override {
        const auto* vista = static_cast<const QAbstractItemView*>(o.widget);
        const bool riga = vista->currentIndex().row() == i.row();
        p->fillRect(o.rect, Tinta(o.palette, riga ? Ruolo::Scelta : Ruolo::Finestra));
        if (const QVariant entrata = i.data(kRuoloEntrata); entrata.isValid())
            DipingiColore(*p, o, env_.GraphColors[entrata.toUInt()]);
        else
            DipingiTesto(*p, o, i);
        if (vista->currentIndex() == i && vista->hasFocus()) {
            p->setPen(Tinta(o.palette, Ruolo::Accento));
            p->setBrush(Qt::NoBrush);
            p->drawRect(o.rect.adjusted(0, 0, -1, -1));
        }
    }

private:
    void DipingiColore(QPainter& p, const QStyleOptionViewItem& o, int32_t colore) const {
        const int lato = o.rect.height() - 10;
        DisegnaCampione(p, QRectF(o.rect.x() + 8, o.rect.y() + 5, lato * 1.6, lato), colore,
                        colore);
        p.setFont(o.font);
        p.setPen(Tinta(o.palette, Ruolo::Tenue));
        p.drawText(o.rect.adjusted(int(lato * 1.6) + 16, 0, 0, 0), Qt::AlignVCenter,
                   Q(TestoColore(colore)));
    }
    void DipingiTesto(QPainter& p, const QStyleOptionViewItem& o, const QModelIndex& i) const {
        const bool titolo = i.data(kRuoloTitolo).toBool();
        QFont carattere = o.font;
        carattere.setWeight(titolo ? QFont::DemiBold : QFont::Normal);
        p.setFont(carattere);
        p.setPen(Tinta(o.palette, titolo ? Ruolo::Tenue : Ruolo::Testo));
        p.drawText(o.rect.adjusted(titolo ? 6 : 16, 0, -4, 0), Qt::AlignVCenter,
                   i.data().toString());
    }

    const EnvRecord& env_;
};

QTableWidgetItem* CreaCella(const QString& testo, Qt::ItemFlags segni) {
    auto* cella = new QTableWidgetItem(testo);
    cella->setFlags(segni);
    return cella;
}

} // namespace

FrmColors::FrmColors(Scrivania& scrivania, ScegliColori scegli, QWidget* padre)
    : QDialog(padre), scrivania_(scrivania), prima_(scrivania.env), scegli_(std::move(scegli)) {
    setObjectName(QStringLiteral("FrmColors"));
    setWindowTitle(tr("Colours"));
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(20, 18, 20, 16);
    colonna->setSpacing(18);
    auto* corpo = new QHBoxLayout;
    corpo->setSpacing(24);
    QWidget* lato = CreaLato(); // the list speaks to it
    corpo->addWidget(CreaTabella());
    corpo->addWidget(lato, 1);
    colonna->addLayout(corpo, 1);
    colonna->addLayout(CreaPulsanti());
    RiempiTabella();
    setTabOrder(tabella_, editor_);
    // Enter in the field of the code ends that field alone.
    findChild<QPushButton*>(QStringLiteral("CMBOK"))->setDefault(false);
    tabella_->setFocus();
}

QWidget* FrmColors::CreaTabella() {
    tabella_ = Nomina(new QTableWidget(0, 3, this), QStringLiteral("GridColors"), tr("Colours"));
    tabella_->setHorizontalHeaderLabels({tr("Colour of"), tr("Screen"), tr("Print")});
    tabella_->setItemDelegate(new DelegatoColore(scrivania_.env, tabella_));
    tabella_->setSelectionMode(QAbstractItemView::SingleSelection);
    tabella_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabella_->setTabKeyNavigation(false);
    tabella_->setShowGrid(false);
    tabella_->setFrameShape(QFrame::NoFrame);
    tabella_->viewport()->setBackgroundRole(QPalette::Window);
    tabella_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    tabella_->verticalHeader()->hide();
    tabella_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
    tabella_->horizontalHeader()->setHighlightSections(false);
    tabella_->horizontalHeader()->setSectionsClickable(false);
    tabella_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    const int m = fontMetrics().averageCharWidth();
    tabella_->setColumnWidth(kColonnaNome, 24 * m);
    tabella_->setColumnWidth(kColonnaSchermo, 17 * m);
    tabella_->setColumnWidth(kColonnaStampa, 17 * m);
    tabella_->setFixedWidth(58 * m + 16);
    tabella_->setMinimumHeight(18 * (fontMetrics().height() + 10));
    connect(tabella_, &QTableWidget::currentItemChanged, this, &FrmColors::MostraCella);
    return tabella_;
}

QWidget* FrmColors::CreaLato() {
    auto* lato = new QWidget(this);
    auto* colonna = new QVBoxLayout(lato);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(12);
    anteprima_ = new AnteprimaGrafico(scrivania_.env, lato);
    schermo_ = Nomina(new QRadioButton(tr("Screen"), lato), QStringLiteral("OptPreview0"),
                      tr("Preview of the screen"));
    stampa_ = Nomina(new QRadioButton(tr("Print"), lato), QStringLiteral("OptPreview1"),
                     tr("Preview of the print"));
    schermo_->setChecked(true);
    connect(stampa_, &QRadioButton::toggled, anteprima_, &AnteprimaGrafico::ImpostaStampa);
    auto* scelta = new QHBoxLayout;
    scelta->addWidget(CreaTitoletto(tr("Preview"), lato));
    scelta->addStretch(1);
    scelta->addWidget(schermo_);
    scelta->addWidget(stampa_);
    titolo_ = new QLabel(lato);
    titolo_->setObjectName(QStringLiteral("LBColor"));
    editor_ = new EditorColore(lato);
    connect(editor_, &EditorColore::Scelto, this, &FrmColors::Imposta);
    colonna->addLayout(scelta);
    colonna->addWidget(anteprima_, 1);
    colonna->addWidget(titolo_);
    colonna->addWidget(editor_);
    return lato;
}

QLayout* FrmColors::CreaPulsanti() {
    auto* normali = CreaPulsante(QStringLiteral("CMBDefaultColors"), tr("Default colours"),
                                 tr("Every colour as on the first start"), this);
    auto* carica = CreaPulsante(QStringLiteral("CMBLoadColors"), tr("Load…"),
                                tr("Loads a colour set; it sets the other values of the "
                                   "environment too"),
                                this);
    auto* salva = CreaPulsante(QStringLiteral("CMBSaveColors"), tr("Save…"),
                               tr("Saves the colours as a set"), this);
    connect(normali, &QPushButton::clicked, this, [this] {
        ImpostaColoriDefault(scrivania_.env);
        Ridipingi();
    });
    connect(carica, &QPushButton::clicked, this, &FrmColors::Carica);
    connect(salva, &QPushButton::clicked, this, &FrmColors::Salva);
    return CreaPulsantiFinali(*this, {normali, carica, salva});
}

void FrmColors::RiempiTabella() {
    const auto aggiungi = [this](QTableWidgetItem* nome) {
        const int riga = tabella_->rowCount();
        tabella_->insertRow(riga);
        tabella_->setItem(riga, kColonnaNome, nome);
        return riga;
    };
    const auto cella = [this](int riga, int colonna, size_t entrata) {
        auto* campione = CreaCella(QString(), Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        campione->setData(kRuoloEntrata, static_cast<uint>(entrata));
        campione->setData(Qt::AccessibleTextRole, tabella_->item(riga, kColonnaNome)->text());
        tabella_->setItem(riga, colonna, campione);
    };
    QString gruppo;
    for (const VoceColore& voce : VociColori()) {
        if (gruppo != QLatin1String(voce.gruppo)) {
            gruppo = QLatin1String(voce.gruppo);
            auto* titolo = CreaCella(gruppo, Qt::NoItemFlags);
            titolo->setData(kRuoloTitolo, true);
            tabella_->setSpan(aggiungi(titolo), kColonnaNome, 1, 3);
        }
        const int riga = aggiungi(CreaCella(Q(voce.nome), Qt::ItemIsEnabled));
        cella(riga, kColonnaSchermo, voce.schermo);
        if (voce.stampa != voce.schermo)
            cella(riga, kColonnaStampa, voce.stampa);
        else
            tabella_->setItem(riga, kColonnaStampa, CreaCella(QString(), Qt::NoItemFlags));
    }
    tabella_->setCurrentCell(1, kColonnaSchermo);
}

std::optional<size_t> FrmColors::Entrata(const QTableWidgetItem* cella) const {
    if (!cella)
        return std::nullopt;
    const QTableWidgetItem* colore =
        cella->column() == kColonnaNome ? tabella_->item(cella->row(), kColonnaSchermo) : cella;
    const QVariant entrata = colore ? colore->data(kRuoloEntrata) : QVariant();
    return entrata.isValid() ? std::optional<size_t>(entrata.toUInt()) : std::nullopt;
}

void FrmColors::MostraCella() {
    const QTableWidgetItem* cella = tabella_->currentItem();
    const auto entrata = Entrata(cella);
    editor_->setEnabled(entrata.has_value());
    tabella_->viewport()->update();
    if (!entrata)
        return;
    const bool suCarta = cella->column() == kColonnaStampa;
    (suCarta ? stampa_ : schermo_)->setChecked(true);
    const QString nome = tabella_->item(cella->row(), kColonnaNome)->text();
    titolo_->setText(suCarta ? tr("%1, print").arg(nome) : nome);
    editor_->Mostra(scrivania_.env.GraphColors[*entrata], prima_.GraphColors[*entrata]);
}

void FrmColors::Imposta(int32_t colore) {
    const auto entrata = Entrata(tabella_->currentItem());
    if (!entrata)
        return;
    scrivania_.env.GraphColors[*entrata] = colore;
    tabella_->viewport()->update();
    anteprima_->update();
    Q_EMIT Cambiato();
}

void FrmColors::Ridipingi() {
    MostraCella();
    anteprima_->update();
    Q_EMIT Cambiato();
}

void FrmColors::Carica() {
    const auto percorso = scegli_(false);
    // Loading what is not there would write it.
    if (!percorso || !scrivania_.albero.Esiste(*percorso))
        return;
    CaricaPanelEPN(scrivania_, *percorso);
    Ridipingi();
}

void FrmColors::Salva() {
    if (const auto percorso = scegli_(true))
        SalvaPanelEPN(scrivania_, *percorso);
}

void FrmColors::accept() {
    SalvaPanelEPN(scrivania_, kPannelloEPN);
    QDialog::accept();
}

void FrmColors::reject() {
    scrivania_.env = prima_;
    Q_EMIT Cambiato();
    QDialog::reject();
}

} // namespace orvane
