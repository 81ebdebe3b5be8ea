#include "verbs/Json.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "base/Numeri.h"

namespace orvane {
namespace {

bool Continua(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

/// Bytes of the character at the front; 0 for what is no UTF-8, as the name of a file may be.
size_t ByteCarattere(std::string_view testo) {
    const auto primo = static_cast<unsigned char>(testo[0]);
    const size_t quanti = primo < 0x80                    ? 1
                          : primo >= 0xC2 && primo < 0xE0 ? 2
                          : primo >= 0xE0 && primo < 0xF0 ? 3
                          : primo >= 0xF0 && primo < 0xF5 ? 4
                                                          : 0;
    if (quanti > testo.size())
        return 0;
    for (size_t i = 1; i < quanti; ++i)
        if (!Continua(testo[i]))
            return 0;
    return quanti;
}

std::string Protetto(std::string_view testo) {
    std::string esito = "\"";
    for (size_t i = 0; i < testo.size();) {
        const size_t byte = ByteCarattere(testo.substr(i));
        const char c = testo[i];
        if (byte != 1) {
            esito += byte == 0 ? "\\ufffd" : testo.substr(i, byte);
        } else if (c == '"' || c == '\\') {
            esito += '\\';
            esito += c;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            char codice[8];
            std::snprintf(codice, sizeof codice, "\\u%04x", c);
            esito += codice;
        } else {
            esito += c;
        }
        i += std::max<size_t>(byte, 1);
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
