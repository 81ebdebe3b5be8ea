#include "report/RigheFile.h"

#include <system_error>

#include "base/PaginaCodici.h"

namespace orvane {
namespace {

constexpr size_t kBuffer = 1 << 16;
constexpr size_t kMassimaRiga = 4096;
constexpr int kFine = -1;

} // namespace

RigheFile::RigheFile(const std::filesystem::path& percorso) {
    std::error_code errore;
    if (std::filesystem::is_regular_file(percorso, errore))
        file_.reset(std::fopen(percorso.string().c_str(), "rb"));
    if (file_)
        buffer_.resize(kBuffer);
}

int RigheFile::Byte() {
    if (dove_ == letti_) {
        letti_ = file_ ? std::fread(buffer_.data(), 1, buffer_.size(), file_.get()) : 0;
        dove_ = 0;
        if (letti_ == 0)
            return kFine;
    }
    return static_cast<unsigned char>(buffer_[dove_++]);
}

std::optional<std::string> RigheFile::Prossima() {
    std::string riga;
    while (riga.size() < kMassimaRiga) {
        const int byte = Byte();
        const bool seguito = dopoCR_ && byte == '\n'; // of an end that has already counted
        dopoCR_ = byte == '\r';
        if (seguito)
            continue;
        if (byte == kFine && riga.empty())
            return std::nullopt;
        if (byte == kFine || byte == '\r' || byte == '\n')
            break;
        riga += static_cast<char>(byte);
    }
    return DaAnsi(riga);
}

} // namespace orvane
