#include "graph/Confronto.h"

#include <algorithm>

#include "data/Panels.h"
#include "records/ColoriGrafico.h"

namespace orvane {
namespace {

constexpr size_t kColoriSeconde = 6;

/// What of a table its traces do not show is emptied.
ScanRecord SoloTracce(ScanRecord scan) {
    scan.ScanComment.clear();
    for (ScanLine& riga : scan.Righe) {
        if (riga.Start == 0) {
            riga = {};
            continue;
        }
        riga.PromptOn = 0;
        riga.Prompt.clear();
        if (riga.Smart != 0)
            continue;
        riga.Margin = 0;
        riga.LimitOn = riga.LimitDSDOn = 0;
        riga.Limit.clear();
        riga.LimitDSD.clear();
    }
    return scan;
}

StratoQuadro Strato(const MisuraAperta& misura, int detector, int32_t colore, std::string nome) {
    StratoQuadro strato{.traccia = misura.traccia, .nome = std::move(nome)};
    strato.colori.fill(colore);
    for (size_t d = 0; d < kNumDetector; ++d)
        strato.detector[d] =
            misura.detector[d] && (detector < 0 || static_cast<size_t>(detector) == d);
    return strato;
}

int16_t Differenza(int16_t a, int16_t b) {
    if (a <= kNessunLivello || b <= kNessunLivello)
        return kNessunLivello;
    return static_cast<int16_t>(std::clamp(a - b, kNessunLivello + 1, 32767));
}

} // namespace

bool Comparabili(const ScanRecord& a, const ScanRecord& b) {
    return ConfrontaScanTab(SoloTracce(a), SoloTracce(b));
}

SweepTrace DifferenzaTracce(const SweepTrace& mostrata, const SweepTrace& riferimento) {
    SweepTrace differenza;
    auto altra = riferimento.begin();
    for (CampioneTraccia campione : mostrata) {
        const double mhz = campione.freqMhz;
        while (altra != riferimento.end() && altra->freqMhz < mhz &&
               !StessaFrequenza(altra->freqMhz, mhz))
            ++altra;
        if (altra == riferimento.end())
            break;
        if (!StessaFrequenza(altra->freqMhz, mhz))
            continue;
        for (size_t d = 0; d < kNumDetector; ++d)
            campione.livello[d] = Differenza(campione.livello[d], altra->livello[d]);
        differenza.push_back(campione);
    }
    return differenza;
}

std::vector<StratoQuadro> StratiConfronto(const MisuraAperta& mostrata,
                                          const MisuraAperta& riferimento, int detector,
                                          const EnvRecord& env) {
    return {Strato(mostrata, detector, env.GraphColors[colore::kDetCompMeas],
                   std::string(kNomeConfrontata)),
            Strato(riferimento, detector, env.GraphColors[colore::kDetRefMeas],
                   std::string(kNomeRiferimento))};
}

StratoQuadro StratoSovrapposto(const MisuraAperta& misura, size_t posto, int detector,
                               const EnvRecord& env) {
    const size_t quale = colore::kTracceSeconde + posto % kColoriSeconde;
    return Strato(misura, detector, env.GraphColors[quale], misura.nome);
}

} // namespace orvane
