// A pause that was asked for on the command line: when it begins, and what ends it.
#pragma once

#include <functional>
#include <optional>

#include "sweep/Corsa.h"
#include "verbs/VistaTerminale.h"

namespace orvane {

/// The key Enter of a terminal; empty where nobody sits at one.
struct TastoInvio {
    std::function<bool()> invio;     ///< whether it was pressed since the last call
    std::function<void()> dimentica; ///< what was pressed so far counts no more
    explicit operator bool() const { return static_cast<bool>(invio); }
};

struct PianoPausa {
    std::optional<double> dopoS; ///< seconds behind the first data; empty: no pause
    std::optional<double> perS;  ///< how long; empty: until Enter
};

class GuidaPausa {
public:
    GuidaPausa(const Ambiente& ambiente, StatoCorsa& stato, VistaTerminale& vista, PianoPausa piano,
               TastoInvio tastiera)
        : ambiente_(ambiente), stato_(stato), vista_(vista), piano_(piano),
          tastiera_(std::move(tastiera)) {}

    /// To be called from each turn of the pump.
    void Gira();

private:
    void Chiedi();

    const Ambiente& ambiente_;
    StatoCorsa& stato_;
    VistaTerminale& vista_;
    PianoPausa piano_;
    TastoInvio tastiera_;
    std::optional<double> inPausaDa_;
};

} // namespace orvane
