// A record told field by field, with names, places and values, from the one list that reads and
// writes it.
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "records/Visite.h"

namespace orvane {

using ValoreCampo = std::variant<int32_t, float, double, std::string>;

/// One field; the elements of an array count as one.
struct CampoDescritto {
    std::string gruppo; ///< "ScanLine[3]", or empty
    std::string nome;   ///< empty for a range without a name, which has no values either
    size_t offset = 0;
    size_t byte = 0;
    std::string tipo;                  ///< of an element: "i16", "f64", "char[60]", "bytes"
    std::vector<ValoreCampo> valori{}; ///< numbers, UTF-8 text, or hexadecimal digits of bytes
};

/// Collects what `Campi` visits.
class DescrittoreCampi {
public:
    const std::vector<CampoDescritto>& Elenco() const { return elenco_; }

    void I16(const int16_t& x, std::string_view nome = {}) { Aggiungi(nome, 2, "i16", int32_t{x}); }
    void I32(const int32_t& x, std::string_view nome = {}) { Aggiungi(nome, 4, "i32", x); }
    void F32(const float& x, std::string_view nome = {}) { Aggiungi(nome, 4, "f32", x); }
    void F64(const double& x, std::string_view nome = {}) { Aggiungi(nome, 8, "f64", x); }
    void Testo(const std::string& x, size_t larghezza, std::string_view nome = {}) {
        Aggiungi(nome, larghezza, "char[" + std::to_string(larghezza) + "]", x);
    }
    template <size_t N> void Riserva(const std::array<uint8_t, N>& x, std::string_view nome = {}) {
        Byte(x, nome);
    }
    void Gruppo(std::string_view nome, size_t indice);
    void FineGruppo() { gruppo_.clear(); }

private:
    void Aggiungi(std::string_view nome, size_t byte, std::string tipo, ValoreCampo valore);
    void Byte(std::span<const uint8_t> byte, std::string_view nome);

    std::vector<CampoDescritto> elenco_;
    std::string gruppo_;
    size_t posto_ = 0;
};

template <class Record> std::vector<CampoDescritto> DescriviRecord(const Record& record) {
    DescrittoreCampi descrittore;
    // As in the writer: one list for all, and nothing here changes a field.
    Campi(descrittore, const_cast<Record&>(record));
    return descrittore.Elenco();
}

} // namespace orvane
