// What happens in a run, as JSON objects of one line each: for scripts.
#pragma once

#include <string>
#include <string_view>

#include "sweep/Corsa.h"

namespace orvane {

std::string_view NomeFase(FaseCorsa fase);

std::string EventoFase(FaseCorsa fase);
std::string EventoPassata(const PassataInCorso& passata);
std::string EventoAvanzamento(const Avanzamento& avanzamento);
std::string EventoLivello(double freqMhz, int16_t livelloCent);
std::string EventoTimer(int restanoS, int totaleS);
/// `modo` as `TriggerSweepMode`; the event tells what the port is to read: 0, or 1 for not 0.
std::string EventoTrigger(int16_t modo, int userPort);
std::string EventoRiquadro(std::string_view testo, std::string_view risposta);
/// An event that is but a text: "error", "message", "battery", "measure".
std::string EventoTesto(std::string_view evento, std::string_view chiave, std::string_view testo);

} // namespace orvane
