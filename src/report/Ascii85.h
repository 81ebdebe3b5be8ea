// Bytes as printable characters: five for each four.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvane {

/// A stream of bytes, in pieces of any length. Groups of four zeros become "z".
class CodificaA85 {
public:
    /// Behind what `uscita` holds; up to three bytes wait for the next piece.
    void Aggiungi(std::string_view byte, std::string& uscita);
    /// The last group, shortened, and the end mark "~>".
    void Fine(std::string& uscita);

private:
    std::array<uint8_t, 4> gruppo_{};
    size_t quanti_ = 0;
};

std::string InAscii85(std::string_view byte);

} // namespace orvane
