#include "verbs/Json.h"

#include <cmath>
#include <cstdio>

#include "base/Numeri.h"

namespace orvane {
namespace {

std::string Protetto(std::string_view testo) {
    std::string esito = "\"";
    for (const char c : testo) {
        if (c == '"' || c == '\\') {
            esito += '\\';
            esito += c;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            char codice[8];
            std::snprintf(codice, sizeof codice, "\\u%04x", c);
            esito += codice;
        } else {
            esito += c;
        }
    }
    return esito + "\"";
}

} // namespace

void Json::Separa() {
    if (virgola_)
        testo_ += ',';
    virgola_ = true;
}

Json& Json::Apri(char parentesi) {
    Separa();
    testo_ += parentesi;
    aperte_ += parentesi == '{' ? '}' : ']';
    virgola_ = false;
    return *this;
}

Json& Json::Chiudi() {
    testo_ += aperte_.back();
    aperte_.pop_back();
    virgola_ = true;
    return *this;
}

Json& Json::Chiave(std::string_view nome) {
    Separa();
    testo_ += Protetto(nome) + ":";
    virgola_ = false;
    return *this;
}

Json& Json::Testo(std::string_view valore) {
    Separa();
    testo_ += Protetto(valore);
    return *this;
}

Json& Json::Numero(double valore) {
    Separa();
    testo_ += std::isfinite(valore) ? TestoDaNumero(valore) : "null";
    return *this;
}

Json& Json::Coppia(std::string_view nome, float valore) {
    return Chiave(nome).Numero(LeggiNumero(TestoDaNumero(valore)).value_or(valore));
}

Json& Json::Logico(bool valore) {
    Separa();
    testo_ += valore ? "true" : "false";
    return *this;
}

} // namespace orvane
