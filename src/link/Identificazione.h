// The identification sequence, run at each start of a mode or run.
#pragma once

#include <string>
#include <string_view>

#include "link/Ricevitore.h"

namespace orvane {

/// Tab of `SSTabMode`.
enum class Modalita { SweepsArchive, Sweep, Analyzer, Manual, Click };

/// Recognises the form of a `#?IDN*` reply, sets the model's flags, and gives the firmware text:
/// trimmed, cut at the LF or the end. Empty when the reply matches no form or holds no firmware.
std::string RiconosciIDN(std::string_view risposta, ReceiverModel& modello);

/// Numeric value of the text before its first blank; 0 when there is none, or it is the first
/// character.
float VersioneFirmware(std::string_view testo);

/// `#?IDN*` with two silent retries: the firmware text, "---" when no form was recognised.
std::string LeggiFirmware(Ricevitore& r);

/// MIL filters and Rms-Avg detector, asked where the firmware knows the question. False: the user
/// gave up.
bool LeggiOpzioni(Ricevitore& r);

/// The whole sequence; rebuilds `r.modello` and `r.caps`. `sorgente` is the range last chosen in
/// Analyzer or Manual (clamped to 1..2). True: an extension unit, or the high range, is in charge.
/// With `AbbandonaComandi` set on return the start of the mode must stop.
bool LeggiModello(Ricevitore& r, Modalita modalita, int sorgente);

/// Which hardware a scan line needs, for the prompt that asks the user to switch it on.
enum class UnitaRichiesta { Estesa, Estesa6GHz, Estesa18GHz, SoloRicevitore };
/// The three-line text of the prompt; `nomeUnita` names what is to be switched off.
std::string TestoCambioUnita(UnitaRichiesta unita, std::string_view nomeUnita);
/// Opens the link again and identifies anew; on a failed open asks Retry or Cancel. False: the user
/// cancelled, and `AbbandonaComandi` is set.
bool RiapriERiconosci(Ricevitore& r, Modalita modalita, int sorgente);
/// Shows the prompt, opens the link again and identifies anew; on a failed open asks Retry or
/// Cancel. False: the user cancelled, and `AbbandonaComandi` is set.
bool ChiediCambioUnita(Ricevitore& r, UnitaRichiesta unita, Modalita modalita, int sorgente);

} // namespace orvane
