#include "records/NomiColori.h"

#include <charconv>
#include <cstdio>

#include "records/ColoriGrafico.h"
#include "records/ScanRecord.h"

namespace orvane {
namespace {

struct Famiglia {
    const char* gruppo;
    const char* nome; ///< null: the names of the detectors
    size_t primo;
    size_t quanti; ///< with more than one, numbers from 1 follow the name
    bool coppia;   ///< a second entry, for print, follows
};
constexpr Famiglia kFamiglie[] = {
    {"Grid", "Dotted line, 5 dB", colore::kPunteggiata, 1, true},
    {"Grid", "Sub line, 10 dB", colore::kSotto, 1, true},
    {"Grid", "Main line, 20 dB", colore::kPrincipale, 1, true},
    {"Grid", "Numbers and units", colore::kEtichette, 1, false},
    {"Grid", "Frame", colore::kCornice, 1, false},
    {"Grid", "Reading", colore::kLettura, 1, false},
    {"Traces", nullptr, colore::kTracce, kNumDetector, false},
    {"Second traces", nullptr, colore::kTracceSeconde, kNumDetector, false},
    {"Second traces", "Shade", colore::kTracceScure, 4, false},
    {"Second traces", "Reference measure", colore::kDetRefMeas, 1, false},
    {"Second traces", "Compared measure", colore::kDetCompMeas, 1, false},
    {"Limits", "Limit", colore::kLimiti, 10, false},
    {"Markers", "Marker", colore::kMarcatori, 10, false},
    {"Markers", "Peak symbols", colore::kPicchi, 1, false},
    {"Markers", "Zoom rectangle", colore::kZoom, 1, false},
    {"Markers", "Bar of the Manual mode", colore::kLivelloManuale, 1, false},
};

std::string NomeVoce(const Famiglia& f, size_t i) {
    if (!f.nome)
        return kNomiDetector[i];
    return f.quanti == 1 ? f.nome : std::string(f.nome) + " " + std::to_string(i + 1);
}

} // namespace

std::vector<VoceColore> VociColori() {
    std::vector<VoceColore> voci;
    for (const Famiglia& f : kFamiglie)
        for (size_t i = 0; i < f.quanti; ++i)
            voci.push_back(
                {f.gruppo, NomeVoce(f, i), f.primo + i, f.primo + i + (f.coppia ? 1 : 0)});
    return voci;
}

std::string TestoColore(int32_t colore) {
    char testo[8];
    std::snprintf(testo, sizeof testo, "#%02X%02X%02X", unsigned(colore & 0xff),
                  unsigned(colore >> 8 & 0xff), unsigned(colore >> 16 & 0xff));
    return testo;
}

std::optional<int32_t> LeggiColore(std::string_view testo) {
    if (testo.starts_with('#'))
        testo.remove_prefix(1);
    unsigned valore = 0;
    const auto [fine, errore] =
        std::from_chars(testo.data(), testo.data() + testo.size(), valore, 16);
    if (testo.size() != 6 || errore != std::errc() || fine != testo.data() + testo.size())
        return std::nullopt;
    return Rgb(int(valore >> 16), int(valore >> 8 & 0xff), int(valore & 0xff));
}

} // namespace orvane
