// Samples into columns: a cursor for rising frequencies, a search for the rest.
#include "graph/Colonne.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "graph/Scala.h"

namespace orvane {
namespace {

/// More columns than any picture has.
constexpr int kMaxColonne = 1 << 16;
/// A nearer neighbour is found by stepping, a farther one by halving.
constexpr size_t kPassiVicini = 8;

} // namespace

ColonneTraccia::ColonneTraccia(double startMhz, double stopMhz, int colonne, bool logaritmica)
    : logaritmica_(logaritmica) {
    const auto quante = static_cast<size_t>(std::clamp(colonne, 1, kMaxColonne));
    estremi_.resize(quante);
    // No frequency lies at infinity, so that without an axis no column ever takes one.
    bordi_.assign(quante + 1, std::numeric_limits<double>::infinity());
    if (!AsseValido(startMhz, stopMhz, logaritmica))
        return;
    const double passi = static_cast<double>(quante);
    for (size_t i = 0; i < quante; ++i) {
        const double parte = static_cast<double>(i) / passi;
        bordi_[i] = logaritmica ? startMhz * std::pow(stopMhz / startMhz, parte)
                                : startMhz + (stopMhz - startMhz) * parte;
    }
    bordi_[quante] = stopMhz;
}

void ColonneTraccia::Azzera() {
    std::fill(estremi_.begin(), estremi_.end(), Estremi{});
    sinistra_.reset();
    destra_.reset();
    qui_ = 0;
    interrotta_ = true;
}

double ColonneTraccia::Frequenza(int i) const {
    const double da = bordi_[static_cast<size_t>(i)];
    const double a = bordi_[static_cast<size_t>(i) + 1];
    return logaritmica_ ? std::sqrt(da * a) : (da + a) / 2;
}

bool ColonneTraccia::Trova(double freqMhz) {
    const double ultimo = bordi_.back();
    if (!std::isfinite(freqMhz) || freqMhz < bordi_.front() - kTolleranzaAsseMhz ||
        freqMhz > ultimo + kTolleranzaAsseMhz)
        return false;
    for (size_t passo = 0; passo < kPassiVicini && qui_ + 1 < estremi_.size(); ++passo)
        if (Dentro(++qui_, freqMhz))
            return true;
    const auto oltre = std::upper_bound(bordi_.begin() + 1, bordi_.end() - 1, freqMhz);
    qui_ = static_cast<size_t>(oltre - bordi_.begin()) - 1;
    return true;
}

void ColonneTraccia::AggiungiFuori(double freqMhz, int16_t livelloCent) {
    if (!std::isfinite(freqMhz) || !std::isfinite(bordi_.back()))
        return;
    const Vicino vicino{.freqMhz = freqMhz, .livello = livelloCent, .rottura = interrotta_};
    if (freqMhz < bordi_.front()) {
        if (!sinistra_ || freqMhz >= sinistra_->freqMhz)
            sinistra_ = vicino;
        qui_ = 0;
    } else {
        if (!destra_ || freqMhz <= destra_->freqMhz)
            destra_ = vicino;
        qui_ = estremi_.size() - 1;
    }
    interrotta_ = false;
}

void ColonneTraccia::Aggiungi(double freqMhz, int16_t livelloCent) {
    if (livelloCent <= kNessunLivello) {
        interrotta_ = true;
        return;
    }
    const size_t prima = qui_;
    if (!Dentro(qui_, freqMhz) && !Trova(freqMhz)) {
        AggiungiFuori(freqMhz, livelloCent);
        return;
    }
    Estremi& c = estremi_[qui_];
    if (c.vuota) {
        c = {livelloCent, livelloCent, livelloCent,
             livelloCent, false,       interrotta_ || qui_ < prima};
    } else {
        c.minimo = std::min(c.minimo, livelloCent);
        c.massimo = std::max(c.massimo, livelloCent);
        c.ultimo = livelloCent;
    }
    // The pen went from one column to the other: whichever lies right is joined to its left.
    if (qui_ != prima && !interrotta_)
        estremi_[std::max(prima, qui_)].rottura = false;
    interrotta_ = false;
}

} // namespace orvane
