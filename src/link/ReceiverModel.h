// Who the receiver is, and what follows from it.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace orvane {

/// Rebuilt from the instrument's own answers at each start of a mode or run; never configured.
struct ReceiverModel {
    bool IsK0X = false;
    bool Is5520F = false;
    int16_t ModelloOEM = 0; ///< 0 none, 1 5520F, 2 VSD3, 3 T4470K
    bool Is3360 = false;
    bool Is3360_00 = false;
    bool Is3360_01 = false;
    bool Is3360_02 = false;
    bool Is3360_03 = false;
    bool IsK6X = false;
    bool Is60OEM = false;
    int16_t TipoFrontEnd = 0; ///< 0 none, 1 GX2207 or TB05, 2 by #?BCD*, 3 GX2207F
    bool HaK3XK6X = false;
    int16_t ModoK3X = 0;         ///< 0 no such model, 1 the low range, 2 the high range
    int16_t UnitaEstensione = 0; ///< 0 none or 5540, 1 5570, 2 5590
    bool EstensioneAttiva = false;
    bool ConFiltriMil = false;
    bool ConRmsAvg = false;
    std::string FwTesto;
    float FwVersione = 0;
    std::string SerialNumber;
    float FMinLink = -1; ///< MHz; -1 before it is read
    float FMaxLink = -1; ///< MHz

    bool operator==(const ReceiverModel&) const = default;
};

/// Limits of one live mode. Frequencies in MHz.
struct ModelCaps {
    double FMinAn = 0;
    double FMaxAn = 0;
    double FRisoluzione = 0.000001;
    double FMaxCenter = 0;
    double FMinMa = 0;
    double FMaxMa = 0;
    double FMinScan = 0;
    double FMaxScan = 0;
    float LivelloMin = 0.1f;
    float LivelloMax = 1000.0f;
    int16_t PuntiMin = 1;
    int16_t PuntiMax = 20000;
    double ValoreMin = 0;
    double ValoreMax = 100;
    int16_t PassoMin = 1;
    int16_t PassoMax = 20000;
};

/// Firmware versions that change something, each the first with the property.
namespace firmware {
inline constexpr float kAutoStep5520F = 1.44f; ///< automatic step on the 5520F
inline constexpr float kVisualizzaParComuni = 1.55f;
inline constexpr float kFiltriMil = 1.77f;      ///< #?MIL* is answered
inline constexpr float kRmsAvg = 2.08f;         ///< #?CRA* is answered
inline constexpr float kReport = 2.091f;        ///< click report reading
inline constexpr float kPausaBatteria = 2.092f; ///< pause and battery during a sweep
inline constexpr float kDoubleSmart = 2.13f;    ///< Double Smart Detector
} // namespace firmware

/// The display name. `conFrontEnd` leaves the receiver's own name out before a GX2207.
std::string NomeModello(const ReceiverModel& modello, bool conFrontEnd);

/// Limits that follow from the model, for Analyzer (0) and Manual (1).
std::array<ModelCaps, 2> ImpostaModelCaps(const ReceiverModel& modello);

/// Whether the model carries a battery that answers.
bool HaBatteria(const ReceiverModel& modello);

/// Whether one instrument has a conducted and a radiated input, switched by command.
inline bool HaCondottoERadiato(const ReceiverModel& modello) {
    return modello.HaK3XK6X || modello.Is3360 || modello.ModelloOEM != 0;
}

/// Whether the tracking generator takes commands.
inline bool HaGeneratore(const ReceiverModel& modello) {
    return !modello.Is3360 && !modello.Is5520F && modello.TipoFrontEnd < 2;
}

} // namespace orvane
