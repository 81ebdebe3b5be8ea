// Files that a process holds while it works on something, for others to see.
#pragma once

#include <filesystem>
#include <memory>

namespace orvane {

/// Holds an existing file until the result goes; the system lets go of it when the process dies, in
/// whatever way. Null where another holds it, or the file system knows no locks.
std::shared_ptr<void> PrendiFile(const std::filesystem::path& percorso);

/// Whether anyone holds a file, this process too. Looking does not get in a holder's way.
bool FilePreso(const std::filesystem::path& percorso);

} // namespace orvane
