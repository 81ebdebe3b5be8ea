// The program's logo, as reports carry it on every page.
#pragma once

#include <cstdint>
#include <vector>

namespace orvane {

/// A BMP of sixteen colours, twice as wide as high. The upper part stays white: on a landscape
/// sheet it lies beyond the edge.
std::vector<uint8_t> LogoBMP();

} // namespace orvane
