// Uploads from a window: only while nothing else has the link.
#pragma once

#include <string>
#include <string_view>

#include "console/Console.h"
#include "data/CaricamentoTabelle.h"

namespace orvane {

/// Why a window may not take the link now; empty while it is free.
std::string LinkOccupato(const Console& c);

/// `StoreFacLim` with the link free and no abort pending; otherwise refused with a box.
EsitoCaricamento MemorizzaTabella(Console& c, VistaCaricamento& vista,
                                  const ContenutoTabella& tabella, std::string_view nome,
                                  int posizione);
/// `CMBStop`: the upload ends at the next reply.
void FermaMemorizzazione(Console& c);

} // namespace orvane
