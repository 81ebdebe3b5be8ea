#include "sweep/TracciaRiga.h"

#include <algorithm>

#include "data/Cartelle.h"
#include "data/Misure.h"

namespace orvane {

TracciaRiga::TracciaRiga(const Scrivania& s, std::string misura, int riga)
    : s_(s), misura_(std::move(misura)), riga_(riga) {}

bool TracciaRiga::Apri(ScrittoreTraccia& scrittore, std::string percorso) {
    percorso_ = std::move(percorso);
    return scrittore.Apri(s_, percorso_);
}

bool TracciaRiga::IniziaPassata(std::string_view testo) {
    conPassate_ = !testo.empty();
    base_ = misura_ + std::string(testo);
    passo_ = 0;
    ++passate_;
    if (passate_ == 1 && !Apri(propria_, PercorsoRS(misura_, misura_, riga_)))
        return false;
    if (!conPassate_)
        return true;
    s_.albero.AssicuraCartella(CartellaSubMisure(misura_));
    percorsoPassata_ = PercorsoRS(misura_, std::string(cartella::kSubMeasure) + base_, riga_);
    return Apri(passata_, percorsoPassata_);
}

bool TracciaRiga::Accoda(ScrittoreTraccia& scrittore, const std::string& percorso,
                         std::span<const SampleRecord> passi) {
    percorso_ = percorso;
    if (scrittore.Scrivi(passi))
        return true;
    scrittore.Apri(s_, percorso); // which cuts off the part of a step that still found room
    scrittore.Chiudi();
    return false;
}

bool TracciaRiga::Scrivi(std::span<const SampleRecord> passi) {
    if (conPassate_ && !Accoda(passata_, percorsoPassata_, passi))
        return false;
    Fondi(passi);
    return passate_ > 1 || Accoda(propria_, PercorsoRS(misura_, misura_, riga_), passi);
}

void TracciaRiga::Fondi(std::span<const SampleRecord> passi) {
    if (!conPassate_)
        return;
    for (const SampleRecord& nuovo : passi) {
        if (passo_ >= alti_.size())
            alti_.push_back(nuovo);
        auto& alto = alti_[passo_++].Livello;
        for (size_t d = 0; d < alto.size(); ++d)
            alto[d] = std::max(alto[d], nuovo.Livello[d]);
    }
}

bool TracciaRiga::FinePassata() {
    passata_.Chiudi();
    propria_.Chiudi();
    if (passate_ <= 1)
        return true;
    percorso_ = PercorsoRS(misura_, misura_, riga_);
    return SalvaTraccia(s_, percorso_, alti_);
}

} // namespace orvane
