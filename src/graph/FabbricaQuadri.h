// The seam to pictures as files: a surface of some size is drawn on, and comes back as bytes.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "graph/Superficie.h"

namespace orvane {

enum class FormatoImmagine { Bmp, Png, Jpg, Svg };

/// By the extension of a path, whatever its case ("jpeg" too); empty for any other.
std::optional<FormatoImmagine> FormatoDaPercorso(std::string_view percorso);

struct FabbricaQuadri {
    virtual ~FabbricaQuadri() = default;
    /// A picture of this size in pixels, drawn by `disegna`; the bytes of a file, 24 bits a pixel
    /// where the format has pixels. Empty when the picture cannot be made.
    virtual std::vector<uint8_t> Dipingi(int larghezza, int altezza, FormatoImmagine formato,
                                         const std::function<void(Superficie&)>& disegna) = 0;
};

} // namespace orvane
