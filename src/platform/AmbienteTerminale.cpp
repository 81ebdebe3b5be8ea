#include "platform/AmbienteTerminale.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <utility>

#include "base/Testo.h"

namespace orvane {
namespace {

constexpr double kGiroS = 0.05; ///< how long what happens by the clock may be kept waiting
constexpr double kPrimaDiRiprovareS = 1;

/// One line of a terminal: a run of line ends is one blank, and no other control character goes
/// out, since names from the link stand in boxes.
std::string SuUnaRiga(std::string_view testo) {
    std::string riga;
    bool fineRiga = false;
    for (const char c : testo) {
        const bool a_capo = c == '\r' || c == '\n';
        if (!a_capo)
            riga += static_cast<unsigned char>(c) < ' ' || c == '\x7F' ? ' ' : c;
        else if (!fineRiga)
            riga += ' ';
        fineRiga = a_capo;
    }
    return Rifila(riga);
}

/// A title may bear what the text is about, such as the path of a file.
std::string ConTitolo(const Riquadro& riquadro) {
    return riquadro.titolo.empty() ? riquadro.testo : riquadro.titolo + ": " + riquadro.testo;
}

/// The answer of a yes and the careful one, by the buttons of a box.
struct VoceRisposte {
    Pulsanti pulsanti;
    Risposta si;
    Risposta cauta;
};
constexpr std::array<VoceRisposte, 4> kRisposte = {{
    {Pulsanti::Ok, Risposta::Ok, Risposta::Ok},
    {Pulsanti::OkAnnulla, Risposta::Ok, Risposta::Annulla},
    {Pulsanti::SiNo, Risposta::Si, Risposta::No},
    {Pulsanti::RiprovaAnnulla, Risposta::Riprova, Risposta::Annulla},
}};

const char* NomeRisposta(Risposta risposta) {
    switch (risposta) {
    case Risposta::Annulla:
        return "Cancel";
    case Risposta::Si:
        return "Yes";
    case Risposta::No:
        return "No";
    case Risposta::Riprova:
        return "Retry";
    case Risposta::Ok:
        break;
    }
    return "OK";
}

} // namespace

double OraMonotona() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

OraCalendario OraLocale() {
    const double adesso =
        std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count();
    const auto intero = static_cast<std::time_t>(adesso);
    std::tm campi = {};
    localtime_r(&intero, &campi);
    return {.anno = campi.tm_year + 1900,
            .mese = campi.tm_mon + 1,
            .giorno = campi.tm_mday,
            .secondiDelGiorno = campi.tm_hour * 3600 + campi.tm_min * 60 + campi.tm_sec +
                                (adesso - static_cast<double>(intero))};
}

AmbienteTerminale::AmbienteTerminale(SorvegliaLink& sorveglia, std::string rigaComando,
                                     std::optional<bool> rispostaSi)
    : sorveglia_(sorveglia), rigaComando_(std::move(rigaComando)), rispostaSi_(rispostaSi) {}

double AmbienteTerminale::Adesso() const {
    return OraMonotona();
}

OraCalendario AmbienteTerminale::Calendario() const {
    return OraLocale();
}

void AmbienteTerminale::ElaboraEventi(double alPiuS, Veglia veglia) {
    // With no time to wait there is nothing to ask of the system: signals come by themselves. A
    // run calls this for every block of its stream.
    if (alPiuS > 0)
        Dormi(alPiuS, veglia);
    ServiInterruzioni();
    FaiGiro();
}

void AmbienteTerminale::Dormi(double alPiuS, Veglia veglia) const {
    const bool conLink = veglia == Veglia::EventiELink;
    if (conLink && sorveglia_.senzaAvviso)
        alPiuS = std::min(alPiuS, kSguardoS);
    if (alGiro)
        alPiuS = std::min(alPiuS, kGiroS);
    pollfd occhio = {.fd = conLink ? sorveglia_.descrittore : -1, .events = POLLIN, .revents = 0};
    if (!interruzioni_.Dormi(occhio, alPiuS))
        return;
    if ((occhio.revents & (POLLHUP | POLLERR | POLLNVAL)) == 0)
        return;
    // A device that is gone reports itself without end; whoever waits is told by his next read.
    occhio.fd = -1;
    interruzioni_.Dormi(occhio, std::min(alPiuS, kSguardoS));
}

void AmbienteTerminale::ServiInterruzioni() {
    if (!alInterrompi && interruzioni_.DaServire() > 0)
        interruzioni_.Termina();
    while (alInterrompi && interruzioni_.DaServire() > 0) {
        ++serviti_;
        alInterrompi(interruzioni_.Prendi());
    }
}

void AmbienteTerminale::FaiGiro() {
    if (!alGiro || nelGiro_)
        return;
    nelGiro_ = true;
    alGiro();
    nelGiro_ = false;
}

Risposta AmbienteTerminale::Risolvi(Pulsanti pulsanti) {
    const VoceRisposte& voce = kRisposte[static_cast<size_t>(pulsanti)];
    const bool si = rispostaSi_.value_or(false);
    // Nobody takes the time to mend what failed: without a pause a script would spin.
    if (si && voce.si == Risposta::Riprova)
        Attendi(*this, kPrimaDiRiprovareS);
    return si ? voce.si : voce.cauta;
}

bool AmbienteTerminale::Chiede(const Riquadro& riquadro) const {
    // A box that only tells why something failed keeps nobody waiting.
    const bool daFare = riquadro.pulsanti != Pulsanti::Ok || riquadro.icona == Icona::Informazione;
    return tastiera && !rispostaSi_ && daFare;
}

Risposta AmbienteTerminale::Domanda(Pulsanti pulsanti, const std::string& testo) {
    const VoceRisposte& voce = kRisposte[static_cast<size_t>(pulsanti)];
    if (voce.si == voce.cauta)
        std::fprintf(stderr, "%s (Enter) ", testo.c_str());
    else
        std::fprintf(stderr, "%s (y: %s, else %s) ", testo.c_str(), NomeRisposta(voce.si),
                     NomeRisposta(voce.cauta));
    const int serviti = serviti_;
    // What was typed before the question is no answer to it.
    tastiera->Dimentica();
    std::optional<std::string> riga;
    while (!riga && serviti_ == serviti) {
        ElaboraEventi(kGiroS, Veglia::Eventi);
        riga = tastiera->LeggiRiga();
    }
    if (!riga)
        std::fprintf(stderr, "\n");
    return riga && Maiuscolo(Rifila(*riga)).starts_with("Y") ? voce.si : voce.cauta;
}

Risposta AmbienteTerminale::Mostra(const Riquadro& riquadro) {
    const std::string testo = SuUnaRiga(ConTitolo(riquadro));
    if (primaDelRiquadro)
        primaDelRiquadro();
    const Risposta risposta =
        Chiede(riquadro) ? Domanda(riquadro.pulsanti, testo) : Risolvi(riquadro.pulsanti);
    std::fprintf(stderr, "[box] %s -> %s\n", testo.c_str(), NomeRisposta(risposta));
    if (dopoIlRiquadro)
        dopoIlRiquadro(testo, NomeRisposta(risposta));
    return risposta;
}

void AmbienteTerminale::SegnalaDifetto(std::string_view testo) {
    std::fprintf(stderr, "internal fault: %s\n", SuUnaRiga(testo).c_str());
}

} // namespace orvane
