// The entries of `GraphColors` by name and group, as the colour window lists them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

struct VoceColore {
    const char* gruppo;
    std::string nome;
    size_t schermo; ///< index into `GraphColors`
    size_t stampa;  ///< the same as `schermo` where paper has no colour of its own
};

/// Every entry once, groups together.
std::vector<VoceColore> VociColori();

/// "#RRGGBB".
std::string TestoColore(int32_t colore);
/// Six hexadecimal digits, with or without "#"; empty for anything else.
std::optional<int32_t> LeggiColore(std::string_view testo);

} // namespace orvane
