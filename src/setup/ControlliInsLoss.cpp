// Checks of a run with Insertion Loss.
#include "base/Numeri.h"
#include "setup/ElencoControlli.h"
#include "setup/Segnala.h"

namespace orvane::prevolo {
namespace {

// From this hold time on, ms, a line is no FFT scan: two FFT passes could not be told apart.
constexpr float kHoldSenzaFFT = 50;

bool BandaAFrettolosa(const ScanLine& riga) {
    return riga.Start >= 0.009 && riga.Stop <= 0.15 && riga.HoldTime < kHoldSenzaFFT;
}

} // namespace

Segnalazioni ControllaFreqInsLoss(C c) {
    if (c.setup.InsLossOn != 1)
        return {};
    return Se(
        UnaRiga(c.tabella,
                [](const ScanLine& riga) { return riga.Start < 0.15 || riga.Stop > 1.605; }),
        EsitoControllo::Chiede,
        DomandaSiNo(
            "WARNING: INSERTION LOSS Function Active\r       Would you like to proceed anyway ?"));
}

Segnalazioni ControllaFFTInsLoss(C c) {
    if (c.setup.InsLossOn != 1)
        return {};
    const std::string ms = TestoDaNumero(kHoldSenzaFFT) + " ms";
    return SeCiSono(CelleDove(c.tabella, {ColonnaScan::HoldTime}, BandaAFrettolosa),
                    EsitoControllo::Corregge,
                    Esclamazione("Hold time for Band A cannot be shorter than " + ms +
                                 "\r                  Press OK to set it to " + ms));
}

void AllungaHoldTimeFFT(ScanTable& tabella, const SetupRecord&, const Segnalazione& s) {
    for (const CellaErrata& cella : s.celle) {
        ScanLine& riga = tabella[cella.riga];
        riga.HoldTime = kHoldSenzaFFT;
        // An automatic step was that of the FFT scan.
        if (riga.AutoStep == 1)
            riga.Step = DetStepAutoDaRBW(riga.RbwId, riga);
    }
}

} // namespace orvane::prevolo
