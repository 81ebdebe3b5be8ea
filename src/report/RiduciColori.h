// A picture with as few colours as a palette has: a third of the bytes.
#pragma once

#include "report/clsPDFCreator.h"

namespace orvane {

/// The picture with 8 bits a pixel; what has a palette already comes back as it is. Up to 256
/// colours stay as they are. Of more, those that cover most stay, and the others, such as the edges
/// of letters and lines have them, become the nearest of these.
PixelPdf RiduciColori(const PixelPdf& pixel);

} // namespace orvane
