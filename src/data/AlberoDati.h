// The data tree: from paths with backslashes, as records and messages hold them, to files of the
// host. Names are found whatever their case, because archives come from case-blind disks.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

class AlberoDati {
public:
    /// `radice`: the host's directory. `DataRoot` is its text with a trailing backslash.
    explicit AlberoDati(std::filesystem::path radice);

    const std::string& DataRoot() const { return dataRoot_; }
    const std::filesystem::path& Radice() const { return radice_; }

    /// Host path of a tree path, absolute (behind `DataRoot`) or relative to it. Each part that
    /// exists under another case is taken as it stands on disk. A part ".." is refused: it gives
    /// a path that does not exist.
    std::filesystem::path Host(std::string_view percorso) const;

    bool Esiste(std::string_view percorso) const;
    bool EsisteCartella(std::string_view percorso) const;
    /// Creates the directory with those above it; errors are ignored.
    void AssicuraCartella(std::string_view percorso) const;
    /// The bytes of a file; empty when it cannot be read.
    std::optional<std::vector<uint8_t>> Leggi(std::string_view percorso) const;
    /// Writes a temporary file beside the target and renames it over: a failed write leaves the
    /// old file. False on failure.
    bool Salva(std::string_view percorso, std::span<const uint8_t> dati) const;
    bool Copia(std::string_view da, std::string_view a) const;
    /// Missing files are no failure.
    bool Cancella(std::string_view percorso) const;
    void CancellaCartella(std::string_view percorso) const;

    /// Names in a directory, sorted without regard to case; files with this extension (with its
    /// case ignored, "" for all), or the directories.
    std::vector<std::string> ElencaFile(std::string_view cartella,
                                        std::string_view estensione) const;
    std::vector<std::string> ElencaCartelle(std::string_view cartella) const;

private:
    std::filesystem::path radice_;
    std::string dataRoot_;
};

} // namespace orvane
