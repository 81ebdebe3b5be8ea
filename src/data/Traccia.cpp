#include <cmath>

#include "data/Misure.h"
#include "data/NomiDisco.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

constexpr double kStessaFrequenzaMhz = 1e-9;

/// A stop in the middle of a write leaves part of a step behind: it must not shift those to come.
void TagliaPassoParziale(const fs::path& file) {
    std::error_code errore;
    const auto lunghezza = fs::file_size(file, errore);
    if (!errore && lunghezza % kByteCampione != 0)
        fs::resize_file(file, lunghezza - lunghezza % kByteCampione, errore);
}

/// The stored sample and one of a later line at the same frequency: the higher value of the
/// detector takes the place with all that it carries, and a tie leaves the stored one.
const CampioneTraccia& Vincente(const CampioneTraccia& presente, const CampioneTraccia& nuovo,
                                size_t detector) {
    const int16_t livello = nuovo.livello[detector];
    return livello > kNessunLivello && livello > presente.livello[detector] ? nuovo : presente;
}

std::string TrovaRS(const Scrivania& s, std::string_view misura, std::string_view base, int riga) {
    const std::string accanto = PercorsoRS(misura, base, riga);
    return s.albero.Esiste(accanto) ? accanto
                                    : PercorsoRS(misura, "Sub_Measure\\" + std::string(base), riga);
}

/// Frequencies of a line follow from its step; those of a frequency table are not known here.
bool FrequenzeDaStep(const ScanLine& riga) {
    return riga.Start != 0 && riga.StepMode == 0 && riga.Step > 0 && std::isfinite(riga.Step) &&
           std::isfinite(riga.Start);
}

/// One line as a trace; steps nearer than the same frequency fall together.
SweepTrace TracciaDellaRiga(const ScanLine& riga, int numero,
                            std::span<const SampleRecord> campioni, size_t detector) {
    SweepTrace traccia;
    traccia.reserve(campioni.size());
    for (size_t k = 0; k < campioni.size(); ++k) {
        const CampioneTraccia nuovo{.freqMhz = riga.Start + static_cast<double>(k) * riga.Step,
                                    .livello = campioni[k].Livello,
                                    .riga = static_cast<int16_t>(numero)};
        if (!traccia.empty() && StessaFrequenza(traccia.back().freqMhz, nuovo.freqMhz))
            traccia.back() = Vincente(traccia.back(), nuovo, detector);
        else
            traccia.push_back(nuovo);
    }
    return traccia;
}

/// Both are in the order of frequency, and so is the result: one pass over each.
SweepTrace Fondi(const SweepTrace& presenti, const SweepTrace& nuovi, size_t detector) {
    SweepTrace fusa;
    fusa.reserve(presenti.size() + nuovi.size());
    auto a = presenti.begin();
    auto b = nuovi.begin();
    while (a != presenti.end() && b != nuovi.end()) {
        if (StessaFrequenza(a->freqMhz, b->freqMhz))
            fusa.push_back(Vincente(*a++, *b++, detector));
        else
            fusa.push_back(a->freqMhz < b->freqMhz ? *a++ : *b++);
    }
    fusa.insert(fusa.end(), a, presenti.end());
    fusa.insert(fusa.end(), b, nuovi.end());
    return fusa;
}

} // namespace

bool ScrittoreTraccia::Apri(const Scrivania& s, std::string_view percorso) {
    const fs::path host = s.albero.Host(percorso);
    TagliaPassoParziale(host);
    file_.reset(std::fopen(host.string().c_str(), "ab"));
    // Without a buffer of its own the file hands each call over as one write.
    return file_ && std::setvbuf(file_.get(), nullptr, _IONBF, 0) == 0;
}

bool ScrittoreTraccia::Scrivi(std::span<const SampleRecord> passi) {
    if (!file_ || passi.empty())
        return file_ != nullptr;
    byte_.resize(passi.size() * kByteCampione);
    uint8_t* dove = byte_.data();
    for (const SampleRecord& passo : passi)
        for (const int16_t livello : passo.Livello) {
            ScriviLittle(dove, static_cast<uint16_t>(livello));
            dove += sizeof livello;
        }
    if (std::fwrite(byte_.data(), 1, byte_.size(), file_.get()) == byte_.size())
        return true;
    Chiudi(); // whatever came behind a torn step would be read shifted
    return false;
}

std::vector<SampleRecord> LeggiTraccia(const Scrivania& s, std::string_view percorso) {
    const auto dati = s.albero.Leggi(percorso);
    if (!dati)
        return {};
    std::vector<SampleRecord> passi(dati->size() / kByteCampione);
    const uint8_t* da = dati->data();
    for (SampleRecord& passo : passi)
        for (int16_t& livello : passo.Livello) {
            livello = static_cast<int16_t>(LeggiLittle<uint16_t>(da));
            da += sizeof livello;
        }
    return passi;
}

bool StessaFrequenza(double aMhz, double bMhz) {
    return std::abs(aMhz - bMhz) < kStessaFrequenzaMhz;
}

SweepTrace CreaTracciaSweep(const Scrivania& s, std::string_view misura, std::string_view base,
                            const ScanTable& tabella, DetectorKind detector) {
    const auto d = static_cast<size_t>(detector);
    SweepTrace traccia;
    for (size_t n = 0; n < tabella.size(); ++n) {
        if (!FrequenzeDaStep(tabella[n]))
            continue;
        const int numero = static_cast<int>(n);
        const auto campioni = LeggiTraccia(s, TrovaRS(s, misura, base, numero));
        SweepTrace riga = TracciaDellaRiga(tabella[n], numero, campioni, d);
        traccia = traccia.empty() ? std::move(riga) : Fondi(traccia, riga, d);
    }
    return traccia;
}

} // namespace orvane
