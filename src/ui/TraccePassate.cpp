#include "ui/TraccePassate.h"

#include <algorithm>
#include <array>

namespace orvane {
namespace {

/// How much of its colour a pass keeps while another is under way.
constexpr std::array kQuiete = {0.58, 0.46, 0.36, 0.28};

} // namespace

void TraccePassate::Inizia(double startMhz, double stopMhz) {
    strati_.clear();
    strati_.emplace_back();
    corrente_ = 0;
    Corrente().Inizia(startMhz, stopMhz);
    Corrente().ImpostaLarghezza(colonne_);
}

void TraccePassate::Scegli(int passata, const QString& nome) {
    const auto indice = static_cast<size_t>(std::max(0, passata));
    while (strati_.size() <= indice) {
        strati_.emplace_back();
        strati_.back().deposito.Inizia(strati_[0].deposito.Start(), strati_[0].deposito.Stop());
        strati_.back().deposito.ImpostaLarghezza(colonne_);
    }
    corrente_ = indice;
    strati_[corrente_].nome = nome;
}

void TraccePassate::ImpostaLarghezza(int colonne) {
    colonne_ = colonne;
    for (Strato& strato : strati_)
        strato.deposito.ImpostaLarghezza(colonne);
}

bool TraccePassate::Vuoto() const {
    return std::ranges::all_of(strati_, [](const Strato& s) { return s.deposito.Vuoto(); });
}

std::vector<const TraccePassate::Strato*> TraccePassate::DaDisegnare() const {
    std::vector<const Strato*> ordine;
    for (const Strato& strato : strati_)
        if (Indice(strato) != corrente_)
            ordine.push_back(&strato);
    ordine.push_back(&strati_[corrente_]);
    return ordine;
}

std::vector<const TraccePassate::Strato*> TraccePassate::Visibili() const {
    std::vector<const Strato*> visibili;
    for (const Strato& strato : strati_)
        if (!strato.deposito.Vuoto())
            visibili.push_back(&strato);
    return visibili;
}

QColor TraccePassate::Sfumata(const Strato& strato, const QColor& colore,
                              const QColor& fondo) const {
    const size_t indice = Indice(strato);
    if (indice == corrente_)
        return colore;
    const double resta = kQuiete[indice % kQuiete.size()];
    const auto mescola = [resta](int viva, int sotto) {
        return static_cast<int>(viva * resta + sotto * (1 - resta));
    };
    return {mescola(colore.red(), fondo.red()), mescola(colore.green(), fondo.green()),
            mescola(colore.blue(), fondo.blue())};
}

} // namespace orvane
