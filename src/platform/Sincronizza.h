// Makes bytes and names outlast a power cut.
#pragma once

#include <filesystem>

namespace orvane {

/// Waits until a file's bytes, or a directory's names, are on the disk. False when that failed; a
/// file system that cannot tell (as some network ones) counts as done.
bool Sincronizza(const std::filesystem::path& percorso);

} // namespace orvane
