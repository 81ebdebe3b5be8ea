// Pictures as PNG, for documents that hold no BMP.
#pragma once

#include <cstdint>
#include <vector>

#include "report/clsPDFCreator.h"

namespace orvane {

/// The bytes of a PNG file of the same pixels. Rows that repeat the one above take next to nothing.
std::vector<uint8_t> InPNG(const PixelPdf& pixel);

} // namespace orvane
