// How a record goes to disk: one list of fields a record, `Campi`, read, written and measured by
// the visitors below. Packed, little-endian, text blank-padded in the ANSI code page. A field goes
// by with its documented name; those without one hold what other programs keep there.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/PaginaCodici.h"

namespace orvane {

/// Least significant byte first, on any machine.
template <class U> constexpr U LeggiLittle(const uint8_t* dati) {
    U valore = 0;
    for (size_t i = 0; i < sizeof(U); ++i)
        valore = static_cast<U>(valore | static_cast<U>(dati[i]) << (8 * i));
    return valore;
}
template <class U> constexpr void ScriviLittle(uint8_t* dati, U valore) {
    for (size_t i = 0; i < sizeof(U); ++i)
        dati[i] = static_cast<uint8_t>(valore >> (8 * i));
}

/// Reads fields from bytes. A field that does not fit any more keeps its value, and so does every
/// field behind it; `Completo` then tells that the bytes were too few.
class LettoreCampi {
public:
    explicit LettoreCampi(std::span<const uint8_t> dati) : dati_(dati) {}

    void I16(int16_t& campo, std::string_view = {}) { Intero<uint16_t>(campo); }
    void I32(int32_t& campo, std::string_view = {}) { Intero<uint32_t>(campo); }
    void F32(float& campo, std::string_view = {}) { Reale<uint32_t>(campo); }
    void F64(double& campo, std::string_view = {}) { Reale<uint64_t>(campo); }
    void Testo(std::string& campo, size_t larghezza, std::string_view = {});
    template <size_t N> void Riserva(std::array<uint8_t, N>& campo, std::string_view = {}) {
        if (const uint8_t* da = Prendi(N))
            std::copy(da, da + N, campo.begin());
    }

    bool Completo() const { return completo_; }

private:
    const uint8_t* Prendi(size_t quanti) {
        if (!completo_ || dati_.size() - posto_ < quanti) {
            completo_ = false;
            return nullptr;
        }
        posto_ += quanti;
        return dati_.data() + posto_ - quanti;
    }
    template <class U, class T> void Intero(T& campo) {
        if (const uint8_t* da = Prendi(sizeof(U)))
            campo = static_cast<T>(LeggiLittle<U>(da));
    }
    template <class U, class T> void Reale(T& campo) {
        if (const uint8_t* da = Prendi(sizeof(U)))
            campo = std::bit_cast<T>(LeggiLittle<U>(da));
    }

    std::span<const uint8_t> dati_;
    size_t posto_ = 0;
    bool completo_ = true;
};

/// Appends fields to a buffer.
class ScrittoreCampi {
public:
    explicit ScrittoreCampi(std::vector<uint8_t>& dati) : dati_(dati) {}

    void I16(const int16_t& campo, std::string_view = {}) { Accoda(static_cast<uint16_t>(campo)); }
    void I32(const int32_t& campo, std::string_view = {}) { Accoda(static_cast<uint32_t>(campo)); }
    void F32(const float& campo, std::string_view = {}) { Accoda(std::bit_cast<uint32_t>(campo)); }
    void F64(const double& campo, std::string_view = {}) { Accoda(std::bit_cast<uint64_t>(campo)); }
    /// Cut to `larghezza`, or padded with blanks up to it.
    void Testo(const std::string& campo, size_t larghezza, std::string_view = {});
    template <size_t N> void Riserva(const std::array<uint8_t, N>& campo, std::string_view = {}) {
        dati_.insert(dati_.end(), campo.begin(), campo.end());
    }

private:
    template <class U> void Accoda(U valore) {
        const size_t qui = dati_.size();
        dati_.resize(qui + sizeof(U));
        ScriviLittle(dati_.data() + qui, valore);
    }

    std::vector<uint8_t>& dati_;
};

/// Counts bytes, also at compile time.
struct MisuratoreCampi {
    size_t byte = 0;

    constexpr void I16(const int16_t&, std::string_view = {}) { byte += 2; }
    constexpr void I32(const int32_t&, std::string_view = {}) { byte += 4; }
    constexpr void F32(const float&, std::string_view = {}) { byte += 4; }
    constexpr void F64(const double&, std::string_view = {}) { byte += 8; }
    constexpr void Testo(const std::string&, size_t larghezza, std::string_view = {}) {
        byte += larghezza;
    }
    template <size_t N>
    constexpr void Riserva(const std::array<uint8_t, N>&, std::string_view = {}) {
        byte += N;
    }
};

/// The fields that follow belong to record `indice` of a list of records, until the next of them
/// or `FineGruppo`. Only visitors that tell of it have a `Gruppo`.
template <class Visita> constexpr void Gruppo(Visita& v, std::string_view nome, size_t indice) {
    if constexpr (requires { v.Gruppo(nome, indice); })
        v.Gruppo(nome, indice);
}
template <class Visita> constexpr void FineGruppo(Visita& v) {
    if constexpr (requires { v.FineGruppo(); })
        v.FineGruppo();
}

template <class Record> constexpr size_t DimensioneSuDisco() {
    Record vuoto{};
    MisuratoreCampi misuratore;
    Campi(misuratore, vuoto);
    return misuratore.byte;
}

/// True when every field was there; otherwise the record keeps what was read so far.
template <class Record> bool LeggiRecord(std::span<const uint8_t> dati, Record& record) {
    LettoreCampi lettore(dati);
    Campi(lettore, record);
    return lettore.Completo();
}

template <class Record> std::vector<uint8_t> ScriviRecord(const Record& record) {
    std::vector<uint8_t> dati;
    ScrittoreCampi scrittore(dati);
    // The list of fields is one for reading and writing; the writer changes none of them.
    Campi(scrittore, const_cast<Record&>(record));
    return dati;
}

} // namespace orvane
