#include "setup/ListaFrequenze.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "base/Testo.h"
#include "data/ControllaTabelle.h"
#include "data/TabelleFrequenza.h"

namespace orvane {
namespace {

constexpr int kMaxPassi = 49;
// Nearer than a hertz is the same point. A hertz itself may come out short in its last bits.
constexpr double kStessoPuntoMhz = 0.000001 - 1e-10;

/// Adds a point unless it is there; false when the list is full.
bool Aggiungi(std::vector<double>& elenco, double mhz) {
    // The points rise: only the last one can be as near.
    if (elenco.empty() || !(std::abs(mhz - elenco.back()) < kStessoPuntoMhz))
        elenco.push_back(mhz);
    return elenco.size() <= kMaxFreqTable;
}

std::vector<double> PuntiDellaTabella(const FrequencyTable& tabella, const ScanLine& riga) {
    std::vector<double> punti;
    for (const FreqTableElem& e : tabella.Elementi) {
        if (e.Freq == 0)
            break;
        if (e.Freq >= riga.Start && e.Freq <= riga.Stop)
            punti.push_back(e.Freq);
    }
    return punti;
}

} // namespace

std::vector<double> CreaElencoFreqTab(const FrequencyTable& tabella, const ScanLine& riga) {
    std::vector<double> nodi = PuntiDellaTabella(tabella, riga);
    const int passi = std::clamp<int>(riga.NumStepFT, 0, kMaxPassi);
    if (passi > 0 && tabella.Elementi[0].Freq != 0) {
        nodi.insert(nodi.begin(), riga.Start);
        nodi.push_back(riga.Stop);
    }
    std::vector<double> elenco;
    for (size_t i = 0; i < nodi.size(); ++i) {
        const bool ultimo = i + 1 == nodi.size();
        const int quanti = ultimo ? 1 : std::max(passi, 1);
        const double passo = ultimo ? 0 : (nodi[i + 1] - nodi[i]) / quanti;
        for (int k = 0; k < quanti; ++k) {
            if (!Aggiungi(elenco, nodi[i] + k * passo))
                return elenco;
        }
    }
    return elenco;
}

std::string PercorsoFreqTab(std::string_view nome) {
    std::string percorso(CartellaFreqTab(FormaFreqTab::Semplice));
    percorso.append(nome).append(".").append(EstensioneFreqTab(FormaFreqTab::Semplice));
    return percorso;
}

std::function<std::optional<double>(const ScanLine&, size_t)>
FrequenzeDaTabella(const AlberoDati& albero) {
    struct Ultima {
        const ScanLine* riga = nullptr;
        std::vector<double> elenco;
    };
    const auto ultima = std::make_shared<Ultima>();
    return [&albero, ultima](const ScanLine& riga, size_t k) -> std::optional<double> {
        if (ultima->riga != &riga) {
            const auto dati = albero.Leggi(PercorsoFreqTab(Rifila(riga.FreqTable)), kByte5SF);
            FrequencyTable tabella =
                dati ? LeggiFreqTab(FormaFreqTab::Semplice, *dati) : FrequencyTable{};
            ControllaFrequencyTable(tabella);
            *ultima = {&riga, CreaElencoFreqTab(tabella, riga)};
        }
        return k < ultima->elenco.size() ? std::optional(ultima->elenco[k]) : std::nullopt;
    };
}

} // namespace orvane
