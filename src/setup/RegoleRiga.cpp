#include "setup/RegoleRiga.h"

#include <algorithm>
#include <cmath>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "data/NomiTabelle.h"
#include "setup/ModificaTabella.h"
#include "setup/NumeroScalato.h"
#include "setup/TabellaScan.h"

namespace orvane {
namespace {

const VoceUnitaPasso& Voce(UnitaPasso unita) {
    return kUnitaPasso[static_cast<size_t>(unita)];
}

/// The first `quanti` characters, not bytes.
std::string_view PrimiCaratteri(std::string_view utf8, size_t quanti) {
    size_t fine = 0;
    for (; fine < utf8.size(); ++fine) {
        const bool inizia = (static_cast<unsigned char>(utf8[fine]) & 0xC0) != 0x80;
        if (inizia && quanti-- == 0)
            break;
    }
    return utf8.substr(0, fine);
}

} // namespace

UnitaPasso UnitaDelPasso(double mhz) {
    if (mhz >= 1 || mhz < 0)
        return UnitaPasso::MHz;
    return mhz >= 0.001 ? UnitaPasso::kHz : UnitaPasso::Hz;
}

std::string TestoPasso(double mhz, UnitaPasso unita) {
    return TestoScalato(mhz, 1 / Voce(unita).mhz);
}

std::string TestoPassoConUnita(double mhz) {
    const UnitaPasso unita = UnitaDelPasso(mhz);
    return TestoPasso(mhz, unita) + " " + std::string(Voce(unita).testo);
}

void ModificaMargin(ScanLine& riga, std::string_view testo) {
    const auto dB = static_cast<float>(std::clamp(ValoreIniziale(testo), -99.0, 99.0));
    riga.Margin = std::clamp(dB, -kMargineMax, kMargineMax);
}

void ModificaHoldTimeSD(ScanLine& riga, std::string_view testo) {
    riga.HoldTimeSD = static_cast<float>(std::min(std::abs(ValoreIniziale(testo)), kHoldTimeMax));
}

void ModificaNumStepFT(ScanLine& riga, std::string_view testo) {
    const double numero = std::round(std::abs(ValoreIniziale(testo)));
    riga.NumStepFT = static_cast<int16_t>(std::min<double>(numero, kNumStepMax));
}

bool ModificaStep(ScanLine& riga, std::string_view testo, UnitaPasso unita) {
    const double mhz = NumeroScalato(ValoreIniziale(testo), Voce(unita).mhz);
    if (!(mhz > 0))
        return false;
    riga.AutoStep = 0;
    riga.Step = mhz;
    return true;
}

void ModificaAutoStep(ScanLine& riga, bool acceso) {
    riga.AutoStep = acceso ? 1 : 0;
    AggiornaStepAuto(riga);
}

void ModificaStepMode(ScanLine& riga, int modo) {
    riga.StepMode = modo == 1 ? 1 : 0;
}

void ModificaPrompt(ScanLine& riga, std::string_view testo) {
    riga.Prompt = PrimiCaratteri(testo, kPromptMax);
}

void ModificaAncillary(ScanLine& riga, int ancillaryKind, size_t voce, bool accesa) {
    const bool dueLinee = ancillaryKind == 1 || ancillaryKind == 6;
    const int16_t flag = accesa ? 1 : 0;
    if (dueLinee && voce < 2) {
        riga.LineSwitch[voce + 1] = flag;
        riga.LineSwitch[0] = riga.LineSwitch[3] = 0;
    } else if ((ancillaryKind == 2 || ancillaryKind == 4) && voce < riga.LineSwitch.size()) {
        riga.LineSwitch[voce] = flag;
    } else if (ancillaryKind == 3 && voce < riga.Antenna.size()) {
        riga.Antenna[voce] = flag;
    }
}

void AggiornaStepAuto(ScanLine& riga) {
    if (riga.AutoStep == 1)
        riga.Step = DetStepAutoDaRBW(riga.RbwId, riga);
}

bool ControllaCondizioniDSDScanTab(const ScanLine& riga) {
    // Smart counts as one of the group: exactly three are two detectors and Smart itself.
    constexpr int kTre = 3;
    const auto accesi = std::count(riga.Detector.begin(), riga.Detector.end(), int16_t{1});
    return riga.Smart == 1 && accesi + 1 == kTre;
}

void ModificaSmart(ScanLine& riga, bool acceso) {
    riga.Smart = acceso ? 1 : 0;
    if (acceso) {
        const auto primo = std::find(riga.Detector.begin(), riga.Detector.end(), int16_t{1});
        const auto quale = primo == riga.Detector.end() ? 0 : primo - riga.Detector.begin();
        riga.Detector.fill(0);
        riga.Detector[static_cast<size_t>(quale)] = 1;
    }
    AggiornaStepAuto(riga);
}

int16_t& LimiteAcceso(ScanLine& riga, CoppiaLimite coppia) {
    return coppia == CoppiaLimite::Prima ? riga.LimitOn : riga.LimitDSDOn;
}

std::string& NomeLimite(ScanLine& riga, CoppiaLimite coppia) {
    return coppia == CoppiaLimite::Prima ? riga.Limit : riga.LimitDSD;
}

bool LimiteScelto(const ScanLine& riga, CoppiaLimite coppia) {
    const bool prima = coppia == CoppiaLimite::Prima;
    const std::string& nome = prima ? riga.Limit : riga.LimitDSD;
    return (prima ? riga.LimitOn : riga.LimitDSDOn) == 1 && NominaTabella(nome);
}

bool ControllaSelLimSD(const ScanLine& riga) {
    return LimiteScelto(riga, CoppiaLimite::Prima) &&
           (!ControllaCondizioniDSDScanTab(riga) || LimiteScelto(riga, CoppiaLimite::DSD));
}

bool LimiteLineare(const LimFacRecord& limite) {
    return limite.LinFreq == 1;
}

Riquadro RiquadroLimiteMancante() {
    return {.testo = "Smart detector must have\ra Limit (enabled)", .icona = Icona::Esclamazione};
}

Riquadro RiquadroLimiteLineare() {
    return {.testo = "Linear limit not suitable with smart detector", .icona = Icona::Esclamazione};
}

} // namespace orvane
