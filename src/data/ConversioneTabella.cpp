#include "data/ConversioneTabella.h"

#include "base/Testo.h"
#include "data/Interpolazione.h"

namespace orvane {
namespace {

std::optional<int16_t> DaPosizione(TableKind kind, int16_t posizione) {
    const bool presente = kind == TableKind::FrequenzeMast && posizione >= 0;
    return presente ? std::optional(posizione) : std::nullopt;
}

} // namespace

LimFacRecord InLimFac(const ContenutoTabella& c) {
    LimFacRecord tabella;
    size_t n = 0;
    for (const RigaTabella& riga : c.righe) {
        if (!RigaCompletaTabella(riga) || n == tabella.Value.size())
            continue;
        tabella.Freq[n] = HzDaMhz(*riga.freqMhz);
        tabella.Value[n++] = *riga.livelloCent;
    }
    tabella.Title = c.titolo;
    tabella.LinFreq = c.linFreq ? 1 : 0;
    tabella.UnitId = c.unitId;
    return tabella;
}

ContenutoTabella DaLimFac(const LimFacRecord& tabella, TableKind kind) {
    ContenutoTabella c{.kind = kind};
    for (size_t i = 0; i < NumeroPunti(tabella); ++i)
        c.righe.push_back(
            {.freqMhz = DecimaleBreve(tabella.Freq[i]) / 1e6, .livelloCent = tabella.Value[i]});
    c.titolo = RifilaControlli(tabella.Title);
    c.unitId = tabella.UnitId;
    c.linFreq = tabella.LinFreq == 1;
    return c;
}

FrequencyTable InFrequencyTable(const ContenutoTabella& c) {
    FrequencyTable tabella;
    size_t n = 0;
    for (const RigaTabella& riga : c.righe)
        if (RigaCompletaTabella(riga) && n < kMaxFreqTable)
            tabella.Elementi[n++] = {.Freq = *riga.freqMhz,
                                     .Level = *riga.livelloCent,
                                     .Mast = riga.mastCm.value_or(kNessunaPosizione),
                                     .Table = riga.tableGradi.value_or(kNessunaPosizione)};
    return tabella;
}

ContenutoTabella DaFrequencyTable(const FrequencyTable& tabella, TableKind kind) {
    ContenutoTabella c{.kind = kind};
    for (const FreqTableElem& e : tabella.Elementi) {
        if (e.Freq == 0)
            break;
        c.righe.push_back({.freqMhz = e.Freq,
                           .livelloCent = e.Level,
                           .mastCm = DaPosizione(kind, e.Mast),
                           .tableGradi = DaPosizione(kind, e.Table)});
    }
    return c;
}

FormaFreqTab FormaDiKind(TableKind kind) {
    return kind == TableKind::FrequenzeMast ? FormaFreqTab::MastTable : FormaFreqTab::Semplice;
}

} // namespace orvane
