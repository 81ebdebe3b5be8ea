// The environment of the command line program: boxes as lines on standard error, Ctrl-C as an
// event, sleep by poll.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "base/Ambiente.h"
#include "platform/Interruzioni.h"
#include "platform/SorvegliaLink.h"
#include "platform/Tastiera.h"

namespace orvane {

/// Monotonic clock and local calendar of the machine, shared by terminal and window.
double OraMonotona();
OraCalendario OraLocale();

class AmbienteTerminale : public Ambiente {
public:
    /// `rispostaSi`: what `--answer` chose; empty takes the careful answer of each box.
    AmbienteTerminale(SorvegliaLink& sorveglia, std::string rigaComando,
                      std::optional<bool> rispostaSi);

    double Adesso() const override;
    OraCalendario Calendario() const override;
    void ElaboraEventi(double alPiuS, Veglia veglia) override;
    /// Prints "[box] TEXT -> ANSWER" on standard error, line ends of the text as blanks; of a box
    /// with a title, "TITLE: TEXT". Without a chosen answer a question, and what the operator has
    /// to do, waits for a line of `tastiera`; Ctrl-C gives the careful answer.
    Risposta Mostra(const Riquadro& riquadro) override;
    const std::string& RigaComando() const override { return rigaComando_; }
    void SegnalaDifetto(std::string_view testo) override;

    /// Called from the pump at each Ctrl-C (or SIGTERM), with how many there have been. Without it
    /// the first ends the process.
    std::function<void(int)> alInterrompi;
    /// Called from every turn of the pump, for what happens by the clock; at least every 50 ms
    /// while something waits. Not from a turn inside itself.
    std::function<void()> alGiro;
    /// Called before a box is printed: ends a line that stands half written.
    std::function<void()> primaDelRiquadro;
    /// Called with each box and its answer, as printed.
    std::function<void(const std::string& testo, const char* risposta)> dopoIlRiquadro;
    /// Null where nobody sits at a terminal.
    Tastiera* tastiera = nullptr;

private:
    void Dormi(double alPiuS, Veglia veglia) const;
    void ServiInterruzioni();
    void FaiGiro();
    bool Chiede(const Riquadro& riquadro) const;
    Risposta Domanda(Pulsanti pulsanti, const std::string& testo);
    Risposta Risolvi(Pulsanti pulsanti);

    SorvegliaLink& sorveglia_;
    std::string rigaComando_;
    std::optional<bool> rispostaSi_;
    Interruzioni interruzioni_;
    int serviti_ = 0; ///< interruptions
    bool nelGiro_ = false;
};

} // namespace orvane
