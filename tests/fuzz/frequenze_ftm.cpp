// Frequency tables with positions: FTM files of any content and length.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "data/ControllaTabelle.h"
#include "data/ConversioneTabella.h"

using namespace orvane;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t quanti) {
    FrequencyTable t = LeggiFreqTab(FormaFreqTab::MastTable, {dati, quanti});
    ControllaFrequencyTable(t);
    const ContenutoTabella c = DaFrequencyTable(t, TableKind::FrequenzeMast);
    for (size_t riga = 0; riga < c.righe.size(); ++riga)
        for (const auto colonna : {ColonnaTabella::Frequenza, ColonnaTabella::Mast})
            if (TestoCella(c, riga, colonna).empty())
                std::abort();
    if (ControllaRigaCompFreqTab(c) != c.righe.size())
        std::abort();
    return 0;
}
