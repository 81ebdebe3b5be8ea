// Limit and margin of the Smart lines, on their way to the receiver.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "data/AlberoDati.h"
#include "link/Comandi.h"
#include "records/ScanRecord.h"

namespace orvane {

/// The limit of a Smart line by name; with `dsd` the two that a Double Smart line joins.
struct NomiLimite {
    std::string limite;
    std::string dsd = {};
    bool operator==(const NomiLimite&) const = default;
};

/// What the receiver has, as far as this run has told it.
struct LimiteRicevitore {
    NomiLimite nomi;
    std::optional<float> margine; ///< dB; empty while it may have any
};

/// The limit of a line where the receiver has another; empty for lines without Smart or limit.
std::optional<NomiLimite> DetImpostazioneLimite(const ScanLine& riga, const LimiteRicevitore& ha);
/// The margin of a Smart line where the receiver has, or may have, another.
std::optional<float> DetImpostazioneMargine(const ScanLine& riga, const LimiteRicevitore& ha);

/// A limit as it is sent, or why it cannot be.
struct LimiteComposto {
    std::vector<ComandoPronto> comandi;
    Riquadro obiezione; ///< without text: none
};
LimiteComposto ComponiLimite(const AlberoDati& albero, const NomiLimite& nomi);

ComandoPronto ComponiMargine(float dB);

/// Both send what `DetImpostazione...` gives, and keep in `ha` what the receiver has then. False:
/// the line must not run; a box has said why, or the user gave up.
bool ImpostaLimitiSweep(Ricevitore& r, const AlberoDati& albero, const ScanLine& riga,
                        LimiteRicevitore& ha);
bool ImpostaMargineSweep(Ricevitore& r, const ScanLine& riga, LimiteRicevitore& ha);

} // namespace orvane
