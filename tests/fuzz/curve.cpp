// Limit and factor files of any content and length: 5SL and 5SC, today's and the earlier format.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "data/ControllaTabelle.h"
#include "data/ConversioneTabella.h"
#include "data/Interpolazione.h"
#include "data/LimitiSmart.h"
#include "data/TabelleLimFac.h"

using namespace orvane;

namespace {

void Pretendi(bool vero) {
    if (!vero)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t quanti) {
    LimFacRecord r = LeggiLimFac({dati, quanti});
    const auto riscritto = ScriviRecord(r);
    Pretendi(riscritto.size() == kByteLimFac);
    ControllaLimFac(r);
    Pretendi(!ControllaLimFac(r));
    const size_t punti = NumeroPunti(r);
    for (size_t i = 0; i < punti; ++i) {
        Pretendi(i == 0 || r.Freq[i - 1] <= r.Freq[i]);
        ValoreLimite(r, r.Freq[i]);
        ValoreFattore(r, r.Freq[i]);
    }
    const auto uniti = CreaElencoFreqLimDSD(r, LimFacRecord(r));
    Pretendi(!uniti || uniti->size() >= 2);
    const ContenutoTabella c = DaLimFac(r, TableKind::Limite);
    Pretendi(c.righe.size() == punti);
    // What the editor stores again are the same points.
    const LimFacRecord ritorno = InLimFac(c);
    Pretendi(NumeroPunti(ritorno) == punti);
    for (size_t i = 0; i < punti; ++i)
        Pretendi(ritorno.Value[i] == r.Value[i]);
    return 0;
}
