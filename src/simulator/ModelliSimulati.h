// The family: who each simulated receiver says it is, and which ranges and commands it has.
#pragma once

#include <string_view>

namespace orvane {

/// How a model tells and switches its two inputs.
enum class IngressoSimulato {
    Unico, ///< one input: no such command
    K3X,   ///< #S3PRC*, #S3PRR*; told by #?3PR* and, but for the 3360 family, #?BCD*
    Oem    ///< #SCO6C*, #SCO6R*; told by #?CO6*
};

struct GammaSimulata {
    double minHz = 0;
    double maxHz = 0; ///< 0: the model has no such range
};

struct ModelloSimulato {
    std::string_view nome;
    std::string_view formaIdn; ///< what stands in the reply to #?IDN* before the firmware
    std::string_view firmware;
    IngressoSimulato ingresso = IngressoSimulato::Unico;
    GammaSimulata bassa{};
    GammaSimulata alta{};         ///< the high range, or that of the extension unit in charge
    std::string_view parolaBcd{}; ///< unit or kind that #?BCD* names
    bool bcdAcceso = false;       ///< single input only: something is connected and in charge
    bool famiglia3360 = false;
    bool conIntestazione = false; ///< sends 32 bytes before the samples of a sweep
    bool conGX2207 = false;       ///< rod antenna and high impedance inputs, high-pass
    bool conBatteria = true;
    bool conLink = false; ///< answers #?LNK*
    bool conPreselettore = true;
};

/// By name, in any letter case; null when there is none.
const ModelloSimulato* TrovaModello(std::string_view nome);

} // namespace orvane
