// Upload of a limit or factor into the receiver's memory, from the command line.
#include <cmath>
#include <ostream>

#include "base/Numeri.h"
#include "console/Console.h"
#include "data/CaricamentoTabelle.h"
#include "link/Comandi.h"
#include "link/Identificazione.h"
#include "verbs/Json.h"
#include "verbs/VerboTabelle.h"

namespace orvane {
namespace {

/// Nothing to watch while a few rows go out.
struct VistaMuta : VistaCaricamento {
    void ImpostaAvanzamento(size_t, size_t) override {}
    void NascondiAvanzamento() override {}
};

EsitoVerbo LinkAssente(Banco& banco, const char* altrimenti) {
    const std::string& motivo = banco.ricevitore.porta.link.motivo;
    return Guasto(banco, EsitoDelLink(banco),
                  banco.interrotto ? "stopped"
                  : motivo.empty() ? altrimenti
                                   : motivo);
}

EsitoVerbo DaCaricamento(Banco& banco, EsitoCaricamento esito) {
    switch (esito) {
    case EsitoCaricamento::Memorizzato:
        return kFatto;
    case EsitoCaricamento::Rifiutato:
        return kRifiutato;
    case EsitoCaricamento::NonAperto:
        return LinkAssente(banco, "the link cannot be opened");
    case EsitoCaricamento::Abbandonato:
    case EsitoCaricamento::NonRisponde:
        break;
    }
    return EsitoDelLink(banco);
}

/// Who the receiver is decides which commands it knows.
bool Identifica(Ricevitore& r) {
    if (!r.porta.ApriPorta(true))
        return false;
    AbortSweep(r);
    if (!r.stato.AbbandonaComandi)
        LeggiModello(r, Modalita::Sweep, 1);
    r.porta.ChiudiPorta();
    return !r.stato.AbbandonaComandi && r.modello.FwTesto != "---";
}

} // namespace

EsitoVerbo MemorizzaNelRicevitore(Banco& banco, TableKind kind, const std::string& nome,
                                  const Argomenti& argomenti) {
    const auto numero = LeggiNumero(argomenti.Opzione("slot").value_or(""));
    if (!numero || *numero < 1 || *numero > kMaxPosizioni || *numero != std::floor(*numero))
        return UsoErrato(banco, VerboDiKind(kind), "store wants --slot N, from 1 on");
    const auto c = CaricaContenuto(banco, kind, nome);
    if (!c)
        return kGuastoFile;
    Ricevitore& r = banco.ricevitore;
    AvviaInLettura(banco.scrivania, r.porta.link, banco.linkScelto);
    if (!Identifica(r))
        return LinkAssente(banco, "no receiver answered");
    VistaMuta vista;
    LimFacRecord slot;
    const std::string nomeRicevitore = argomenti.Opzione("name").value_or(nome);
    const EsitoVerbo esito = DaCaricamento(
        banco, StoreFacLim(r, vista, *c, slot, nomeRicevitore, static_cast<int>(*numero) - 1));
    if (esito == kFatto && banco.json) {
        Json json;
        json.Oggetto().Coppia("name", nomeRicevitore).Coppia("slot", *numero);
        banco.dati << json.Chiudi().Documento() << "\n";
    }
    return esito;
}

} // namespace orvane
