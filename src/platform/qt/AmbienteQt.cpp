#include "platform/qt/AmbienteQt.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QMessageBox>
#include <QSocketNotifier>
#include <QTimer>

#include <poll.h>

#include "base/Versione.h"
#include "platform/AmbienteTerminale.h"

namespace orvane {
namespace {

constexpr double kFraServiziS = 0.003;

enum class Linea { Muta, Pronta, Caduta };

/// A line that hung up would wake the pump for ever: it counts as no line at all.
Linea Guarda(int descrittore) {
    pollfd domanda = {.fd = descrittore, .events = POLLIN, .revents = 0};
    if (poll(&domanda, 1, 0) <= 0)
        return Linea::Muta;
    return domanda.revents & (POLLHUP | POLLERR | POLLNVAL) ? Linea::Caduta : Linea::Pronta;
}

struct VocePulsanti {
    Pulsanti quali;
    QMessageBox::StandardButtons pulsanti;
    QMessageBox::StandardButton cauto;
};
constexpr std::array<VocePulsanti, 4> kPulsanti = {{
    {Pulsanti::Ok, QMessageBox::Ok, QMessageBox::Ok},
    {Pulsanti::OkAnnulla, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel},
    {Pulsanti::SiNo, QMessageBox::Yes | QMessageBox::No, QMessageBox::No},
    {Pulsanti::RiprovaAnnulla, QMessageBox::Retry | QMessageBox::Cancel, QMessageBox::Cancel},
}};
constexpr std::array<QMessageBox::Icon, 5> kIcone = {QMessageBox::NoIcon, QMessageBox::Information,
                                                     QMessageBox::Warning, QMessageBox::Question,
                                                     QMessageBox::Critical};

Risposta Traduci(int pulsante) {
    switch (pulsante) {
    case QMessageBox::Yes:
        return Risposta::Si;
    case QMessageBox::No:
        return Risposta::No;
    case QMessageBox::Retry:
        return Risposta::Riprova;
    case QMessageBox::Cancel:
        return Risposta::Annulla;
    default:
        return Risposta::Ok;
    }
}

QString TestoRiquadro(const std::string& testo) {
    QString righe = QString::fromUtf8(testo.data(), static_cast<qsizetype>(testo.size()));
    righe.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return righe.replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

} // namespace

/// Made once: waiting creates nothing.
struct AmbienteQt::Interno {
    QTimer sveglia;
    std::unique_ptr<QSocketNotifier> campanello;
    double servito = 0;

    void Ascolta(int descrittore) {
        if (!campanello || campanello->socket() != descrittore) {
            campanello = std::make_unique<QSocketNotifier>(descrittore, QSocketNotifier::Read);
            // One ring is enough: inside a box nobody reads, and the bell would ring for ever.
            QObject::connect(campanello.get(), &QSocketNotifier::activated, campanello.get(),
                             [bell = campanello.get()] { bell->setEnabled(false); });
        }
        campanello->setEnabled(true);
    }
};

AmbienteQt::AmbienteQt(const SorvegliaLink& sorveglia, std::string rigaComando)
    : sorveglia_(sorveglia), rigaComando_(std::move(rigaComando)),
      io_(std::make_unique<Interno>()) {
    io_->sveglia.setSingleShot(true);
    io_->sveglia.setTimerType(Qt::PreciseTimer);
}

AmbienteQt::~AmbienteQt() = default;

double AmbienteQt::Adesso() const {
    return OraMonotona();
}

OraCalendario AmbienteQt::Calendario() const {
    return OraLocale();
}

void AmbienteQt::ElaboraEventi(double alPiuS, Veglia veglia) {
    if (alPiuS <= 0) {
        if (Adesso() - io_->servito < kFraServiziS)
            return;
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        io_->servito = Adesso();
        return;
    }
    bool ascolta = false;
    if (veglia == Veglia::EventiELink) {
        if (sorveglia_.descrittore >= 0) {
            const Linea linea = Guarda(sorveglia_.descrittore);
            if (linea == Linea::Pronta)
                return ElaboraEventi(0, veglia);
            ascolta = linea == Linea::Muta;
        }
        if (sorveglia_.senzaAvviso)
            alPiuS = std::min(alPiuS, kSguardoS);
    }
    if (ascolta)
        io_->Ascolta(sorveglia_.descrittore);
    io_->sveglia.start(static_cast<int>(std::ceil(alPiuS * 1000)));
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    if (io_->campanello)
        io_->campanello->setEnabled(false);
    io_->sveglia.stop();
    io_->servito = Adesso();
}

Risposta AmbienteQt::Mostra(const Riquadro& riquadro) {
    const VocePulsanti& voce = kPulsanti[static_cast<size_t>(riquadro.pulsanti)];
    // Over the window that waits for the answer: a dialog, where one is up.
    QWidget* sopra = QApplication::activeModalWidget();
    QMessageBox scatola(sopra ? sopra : finestra);
    scatola.setObjectName(QStringLiteral("Riquadro"));
    scatola.setWindowTitle(
        TestoRiquadro(riquadro.titolo.empty() ? kNomeProgramma : riquadro.titolo));
    scatola.setTextFormat(Qt::PlainText);
    scatola.setText(TestoRiquadro(riquadro.testo));
    scatola.setIcon(kIcone[static_cast<size_t>(riquadro.icona)]);
    scatola.setStandardButtons(voce.pulsanti);
    scatola.setDefaultButton(voce.cauto);
    scatola.setEscapeButton(voce.cauto);
    return Traduci(scatola.exec());
}

void AmbienteQt::SegnalaDifetto(std::string_view testo) {
    if (alDifetto)
        return alDifetto(testo);
    std::fprintf(stderr, "orvane-console: %.*s\n", static_cast<int>(testo.size()), testo.data());
}

} // namespace orvane
