// The lines of a text file, one at a time.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "data/FileProvvisorio.h"

namespace orvane {

class RigheFile {
public:
    explicit RigheFile(const std::filesystem::path& percorso);

    bool Aperto() const { return file_ != nullptr; }
    /// In UTF-8, from Windows-1252, without its end (CR LF, LF or CR). Empty behind the last one.
    /// What is longer than any line of a report comes in pieces.
    std::optional<std::string> Prossima();
    /// Whether the machine refused in the midst of the file.
    bool Interrotto() const { return file_ && std::ferror(file_.get()) != 0; }

private:
    int Byte();

    FileC file_;
    std::vector<char> buffer_;
    size_t letti_ = 0;
    size_t dove_ = 0;
    bool dopoCR_ = false;
};

} // namespace orvane
