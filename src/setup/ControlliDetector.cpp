// Checks of detectors, smart ones among them, and their hold times.
#include <algorithm>
#include <array>

#include "base/Numeri.h"
#include "setup/ElencoControlli.h"
#include "setup/Segnala.h"

namespace orvane::prevolo {
namespace {

bool InUso(const ScanLine& riga, DetectorKind detector) {
    return riga.Detector[static_cast<size_t>(detector)] == 1;
}

/// Hold times in ms of the detectors that need them, on 5520F and 3360. No other model is checked.
struct VoceHoldTime {
    DetectorKind detector;
    float minimo;    ///< below it the hold time is raised to it
    float richiesto; ///< what the message calls required
};
constexpr std::array<VoceHoldTime, 3> kHoldTime = {{
    {DetectorKind::QPeak, 500, 2000},
    {DetectorKind::RmsAvg, 1000, 2000},
    {DetectorKind::CAvg, 1000, 2000},
}};

/// The largest figure of the detectors in use; 0 where none of them is.
float Massimo(const ScanLine& riga, float VoceHoldTime::*figura) {
    float massimo = 0;
    for (const VoceHoldTime& voce : kHoldTime)
        if (InUso(riga, voce.detector))
            massimo = std::max(massimo, voce.*figura);
    return massimo;
}

constexpr float kHoldSenzaFFT = 50; // ms: from here on a scan is no FFT

Segnalazione DomandaFFT(size_t indice, bool doppio) {
    return {.esito = EsitoControllo::Chiede,
            .riquadro = DomandaSiNo(doppio ? "Double Smart Detector cannot be done by FFT\r"
                                             "                   Will be set to 50 [ms]\r"
                                             "                   Press yes to continue"
                                           : "For FFT Scan Hold time must be < 50 [ms]\r"
                                             "         Press yes if you want to set it"),
            .riga = indice,
            .noProsegue = !doppio};
}

} // namespace

Segnalazioni ControllaDetRMSAVGScanTab(C c) {
    if (c.modello.ConRmsAvg)
        return {};
    return SeCiSono(
        CelleDove(c.tabella, {ColonnaScan::Detector},
                  [](const ScanLine& riga) { return InUso(riga, DetectorKind::RmsAvg); }),
        EsitoControllo::Ferma, Esclamazione("Rms-Avg Detector not available"));
}

Segnalazioni ControllaFWPerDSD(C c) {
    if (c.modello.FwVersione >= firmware::kDoubleSmart)
        return {};
    return SeCiSono(CelleDove(c.tabella, {ColonnaScan::Detector}, RigaDoppioSmart),
                    EsitoControllo::Ferma,
                    Esclamazione("Double Smart Detector only available for FW >= " +
                                 TestoDaNumero(firmware::kDoubleSmart)));
}

Segnalazioni ControllaFFTSD(C c) {
    Segnalazioni trovate;
    for (size_t i = 0; i < RigheInUso(c.tabella); ++i) {
        const ScanLine& riga = c.tabella[i];
        const bool doppio = RigaDoppioSmart(riga);
        if (riga.Smart == 1 && ControllaScanFFT(riga) &&
            doppio == (riga.HoldTimeSD < kHoldSenzaFFT))
            trovate.push_back(DomandaFFT(i, doppio));
    }
    return trovate;
}

void CambiaHoldTimeSD(ScanTable& tabella, const SetupRecord&, const Segnalazione& s) {
    ScanLine& riga = tabella[s.riga.value_or(0)];
    riga.HoldTimeSD = RigaDoppioSmart(riga) ? kHoldSenzaFFT : 0;
}

Segnalazioni ControllaHoldTime(C c) {
    if (!c.modello.Is3360 && !c.modello.Is5520F)
        return {};
    Segnalazioni trovate;
    for (size_t i = 0; i < RigheInUso(c.tabella); ++i) {
        const ScanLine& riga = c.tabella[i];
        const float minimo = Massimo(riga, &VoceHoldTime::minimo);
        if (!(riga.HoldTime < minimo))
            continue;
        trovate.push_back(
            {.esito = EsitoControllo::Corregge,
             .celle = {{i, ColonnaScan::HoldTime}},
             .riquadro = Esclamazione("Too short Hold Time (Required " +
                                      TestoDaNumero(Massimo(riga, &VoceHoldTime::richiesto)) +
                                      " ms)\r       Hold Time will be set to " +
                                      TestoDaNumero(minimo) + " ms"),
             .riga = i});
    }
    return trovate;
}

void AllungaHoldTime(ScanTable& tabella, const SetupRecord&, const Segnalazione& s) {
    ScanLine& riga = tabella[s.riga.value_or(0)];
    riga.HoldTime = Massimo(riga, &VoceHoldTime::minimo);
}

} // namespace orvane::prevolo
