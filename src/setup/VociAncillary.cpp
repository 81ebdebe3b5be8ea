#include "setup/ModuloScan.h"

#include <span>

namespace orvane {
namespace {

constexpr std::array<std::string_view, 4> kLinee = {"N", "L1", "L2", "L3"};
constexpr std::array<std::string_view, 4> kUscite = {"W", "X", "Y", "Z"};
constexpr std::array<std::string_view, 2> kAntenne = {"V", "H"};

std::vector<VoceAncillary> Voci(std::span<const std::string_view> nomi,
                                std::span<const int16_t> flag) {
    std::vector<VoceAncillary> voci;
    for (size_t i = 0; i < nomi.size(); ++i)
        voci.push_back({nomi[i], flag[i] == 1});
    return voci;
}

} // namespace

std::vector<VoceAncillary> VociAncillary(const ScanLine& riga, int ancillaryKind) {
    const std::span linee(riga.LineSwitch);
    switch (ancillaryKind) {
    case 1:
    case 6:
        return Voci(std::span(kLinee).subspan(1, 2), linee.subspan(1, 2));
    case 2:
        return Voci(kLinee, linee);
    case 3:
        return Voci(kAntenne, riga.Antenna);
    case 4:
        return Voci(kUscite, linee);
    default:
        return {};
    }
}

} // namespace orvane
