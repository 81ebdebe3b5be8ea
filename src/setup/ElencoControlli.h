// The checks in front of a run, by subject. Each looks at one thing and says what it finds; its
// repair, where it has one, stands beside it. The chain puts them in order.
#pragma once

#include "setup/Controlli.h"

namespace orvane {

struct PreVolo;

namespace prevolo {

using C = const ContestoControlli&;

// The table as a whole.
Segnalazioni RiordinaTabella(C c);
void Riordina(ScanTable& tabella, const SetupRecord& setup, const Segnalazione& s);
Segnalazioni PassiAutomatici(C c);
Segnalazioni TutteLeFrequenze(C c); ///< `ControllaFstartFstopScanTab` of the lines in use

// The network and what else is attached.
void AdattaAncillary(ScanTable& tabella, const SetupRecord& setup, const Segnalazione& s);
Segnalazioni ControllaAncyllaryGX2207Sweep(C c);
void TogliCommutazioni(ScanTable& tabella, const SetupRecord& setup, const Segnalazione& s);
Segnalazioni ControllaL23360Sweep(C c);

// Generator and pulse limiter: they change the set-up.
Segnalazioni ControllaRFOutTracking3360Sweep(C c);
Segnalazioni ControllaPulseLim(C c);
Segnalazioni ControllaGeneratoreOem(C c);
Segnalazioni ControllaTrackingGX2207(C c);
Segnalazioni ControllaTrackingFrontEnd2(C c);
void SpegniPulseLim(SetupRecord& setup);
void SpegniGeneratore(SetupRecord& setup);
void SpegniTracking(SetupRecord& setup);
void AccendiTracking(SetupRecord& setup);

// Attenuator, preamplifier, preselector.
Segnalazioni ControllaMinAttMax(C c);
Segnalazioni ControlloPreSelPreAmpK3X(C c);
Segnalazioni ControlloPreAmp5590(C c);
Segnalazioni ControlloPreSelPerFreq5590(C c);
void AccendiPreSel(ScanTable& tabella, const SetupRecord& setup, const Segnalazione& s);
Segnalazioni ControlloPreSelPerFreq(C c);

// Detectors and their limits.
Segnalazioni ControllaDetRMSAVGScanTab(C c);
Segnalazioni ControlloNMaxPuntiLimSD(C c);
Segnalazioni ControllaFWPerDSD(C c);
Segnalazioni ControllaLimitiConSDeDSD(C c);
Segnalazioni ControllaLimLinSD(C c);
Segnalazioni ControllaFFTSD(C c);
void CambiaHoldTimeSD(ScanTable& tabella, const SetupRecord& setup, const Segnalazione& s);
Segnalazioni ControllaHoldTime(C c);
void AllungaHoldTime(ScanTable& tabella, const SetupRecord& setup, const Segnalazione& s);
Segnalazioni ControllaNumeroLimiti(C c);
Segnalazioni ControlladBpTFCSweep(C c);

// The 5520F.
Segnalazioni ControllaTG5520F(C c);
Segnalazioni ControllaStep5520F(C c);
void MettiPassoAuto(ScanTable& tabella, const SetupRecord& setup, const Segnalazione& s);
Segnalazioni ControllaFreqTable5520F(C c);
Segnalazioni ControllaSmartDetector5520F(C c);
void TogliSmart(ScanTable& tabella, const SetupRecord& setup, const Segnalazione& s);
Segnalazioni ControllaInsLoss5520F(C c);
void SpegniInsLoss(SetupRecord& setup);

// Insertion Loss.
Segnalazioni ControllaFreqInsLoss(C c);
Segnalazioni ControllaFFTInsLoss(C c);
void AllungaHoldTimeFFT(ScanTable& tabella, const SetupRecord& setup, const Segnalazione& s);

// Mast-Table, and the kind of run.
Segnalazioni ControllaFreqTableMT(C c);
Segnalazioni ControllaRunKind(C c);
Segnalazioni ControllaImpostazioniMT(C c);
Segnalazioni ControllaSmartDetectorMT(C c);
bool ControllaBatteriaMT(PreVolo& p);

} // namespace prevolo
} // namespace orvane
