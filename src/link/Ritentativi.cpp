// Asking again until the receiver has answered as it should: the retry loops of setters and
// queries, and the banner that they raise.
#include <algorithm>

#include "base/Testo.h"
#include "link/Protocollo.h"

namespace orvane {
namespace {

constexpr int kTentativiMuti = 3;
constexpr double kPausa5520F = 0.7;
constexpr double kDurataMinima = 0.1; ///< of a failed try
constexpr std::string_view kSenzaDescrizione = "---";

std::string InviaPerImpostare(Ricevitore& r, const ReceiverCommand& comando, bool svuotaPrima) {
    if (r.modello.ModelloOEM != 0 && Contiene(comando.Comando, "SCO6"))
        return InviaComandoLento(r, comando.Risposta[0], comando.Comando);
    return InviaComando(r, kTempoRisposta, comando.Comando, svuotaPrima);
}

bool Accettata(const std::string& risposta, const ReceiverCommand& comando) {
    return risposta != kErrore && Contiene(risposta, comando.Risposta[1]) &&
           Contiene(risposta, comando.Risposta[0]);
}

/// A try that takes no time, one refused at once or answered by the console itself, must not let
/// the retries race. Behind an abort there are none.
void RallentaSeFermo(Ricevitore& r, double inizio) {
    const double resto = kDurataMinima - (r.ambiente.Adesso() - inizio);
    if (resto > 0 && !r.stato.AbbandonaComandi)
        Attendi(r.ambiente, resto);
}

/// What a setter does between two silent tries.
void PausaFraTentativi(Ricevitore& r) {
    const Scadenza fine(r.ambiente, r.modello.Is5520F ? kPausa5520F : 0);
    while (!fine.Passata() && !r.stato.AbbandonaComandi)
        r.ambiente.ElaboraEventi(fine.Rimane(), Veglia::Eventi);
    r.porta.SvuotaRicezione();
}

} // namespace

void RegistraFallita(Ricevitore& r) {
    if (r.stato.rispostaDaRegistrare)
        r.log.Risposta(r.stato, r.stato.ultimaRisposta, true);
}

void InviaImpostazione(Ricevitore& r, const ReceiverCommand& comando, bool svuotaPrima) {
    if (RifiutaInVolo(r, comando.Comando))
        return;
    for (int c = 0;;) {
        const double inizio = r.ambiente.Adesso();
        if (Accettata(InviaPerImpostare(r, comando, svuotaPrima), comando))
            return MostraErrore(r, comando.Descrizione, false);
        RegistraFallita(r);
        RallentaSeFermo(r, inizio);
        if (!r.stato.AbbandonaComandi && c < kTentativiMuti) {
            ++c;
            PausaFraTentativi(r);
        } else if (!r.stato.AbbandonaComandi) {
            MostraErrore(r, comando.Descrizione, true);
            r.finestra.AbilitaSSTabMode();
        }
        // Looked at after the pauses too: what is sent behind an abort would open the port again.
        if (r.stato.AbbandonaComandi)
            return MostraErrore(r, std::string(kSenzaDescrizione), false);
    }
}

bool Interroga(Ricevitore& r, std::string_view query, std::string_view descrizione,
               const std::function<bool(const std::string&)>& leggi, double tempoMax, int tentativi,
               const std::function<void(int)>& dopoFallimento) {
    if (RifiutaInVolo(r, query))
        return false;
    for (int falliti = 0;;) {
        const double inizio = r.ambiente.Adesso();
        const std::string risposta = InviaComando(r, tempoMax, query, true);
        if (risposta != kErrore && leggi(risposta)) {
            MostraErrore(r, std::string(descrizione), false);
            return true;
        }
        RegistraFallita(r);
        RallentaSeFermo(r, inizio);
        ++falliti;
        if (dopoFallimento && !r.stato.AbbandonaComandi)
            dopoFallimento(falliti);
        if (!r.stato.AbbandonaComandi && falliti > tentativi)
            MostraErrore(r, std::string(descrizione), true);
        if (r.stato.AbbandonaComandi) {
            MostraErrore(r, std::string(kSenzaDescrizione), false);
            return false;
        }
    }
}

void MostraErrore(Ricevitore& r, const std::string& descrizione, bool errore) {
    StatoProtocollo& stato = r.stato;
    if (stato.rispostaDaRegistrare)
        r.log.Risposta(stato, stato.ultimaRisposta, errore);
    if (errore)
        stato.ModoErrore = true;
    r.ambiente.ElaboraEventi(0, Veglia::Eventi);
    if (errore) {
        if (!stato.striscia.empty() && Contiene(stato.striscia, descrizione))
            return;
        stato.striscia = "Error " + descrizione;
        r.finestra.MostraStriscia(stato.striscia);
    } else if (!stato.striscia.empty()) {
        stato.striscia.clear();
        stato.strisciaScambiata = false;
        r.finestra.NascondiStriscia();
    }
}

void TimerError_Timer(Ricevitore& r) {
    if (r.stato.AbbandonaComandi)
        return MostraErrore(r, std::string(kSenzaDescrizione), false);
    if (r.stato.striscia.empty())
        return;
    r.stato.strisciaScambiata = !r.stato.strisciaScambiata;
    r.finestra.ColoraStriscia(r.stato.strisciaScambiata);
}

} // namespace orvane
