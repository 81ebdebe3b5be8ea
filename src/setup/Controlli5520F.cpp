// Checks of the 5520F, each of its own: the first that stops ends them.
#include "setup/ComandoSweep.h"
#include "setup/ElencoControlli.h"
#include "setup/Segnala.h"

namespace orvane::prevolo {
namespace {

constexpr double kFineCondottoMhz = 30;

} // namespace

Segnalazioni ControllaTG5520F(C c) {
    return Se(c.modello.Is5520F && c.setup.TGOn != 0, EsitoControllo::Corregge,
              Informazione("Tracking not available"));
}

// From the firmware on that is told to keep its step, a step of one's own can stay.
Segnalazioni ControllaStep5520F(C c) {
    if (!c.modello.Is5520F || ControllaFW5520FPerAutoStep(c.modello))
        return {};
    return SeCiSono(
        CelleDove(c.tabella, {ColonnaScan::Step},
                  [](const ScanLine& riga) { return riga.AutoStep == 0 && riga.StepMode == 0; }),
        EsitoControllo::Corregge, Informazione("Step will be set to AUTO"));
}

void MettiPassoAuto(ScanTable& tabella, const SetupRecord&, const Segnalazione& s) {
    for (const CellaErrata& cella : s.celle) {
        ScanLine& riga = tabella[cella.riga];
        riga.AutoStep = 1;
        riga.Step = DetStepAutoDaRBW(riga.RbwId, riga);
    }
}

Segnalazioni ControllaFreqTable5520F(C c) {
    if (!c.modello.Is5520F)
        return {};
    return SeCiSono(CelleDove(c.tabella, {ColonnaScan::Step},
                              [](const ScanLine& riga) {
                                  return riga.StepMode == 1 && riga.Stop >= kFineCondottoMhz;
                              }),
                    EsitoControllo::Ferma, Esclamazione("Cannot scan through frequency table"));
}

Segnalazioni ControllaSmartDetector5520F(C c) {
    if (!c.modello.Is5520F)
        return {};
    return SeCiSono(CelleDove(c.tabella, {ColonnaScan::Detector},
                              [](const ScanLine& riga) {
                                  return riga.Smart == 1 && riga.StepMode == 1 &&
                                         riga.Stop < kFineCondottoMhz;
                              }),
                    EsitoControllo::Corregge,
                    Informazione("Smart detector unnecessary.\r   Detector ON all time long"));
}

void TogliSmart(ScanTable& tabella, const SetupRecord&, const Segnalazione& s) {
    for (const CellaErrata& cella : s.celle)
        tabella[cella.riga].Smart = 0;
}

Segnalazioni ControllaInsLoss5520F(C c) {
    return Se(c.modello.Is5520F && c.setup.InsLossOn == 1, EsitoControllo::Corregge,
              Informazione("Insertion Loss not available"));
}

void SpegniInsLoss(SetupRecord& setup) {
    setup.InsLossOn = 0;
}

} // namespace orvane::prevolo
