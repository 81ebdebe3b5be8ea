#include "ui/FrmTesto.h"

#include <QFontDatabase>
#include <QVBoxLayout>

#include "base/PaginaCodici.h"
#include "data/FileTesto.h"
#include "ui/Moduli.h"
#include "ui/Pulsantiera.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

/// Report lines are cut behind this many letters.
constexpr int kLettereRiga = 90;

} // namespace

FrmTesto::FrmTesto(const Scrivania& scrivania, const std::string& percorso, const QString& titolo,
                   const std::string& testo, QWidget* padre)
    : QDialog(padre), scrivania_(scrivania), percorso_(percorso), testo_(new QPlainTextEdit(this)),
      nota_(CreaDidascalia(QString(), this)) {
    setObjectName(QStringLiteral("FrmTesto"));
    setWindowTitle(titolo);
    Nomina(testo_, QStringLiteral("TBTesto"), titolo);
    // Reports print it in letters of one width, and so it lines up here.
    QFont carattere = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    carattere.setPointSizeF(font().pointSizeF());
    testo_->setFont(carattere);
    testo_->setFrameShape(QFrame::NoFrame);
    testo_->setTabChangesFocus(true);
    testo_->setLineWrapMode(QPlainTextEdit::NoWrap);
    testo_->setPlainText(Q(testo));
    testo_->setMinimumSize(QFontMetrics(carattere).averageCharWidth() * 50,
                           QFontMetrics(carattere).height() * 10);
    nota_->setObjectName(QStringLiteral("LBNota"));
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(20, 18, 20, 16);
    colonna->setSpacing(12);
    colonna->addWidget(CreaDidascalia(Q(scrivania.albero.PercorsoIntero(percorso)), this));
    colonna->addWidget(testo_, 1);
    colonna->addWidget(nota_);
    colonna->addLayout(CreaPulsantiFinali(*this, {}, tr("Save")));
    connect(testo_, &QPlainTextEdit::textChanged, this, &FrmTesto::MostraNota);
    MostraNota();
    resize(QFontMetrics(carattere).averageCharWidth() * (kLettereRiga + 6), 480);
}

/// As it stands: the plain text would lose the blanks that do not break.
QString FrmTesto::Testo() const {
    QString testo = testo_->document()->toRawText();
    for (const QChar fine : {QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
        testo.replace(fine, QLatin1Char('\n'));
    return testo;
}

/// What a report would show otherwise than it stands here.
void FrmTesto::MostraNota() {
    const QString testo = Testo();
    QStringList note;
    if (!NellaPagina(S(testo)))
        note << tr("Letters outside Western European are stored as \"?\".");
    for (const QString& riga : testo.split(QLatin1Char('\n')))
        if (riga.size() > kLettereRiga) {
            note << tr("Lines longer than %1 letters are broken in reports.").arg(kLettereRiga);
            break;
        }
    nota_->setText(note.join(QLatin1Char(' ')));
    nota_->setVisible(!note.isEmpty());
}

void FrmTesto::accept() {
    if (SalvaTesto(scrivania_, percorso_, S(Testo())))
        QDialog::accept();
}

void FrmTesto::reject() {
    if (testo_->document()->isModified() &&
        scrivania_.ambiente.Mostra({.testo = "Discard the changes?",
                                    .icona = Icona::Domanda,
                                    .pulsanti = Pulsanti::SiNo}) != Risposta::Si)
        return;
    QDialog::reject();
}

} // namespace orvane
