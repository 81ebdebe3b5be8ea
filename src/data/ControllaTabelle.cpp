#include "data/ControllaTabelle.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "records/Unita.h"

namespace orvane {
namespace {

template <class Punto> bool MettiInOrdine(std::vector<Punto>& punti) {
    const auto prima = [](const Punto& a, const Punto& b) { return a.Freq < b.Freq; };
    if (std::is_sorted(punti.begin(), punti.end(), prima))
        return false;
    std::stable_sort(punti.begin(), punti.end(), prima);
    return true;
}

template <class T> bool FrequenzaBuona(T freq) {
    return std::isfinite(freq) && freq > 0;
}

} // namespace

bool ControllaLimFac(LimFacRecord& tabella) {
    struct Punto {
        float Freq;
        int16_t Value;
    };
    std::vector<Punto> punti;
    bool cambiato = false;
    for (size_t i = 0; i < tabella.Freq.size() && tabella.Freq[i] != 0; ++i) {
        if (i < tabella.Value.size() && FrequenzaBuona(tabella.Freq[i]))
            punti.push_back({tabella.Freq[i], tabella.Value[i]});
        else
            cambiato = true;
    }
    cambiato = MettiInOrdine(punti) || cambiato;
    tabella.Freq.fill(0);
    tabella.Value.fill(0);
    for (size_t i = 0; i < punti.size(); ++i) {
        tabella.Freq[i] = punti[i].Freq;
        tabella.Value[i] = punti[i].Value;
    }
    if (tabella.UnitId >= 0 && tabella.UnitId < static_cast<int>(TabellaUnitaGrafico().size()))
        return cambiato;
    tabella.UnitId = 1;
    return true;
}

bool ControllaFrequencyTable(FrequencyTable& tabella) {
    std::vector<FreqTableElem> punti;
    bool cambiato = false;
    for (const FreqTableElem& e : tabella.Elementi) {
        if (e.Freq == 0)
            break;
        if (FrequenzaBuona(e.Freq))
            punti.push_back(e);
        else
            cambiato = true;
    }
    cambiato = MettiInOrdine(punti) || cambiato;
    tabella.Elementi.fill({});
    std::copy(punti.begin(), punti.end(), tabella.Elementi.begin());
    return cambiato;
}

} // namespace orvane
