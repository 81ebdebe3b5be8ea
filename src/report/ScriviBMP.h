// A picture with a palette as a BMP file.
#pragma once

#include <cstdint>
#include <vector>

#include "report/clsPDFCreator.h"

namespace orvane {

/// 1, 4 or 8 bits a pixel with a whole palette; 300 pixels an inch.
std::vector<uint8_t> InBMP(const PixelPdf& pixel);

} // namespace orvane
