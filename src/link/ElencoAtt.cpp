#include "link/ElencoAtt.h"

#include <algorithm>

namespace orvane {
namespace {

using M = const ReceiverModel&;

/// Attenuations from 0 in steps; the last entries of both lists are hidden.
struct VoceAtt {
    bool (*vale)(M, bool antenna);
    int voci;
    int passoDb;
    int nascoste;
    int nascosteMin;
};

bool Larga(M m) {
    return m.EstensioneAttiva || (m.HaK3XK6X && m.ModoK3X == 2);
}

/// A front-end whose attenuator the rod antenna opens.
bool ConPiuAttenuazione(M m) {
    return m.TipoFrontEnd == 1 || (m.TipoFrontEnd >= 2 && m.Is5520F);
}

// The first row that holds decides.
constexpr VoceAtt kAttenuatori[] = {
    {[](M m, bool) { return Larga(m); }, 27, 2, 1, 2}, // up to 50 dB, with the 18 GHz unit too
    {[](M m, bool antenna) { return ConPiuAttenuazione(m) && antenna; }, 4, 10, 0, 4},
    {[](M m, bool antenna) { return m.TipoFrontEnd >= 1 && antenna; }, 2, 10, 0, 4},
    {[](M m, bool) { return m.TipoFrontEnd >= 1; }, 2, 10, 0, 2},
    {[](M, bool) { return true; }, 12, 5, 4, 4},
};

const VoceAtt& VoceDi(M modello, bool antenna) {
    return *std::ranges::find_if(kAttenuatori,
                                 [&](const VoceAtt& riga) { return riga.vale(modello, antenna); });
}

} // namespace

std::vector<int> ElencoAtt(const ReceiverModel& modello, bool antenna) {
    const VoceAtt& voce = VoceDi(modello, antenna);
    std::vector<int> elenco = {kAttAuto};
    for (int i = 0; i < voce.voci - voce.nascoste; ++i)
        elenco.push_back(i * voce.passoDb);
    return elenco;
}

std::span<const int> ElencoMinAtt(const ReceiverModel& modello, bool antenna) {
    const auto nascoste = static_cast<size_t>(VoceDi(modello, antenna).nascosteMin);
    return std::span(kMinAttDb).first(kMinAttDb.size() - nascoste);
}

size_t RigaAtt(std::span<const int> elenco, int dB) {
    const auto voce = std::ranges::find_if(elenco, [&](int valore) { return valore >= dB; });
    return voce == elenco.end() ? elenco.size() - 1 : static_cast<size_t>(voce - elenco.begin());
}

} // namespace orvane
