// A report as rich text: header, picture and table in a font of fixed pitch.
#pragma once

#include "report/ConvertiTestoInPDFRTF.h"

namespace orvane {

EsitoDocumento CreaFileRTF(const RichiestaDocumento& richiesta,
                           const std::filesystem::path& percorso);

/// A text's characters as RTF has them: braces and backslashes escaped, Windows-1252 as `\'hh`, the
/// rest as `\uN?`.
std::string EscapeRTF(std::string_view utf8);

} // namespace orvane
