// The queue of what leaves the receiver.
#include "simulator/Uscita.h"

#include <algorithm>
#include <cmath>

namespace orvane {

void Uscita::Accoda(std::string testo, double quando) {
    Pezzo pezzo{.quando = quando, .testo = std::move(testo)};
    pezzo.limite = pezzo.testo.size();
    if (pezzo.limite > 0)
        coda_.push_back(std::move(pezzo));
}

void Uscita::AccodaFlusso(std::unique_ptr<FlussoCampioni> flusso, std::optional<uint64_t> limite,
                          double quando) {
    presiFlusso_ = 0;
    Pezzo pezzo{.quando = quando};
    pezzo.limite = std::min(flusso->Lunghezza(), limite.value_or(flusso->Lunghezza()));
    pezzo.flusso = std::move(flusso);
    coda_.push_back(std::move(pezzo));
}

void Uscita::Svuota() {
    coda_.clear();
}

std::deque<Uscita::Pezzo>::iterator Uscita::TrovaFlusso() {
    return std::ranges::find_if(coda_, [](const Pezzo& p) { return p.flusso != nullptr; });
}

bool Uscita::FlussoInCorso() const {
    return std::ranges::any_of(coda_, [](const Pezzo& p) { return p.flusso != nullptr; });
}

void Uscita::Sospendi(double adesso) {
    Avanza(adesso);
    if (const auto pezzo = TrovaFlusso(); pezzo != coda_.end())
        pezzo->sospeso = true;
}

void Uscita::Riprendi(double adesso) {
    const auto pezzo = TrovaFlusso();
    if (pezzo == coda_.end() || !pezzo->sospeso)
        return;
    // Behind what was answered in the meantime, so that no reply is torn.
    Pezzo ripreso = std::move(*pezzo);
    coda_.erase(pezzo);
    ripreso.sospeso = false;
    ripreso.quando = adesso;
    coda_.push_back(std::move(ripreso));
}

std::string Uscita::PrendiInTesto(Pezzo& pezzo, uint64_t quanti) {
    std::string testo(std::min(quanti, pezzo.limite - pezzo.presi), '\0');
    const size_t n = PrendiDa(pezzo, {reinterpret_cast<uint8_t*>(testo.data()), testo.size()});
    testo.resize(n);
    return testo;
}

void Uscita::Interrompi(std::string testo, double adesso) {
    Avanza(adesso);
    auto pezzo = TrovaFlusso();
    if (pezzo == coda_.end() || LasciaPassare(*pezzo))
        return Accoda(std::move(testo), adesso);
    const uint64_t fuori = std::max(pezzo->usciti, pezzo->presi);
    const uint64_t prima = fuori - pezzo->presi + pezzo->flusso->FinoAlPassoIntero(fuori);
    Pezzo interruzione{.quando = adesso};
    interruzione.usciti = fuori - pezzo->presi;
    interruzione.testo = PrendiInTesto(*pezzo, prima) + testo;
    interruzione.limite = interruzione.testo.size();
    pezzo->usciti = std::max(pezzo->usciti, pezzo->presi);
    coda_.insert(pezzo, std::move(interruzione));
}

/// Moves the line's time on to `adesso`: how much of what is queued has left by then.
void Uscita::Avanza(double adesso) {
    if (byteAlSecondo_ <= 0)
        return;
    for (Pezzo& pezzo : coda_) {
        if (pezzo.sospeso || pezzo.usciti == pezzo.limite)
            continue;
        const double inizio = std::max(libera_, pezzo.quando);
        if (inizio > adesso)
            return;
        // The small addition keeps a byte that is due now from being late by a rounding error.
        const auto tempo =
            static_cast<uint64_t>(std::floor((adesso - inizio) * byteAlSecondo_ + 1e-6));
        const uint64_t posto =
            pezzo.flusso ? kFinestraFlusso - (pezzo.usciti - pezzo.presi) : pezzo.limite;
        const uint64_t n = std::min({pezzo.limite - pezzo.usciti, posto, tempo});
        pezzo.usciti += n;
        libera_ = inizio + static_cast<double>(n) / byteAlSecondo_;
        // With its window full the receiver waits for the reader, and gains no time by it.
        if (n == posto && n < tempo && pezzo.usciti < pezzo.limite)
            libera_ = adesso;
        if (pezzo.usciti < pezzo.limite)
            return;
    }
}

uint64_t Uscita::Disponibili(const Pezzo& pezzo, double adesso) const {
    if (byteAlSecondo_ > 0)
        return pezzo.usciti - pezzo.presi;
    return pezzo.sospeso || pezzo.quando > adesso ? 0 : pezzo.limite - pezzo.presi;
}

bool Uscita::LasciaPassare(const Pezzo& pezzo) const {
    return pezzo.sospeso || pezzo.presi == pezzo.limite;
}

size_t Uscita::PrendiDa(Pezzo& pezzo, std::span<uint8_t> dove) {
    size_t n = dove.size();
    if (pezzo.flusso) {
        n = pezzo.flusso->Leggi(dove);
        presiFlusso_ += n;
    } else {
        std::copy_n(pezzo.testo.begin() + static_cast<std::ptrdiff_t>(pezzo.presi), n,
                    dove.begin());
    }
    pezzo.presi += n;
    return n;
}

size_t Uscita::Prendi(std::span<uint8_t> dove, double adesso) {
    Avanza(adesso);
    size_t presi = 0;
    for (auto pezzo = coda_.begin(); pezzo != coda_.end() && presi < dove.size();) {
        const uint64_t quanti =
            std::min<uint64_t>(Disponibili(*pezzo, adesso), dove.size() - presi);
        presi += PrendiDa(*pezzo, dove.subspan(presi, quanti));
        const bool finito = pezzo->flusso ? pezzo->presi == pezzo->flusso->Lunghezza()
                                          : pezzo->presi == pezzo->limite;
        if (finito)
            pezzo = coda_.erase(pezzo);
        else if (LasciaPassare(*pezzo))
            ++pezzo;
        else
            break;
    }
    return presi;
}

size_t Uscita::Pronti(double adesso) {
    Avanza(adesso);
    uint64_t pronti = 0;
    for (const Pezzo& pezzo : coda_) {
        const uint64_t quanti = Disponibili(pezzo, adesso);
        pronti += pezzo.flusso ? std::min<uint64_t>(quanti, kFinestraFlusso) : quanti;
        if (!pezzo.sospeso && quanti < pezzo.limite - pezzo.presi)
            break;
        if (pezzo.flusso && quanti > kFinestraFlusso)
            break;
    }
    return pronti;
}

std::optional<double> Uscita::ProssimoByte(double adesso) {
    if (Pronti(adesso) > 0)
        return adesso;
    for (const Pezzo& pezzo : coda_) {
        if (LasciaPassare(pezzo))
            continue;
        const double quando = byteAlSecondo_ > 0
                                  ? std::max(libera_, pezzo.quando) + 1 / byteAlSecondo_
                                  : pezzo.quando;
        return std::max(quando, adesso);
    }
    return std::nullopt;
}

} // namespace orvane
