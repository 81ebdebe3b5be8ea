// Extremes of sixteen, of sixteen times sixteen and so on; a column takes the fewest that make it.
#include "graph/PiramideTraccia.h"

#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

constexpr size_t kRamo = 16;
constexpr size_t kPassoRicerca = 64;

template <class Estremi> void Unisci(Estremi& e, int16_t minimo, int16_t massimo) {
    e.minimo = std::min(e.minimo, minimo);
    e.massimo = std::max(e.massimo, massimo);
}

} // namespace

PiramideTraccia::PiramideTraccia(const SweepTrace& traccia, DetectorKind detector) {
    bool interrotta = true;
    for (const CampioneTraccia& c : traccia) {
        const int16_t livello = c.livello[static_cast<size_t>(detector)];
        interrotta |= c.stacco || livello <= kNessunLivello;
        if (livello <= kNessunLivello || !std::isfinite(c.freqMhz))
            continue;
        ordinata_ = ordinata_ && (freqMhz_.empty() || freqMhz_.back() <= c.freqMhz);
        if (freqMhz_.size() % kPassoRicerca == 0)
            passi_.push_back(c.freqMhz);
        freqMhz_.push_back(c.freqMhz);
        livelli_.push_back(livello);
        rotture_.push_back(interrotta);
        interrotta = false;
    }
    std::vector<Estremi> campioni;
    campioni.reserve(livelli_.size());
    for (const int16_t livello : livelli_)
        campioni.push_back({livello, livello});
    AggiungiPiano(campioni);
    while (piani_.back().size() > kRamo)
        AggiungiPiano(piani_.back());
}

void PiramideTraccia::AggiungiPiano(const std::vector<Estremi>& sotto) {
    std::vector<Estremi> piano;
    piano.reserve(sotto.size() / kRamo);
    // A rest below a whole branch is never asked for.
    for (size_t i = 0; i + kRamo <= sotto.size(); i += kRamo) {
        Estremi e = sotto[i];
        for (size_t k = 1; k < kRamo; ++k)
            Unisci(e, sotto[i + k].minimo, sotto[i + k].massimo);
        piano.push_back(e);
    }
    piani_.push_back(std::move(piano));
}

/// Index of the first sample from `da` on at or above a frequency.
size_t PiramideTraccia::PrimoDa(double freqMhz, size_t da) const {
    const auto inizio = passi_.begin() + static_cast<ptrdiff_t>(da / kPassoRicerca);
    const auto passo =
        static_cast<size_t>(std::lower_bound(inizio, passi_.end(), freqMhz) - passi_.begin());
    const size_t prima = std::max(da, passo == 0 ? 0 : (passo - 1) * kPassoRicerca);
    const size_t dopo = std::max(prima, std::min(passo * kPassoRicerca, freqMhz_.size()));
    const auto base = freqMhz_.begin();
    return static_cast<size_t>(std::lower_bound(base + static_cast<ptrdiff_t>(prima),
                                                base + static_cast<ptrdiff_t>(dopo), freqMhz) -
                               base);
}

/// The samples from `da` to before `fino`, at least one.
ColonneTraccia::Estremi PiramideTraccia::Riassumi(size_t da, size_t fino) const {
    ColonneTraccia::Estremi e{.minimo = livelli_[da],
                              .massimo = livelli_[da],
                              .primo = livelli_[da],
                              .ultimo = livelli_[fino - 1],
                              .vuota = false,
                              .rottura = rotture_[da] != 0};
    for (; da < fino && da % kRamo != 0; ++da)
        Unisci(e, livelli_[da], livelli_[da]);
    for (; da < fino && fino % kRamo != 0; --fino)
        Unisci(e, livelli_[fino - 1], livelli_[fino - 1]);
    for (const auto& piano : piani_) {
        da /= kRamo;
        fino /= kRamo;
        const bool ultimo = &piano == &piani_.back();
        for (; da < fino && (ultimo || da % kRamo != 0); ++da)
            Unisci(e, piano[da].minimo, piano[da].massimo);
        for (; da < fino && fino % kRamo != 0; --fino)
            Unisci(e, piano[fino - 1].minimo, piano[fino - 1].massimo);
    }
    return e;
}

ColonneTraccia::Vicino PiramideTraccia::Vicino(size_t quale) const {
    return {
        .freqMhz = freqMhz_[quale], .livello = livelli_[quale], .rottura = rotture_[quale] != 0};
}

void PiramideTraccia::RiempiOrdinate(ColonneTraccia& colonne) const {
    const auto& bordi = colonne.bordi_;
    const size_t quante = colonne.estremi_.size();
    const auto oltre =
        std::upper_bound(freqMhz_.begin(), freqMhz_.end(), bordi.back() + kTolleranzaAsseMhz);
    const auto fine = static_cast<size_t>(oltre - freqMhz_.begin());
    size_t da = PrimoDa(bordi.front() - kTolleranzaAsseMhz, 0);
    if (da > 0)
        colonne.sinistra_ = Vicino(da - 1);
    for (size_t i = 0; i < quante && da < fine; ++i) {
        const size_t fino = i + 1 == quante ? fine : std::min(PrimoDa(bordi[i + 1], da), fine);
        if (da < fino)
            colonne.estremi_[i] = Riassumi(da, fino);
        da = fino;
    }
    if (oltre == freqMhz_.end())
        return;
    // Of several at one frequency the last, as it comes.
    const auto ultimo = std::upper_bound(oltre, freqMhz_.end(), *oltre) - 1;
    colonne.destra_ = Vicino(static_cast<size_t>(ultimo - freqMhz_.begin()));
}

void PiramideTraccia::Riempi(ColonneTraccia& colonne) const {
    colonne.Azzera();
    if (!std::isfinite(colonne.bordi_.back()))
        return;
    if (ordinata_)
        return RiempiOrdinate(colonne);
    for (size_t i = 0; i < livelli_.size(); ++i) {
        if (rotture_[i])
            colonne.Interrompi();
        colonne.Aggiungi(freqMhz_[i], livelli_[i]);
    }
}

ColonneTraccia PiramideTraccia::Colonne(double startMhz, double stopMhz, int colonne,
                                        bool logaritmica) const {
    ColonneTraccia trovate(startMhz, stopMhz, colonne, logaritmica);
    Riempi(trovate);
    return trovate;
}

} // namespace orvane
