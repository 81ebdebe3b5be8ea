// The switches of the command line. Each is searched as a plain substring of the whole text, so
// their order does not matter, and one written in lower case has no effect.
#pragma once

#include <array>
#include <string_view>

namespace orvane {

namespace interruttore {
inline constexpr std::string_view kLogComandi = "/LOGCOMANDI";
inline constexpr std::string_view kLogRisposte = "/LOGRISPOSTE";
inline constexpr std::string_view kLogComRisp = "/LOGCOMRISP";
inline constexpr std::string_view kTimeLog = "/TIMELOG";
inline constexpr std::string_view kLogSweep = "/LOGSWEEP";
inline constexpr std::string_view kNoCMilFrFast = "/NOCMILFRFAST";
inline constexpr std::string_view kNoContFreq = "/NOCONTFREQ";
inline constexpr std::string_view kSetFCSweep = "/SETFCSWEEP";
inline constexpr std::string_view kSaveSetFCSweep = "/SAVESETFCSWEEP";
inline constexpr std::string_view kVisTimeSweep = "/VISTIMESWEEP";
inline constexpr std::string_view kPrintMarkerSweep = "/PRINTMARKERSWEEP";
inline constexpr std::string_view kNoRidimgRtf = "/NORIDIMGRTF";
inline constexpr std::string_view kInfoComUsb = "/INFOCOMUSB";
inline constexpr std::string_view kInfoSR = "/INFOSR";
inline constexpr std::string_view kInfoMod = "/INFOMOD";
inline constexpr std::string_view kRsComp = "/RSCOMP";
inline constexpr std::string_view kNoWheel = "NOWHEEL";
inline constexpr std::string_view kNoMenuEvent = "NOMENUEVENT";
/// All of them, for whoever has to tell a switch from a word.
inline constexpr std::array kTutti = {
    kLogComandi, kLogRisposte, kLogComRisp,     kTimeLog,      kLogSweep,         kNoCMilFrFast,
    kNoContFreq, kSetFCSweep,  kSaveSetFCSweep, kVisTimeSweep, kPrintMarkerSweep, kNoRidimgRtf,
    kInfoComUsb, kInfoSR,      kInfoMod,        kRsComp,       kNoWheel,          kNoMenuEvent};
} // namespace interruttore

inline bool Acceso(std::string_view rigaComando, std::string_view nome) {
    return rigaComando.find(nome) != std::string_view::npos;
}

} // namespace orvane
