#include "setup/ModificaTabella.h"

#include <algorithm>
#include <cmath>

#include "base/Numeri.h"
#include "setup/RegoleRiga.h"
#include "setup/SceltaBande.h"

namespace orvane {
namespace {

constexpr int kMaxDetectorInsieme = 3;

/// What `AggiornaRigaScanTab` fills into the empty cells of a new line.
void RiempiRiga(ScanLine& riga, int ancillaryKind) {
    ImpostaLineaDefault(riga, ancillaryKind);
    riga.RbwId = DetRBWDefault(riga.Start, riga.Stop);
    riga.Step = DetStepAutoDaRBW(riga.RbwId, riga);
}

/// A line that was typed just now has no detector yet, and no other line is without.
bool HaCelleVuote(const ScanLine& riga, int ancillaryKind) {
    for (int c = static_cast<int>(ColonnaScan::Step); c <= static_cast<int>(ColonnaScan::Ancillary);
         ++c)
        if (TestoCella(riga, static_cast<ColonnaScan>(c), ancillaryKind).empty())
            return true;
    return false;
}

} // namespace

bool RigaCompleta(const ScanLine& riga) {
    return riga.Start != 0 && riga.Stop != 0;
}

void ModificaCella(ScanTable& tabella, size_t indice, ColonnaScan colonna, std::string_view testo,
                   int id, int ancillaryKind) {
    if (indice >= tabella.size())
        return;
    ScriviCellaScanLine(tabella[indice], colonna, testo, id);
    AggiornaRigaScanTab(tabella, indice, ancillaryKind);
    CompattaScanTable(tabella);
}

size_t AggiornaRigaScanTab(ScanTable& tabella, size_t indice, int ancillaryKind) {
    if (indice < tabella.size())
        if (ScanLine& riga = tabella[indice];
            RigaCompleta(riga) && HaCelleVuote(riga, ancillaryKind))
            RiempiRiga(riga, ancillaryKind);
    return static_cast<size_t>(std::count_if(tabella.begin(), tabella.end(), RigaCompleta));
}

void ModificaHoldTime(ScanLine& riga, std::string_view testo) {
    const double ms = std::min(std::abs(ValoreIniziale(testo)), kHoldTimeMax);
    riga.HoldTime = static_cast<float>(ms);
    AggiornaStepAuto(riga);
}

void CambiaDetector(ScanLine& riga, DetectorKind detector, bool acceso, int ancillaryKind) {
    const auto quale = static_cast<size_t>(detector);
    const auto accesi = std::count(riga.Detector.begin(), riga.Detector.end(), int16_t{1});
    if (!acceso && accesi <= 1)
        return;
    // Smart is one of the group: with it two detectors fill it.
    const bool pieno = accesi + (riga.Smart == 1 ? 1 : 0) >= kMaxDetectorInsieme;
    if (acceso && (ancillaryKind == kAncillaryMastTable || (riga.Detector[quale] == 0 && pieno)))
        riga.Detector.fill(0);
    riga.Detector[quale] = acceso ? 1 : 0;
    AggiornaStepAuto(riga);
}

void CancellaRiga(ScanTable& tabella, size_t indice) {
    if (indice >= tabella.size())
        return;
    tabella[indice] = {};
    CompattaScanTable(tabella);
}

bool AggiungiBanda(ScanTable& tabella, const VoceBanda& banda, int ancillaryKind) {
    const auto indice = static_cast<int>(&banda - TabellaBande().data());
    return InserisciBanda(tabella, tabella.size(), indice, ancillaryKind);
}

} // namespace orvane
