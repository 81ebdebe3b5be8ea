// The data tree: from paths with backslashes, as records and messages hold them, to files of the
// host. Names are found whatever their case, because archives come from case-blind disks.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

class FileProvvisorio;

/// Makes what was written to a file, or the names in a directory, outlast a power cut. False when
/// the machine could not.
using Sincronia = std::function<bool(const std::filesystem::path&)>;

/// A file that is held until this goes, and no longer than the process lives.
using Presa = std::shared_ptr<void>;

/// How the machine tells consoles beside each other who is at work on a file.
struct PreseFile {
    /// Holds a file; null where another holds it, or the machine cannot.
    std::function<Presa(const std::filesystem::path&)> prendi;
    /// Whether anyone holds it, this process too.
    std::function<bool(const std::filesystem::path&)> presa;
};

class AlberoDati {
public:
    /// `radice`: the host's directory. `DataRoot` is its text with a trailing backslash. Without
    /// `sincronia` the system decides when bytes reach the disk; without `prese` no file is held.
    explicit AlberoDati(std::filesystem::path radice, Sincronia sincronia = {},
                        PreseFile prese = {});

    const std::string& DataRoot() const { return dataRoot_; }
    const std::filesystem::path& Radice() const { return radice_; }

    /// Host path of a tree path, absolute (behind `DataRoot`) or relative to it. Each part that
    /// exists under another case is taken as it stands on disk, the exact case first; the rest
    /// keeps the case that was asked for. A part "..", a drive or an absolute path from elsewhere
    /// is refused: the result is then a name below the root that no file system can hold.
    std::filesystem::path Host(std::string_view percorso) const;

    /// The path as boxes show it: `DataRoot` and the relative path, with backslashes.
    std::string PercorsoIntero(std::string_view percorso) const;

    bool Esiste(std::string_view percorso) const; ///< a file, not a directory
    bool EsisteCartella(std::string_view percorso) const;
    /// Whether what lies in a directory can be listed: an absent one holds nothing and can; a name
    /// that no file system takes, or a file in its place, cannot.
    bool SiElenca(std::string_view percorso) const;
    /// Creates the directory with those above it; errors are ignored.
    void AssicuraCartella(std::string_view percorso) const;
    /// The bytes of a file, at most `alPiu` of them; empty when it cannot be read.
    std::optional<std::vector<uint8_t>> Leggi(std::string_view percorso,
                                              size_t alPiu = SIZE_MAX) const;
    /// Writes a temporary file beside the target and renames it over: a failed write, and a power
    /// cut at any moment, leave the old file or the new one, whole. False on failure.
    bool Salva(std::string_view percorso, std::span<const uint8_t> dati) const;
    /// Over an old file too, which stays when the copy fails.
    bool Copia(std::string_view da, std::string_view a) const;
    /// A missing file is no failure; a directory is.
    bool Cancella(std::string_view percorso) const;
    /// With all that is in it; never the root itself.
    void CancellaCartella(std::string_view percorso) const;
    /// Only an empty one; an absent one is no failure.
    bool CancellaCartellaVuota(std::string_view percorso) const;
    /// A file or a directory, inside the tree. False when `a` exists in some case, or on failure.
    bool Rinomina(std::string_view da, std::string_view a) const;

    /// Holds a file that is there, and whether anyone does: `PreseFile`.
    Presa Prendi(std::string_view percorso) const;
    bool InMano(std::string_view percorso) const;

    /// Names in a directory, sorted without regard to case; files with this extension (with its
    /// case ignored, "" for all), or the directories.
    std::vector<std::string> ElencaFile(std::string_view cartella,
                                        std::string_view estensione) const;
    std::vector<std::string> ElencaCartelle(std::string_view cartella) const;

private:
    /// The path below the root, without `DataRoot`; empty when it leads elsewhere.
    std::optional<std::string> Relativo(std::string_view percorso) const;

    bool Sincronizza(const std::filesystem::path& host) const {
        return !sincronia_ || sincronia_(host);
    }
    /// Puts a whole file in its target's place.
    bool Consegna(FileProvvisorio& nuovo, const std::filesystem::path& host) const;

    std::filesystem::path radice_;
    std::string dataRoot_;
    Sincronia sincronia_;
    PreseFile prese_;
};

} // namespace orvane
