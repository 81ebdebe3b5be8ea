#include "verbs/RigheCsv.h"

#include <cmath>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "data/Interpolazione.h"

namespace orvane {

double FreqPulita(double mhz) {
    return std::round(mhz * 1e9) / 1e9;
}

std::string TestoFreqPulita(double mhz) {
    std::string testo = TestoFisso(mhz, 9);
    testo.erase(testo.find_last_not_of('0') + 1);
    return testo.ends_with('.') ? testo.substr(0, testo.size() - 1) : testo;
}

std::string CampoCsv(std::string_view testo) {
    if (testo.find_first_of(",\"") == std::string_view::npos)
        return std::string(testo);
    return "\"" + Sostituisci(testo, "\"", "\"\"") + "\"";
}

double InUnita(const MisuraChiesta& chiesta, int cent) {
    return std::round(cent + chiesta.unitOffset * 100) / 100;
}

std::optional<int> ColonnaLimite::Valore(double freqMhz) const {
    const int16_t valore = ValoreLimite(*limite, static_cast<float>(freqMhz * 1e6));
    return valore == kNessunValore ? std::nullopt : std::optional<int>(valore);
}

std::string CampiLimiti(const MisuraChiesta& chiesta, const std::vector<ColonnaLimite>& colonne,
                        double freqMhz, int livelloCent) {
    std::string testo;
    for (const ColonnaLimite& colonna : colonne) {
        const auto limite = colonna.Valore(freqMhz);
        testo += limite ? "," + TestoFisso(InUnita(chiesta, *limite), 2) + "," +
                              TestoFisso((livelloCent - *limite) / 100.0, 2)
                        : ",,";
    }
    return testo;
}

std::vector<ColonnaLimite> ColonneLimiti(const MisuraChiesta& chiesta) {
    std::vector<ColonnaLimite> colonne;
    for (size_t i = 0; i < 2; ++i)
        if (chiesta.setup.LimitOn[i] != 0)
            colonne.push_back({.nome = Rifila(chiesta.setup.LimitName[i]),
                               .limite = &chiesta.misura.tabelle.slot[kPrimoLimite + i]});
    return colonne;
}

std::string TitoliLimiti(const std::vector<ColonnaLimite>& colonne) {
    std::string testo;
    for (const ColonnaLimite& colonna : colonne)
        testo += "," + CampoCsv(colonna.nome) + "," + CampoCsv("delta_" + colonna.nome);
    return testo;
}

} // namespace orvane
