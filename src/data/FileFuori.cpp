#include "data/FileFuori.h"

#include "data/FileProvvisorio.h"

namespace orvane {

bool SalvaFuori(const std::filesystem::path& file, std::span<const uint8_t> dati) {
    std::error_code errore;
    const std::filesystem::path host = std::filesystem::absolute(file, errore);
    if (errore || std::filesystem::is_directory(host, errore))
        return false;
    FileProvvisorio nuovo(host.parent_path());
    return nuovo.Scrivi(dati) && nuovo.Chiudi() && nuovo.Sostituisce(host);
}

} // namespace orvane
