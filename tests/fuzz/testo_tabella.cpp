// Tables from text: the first byte chooses the kind of table and whether the rest is a file or
// pasted columns.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "data/ImportaTesto.h"

using namespace orvane;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t quanti) {
    if (quanti == 0)
        return 0;
    ContenutoTabella c{.kind = static_cast<TableKind>(dati[0] % kNumTableKind)};
    c.unitId = static_cast<int16_t>(dati[0] / 32);
    const std::string_view testo(reinterpret_cast<const char*>(dati) + 1, quanti - 1);
    const bool incolla = dati[0] & 16;
    if (incolla)
        IncollaColonne(c, testo, 0, ColonnaTabella::Frequenza);
    else
        ImportaTesto(c, testo);
    if (c.righe.size() > CapienzaTabella(c.kind) || ControllaRigaCompFreqTab(c) != c.righe.size())
        std::abort();
    // What is written as text is read back as it was, a title's line apart.
    ContenutoTabella ritorno{.kind = c.kind, .unitId = c.unitId};
    ImportaTesto(ritorno, TestoTabella(c, ""));
    if (ritorno.righe.size() != c.righe.size())
        std::abort();
    return 0;
}
