// Pause and resume of a pass, in the midst of its stream.
#pragma once

#include <functional>

#include "sweep/Corsa.h"

namespace orvane {

/// Whether a run with this receiver can pause: shows `CMBPauseSweep` where it can.
void ControllaVisCMBPausa(Corsa& corsa);

/// Carries out what `PausaRichiesta` asks for, and stays until the pass runs on or the user wants
/// out; filter and attenuator that the user touches there are sent. What arrives meanwhile goes
/// into the accumulation buffer; `elabora` is called when all that came ahead of the pause is
/// there. A receiver that cannot be made to pause flags a stop.
void ControllaPausaSweep(const Corsa& corsa, const std::function<void()>& elabora);

/// Asks the battery, once and no more: in the midst of a pass, where what has been accumulated
/// stays, and behind a run that has failed.
void VisualizzaBatteriaUnaVolta(const Corsa& corsa);

} // namespace orvane
