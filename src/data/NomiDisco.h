// How names on disk compare: without regard to case, also for the accented letters of the ANSI
// code page.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace orvane {

/// The upper case of a UTF-8 name; two names are the same file when their keys are equal.
std::string ChiaveNome(std::string_view nome);

std::filesystem::path PathDaUtf8(std::string_view testo);
std::string Utf8DaPath(const std::filesystem::path& percorso);

/// Whether a limit, factor or frequency table of this name may be looked for: not empty, and no
/// character that could lead out of its directory.
bool NomeTabellaAmmesso(std::string_view nome);

} // namespace orvane
