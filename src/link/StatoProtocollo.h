// The state that every command shares: the one global abort, and the guard against a send inside
// a send.
#pragma once

#include <string>
#include <string_view>

namespace orvane {

struct StatoProtocollo {
    /// Set by the user's abort, by closing the program and by leaving a mode. Every retry loop and
    /// every run leaves when it finds it set.
    bool AbbandonaComandi = false;
    /// A banner has been shown in a live mode.
    bool ModoErrore = false;
    /// The next log line is preceded by a separator line.
    bool SeparaLog = false;
    /// A command is out and its reply is awaited: nothing may be sent. Handled by `GuardiaVolo`.
    bool inVolo = false;
    /// What is in flight, for the message about a send inside a send.
    std::string comandoInVolo = {};

    /// The banner: empty when hidden.
    std::string striscia = {};
    /// Which of the two colours is in front; exchanged at each blink.
    bool strisciaScambiata = false;
    /// The last reply, or what came of one, and whether the log still waits for its verdict.
    std::string ultimaRisposta = {};
    bool rispostaDaRegistrare = false;
};

/// Marks a command as in flight for as long as it lives.
class GuardiaVolo {
public:
    explicit GuardiaVolo(StatoProtocollo& stato, std::string_view comando = {}) : stato_(stato) {
        stato_.inVolo = true;
        stato_.comandoInVolo = comando;
    }
    ~GuardiaVolo() { stato_.inVolo = false; }
    GuardiaVolo(const GuardiaVolo&) = delete;
    GuardiaVolo& operator=(const GuardiaVolo&) = delete;

private:
    StatoProtocollo& stato_;
};

} // namespace orvane
