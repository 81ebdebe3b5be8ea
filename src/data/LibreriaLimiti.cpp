#include "data/LibreriaLimiti.h"

#include <array>
#include <cmath>
#include <limits>
#include <span>

#include "data/Cartelle.h"
#include "data/FileRecord.h"
#include "data/ModificaTabella.h"
#include "data/TabelleLimFac.h"

namespace orvane {
namespace {

constexpr int16_t kDbuV = 1;
constexpr int16_t kDbuVm = 4;

/// A piece of a limit, straight on a logarithmic axis; pieces follow each other without a gap.
struct Tratto {
    double daMhz;
    double aMhz;
    double dbDa; ///< level at its start
    double dbA;  ///< and at its end
};

constexpr std::array kAlimentazioneAQP = {Tratto{0.15, 0.5, 79, 79}, Tratto{0.5, 30, 73, 73}};
constexpr std::array kAlimentazioneAAV = {Tratto{0.15, 0.5, 66, 66}, Tratto{0.5, 30, 60, 60}};
constexpr std::array kAlimentazioneBQP = {Tratto{0.15, 0.5, 66, 56}, Tratto{0.5, 5, 56, 56},
                                          Tratto{5, 30, 60, 60}};
constexpr std::array kAlimentazioneBAV = {Tratto{0.15, 0.5, 56, 46}, Tratto{0.5, 5, 46, 46},
                                          Tratto{5, 30, 50, 50}};
constexpr std::array kCispr32RadiatoA = {Tratto{30, 230, 40, 40}, Tratto{230, 1000, 47, 47}};
constexpr std::array kCispr32RadiatoB = {Tratto{30, 230, 30, 30}, Tratto{230, 1000, 37, 37}};
// The rule goes on to 40 GHz; the instrument ends at 18.
constexpr std::array kFcc109A = {Tratto{30, 88, 39.1, 39.1}, Tratto{88, 216, 43.5, 43.5},
                                 Tratto{216, 960, 46.4, 46.4}, Tratto{960, 18000, 49.5, 49.5}};
constexpr std::array kFcc109B = {Tratto{30, 88, 40, 40}, Tratto{88, 216, 43.5, 43.5},
                                 Tratto{216, 960, 46, 46}, Tratto{960, 18000, 54, 54}};

struct VoceLibreria {
    std::string_view nome; ///< without a point, which divides the extension
    std::string_view titolo;
    int16_t unitId;
    std::span<const Tratto> tratti;
};
constexpr std::array kLibreria = {
    VoceLibreria{"CISPR 32 A mains QP", "CISPR 32 class A, mains port, QP", kDbuV,
                 kAlimentazioneAQP},
    VoceLibreria{"CISPR 32 A mains AV", "CISPR 32 class A, mains port, AV", kDbuV,
                 kAlimentazioneAAV},
    VoceLibreria{"CISPR 32 B mains QP", "CISPR 32 class B, mains port, QP", kDbuV,
                 kAlimentazioneBQP},
    VoceLibreria{"CISPR 32 B mains AV", "CISPR 32 class B, mains port, AV", kDbuV,
                 kAlimentazioneBAV},
    VoceLibreria{"CISPR 32 A radiated 10m QP", "CISPR 32 class A, radiated, QP, 10 m", kDbuVm,
                 kCispr32RadiatoA},
    VoceLibreria{"CISPR 32 B radiated 10m QP", "CISPR 32 class B, radiated, QP, 10 m", kDbuVm,
                 kCispr32RadiatoB},
    VoceLibreria{"CISPR 11 G1 A mains QP", "CISPR 11 group 1 class A, mains port, QP", kDbuV,
                 kAlimentazioneAQP},
    VoceLibreria{"CISPR 11 G1 A mains AV", "CISPR 11 group 1 class A, mains port, AV", kDbuV,
                 kAlimentazioneAAV},
    VoceLibreria{"CISPR 15 mains QP", "CISPR 15 lighting, mains port, QP", kDbuV,
                 kAlimentazioneBQP},
    VoceLibreria{"CISPR 15 mains AV", "CISPR 15 lighting, mains port, AV", kDbuV,
                 kAlimentazioneBAV},
    VoceLibreria{"FCC 15-107 A mains QP", "FCC 15.107 class A, mains port, QP", kDbuV,
                 kAlimentazioneAQP},
    VoceLibreria{"FCC 15-107 A mains AV", "FCC 15.107 class A, mains port, AV", kDbuV,
                 kAlimentazioneAAV},
    VoceLibreria{"FCC 15-107 B mains QP", "FCC 15.107 class B, mains port, QP", kDbuV,
                 kAlimentazioneBQP},
    VoceLibreria{"FCC 15-107 B mains AV", "FCC 15.107 class B, mains port, AV", kDbuV,
                 kAlimentazioneBAV},
    VoceLibreria{"FCC 15-109 A radiated 10m", "FCC 15.109 class A, radiated, QP/AV>1 GHz, 10 m",
                 kDbuVm, kFcc109A},
    VoceLibreria{"FCC 15-109 B radiated 3m", "FCC 15.109 class B, radiated, QP/AV>1 GHz, 3 m",
                 kDbuVm, kFcc109B},
};

float UnPassoOltre(double mhz) {
    return std::nextafter(HzDaMhz(mhz), std::numeric_limits<float>::max());
}

LimFacRecord InRecord(const VoceLibreria& voce) {
    LimFacRecord r;
    size_t n = 0;
    const auto punto = [&](float hz, double dB) {
        r.Freq[n] = hz;
        r.Value[n++] = static_cast<int16_t>(std::lround(dB * 100));
    };
    punto(HzDaMhz(voce.tratti[0].daMhz), voce.tratti[0].dbDa);
    for (size_t i = 0; i < voce.tratti.size(); ++i) {
        const Tratto& t = voce.tratti[i];
        const bool ultimo = i + 1 == voce.tratti.size();
        const double poi = ultimo ? t.dbA : voce.tratti[i + 1].dbDa;
        // At an edge the stricter level holds, and a segment does not reach its own end.
        const float hz = ultimo || poi > t.dbA ? UnPassoOltre(t.aMhz) : HzDaMhz(t.aMhz);
        punto(hz, t.dbA);
        if (poi != t.dbA)
            punto(hz, poi);
    }
    r.Title = voce.titolo;
    r.UnitId = voce.unitId;
    return r;
}

} // namespace

std::vector<LimiteLibreria> LibreriaLimiti() {
    std::vector<LimiteLibreria> limiti;
    for (const VoceLibreria& voce : kLibreria)
        limiti.push_back({voce.nome, InRecord(voce)});
    return limiti;
}

std::vector<EsitoLibreria> InstallaLibreria(const Scrivania& s) {
    std::vector<EsitoLibreria> esiti;
    s.albero.AssicuraCartella(cartella::kLimits);
    for (const LimiteLibreria& limite : LibreriaLimiti()) {
        const std::string percorso = PercorsoLimite(limite.nome);
        EsitoLibreria esito{.nome = std::string(limite.nome)};
        esito.presente = s.albero.Esiste(percorso);
        esito.scritto = !esito.presente && SalvaFileRecord(s, percorso, limite.tabella);
        esiti.push_back(esito);
    }
    return esiti;
}

} // namespace orvane
