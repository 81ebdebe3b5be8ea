// Upload of a limit or factor into a memory of the receiver.
#pragma once

#include <string>
#include <string_view>

#include "data/ModificaTabella.h"
#include "link/Ricevitore.h"
#include "records/LimFacRecord.h"

namespace orvane {

/// Points that the receiver takes for one factor.
inline constexpr size_t kMaxPuntiFattore = 499;

/// `PBStoreCFLOn5520`: a step a point.
struct VistaCaricamento {
    virtual ~VistaCaricamento() = default;
    virtual void ImpostaAvanzamento(size_t fatti, size_t totale) = 0;
    virtual void NascondiAvanzamento() = 0;
};

enum class EsitoCaricamento {
    Memorizzato,
    Rifiutato,   ///< a box has said why; nothing was sent
    NonAperto,   ///< the link could not be opened
    NonRisponde, ///< a reply stayed away, after the box "Could not store"
    Abbandonato  ///< by the user
};

/// A point as the receiver takes it, "150e3;66": frequency, then level in dB.
std::string TestoPunto(float freqHz, int livelloCent);

/// `StoreFacLim`: fills the editor's slot from its rows, checks them, opens the link, sends them
/// under `nome` to a position of the receiver's list (from 0), and closes the link. Each command
/// has three tries of 0.3 s. `kind` of the contents is a limit or a factor.
EsitoCaricamento StoreFacLim(Ricevitore& r, VistaCaricamento& vista, const ContenutoTabella& c,
                             LimFacRecord& slot, std::string_view nome, int posizione);

} // namespace orvane
