#include "ui/FrmLoadSave.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <QValidator>

#include "base/Percorsi.h"
#include "base/Testo.h"
#include "data/FileTabelle.h"
#include "data/NomiTabelle.h"
#include "data/TabelleLimFac.h"
#include "ui/Moduli.h"
#include "ui/StileConsole.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

/// Refuses the keys that no name may hold.
class ValidatoreNome : public QValidator {
public:
    using QValidator::QValidator;
    State validate(QString& testo, int&) const override {
        const std::string nome = S(testo);
        return ControllaNomeMisura(nome) == nome ? Acceptable : Invalid;
    }
};

/// Rows with some air.
class DelegatoFile : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& o, const QModelIndex& i) const override {
        return {QStyledItemDelegate::sizeHint(o, i).width(), o.fontMetrics.height() + 8};
    }
};

QString InMhz(double mhz) {
    return QString::number(mhz, 'g', 6) + QStringLiteral(" MHz");
}

QString Dettagli(const ContenutoTabella& c) {
    std::optional<double> da;
    std::optional<double> a;
    for (const RigaTabella& riga : c.righe) {
        da = da ? da : riga.freqMhz;
        a = riga.freqMhz ? riga.freqMhz : a;
    }
    const QString punti = TestoPunti(c.righe.size());
    return da ? QStringLiteral("%1  ·  %2 to %3").arg(punti, InMhz(*da), InMhz(*a)) : punti;
}

} // namespace

FrmLoadSave::FrmLoadSave(Console& console, const RichiestaFile& richiesta, Modo modo,
                         const QString& titolo, QWidget* padre)
    : QDialog(padre), console_(console), richiesta_(richiesta), modo_(modo) {
    setObjectName(QStringLiteral("FrmLoadSave"));
    setWindowTitle(titolo);
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(16, 16, 16, 14);
    colonna->setSpacing(14);
    auto* mezzo = new QHBoxLayout;
    mezzo->setSpacing(16);
    mezzo->addWidget(CreaElenco(), 3);
    mezzo->addWidget(CreaAnteprima(), 4);
    colonna->addLayout(mezzo, 1);
    if (modo == Modo::Salva) {
        nome_ = Nomina(new QLineEdit(this), QStringLiteral("TBSave"), tr("Name"),
                       tr("None of  . , + [ ] \\ / | = * ^ : ; < > ? \""));
        nome_->setValidator(new ValidatoreNome(nome_));
        connect(nome_, &QLineEdit::textEdited, this, &FrmLoadSave::SegnaUguale);
        auto* riga = new QHBoxLayout;
        riga->setSpacing(12);
        riga->addWidget(CreaDidascalia(tr("Name"), this));
        riga->addWidget(nome_, 1);
        colonna->addLayout(riga);
    }
    colonna->addLayout(CreaPulsanti());
    Elenca();
    ScegliUltimo();
    (nome_ ? static_cast<QWidget*>(nome_) : lista_)->setFocus();
}

FrmLoadSave::FrmLoadSave(Console& console, const ContenutoTabella& tabella, const QString& nome,
                         QWidget* padre)
    : QDialog(padre), console_(console) {
    setObjectName(QStringLiteral("FrmLoadSave"));
    setWindowTitle(tabella.kind == TableKind::Limite ? tr("Upload Limit")
                                                     : tr("Upload Conversion Factor"));
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(20, 18, 20, 16);
    store_ = new PannelloStore(console, tabella, nome, this);
    colonna->addWidget(store_);
    connect(store_, &PannelloStore::Memorizzata, this, [this] { done(QDialog::Accepted); });
    connect(store_, &PannelloStore::Chiudi, this, &FrmLoadSave::reject);
}

QWidget* FrmLoadSave::CreaElenco() {
    lista_ = Nomina(new QListWidget(this), QStringLiteral("FileList"), tr("Files"));
    lista_->setItemDelegate(new DelegatoFile(lista_));
    lista_->setFrameShape(QFrame::NoFrame);
    lista_->setMinimumWidth(fontMetrics().averageCharWidth() * 30);
    lista_->setMinimumHeight(fontMetrics().height() * 12);
    connect(lista_, &QListWidget::currentTextChanged, this, &FrmLoadSave::Scegli);
    connect(lista_, &QListWidget::itemDoubleClicked, this, &FrmLoadSave::accept);
    auto* tasto = new QShortcut(QKeySequence::Delete, lista_);
    tasto->setContext(Qt::WidgetShortcut);
    connect(tasto, &QShortcut::activated, this, &FrmLoadSave::Cancella);
    return lista_;
}

QWidget* FrmLoadSave::CreaAnteprima() {
    anteprima_ = new QWidget(this);
    auto* colonna = new QVBoxLayout(anteprima_);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(6);
    titolo_ = new QLabel(anteprima_);
    titolo_->setObjectName(QStringLiteral("LBTitolo"));
    titolo_->setWordWrap(true);
    QFont carattere = titolo_->font();
    carattere.setWeight(QFont::DemiBold);
    titolo_->setFont(carattere);
    dettagli_ = CreaDidascalia(QString(), anteprima_);
    dettagli_->setObjectName(QStringLiteral("LBDettagli"));
    dettagli_->setWordWrap(true);
    quadro_ = new QuadroTabella(console_.scrivania.env, anteprima_);
    QSizePolicy tieneIlPosto = quadro_->sizePolicy();
    tieneIlPosto.setRetainSizeWhenHidden(true);
    quadro_->setSizePolicy(tieneIlPosto);
    colonna->addWidget(titolo_);
    colonna->addWidget(dettagli_);
    colonna->addWidget(quadro_, 1);
    anteprima_->setMinimumWidth(fontMetrics().averageCharWidth() * 44);
    anteprima_->hide();
    return anteprima_;
}

QLayout* FrmLoadSave::CreaPulsanti() {
    const bool salva = modo_ == Modo::Salva;
    cancella_ = CreaPulsante(QStringLiteral("CMBDelete"), tr("Delete"),
                             tr("Deletes the chosen file (Del in the list)"), this);
    auto* esci = CreaPulsante(QStringLiteral("CMBExit"), tr("Cancel"), {}, this);
    esegui_ = CreaPulsante(salva ? QStringLiteral("CmdSave") : QStringLiteral("CmdLoad"),
                           salva ? tr("Save") : tr("Load"), {}, this);
    esegui_->setProperty(kProprietaRuolo, QStringLiteral("accento"));
    esegui_->setDefault(true);
    connect(cancella_, &QPushButton::clicked, this, &FrmLoadSave::Cancella);
    connect(esci, &QPushButton::clicked, this, &FrmLoadSave::reject);
    connect(esegui_, &QPushButton::clicked, this, &FrmLoadSave::accept);
    auto* riga = new QHBoxLayout;
    riga->addWidget(cancella_);
    riga->addStretch(1);
    riga->addWidget(esci);
    riga->addWidget(esegui_);
    return riga;
}

void FrmLoadSave::MostraAnteprime(TableKind kind) {
    kind_ = kind;
    anteprima_->show();
    Anteprima();
}

void FrmLoadSave::ImpostaNome(const QString& nome) {
    if (nome_) {
        nome_->setText(nome);
        nome_->selectAll();
    }
    SegnaUguale(nome);
}

/// Loading begins where the last choice of this kind ended.
void FrmLoadSave::ScegliUltimo() {
    const std::string ultimo = UltimoPercorso(console_.scrivania);
    if (modo_ == Modo::Carica && EstraiPercorso(ultimo) == richiesta_.cartella &&
        UgualiSenzaMaiuscole(EstraiEstensione(ultimo), richiesta_.estensione))
        SegnaUguale(Q(EstraiNomeFile(ultimo)));
}

/// The file that a name would replace is the one shown.
void FrmLoadSave::SegnaUguale(const QString& nome) {
    const QSignalBlocker zitta(lista_);
    const auto uguali = lista_->findItems(nome, Qt::MatchFixedString);
    if (uguali.isEmpty() && modo_ == Modo::Carica)
        return; // the first one stays chosen
    lista_->setCurrentItem(uguali.isEmpty() ? nullptr : uguali.constFirst());
    cancella_->setEnabled(!uguali.isEmpty());
    Anteprima();
}

void FrmLoadSave::ImpostaContinua() {
    esegui_->setText(tr("Continue"));
}

void FrmLoadSave::Elenca() {
    const QSignalBlocker zitta(lista_);
    lista_->clear();
    for (const std::string& nome :
         NomiTabelle(console_.scrivania.albero, richiesta_.cartella, richiesta_.estensione))
        lista_->addItem(Q(nome));
    if (modo_ == Modo::Carica && lista_->count() > 0)
        lista_->setCurrentRow(0);
    esegui_->setEnabled(modo_ == Modo::Salva || lista_->count() > 0);
    cancella_->setEnabled(lista_->currentItem() != nullptr);
    Anteprima();
}

void FrmLoadSave::Scegli(const QString& nome) {
    if (nome_ && !nome.isEmpty())
        nome_->setText(nome);
    cancella_->setEnabled(lista_->currentItem() != nullptr);
    Anteprima();
}

QString FrmLoadSave::Nome() const {
    const QListWidgetItem* voce = lista_->currentItem();
    return nome_ ? nome_->text() : voce ? voce->text() : QString();
}

void FrmLoadSave::Cancella() {
    const QListWidgetItem* voce = lista_->currentItem();
    if (voce && CMBDelete(console_.scrivania, richiesta_, S(voce->text()), console_.scan))
        Elenca();
}

void FrmLoadSave::Anteprima() {
    if (!kind_)
        return;
    const QListWidgetItem* voce = lista_->currentItem();
    std::optional<ContenutoTabella> c;
    if (voce)
        c = AnteprimaTabella(console_.scrivania, *kind_,
                             richiesta_.cartella + S(voce->text()) + "." + richiesta_.estensione);
    titolo_->setText(!c ? QString() : c->titolo.empty() ? voce->text() : Q(c->titolo));
    dettagli_->setText(c       ? Dettagli(*c)
                       : voce  ? tr("This file cannot be read")
                       : nome_ ? tr("A new file")
                               : tr("There are no files yet"));
    quadro_->setVisible(c.has_value());
    if (c)
        quadro_->Mostra(*c);
}

void FrmLoadSave::accept() {
    if (store_)
        return store_->Avvia();
    const std::string nome = S(Nome());
    const auto percorso = modo_ == Modo::Salva ? CmdSave(console_.scrivania, richiesta_, nome)
                                               : CmdLoad(console_.scrivania, richiesta_, nome);
    if (!percorso)
        return;
    percorso_ = *percorso;
    RicordaPercorso(console_.scrivania, percorso_);
    QDialog::accept();
}

void FrmLoadSave::reject() {
    if (store_ && store_->InCorso())
        return store_->Ferma();
    QDialog::reject();
}

} // namespace orvane
