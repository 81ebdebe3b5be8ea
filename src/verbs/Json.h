// JSON as the verbs print it: one document, or one event a line.
#pragma once

#include <string>
#include <string_view>

namespace orvane {

/// Writes values in order; commas follow by themselves. Text is UTF-8.
class Json {
public:
    Json& Oggetto() { return Apri('{'); }
    Json& Lista() { return Apri('['); }
    Json& Chiudi();
    Json& Chiave(std::string_view nome);
    Json& Testo(std::string_view valore);
    Json& Numero(double valore);
    Json& Logico(bool valore);

    Json& Coppia(std::string_view nome, std::string_view valore) {
        return Chiave(nome).Testo(valore);
    }
    Json& Coppia(std::string_view nome, const char* valore) { return Chiave(nome).Testo(valore); }
    Json& Coppia(std::string_view nome, double valore) { return Chiave(nome).Numero(valore); }
    /// As short as a float is told: 0.1 and not 0.10000000149011612.
    Json& Coppia(std::string_view nome, float valore);
    Json& Coppia(std::string_view nome, int valore) { return Chiave(nome).Numero(valore); }
    Json& Coppia(std::string_view nome, bool valore) { return Chiave(nome).Logico(valore); }

    const std::string& Documento() const { return testo_; }

private:
    Json& Apri(char parentesi);
    void Separa();

    std::string testo_;
    std::string aperte_; ///< closing brackets still to come
    bool virgola_ = false;
};

} // namespace orvane
