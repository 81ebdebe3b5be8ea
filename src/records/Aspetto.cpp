#include "records/Aspetto.h"

#include <algorithm>
#include <cassert>

namespace orvane {
namespace {

constexpr std::array<uint8_t, 4> kMarca = {'A', 'S', 'P', '1'};
constexpr int kFinestraNota = 1; ///< state word of `Window1`
constexpr int kMinimaFinestra = 100;
constexpr int kMassimoPosto = 32000;

auto PostoMarca(auto& env) {
    return env.LookValues.begin() + kPostoMarcaAspetto;
}

int LeggiI16(const EnvRecord& env, size_t posto) {
    return static_cast<int16_t>(env.LookValues[posto] | env.LookValues[posto + 1] << 8);
}

void ScriviI16(EnvRecord& env, size_t posto, int valore) {
    env.LookValues[posto] = static_cast<uint8_t>(valore & 0xff);
    env.LookValues[posto + 1] = static_cast<uint8_t>(valore >> 8 & 0xff);
}

int16_t Limitato(int valore) {
    return static_cast<int16_t>(std::clamp(valore, -kMassimoPosto, kMassimoPosto));
}

} // namespace

const CampoAspetto& CampoDi(int Aspetto::*campo) {
    const auto trovato = std::find_if(kCampiAspetto.begin(), kCampiAspetto.end(),
                                      [&](const CampoAspetto& c) { return c.campo == campo; });
    assert(trovato != kCampiAspetto.end());
    return *trovato;
}

Aspetto LeggiAspetto(const EnvRecord& env) {
    Aspetto aspetto;
    if (!std::equal(kMarca.begin(), kMarca.end(), PostoMarca(env)))
        return aspetto;
    for (const CampoAspetto& c : kCampiAspetto) {
        const int valore = LeggiI16(env, c.posto);
        if (valore >= c.minimo && valore <= c.massimo)
            aspetto.*c.campo = valore;
    }
    return aspetto;
}

void ScriviAspetto(EnvRecord& env, const Aspetto& aspetto) {
    std::copy(kMarca.begin(), kMarca.end(), PostoMarca(env));
    for (const CampoAspetto& c : kCampiAspetto)
        ScriviI16(env, c.posto, std::clamp(aspetto.*c.campo, c.minimo, c.massimo));
}

std::optional<PostoFinestra> LeggiPostoFinestra(const EnvRecord& env) {
    const auto& w = env.Window1;
    if (w[4] != kFinestraNota || w[2] < kMinimaFinestra || w[3] < kMinimaFinestra)
        return std::nullopt;
    return PostoFinestra{w[0], w[1], w[2], w[3]};
}

void ScriviPostoFinestra(EnvRecord& env, const PostoFinestra& posto) {
    env.Window1 = {Limitato(posto.x), Limitato(posto.y), Limitato(posto.larghezza),
                   Limitato(posto.altezza), kFinestraNota};
}

void CopiaAspetto(const EnvRecord& da, EnvRecord& a) {
    a.Window1 = da.Window1;
    a.Window2 = da.Window2;
    a.LookValues = da.LookValues;
}

} // namespace orvane
