#include "verbs/EventiCorsa.h"

#include <array>
#include <cmath>

#include "verbs/Json.h"

namespace orvane {
namespace {

constexpr std::array<std::string_view, 9> kFasi = {
    "idle", "checks", "wait", "preparation", "line", "sweep", "pause", "stopping", "failing"};

Json Evento(std::string_view nome) {
    Json json;
    json.Oggetto().Coppia("event", nome);
    return json;
}

std::string Chiuso(Json& json) {
    return json.Chiudi().Documento();
}

} // namespace

std::string_view NomeFase(FaseCorsa fase) {
    return kFasi[static_cast<size_t>(fase)];
}

std::string EventoFase(FaseCorsa fase) {
    return EventoTesto("phase", "phase", NomeFase(fase));
}

std::string EventoPassata(const PassataInCorso& passata) {
    Json json = Evento("pass");
    json.Coppia("line", passata.riga + 1).Coppia("pass", passata.nome);
    return Chiuso(json.Coppia("trace", passata.base));
}

std::string EventoAvanzamento(const Avanzamento& a) {
    Json json = Evento("progress");
    json.Coppia("line", a.riga + 1).Coppia("lines", a.numRighe);
    json.Coppia("pass", a.nomePassata).Coppia("passes", a.numPassate);
    json.Coppia("steps", static_cast<double>(a.passiRiga));
    json.Coppia("steps_of", static_cast<double>(a.totaleRiga));
    json.Coppia("fraction", a.frazione).Coppia("elapsed_s", a.trascorsiS);
    json.Chiave("left_s").Numero(a.restanoS < 0 ? NAN : a.restanoS);
    return Chiuso(json);
}

std::string EventoLivello(double freqMhz, int16_t livelloCent) {
    Json json = Evento("level");
    json.Coppia("frequency_mhz", std::round(freqMhz * 1e9) / 1e9);
    return Chiuso(json.Coppia("level_db", livelloCent / 100.0));
}

std::string EventoTimer(int restanoS, int totaleS) {
    Json json = Evento("timer");
    return Chiuso(json.Coppia("left_s", restanoS).Coppia("of_s", totaleS));
}

std::string EventoTrigger(int16_t modo, int userPort) {
    Json json = Evento("trigger");
    return Chiuso(json.Coppia("wanted", modo - 1).Coppia("user_port", userPort));
}

std::string EventoRiquadro(std::string_view testo, std::string_view risposta) {
    Json json = Evento("box");
    return Chiuso(json.Coppia("text", testo).Coppia("answer", risposta));
}

std::string EventoTesto(std::string_view evento, std::string_view chiave, std::string_view testo) {
    Json json = Evento(evento);
    return Chiuso(json.Coppia(chiave, testo));
}

} // namespace orvane
