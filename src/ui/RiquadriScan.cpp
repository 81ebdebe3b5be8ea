#include "ui/RiquadriScan.h"

#include <array>
#include <span>

#include <QAbstractItemView>
#include <QSignalBlocker>

#include "ui/Tema.h"

namespace orvane {
namespace {

/// The heading with its key: the first such letter of it.
QString ConTasto(QString titolo, QChar lettera) {
    const auto posto = titolo.indexOf(lettera, 0, Qt::CaseInsensitive);
    if (!lettera.isNull() && posto >= 0)
        titolo.insert(posto, QLatin1Char('&'));
    return titolo;
}

} // namespace

QWidget* CreaCornice(PiantaModulo& pianta, Cornice quale, const char* nome, QLayout* interno,
                     QWidget* campo, QChar lettera) {
    auto* cornice = new QWidget(pianta.finestra);
    cornice->setObjectName(QLatin1String(nome));
    auto* colonna = new QVBoxLayout(cornice);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(5);
    auto* titolo = CreaDidascalia(QString(), cornice);
    titolo->setBuddy(campo);
    colonna->addWidget(titolo);
    interno->setContentsMargins(0, 0, 0, 0);
    colonna->addLayout(interno);
    pianta.colonna->addWidget(cornice);
    pianta.specchi.emplace_back([=](const VistaModulo& vista) {
        const StatoCornice& stato = vista.Di(quale);
        cornice->setVisible(stato.visibile);
        const QString testo = Q(stato.titolo);
        cornice->setAccessibleName(testo);
        titolo->setText(ConTasto(testo, lettera));
        titolo->setVisible(!testo.isEmpty());
        ImpostaRuoloTesto(*titolo, stato.avviso ? Ruolo::Errore : Ruolo::Tenue);
    });
    return cornice;
}

QLineEdit* CreaTesto(PiantaModulo& pianta, const char* nome, const QString& accessibile,
                     std::function<void(const std::string&)> scrivi,
                     std::function<QString(const VistaModulo&)> leggi) {
    auto* testo = Nomina(new QLineEdit(pianta.finestra), QLatin1String(nome), accessibile);
    testo->setMaximumWidth(testo->fontMetrics().averageCharWidth() * 18);
    QObject::connect(testo, &QLineEdit::editingFinished, testo, [&pianta, testo, scrivi] {
        if (!testo->isModified())
            return;
        testo->setModified(false);
        scrivi(S(testo->text()));
        pianta.cambiato(std::nullopt);
    });
    pianta.specchi.emplace_back([testo, leggi](const VistaModulo& vista) {
        if (!testo->isModified())
            testo->setText(leggi(vista));
    });
    return testo;
}

QComboBox* CreaElencoNomi(PiantaModulo& pianta, const char* nome, const QString& accessibile,
                          const std::vector<std::string>& nomi) {
    auto* elenco = Nomina(new QComboBox(pianta.finestra), QLatin1String(nome), accessibile);
    for (const std::string& uno : nomi)
        elenco->addItem(Q(uno));
    elenco->setMaxVisibleItems(20);
    elenco->setMinimumContentsLength(22);
    elenco->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    return elenco;
}

void ScegliNome(QComboBox& elenco, const std::string& nome) {
    const QSignalBlocker zitto(elenco);
    elenco.setCurrentIndex(elenco.findText(Q(nome), Qt::MatchFixedString));
}

void Mostra(QWidget& controllo, const StatoCampo& stato) {
    controllo.setVisible(stato.visibile);
    controllo.setEnabled(stato.abilitato);
    Avvisa(controllo, stato.avviso);
}

void Avvisa(QWidget& controllo, bool avviso) {
    constexpr std::array kTesti = {QPalette::WindowText, QPalette::Text, QPalette::ButtonText};
    const QPalette& normale = controllo.parentWidget()->palette();
    QPalette tavolozza;
    QPalette voci;
    for (const auto posto : avviso ? std::span(kTesti) : std::span<const QPalette::ColorRole>()) {
        tavolozza.setColor(posto, Tinta(normale, Ruolo::Errore));
        voci.setColor(posto, normale.color(posto));
    }
    controllo.setPalette(tavolozza);
    // What may be chosen instead is no error.
    if (auto* elenco = qobject_cast<QComboBox*>(&controllo))
        elenco->view()->setPalette(voci);
}

} // namespace orvane
