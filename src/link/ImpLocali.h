// The setters of the front-end settings in the live modes: each updates the record, sends its
// command and has the window redrawn. And the order in which all of them go out.
#pragma once

#include <span>

#include "link/ComuniVivi.h"
#include "link/LimitiFrequenza.h"
#include "link/RegoleComuni.h"

namespace orvane {

/// `#SRBW`, then the filter in use is read back and shown. `riga` is one of the list in force.
void ImpLocaliBWIF(ComuniVivi& c, Modalita modalita, size_t riga);
void ImpLocaliAtt(ComuniVivi& c, Modalita modalita, int dB); ///< `kAttAuto` for AUTO
void ImpLocaliPresel(ComuniVivi& c, Modalita modalita, bool acceso);
void ImpLocaliPreAmp(ComuniVivi& c, Modalita modalita, bool acceso);

inline void ImpLocaliBWIFAn(ComuniVivi& c, size_t riga) {
    ImpLocaliBWIF(c, Modalita::Analyzer, riga);
}
inline void ImpLocaliBWIFMa(ComuniVivi& c, size_t riga) {
    ImpLocaliBWIF(c, Modalita::Manual, riga);
}
inline void ImpLocaliAttAn(ComuniVivi& c, int dB) {
    ImpLocaliAtt(c, Modalita::Analyzer, dB);
}
inline void ImpLocaliAttMa(ComuniVivi& c, int dB) {
    ImpLocaliAtt(c, Modalita::Manual, dB);
}
inline void ImpLocaliPreselAn(ComuniVivi& c, bool acceso) {
    ImpLocaliPresel(c, Modalita::Analyzer, acceso);
}
inline void ImpLocaliPreselMa(ComuniVivi& c, bool acceso) {
    ImpLocaliPresel(c, Modalita::Manual, acceso);
}
inline void ImpLocaliPreAmpAn(ComuniVivi& c, bool acceso) {
    ImpLocaliPreAmp(c, Modalita::Analyzer, acceso);
}
inline void ImpLocaliPreAmpMa(ComuniVivi& c, bool acceso) {
    ImpLocaliPreAmp(c, Modalita::Manual, acceso);
}

// The commands of these are the same in both modes.
void ImpLocaliMinAttAn(ComuniVivi& c, int riga); ///< index into `kMinAttDb`
void ImpLocaliRLDynAn(ComuniVivi& c, int dinamicaId, int refLevel);
/// Dynamics and reference once more: preamplifier and preselector move them.
void SetDinRefLevPAPLAn(ComuniVivi& c);
void ImpLocaliPulseLimAn(ComuniVivi& c, bool acceso);
/// With a front-end attached its own generator input follows.
void ImpLocaliRFOutAn(ComuniVivi& c, bool acceso);
void ImpLocaliLivelloAn(ComuniVivi& c, double livello);
void ImpLocaliTrackingAn(ComuniVivi& c, bool acceso);
void ImpLocaliTGFreqenzaAn(ComuniVivi& c, double mhz);
void ImpLocaliAntennaGX2207An(ComuniVivi& c, bool antenna, bool altaImpedenza);
void ImpLocaliFiltroGX2207An(ComuniVivi& c, bool acceso);

inline constexpr auto ImpLocaliMinAttMa = ImpLocaliMinAttAn;
inline constexpr auto ImpLocaliRLDynMa = ImpLocaliRLDynAn;
inline constexpr auto SetDinRefLevPAPLMa = SetDinRefLevPAPLAn;
inline constexpr auto ImpLocaliPulseLimMa = ImpLocaliPulseLimAn;
inline constexpr auto ImpLocaliRFOutMa = ImpLocaliRFOutAn;
inline constexpr auto ImpLocaliLivelloMa = ImpLocaliLivelloAn;
inline constexpr auto ImpLocaliTrackingMa = ImpLocaliTrackingAn;
inline constexpr auto ImpLocaliTGFreqenzaMa = ImpLocaliTGFreqenzaAn;
inline constexpr auto ImpLocaliAntennaGX2207Ma = ImpLocaliAntennaGX2207An;
inline constexpr auto ImpLocaliFiltroGX2207Ma = ImpLocaliFiltroGX2207An;

/// Limited, across the border of the ranges too; without the user's OK nothing changes.
void ImpLocaliFreqStartStopAn(ComuniVivi& c, const CampoFrequenza& voluto);
void ImpLocaliFrequenzaMa(ComuniVivi& c, double mhz);

/// `ControllaPreSelAn`: reads the preselector's state back where the receiver has one to switch.
void ControllaPreSelAn(ComuniVivi& c);
/// The rules with a receiver behind them: preselector read back, filter, limits, generator, lists.
RegoleComuni ControllaParComuni(ComuniVivi& c, const CasoComuni& caso);

/// One step of the start of a live mode.
struct VoceInvio {
    ParComune quale;
    void (*invia)(ComuniVivi& c, Modalita modalita);
};
/// The settings in the order in which they go out.
std::span<const VoceInvio> OrdineInvio();
/// Sends all of them as the record has them; stops where the user gives up.
void InviaParComuni(ComuniVivi& c, Modalita modalita);

} // namespace orvane
