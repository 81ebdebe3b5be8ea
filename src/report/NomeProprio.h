// Names of working files, of which no two runs at the same time have the same.
#pragma once

#include <filesystem>

namespace orvane {

/// Makes an empty file of this name, or where another run has one, of the name with "~1", "~2" and
/// so on behind its stem. What is older than any run was left behind by a crash and gives way, but
/// never `eccetto`, whether it exists or not. The name itself where no file can be made.
std::filesystem::path NomeProprio(const std::filesystem::path& voluto,
                                  const std::filesystem::path& eccetto = {});

} // namespace orvane
