#include "console/Memorizza.h"

namespace orvane {

std::string LinkOccupato(const Console& c) {
    if (c.corsa.stato.SweepInCorso)
        return "A sweep is running\rThe receiver is free when it has ended";
    if (c.ricevitore.porta.Aperta() || c.ricevitore.stato.inVolo)
        return "The link is in use\rLeave the mode first";
    return {};
}

EsitoCaricamento MemorizzaTabella(Console& c, VistaCaricamento& vista,
                                  const ContenutoTabella& tabella, std::string_view nome,
                                  int posizione) {
    if (const std::string motivo = LinkOccupato(c); !motivo.empty()) {
        c.ricevitore.ambiente.Mostra({.testo = motivo, .icona = Icona::Esclamazione});
        return EsitoCaricamento::Rifiutato;
    }
    c.ricevitore.stato.AbbandonaComandi = false;
    LimFacRecord slot;
    return StoreFacLim(c.ricevitore, vista, tabella, slot, nome, posizione);
}

void FermaMemorizzazione(Console& c) {
    c.ricevitore.stato.AbbandonaComandi = true;
}

} // namespace orvane
