// Frequency tables without positions: 5SF files of any content and length.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "data/ControllaTabelle.h"
#include "data/ConversioneTabella.h"

using namespace orvane;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t quanti) {
    FrequencyTable t = LeggiFreqTab(FormaFreqTab::Semplice, {dati, quanti});
    ControllaFrequencyTable(t);
    const ContenutoTabella c = DaFrequencyTable(t, TableKind::Frequenze);
    if (ControllaFrequencyTable(t) || InFrequencyTable(c).Elementi[0].Freq != t.Elementi[0].Freq)
        std::abort();
    return 0;
}
