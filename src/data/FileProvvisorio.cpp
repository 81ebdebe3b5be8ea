#include "data/FileProvvisorio.h"

#include <chrono>
#include <string>
#include <system_error>

namespace orvane {
namespace {

namespace fs = std::filesystem;

// Names that another console may be writing to are passed over, up to this many.
constexpr int kMassimoTentativi = 1000;
// No save lasts that long: a crash left the file behind.
constexpr std::chrono::hours kResto{1};

/// Frees the name of a file that a crash has left behind.
void CancellaResto(const fs::path& percorso) {
    std::error_code errore;
    const auto scritto = fs::last_write_time(percorso, errore);
    if (!errore && fs::file_time_type::clock::now() - scritto > kResto)
        fs::remove(percorso, errore);
}

} // namespace

FileProvvisorio::FileProvvisorio(const fs::path& cartella) {
    std::error_code errore;
    for (int i = 0; i < kMassimoTentativi && !file_; ++i) {
        percorso_ = cartella / (std::string(kPrefisso) + std::to_string(i));
        CancellaResto(percorso_);
        file_.reset(std::fopen(percorso_.string().c_str(), "wbx"));
        if (!file_ && !fs::exists(percorso_, errore))
            break; // the directory itself refuses
    }
    if (!file_)
        percorso_.clear();
}

FileProvvisorio::~FileProvvisorio() {
    file_.reset();
    std::error_code errore;
    if (!percorso_.empty())
        fs::remove(percorso_, errore);
}

bool FileProvvisorio::Scrivi(std::span<const uint8_t> dati) {
    return file_ &&
           (dati.empty() || std::fwrite(dati.data(), 1, dati.size(), file_.get()) == dati.size());
}

bool FileProvvisorio::Chiudi() {
    if (!file_)
        return false;
    const bool scritto = std::fflush(file_.get()) == 0;
    return std::fclose(file_.release()) == 0 && scritto;
}

bool FileProvvisorio::Sostituisce(const fs::path& meta) {
    std::error_code errore;
    fs::rename(percorso_, meta, errore);
    if (errore)
        return false;
    percorso_.clear();
    return true;
}

} // namespace orvane
