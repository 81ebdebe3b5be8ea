// Pictures from BMP files, as documents need them.
#pragma once

#include <filesystem>
#include <optional>
#include <span>

#include "report/clsPDFCreator.h"

namespace orvane {

/// Rows from the top, red first. Empty for what is no uncompressed BMP of 1, 4, 8 or 24 bits a
/// pixel, or is shorter than it says. `grigio` makes one byte of luminance of 24 bits.
std::optional<PixelPdf> LeggiBMP(std::span<const uint8_t> byte, bool grigio = false);
std::optional<PixelPdf> LeggiFileBMP(const std::filesystem::path& percorso, bool grigio = false);

} // namespace orvane
