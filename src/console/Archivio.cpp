#include "console/Archivio.h"

#include <algorithm>

#include "data/ControllaRecord.h"
#include "setup/ListaFrequenze.h"
#include "setup/TabellaScan.h"

namespace orvane {
namespace {

/// Reads the header without touching the running records. A damaged one is told.
bool LeggiHeader(Scrivania& s, const std::string& nome, SweepHeader& header) {
    const std::string percorso = TrovaKSH(s.albero, nome);
    const auto dati = s.albero.Leggi(percorso);
    if (dati && LeggiRecord(*dati, header))
        return true;
    s.ambiente.Mostra({.testo = "Failed loading" + s.albero.DataRoot() + percorso});
    return false;
}

} // namespace

void CampoDellaTabella(const ScanTable& tabella, double& startMhz, double& stopMhz) {
    startMhz = stopMhz = 0;
    for (const ScanLine& riga : tabella) {
        if (riga.Start == 0 || !(riga.Start < riga.Stop))
            continue;
        startMhz = startMhz == 0 ? riga.Start : std::min(startMhz, riga.Start);
        stopMhz = std::max(stopMhz, riga.Stop);
    }
}

MisuraAperta ApriMisura(Scrivania& s, const std::string& nome) {
    MisuraAperta misura{.nome = nome};
    misura.leggibile = LeggiHeader(s, nome, misura.header);
    if (!misura.leggibile)
        return misura;
    ControllaScan(misura.header.Scan);
    ControllaSetup(misura.header.Setup);
    const ScanTable& righe = misura.header.Scan.Righe;
    CampoDellaTabella(righe, misura.startMhz, misura.stopMhz);
    for (const ScanLine& riga : righe) {
        for (size_t d = 0; d < kNumDetector; ++d)
            misura.detector[d] |= riga.Start != 0 && riga.Detector[d] != 0;
    }
    const auto primo = std::find(misura.detector.begin(), misura.detector.end(), true);
    if (primo != misura.detector.end())
        misura.traccia = CreaTracciaSweep(
            s, nome, nome, righe, static_cast<DetectorKind>(primo - misura.detector.begin()),
            {.frequenza = FrequenzeDaTabella(s.albero)});
    return misura;
}

} // namespace orvane
