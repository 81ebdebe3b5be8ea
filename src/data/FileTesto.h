// Plain text files that the user keeps beside measures: comment of a test, header of reports.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "data/Scrivania.h"

namespace orvane {

/// "Test Comment.TXT" in `DataRoot`, or in the measure where one is loaded.
std::string PercorsoCommento(std::string_view misura);
/// "Header.TXT" in `DataRoot`: every text output begins with it.
inline constexpr std::string_view kFileHeader = "Header.TXT";

/// The text in UTF-8, its lines ended by LF; an absent file is an empty text. Empty after the box
/// "Failed loading" and the path for one that cannot be read, or is longer than a mebibyte.
std::optional<std::string> CaricaTesto(const Scrivania& s, std::string_view percorso);
/// Written in the ANSI code page with CR LF; characters outside it become "?". False after the box
/// "Cannot open file " and the path, and for a text that could not be loaded again.
bool SalvaTesto(const Scrivania& s, std::string_view percorso, std::string_view testo);

} // namespace orvane
