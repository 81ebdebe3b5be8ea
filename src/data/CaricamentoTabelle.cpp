#include "data/CaricamentoTabelle.h"

#include <cassert>

#include "base/Numeri.h"
#include "base/PaginaCodici.h"
#include "base/Testo.h"
#include "data/ConversioneTabella.h"
#include "data/Interpolazione.h"
#include "data/LimitiSmart.h"
#include "link/Comandi.h"
#include "link/Protocollo.h"

namespace orvane {
namespace {

constexpr size_t kNomeBreve = 10;
constexpr float kGigaHz = 1e9f;

struct VoceCaricamento {
    Impostazione riga;
    Impostazione chiusura;
    const char* tipo; ///< as boxes name it
    size_t maxPunti;
};
constexpr VoceCaricamento kLimite{.riga = Impostazione::RigaLimite,
                                  .chiusura = Impostazione::NomeLimite,
                                  .tipo = "Limit",
                                  .maxPunti = kMaxPuntiLimite};
constexpr VoceCaricamento kFattore{.riga = Impostazione::RigaFattore,
                                   .chiusura = Impostazione::NomeFattore,
                                   .tipo = "Conversion Factor",
                                   .maxPunti = kMaxPuntiFattore};

void Avvisa(Ricevitore& r, const std::string& testo, Icona icona = Icona::Esclamazione,
            const std::string& titolo = {}) {
    r.ambiente.Mostra({.testo = testo, .icona = icona, .titolo = titolo});
}

/// The rows as the editor's slot holds them; a single point stands there twice.
void RiempiSlot(const ContenutoTabella& c, LimFacRecord& slot) {
    slot = InLimFac(c);
    if (NumeroPunti(slot) != 1)
        return;
    slot.Freq[1] = slot.Freq[0];
    slot.Value[1] = slot.Value[0];
}

/// The tests before anything is sent, each with its box.
bool ControllaTabella(Ricevitore& r, const VoceCaricamento& voce, const LimFacRecord& slot,
                      std::string_view nome) {
    if (nome.find('*') != std::string_view::npos || Rifila(nome).empty()) {
        Avvisa(r, "File name not valid"); // the star would end the command in the name
        return false;
    }
    if (NumeroFreqTabella(slot) < 2) {
        Avvisa(r, "Too few factor frequencies\rMin 2 frequencies");
        return false;
    }
    if (InAnsi(nome).size() > kNomeBreve)
        Avvisa(r, "The name is too long!\rAnd it could be shortened on 5520", Icona::Esclamazione,
               "Warning");
    if (slot.Freq[0] == slot.Freq[1]) {
        Avvisa(r, "First two frequencies must be different");
        return false;
    }
    if (NumeroPunti(slot) > voce.maxPunti) {
        Avvisa(r, "Too many frequencies\rMax " +
                      TestoIntero(static_cast<long long>(voce.maxPunti)) + " frequencies");
        return false;
    }
    return true;
}

bool Invia(Ricevitore& r, Impostazione quale, const std::string& dati) {
    const ReceiverCommand comando = Componi(quale, dati);
    const std::string risposta = InviaRigaCaricamento(r, comando.Comando, comando.Risposta[0]);
    return Contiene(risposta, comando.Risposta[0]) && Contiene(risposta, comando.Risposta[1]);
}

/// Points in order, then the name that closes the table; false at the first that fails.
bool InviaTabella(Ricevitore& r, VistaCaricamento& vista, const VoceCaricamento& voce,
                  const LimFacRecord& slot, const std::string& chiusura) {
    const size_t punti = NumeroPunti(slot);
    for (size_t k = 0; k < punti; ++k) {
        const std::string riga =
            TestoIntero(static_cast<long long>(k)) + "," + TestoPunto(slot.Freq[k], slot.Value[k]);
        if (r.stato.AbbandonaComandi || !Invia(r, voce.riga, riga))
            return false;
        vista.ImpostaAvanzamento(k + 1, punti);
    }
    return !r.stato.AbbandonaComandi && Invia(r, voce.chiusura, chiusura);
}

/// The box of an upload that the user did not stop.
EsitoCaricamento Concludi(Ricevitore& r, const VoceCaricamento& voce, bool memorizzato,
                          const std::string& nome, const std::string& posizione) {
    if (memorizzato) {
        Avvisa(r, "Successfully stored as \r" + posizione + " " + nome + " " + voce.tipo,
               Icona::Informazione);
        return EsitoCaricamento::Memorizzato;
    }
    if (r.stato.AbbandonaComandi)
        return EsitoCaricamento::Abbandonato;
    Avvisa(r, std::string("Could not store\r") + voce.tipo + " " + nome);
    return EsitoCaricamento::NonRisponde;
}

} // namespace

std::string TestoPunto(float freqHz, int livelloCent) {
    const double hz = DecimaleBreve(freqHz);
    const std::string freq =
        freqHz >= kGigaHz ? TestoDaNumero(hz / 1e6) + "e6" : TestoDaNumero(hz / 1e3) + "e3";
    return freq + ";" + TestoDaNumero(livelloCent / 100.0);
}

EsitoCaricamento StoreFacLim(Ricevitore& r, VistaCaricamento& vista, const ContenutoTabella& c,
                             LimFacRecord& slot, std::string_view nome, int posizione) {
    assert(c.kind == TableKind::Limite || c.kind == TableKind::Fattore);
    const VoceCaricamento& voce = c.kind == TableKind::Limite ? kLimite : kFattore;
    RiempiSlot(c, slot);
    if (!ControllaTabella(r, voce, slot, nome))
        return EsitoCaricamento::Rifiutato;
    if (!r.porta.ApriPorta(true))
        return EsitoCaricamento::NonAperto;
    const std::string numero = TestoIntero(posizione + 1);
    const bool memorizzato = InviaTabella(r, vista, voce, slot, numero + "," + std::string(nome));
    r.porta.ChiudiPorta();
    vista.NascondiAvanzamento();
    return Concludi(r, voce, memorizzato, std::string(nome), numero);
}

} // namespace orvane
