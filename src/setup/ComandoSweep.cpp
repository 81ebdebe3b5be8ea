#include "setup/ComandoSweep.h"

#include <algorithm>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "setup/NumeroScalato.h"
#include "setup/TabellaScan.h"

namespace orvane {
namespace {

constexpr int kRbw9kHz = 2;
constexpr double kHzPerMhz = 1e6;

std::string OnOff(bool acceso) {
    return acceso ? "ON" : "OFF";
}

int MinAttDb(int16_t minAtt) {
    const auto ultimo = static_cast<int16_t>(kMinAttDb.size() - 1);
    return kMinAttDb[static_cast<size_t>(std::clamp<int16_t>(minAtt, 0, ultimo))];
}

} // namespace

int DeterminaIDRbwSweep(const ReceiverModel& modello, int rbwId, double stopMhz) {
    if (rbwId < 0 || rbwId >= kNumRbw)
        return 0;
    if (rbwId != kRbw9kHz)
        return TabellaRbw()[static_cast<size_t>(rbwId)].codice;
    const bool aDueGamme = modello.HaK3XK6X || modello.ModelloOEM != 0;
    const bool alto = aDueGamme ? stopMhz > 30 : modello.EstensioneAttiva;
    return alto ? 12 : 6;
}

bool ControllaFW5520FPerAutoStep(const ReceiverModel& modello) {
    return modello.Is5520F && modello.FwVersione >= firmware::kAutoStep5520F;
}

std::string ComponiComandoSweep(const ReceiverModel& modello, const ScanLine& riga) {
    const bool passoImposto = ControllaFW5520FPerAutoStep(modello) && riga.AutoStep == 0;
    const bool smart = riga.Smart == 1;
    constexpr int16_t kUnita5590 = 2; // has no preselector to switch
    const std::vector<std::string> campi = {
        TestoScalato(riga.Start, kHzPerMhz),
        TestoScalato(riga.Stop, kHzPerMhz),
        riga.StepMode == 1 ? "0" : TestoScalato(riga.Step, kHzPerMhz),
        std::string(smart ? "S" : "").append(LettereDetector(riga)),
        TestoDaNumero(riga.HoldTime),
        TestoIntero(DeterminaIDRbwSweep(modello, riga.RbwId, riga.Stop)),
        TestoIntero(MinAttDb(riga.MinAtt)),
        OnOff(riga.PreAmp != 0),
        OnOff(riga.PreSel != 0 && modello.UnitaEstensione != kUnita5590),
        smart ? TestoDaNumero(riga.HoldTimeSD) : "0"};
    return std::string(passoImposto ? "#SSFDS " : "#SSFD ").append(Unisci(campi, ";")).append("*");
}

} // namespace orvane
