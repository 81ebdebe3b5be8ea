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
    return file_ && std::setvbuf(file_.get(), nullptr, _IONBF, 0) == 0;
}

template <class Record> bool ScrittoreRecord<Record>::Scrivi(std::span<const Record> record) {
    if (!file_ || record.empty())
        return file_ != nullptr;
    Componi(record, byte_);
    if (std::fwrite(byte_.data(), 1, byte_.size(), file_.get()) == byte_.size())
        return true;
    Chiudi(); // whatever came behind a torn record would be read shifted
    return false;
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
