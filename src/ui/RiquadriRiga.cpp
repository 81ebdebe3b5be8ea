// `FRMMsgBoxIniziale`, `FRMAncillary`: what a line asks of the operator, and its network lines.
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QSignalBlocker>

#include "ui/RiquadriScan.h"

namespace orvane {
namespace {

/// Return confirms the window; with Shift it is a new line of the text. Tab leaves.
class TestoPrompt : public QPlainTextEdit {
public:
    TestoPrompt(QWidget* padre, std::function<void()> conferma)
        : QPlainTextEdit(padre), conferma_(std::move(conferma)) {
        setTabChangesFocus(true);
    }

protected:
    void keyPressEvent(QKeyEvent* evento) override {
        const bool invio = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
        if (invio && !(evento->modifiers() & Qt::ShiftModifier))
            return conferma_();
        QPlainTextEdit::keyPressEvent(evento);
    }

private:
    std::function<void()> conferma_;
};

QPlainTextEdit* CreaTestoPrompt(PiantaModulo& pianta) {
    auto* testo = new TestoPrompt(pianta.finestra, [&pianta] { pianta.conferma(); });
    Nomina(testo, QStringLiteral("TBMsgBoxIniziale"), QObject::tr("Text before the line runs"),
           QObject::tr("At most 200 characters; Shift+Enter begins a new line"));
    testo->setFixedSize(testo->fontMetrics().averageCharWidth() * 46,
                        testo->fontMetrics().lineSpacing() * 4 + 12);
    testo->setPlainText(Q(pianta.modulo.riga.Prompt));
    QObject::connect(testo, &QPlainTextEdit::textChanged, testo, [&pianta, testo] {
        ScriviPrompt(pianta.modulo, S(testo->toPlainText()));
        pianta.cambiato(std::nullopt);
        const QString tenuto = Q(pianta.modulo.riga.Prompt);
        if (tenuto.size() >= testo->toPlainText().size())
            return;
        const QSignalBlocker zitto(testo);
        testo->setPlainText(tenuto);
        testo->moveCursor(QTextCursor::End);
    });
    return testo;
}

void CreaPrompt(PiantaModulo& pianta) {
    auto* mostra = new QCheckBox(QObject::tr("&Stop here and show this text"), pianta.finestra);
    Nomina(mostra, QStringLiteral("CHKMsgBoxIniziale"), QObject::tr("Show a text first"));
    auto* testo = CreaTestoPrompt(pianta);
    QObject::connect(mostra, &QCheckBox::clicked, mostra, [&pianta, testo](bool acceso) {
        pianta.modulo.riga.PromptOn = acceso ? 1 : 0;
        pianta.cambiato(std::nullopt);
        if (acceso)
            testo->setFocus();
    });
    auto* interno = new QVBoxLayout;
    interno->setSpacing(8);
    interno->addWidget(mostra);
    interno->addWidget(testo);
    CreaCornice(pianta, Cornice::FRMMsgBoxIniziale, "FRMMsgBoxIniziale", interno, testo,
                QLatin1Char('T'));
    pianta.specchi.emplace_back([&pianta, mostra](const VistaModulo&) {
        mostra->setChecked(pianta.modulo.riga.PromptOn == 1);
    });
}

void CreaAncillary(PiantaModulo& pianta) {
    auto* riga = new QHBoxLayout;
    riga->setSpacing(20);
    size_t posto = 0;
    for (const VoceAncillary& voce :
         VociAncillary(pianta.modulo.riga, pianta.modulo.ancillaryKind)) {
        const size_t quale = posto++;
        QString testo = Q(voce.nome);
        testo.insert(testo.size() - 1, QLatin1Char('&'));
        auto* casella = new QCheckBox(testo, pianta.finestra);
        casella->setObjectName(QStringLiteral("CHKAncillary") + Q(voce.nome));
        riga->addWidget(casella);
        QObject::connect(casella, &QCheckBox::clicked, casella, [&pianta, quale](bool acceso) {
            ModificaAncillary(pianta.modulo.riga, pianta.modulo.ancillaryKind, quale, acceso);
            pianta.cambiato(std::nullopt);
        });
        pianta.specchi.emplace_back([casella, quale](const VistaModulo& vista) {
            if (quale < vista.ancillary.size())
                casella->setChecked(vista.ancillary[quale].accesa);
        });
    }
    if (posto == 0)
        riga->addWidget(CreaDidascalia(QObject::tr("Nothing to choose: no network, antenna or "
                                                   "switch box is selected in the settings"),
                                       pianta.finestra));
    riga->addStretch(1);
    CreaCornice(pianta, Cornice::FRMAncillary, "FRMAncillary", riga);
}

} // namespace

void CreaRiquadriRiga(PiantaModulo& pianta) {
    if (ApreCornice(pianta.modulo.colonna, Cornice::FRMMsgBoxIniziale))
        CreaPrompt(pianta);
    if (ApreCornice(pianta.modulo.colonna, Cornice::FRMAncillary))
        CreaAncillary(pianta);
}

} // namespace orvane
