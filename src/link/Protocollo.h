// The command protocol: one text command at a time, each answered by one line. Framing, time-outs,
// retries, and what a failure does to the window.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "link/Ricevitore.h"

namespace orvane {

/// The usual time that a reply may take, in seconds.
inline constexpr double kTempoRisposta = 0.7;
/// What `InviaComando` gives when no reply came.
inline constexpr std::string_view kErrore = "Error";

/// A setter as it is handed over.
struct ReceiverCommand {
    std::string Comando;                 ///< the whole command, "#" to "*"
    std::string Descrizione;             ///< words of the banner
    std::array<std::string, 2> Risposta; ///< both must occur in the reply
};

/// The reply with its CR but without its LF, a canned reply, or "Error".
std::string InviaComando(Ricevitore& r, double tempoMax, std::string_view comando,
                         bool svuotaPrima);

/// Sends until the reply holds both texts or the user gives up: four tries in silence, then on,
/// with the banner up. Returns with `AbbandonaComandi` set when the user gave up.
void InviaImpostazione(Ricevitore& r, const ReceiverCommand& comando, bool svuotaPrima);

/// For a reply that comes late, possibly behind a stream of other data: the text from `chiave` on,
/// empty when it does not come.
std::string InviaComandoLento(Ricevitore& r, std::string_view chiave, std::string_view comando);

/// A query answered by a block of known length; the text "Error" as bytes when it stays short.
std::vector<uint8_t> LeggiBloccoFisso(Ricevitore& r, size_t quanti, std::string_view comando);

/// Gathers whatever the receiver answers until it has been silent for 0.3 s, a megabyte at most.
std::string LeggiFinoASilenzio(Ricevitore& r);

/// One line of an upload: three tries of 0.3 s, until the reply holds `attesa` and "OK"; "Error" or
/// the last reply.
std::string InviaRigaCaricamento(Ricevitore& r, std::string_view comando, std::string_view attesa);

/// Writes a command without waiting for its reply, such as "#SSTP*".
bool InviaGrezzo(Ricevitore& r, std::string_view comando);

/// The standard query loop. `leggi` parses a reply and says whether it was one. False: the user
/// gave up. `tentativi` silent retries before the banner. `dopoFallimento` runs between two tries
/// and is told how many have failed.
bool Interroga(Ricevitore& r, std::string_view query, std::string_view descrizione,
               const std::function<bool(const std::string&)>& leggi,
               double tempoMax = kTempoRisposta, int tentativi = 3,
               const std::function<void(int)>& dopoFallimento = {});

/// True where a command would go out inside another one: nothing may be sent, and the defect has
/// been reported.
bool RifiutaInVolo(Ricevitore& r, std::string_view comando);
/// The last reply was not what it should be: so the log has it, once.
void RegistraFallita(Ricevitore& r);

/// Shows the banner "Error " + `descrizione`, or clears it.
void MostraErrore(Ricevitore& r, const std::string& descrizione, bool errore);
/// One blink of the banner; clears it when the user has given up.
void TimerError_Timer(Ricevitore& r);

/// One-based index of the first occurrence; 0 when absent or when the buffer is empty.
int32_t CercaSequenza(std::span<const uint8_t> buffer, std::string_view testo);

/// The canned reply of the 3360 family for this command; empty where it goes out.
std::string_view RisposteFisse(std::string_view comando);

} // namespace orvane
