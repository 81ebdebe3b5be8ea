#include "setup/ModificaTabella.h"

#include <algorithm>
#include <cmath>

#include "base/Numeri.h"

namespace orvane {
namespace {

constexpr int kMaxDetectorInsieme = 3;

/// What `AggiornaRigaScanTab` fills into the empty cells of a new line.
void RiempiRiga(ScanLine& riga, int ancillaryKind) {
    ImpostaLineaDefault(riga, ancillaryKind);
    riga.RbwId = DetRBWDefault(riga.Start, riga.Stop);
    riga.Step = DetStepAutoDaRBW(riga.RbwId, riga);
}

size_t RigheDellaBanda(const VoceBanda& banda) {
    return 1 + static_cast<size_t>(std::count_if(banda.seguenti.begin(), banda.seguenti.end(),
                                                 [](int b) { return b >= 0; }));
}

} // namespace

bool RigaCompleta(const ScanLine& riga) {
    return riga.Start != 0 && riga.Stop != 0;
}

void ModificaCella(ScanTable& tabella, size_t indice, ColonnaScan colonna, std::string_view testo,
                   int id, int ancillaryKind) {
    if (indice >= tabella.size())
        return;
    ScanLine& riga = tabella[indice];
    const bool eraCompleta = RigaCompleta(riga);
    ScriviCellaScanLine(riga, colonna, testo, id);
    if (!eraCompleta && RigaCompleta(riga))
        RiempiRiga(riga, ancillaryKind);
    CompattaScanTable(tabella);
}

void ModificaHoldTime(ScanLine& riga, std::string_view testo) {
    const double ms = std::min(std::abs(ValoreIniziale(testo)), kHoldTimeMax);
    riga.HoldTime = static_cast<float>(ms);
    // The hold time decides whether the line runs as FFT, and that decides the automatic step.
    if (riga.AutoStep == 1)
        riga.Step = DetStepAutoDaRBW(riga.RbwId, riga);
}

void CambiaDetector(ScanLine& riga, DetectorKind detector, bool acceso) {
    const auto quale = static_cast<size_t>(detector);
    const auto accesi = std::count(riga.Detector.begin(), riga.Detector.end(), int16_t{1});
    if (!acceso && accesi <= 1)
        return;
    if (acceso && riga.Detector[quale] == 0 && accesi >= kMaxDetectorInsieme)
        riga.Detector.fill(0);
    riga.Detector[quale] = acceso ? 1 : 0;
    if (riga.AutoStep == 1)
        riga.Step = DetStepAutoDaRBW(riga.RbwId, riga);
}

void CancellaRiga(ScanTable& tabella, size_t indice) {
    if (indice >= tabella.size())
        return;
    tabella[indice] = {};
    CompattaScanTable(tabella);
}

bool AggiungiBanda(ScanTable& tabella, const VoceBanda& banda, int ancillaryKind) {
    CompattaScanTable(tabella);
    size_t qui = RigheInUso(tabella);
    if (banda.startMhz == 0 || qui + RigheDellaBanda(banda) > tabella.size())
        return false;
    ImpostaBanda(tabella[qui] = {}, banda, ancillaryKind);
    for (const int seguente : banda.seguenti) {
        if (seguente >= 0)
            ImpostaBanda(tabella[++qui] = {}, TabellaBande()[static_cast<size_t>(seguente)],
                         ancillaryKind);
    }
    return true;
}

} // namespace orvane
