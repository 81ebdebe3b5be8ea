#include "link/Livelli.h"

#include <cassert>

namespace orvane {

void DecodificaLivelli(std::span<const uint8_t> dati, std::span<int16_t> livelli) {
    assert(dati.size() >= kByteLivello * livelli.size());
    const uint8_t* da = dati.data();
    for (int16_t& livello : livelli) {
        livello = DecodificaLivello(da[0], da[1]);
        da += kByteLivello;
    }
}

void DecodificaPassi(std::span<const uint8_t> dati, std::span<const int> quali,
                     std::span<SampleRecord> passi) {
    assert(PassiInteri(dati.size(), quali.size()) >= passi.size());
    const uint8_t* da = dati.data();
    for (SampleRecord& passo : passi) {
        passo = SampleRecord{};
        for (const int d : quali) {
            passo.Livello[static_cast<size_t>(d)] = DecodificaLivello(da[0], da[1]);
            da += kByteLivello;
        }
    }
}

} // namespace orvane
