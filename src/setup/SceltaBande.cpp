#include "setup/SceltaBande.h"

#include <algorithm>
#include <vector>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "setup/RigheScan.h"
#include "setup/TabellaScan.h"

namespace orvane {
namespace {

constexpr size_t kCaratteriMaiuscoli = 9; // a typed name of fewer is upper case

const VoceBanda* Banda(int indice) {
    const auto bande = TabellaBande();
    const bool buona = indice >= 0 && static_cast<size_t>(indice) < bande.size() &&
                       bande[static_cast<size_t>(indice)].startMhz != 0;
    return buona ? &bande[static_cast<size_t>(indice)] : nullptr;
}

/// The rows that a composite band brings along.
std::vector<ScanLine> RigheSeguenti(const VoceBanda& banda, int ancillaryKind) {
    std::vector<ScanLine> righe;
    for (const int seguente : banda.seguenti)
        if (const VoceBanda* voce = Banda(seguente))
            ImpostaBanda(righe.emplace_back(), *voce, ancillaryKind);
    return righe;
}

size_t RigheDellaBanda(const VoceBanda& banda) {
    return 1 + static_cast<size_t>(std::count_if(banda.seguenti.begin(), banda.seguenti.end(),
                                                 [](int b) { return b >= 0; }));
}

std::string Riga(size_t indice) {
    return "row " + TestoIntero(static_cast<long long>(indice) + 1);
}

} // namespace

VistaBande VistaDelleBande(const ScanTable& tabella, int banda, size_t indice) {
    const VoceBanda* voce = Banda(banda);
    const size_t usate = RigheInUso(tabella);
    const size_t qui = std::min(indice, usate);
    const size_t righe = voce ? RigheDellaBanda(*voce) : 0;
    const size_t sostituite = qui < usate ? 1 : 0;
    const std::string nome = voce ? " " + std::string(voce->nome) : "";
    return {.CMBSet = {"Set band" + nome + " to " + Riga(qui),
                       voce && usate - sostituite + righe <= tabella.size()},
            .CMBInsert = {"Insert band" + nome + " before " + Riga(qui),
                          voce && CiStanno(tabella, righe)},
            .CMBRemove = {"Remove " + Riga(qui), qui < usate},
            .CMBClearTab = {"Clear table", usate > 0}};
}

bool ImpostaBandaInRiga(ScanTable& tabella, size_t indice, int banda, int ancillaryKind) {
    const VoceBanda* voce = Banda(banda);
    const size_t usate = RigheInUso(tabella);
    if (!voce || indice >= usate)
        return voce && InserisciBanda(tabella, usate, banda, ancillaryKind);
    if (!InserisciRighe(tabella, indice + 1, RigheSeguenti(*voce, ancillaryKind)))
        return false;
    // The row keeps its selections of lines and polarisations where it has any.
    ImpostaBanda(tabella[indice], *voce, ancillaryKind);
    return true;
}

bool InserisciBanda(ScanTable& tabella, size_t indice, int banda, int ancillaryKind) {
    const VoceBanda* voce = Banda(banda);
    if (!voce)
        return false;
    std::vector<ScanLine> righe = RigheSeguenti(*voce, ancillaryKind);
    ImpostaBanda(*righe.insert(righe.begin(), ScanLine{}), *voce, ancillaryKind);
    return InserisciRighe(tabella, indice, righe);
}

Riquadro DomandaCancella(std::string_view tabella) {
    return {.testo = "Are you sure you want to delete " + std::string(tabella) + " ?",
            .icona = Icona::Domanda,
            .pulsanti = Pulsanti::SiNo};
}

int BandaVicina(int banda, int verso) {
    const int quante = static_cast<int>(TabellaBande().size());
    for (int i = banda + verso; i >= 0 && i < quante; i += verso)
        if (const VoceBanda* voce = Banda(i); voce && voce->elencata)
            return i;
    return banda;
}

std::string NomeBandaDigitato(std::string_view testo) {
    return testo.size() < kCaratteriMaiuscoli ? Maiuscolo(testo) : std::string(testo);
}

} // namespace orvane
