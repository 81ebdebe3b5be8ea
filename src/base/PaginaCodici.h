// Windows-1252, the code page of files and wire, against UTF-8, the text in memory.
#pragma once

#include <string>
#include <string_view>

namespace orvane {

/// Every byte has a character: the five codes without one become the control character of the same
/// number, so that a text survives the round trip byte for byte.
std::string DaAnsi(std::string_view bytes);
/// Characters outside the page become "?"; so does each byte that is no valid UTF-8.
std::string InAnsi(std::string_view utf8);
/// Whether the page has all its characters: a record gives the text back as it is.
bool NellaPagina(std::string_view utf8);

} // namespace orvane
