#include <algorithm>
#include <cassert>

#include "data/Traccia.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

template <class Record> constexpr size_t kByteRecord = DimensioneSuDisco<Record>();

/// Puts fields at a place with room for them.
struct PosatoreCampi {
    uint8_t* dove;
    void I16(const int16_t& campo, std::string_view = {}) {
        ScriviLittle(dove, static_cast<uint16_t>(campo));
        dove += sizeof campo;
    }
};

constexpr size_t kPagina = 4096;

/// How many of `restano` bytes go out as one write at a place of the file. A process that is killed
/// leaves a write cut off between pages: whole records up to there, or the one that lies across.
size_t Porzione(long dove, size_t restano, size_t byteRecord) {
    const size_t allaFine = kPagina - static_cast<size_t>(dove) % kPagina;
    return std::min(restano, std::max(allaFine / byteRecord, size_t{1}) * byteRecord);
}

uintmax_t Interi(const fs::path& file, size_t byteRecord) {
    std::error_code errore;
    const auto lunghezza = fs::file_size(file, errore);
    return errore ? 0 : lunghezza / byteRecord;
}

/// Cuts a file that is longer.
void Taglia(const fs::path& file, uintmax_t byte) {
    std::error_code errore;
    const auto lunghezza = fs::file_size(file, errore);
    if (!errore && lunghezza > byte)
        fs::resize_file(file, byte, errore);
}

template <class Record> void Componi(std::span<const Record> record, std::vector<uint8_t>& byte) {
    byte.resize(record.size() * kByteRecord<Record>);
    PosatoreCampi posatore{byte.data()};
    for (const Record& uno : record)
        Campi(posatore, const_cast<Record&>(uno)); // which changes none of them
}

} // namespace

template <class Record>
bool ScrittoreRecord<Record>::Apri(const Scrivania& s, std::string_view percorso) {
    const fs::path host = s.albero.Host(percorso);
    // A part of a record would shift those to come.
    Taglia(host, Interi(host, kByteRecord<Record>) * kByteRecord<Record>);
    file_.reset(std::fopen(host.string().c_str(), "ab"));
    // Without a buffer of its own the file hands each call over as one write.
    return file_ && std::setvbuf(file_.get(), nullptr, _IONBF, 0) == 0 &&
           std::fseek(file_.get(), 0, SEEK_END) == 0;
}

template <class Record> bool ScrittoreRecord<Record>::Scrivi(std::span<const Record> record) {
    if (!file_ || record.empty())
        return file_ != nullptr;
    Componi(record, byte_);
    long dove = std::ftell(file_.get());
    for (std::span<const uint8_t> resto = byte_; !resto.empty();) {
        const size_t quanti = Porzione(dove, resto.size(), kByteRecord<Record>);
        if (std::fwrite(resto.data(), 1, quanti, file_.get()) != quanti) {
            Chiudi(); // whatever came behind a torn record would be read shifted
            return false;
        }
        dove += static_cast<long>(quanti);
        resto = resto.subspan(quanti);
    }
    return true;
}

bool SalvaTraccia(const Scrivania& s, std::string_view percorso,
                  std::span<const SampleRecord> passi) {
    std::vector<uint8_t> byte;
    Componi(passi, byte);
    return s.albero.Salva(percorso, byte);
}

template class ScrittoreRecord<SampleRecord>;
template class ScrittoreRecord<PositionRecord>;

bool ScrittoreConPosizioni::Apri(const Scrivania& s, std::string_view percorsoRS,
                                 std::string_view percorsoTM) {
    const fs::path rs = s.albero.Host(percorsoRS);
    const fs::path tm = s.albero.Host(percorsoTM);
    const uintmax_t comuni = std::min(Interi(rs, kByteCampione), Interi(tm, kBytePosizione));
    Taglia(rs, comuni * kByteCampione);
    Taglia(tm, comuni * kBytePosizione);
    if (traccia_.Apri(s, percorsoRS) && posizioni_.Apri(s, percorsoTM))
        return true;
    Chiudi();
    return false;
}

bool ScrittoreConPosizioni::Scrivi(std::span<const SampleRecord> passi,
                                   std::span<const PositionRecord> posizioni) {
    assert(passi.size() == posizioni.size());
    if (traccia_.Scrivi(passi) && posizioni_.Scrivi(posizioni))
        return true;
    Chiudi();
    return false;
}

void ScrittoreConPosizioni::Chiudi() {
    traccia_.Chiudi();
    posizioni_.Chiudi();
}

} // namespace orvane
