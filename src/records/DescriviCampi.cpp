#include "records/DescriviCampi.h"

namespace orvane {
namespace {

std::string Esadecimale(std::span<const uint8_t> byte) {
    constexpr std::string_view kCifre = "0123456789abcdef";
    std::string testo;
    for (const uint8_t b : byte) {
        testo += kCifre[b >> 4];
        testo += kCifre[b & 15];
    }
    return testo;
}

} // namespace

void DescrittoreCampi::Gruppo(std::string_view nome, size_t indice) {
    gruppo_ = std::string(nome) + "[" + std::to_string(indice) + "]";
}

void DescrittoreCampi::Aggiungi(std::string_view nome, size_t byte, std::string tipo,
                                ValoreCampo valore) {
    const bool stesso =
        !elenco_.empty() && elenco_.back().nome == nome && elenco_.back().gruppo == gruppo_;
    if (!stesso)
        elenco_.push_back({.gruppo = gruppo_,
                           .nome = std::string(nome),
                           .offset = posto_,
                           .tipo = std::move(tipo)});
    CampoDescritto& campo = elenco_.back();
    campo.byte += byte;
    if (!nome.empty())
        campo.valori.push_back(std::move(valore));
    posto_ += byte;
}

void DescrittoreCampi::Byte(std::span<const uint8_t> byte, std::string_view nome) {
    Aggiungi(nome, byte.size(), "bytes", Esadecimale(byte));
}

} // namespace orvane
