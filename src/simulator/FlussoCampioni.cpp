// Samples on the wire, composed straight into the reader's block.
#include "simulator/FlussoCampioni.h"

#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

double Minima(const PassoSimulato& p) {
    return p.frequenze.empty() ? p.startHz : std::ranges::min(p.frequenze);
}
double Massima(const PassoSimulato& p) {
    return p.frequenze.empty() ? p.stopHz : std::ranges::max(p.frequenze);
}

size_t Copia(std::string_view testo, uint64_t da, std::span<uint8_t> dove) {
    const size_t n = std::min<uint64_t>(dove.size(), testo.size() - da);
    std::copy_n(testo.begin() + static_cast<std::ptrdiff_t>(da), n, dove.begin());
    return n;
}

} // namespace

uint64_t NumeroPassi(const PassoSimulato& passo) {
    if (!passo.frequenze.empty())
        return passo.frequenze.size();
    // A step that ends a rounding error short of the stop frequency still counts.
    return static_cast<uint64_t>(std::floor((passo.stopHz - passo.startHz) / passo.stepHz + 1e-6)) +
           1;
}

std::array<uint8_t, 2> CodificaLivello(int16_t livello) {
    // Plus 65535, not 65536: the decoder takes 65535 off.
    const int v = livello < 0 ? livello + 65535 : livello;
    return {static_cast<uint8_t>(v & 0xff), static_cast<uint8_t>(v >> 8)};
}

FlussoCampioni::FlussoCampioni(PassoSimulato passo, std::string testa, std::string coda)
    : passo_(std::move(passo)), spettro_(passo_.condizioni, Minima(passo_), Massima(passo_)),
      testa_(std::move(testa)), coda_(std::move(coda)), bytePasso_(2 * passo_.detector.size()),
      passi_(NumeroPassi(passo_)), lunghezza_(testa_.size() + passi_ * bytePasso_ + coda_.size()) {}

void FlussoCampioni::ComponiPasso(uint8_t* dove) {
    const double hz = passo_.frequenze.empty()
                          ? passo_.startHz + static_cast<double>(prossimo_) * passo_.stepHz
                          : passo_.frequenze[prossimo_];
    ++prossimo_;
    int16_t livelli[kNumDetector];
    spettro_.Livelli(hz, passo_.detector, livelli);
    for (size_t i = 0; i < passo_.detector.size(); ++i) {
        const auto coppia = CodificaLivello(livelli[i]);
        dove[2 * i] = coppia[0];
        dove[2 * i + 1] = coppia[1];
    }
}

size_t FlussoCampioni::LeggiCampioni(std::span<uint8_t> dove) {
    size_t n = 0;
    while (n < dove.size()) {
        if (spezzatoDa_ < bytePasso_) {
            dove[n++] = spezzato_[spezzatoDa_++];
        } else if (prossimo_ == passi_) {
            break;
        } else if (dove.size() - n >= bytePasso_) {
            ComponiPasso(&dove[n]);
            n += bytePasso_;
        } else {
            ComponiPasso(spezzato_.data());
            spezzatoDa_ = 0;
        }
    }
    return n;
}

uint64_t FlussoCampioni::FinoAlPassoIntero(uint64_t da) const {
    if (da < testa_.size())
        return testa_.size() - da;
    if (da >= lunghezza_ - coda_.size())
        return lunghezza_ - da;
    const uint64_t dentro = (da - testa_.size()) % bytePasso_;
    return dentro == 0 ? 0 : bytePasso_ - dentro;
}

size_t FlussoCampioni::Leggi(std::span<uint8_t> dove) {
    const uint64_t inizioCoda = lunghezza_ - coda_.size();
    size_t n = 0;
    if (letti_ < testa_.size())
        n += Copia(testa_, letti_, dove);
    if (letti_ + n >= testa_.size() && letti_ + n < inizioCoda)
        n += LeggiCampioni(dove.subspan(n));
    if (letti_ + n >= inizioCoda)
        n += Copia(coda_, letti_ + n - inizioCoda, dove.subspan(n));
    letti_ += n;
    return n;
}

} // namespace orvane
