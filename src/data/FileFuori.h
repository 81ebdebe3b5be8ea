// Files of results that the user wants anywhere on the machine, outside the data tree.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>

namespace orvane {

/// Writes a temporary file beside the target and renames it over; a failed write leaves the old
/// file. False on failure.
bool SalvaFuori(const std::filesystem::path& file, std::span<const uint8_t> dati);

} // namespace orvane
