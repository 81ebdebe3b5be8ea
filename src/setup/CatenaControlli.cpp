#include "setup/CatenaControlli.h"

#include <algorithm>
#include <array>

#include "data/Misure.h"
#include "setup/ElencoControlli.h"
#include "setup/FattoriSweep.h"
#include "setup/FrontEndSweep.h"
#include "setup/PreVolo.h"
#include "setup/RegoleScan.h"

namespace orvane {
namespace {

using namespace prevolo;

/// What the front-end is has just been asked with the rest of the model; boxes may have stood
/// since.
bool RinfrescaFrontEnd(PreVolo& p) {
    p.vista.MostraModello();
    return true;
}

bool CopiaPassi(PreVolo& p) {
    for (ScanLine& riga : p.scan.Righe)
        riga.StepOriginal = riga.Step;
    return true;
}

void RicalcolaAuto(ScanTable& tabella, const SetupRecord&, const Segnalazione&) {
    RicalcolaPassiAuto(tabella);
}

void Limita400kHz(ScanTable& tabella, const SetupRecord&, const Segnalazione&) {
    LimitaPassi(tabella);
}

bool MandaFattori(PreVolo& p) {
    return ImpostaCFSweep(p.ricevitore, p.scrivania);
}

bool RisolviNomeMisura(PreVolo& p) {
    p.misura = ControlNameMeasProfiloB(p.scrivania, p.misura);
    return !p.misura.empty();
}

bool PreparaFrontEnd(PreVolo& p) {
    return ControllaGX2207FFTSwept(p.ricevitore, p.scan.Righe);
}

// In order: later checks rely on what earlier ones have repaired.
constexpr std::array kCatena = {
    VoceControllo{.numero = 1,
                  .nome = "ControllaFreqTableMT",
                  .motivo = "a frequency table with Mast-Table",
                  .esamina = ControllaFreqTableMT},
    VoceControllo{.numero = 2,
                  .nome = "CompattaScanTable",
                  .motivo = "the scan table has no line in use",
                  .esamina = RiordinaTabella,
                  .correggi = Riordina},
    VoceControllo{.numero = 3,
                  .nome = "ControllaLineScanTab",
                  .motivo = "the ancillary settings of a line",
                  .esamina = ControllaLineScanTab,
                  .correggi = AdattaAncillary},
    VoceControllo{.numero = 4,
                  .nome = "ControllaRFOutTracking3360Sweep",
                  .esamina = ControllaRFOutTracking3360Sweep,
                  .correggiSetup = SpegniGeneratore},
    VoceControllo{.numero = 5,
                  .nome = "ControllaAncyllaryGX2207Sweep",
                  .motivo = "a network on a line that cannot have it",
                  .esamina = ControllaAncyllaryGX2207Sweep,
                  .correggi = TogliCommutazioni},
    VoceControllo{.numero = 6,
                  .nome = "ControllaL23360Sweep",
                  .motivo = "the built-in network",
                  .esamina = ControllaL23360Sweep},
    VoceControllo{.numero = 7,
                  .nome = "ControllaCondRadScanTab",
                  .motivo = "conducted and radiated lines in one table",
                  .esamina = ControllaCondRadScanTab},
    VoceControllo{.numero = 8,
                  .nome = "ControllaFstartFstopScanTab",
                  .motivo = "start or stop frequency of a line",
                  .esamina = TutteLeFrequenze},
    VoceControllo{.numero = 9,
                  .nome = "ControllaPulseLim",
                  .esamina = ControllaPulseLim,
                  .correggiSetup = SpegniPulseLim},
    VoceControllo{.numero = 10,
                  .nome = "ControllaRBWScanTab",
                  .motivo = "the filter of a line, or its detectors with it",
                  .esamina = ControllaRBWScanTab},
    VoceControllo{.numero = 11, .nome = "front-end refresh", .agisci = RinfrescaFrontEnd},
    VoceControllo{.numero = 12,
                  .nome = "ControllaDetRMSAVGScanTab",
                  .motivo = "a detector that this receiver does not have",
                  .esamina = ControllaDetRMSAVGScanTab},
    VoceControllo{.numero = 13, .nome = "step copy", .agisci = CopiaPassi},
    VoceControllo{.numero = 14,
                  .nome = "RicalcolaPassiAuto",
                  .esamina = PassiAutomatici,
                  .correggi = RicalcolaAuto},
    VoceControllo{.numero = 14,
                  .nome = "ControlloStepScanTab",
                  .motivo = "the step of a line",
                  .esamina = ControlloStepScanTab},
    VoceControllo{.numero = 15,
                  .nome = "ControlloStepScanTabK3XK6X",
                  .esamina = ControlloStepScanTabK3XK6X,
                  .correggi = Limita400kHz},
    VoceControllo{.numero = 16,
                  .nome = "ControllaMinAttMax",
                  .motivo = "the minimum attenuation of a line",
                  .esamina = ControllaMinAttMax},
    VoceControllo{.numero = 17,
                  .nome = "ControllaSovrapposizioniFreq",
                  .motivo = "overlapping lines",
                  .esamina = ControllaSovrapposizioniFreq},
    VoceControllo{.numero = 18,
                  .nome = "ControlloNMaxPuntiLimSD",
                  .motivo = "the limit of a smart detector",
                  .esamina = ControlloNMaxPuntiLimSD},
    VoceControllo{.numero = 19,
                  .nome = "ControlloPreSelPreAmpK3X",
                  .motivo = "a preselector or preamplifier that this receiver does not have",
                  .esamina = ControlloPreSelPreAmpK3X},
    VoceControllo{.numero = 20,
                  .nome = "ControlloPreAmp5590",
                  .motivo = "preamplifier and attenuation of a line",
                  .esamina = ControlloPreAmp5590},
    VoceControllo{.numero = 21,
                  .nome = "ControlloPreSelPerFreq5590",
                  .esamina = ControlloPreSelPerFreq5590,
                  .correggi = AccendiPreSel},
    VoceControllo{.numero = 22,
                  .nome = "ControlloPreSelPerFreq",
                  .motivo = "the preselector of a line",
                  .esamina = ControlloPreSelPerFreq},
    VoceControllo{.numero = 23,
                  .nome = "ControllaTG5520F",
                  .esamina = ControllaTG5520F,
                  .correggiSetup = SpegniTracking},
    VoceControllo{.numero = 23,
                  .nome = "ControllaStep5520F",
                  .esamina = ControllaStep5520F,
                  .correggi = MettiPassoAuto},
    VoceControllo{.numero = 23,
                  .nome = "ControllaFreqTable5520F",
                  .motivo = "a frequency table on this receiver",
                  .esamina = ControllaFreqTable5520F},
    VoceControllo{.numero = 23,
                  .nome = "ControllaSmartDetector5520F",
                  .esamina = ControllaSmartDetector5520F,
                  .correggi = TogliSmart},
    VoceControllo{.numero = 23,
                  .nome = "ControllaInsLoss5520F",
                  .esamina = ControllaInsLoss5520F,
                  .correggiSetup = SpegniInsLoss},
    VoceControllo{.numero = 24,
                  .nome = "ControllaFreqInsLoss",
                  .motivo = "frequencies outside Insertion Loss",
                  .esamina = ControllaFreqInsLoss},
    VoceControllo{.numero = 25,
                  .nome = "ControllaFFTInsLoss",
                  .esamina = ControllaFFTInsLoss,
                  .correggi = AllungaHoldTimeFFT},
    VoceControllo{.numero = 26,
                  .nome = "ControllaFWPerDSD",
                  .motivo = "the firmware knows no Double Smart Detector",
                  .esamina = ControllaFWPerDSD},
    VoceControllo{.numero = 27,
                  .nome = "limit count",
                  .motivo = "more limits than the receiver keeps",
                  .esamina = ControllaNumeroLimiti},
    VoceControllo{.numero = 28,
                  .nome = "ControllaLimitiConSDeDSD",
                  .motivo = "a smart detector without limit",
                  .esamina = ControllaLimitiConSDeDSD},
    VoceControllo{.numero = 29,
                  .nome = "ControllaLimLinSD",
                  .motivo = "a linear limit with a smart detector",
                  .esamina = ControllaLimLinSD},
    VoceControllo{.numero = 30,
                  .nome = "ImpostaCFSweep",
                  .motivo = "the conversion factors were not accepted",
                  .esamina = ControllaCFSweep,
                  .agisci = MandaFattori},
    VoceControllo{.numero = 31,
                  .nome = "ControllaFFTSD",
                  .motivo = "the hold time of a smart detector",
                  .esamina = ControllaFFTSD,
                  .correggi = CambiaHoldTimeSD},
    VoceControllo{.numero = 32,
                  .nome = "run kind",
                  .motivo = "the checks alone were asked for",
                  .esamina = ControllaRunKind},
    VoceControllo{.numero = 32,
                  .nome = "ControllaImpostazioniMT",
                  .motivo = "more than one line with Mast-Table",
                  .esamina = ControllaImpostazioniMT},
    VoceControllo{.numero = 32,
                  .nome = "ControllaSmartDetectorMT",
                  .motivo = "a smart detector with Mast-Table",
                  .esamina = ControllaSmartDetectorMT},
    VoceControllo{.numero = 32,
                  .nome = "ControllaBatteriaMT",
                  .motivo = "the battery is low",
                  .agisci = ControllaBatteriaMT},
    VoceControllo{.numero = 33,
                  .nome = "ControllaHoldTime",
                  .esamina = ControllaHoldTime,
                  .correggi = AllungaHoldTime},
    VoceControllo{.numero = 34,
                  .nome = "ControllaGeneratoreOem",
                  .esamina = ControllaGeneratoreOem,
                  .correggiSetup = SpegniGeneratore},
    VoceControllo{.numero = 34,
                  .nome = "ControllaTrackingGX2207",
                  .motivo = "tracking was not wanted",
                  .esamina = ControllaTrackingGX2207,
                  .correggiSetup = AccendiTracking},
    VoceControllo{.numero = 34,
                  .nome = "ControllaTrackingFrontEnd2",
                  .esamina = ControllaTrackingFrontEnd2,
                  .correggiSetup = SpegniGeneratore},
    VoceControllo{.numero = 35,
                  .nome = "ControlladBpTFCSweep",
                  .motivo = "a field unit without conversion factor",
                  .esamina = ControlladBpTFCSweep},
    VoceControllo{.numero = 36,
                  .nome = "ControlNameMeasProfiloB",
                  .motivo = "the measure exists and is not to be replaced",
                  .agisci = RisolviNomeMisura},
    VoceControllo{.numero = 37,
                  .nome = "ControllaGX2207FFTSwept",
                  .motivo = "the front-end did not change its operation",
                  .agisci = PreparaFrontEnd},
};

static_assert(std::is_sorted(kCatena.begin(), kCatena.end(),
                             [](const VoceControllo& a, const VoceControllo& b) {
                                 return a.numero < b.numero;
                             }));

} // namespace

std::span<const VoceControllo> CatenaControlli() {
    return kCatena;
}

} // namespace orvane
