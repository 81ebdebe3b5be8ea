#include "setup/RigheScan.h"

#include <algorithm>

#include "setup/TabellaScan.h"

namespace orvane {

bool CiStanno(const ScanTable& tabella, size_t quante) {
    return RigheInUso(tabella) + quante <= tabella.size();
}

bool InserisciRighe(ScanTable& tabella, size_t qui, std::span<const ScanLine> righe) {
    if (!CiStanno(tabella, righe.size()))
        return false;
    CompattaScanTable(tabella);
    const size_t posto = std::min(qui, RigheInUso(tabella));
    const auto dove = tabella.begin() + static_cast<std::ptrdiff_t>(posto);
    const auto quante = static_cast<std::ptrdiff_t>(righe.size());
    std::move_backward(dove, tabella.end() - quante, tabella.end());
    std::copy(righe.begin(), righe.end(), dove);
    CompattaScanTable(tabella);
    return true;
}

bool SpostaRiga(ScanTable& tabella, size_t da, size_t a) {
    CompattaScanTable(tabella);
    const size_t usate = RigheInUso(tabella);
    if (da >= usate || a >= usate || da == a)
        return false;
    const auto posto = [&](size_t i) { return tabella.begin() + static_cast<std::ptrdiff_t>(i); };
    if (da < a)
        std::rotate(posto(da), posto(da + 1), posto(a + 1));
    else
        std::rotate(posto(a), posto(da), posto(da + 1));
    return true;
}

bool DuplicaRiga(ScanTable& tabella, size_t indice) {
    if (indice >= RigheInUso(tabella))
        return false;
    const ScanLine copia = tabella[indice];
    return InserisciRighe(tabella, indice + 1, {&copia, 1});
}

} // namespace orvane
