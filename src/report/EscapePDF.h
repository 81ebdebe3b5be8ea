// Texts between the brackets of a PDF.
#pragma once

#include <string>
#include <string_view>

namespace orvane {

/// Brackets and backslashes escaped, behind what `uscita` holds.
inline void AccodaEscape(std::string_view byte, std::string& uscita) {
    for (const char c : byte) {
        if (c == '\\' || c == '(' || c == ')')
            uscita += '\\';
        uscita += c;
    }
}

inline std::string EscapeText(std::string_view byte) {
    std::string uscita;
    AccodaEscape(byte, uscita);
    return uscita;
}

} // namespace orvane
