// A file that is written beside its target and takes the target's place only when it is whole.
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <span>
#include <string_view>

namespace orvane {

struct ChiudiFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileC = std::unique_ptr<std::FILE, ChiudiFile>;

class FileProvvisorio {
public:
    static constexpr std::string_view kPrefisso = ".salva-";

    /// Makes a file of a new name in the directory; on failure every later step is false.
    explicit FileProvvisorio(const std::filesystem::path& cartella);
    /// Removes the file, unless it has taken its target's place.
    ~FileProvvisorio();
    FileProvvisorio(const FileProvvisorio&) = delete;
    FileProvvisorio& operator=(const FileProvvisorio&) = delete;

    const std::filesystem::path& Percorso() const { return percorso_; }
    bool Scrivi(std::span<const uint8_t> dati);
    /// False also when the last bytes could not be handed to the system.
    bool Chiudi();
    bool Sostituisce(const std::filesystem::path& meta);

private:
    std::filesystem::path percorso_;
    FileC file_;
};

} // namespace orvane
