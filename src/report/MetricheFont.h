// The four families of fonts: published advance widths, and what a font descriptor says of them.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvane {

enum class FamigliaFont { Arial, Times, Courier, Symbol };

inline constexpr int kPrimoCarattere = 32;
inline constexpr int kUltimoCarattere = 255;

/// Lengths in thousandths of the em.
struct MetricaFont {
    std::string_view nome; ///< upper case, without blanks
    int flags;             ///< 1 fixed pitch, 2 serif, 4 symbolic, 32 not symbolic
    std::array<int, 4> riquadro;
    double angoloCorsivo; ///< of its slanted style, degrees
    int ascent;
    int descent;
    int capHeight;
    int xHeight;
    int stemV;
    int stemH;
    /// From `kPrimoCarattere` on; Windows-1252, Symbol in its own order.
    std::array<int16_t, kUltimoCarattere - kPrimoCarattere + 1> larghezze;
};

const MetricaFont& Metrica(FamigliaFont famiglia);
/// By name, whatever its blanks and case; Arial for an unknown one.
FamigliaFont FamigliaDaNome(std::string_view font);
/// Sum of the widths of a text in Windows-1252.
int LarghezzaTesto(FamigliaFont famiglia, std::string_view ansi);

} // namespace orvane
