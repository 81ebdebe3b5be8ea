#include "graph/FabbricaQuadri.h"

#include <array>

#include "base/Testo.h"

namespace orvane {
namespace {

struct VoceFormato {
    std::string_view estensione;
    FormatoImmagine formato;
};
constexpr std::array<VoceFormato, 5> kFormati = {{{"BMP", FormatoImmagine::Bmp},
                                                  {"PNG", FormatoImmagine::Png},
                                                  {"JPG", FormatoImmagine::Jpg},
                                                  {"JPEG", FormatoImmagine::Jpg},
                                                  {"SVG", FormatoImmagine::Svg}}};

} // namespace

std::optional<FormatoImmagine> FormatoDaPercorso(std::string_view percorso) {
    const size_t punto = percorso.rfind('.');
    if (punto == std::string_view::npos)
        return std::nullopt;
    for (const VoceFormato& voce : kFormati)
        if (UgualiSenzaMaiuscole(percorso.substr(punto + 1), voce.estensione))
            return voce.formato;
    return std::nullopt;
}

} // namespace orvane
